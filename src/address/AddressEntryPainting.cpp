// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "AddressEntry_p.h"

#include "core/Pixmaps.h"
#include "core/ResourcePaths.h"

#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <QTransform>

namespace VornFrame {

QRect AddressEntryPrivate::mirrored(const QRect &rect) const
{
    return QStyle::visualRect(q_ptr->layoutDirection(), q_ptr->rect(), rect);
}

QRect AddressEntryPrivate::arrowPart() const
{
    return mirrored(arrowRect);
}

QRect AddressEntryPrivate::textRect() const
{
    return mirrored({leftMargin, 0, textWidth, q_ptr->height()});
}

QRect AddressEntryPrivate::arrowPictureRect() const
{
    const int x = q_ptr->width() - arrowMargin - arrowSize.width();
    return mirrored({QPoint(x, (q_ptr->height() - arrowSize.height()) / 2), arrowSize});
}

void AddressEntryPrivate::drawBackground(QPainter &painter) const
{
    painter.save();
    // Drawn as in a left-to-right layout, into a mirrored painter where needed.
    if (q_ptr->isRightToLeft()) {
        painter.translate(q_ptr->width(), 0);
        painter.scale(-1, 1);
    }
    drawParts(painter);
    drawSeparators(painter);
    painter.restore();
}

void AddressEntryPrivate::drawParts(QPainter &painter) const
{
    const QBrush &active = q_ptr->isDown() ? pressedBrush : normalBrush;
    const int height = q_ptr->height();
    const QRect textPart(0, 0, arrowLeft(), height);
    const QRect arrowPart(arrowLeft(), 0, arrowArea.width(), height);
    if (!isSplit()) {
        painter.fillRect(q_ptr->rect(), active);
    } else if (overArrow) {
        painter.fillRect(arrowPart, active);
        painter.fillRect(textPart, q_ptr->isDown() ? pressedSecondaryBrush : secondaryBrush);
    } else {
        painter.fillRect(textPart, active);
        painter.fillRect(arrowPart, secondaryBrush);
    }
}

void AddressEntryPrivate::drawSeparators(QPainter &painter) const
{
    // Lines of 1 px are crisp when their middle is in the middle of a pixel.
    painter.translate(0.5, 0.5);
    // A cosmetic pen counts in pixels of the screen.
    QPen line = pen;
    line.setWidthF(pen.widthF() * Pixmaps::deviceRatio(painter));
    painter.setPen(line);
    const int bottom = q_ptr->height() - 1;
    painter.drawLine(0, 0, 0, bottom);
    if (isSplit())
        painter.drawLine(arrowLeft(), 0, arrowLeft(), bottom);
    painter.drawLine(q_ptr->width() - 1, 0, q_ptr->width() - 1, bottom);
}

void AddressEntryPrivate::drawName(QPainter &painter) const
{
    QString name = shownName();
    if (textWidth < nameWidth())
        name = q_ptr->fontMetrics().elidedText(name, Qt::ElideRight, textWidth);
    painter.setPen(Qt::black);
    // The rectangle is as wide as the name, and mirrored already.
    painter.drawText(textRect(),
                     Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine,
                     name);
}

void AddressEntryPrivate::drawArrow(QPainter &painter) const
{
    const bool isOpen = q_ptr->isDown() && overArrow;
    QPixmap arrow = Pixmaps::rendered(isOpen ? ResourcePaths::AddressArrowDown
                                             : ResourcePaths::AddressArrowRight,
                                      arrowSize, Pixmaps::deviceRatio(painter));
    if (q_ptr->isRightToLeft())
        arrow = arrow.transformed(QTransform::fromScale(-1, 1));
    painter.drawPixmap(arrowPictureRect(), arrow);
}

void AddressEntry::paintEvent(QPaintEvent * /*event*/)
{
    Q_D(AddressEntry);
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing
                           | QPainter::SmoothPixmapTransform);
    if (d->hovered)
        d->drawBackground(painter);
    if (popupMode() != InstantPopup)
        d->drawName(painter);
    if (menu())
        d->drawArrow(painter);
}

} // namespace VornFrame
