// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class QTableWidget;

/// A list of commands and the keys that call them.
class ShortcutsDialog : public QDialog
{
    Q_OBJECT

public:
    /// Lists the actions and the page tabs that \a window answers to.
    explicit ShortcutsDialog(QWidget *window);

private:
    void addRow(const QString &command, const QString &keys, const QString &description);

    QTableWidget *m_table;
};
