// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QTextCursor>

#include <functional>

class QTextBlock;
class TextEditor;
struct TextStyle;

/// Gives styles to the text of an editor, each time as one step to undo. The selection stays.
class TextStyler
{
public:
    explicit TextStyler(TextEditor *editor);

    /// A style of text is given to the selection, or else to what is typed next; a style of
    /// paragraphs to each paragraph that the selection touches, or else to the one with the cursor.
    /// Text in them keeps its own styles, such as a color.
    void apply(const TextStyle &style) const;

    /// Takes all styles from the selection, or else from the paragraph with the cursor. Where the
    /// selection is a part of a paragraph, that keeps the style that it has as a whole.
    void clear() const;

private:
    /// Names of styles before a change, to those after it.
    using Change = std::function<QStringList(const QStringList &names)>;

    QList<QTextBlock> selectedBlocks() const;
    void changeParagraph(const QTextBlock &block, const QString &name, const Change &change) const;
    void changeText(const QTextBlock &block, int start, int end, const Change &change) const;
    void changeTextToBeTyped(const Change &change) const;

    TextEditor *m_editor;
};
