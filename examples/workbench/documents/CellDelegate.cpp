// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "CellDelegate.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

/// In px.
constexpr QSize Editor_Minimum(200, 80);

QString withFeeds(QString text)
{
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
}

/// Other than QPlainTextEdit::toPlainText(), it keeps spaces of every kind.
QString textOf(const QPlainTextEdit *editor)
{
    return editor->document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

} // namespace

void CellDelegate::finish(QWidget *editor)
{
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor);
}

QWidget *CellDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    Q_UNUSED(option)
    const QString text = index.data(Qt::EditRole).toString();
    if (text.contains(u'\n') || text.contains(u'\r')) {
        auto *editor = new QPlainTextEdit(parent);
        editor->setAccessibleName(tr("Cell"));
        editor->setTabChangesFocus(true);
        connect(editor, &QPlainTextEdit::textChanged, this,
                [this, editor] { Q_EMIT edited(editor); });
        return editor;
    }
    auto *editor = new QLineEdit(parent);
    editor->setAccessibleName(tr("Cell"));
    editor->setFrame(false);
    connect(editor, &QLineEdit::textEdited, this, [this, editor] { Q_EMIT edited(editor); });
    return editor;
}

void CellDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QString text = index.data(Qt::EditRole).toString();
    // Nobody typed this.
    const QSignalBlocker blocker(editor);
    if (auto *lines = qobject_cast<QPlainTextEdit *>(editor))
        lines->setPlainText(withFeeds(text));
    else if (auto *line = qobject_cast<QLineEdit *>(editor))
        line->setText(text);
}

void CellDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                const QModelIndex &index) const
{
    const QString before = index.data(Qt::EditRole).toString();
    if (const auto *lines = qobject_cast<QPlainTextEdit *>(editor)) {
        QString after = textOf(lines);
        if (after == withFeeds(before))
            return;
        if (before.contains(u"\r\n"_s))
            after.replace(u'\n', u"\r\n"_s);
        model->setData(index, after);
    } else if (const auto *line = qobject_cast<QLineEdit *>(editor); line && line->isModified()) {
        model->setData(index, line->text());
    }
}

void CellDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    Q_UNUSED(index)
    QRect rect = option.rect;
    if (qobject_cast<QPlainTextEdit *>(editor) != nullptr) {
        rect.setSize(rect.size().expandedTo(Editor_Minimum));
        const QRect room = editor->parentWidget()->rect();
        rect.moveRight(std::min(rect.right(), room.right()));
        rect.moveBottom(std::min(rect.bottom(), room.bottom()));
        rect.moveTopLeft({std::max(rect.left(), 0), std::max(rect.top(), 0)});
    }
    editor->setGeometry(rect);
}

QString CellDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    const QString text = QStyledItemDelegate::displayText(value, locale);
    return withFeeds(text).replace(QChar::LineSeparator, u'\n').replace(u'\n', u'↵');
}
