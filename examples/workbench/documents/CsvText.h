// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QChar>
#include <QList>
#include <QString>
#include <QStringList>

/// A line of a table as it stands in its text: the cells with their quotes, and what ends the line.
struct CsvRow
{
    QStringList cells;
    QString lineEnd; ///< empty for a last line without one
};

/// Tables as text, as RFC 4180 describes them. What a text says in a way of its own (quotes that
/// were not needed, lines of other lengths) stays as it is.
namespace CsvText {

/// The separator that divides the first lines of \a text most evenly; \a fallback if none divides
/// them.
QChar guessSeparator(const QString &text, QChar fallback);

QList<CsvRow> parse(const QString &text, QChar separator);

/// The text of \a rows. Lines in the middle without an end get \a lineEnd; the last line gets one
/// if \a isLastEnded, and else has none.
QString join(const QList<CsvRow> &rows, QChar separator, const QString &lineEnd, bool isLastEnded);

/// What a person reads in a cell.
QString value(const QString &cell);

/// The cell for \a value: with quotes where it needs them, or if \a isQuoted.
QString cell(const QString &value, QChar separator, bool isQuoted = false);

bool isQuoted(const QString &cell);

} // namespace CsvText
