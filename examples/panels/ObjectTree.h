// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "ToolView.h"

#include <QPointer>

class QTreeWidget;
class QTreeWidgetItem;

/// The tree of all objects below one, each with its class and its object name, as it was when last
/// refreshed.
class ObjectTree : public ToolView
{
    Q_OBJECT

public:
    /// \a root is only looked at.
    explicit ObjectTree(QObject *root, QWidget *parent = nullptr);

    /// Reads the tree anew. The chosen object stays chosen if it is still there.
    void refresh();

    /// Null if none is chosen, or if it is gone.
    QObject *chosenObject() const;

Q_SIGNALS:
    /// Also after a refresh, when the object may have other properties; null for none.
    void objectChosen(QObject *object);

private:
    QTreeWidgetItem *itemFor(QObject *object, const QObject *chosen);

    QPointer<QObject> m_root;
    QTreeWidget *m_tree;
    QTreeWidgetItem *m_chosenItem = nullptr; ///< while refreshing
    int m_count = 0;
};
