// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DocumentLoader.h"

#include "support/TestCase.h"

#include <QTemporaryDir>

#include <memory>

/// The base of tests of documents: a folder for their files.
class DocumentFixture : public TestCase
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    QString filePath(const QString &name) const { return m_folder->filePath(name); }
    /// Writes a file and returns its path.
    QString createFile(const QString &name, const QByteArray &bytes) const;
    static QByteArray bytesOf(const QString &path);

    /// Fails the program if the file is no such document.
    template <typename Document>
    static std::unique_ptr<Document> load(const QString &path)
    {
        QString reason;
        WorkbenchDocument *document = DocumentLoader::load(path, &reason);
        auto *result = qobject_cast<Document *>(document);
        if (!result)
            qFatal("a document could not be opened: %s", qPrintable(reason));
        return std::unique_ptr<Document>(result);
    }

    static QString property(const WorkbenchDocument *document, const QString &name);

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};
