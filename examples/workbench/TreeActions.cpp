// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TreeActions.h"

#include <QAction>

TreeActions::TreeActions(QTreeView *tree, QObject *parent) : QObject(parent), m_tree(tree) {}

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
    const QList<QAction *> actions = m_tree ? m_tree->actions() : QList<QAction *>();
    for (QAction *action : actions) {
        if (action->shortcut() == keys)
            return action;
    }
    return nullptr;
}

bool TreeActions::hasFocus() const
{
    return m_tree != nullptr && m_tree->hasFocus();
}
