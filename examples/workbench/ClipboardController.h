// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QKeySequence>
#include <QList>
#include <QMetaObject>
#include <QObject>
#include <QPointer>

class DocumentTabs;
class QAction;
class QWidget;
class TableDocument;
class TreeActions;

/// The commands of the clipboard for whatever has the focus: a text, a field, a table or the tree of
/// an address bar. They are enabled while they can do something there.
class ClipboardController : public QObject
{
    Q_OBJECT

public:
    ClipboardController(TreeActions *tree, DocumentTabs *tabs, QObject *parent = nullptr);

    /// Has these actions cut, copy and paste.
    void serve(QAction *cut, QAction *copy, QAction *paste);

private:
    void cut() const;
    void copy() const;
    void paste() const;
    void follow(QWidget *focus);
    void showState() const;
    void enable(bool canCut, bool canCopy, bool canPaste) const;
    TableDocument *focusedTable() const;
    QAction *treeAction(QKeySequence::StandardKey key) const;

    /// Both may go before the focus does.
    const QPointer<TreeActions> m_tree;
    const QPointer<DocumentTabs> m_tabs;
    QAction *m_cut = nullptr;
    QAction *m_copy = nullptr;
    QAction *m_paste = nullptr;
    /// To what has the focus.
    QList<QMetaObject::Connection> m_connections;
};
