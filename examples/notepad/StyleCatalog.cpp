// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "StyleCatalog.h"

#include "StyleLook.h"

#include <QColor>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Where a format carries the names of its styles, as HTML writes classes: with spaces between.
constexpr int NamesProperty = QTextFormat::UserProperty + 1;

constexpr QRgb Navy = 0x004073;
constexpr QRgb Gray = 0x616161;
constexpr QRgb CodeGround = 0xf0f0f0;

constexpr QRgb NoGround = 0xffffff;

/// The steps that QTextDocument knows, and what it makes of them.
constexpr int Size_Least = -2;
constexpr int Size_Most = 4;
constexpr std::array<qreal, Size_Most - Size_Least + 1> Size_Factors{0.7, 0.8, 1.0, 1.2,
                                                                     1.5, 2.0, 2.4};

struct Color
{
    const char *name;
    const char *title;
    QRgb rgb;
};

/// What the tables below have of a style; the rest follows from the group.
struct Row
{
    QString name;
    QString title;
    QString description;
    StyleLook look;
    QRgb ground = NoGround;
    int headingLevel = 0;
};

TextStyle textStyle(const QString &group, const Row &row, const QString &sample)
{
    TextStyle style;
    style.name = row.name;
    style.group = group;
    style.title = row.title;
    style.description = row.description;
    style.sample = sample;
    style.text = row.look.format();
    return style;
}

TextStyle paragraphStyle(const QString &group, const Row &row, const QString &sample)
{
    TextStyle style = textStyle(group, row, sample);
    style.scope = TextStyle::Scope::Paragraph;
    if (row.ground != NoGround)
        style.block.setBackground(QColor(row.ground));
    if (row.headingLevel > 0)
        style.block.setHeadingLevel(row.headingLevel);
    return style;
}

TextStyle eraser(const QString &group, const Row &row, TextStyle::Scope scope)
{
    TextStyle style = textStyle(group, row, StyleCatalog::tr("Ab", "sample of text"));
    style.scope = scope;
    style.isEraser = true;
    return style;
}

} // namespace

const StyleCatalog &StyleCatalog::instance()
{
    static const StyleCatalog catalog;
    return catalog;
}

StyleCatalog::StyleCatalog()
{
    addHeadings();
    addParagraphs();
    addEmphasis();
    addEmphasisOfLetters();
    addFontColors();
    addHighlights();
    addCodeAndQuotes();
}

void StyleCatalog::addHeadings()
{
    const QString group = tr("Headings");
    const std::array rows{
        Row{u"title"_s, tr("Title"), tr("The name of the whole text"),
            StyleLook().size(4).bold().color(Navy), NoGround, 1},
        Row{u"subtitle"_s, tr("Subtitle"), tr("What stands below the title"),
            StyleLook().size(2).color(Gray), NoGround, 2},
        Row{u"heading1"_s, tr("Heading 1"), tr("Begins a chapter"),
            StyleLook().size(3).bold().color(Navy), NoGround, 1},
        Row{u"heading2"_s, tr("Heading 2"), tr("Begins a section"),
            StyleLook().size(2).bold().color(Navy), NoGround, 2},
        Row{u"heading3"_s, tr("Heading 3"), tr("Begins a part of a section"),
            StyleLook().size(1).bold().color(Navy), NoGround, 3},
        Row{u"heading4"_s, tr("Heading 4"), tr("Bold, as large as the text"),
            StyleLook().bold().color(Navy), NoGround, 4},
        Row{u"heading5"_s, tr("Heading 5"), tr("Slanted, as large as the text"),
            StyleLook().italic().color(Navy), NoGround, 5},
        Row{u"heading6"_s, tr("Heading 6"), tr("Small and bold"),
            StyleLook().size(-1).bold().color(Gray), NoGround, 6},
    };
    for (const Row &row : rows) {
        const bool isNumbered = row.name.startsWith(u"heading"_s);
        add(paragraphStyle(group, row,
                           isNumbered ? u"H%1"_s.arg(row.headingLevel) : row.title.left(2)));
    }
}

void StyleCatalog::addParagraphs()
{
    const QString group = tr("Paragraphs");
    add(eraser(group,
               {u"normal"_s, tr("Normal"), tr("Plain paragraphs; colors and emphasis in them stay"),
                StyleLook()},
               TextStyle::Scope::Paragraph));
    const std::array rows{
        Row{u"lead"_s, tr("Lead"), tr("The first words, that shall make people curious"),
            StyleLook().size(1).color(Gray)},
        Row{u"fine-print"_s, tr("Fine Print"), tr("What must be said, but in small letters"),
            StyleLook().size(-1).color(Gray)},
        Row{u"note"_s, tr("Note"), tr("Something worth knowing, on blue"), StyleLook(), 0xe3effb},
        Row{u"tip"_s, tr("Tip"), tr("Something that helps, on green"), StyleLook(), 0xe2f3e5},
        Row{u"warning"_s, tr("Warning"), tr("Something to beware of, on yellow"), StyleLook(),
            0xfff1cc},
        Row{u"danger"_s, tr("Danger"), tr("Something that does harm, on red"),
            StyleLook().bold().color(0x9c1c1c), 0xfbe3e3},
        Row{u"sidebar"_s, tr("Sidebar"), tr("What stands beside the matter, on gray"),
            StyleLook().color(0x424242), 0xebebeb},
    };
    for (const Row &row : rows)
        add(paragraphStyle(group, row, tr("Ab", "sample of text")));
}

void StyleCatalog::addEmphasis()
{
    const QString group = tr("Emphasis");
    add(eraser(group, {u"no-emphasis"_s, tr("No Emphasis"), tr("Takes all of these away"), {}},
               TextStyle::Scope::Text));
    const std::array rows{
        Row{u"bold"_s, tr("Bold"), tr("Strong letters"), StyleLook().bold()},
        Row{u"italic"_s, tr("Italic"), tr("Slanted letters"), StyleLook().italic()},
        Row{u"bold-italic"_s, tr("Bold Italic"), tr("Strong and slanted letters"),
            StyleLook().bold().italic()},
        Row{u"underline"_s, tr("Underline"), tr("A line below the text"),
            StyleLook().underline(QTextCharFormat::SingleUnderline)},
        Row{u"dotted"_s, tr("Dotted Line"), tr("Dots below the text"),
            StyleLook().underline(QTextCharFormat::DotLine)},
        Row{u"wavy"_s, tr("Wavy Line"), tr("A wave below the text"),
            StyleLook().underline(QTextCharFormat::WaveUnderline)},
        Row{u"overline"_s, tr("Overline"), tr("A line above the text"), StyleLook().overline()},
        Row{u"strikeout"_s, tr("Strikeout"), tr("A line through the text"),
            StyleLook().strikeOut()},
    };
    for (const Row &row : rows)
        add(textStyle(group, row, tr("Ab", "sample of text")));
}

void StyleCatalog::addEmphasisOfLetters()
{
    const QString group = tr("Emphasis");
    const std::array rows{
        Row{u"small-caps"_s, tr("Small Caps"), tr("Small capitals in place of small letters"),
            StyleLook().capitals(QFont::SmallCaps)},
        Row{u"all-caps"_s, tr("All Caps"), tr("Shows all letters as capitals"),
            StyleLook().capitals(QFont::AllUppercase)},
        Row{u"spaced"_s, tr("Spaced"), tr("More room between the letters"),
            StyleLook().spacing(150)},
        Row{u"larger"_s, tr("Larger"), tr("One size up"), StyleLook().size(1)},
        Row{u"smaller"_s, tr("Smaller"), tr("One size down"), StyleLook().size(-1)},
    };
    for (const Row &row : rows)
        add(textStyle(group, row, tr("Ab", "sample of text")));

    TextStyle superscript = textStyle(group,
                                      {u"superscript"_s, tr("Superscript"),
                                       tr("Small and raised, as in a power"),
                                       StyleLook().align(QTextCharFormat::AlignSuperScript)},
                                      u"2"_s);
    superscript.lead = u"x"_s;
    add(superscript);
    TextStyle subscript = textStyle(group,
                                    {u"subscript"_s, tr("Subscript"),
                                     tr("Small and lowered, as in a formula"),
                                     StyleLook().align(QTextCharFormat::AlignSubScript)},
                                    u"2"_s);
    subscript.lead = u"x"_s;
    add(subscript);
}

void StyleCatalog::addFontColors()
{
    const QString group = tr("Font Colors");
    add(eraser(group, {u"automatic"_s, tr("Automatic"), tr("The color that text usually has"), {}},
               TextStyle::Scope::Text));
    // All dark enough to be read on white.
    constexpr std::array colors{
        Color{"black", QT_TR_NOOP("Black"), 0x000000},
        Color{"slate", QT_TR_NOOP("Slate"), 0x44546a},
        Color{"gray", QT_TR_NOOP("Gray"), 0x6b6b6b},
        Color{"brown", QT_TR_NOOP("Brown"), 0x7a4a1e},
        Color{"red", QT_TR_NOOP("Red"), 0xc00000},
        Color{"orange", QT_TR_NOOP("Orange"), 0xb84a00},
        Color{"gold", QT_TR_NOOP("Gold"), 0x866200},
        Color{"olive", QT_TR_NOOP("Olive"), 0x5c6b00},
        Color{"green", QT_TR_NOOP("Green"), 0x1e7b34},
        Color{"teal", QT_TR_NOOP("Teal"), 0x00767a},
        Color{"blue", QT_TR_NOOP("Blue"), 0x1266c4},
        Color{"navy", QT_TR_NOOP("Navy"), 0x002b80},
        Color{"indigo", QT_TR_NOOP("Indigo"), 0x4b3fbf},
        Color{"purple", QT_TR_NOOP("Purple"), 0x7b2fa0},
        Color{"magenta", QT_TR_NOOP("Magenta"), 0xb0127e},
    };
    for (const Color &color : colors) {
        const Row row{QLatin1StringView(color.name), tr(color.title), tr("Text in this color"),
                      StyleLook().color(color.rgb)};
        add(textStyle(group, row, tr("Ab", "sample of text")));
    }
}

void StyleCatalog::addHighlights()
{
    const QString group = tr("Highlights");
    add(eraser(group,
               {u"no-marker"_s, tr("No Marker"), tr("Takes the color behind the text away"), {}},
               TextStyle::Scope::Text));
    // All light enough to read black on them.
    constexpr std::array colors{
        Color{"yellow-marker", QT_TR_NOOP("Yellow Marker"), 0xfff27a},
        Color{"lime-marker", QT_TR_NOOP("Lime Marker"), 0xd7f26b},
        Color{"green-marker", QT_TR_NOOP("Green Marker"), 0x9ee6a0},
        Color{"mint-marker", QT_TR_NOOP("Mint Marker"), 0xb5f0d8},
        Color{"aqua-marker", QT_TR_NOOP("Aqua Marker"), 0x8eeaf0},
        Color{"sky-marker", QT_TR_NOOP("Sky Marker"), 0xb4defa},
        Color{"blue-marker", QT_TR_NOOP("Blue Marker"), 0xa3c4ff},
        Color{"lilac-marker", QT_TR_NOOP("Lilac Marker"), 0xd9c8fa},
        Color{"pink-marker", QT_TR_NOOP("Pink Marker"), 0xffb8e0},
        Color{"rose-marker", QT_TR_NOOP("Rose Marker"), 0xffc7cb},
        Color{"coral-marker", QT_TR_NOOP("Coral Marker"), 0xff9d8a},
        Color{"gold-marker", QT_TR_NOOP("Gold Marker"), 0xffc266},
        Color{"peach-marker", QT_TR_NOOP("Peach Marker"), 0xffdcb8},
        Color{"sand-marker", QT_TR_NOOP("Sand Marker"), 0xe8dcb5},
        Color{"silver-marker", QT_TR_NOOP("Silver Marker"), 0xd6d6d6},
    };
    for (const Color &color : colors) {
        const Row row{QLatin1StringView(color.name), tr(color.title),
                      tr("This color behind the text"), StyleLook().marker(color.rgb)};
        add(textStyle(group, row, tr("Ab", "sample of text")));
    }
}

void StyleCatalog::addCodeAndQuotes()
{
    const QString group = tr("Code and Quotes");
    const std::array paragraphs{
        Row{u"code"_s, tr("Code Block"), tr("Lines of a program"), StyleLook().fixedPitch(),
            CodeGround},
        Row{u"terminal"_s, tr("Terminal"), tr("What a command line shows"),
            StyleLook().fixedPitch().color(0xe6e6e6), 0x2b2b2b},
        Row{u"added"_s, tr("Added"), tr("What came into a program"),
            StyleLook().fixedPitch().color(0x1a5e2a), 0xdff5e3},
        Row{u"removed"_s, tr("Removed"), tr("What went out of a program"),
            StyleLook().fixedPitch().color(0x8c1d1d), 0xfbe1e1},
        Row{u"quote"_s, tr("Quote"), tr("What somebody else said"),
            StyleLook().italic().color(0x424242), 0xf5f1e6},
        Row{u"pull-quote"_s, tr("Pull Quote"), tr("A sentence that draws the eye"),
            StyleLook().size(2).italic().color(Navy)},
    };
    for (const Row &row : paragraphs)
        add(paragraphStyle(group, row, tr("Ab", "sample of text")));
    const std::array pieces{
        Row{u"inline-code"_s, tr("Inline Code"), tr("A name of a program, within a sentence"),
            StyleLook().fixedPitch().color(0x9c2463).marker(CodeGround)},
        Row{u"key"_s, tr("Key"), tr("A key to press, within a sentence"),
            StyleLook().fixedPitch().bold().marker(0xe0e0e0)},
    };
    for (const Row &row : pieces)
        add(textStyle(group, row, tr("Ab", "sample of text")));
}

void StyleCatalog::add(const TextStyle &style)
{
    m_indexes.insert(style.name, m_styles.size());
    m_styles.append(style);
}

const TextStyle *StyleCatalog::find(const QString &name) const
{
    const qsizetype index = m_indexes.value(name, -1);
    return index < 0 ? nullptr : &m_styles.at(index);
}

QStringList StyleCatalog::namesOf(const QTextFormat &format)
{
    return format.stringProperty(NamesProperty).split(u' ', Qt::SkipEmptyParts);
}

QTextCharFormat StyleCatalog::textFormat(const QStringList &names) const
{
    QTextCharFormat format;
    int size = 0;
    for (const QString &name : names) {
        const TextStyle *style = find(name);
        if (!style)
            continue;
        format.merge(style->text);
        size += style->text.intProperty(QTextFormat::FontSizeAdjustment);
    }
    // Sizes add up: larger letters in a heading are larger than the heading.
    if (size != 0)
        format.setProperty(QTextFormat::FontSizeAdjustment,
                           std::clamp(size, Size_Least, Size_Most));
    else
        format.clearProperty(QTextFormat::FontSizeAdjustment);
    if (!names.isEmpty())
        format.setProperty(NamesProperty, names.join(u' '));
    return format;
}

QTextBlockFormat StyleCatalog::blockFormat(const QString &name) const
{
    const TextStyle *style = find(name);
    if (!style || style->isEraser)
        return {};
    QTextBlockFormat format = style->block;
    format.setProperty(NamesProperty, name);
    return format;
}

qreal StyleCatalog::sizeFactor(const QTextCharFormat &format)
{
    const int steps = format.intProperty(QTextFormat::FontSizeAdjustment);
    const int index = std::clamp(steps, Size_Least, Size_Most) - Size_Least;
    return Size_Factors.at(static_cast<std::size_t>(index));
}
