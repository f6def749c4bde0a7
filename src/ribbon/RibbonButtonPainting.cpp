// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "RibbonButton_p.h"

#include "core/Pixmaps.h"
#include "core/ResourcePaths.h"

#include <QPainter>
#include <QStyle>

namespace VornFrame {

namespace {

/// Lines of 1 px are crisp when their middle is in the middle of a pixel.
constexpr QPointF HalfPixel(0.5, 0.5);

} // namespace

QRect RibbonButtonPrivate::mirrored(const QRect &rect) const
{
    return QStyle::visualRect(q_ptr->layoutDirection(), q_ptr->rect(), rect);
}

QRect RibbonButtonPrivate::iconRect() const
{
    if (isLarge()) {
        const int x = qMax(largeIconMargin, (q_ptr->width() - largeIconSize.width()) / 2);
        return mirrored({QPoint(x, largeTopMargin), largeIconSize});
    }
    return mirrored(
        {QPoint(smallLeftMargin, (q_ptr->height() - smallIconSize.height()) / 2), smallIconSize});
}

QRect RibbonButtonPrivate::textRect() const
{
    if (isLarge()) {
        const int x = qMax(largeTextMargin, (q_ptr->width() - textWidth) / 2);
        const int y = largeTopMargin + largeIconSize.height() + largeTextSpacing;
        return mirrored({QPoint(x, y), textSize()});
    }
    const QFontMetrics metrics = q_ptr->fontMetrics();
    const int x = smallLeftMargin + smallIconSize.width() + smallTextSpacing;
    const int y = (q_ptr->height() - metrics.height()) / 2;
    // On a single line, a line break is painted as a space.
    const int width = metrics.horizontalAdvance(text().replace(u'\n', u' '));
    return mirrored({x, y, width, metrics.height()});
}

QRect RibbonButtonPrivate::arrowRect() const
{
    if (isLarge()) {
        const int x = (q_ptr->width() - arrowSize.width()) / 2;
        const int y = q_ptr->height() - largeArrowBottomMargin - arrowSize.height();
        return mirrored({QPoint(x, y), arrowSize});
    }
    const int x = q_ptr->width() - arrowRightMargin - arrowSize.width();
    return mirrored({QPoint(x, (q_ptr->height() - arrowSize.height()) / 2), arrowSize});
}

QRect RibbonButtonPrivate::menuPart() const
{
    return mirrored(menuRect);
}

const QPen &RibbonButtonPrivate::dividerPen() const
{
    // Which part counts as hovered follows overMenuPart alone, as in drawHoveredPart().
    if (isLarge() && !overMenuPart)
        return lightPen;
    if (isLarge() && q_ptr->isDown())
        return accentPen;
    return framePen;
}

void RibbonButtonPrivate::drawBackground(QPainter &painter) const
{
    painter.save();
    // The background is drawn as in a left-to-right layout, into a mirrored painter where needed.
    if (q_ptr->isRightToLeft()) {
        painter.translate(q_ptr->width(), 0);
        painter.scale(-1, 1);
    }
    painter.translate(HalfPixel);
    if (isSplit())
        drawSplitBackground(painter);
    else
        drawPlainBackground(painter);
    painter.restore();
}

void RibbonButtonPrivate::drawSplitBackground(QPainter &painter) const
{
    drawHoveredPart(painter);
    painter.setPen(framePen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(q_ptr->rect().adjusted(0, 0, -1, -1), radius, radius);
    painter.setPen(dividerPen());
    if (isLarge())
        painter.drawLine(1, menuRect.top(), q_ptr->width() - 2, menuRect.top());
    else
        painter.drawLine(menuRect.left(), 1, menuRect.left(), q_ptr->height() - 2);
}

void RibbonButtonPrivate::drawHoveredPart(QPainter &painter) const
{
    QRect part = menuRect;
    if (!overMenuPart) {
        const QSize menu = menuRect.size();
        part = isLarge() ? q_ptr->rect().adjusted(0, 0, 0, -menu.height())
                         : q_ptr->rect().adjusted(0, 0, -menu.width(), 0);
    }
    // Only the outer corners are round: the half that touches the other part is filled up to its
    // corners.
    QRect innerHalf = part;
    if (isLarge())
        innerHalf.setHeight(part.height() / 2);
    else
        innerHalf.setWidth(part.width() / 2);
    if (!overMenuPart)
        innerHalf.moveBottomRight(part.bottomRight());
    painter.setPen(Qt::NoPen);
    painter.setBrush(q_ptr->isDown() || q_ptr->isChecked() ? pressedBrush : normalBrush);
    painter.drawRoundedRect(part, radius, radius);
    painter.drawRect(innerHalf);
}

void RibbonButtonPrivate::drawPlainBackground(QPainter &painter) const
{
    painter.setPen(framePen);
    if (q_ptr->isDown())
        painter.setBrush(menu() ? pressedBrush : surfaceBrush);
    else
        painter.setBrush(q_ptr->isChecked() ? pressedBrush : normalBrush);
    painter.drawRoundedRect(q_ptr->rect().adjusted(0, 0, -1, -1), radius, radius);
}

void RibbonButtonPrivate::drawIcon(QPainter &painter) const
{
    const QIcon::Mode mode = q_ptr->isEnabled() ? QIcon::Normal : QIcon::Disabled;
    // An icon with a picture of its own for the checked state shows it.
    const QIcon::State state = q_ptr->isChecked() ? QIcon::On : QIcon::Off;
    QRect rect = iconRect();
    const QPixmap pixmap = q_ptr->icon().pixmap(rect.size(), Pixmaps::deviceRatio(painter), mode,
                                                state);
    // Icons are never enlarged: a smaller one stands in the middle.
    const QPoint middle = rect.center();
    rect.setSize(pixmap.deviceIndependentSize().toSize());
    rect.moveCenter(middle);
    painter.drawPixmap(rect, pixmap);
}

void RibbonButtonPrivate::drawText(QPainter &painter) const
{
    const QString string = text();
    painter.setPen(q_ptr->isEnabled() ? textPen : lightPen);
    int flags = Qt::TextDontClip;
    // The rectangle of a single line is as wide as the text, and mirrored already.
    if (!isLarge())
        flags |= Qt::AlignLeft | Qt::AlignAbsolute | Qt::TextSingleLine;
    else if (string.count(u'\n') < 2)
        flags |= Qt::AlignHCenter;
    else
        flags |= Qt::AlignHCenter | Qt::TextWordWrap;
    painter.drawText(textRect(), flags, string);
}

void RibbonButtonPrivate::drawArrow(QPainter &painter) const
{
    if (!menu() || (!isLarge() && !isSmall()))
        return;
    const QIcon::Mode mode = q_ptr->isEnabled() ? QIcon::Normal : QIcon::Disabled;
    painter.drawPixmap(arrowRect(), Pixmaps::rendered(ResourcePaths::Arrow, arrowSize,
                                                      Pixmaps::deviceRatio(painter), mode));
}

} // namespace VornFrame
