// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TableSorter.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <vector>

namespace TableSorter {

namespace {

/// Of these, the smaller comes first.
enum class Kind { Number, Text, Empty };

/// What a line is sorted by.
struct Key
{
    Kind kind = Kind::Empty;
    double number = 0;
    QCollatorSortKey text;
    qsizetype row = 0;
};

bool readNumber(const QString &text, double *number)
{
    bool isNumber = false;
    *number = text.toDouble(&isNumber);
    if (!isNumber)
        *number = QLocale().toDouble(text, &isNumber);
    // Not every name of a value has a place in an order.
    return isNumber && std::isfinite(*number);
}

Key keyOf(const CsvRow &line, qsizetype row, int column, const QCollator &collator)
{
    const QString cell = column < line.cells.size() ? line.cells.at(column) : QString();
    const QString text = CsvText::value(cell).trimmed();
    Key key{Kind::Text, 0, collator.sortKey(text), row};
    if (text.isEmpty())
        key.kind = Kind::Empty;
    else if (readNumber(text, &key.number))
        key.kind = Kind::Number;
    return key;
}

bool isBefore(const Key &a, const Key &b)
{
    if (a.kind != b.kind)
        return a.kind < b.kind;
    return a.kind == Kind::Number ? a.number < b.number : a.text.compare(b.text) < 0;
}

bool isBehind(const Key &a, const Key &b)
{
    const bool hasEmpty = a.kind == Kind::Empty || b.kind == Kind::Empty;
    return hasEmpty ? a.kind < b.kind : isBefore(b, a);
}

} // namespace

QList<CsvRow> sorted(const QList<CsvRow> &rows, qsizetype first, int column, Qt::SortOrder order)
{
    const QCollator collator;
    std::vector<Key> keys;
    keys.reserve(size_t(rows.size()));
    for (qsizetype i = first; i < rows.size(); ++i)
        keys.push_back(keyOf(rows.at(i), i, column, collator));
    std::stable_sort(keys.begin(), keys.end(), order == Qt::AscendingOrder ? isBefore : isBehind);
    QList<CsvRow> result = rows.first(std::min(first, rows.size()));
    result.reserve(rows.size());
    for (const Key &key : keys)
        result.append(rows.at(key.row));
    return result;
}

} // namespace TableSorter
