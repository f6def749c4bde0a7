// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "RibbonGalleryLayout.h"

#include "RibbonGalleryLayout_p.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>

namespace VornFrame {

namespace {

bool isIndexOf(const QList<QLayoutItem *> &items, int index)
{
    return index >= 0 && index < items.size();
}

} // namespace

/// Places the items in \a rect, or only looks how high they become; returns that height.
int RibbonGalleryLayoutPrivate::doLayout(const QRect &rect, bool testOnly) const
{
    const QMargins margins = q_ptr->contentsMargins();
    const QRect area = rect.marginsRemoved(margins);
    const Qt::LayoutDirection direction = q_ptr->parentWidget()
                                              ? q_ptr->parentWidget()->layoutDirection()
                                              : Qt::LeftToRight;
    int x = area.x();
    int y = area.y();
    int lineHeight = 0;
    for (QLayoutItem *item : items) {
        const QSize size = item->sizeHint();
        const int spaceX = spacingBeside(item, Qt::Horizontal);
        int nextX = x + size.width() + spaceX;
        // Deliberately compared with the last pixel inside: tiles that fill a row exactly do not fit.
        if (nextX - spaceX > area.right() && lineHeight > 0) {
            x = area.x();
            y += lineHeight + spacingBeside(item, Qt::Vertical);
            nextX = x + size.width() + spaceX;
            lineHeight = 0;
        }
        if (!testOnly)
            item->setGeometry(QStyle::visualRect(direction, area, QRect(QPoint(x, y), size)));
        x = nextX;
        lineHeight = std::max(lineHeight, size.height());
    }
    return y + lineHeight - rect.y() + margins.bottom();
}

int RibbonGalleryLayoutPrivate::smartSpacing(QStyle::PixelMetric metric) const
{
    QObject *parent = q_ptr->parent();
    if (!parent)
        return -1;
    if (auto *widget = qobject_cast<QWidget *>(parent))
        return widget->style()->pixelMetric(metric, nullptr, widget);
    return static_cast<QLayout *>(parent)->spacing();
}

int RibbonGalleryLayoutPrivate::spacingBeside(const QLayoutItem *item,
                                              Qt::Orientation orientation) const
{
    const int spacing = orientation == Qt::Horizontal ? q_ptr->horizontalSpacing()
                                                      : q_ptr->verticalSpacing();
    if (spacing != -1)
        return spacing;
    const QWidget *widget = item->widget();
    const QStyle *style = widget ? widget->style() : QApplication::style();
    return style->layoutSpacing(QSizePolicy::PushButton, QSizePolicy::PushButton, orientation);
}

RibbonGalleryLayout::RibbonGalleryLayout(QWidget *parent, int margin, int hSpacing, int vSpacing)
    : QLayout(parent), d_ptr(new RibbonGalleryLayoutPrivate)
{
    Q_D(RibbonGalleryLayout);
    d->q_ptr = this;
    d->hSpace = hSpacing;
    d->vSpace = vSpacing;
    setContentsMargins(margin, margin, margin, margin);
}

RibbonGalleryLayout::~RibbonGalleryLayout()
{
    Q_D(RibbonGalleryLayout);
    qDeleteAll(d->items);
    d->items.clear();
}

void RibbonGalleryLayout::addItem(QLayoutItem *item)
{
    Q_D(RibbonGalleryLayout);
    if (!item)
        return;
    d->items.append(item);
    invalidate();
}

QLayoutItem *RibbonGalleryLayout::itemAt(int index) const
{
    Q_D(const RibbonGalleryLayout);
    return isIndexOf(d->items, index) ? d->items.at(index) : nullptr;
}

QLayoutItem *RibbonGalleryLayout::takeAt(int index)
{
    Q_D(RibbonGalleryLayout);
    if (!isIndexOf(d->items, index))
        return nullptr;
    QLayoutItem *item = d->items.takeAt(index);
    invalidate();
    return item;
}

int RibbonGalleryLayout::count() const
{
    Q_D(const RibbonGalleryLayout);
    return static_cast<int>(d->items.size());
}

int RibbonGalleryLayout::horizontalSpacing() const
{
    Q_D(const RibbonGalleryLayout);
    return d->hSpace >= 0 ? d->hSpace : d->smartSpacing(QStyle::PM_LayoutHorizontalSpacing);
}

int RibbonGalleryLayout::verticalSpacing() const
{
    Q_D(const RibbonGalleryLayout);
    return d->vSpace >= 0 ? d->vSpace : d->smartSpacing(QStyle::PM_LayoutVerticalSpacing);
}

QSize RibbonGalleryLayout::sizeHint() const
{
    return minimumSize();
}

QSize RibbonGalleryLayout::minimumSize() const
{
    Q_D(const RibbonGalleryLayout);
    QSize size(0, 0);
    for (const QLayoutItem *item : d->items)
        size = size.expandedTo(item->minimumSize());
    const QMargins margins = contentsMargins();
    return size + QSize(margins.left() + margins.right(), margins.top() + margins.bottom());
}

Qt::Orientations RibbonGalleryLayout::expandingDirections() const
{
    return {};
}

void RibbonGalleryLayout::setGeometry(const QRect &rect)
{
    Q_D(RibbonGalleryLayout);
    QLayout::setGeometry(rect);
    d->doLayout(rect, false);
}

bool RibbonGalleryLayout::hasHeightForWidth() const
{
    return true;
}

int RibbonGalleryLayout::heightForWidth(int width) const
{
    Q_D(const RibbonGalleryLayout);
    // A layout around asks several times in a row.
    if (d->askedWidth != width) {
        d->askedHeight = d->doLayout(QRect(0, 0, width, 0), true);
        d->askedWidth = width;
    }
    return d->askedHeight;
}

void RibbonGalleryLayout::invalidate()
{
    Q_D(RibbonGalleryLayout);
    d->askedWidth = RibbonGalleryLayoutPrivate::NotAsked;
    QLayout::invalidate();
}

} // namespace VornFrame
