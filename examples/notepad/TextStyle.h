// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTextBlockFormat>
#include <QTextCharFormat>

/// One look that text can have, as the user chooses it.
struct TextStyle
{
    enum class Scope {
        Text, ///< any piece of text, beside other styles of this scope
        Paragraph ///< whole paragraphs, of which each has one
    };

    QString name; ///< in files; never translated
    QString group; ///< what it is listed under
    QString title;
    QString description;
    QString lead; ///< plain text before the sample in a picture of the style
    QString sample; ///< text to show the style on
    Scope scope = Scope::Text;

    /// Takes other styles away: those of its group, or any style of a paragraph.
    bool isEraser = false;

    QTextCharFormat text;
    QTextBlockFormat block; ///< of Scope::Paragraph only

    bool isParagraph() const { return scope == Scope::Paragraph; }
};
