// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TextFile.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>
#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QByteArrayView ByteOrderMark("\xEF\xBB\xBF");

/// More links in a row than any sane system has; a ring of links ends here.
constexpr int MaximumLinks = 40;

/// The file behind \a path. Unlike QFileInfo's canonical path, this also follows a link to nowhere.
QString followLinks(const QString &path)
{
    QString target = path;
    for (int i = 0; i < MaximumLinks; ++i) {
        const QFileInfo info(target);
        if (!info.isSymLink())
            break;
        target = info.symLinkTarget();
    }
    return target;
}

QByteArray digest(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

/// What a text document, too, takes as the end of a line.
bool endsLine(QChar character)
{
    switch (character.unicode()) {
    case u'\n':
    case u'\r':
    case QChar::ParagraphSeparator:
    case 0xfdd0: // two characters that are none, which documents use for themselves
    case 0xfdd1:
        return true;
    default:
        return false;
    }
}

/// All line ends of \a text in their order.
QStringList lineBreaks(const QString &text)
{
    QStringList breaks;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!endsLine(text.at(i)))
            continue;
        const bool isPair = text.at(i) == u'\r' && i + 1 < text.size() && text.at(i + 1) == u'\n';
        breaks += text.mid(i, isPair ? 2 : 1);
        i += isPair ? 1 : 0;
    }
    return breaks;
}

/// \a text with "\n" for every line end.
QString normalized(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) == u'\r' && i + 1 < text.size() && text.at(i + 1) == u'\n')
            continue;
        result += endsLine(text.at(i)) ? u'\n' : text.at(i);
    }
    return result;
}

/// The kind of line end that \a text has most of.
QString prevailingBreak(const QString &text)
{
    const qsizetype pairs = text.count(u"\r\n"_s);
    const qsizetype feeds = text.count(u'\n') - pairs;
    const qsizetype returns = text.count(u'\r') - pairs;
    if (pairs > feeds && pairs >= returns)
        return u"\r\n"_s;
    return returns > feeds ? u"\r"_s : u"\n"_s;
}

/// Whether every line end of \a text is \a lineBreak, without making a list of millions of them.
bool hasOnly(const QString &text, const QString &lineBreak)
{
    const auto ends = std::count_if(text.cbegin(), text.cend(), endsLine);
    return ends == text.count(lineBreak) * lineBreak.size();
}

} // namespace

TextFile::Status TextFile::read(const QString &path, QByteArray *bytes)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {Error::NotFound, tr("There is no such file.")};
    if (info.isDir())
        return {Error::NotRegular, tr("It is a folder.")};
    if (!info.isFile())
        return {Error::NotRegular, tr("It is not a regular file.")};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {Error::ReadFailed, file.errorString()};
    // One byte more than allowed tells, whatever size the system reports.
    *bytes = file.read(MaximumSize + 1);
    if (file.error() != QFileDevice::NoError)
        return {Error::ReadFailed, file.errorString()};
    if (bytes->size() > MaximumSize)
        return {Error::TooLarge,
                tr("It is larger than %1.").arg(QLocale().formattedDataSize(MaximumSize, 0))};
    return {};
}

TextFile::Status TextFile::load(const QString &path)
{
    QByteArray bytes;
    if (Status status = read(path, &bytes); !status.ok())
        return status;
    if (bytes.contains('\0'))
        return {Error::Binary, tr("It holds binary data, not text.")};
    const bool hasMark = bytes.startsWith(ByteOrderMark);
    const QByteArray content = hasMark ? bytes.mid(ByteOrderMark.size()) : bytes;
    // A second mark would be text.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    const QString decoded = decoder.decode(content);
    // What is not UTF-8 is replaced when decoded, so it does not come back.
    if (decoder.hasError() || decoded.toUtf8() != content)
        return {Error::NotUtf8, tr("It is binary data or text of another encoding than UTF-8.")};

    m_path = QFileInfo(path).absoluteFilePath();
    m_digest = digest(bytes);
    m_byteOrderMark = hasMark;
    splitLines(decoded);
    return {};
}

void TextFile::splitLines(const QString &decoded)
{
    m_commonBreak = prevailingBreak(decoded);
    m_breaks = hasOnly(decoded, m_commonBreak) ? QStringList() : lineBreaks(decoded);
    m_text = normalized(decoded);
}

TextFile::Status TextFile::write(const QString &path, const QByteArray &bytes)
{
    const QString target = followLinks(path);
    const QFileInfo info(target);
    if (info.isDir())
        return {Error::NotRegular, tr("It is a folder.")};
    if (info.isSymLink())
        return {Error::NotRegular, tr("It is a link that leads to itself.")};
    if (info.exists() && !info.isFile())
        return {Error::NotRegular, tr("It is not a regular file.")};
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        return {Error::WriteFailed, file.errorString()};
    // QSaveFile::commit() of Qt 6.4 may report success although the last bytes found no room on the
    // disk.
    const bool isWritten = file.write(bytes) == bytes.size() && file.flush()
                           && file.size() == bytes.size();
    if (!isWritten || !file.commit())
        return {Error::WriteFailed, file.errorString()};
    if (QFileInfo(target).size() != bytes.size())
        return {Error::WriteFailed, tr("Not all of the text could be written.")};
    return {};
}

TextFile::Status TextFile::save(const QString &path, const QString &text)
{
    const QByteArray bytes = encoded(text);
    if (Status status = write(path, bytes); !status.ok())
        return status;
    m_breaks = breaksFor(text);
    if (m_breaks.count(m_commonBreak) == m_breaks.size())
        m_breaks.clear();
    m_path = QFileInfo(path).absoluteFilePath();
    m_text = text;
    m_digest = digest(bytes);
    return {};
}

TextFile::Status TextFile::saveCopy(const QString &path, const QString &text) const
{
    return write(path, encoded(text));
}

bool TextFile::isChangedOnDisk() const
{
    QFile file(m_path);
    if (m_path.isEmpty() || !file.exists())
        return false;
    return !file.open(QIODevice::ReadOnly) || digest(file.read(MaximumSize + 1)) != m_digest;
}

TextFile::LineEnd TextFile::lineEnd() const
{
    if (!m_breaks.isEmpty())
        return LineEnd::Mixed;
    if (m_commonBreak.size() > 1)
        return LineEnd::CrLf;
    return m_commonBreak == u'\r' ? LineEnd::Cr : LineEnd::Lf;
}

void TextFile::setLineEnd(LineEnd lineEnd)
{
    if (lineEnd == LineEnd::Mixed)
        return;
    m_breaks.clear();
    if (lineEnd == LineEnd::CrLf)
        m_commonBreak = u"\r\n"_s;
    else
        m_commonBreak = lineEnd == LineEnd::Cr ? u"\r"_s : u"\n"_s;
}

/// The line ends that \a text gets where the file mixes them: the lines at the start and at the end
/// that did not change keep theirs.
QStringList TextFile::breaksFor(const QString &text) const
{
    if (m_breaks.isEmpty())
        return {};
    const QStringList before = m_text.split(u'\n');
    const QStringList after = text.split(u'\n');
    const qsizetype shorter = std::min(before.size(), after.size());
    qsizetype head = 0;
    while (head < shorter && before.at(head) == after.at(head))
        ++head;
    qsizetype tail = 0;
    while (tail < shorter - head
           && before.at(before.size() - 1 - tail) == after.at(after.size() - 1 - tail))
        ++tail;

    QStringList breaks;
    const qsizetype shift = before.size() - after.size();
    for (qsizetype i = 0; i + 1 < after.size(); ++i) {
        if (i < head && i < m_breaks.size())
            breaks += m_breaks.at(i);
        else if (i + 1 >= after.size() - tail && i + shift >= 0)
            breaks += m_breaks.at(i + shift);
        else
            breaks += m_commonBreak;
    }
    return breaks;
}

QByteArray TextFile::encoded(const QString &text) const
{
    QString joined = text;
    const QStringList breaks = breaksFor(text);
    if (!breaks.isEmpty()) {
        const QStringList lines = text.split(u'\n');
        joined = lines.first();
        for (qsizetype i = 1; i < lines.size(); ++i)
            joined += breaks.at(i - 1) + lines.at(i);
    } else {
        joined.replace(u'\n', m_commonBreak);
    }
    const QByteArray bytes = joined.toUtf8();
    return m_byteOrderMark ? ByteOrderMark.toByteArray() + bytes : bytes;
}
