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
    const QSize size = textSize();
    if (isLarge()) {
        const int x = qMax(largeTextMargin, (q_ptr->width() - textWidth) / 2);
        return mirrored(
            {QPoint(x, largeTopMargin + largeIconSize.height() + largeTextSpacing), size});
    }
    const int x = smallLeftMargin + smallIconSize.width() + smallTextSpacing;
    return mirrored({QPoint(x, (q_ptr->height() - q_ptr->fontMetrics().height()) / 2), size});
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

QRect RibbonButtonPrivate::mainPart() const
{
    if (isLarge())
        return {0, 0, q_ptr->width(), q_ptr->height() - menuRect.height()};
    return mirrored({0, 0, q_ptr->width() - menuRect.width(), q_ptr->height()});
}

QRect RibbonButtonPrivate::dividerRect() const
{
    if (isLarge())
        return {1, menuRect.top(), q_ptr->width() - 2, 1};
    return mirrored({menuRect.left(), 1, 1, q_ptr->height() - 2});
}

const QPen &RibbonButtonPrivate::dividerPen() const
{
    if (isLarge() && !overMenuPart)
        return lightPen;
    if (isLarge() && q_ptr->isDown())
        return accentPen;
    return framePen;
}

void RibbonButtonPrivate::drawBackground(QPainter &painter) const
{
    painter.translate(HalfPixel);
    if (isSplit())
        drawSplitBackground(painter);
    else
        drawPlainBackground(painter);
    painter.translate(-HalfPixel);
}

void RibbonButtonPrivate::drawSplitBackground(QPainter &painter) const
{
    drawHoveredPart(painter);
    painter.setPen(framePen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(q_ptr->rect().adjusted(0, 0, -1, -1), radius, radius);
    painter.setPen(dividerPen());
    const QRect divider = dividerRect();
    painter.drawLine(divider.topLeft(), divider.bottomRight());
}

void RibbonButtonPrivate::drawHoveredPart(QPainter &painter) const
{
    const QRect part = overMenuPart ? menuPart() : mainPart();
    // Only the outer corners are round: the half that touches the other part is filled up to its
    // corners.
    QRect innerHalf = part;
    if (isLarge()) {
        innerHalf.setHeight(part.height() / 2);
        if (!overMenuPart)
            innerHalf.moveBottom(part.bottom());
    } else {
        innerHalf.setWidth(part.width() / 2);
        if (overMenuPart == q_ptr->isRightToLeft())
            innerHalf.moveRight(part.right());
    }
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
    q_ptr->icon().paint(&painter, iconRect(), Qt::AlignCenter,
                        q_ptr->isEnabled() ? QIcon::Normal : QIcon::Disabled,
                        q_ptr->isChecked() ? QIcon::On : QIcon::Off);
}

void RibbonButtonPrivate::drawText(QPainter &painter) const
{
    const QString string = text();
    painter.setPen(q_ptr->isEnabled() ? textPen : lightPen);
    int flags = Qt::TextDontClip;
    if (!isLarge())
        flags |= Qt::AlignLeft | Qt::TextSingleLine;
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
                                                      q_ptr->devicePixelRatioF(), mode));
}

} // namespace VornFrame
