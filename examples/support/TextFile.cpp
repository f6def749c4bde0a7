// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TextFile.h"

#include "FileBytes.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

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

TextFile::Status TextFile::load(const QString &path, Encodings encodings)
{
    QByteArray bytes;
    if (Status status = FileBytes::read(path, MaximumSize, &bytes); !status.ok())
        return status;
    QString decoded;
    if (Status status = m_codec.decode(bytes, encodings, &decoded); !status.ok())
        return status;
    m_path = QFileInfo(path).absoluteFilePath();
    m_digest = FileBytes::digest(bytes);
    splitLines(decoded);
    return {};
}

void TextFile::splitLines(const QString &decoded)
{
    m_commonBreak = prevailingBreak(decoded);
    m_breaks = hasOnly(decoded, m_commonBreak) ? QStringList() : lineBreaks(decoded);
    m_text = normalized(decoded);
}

TextFile::Status TextFile::save(const QString &path, const QString &text)
{
    const QString all = joined(text);
    if (Status status = m_codec.check(text); !status.ok())
        return status;
    const QByteArray bytes = m_codec.encode(all);
    if (Status status = FileBytes::write(path, bytes); !status.ok())
        return status;
    m_breaks = breaksFor(text);
    if (m_breaks.count(m_commonBreak) == m_breaks.size())
        m_breaks.clear();
    m_path = QFileInfo(path).absoluteFilePath();
    m_text = text;
    m_digest = FileBytes::digest(bytes);
    return {};
}

TextFile::Status TextFile::saveCopy(const QString &path, const QString &text) const
{
    if (Status status = m_codec.check(text); !status.ok())
        return status;
    return FileBytes::write(path, m_codec.encode(joined(text)));
}

bool TextFile::isChangedOnDisk() const
{
    return FileBytes::isChanged(m_path, m_digest);
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

QString TextFile::joined(const QString &text) const
{
    const QStringList breaks = breaksFor(text);
    if (breaks.isEmpty())
        return m_commonBreak == u'\n' ? text : QString(text).replace(u'\n', m_commonBreak);
    const QStringList lines = text.split(u'\n');
    QString joined = lines.first();
    for (qsizetype i = 1; i < lines.size(); ++i)
        joined += breaks.at(i - 1) + lines.at(i);
    return joined;
}
