// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ActionFactory;
class ClipboardController;
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
             TreeActions *tree, ClipboardController *clipboard);

    /// Makes empty text files, wherever it is offered.
    QAction *newTextFile() const { return m_newTextFile; }

    /// Shows whether the window fills the screen.
    void showFullScreen(bool on);

Q_SIGNALS:
    /// The user wants to choose files to open, or to open the one that is selected in the tree.
    void signalOpenRequested();
    void signalOpenSelectedRequested();
    /// The current document is to be copied to another file.
    void signalSaveCopyRequested();
    void signalFullScreenRequested(bool on);

private:
    void addFiles(VornFrame::RibbonPage *page, const ActionFactory &actions);
    void addTreeCommands(VornFrame::RibbonPage *page, const ActionFactory &actions,
                         TreeActions *tree);
    void addClipboard(VornFrame::RibbonPage *page, const ActionFactory &actions,
                      ClipboardController *clipboard);
    void addHistory(VornFrame::RibbonGroup *group, const ActionFactory &actions);
    void addView(VornFrame::RibbonPage *page, const ActionFactory &actions);
    void showState();
    void showHistory();

    DocumentTabs *m_tabs;
    QAction *m_newTextFile = nullptr;
    QAction *m_save = nullptr;
    QAction *m_saveAll = nullptr;
    QAction *m_close = nullptr;
    QAction *m_saveCopy = nullptr;
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QAction *m_fullScreen = nullptr;
};
