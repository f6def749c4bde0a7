// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ActionFactory;
class DocumentTabs;
class QAction;
class TreeActions;

namespace VornFrame {
class RibbonGroup;
class RibbonPage;
} // namespace VornFrame

/// The ribbon page for files, the clipboard and the window.
class HomePage : public QObject
{
    Q_OBJECT

public:
    /// Fills \a page with commands from \a actions. All have to live as long as this, which belongs
    /// to \a page.
    HomePage(VornFrame::RibbonPage *page, const ActionFactory &actions, DocumentTabs *tabs,
             TreeActions *tree);

    /// Makes empty text files, wherever it is offered.
    QAction *newTextFile() const { return m_newTextFile; }

Q_SIGNALS:
    /// The user wants to choose files to open, or to open the one that is selected in the tree.
    void signalOpenRequested();
    void signalOpenSelectedRequested();
    void signalUndoRequested();
    void signalRedoRequested();
    void signalFullScreenRequested(bool on);

private:
    void addFiles(VornFrame::RibbonPage *page, const ActionFactory &actions);
    void addTreeCommands(VornFrame::RibbonPage *page, const ActionFactory &actions,
                         TreeActions *tree);
    void addClipboard(VornFrame::RibbonPage *page, const ActionFactory &actions, TreeActions *tree);
    void addView(VornFrame::RibbonPage *page, const ActionFactory &actions);
    void showState();

    DocumentTabs *m_tabs;
    QAction *m_newTextFile = nullptr;
    QAction *m_save = nullptr;
    QAction *m_saveAll = nullptr;
    QAction *m_close = nullptr;
};
