// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>

class FilePane;
class PreviewPane;
class QSplitter;

/// The window of the program: two panes of files, and a preview below.
class FilesWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The window keeps its layout and its folders in the INI file \a settingsFile; an empty name
    /// keeps nothing.
    explicit FilesWindow(const QString &settingsFile, QWidget *parent = nullptr);
    ~FilesWindow() override;

    /// Shows the folders at \a paths: the first one on the left, the second one on the right. In
    /// place of those that do not exist, the home folder is shown. Returns these paths.
    QStringList openFolders(const QStringList &paths);

    /// What to say of \a paths that are no folders.
    static QString missingText(const QStringList &paths);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    FilePane *createPane(const QString &name, const QString &objectName);
    void createLayout();
    void createMenus();
    FilePane *otherPane() const;
    void activate(FilePane *pane);
    void followFocus(QWidget *before, QWidget *now);
    void showFolder(FilePane *pane);
    void showPreview(FilePane *pane);
    void openFile(const QString &path);
    void goToOtherPane();
    void showSameFolder();
    void swapFolders();
    void loadSettings();
    void saveSettings() const;

    const QString m_settingsFile;
    FilePane *m_left;
    FilePane *m_right;
    FilePane *m_active;
    PreviewPane *m_preview;
    QSplitter *m_panes = nullptr;
    QSplitter *m_rows = nullptr;
    QAction *m_previewAction = nullptr;
};
