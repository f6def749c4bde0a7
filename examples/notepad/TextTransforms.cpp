// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TextTransforms.h"

#include <QLocale>
#include <QSet>
#include <QStringList>
#include <QTextBoundaryFinder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace TextTransforms {

namespace {

constexpr int IndentWidth = 4;

/// \a change done to the list of lines, an empty last line (a line end at the end) left out of it.
template <typename Change>
QString withLines(const QString &text, Change change)
{
    QStringList lines = text.split(u'\n');
    const bool endsWithBreak = lines.size() > 1 && lines.last().isEmpty();
    if (endsWithBreak)
        lines.removeLast();
    change(lines);
    return lines.join(u'\n') + (endsWithBreak ? u"\n"_s : QString());
}

template <typename Change>
QString withEachLine(const QString &text, Change change)
{
    return withLines(text, [change](QStringList &lines) {
        for (QString &line : lines)
            change(line);
    });
}

bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t';
}

bool isLess(const QString &left, const QString &right)
{
    const int order = QString::compare(left, right, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : left < right;
}

} // namespace

QString toUpperCase(const QString &text)
{
    return QLocale().toUpper(text);
}

QString toLowerCase(const QString &text)
{
    return QLocale().toLower(text);
}

QString toTitleCase(const QString &text)
{
    QString result;
    const QString lower = toLowerCase(text);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, lower);
    qsizetype start = 0;
    while (finder.toNextBoundary() >= 0) {
        const qsizetype end = finder.position();
        const bool isPair = lower.at(start).isHighSurrogate() && start + 1 < end;
        const qsizetype first = start + (isPair ? 2 : 1);
        result += toUpperCase(lower.mid(start, first - start)) + lower.mid(first, end - first);
        start = end;
    }
    return result;
}

QString sortLines(const QString &text)
{
    return withLines(
        text, [](QStringList &lines) { std::stable_sort(lines.begin(), lines.end(), isLess); });
}

QString reverseLines(const QString &text)
{
    return withLines(text, [](QStringList &lines) { std::reverse(lines.begin(), lines.end()); });
}

QString removeDuplicateLines(const QString &text)
{
    return withLines(text, [](QStringList &lines) { lines.removeDuplicates(); });
}

QString joinLines(const QString &text)
{
    return withLines(text, [](QStringList &lines) {
        for (QString &line : lines)
            line = line.trimmed();
        lines.removeAll(QString());
        lines = {lines.join(u' ')};
    });
}

QString trimLineEnds(const QString &text)
{
    return withEachLine(text, [](QString &line) {
        qsizetype end = line.size();
        while (end > 0 && isBlank(line.at(end - 1)))
            --end;
        line.truncate(end);
    });
}

QString indentLines(const QString &text)
{
    return withEachLine(text, [](QString &line) {
        if (!line.isEmpty())
            line.prepend(QString(IndentWidth, u' '));
    });
}

QString outdentLines(const QString &text)
{
    return withEachLine(text, [](QString &line) {
        if (line.startsWith(u'\t')) {
            line.remove(0, 1);
            return;
        }
        const auto isNoSpace = [](QChar character) { return character != u' '; };
        const auto spaces = std::find_if(line.cbegin(), line.cend(), isNoSpace) - line.cbegin();
        line.remove(0, std::min<qsizetype>(spaces, IndentWidth));
    });
}

Statistics statistics(const QString &text)
{
    Statistics result;
    if (!text.isEmpty())
        result.lines = text.count(u'\n') + (text.endsWith(u'\n') ? 0 : 1);
    bool isInWord = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        char32_t character = text.at(i).unicode();
        const QChar next = i + 1 < text.size() ? text.at(i + 1) : QChar();
        if (QChar::isHighSurrogate(character) && next.isLowSurrogate()) {
            character = QChar::surrogateToUcs4(text.at(i), next);
            ++i;
        }
        if (QChar::isSpace(character)) {
            isInWord = false;
        } else if (!isInWord && QChar::isLetterOrNumber(character)) {
            isInWord = true;
            ++result.words;
        }
        if (!QChar::isMark(character))
            ++result.characters;
    }
    return result;
}

} // namespace TextTransforms
