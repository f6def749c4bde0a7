// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// What can be done to a piece of text. Lines are separated by "\n"; a last line end stays where it
/// is.
namespace TextTransforms {

using Transform = QString (*)(const QString &text);

struct Statistics
{
    qsizetype lines = 0;
    /// Pieces between spaces that hold a letter or a digit.
    qsizetype words = 0;
    /// As a reader counts them: a letter of two UTF-16 units, or with combining marks, is one.
    qsizetype characters = 0;
};

QString toUpperCase(const QString &text);
QString toLowerCase(const QString &text);

/// The first letter of each word large, the others small.
QString toTitleCase(const QString &text);

/// Alphabetically, without regard to case where that does not decide between two lines.
QString sortLines(const QString &text);
QString reverseLines(const QString &text);

/// Keeps the first of equal lines.
QString removeDuplicateLines(const QString &text);

/// One line of all, with one space where a line ended and the spaces around it dropped.
QString joinLines(const QString &text);

/// Drops the spaces and tabs at the end of each line.
QString trimLineEnds(const QString &text);

/// Puts four spaces before each line that is not empty.
QString indentLines(const QString &text);

/// Takes up to four spaces, or one tab, from the start of each line.
QString outdentLines(const QString &text);

Statistics statistics(const QString &text);

} // namespace TextTransforms
