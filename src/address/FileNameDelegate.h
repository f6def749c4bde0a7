// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

namespace VornFrame {

/// Shows the names of files in one line each, with an icon on any system, and lets them be edited in
/// place.
class FileNameDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit FileNameDelegate(QObject *parent);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    QString displayText(const QVariant &value, const QLocale &locale) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    Q_DISABLE_COPY_MOVE(FileNameDelegate)
};

} // namespace VornFrame
