// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TextSearch.h"

namespace TextSearch {

namespace {

Qt::CaseSensitivity caseSensitivity(Options options)
{
    return options.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
}

bool isWordCharacter(char32_t character)
{
    return QChar::isLetterOrNumber(character) || QChar::isMark(character) || character == u'_';
}

char32_t characterBefore(const QString &text, qsizetype index)
{
    const QChar character = text.at(index - 1);
    const bool isPair = character.isLowSurrogate() && index > 1
                        && text.at(index - 2).isHighSurrogate();
    return isPair ? QChar::surrogateToUcs4(text.at(index - 2), character) : character.unicode();
}

char32_t characterAfter(const QString &text, qsizetype index)
{
    const QChar character = text.at(index);
    const bool isPair = character.isHighSurrogate() && index + 1 < text.size()
                        && text.at(index + 1).isLowSurrogate();
    return isPair ? QChar::surrogateToUcs4(character, text.at(index + 1)) : character.unicode();
}

/// No word goes on over this boundary between two characters.
bool isWordBoundary(const QString &text, qsizetype index)
{
    return index <= 0 || index >= text.size() || !isWordCharacter(characterBefore(text, index))
           || !isWordCharacter(characterAfter(text, index));
}

bool isAccepted(const QString &text, const QString &pattern, qsizetype start, Options options)
{
    return !options.wholeWords
           || (isWordBoundary(text, start) && isWordBoundary(text, start + pattern.size()));
}

} // namespace

Match findNext(const QString &text, const QString &pattern, qsizetype from, Options options)
{
    if (pattern.isEmpty() || from < 0)
        return {};
    qsizetype start = text.indexOf(pattern, from, caseSensitivity(options));
    while (start >= 0 && !isAccepted(text, pattern, start, options))
        start = text.indexOf(pattern, start + 1, caseSensitivity(options));
    return start < 0 ? Match() : Match{start, pattern.size()};
}

Match findPrevious(const QString &text, const QString &pattern, qsizetype until, Options options)
{
    // A negative start would count from the end.
    qsizetype start = until - pattern.size();
    while (!pattern.isEmpty() && start >= 0) {
        start = text.lastIndexOf(pattern, start, caseSensitivity(options));
        if (start < 0)
            break;
        if (isAccepted(text, pattern, start, options))
            return {start, pattern.size()};
        --start;
    }
    return {};
}

bool isMatchAt(const QString &text, const QString &pattern, qsizetype start, Options options)
{
    if (pattern.isEmpty() || start < 0 || start > text.size())
        return false;
    const QStringView rest = QStringView(text).mid(start);
    return rest.startsWith(pattern, caseSensitivity(options))
           && isAccepted(text, pattern, start, options);
}

Count count(const QString &text, const QString &pattern, qsizetype start, Options options)
{
    Count result;
    Match match = findNext(text, pattern, 0, options);
    while (match.isValid()) {
        ++result.total;
        if (match.start == start)
            result.position = result.total;
        match = findNext(text, pattern, match.end(), options);
    }
    return result;
}

Replaced replaceAll(const QString &text, const QString &pattern, const QString &replacement,
                    Options options)
{
    Replaced result;
    qsizetype copied = 0;
    Match match = findNext(text, pattern, 0, options);
    while (match.isValid()) {
        ++result.count;
        result.text += QStringView(text).mid(copied, match.start - copied);
        result.text += replacement;
        copied = match.end();
        match = findNext(text, pattern, copied, options);
    }
    result.text += QStringView(text).mid(copied);
    return result;
}

} // namespace TextSearch
