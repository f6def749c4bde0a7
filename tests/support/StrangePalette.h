// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPalette>

/// Colours that the sheet does not name: what is white, black or grey cannot come from here.
inline QPalette strangePalette()
{
    QPalette palette(QColor(200, 230, 200), QColor(200, 200, 230));
    palette.setColor(QPalette::Base, QColor(230, 230, 200));
    for (const QPalette::ColorRole role :
         {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(role, QColor(120, 0, 60));
    palette.setColor(QPalette::Highlight, QColor(60, 120, 0));
    palette.setColor(QPalette::HighlightedText, QColor(0, 60, 120));
    return palette;
}
