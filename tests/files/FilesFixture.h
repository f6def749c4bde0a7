// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "support/TestCase.h"

#include <QTemporaryDir>

#include <memory>

class FilePane;
class FilesWindow;
class QTreeView;

namespace VornFrame {
class AddressBar;
}

/// The base of the tests of the whole window: each function finds it shown and active, without
/// settings, both panes in an empty home folder of its own.
class FilesFixture : public TestCase
{
    Q_OBJECT

public:
    FilesFixture();
    ~FilesFixture() override;

protected:
    FilesWindow *window() const { return m_window.get(); }
    FilePane *left() const { return pane(QStringLiteral("leftPane")); }
    FilePane *right() const { return pane(QStringLiteral("rightPane")); }

    static VornFrame::AddressBar *barOf(const FilePane *pane);
    static QTreeView *treeOf(const FilePane *pane);

    /// Selects the file \a name in the tree of \a pane, as soon as the tree knows of it.
    static bool select(const FilePane *pane, const QString &name);
    static void selectNone(const FilePane *pane);

    /// What the preview shows.
    QString previewName() const;
    QString previewText() const;

    QString home() const;
    QString path(const QString &name) const { return home() + u'/' + name; }
    QString settingsFile() const;
    QString createFile(const QString &name, const QByteArray &bytes) const;
    QString createFolder(const QString &name) const;

    /// The window is closed, and another one with the settings in \a settings takes its place.
    void restart(const QString &settings, const QStringList &folders = {});

protected Q_SLOTS:
    void init();
    void cleanup();

private:
    FilePane *pane(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FilesWindow> m_window;
    QByteArray m_homeBefore;
};
