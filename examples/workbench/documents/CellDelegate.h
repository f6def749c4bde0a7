// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

/// Edits cells in a line, and those with line ends in them in a field of several lines.
class CellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Takes over what is in \a editor, and closes it.
    void finish(QWidget *editor);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

    /// Line ends as a sign of their own, so that a row has one line.
    QString displayText(const QVariant &value, const QLocale &locale) const override;

Q_SIGNALS:
    /// Someone typed into \a editor.
    void edited(QWidget *editor) const;
};
