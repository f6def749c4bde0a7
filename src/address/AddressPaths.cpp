// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "AddressPaths.h"

#include <algorithm>

namespace VornFrame::AddressPaths {

using namespace Qt::StringLiterals;

namespace {

constexpr QChar Separator(u'/');
constexpr QChar Backslash(u'\\');

/// What stands before the first name: "/", the two separators of a network path, or nothing.
QString rootOf(const QString &path)
{
    qsizetype separators = 0;
    while (separators < path.size() && path.at(separators) == Separator)
        ++separators;
    if (separators == 2 && path.size() > 2)
        return u"//"_s;
    return separators > 0 ? u"/"_s : QString();
}

bool isBareDrive(const QString &path)
{
    return path.size() == 2 && path.at(0) != Separator && path.at(1) == u':';
}

bool breaksLine(QChar character)
{
    const QChar::Category category = character.category();
    return category == QChar::Other_Control || category == QChar::Separator_Line
           || category == QChar::Separator_Paragraph;
}

enum class Spaces { Kept, Trimmed };

QString joined(const QString &text, Spaces spaces)
{
    const bool trims = spaces == Spaces::Trimmed;
    QString path = trims ? text.trimmed() : text;
    path.replace(Backslash, Separator);
    QStringList names = path.split(Separator, Qt::SkipEmptyParts);
    if (trims) {
        std::transform(names.begin(), names.end(), names.begin(),
                       [](const QString &name) { return name.trimmed(); });
        names.removeAll(QString());
    }
    return normalized(rootOf(path) + names.join(Separator));
}

} // namespace

QString normalized(const QString &path)
{
    QString result = path;
    result.replace(Backslash, Separator);
    while (result.size() > 1 && result.endsWith(Separator))
        result.chop(1);
    if (isBareDrive(result))
        result += Separator;
    return result;
}

QString forEditing(const QString &path)
{
    return QString(path).replace(Separator, Backslash);
}

QList<Part> parts(const QString &path)
{
    const QStringList names = path.split(Separator, Qt::SkipEmptyParts);
    QList<Part> result;
    result.reserve(names.size());
    QString way = rootOf(path);
    for (const QString &name : names) {
        if (!result.isEmpty())
            way += Separator;
        way += name;
        result.append({name, way});
    }
    return result;
}

QString child(const QString &folder, const QString &name)
{
    return folder.endsWith(Separator) ? folder + name : folder + Separator + name;
}

QString driveName(const QString &path)
{
    const QString name = path.section(Separator, 0, 0, QString::SectionSkipEmpty);
    return name.isEmpty() ? QString(Separator) : name;
}

QStringList typed(const QString &text)
{
    if (text.trimmed().isEmpty())
        return {};
    QStringList paths{joined(text, Spaces::Kept), joined(text, Spaces::Trimmed)};
    paths.removeDuplicates();
    return paths;
}

QString singleLine(const QString &text)
{
    // Most names stay as they are and need no copy.
    if (std::none_of(text.begin(), text.end(), breaksLine))
        return text;
    QString line = text;
    std::replace_if(line.begin(), line.end(), breaksLine, QChar(u' '));
    return line;
}

} // namespace VornFrame::AddressPaths
