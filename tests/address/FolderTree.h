// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

/// Folders for one test function, removed after it.
class FolderTree
{
public:
    explicit FolderTree(const QStringList &folders = {})
    {
        QTEST_ASSERT(m_root.isValid());
        for (const QString &folder : folders)
            QTEST_ASSERT(QDir(m_root.path()).mkpath(folder));
    }

    QString path(const QString &folder = {}) const
    {
        return folder.isEmpty() ? m_root.path() : m_root.path() + u'/' + folder;
    }

    /// An empty file; its path.
    QString addFile(const QString &name) const
    {
        QFile file(path(name));
        QTEST_ASSERT(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }

    void remove(const QString &folder) const
    {
        QTEST_ASSERT(QDir(path(folder)).removeRecursively());
    }

private:
    QTemporaryDir m_root;
};
