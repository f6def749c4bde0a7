// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FileStatus.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/// The way from the bytes of a file to its text and back, without a loss in either direction.
class TextCodec
{
    Q_DECLARE_TR_FUNCTIONS(TextCodec)

public:
    enum class Encoding { Utf8, Utf16LittleEndian, Utf16BigEndian, Latin1 };

    /// What decode() looks for. All is UTF-16 with a byte order mark, UTF-8, and Latin-1 for what is
    /// neither and yet looks like text.
    enum class Encodings { OnlyUtf8, All };

    /// Makes \a text of \a bytes and keeps how. When that fails, both stay as they were.
    FileStatus decode(const QByteArray &bytes, Encodings encodings, QString *text);

    /// The bytes of \a text; a letter that the encoding does not have becomes another.
    QByteArray encode(const QString &text) const;

    /// The first letter of \a text that the encoding does not have, as a sentence for the user;
    /// empty when it has all.
    FileStatus check(const QString &text) const;

    Encoding encoding() const { return m_encoding; }
    void setEncoding(Encoding encoding) { m_encoding = encoding; }

    /// The name of the encoding, for the user.
    QString encodingName() const;

    bool hasByteOrderMark() const { return m_hasMark; }
    void setByteOrderMark(bool on) { m_hasMark = on; }

private:
    FileStatus decodeUtf16(const QByteArray &bytes, QString *text);
    FileStatus decodeLatin1(const QByteArray &bytes, QString *text);

    Encoding m_encoding = Encoding::Utf8;
    bool m_hasMark = false;
};
