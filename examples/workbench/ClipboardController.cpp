// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ClipboardController.h"

#include "DocumentTabs.h"
#include "TableDocument.h"
#include "TreeActions.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableView>

namespace {

/// What has the focus, if it is a \a Widget.
template <typename Widget>
Widget *focused()
{
    return qobject_cast<Widget *>(QApplication::focusWidget());
}

} // namespace

ClipboardController::ClipboardController(TreeActions *tree, DocumentTabs *tabs, QObject *parent)
    : QObject(parent), m_tree(tree), m_tabs(tabs)
{}

void ClipboardController::serve(QAction *cut, QAction *copy, QAction *paste)
{
    m_cut = cut;
    m_copy = copy;
    m_paste = paste;
    connect(cut, &QAction::triggered, this, &ClipboardController::cut);
    connect(copy, &QAction::triggered, this, &ClipboardController::copy);
    connect(paste, &QAction::triggered, this, &ClipboardController::paste);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { follow(now); });
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this,
            &ClipboardController::showState);
    for (const auto key : {QKeySequence::Cut, QKeySequence::Copy, QKeySequence::Paste}) {
        if (const QAction *own = m_tree->actionFor(key))
            connect(own, &QAction::changed, this, &ClipboardController::showState);
    }
    follow(QApplication::focusWidget());
}

void ClipboardController::cut() const
{
    if (auto *text = focused<QPlainTextEdit>())
        text->cut();
    else if (auto *field = focused<QLineEdit>())
        field->cut();
    else if (TableDocument *table = focusedTable())
        table->cut();
    else if (QAction *own = treeAction(QKeySequence::Cut))
        own->trigger();
}

void ClipboardController::copy() const
{
    if (auto *text = focused<QPlainTextEdit>())
        text->copy();
    else if (const auto *field = focused<QLineEdit>())
        field->copy();
    else if (const TableDocument *table = focusedTable())
        table->copy();
    else if (QAction *own = treeAction(QKeySequence::Copy))
        own->trigger();
}

void ClipboardController::paste() const
{
    if (auto *text = focused<QPlainTextEdit>())
        text->paste();
    else if (auto *field = focused<QLineEdit>())
        field->paste();
    else if (TableDocument *table = focusedTable())
        table->paste();
    else if (QAction *own = treeAction(QKeySequence::Paste))
        own->trigger();
}

void ClipboardController::follow(QWidget *focus)
{
    for (const QMetaObject::Connection &connection : std::as_const(m_connections))
        disconnect(connection);
    m_connections.clear();
    if (auto *text = qobject_cast<QPlainTextEdit *>(focus)) {
        m_connections.append(
            connect(text, &QPlainTextEdit::copyAvailable, this, &ClipboardController::showState));
    } else if (auto *field = qobject_cast<QLineEdit *>(focus)) {
        m_connections.append(
            connect(field, &QLineEdit::selectionChanged, this, &ClipboardController::showState));
        // Text that goes takes its selection along in silence.
        m_connections.append(
            connect(field, &QLineEdit::textChanged, this, &ClipboardController::showState));
    } else if (const TableDocument *table = focusedTable()) {
        m_connections.append(connect(table->view()->selectionModel(),
                                     &QItemSelectionModel::currentChanged, this,
                                     &ClipboardController::showState));
    }
    showState();
}

void ClipboardController::showState() const
{
    const bool hasText = !QApplication::clipboard()->text().isEmpty();
    if (const auto *text = focused<QPlainTextEdit>()) {
        const bool hasSelection = text->textCursor().hasSelection();
        enable(hasSelection && !text->isReadOnly(), hasSelection, text->canPaste());
    } else if (const auto *field = focused<QLineEdit>()) {
        const bool hasSelection = field->hasSelectedText();
        enable(hasSelection && !field->isReadOnly(), hasSelection, hasText && !field->isReadOnly());
    } else if (const TableDocument *table = focusedTable()) {
        const bool hasCell = table->view()->currentIndex().isValid();
        enable(hasCell, hasCell, hasText);
    } else {
        const auto can = [this](QKeySequence::StandardKey key) {
            const QAction *own = treeAction(key);
            return own != nullptr && own->isEnabled();
        };
        enable(can(QKeySequence::Cut), can(QKeySequence::Copy), can(QKeySequence::Paste));
    }
}

void ClipboardController::enable(bool canCut, bool canCopy, bool canPaste) const
{
    m_cut->setEnabled(canCut);
    m_copy->setEnabled(canCopy);
    m_paste->setEnabled(canPaste);
}

/// Null when no table has the focus.
TableDocument *ClipboardController::focusedTable() const
{
    auto *table = m_tabs ? qobject_cast<TableDocument *>(m_tabs->current()) : nullptr;
    return table && table->view()->hasFocus() ? table : nullptr;
}

/// Null when the tree does not have the focus.
QAction *ClipboardController::treeAction(QKeySequence::StandardKey key) const
{
    return m_tree && m_tree->hasFocus() ? m_tree->actionFor(key) : nullptr;
}
