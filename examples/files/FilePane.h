// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QTreeView;

namespace VornFrame {
class AddressBar;
}

/// One side of the window: an address bar with its tree below.
class FilePane : public QWidget
{
    Q_OBJECT

public:
    /// \a name tells the panes apart for those who cannot see them.
    explicit FilePane(const QString &name, QWidget *parent = nullptr);

    QString folder() const { return m_folder; }
    void setFolder(const QString &path);

    /// Shows the folder at \a path as if nothing had been shown before.
    void startIn(const QString &path);

    /// What is selected, else the folder.
    QString currentPath() const;

    /// The line on top shows which pane is the active one.
    void setActive(bool active);

    void focusFiles();

Q_SIGNALS:
    void folderChanged(const QString &path);
    /// Something else was selected.
    void currentPathChanged();
    /// The user opened a file of a kind that the program shows.
    void fileOpened(const QString &path);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void createActions();
    void connectBar();
    void showFolder(const QString &path);
    /// A new file is selected, as a new folder is.
    void createTextFile();

    VornFrame::AddressBar *m_bar;
    QTreeView *m_tree;
    QString m_folder;
    bool m_isActive = false;
};
