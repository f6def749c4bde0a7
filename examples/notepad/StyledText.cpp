// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "StyledText.h"

#include "StyleCatalog.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace StyledText {

namespace {

/// What stands before the paragraphs, also as the mark of a page that was written here. Paragraphs
/// look as in the editor: one below the other, with all their spaces, also when they are empty.
constexpr QStringView Head = uR"(<!DOCTYPE html>
<html>
<head>
<meta charset="utf-8"/>
<meta name="generator" content="VornFrame Notepad"/>
<title>Notepad</title>
<style>
p, h1, h2, h3, h4, h5, h6 { margin: 0; min-height: 1.2em; font-size: 1em; font-weight: normal; white-space: pre-wrap; }
</style>
</head>
<body>
)";
constexpr QStringView Tail = u"</body>\n</html>\n";

QString decorationOf(const QTextCharFormat &format)
{
    QStringList lines;
    switch (format.underlineStyle()) {
    case QTextCharFormat::NoUnderline:
        break;
    case QTextCharFormat::DotLine:
        lines += u"underline dotted"_s;
        break;
    case QTextCharFormat::WaveUnderline:
        lines += u"underline wavy"_s;
        break;
    default:
        lines += u"underline"_s;
        break;
    }
    if (format.fontOverline())
        lines += u"overline"_s;
    if (format.fontStrikeOut())
        lines += u"line-through"_s;
    return lines.join(u' ');
}

QString capitalsOf(const QTextCharFormat &format)
{
    switch (format.fontCapitalization()) {
    case QFont::SmallCaps:
        return u"font-variant:small-caps"_s;
    case QFont::AllUppercase:
        return u"text-transform:uppercase"_s;
    default:
        return {};
    }
}

QString alignmentOf(const QTextCharFormat &format)
{
    switch (format.verticalAlignment()) {
    case QTextCharFormat::AlignSuperScript:
        return u"vertical-align:super;font-size:smaller"_s;
    case QTextCharFormat::AlignSubScript:
        return u"vertical-align:sub;font-size:smaller"_s;
    default:
        return {};
    }
}

/// For browsers: this program itself knows from the names how text looks.
QString cssOf(const QTextCharFormat &format)
{
    QStringList css;
    if (format.foreground() != Qt::NoBrush)
        css += u"color:"_s + format.foreground().color().name();
    if (format.background() != Qt::NoBrush)
        css += u"background-color:"_s + format.background().color().name();
    if (const qreal factor = StyleCatalog::sizeFactor(format); factor != 1)
        css += u"font-size:%1em"_s.arg(factor);
    if (format.fontFixedPitch())
        css += u"font-family:monospace"_s;
    if (format.fontWeight() == QFont::Bold)
        css += u"font-weight:bold"_s;
    if (format.fontItalic())
        css += u"font-style:italic"_s;
    if (format.fontLetterSpacing() > 0)
        css += u"letter-spacing:0.25em"_s;
    if (const QString decoration = decorationOf(format); !decoration.isEmpty())
        css += u"text-decoration:"_s + decoration;
    css += capitalsOf(format);
    css += alignmentOf(format);
    css.removeAll(QString());
    return css.join(u';');
}

QString tagOf(const QTextBlockFormat &format)
{
    const int level = format.headingLevel();
    return level > 0 ? u"h%1"_s.arg(level) : u"p"_s;
}

QString openingTag(const QString &tag, const QTextFormat &format, const QString &css)
{
    const QStringList names = StyleCatalog::namesOf(format);
    QString text = u'<' + tag;
    if (!names.isEmpty())
        text += u" class=\"%1\""_s.arg(names.join(u' '));
    if (!css.isEmpty())
        text += u" style=\"%1\""_s.arg(css);
    return text + u'>';
}

/// The part of \a block from \a start to \a end, in positions of the document.
QString paragraph(const QTextBlock &block, int start, int end)
{
    const QTextBlockFormat format = block.blockFormat();
    const QBrush ground = format.background();
    QString html = openingTag(
        tagOf(format), format,
        ground == Qt::NoBrush ? QString() : u"background-color:"_s + ground.color().name());
    const QString text = block.text();
    const QList<Piece> parts = pieces(block, start, end);
    for (const Piece &part : parts) {
        const QString letters = text.mid(part.start - block.position(), part.end - part.start)
                                    .toHtmlEscaped();
        const bool isPlain = StyleCatalog::namesOf(part.format).isEmpty();
        html += isPlain ? letters
                        : openingTag(u"span"_s, part.format, cssOf(part.format)) + letters
                              + u"</span>"_s;
    }
    return html + u"</%1>\n"_s.arg(tagOf(format));
}

QString page(QTextBlock block, int start, int end)
{
    QString html = Head.toString();
    while (block.isValid() && block.position() <= end) {
        html += paragraph(block, start, end);
        block = block.next();
    }
    return html + Tail.toString();
}

/// Whether any text of \a document has had a style so far: what is quick to say of large plain files.
bool hasHadStyles(const QTextDocument &document)
{
    const QList<QTextFormat> formats = document.allFormats();
    return std::any_of(formats.cbegin(), formats.cend(), [](const QTextFormat &format) {
        return !StyleCatalog::namesOf(format).isEmpty();
    });
}

bool hasStyles(QTextBlock block, int start, int end)
{
    if (!hasHadStyles(*block.document()))
        return false;
    const auto isStyled = [](const Piece &piece) {
        return !StyleCatalog::namesOf(piece.format).isEmpty();
    };
    for (; block.isValid() && block.position() <= end; block = block.next()) {
        const QList<Piece> parts = pieces(block, start, end);
        if (!StyleCatalog::namesOf(block.blockFormat()).isEmpty()
            || std::any_of(parts.cbegin(), parts.cend(), isStyled))
            return true;
    }
    return false;
}

QStringList classesOf(const QXmlStreamReader &reader)
{
    return reader.attributes().value(u"class"_s).toString().split(u' ', Qt::SkipEmptyParts);
}

/// All text of one paragraph, whose opening tag was read.
void readText(QXmlStreamReader &reader, QTextCursor &cursor)
{
    const StyleCatalog &catalog = StyleCatalog::instance();
    while (!reader.atEnd() && reader.readNext() != QXmlStreamReader::EndElement) {
        if (reader.isStartElement()) {
            const QTextCharFormat format = catalog.textFormat(classesOf(reader));
            cursor.insertText(reader.readElementText(), format);
        } else if (reader.isCharacters()) {
            cursor.insertText(reader.text().toString(), QTextCharFormat());
        }
    }
}

/// Whether there was a page to read; what makes no sense in it is left out.
bool read(const QString &html, QTextCursor &cursor)
{
    if (!html.startsWith(Head))
        return false;
    const StyleCatalog &catalog = StyleCatalog::instance();
    QXmlStreamReader reader(html);
    while (reader.name() != u"body" && !reader.atEnd())
        reader.readNext();
    const QTextBlockFormat formatBefore = cursor.blockFormat();
    const bool isIntoText = cursor.block().length() > 1;
    bool isFirst = true;
    while (reader.readNextStartElement()) {
        const QStringList names = classesOf(reader);
        const QTextBlockFormat format = catalog.blockFormat(names.value(0));
        if (!isFirst) {
            cursor.insertBlock(format, catalog.textFormat(names));
        } else if (!isIntoText) {
            cursor.setBlockFormat(format);
            cursor.setBlockCharFormat(catalog.textFormat(names));
        }
        readText(reader, cursor);
        isFirst = false;
    }
    // What stood after the cursor stays what it was, unless it goes on in the last paragraph.
    if (isIntoText && cursor.atBlockStart())
        cursor.setBlockFormat(formatBefore);
    return true;
}

} // namespace

QList<Piece> pieces(const QTextBlock &block, int start, int end)
{
    QList<Piece> result;
    for (auto it = block.begin(); it != block.end(); ++it) {
        const QTextFragment fragment = it.fragment();
        const Piece piece{std::max(start, fragment.position()),
                          std::min(end, fragment.position() + fragment.length()),
                          fragment.charFormat()};
        if (piece.start < piece.end)
            result += piece;
    }
    return result;
}

bool hasStyles(const QTextDocument &document)
{
    return hasStyles(document.begin(), 0, document.characterCount());
}

QString toHtml(const QTextDocument &document)
{
    return page(document.begin(), 0, document.characterCount());
}

QString toHtml(const QTextCursor &selection)
{
    const QTextBlock block = selection.document()->findBlock(selection.selectionStart());
    const int start = selection.selectionStart();
    const int end = selection.selectionEnd();
    return hasStyles(block, start, end) ? page(block, start, end) : QString();
}

bool isReadable(const QString &html)
{
    QTextDocument document;
    document.setUndoRedoEnabled(false);
    QTextCursor cursor(&document);
    return read(html, cursor) && toHtml(document) == html;
}

void insert(const QString &html, QTextCursor cursor)
{
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    read(html, cursor);
    cursor.endEditBlock();
}

} // namespace StyledText
