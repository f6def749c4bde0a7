// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QKeySequence>
#include <QObject>

class DocumentTabs;
class QAction;
class QTreeView;

/// The commands of the clipboard for whatever has the focus, be it a text, a table or the tree of an
/// address bar, and those on the files in the tree.
///
/// The tree does these things by actions of its own, which are known by their keys.
class TreeActions : public QObject
{
    Q_OBJECT

public:
    /// \a tree and \a tabs have to live as long as this.
    TreeActions(QTreeView *tree, DocumentTabs *tabs, QObject *parent = nullptr);

    /// Has \a action do with what has the focus what \a keys do there; \a slot is what a text calls
    /// it: "cut", "copy" or "paste".
    void serve(QAction *action, const QKeySequence &keys, const char *slot);

    /// Has \a action do with the files in the tree what \a keys do there.
    void serve(QAction *action, const QKeySequence &keys);

private:
    QAction *actionFor(const QKeySequence &keys) const;
    void perform(const QKeySequence &keys, const char *slot) const;

    bool performInTable(const QByteArray &slot) const;

    QTreeView *m_tree;
    DocumentTabs *m_tabs;
};
