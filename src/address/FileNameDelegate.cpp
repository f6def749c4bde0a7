// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FileNameDelegate.h"

#include "core/SharedIcons.h"

#include <QApplication>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QStyle>

namespace VornFrame {

FileNameDelegate::FileNameDelegate(QObject *parent) : QStyledItemDelegate(parent) {}

QWidget *FileNameDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (editor)
        editor->setAccessibleName(tr("Name"));
    return editor;
}

QString FileNameDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    // The base class would make a second line of what follows a newline.
    constexpr QChar SymbolForNewline(0x21b5);
    return QStyledItemDelegate::displayText(value, locale)
        .replace(QChar::LineSeparator, SymbolForNewline);
}

void FileNameDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    // Comes again whenever the file changes, and must not take away what the user has typed.
    const auto *edit = qobject_cast<QLineEdit *>(editor);
    if (!edit || !edit->isModified())
        QStyledItemDelegate::setEditorData(editor, index);
}

void FileNameDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const auto *model = qobject_cast<const QFileSystemModel *>(index.model());
    // The model has the icons of the system's theme, or none where there is no theme.
    if (!model || index.column() != 0 || !option->icon.isNull())
        return;
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->icon = SharedIcons::standardIcon(model->isDir(index) ? QStyle::SP_DirIcon
                                                                 : QStyle::SP_FileIcon);
    const int size = QApplication::style()->pixelMetric(QStyle::PM_SmallIconSize, option,
                                                        option->widget);
    option->decorationSize = QSize(size, size);
}

} // namespace VornFrame
