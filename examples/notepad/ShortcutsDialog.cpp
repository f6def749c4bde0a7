// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ShortcutsDialog.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr QSize DialogSize(700, 480);

QString keysOf(const QAction *action)
{
    QStringList keys;
    const QList<QKeySequence> shortcuts = action->shortcuts();
    for (const QKeySequence &shortcut : shortcuts)
        keys += shortcut.toString(QKeySequence::NativeText);
    return keys.join(ShortcutsDialog::tr(" or "));
}

} // namespace

ShortcutsDialog::ShortcutsDialog(QWidget *window) : QDialog(window), m_table(new QTableWidget(0, 3))
{
    setWindowTitle(tr("Keyboard Shortcuts"));
    m_table->setAccessibleName(tr("Keyboard shortcuts"));
    m_table->setHorizontalHeaderLabels({tr("Command"), tr("Keys"), tr("What it does")});
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);

    addRow(tr("Pages"), tr("Alt+H, Alt+F, Alt+T, Alt+V, Alt+S"),
           tr("Home, Find, Styles, View, Selection"));
    addRow(tr("Menus"), tr("Alt+Shift+S, Alt+I, Alt+O"), tr("Ways to save, Insert, Format"));
    const QList<QAction *> actions = window->actions();
    for (const QAction *action : actions)
        addRow(action->text().replace(u'\n', u' '), keysOf(action), action->statusTip());
    m_table->resizeColumnsToContents();

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    layout->addWidget(buttons);
    resize(DialogSize);
}

void ShortcutsDialog::addRow(const QString &command, const QString &keys,
                             const QString &description)
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    m_table->setItem(row, 0, new QTableWidgetItem(command));
    m_table->setItem(row, 1, new QTableWidgetItem(keys));
    m_table->setItem(row, 2, new QTableWidgetItem(description));
}
