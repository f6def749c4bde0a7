// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeySequence>
#include <QObject>
#include <QPointer>
#include <QTreeView>

class QAction;

/// The commands on the files in the tree of an address bar, which does them by actions of its own;
/// they are known by their keys.
class TreeActions : public QObject
{
    Q_OBJECT

public:
    explicit TreeActions(QTreeView *tree, QObject *parent = nullptr);

    /// Has \a action do with the files in the tree what \a keys do there.
    void serve(QAction *action, const QKeySequence &keys);

    /// What the tree does at \a keys; null if it knows nothing.
    QAction *actionFor(const QKeySequence &keys) const;

    bool hasFocus() const;

private:
    const QPointer<QTreeView> m_tree;
};
