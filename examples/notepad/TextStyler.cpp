// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TextStyler.h"

#include "StyleCatalog.h"
#include "StyledText.h"
#include "TextEditor.h"

#include <QTextBlock>

#include <algorithm>

namespace {

/// Whether text that gets \a style no longer has the style \a other.
bool replaces(const TextStyle &style, const TextStyle &other)
{
    if (style.isParagraph() || other.isParagraph())
        return style.isParagraph() && other.isParagraph();
    if (style.isEraser)
        return style.group == other.group;
    // Of another color nothing would be seen any more.
    const QList<int> properties = style.text.properties().keys();
    const QList<int> otherProperties = other.text.properties().keys();
    return std::all_of(otherProperties.cbegin(), otherProperties.cend(),
                       [&properties](int property) { return properties.contains(property); });
}

/// \a names with that of \a style. The style of the paragraph comes first, all others hold on top of
/// it.
QStringList withStyle(const QStringList &names, const TextStyle &style)
{
    QStringList result;
    for (const QString &name : names) {
        const TextStyle *other = StyleCatalog::instance().find(name);
        if (other && !replaces(style, *other))
            result += name;
    }
    if (!style.isEraser)
        result.insert(style.isParagraph() ? 0 : result.size(), style.name);
    return result;
}

QStringList onlyParagraphStyle(const QStringList &names)
{
    QStringList result;
    for (const QString &name : names) {
        const TextStyle *style = StyleCatalog::instance().find(name);
        if (style && style->isParagraph())
            result += name;
    }
    return result;
}

int endOf(const QTextBlock &block)
{
    return block.position() + block.length() - 1;
}

} // namespace

TextStyler::TextStyler(TextEditor *editor) : m_editor(editor) {}

void TextStyler::apply(const TextStyle &style) const
{
    const Change change = [style](const QStringList &names) { return withStyle(names, style); };
    const QTextCursor selection = m_editor->textCursor();
    QTextCursor step(m_editor->document());
    step.beginEditBlock();
    const QList<QTextBlock> blocks = selectedBlocks();
    for (const QTextBlock &block : blocks) {
        if (style.isParagraph())
            changeParagraph(block, style.name, change);
        else
            changeText(block, selection.selectionStart(), selection.selectionEnd(), change);
    }
    step.endEditBlock();
    if (!selection.hasSelection())
        changeTextToBeTyped(change);
}

void TextStyler::clear() const
{
    const Change toNone = [](const QStringList &) { return QStringList(); };
    const QTextCursor selection = m_editor->textCursor();
    const int start = selection.selectionStart();
    const int end = selection.selectionEnd();
    QTextCursor step(m_editor->document());
    step.beginEditBlock();
    const QList<QTextBlock> blocks = selectedBlocks();
    for (const QTextBlock &block : blocks) {
        const bool isWhole = !selection.hasSelection()
                             || (start <= block.position() && end >= endOf(block));
        if (isWhole)
            changeParagraph(block, QString(), toNone);
        else
            changeText(block, start, end, onlyParagraphStyle);
    }
    step.endEditBlock();
    if (!selection.hasSelection())
        changeTextToBeTyped(toNone);
}

QList<QTextBlock> TextStyler::selectedBlocks() const
{
    const QTextCursor cursor = m_editor->textCursor();
    const QTextDocument *document = m_editor->document();
    QTextBlock last = document->findBlock(cursor.selectionEnd());
    QTextBlock block = document->findBlock(cursor.selectionStart());
    // A selection that ends where a line starts touches nothing of that line.
    if (last != block && cursor.selectionEnd() == last.position())
        last = last.previous();
    QList<QTextBlock> blocks{block};
    while (block != last) {
        block = block.next();
        blocks += block;
    }
    return blocks;
}

void TextStyler::changeParagraph(const QTextBlock &block, const QString &name,
                                 const Change &change) const
{
    const StyleCatalog &catalog = StyleCatalog::instance();
    QTextCursor cursor(block);
    const QTextBlockFormat format = catalog.blockFormat(name);
    if (block.blockFormat() != format)
        cursor.setBlockFormat(format);
    // This is what an empty paragraph is typed in.
    const QTextCharFormat before = block.charFormat();
    const QTextCharFormat after = catalog.textFormat(change(StyleCatalog::namesOf(before)));
    if (before != after)
        cursor.setBlockCharFormat(after);
    changeText(block, block.position(), endOf(block), change);
}

/// Only inside of \a block: the sign at its end belongs to the paragraph.
void TextStyler::changeText(const QTextBlock &block, int start, int end, const Change &change) const
{
    const QList<StyledText::Piece> pieces = StyledText::pieces(block, start, end);
    QTextCursor cursor(m_editor->document());
    for (const StyledText::Piece &piece : pieces) {
        const QTextCharFormat format = StyleCatalog::instance().textFormat(
            change(StyleCatalog::namesOf(piece.format)));
        if (format == piece.format)
            continue;
        cursor.setPosition(piece.start);
        cursor.setPosition(piece.end, QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
    }
}

void TextStyler::changeTextToBeTyped(const Change &change) const
{
    const QStringList names = StyleCatalog::namesOf(m_editor->currentCharFormat());
    m_editor->setCurrentCharFormat(StyleCatalog::instance().textFormat(change(names)));
}
