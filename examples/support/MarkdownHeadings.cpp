// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "MarkdownHeadings.h"

#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace MarkdownHeadings {

namespace {

/// Follows the fenced blocks of code from line to line.
class Fence
{
public:
    /// Whether \a line is in a block, or opens or closes one.
    bool contains(const QString &line)
    {
        static const QRegularExpression pattern(u"^ {0,3}(`{3,}|~{3,})([^`]*)$"_s);
        const QRegularExpressionMatch match = pattern.match(line);
        const bool wasOpen = !m_open.isEmpty();
        if (!match.hasMatch())
            return wasOpen;
        const QString fence = match.captured(1);
        if (!wasOpen)
            m_open = fence;
        else if (fence.startsWith(m_open) && match.captured(2).trimmed().isEmpty())
            m_open.clear();
        return true;
    }

private:
    QString m_open;
};

/// With level 0 if \a line is no heading of this kind.
OutlineEntry signedHeading(const QString &line)
{
    static const QRegularExpression pattern(
        u"^ {0,3}(#{1,6})(?:[ \\t]+(.*?))?(?:[ \\t]+#+)?[ \\t]*$"_s);
    const QRegularExpressionMatch match = pattern.match(line);
    if (!match.hasMatch())
        return {{}, 0, -1};
    return {match.captured(2).trimmed(), int(match.capturedLength(1)), -1};
}

/// The level that \a line gives to the line above it; 0 if it is no underline.
int underlineLevel(const QString &line)
{
    static const QRegularExpression pattern(u"^ {0,3}(?:(=+)|-+)[ \\t]*$"_s);
    const QRegularExpressionMatch match = pattern.match(line);
    if (!match.hasMatch())
        return 0;
    return match.hasCaptured(1) ? 1 : 2;
}

/// Whether \a line can be underlined: lists, quotes and indented code cannot.
bool isParagraph(const QString &line)
{
    static const QRegularExpression other(
        u"^(?:\\s*$| {4}|\\t| {0,3}(?:[-+*>]|\\d+[.)])(?:\\s|$))"_s);
    return !other.match(line).hasMatch() && underlineLevel(line) == 0;
}

} // namespace

QList<OutlineEntry> find(const QString &text)
{
    QList<OutlineEntry> headings;
    QString above;
    Fence fence;
    const QStringList lines = text.split(u'\n');
    for (int number = 0; number < lines.size(); ++number) {
        const QString &line = lines.at(number);
        const QString paragraph = std::exchange(above, QString());
        if (fence.contains(line))
            continue;
        OutlineEntry heading = signedHeading(line);
        if (heading.level > 0) {
            heading.line = number;
            headings.append(heading);
        } else if (!paragraph.isEmpty() && underlineLevel(line) > 0) {
            headings.append({paragraph.trimmed(), underlineLevel(line), number - 1});
        } else if (isParagraph(line)) {
            above = line;
        }
    }
    return headings;
}

} // namespace MarkdownHeadings
