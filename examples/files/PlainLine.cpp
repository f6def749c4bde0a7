// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PlainLine.h"

#include <QString>

#include <algorithm>

namespace PlainLine {

QString of(const QString &text)
{
    const auto isControl = [](QChar c) {
        return c.category() == QChar::Other_Control || c == QChar::LineSeparator
               || c == QChar::ParagraphSeparator;
    };
    QString line = text;
    std::replace_if(line.begin(), line.end(), isControl, u' ');
    return line;
}

} // namespace PlainLine
