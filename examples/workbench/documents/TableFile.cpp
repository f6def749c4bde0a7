// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TableFile.h"

#include "FileBytes.h"

#include <QFileInfo>
#include <QHash>

using namespace Qt::StringLiterals;

namespace {

QChar usualSeparator(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == u"tsv"_s || suffix == u"tab"_s ? u'\t' : u',';
}

/// The line end that most of \a rows have.
QString prevailingEnd(const QList<CsvRow> &rows)
{
    QHash<QString, qsizetype> counts;
    for (const CsvRow &row : rows) {
        if (!row.lineEnd.isEmpty())
            ++counts[row.lineEnd];
    }
    QString best = u"\n"_s;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
        if (it.value() > counts.value(best))
            best = it.key();
    }
    return best;
}

} // namespace

FileStatus TableFile::load(const QString &path)
{
    QByteArray bytes;
    if (FileStatus status = FileBytes::read(path, MaximumSize, &bytes); !status.ok())
        return status;
    QString text;
    if (FileStatus status = m_codec.decode(bytes, TextCodec::Encodings::All, &text); !status.ok())
        return status;
    m_path = path;
    m_digest = FileBytes::digest(bytes);
    m_separator = CsvText::guessSeparator(text, usualSeparator(path));
    m_rows = CsvText::parse(text, m_separator);
    m_lineEnd = prevailingEnd(m_rows);
    m_isLastEnded = m_rows.isEmpty() || !m_rows.constLast().lineEnd.isEmpty();
    return {};
}

FileStatus TableFile::encode(const QList<CsvRow> &rows, QByteArray *bytes) const
{
    const QString text = CsvText::join(rows, m_separator, m_lineEnd, m_isLastEnded);
    if (FileStatus status = m_codec.check(text); !status.ok())
        return status;
    *bytes = m_codec.encode(text);
    return {};
}

FileStatus TableFile::save(const QList<CsvRow> &rows)
{
    QByteArray bytes;
    if (FileStatus status = encode(rows, &bytes); !status.ok())
        return status;
    if (FileStatus status = FileBytes::write(m_path, bytes); !status.ok())
        return status;
    m_digest = FileBytes::digest(bytes);
    return {};
}

FileStatus TableFile::saveCopy(const QString &path, const QList<CsvRow> &rows) const
{
    QByteArray bytes;
    if (FileStatus status = encode(rows, &bytes); !status.ok())
        return status;
    return FileBytes::write(path, bytes);
}

bool TableFile::isChangedOnDisk() const
{
    return FileBytes::isChanged(m_path, m_digest);
}
