// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "StyleIcon.h"

#include "StyleCatalog.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace {

constexpr qreal Disabled_Opacity = 0.4;

constexpr qreal Ground_Radius = 3;
constexpr QRectF Ground_Rect(QPointF(0, 0), StyleIcon::NaturalSize);
/// A paragraph's own picture shows its text at the start and lines of more text beside it.
constexpr QRectF Sample_OfParagraph(3, 0, 24, 28);
constexpr QRectF Lines_Rect(29, 7.5, 15, 13);
constexpr int Lines_Count = 3;
constexpr qreal Lines_Opacity = 0.55;

/// In px. Larger text is shown larger, but not so much that it finds no room.
constexpr qreal Font_Size = 16;
constexpr qreal Font_SizeOfParagraph = 14;
constexpr qreal Font_Growth = 0.5;
constexpr qreal Font_Maximum = 25;

constexpr QColor EraserColor(192, 48, 48);

} // namespace

StyleIcon::StyleIcon(const TextStyle &style) : m_style(style) {}

void StyleIcon::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode,
                      QIcon::State /*state*/)
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (mode == QIcon::Disabled)
        painter->setOpacity(Disabled_Opacity);
    const qreal scale = std::min(qreal(rect.width()) / NaturalSize.width(),
                                 qreal(rect.height()) / NaturalSize.height());
    painter->translate(QRectF(rect).center());
    painter->scale(scale, scale);
    painter->translate(-Ground_Rect.center());
    drawGround(painter);
    drawSample(painter);
    if (isAmongLines())
        drawLines(painter);
    if (m_style.isEraser && !m_style.isParagraph())
        drawEraser(painter);
    painter->restore();
}

QPixmap StyleIcon::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
}

QIconEngine *StyleIcon::clone() const
{
    return new StyleIcon(*this);
}

void StyleIcon::drawGround(QPainter *painter) const
{
    if (m_style.block.background() == Qt::NoBrush)
        return;
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_style.block.background());
    painter->drawRoundedRect(Ground_Rect, Ground_Radius, Ground_Radius);
}

void StyleIcon::drawSample(QPainter *painter) const
{
    QTextLayout layout(m_style.lead + m_style.sample, sampleFont());
    QTextLayout::FormatRange range;
    range.start = static_cast<int>(m_style.lead.size());
    range.length = static_cast<int>(m_style.sample.size());
    range.format = m_style.text;
    layout.setFormats({range});
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();

    const QRectF room = isAmongLines() ? Sample_OfParagraph : Ground_Rect;
    const QRectF text = line.naturalTextRect();
    // Some fonts are wide.
    const qreal scale = std::min(1.0, room.width() / text.width());
    painter->save();
    painter->setPen(Qt::black);
    painter->translate(room.center());
    painter->scale(scale, scale);
    layout.draw(painter, -text.center());
    painter->restore();
}

/// With what of the style is not taken from the format of a piece of text.
QFont StyleIcon::sampleFont() const
{
    QFont font = QGuiApplication::font();
    const qreal size = isAmongLines() ? Font_SizeOfParagraph : Font_Size;
    const qreal growth = (StyleCatalog::sizeFactor(m_style.text) - 1) * Font_Growth;
    font.setPixelSize(qRound(std::min(size * (1 + growth), Font_Maximum)));
    font.setCapitalization(m_style.text.fontCapitalization());
    return font;
}

/// A heading stands on its own.
bool StyleIcon::isAmongLines() const
{
    return m_style.isParagraph() && m_style.block.headingLevel() == 0;
}

void StyleIcon::drawLines(QPainter *painter) const
{
    painter->save();
    painter->setOpacity(painter->opacity() * Lines_Opacity);
    const QBrush text = m_style.text.foreground();
    painter->setPen(QPen(text == Qt::NoBrush ? QColor(Qt::black) : text.color(), 1));
    for (int i = 0; i < Lines_Count; ++i) {
        const qreal y = Lines_Rect.top() + i * Lines_Rect.height() / (Lines_Count - 1);
        painter->drawLine(QPointF(Lines_Rect.left(), y), QPointF(Lines_Rect.right(), y));
    }
    painter->restore();
}

void StyleIcon::drawEraser(QPainter *painter)
{
    painter->setPen(QPen(EraserColor, 1.5));
    painter->drawLine(QPointF(34, 5), QPointF(14, 23));
}
