// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "CsvText.h"
#include "FileStatus.h"
#include "TextCodec.h"

#include <QByteArray>
#include <QCoreApplication>

/// The file of a table, read and written so that no cell changes that the user did not change.
class TableFile
{
    Q_DECLARE_TR_FUNCTIONS(TableFile)

public:
    /// In bytes.
    static constexpr qint64 MaximumSize = qint64(64) * 1024 * 1024;

    /// Reads the file at \a path. When that fails, everything stays as it was.
    FileStatus load(const QString &path);

    /// Writes \a rows to the file that was loaded.
    FileStatus save(const QList<CsvRow> &rows);
    FileStatus saveCopy(const QString &path, const QList<CsvRow> &rows) const;

    bool isChangedOnDisk() const;
    /// Follows the file to another \a path.
    void setPath(const QString &path) { m_path = path; }

    /// As they were loaded.
    QList<CsvRow> rows() const { return m_rows; }
    QChar separator() const { return m_separator; }
    /// The one that most lines have.
    QString lineEnd() const { return m_lineEnd; }

    TextCodec::Encoding encoding() const { return m_codec.encoding(); }
    void setEncoding(TextCodec::Encoding encoding) { m_codec.setEncoding(encoding); }
    QString encodingName() const { return m_codec.encodingName(); }

private:
    FileStatus encode(const QList<CsvRow> &rows, QByteArray *bytes) const;

    QString m_path;
    QList<CsvRow> m_rows;
    QByteArray m_digest;
    TextCodec m_codec;
    QChar m_separator = u',';
    QString m_lineEnd = QChar(u'\n');
    bool m_isLastEnded = true;
};
