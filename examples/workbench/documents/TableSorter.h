// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "CsvText.h"

#include <Qt>

/// Puts the lines of a table into an order.
namespace TableSorter {

/// \a rows by their cells in \a column, from \a first on: numbers by their value before texts in
/// the order of the user's language, and empty cells at the end in either order. Lines that are
/// alike there stay in their order.
QList<CsvRow> sorted(const QList<CsvRow> &rows, qsizetype first, int column, Qt::SortOrder order);

} // namespace TableSorter
