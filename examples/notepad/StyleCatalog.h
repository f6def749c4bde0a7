// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "TextStyle.h"

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QStringList>

/// All styles of the program, and how text looks that has some of them.
///
/// Text says itself which styles it has: the formats in a document carry the names. So undo, copies
/// and files need to know no more than formats and names.
class StyleCatalog
{
    Q_DECLARE_TR_FUNCTIONS(StyleCatalog)

public:
    /// The one catalogue of the program. It takes the language of the first call.
    static const StyleCatalog &instance();

    /// In the order that they are shown in, group by group.
    const QList<TextStyle> &styles() const { return m_styles; }

    /// The style of this \a name; null if there is none.
    const TextStyle *find(const QString &name) const;

    /// The names of the styles that \a format was made of; none for plain text.
    static QStringList namesOf(const QTextFormat &format);

    /// The format of text with the styles of these \a names. Of two that say something about the
    /// same thing the later one holds; sizes add up.
    QTextCharFormat textFormat(const QStringList &names) const;

    /// The format of a paragraph with the style of this \a name; an empty one is for none.
    QTextBlockFormat blockFormat(const QString &name) const;

    /// How many times as large as plain text the text of \a format is.
    static qreal sizeFactor(const QTextCharFormat &format);

private:
    StyleCatalog();

    void addHeadings();
    void addParagraphs();
    void addEmphasis();
    void addEmphasisOfLetters();
    void addFontColors();
    void addHighlights();
    void addCodeAndQuotes();
    void add(const TextStyle &style);

    QList<TextStyle> m_styles;
    QHash<QString, qsizetype> m_indexes;
};
