// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTextCharFormat>

/// Writes down what a style says of text, as one line of a table: StyleLook().bold().color(Red).
class StyleLook
{
public:
    StyleLook &color(QRgb rgb);
    StyleLook &marker(QRgb rgb);
    StyleLook &bold();
    StyleLook &italic();
    StyleLook &underline(QTextCharFormat::UnderlineStyle style);
    StyleLook &overline();
    StyleLook &strikeOut();
    StyleLook &capitals(QFont::Capitalization capitals);
    StyleLook &align(QTextCharFormat::VerticalAlignment alignment);

    /// In percent of the room that letters usually have.
    StyleLook &spacing(int percent);

    /// In steps up or down from the size of plain text, -2 to 4: so the size follows when the user
    /// chooses another font or zooms.
    StyleLook &size(int steps);

    /// The letters of a typewriter.
    StyleLook &fixedPitch();

    QTextCharFormat format() const { return m_format; }

private:
    QTextCharFormat m_format;
};
