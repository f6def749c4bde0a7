// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TextCodec.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Encoding = TextCodec::Encoding;

QByteArray markOf(Encoding encoding)
{
    switch (encoding) {
    case Encoding::Utf8:
        return QByteArray("\xEF\xBB\xBF");
    case Encoding::Utf16LittleEndian:
        return QByteArray("\xFF\xFE");
    case Encoding::Utf16BigEndian:
        return QByteArray("\xFE\xFF");
    case Encoding::Latin1:
        break;
    }
    return {};
}

QStringConverter::Encoding converterOf(Encoding encoding)
{
    switch (encoding) {
    case Encoding::Utf16LittleEndian:
        return QStringConverter::Utf16LE;
    case Encoding::Utf16BigEndian:
        return QStringConverter::Utf16BE;
    case Encoding::Latin1:
        return QStringConverter::Latin1;
    case Encoding::Utf8:
        break;
    }
    return QStringConverter::Utf8;
}

QByteArray encodedAs(Encoding encoding, const QString &text)
{
    QStringEncoder encoder(converterOf(encoding), QStringConverter::Flag::Stateless);
    return encoder.encode(text);
}

/// Control characters that texts have: tabulators, line ends, pages, and those that colour the
/// output of programs.
bool isTextByte(char byte)
{
    const auto code = static_cast<unsigned char>(byte);
    return code >= 0x20 || (code >= 0x08 && code <= 0x0d) || code == 0x1b;
}

} // namespace

FileStatus TextCodec::decode(const QByteArray &bytes, Encodings encodings, QString *text)
{
    const bool isUtf16 = bytes.startsWith(markOf(Encoding::Utf16LittleEndian))
                         || bytes.startsWith(markOf(Encoding::Utf16BigEndian));
    if (isUtf16 && encodings == Encodings::All)
        return decodeUtf16(bytes, text);
    if (bytes.contains('\0'))
        return {FileStatus::Error::Binary, tr("It holds binary data, not text.")};
    const QByteArray mark = markOf(Encoding::Utf8);
    const bool hasMark = bytes.startsWith(mark);
    const QByteArray content = hasMark ? bytes.mid(mark.size()) : bytes;
    // A second mark would be text.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    const QString decoded = decoder.decode(content);
    // What is not UTF-8 is replaced when decoded, so it does not come back.
    if (decoder.hasError() || decoded.toUtf8() != content)
        return encodings == Encodings::All
                   ? decodeLatin1(bytes, text)
                   : FileStatus{FileStatus::Error::NotUtf8,
                                tr("It is binary data or text of another encoding than UTF-8.")};
    m_encoding = Encoding::Utf8;
    m_hasMark = hasMark;
    *text = decoded;
    return {};
}

FileStatus TextCodec::decodeUtf16(const QByteArray &bytes, QString *text)
{
    const Encoding encoding = bytes.startsWith(markOf(Encoding::Utf16LittleEndian))
                                  ? Encoding::Utf16LittleEndian
                                  : Encoding::Utf16BigEndian;
    const QByteArray content = bytes.mid(markOf(encoding).size());
    QStringDecoder decoder(converterOf(encoding), QStringDecoder::Flag::ConvertInitialBom);
    const QString decoded = decoder.decode(content);
    if (decoded.contains(QChar::Null) || encodedAs(encoding, decoded) != content)
        return {FileStatus::Error::Binary, tr("It holds binary data or damaged UTF-16, not text.")};
    m_encoding = encoding;
    m_hasMark = true;
    *text = decoded;
    return {};
}

FileStatus TextCodec::decodeLatin1(const QByteArray &bytes, QString *text)
{
    if (!std::all_of(bytes.cbegin(), bytes.cend(), isTextByte))
        return {FileStatus::Error::Binary, tr("It holds binary data, not text.")};
    m_encoding = Encoding::Latin1;
    m_hasMark = false;
    *text = QString::fromLatin1(bytes);
    return {};
}

QByteArray TextCodec::encode(const QString &text) const
{
    const QByteArray bytes = encodedAs(m_encoding, text);
    return m_hasMark ? markOf(m_encoding) + bytes : bytes;
}

FileStatus TextCodec::check(const QString &text) const
{
    if (m_encoding != Encoding::Latin1)
        return {};
    const auto isForeign = [](QChar letter) { return letter.unicode() > 0xff; };
    const QChar *found = std::find_if(text.cbegin(), text.cend(), isForeign);
    if (found == text.cend())
        return {};
    const qsizetype at = found - text.cbegin();
    const qsizetype length = found->isHighSurrogate() ? 2 : 1;
    return {FileStatus::Error::NotEncodable,
            tr("It is in Latin-1, which has no “%1” (line %2). In UTF-8 it could be saved.")
                .arg(text.mid(at, length))
                .arg(QStringView(text).first(at).count(u'\n') + 1)};
}

QString TextCodec::encodingName() const
{
    switch (m_encoding) {
    case Encoding::Utf8:
        return m_hasMark ? tr("UTF-8 with mark") : tr("UTF-8");
    case Encoding::Utf16LittleEndian:
        return tr("UTF-16, little endian");
    case Encoding::Utf16BigEndian:
        return tr("UTF-16, big endian");
    case Encoding::Latin1:
        break;
    }
    return tr("Latin-1");
}
