// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TreeActions.h"

#include "DocumentTabs.h"
#include "TableDocument.h"

#include <QAction>
#include <QApplication>
#include <QTableView>
#include <QTreeView>

TreeActions::TreeActions(QTreeView *tree, DocumentTabs *tabs, QObject *parent)
    : QObject(parent), m_tree(tree), m_tabs(tabs)
{}

void TreeActions::serve(QAction *action, const QKeySequence &keys, const char *slot)
{
    connect(action, &QAction::triggered, this, [this, keys, slot] { perform(keys, slot); });
}

void TreeActions::serve(QAction *action, const QKeySequence &keys)
{
    QAction *own = actionFor(keys);
    if (!own)
        return;
    connect(action, &QAction::triggered, own, &QAction::trigger);
    const auto follow = [action, own] { action->setEnabled(own->isEnabled()); };
    connect(own, &QAction::changed, action, follow);
    follow();
}

QAction *TreeActions::actionFor(const QKeySequence &keys) const
{
    const QList<QAction *> actions = m_tree->actions();
    for (QAction *action : actions) {
        if (action->shortcut() == keys)
            return action;
    }
    return nullptr;
}

void TreeActions::perform(const QKeySequence &keys, const char *slot) const
{
    QWidget *focus = QApplication::focusWidget();
    const QByteArray method = QByteArray(slot) + "()";
    if (focus && focus->metaObject()->indexOfMethod(method.constData()) >= 0) {
        QMetaObject::invokeMethod(focus, slot);
        return;
    }
    if (performInTable(slot))
        return;
    QAction *action = actionFor(keys);
    if (action && m_tree->hasFocus())
        action->trigger();
}

/// False when no table has the focus.
bool TreeActions::performInTable(const QByteArray &slot) const
{
    auto *table = qobject_cast<TableDocument *>(m_tabs->current());
    if (!table || !table->view()->hasFocus())
        return false;
    if (slot == "cut")
        table->cut();
    else if (slot == "copy")
        table->copy();
    else
        table->paste();
    return true;
}
