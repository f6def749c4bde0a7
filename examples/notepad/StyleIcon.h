// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "TextStyle.h"

#include <QIconEngine>

/// The picture of a style: a bit of text that has it. It is painted anew for every size and pixel
/// ratio that is asked for, so it is sharp on any screen.
class StyleIcon : public QIconEngine
{
public:
    /// In px: the size that the picture is made for. Others show it larger or smaller.
    static constexpr QSize NaturalSize{48, 28};

    explicit StyleIcon(const TextStyle &style);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;

private:
    void drawGround(QPainter *painter) const;
    void drawSample(QPainter *painter) const;
    void drawLines(QPainter *painter) const;
    static void drawEraser(QPainter *painter);
    QFont sampleFont() const;
    bool isAmongLines() const;

    const TextStyle m_style;
};
