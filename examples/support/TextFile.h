// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FileStatus.h"
#include "TextCodec.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// A text file, read and written so that nothing changes that the user did not change: the
/// encoding, the byte order mark, the kind of each line end and a missing last line end all survive.
///
/// Text is exchanged with "\n" between its lines. Where a file mixes line ends, untouched lines
/// keep theirs and new ones get the kind that prevails.
class TextFile
{
    Q_DECLARE_TR_FUNCTIONS(TextFile)

public:
    enum class LineEnd { Lf, CrLf, Cr, Mixed };

    using Error = FileStatus::Error;
    using Status = FileStatus;
    using Encodings = TextCodec::Encodings;

    /// In bytes.
    static constexpr qint64 MaximumSize = qint64(64) * 1024 * 1024;

    /// Reads the file at \a path. When that fails, everything stays as it was.
    Status load(const QString &path, Encodings encodings = Encodings::OnlyUtf8);

    /// Writes \a text to the file at \a path, which becomes this object's file. A file that is
    /// there is replaced in one step and only when all bytes are on the disk; until then it stays
    /// as it was. A link stays a link, and permissions are kept.
    Status save(const QString &path, const QString &text);

    /// The same without making \a path this object's file.
    Status saveCopy(const QString &path, const QString &text) const;

    /// Whether the file holds other bytes than when it was last loaded or saved; a file that is
    /// gone does not.
    bool isChangedOnDisk() const;

    /// The absolute path; empty for a text that has no file yet.
    QString path() const { return m_path; }
    /// Follows the file to another \a path.
    void setPath(const QString &path) { m_path = path; }

    /// The text as it was last loaded or saved.
    QString text() const { return m_text; }

    LineEnd lineEnd() const;

    /// Makes all line ends alike from the next save on; LineEnd::Mixed is ignored.
    void setLineEnd(LineEnd lineEnd);

    bool hasByteOrderMark() const { return m_codec.hasByteOrderMark(); }
    void setByteOrderMark(bool on) { m_codec.setByteOrderMark(on); }

    TextCodec::Encoding encoding() const { return m_codec.encoding(); }
    void setEncoding(TextCodec::Encoding encoding) { m_codec.setEncoding(encoding); }
    QString encodingName() const { return m_codec.encodingName(); }

private:
    void splitLines(const QString &decoded);
    QStringList breaksFor(const QString &text) const;
    /// \a text with the line ends of the file.
    QString joined(const QString &text) const;

    QString m_path;
    QString m_text;
    QByteArray m_digest;
    /// One entry a line end, filled only where line ends are mixed.
    QStringList m_breaks;
    QString m_commonBreak = QChar(u'\n');
    TextCodec m_codec;
};
