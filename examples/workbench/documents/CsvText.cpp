// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "CsvText.h"

#include <QHash>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace CsvText {

namespace {

constexpr QChar Quote = u'"';

/// In characters: so much of a text tells its separator.
constexpr qsizetype Sample_Size = 65536;

/// Where the cell that starts at \a start ends: at a separator, a line end or the end of the text.
qsizetype cellEnd(const QString &text, qsizetype start, QChar separator)
{
    qsizetype at = start;
    if (at < text.size() && text.at(at) == Quote) {
        for (++at; at < text.size(); ++at) {
            if (text.at(at) != Quote)
                continue;
            const bool isDoubled = at + 1 < text.size() && text.at(at + 1) == Quote;
            if (!isDoubled)
                break;
            ++at;
        }
    }
    while (at < text.size() && text.at(at) != separator && text.at(at) != u'\n'
           && text.at(at) != u'\r')
        ++at;
    return std::min(at, text.size());
}

/// What ends a line at \a at; empty if nothing does.
QString lineEndAt(const QString &text, qsizetype at)
{
    if (at >= text.size() || (text.at(at) != u'\n' && text.at(at) != u'\r'))
        return {};
    const bool isPair = text.at(at) == u'\r' && at + 1 < text.size() && text.at(at + 1) == u'\n';
    return text.mid(at, isPair ? 2 : 1);
}

/// How many lines of \a sample have as many cells as most others, in parts of 1000; 0 if most have
/// only one.
qsizetype evenness(const QString &sample, QChar separator)
{
    QHash<qsizetype, qsizetype> linesOfLength;
    const QList<CsvRow> rows = parse(sample, separator);
    qsizetype count = 0;
    for (const CsvRow &row : rows) {
        const bool isEmpty = row.cells.size() == 1 && row.cells.constFirst().isEmpty();
        linesOfLength[row.cells.size()] += isEmpty ? 0 : 1;
        count += isEmpty ? 0 : 1;
    }
    qsizetype most = 0;
    for (auto it = linesOfLength.cbegin(); it != linesOfLength.cend(); ++it) {
        if (it.key() > 1)
            most = std::max(most, it.value() * 1000 / std::max(count, qsizetype(1)));
    }
    return most;
}

/// Whether the quotes of \a cell are closed, so that something can follow it.
bool isClosed(const QString &cell)
{
    return !isQuoted(cell) || cellEnd(cell + u'\n', 0, u'\n') == cell.size();
}

/// \a cell so that something can follow it.
QString closed(const QString &cell, QChar separator)
{
    return isClosed(cell) ? cell : CsvText::cell(value(cell), separator, true);
}

} // namespace

QChar guessSeparator(const QString &text, QChar fallback)
{
    // Whole lines only, if there is more than one.
    QString sample = text.left(Sample_Size);
    const qsizetype end = sample.lastIndexOf(u'\n');
    if (text.size() > Sample_Size && end > 0)
        sample.truncate(end);
    // A comma comes last: it is in numbers and sentences, too.
    constexpr std::array<QChar, 4> Separators{u'\t', u';', u'|', u','};
    QChar best = fallback;
    qsizetype most = 0;
    for (const QChar separator : Separators) {
        const qsizetype lines = evenness(sample, separator);
        if (lines > most)
            best = separator;
        most = std::max(most, lines);
    }
    return best;
}

QList<CsvRow> parse(const QString &text, QChar separator)
{
    QList<CsvRow> rows;
    CsvRow row;
    qsizetype at = 0;
    while (at < text.size() || !row.cells.isEmpty()) {
        const qsizetype end = cellEnd(text, at, separator);
        row.cells.append(text.mid(at, end - at));
        if (end < text.size() && text.at(end) == separator) {
            at = end + 1;
            continue;
        }
        row.lineEnd = lineEndAt(text, end);
        at = end + row.lineEnd.size();
        rows.append(std::exchange(row, CsvRow()));
    }
    return rows;
}

QString join(const QList<CsvRow> &rows, QChar separator, const QString &lineEnd, bool isLastEnded)
{
    QString text;
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const CsvRow &row = rows.at(i);
        const bool isLast = i == rows.size() - 1;
        const bool isEnded = !isLast || isLastEnded;
        for (qsizetype column = 0; column < row.cells.size(); ++column) {
            const bool isFollowed = isEnded || column + 1 < row.cells.size();
            if (column > 0)
                text += separator;
            text += isFollowed ? closed(row.cells.at(column), separator) : row.cells.at(column);
        }
        // Without an end, nothing would be left of an empty line.
        const bool isEmpty = row.cells.size() == 1 && row.cells.constFirst().isEmpty();
        if (!isEnded && isEmpty)
            text += u"\"\""_s;
        if (isEnded)
            text += row.lineEnd.isEmpty() ? lineEnd : row.lineEnd;
    }
    return text;
}

QString value(const QString &cell)
{
    if (!isQuoted(cell))
        return cell;
    QString value;
    value.reserve(cell.size());
    bool isInside = true;
    for (qsizetype i = 1; i < cell.size(); ++i) {
        const bool isQuote = isInside && cell.at(i) == Quote;
        const bool isDoubled = isQuote && i + 1 < cell.size() && cell.at(i + 1) == Quote;
        if (isQuote && !isDoubled) {
            isInside = false;
            continue;
        }
        value += cell.at(i);
        i += isDoubled ? 1 : 0;
    }
    return value;
}

QString cell(const QString &value, QChar separator, bool isQuoted)
{
    const bool needsQuotes = value.contains(separator) || value.contains(Quote)
                             || value.contains(u'\n') || value.contains(u'\r');
    if (!needsQuotes && !isQuoted)
        return value;
    QString inside = value;
    inside.replace(Quote, u"\"\""_s);
    return Quote + inside + Quote;
}

bool isQuoted(const QString &cell)
{
    return cell.startsWith(Quote);
}

} // namespace CsvText
