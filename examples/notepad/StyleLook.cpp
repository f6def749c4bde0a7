// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "StyleLook.h"

#include <QFontDatabase>

StyleLook &StyleLook::color(QRgb rgb)
{
    m_format.setForeground(QColor(rgb));
    return *this;
}

StyleLook &StyleLook::marker(QRgb rgb)
{
    m_format.setBackground(QColor(rgb));
    return *this;
}

StyleLook &StyleLook::bold()
{
    m_format.setFontWeight(QFont::Bold);
    return *this;
}

StyleLook &StyleLook::italic()
{
    m_format.setFontItalic(true);
    return *this;
}

StyleLook &StyleLook::underline(QTextCharFormat::UnderlineStyle style)
{
    m_format.setUnderlineStyle(style);
    return *this;
}

StyleLook &StyleLook::overline()
{
    m_format.setFontOverline(true);
    return *this;
}

StyleLook &StyleLook::strikeOut()
{
    m_format.setFontStrikeOut(true);
    return *this;
}

StyleLook &StyleLook::capitals(QFont::Capitalization capitals)
{
    m_format.setFontCapitalization(capitals);
    return *this;
}

StyleLook &StyleLook::align(QTextCharFormat::VerticalAlignment alignment)
{
    m_format.setVerticalAlignment(alignment);
    return *this;
}

StyleLook &StyleLook::spacing(int percent)
{
    m_format.setFontLetterSpacingType(QFont::PercentageSpacing);
    m_format.setFontLetterSpacing(percent);
    return *this;
}

StyleLook &StyleLook::size(int steps)
{
    m_format.setProperty(QTextFormat::FontSizeAdjustment, steps);
    return *this;
}

StyleLook &StyleLook::fixedPitch()
{
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    m_format.setFontFamilies(font.families());
    m_format.setFontFixedPitch(true);
    return *this;
}
