// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DocumentTabs.h"
#include "WorkbenchSettings.h"

#include <VornFrame/VornFrameAgent.h>

#include <QMainWindow>
#include <QtMessageHandler>

class ActionFactory;
class DockLayout;
class FilterGallery;
class HomePage;
class MessageLog;
class OutlineView;
class PropertyList;
class QTreeView;
class TreeActions;
class ViewPage;

/// The window of the program: a folder, its files in tabs, and what there is to do with them.
class WorkbenchWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Opens files with \a loader. The window keeps its state in the INI file \a settingsFile; an
    /// empty name keeps nothing.
    WorkbenchWindow(const QString &settingsFile, DocumentTabs::Loader loader,
                    QWidget *parent = nullptr);
    ~WorkbenchWindow() override;

    VornFrameAgent *agent() { return &m_agent; }
    DocumentTabs *tabs() const { return m_tabs; }
    FilterGallery *gallery() const { return m_gallery; }

    /// Shows the folder at \a path, or opens the file there, in its folder. False, and nothing
    /// happens, when there is neither.
    bool openPath(const QString &path);

    /// Opens the files of the last time, and says of each in the log when it cannot be opened.
    void openLastFiles();

    /// Says \a text and \a reason in a box and in the log.
    void fail(const QString &text, const QString &reason);

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void createViews();
    void createTree();
    void createRibbon();
    void createCorner(const ActionFactory &actions);
    void connectPages();
    void log(QtMsgType type, const QString &text);
    void chooseFiles();
    void saveCopy();
    void openSelected();
    void createTextFile();
    void setFullScreen(bool on);
    void showHelp();
    void showContent();
    void showPlaceholder();
    void showFirst();
    void loadSettings();
    void saveSettings(const QString &currentFile);

    const QString m_settingsFile;
    WorkbenchSettings m_settings; ///< those of the last time
    VornFrameAgent m_agent;
    DocumentTabs *m_tabs = nullptr;
    DockLayout *m_layout = nullptr;
    QTreeView *m_tree = nullptr;
    OutlineView *m_outline = nullptr;
    PropertyList *m_properties = nullptr;
    MessageLog *m_messages = nullptr;
    TreeActions *m_treeActions = nullptr;
    HomePage *m_homePage = nullptr;
    ViewPage *m_viewPage = nullptr;
    FilterGallery *m_gallery = nullptr;
    bool m_isFailureLoggedOnly = false;
    bool m_wasShown = false;
};
