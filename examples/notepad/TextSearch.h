// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Looks for plain text in text. Matches never overlap.
namespace TextSearch {

struct Options
{
    bool matchCase = false;
    /// The match is no part of a longer word.
    bool wholeWords = false;
};

struct Match
{
    qsizetype start = -1;
    qsizetype length = 0;

    bool isValid() const { return start >= 0; }
    qsizetype end() const { return start + length; }
};

/// The place of one match among all of them: the third of five.
struct Count
{
    /// From 1 on; 0 where the asked-for place is no match.
    qsizetype position = 0;
    qsizetype total = 0;
};

struct Replaced
{
    QString text;
    qsizetype count = 0;
};

/// The first match that starts at \a from or later.
Match findNext(const QString &text, const QString &pattern, qsizetype from, Options options);

/// The last match that ends at \a until or earlier.
Match findPrevious(const QString &text, const QString &pattern, qsizetype until, Options options);

/// Whether \a pattern stands at exactly this \a start.
bool isMatchAt(const QString &text, const QString &pattern, qsizetype start, Options options);

/// All matches, and which of them starts at \a start.
Count count(const QString &text, const QString &pattern, qsizetype start, Options options);

Replaced replaceAll(const QString &text, const QString &pattern, const QString &replacement,
                    Options options);

} // namespace TextSearch
