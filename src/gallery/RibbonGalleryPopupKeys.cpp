// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "RibbonGalleryPopup.h"

#include "RibbonGalleryPopup_p.h"

#include "RibbonGalleryItem.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>

#include <cstdlib>
#include <utility>

// What the keyboard does in the popup of a gallery.

namespace VornFrame {

/// Null when the focus is in another window or outside the content.
QWidget *RibbonGalleryPopupPrivate::focused() const
{
    QWidget *widget = q_ptr->window()->focusWidget();
    return widget && contentFrame->isAncestorOf(widget) ? widget : nullptr;
}

void RibbonGalleryPopupPrivate::focus(QWidget *widget, Qt::FocusReason reason)
{
    widget->setFocus(reason);
    // Of a field only the text cursor would come into sight.
    if (widget == searchEdit)
        q_ptr->verticalScrollBar()->setValue(0);
    else
        q_ptr->ensureWidgetVisible(widget, 0, 0);
}

QList<RibbonGalleryItem *> RibbonGalleryPopupPrivate::reachableItems() const
{
    QList<RibbonGalleryItem *> tiles = collectedGroup->reachableItems();
    for (const RibbonGalleryGroup *group : groups)
        tiles += group->reachableItems();
    return tiles;
}

QList<QWidget *> RibbonGalleryPopupPrivate::keyboardStops() const
{
    QList<QWidget *> stops{searchEdit, closeButton};
    stops += collectedGroup->keyboardStops();
    for (const RibbonGalleryGroup *group : groups)
        stops += group->keyboardStops();
    return stops;
}

/// Returns whether \a event was for the popup.
bool RibbonGalleryPopupPrivate::handleKey(QKeyEvent *event)
{
    auto *tile = qobject_cast<RibbonGalleryItem *>(focused());
    const int step = q_ptr->isRightToLeft() ? -1 : 1;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        activateFocused();
        return true;
    case Qt::Key_Up:
        // Above the first row stands the search field.
        if (RibbonGalleryItem *above = nearestInNextRow(false))
            focus(above, Qt::OtherFocusReason);
        else
            q_ptr->focusSearch();
        return true;
    case Qt::Key_Down:
        if (RibbonGalleryItem *below = nearestInNextRow(true))
            focus(below, Qt::OtherFocusReason);
        return true;
    case Qt::Key_Left:
        focusInReadingOrder(tile, -step);
        return true;
    case Qt::Key_Right:
        focusInReadingOrder(tile, step);
        return true;
    case Qt::Key_Space:
        if (tile && event->modifiers() == Qt::ControlModifier) {
            tile->toggleCollected();
            return true;
        }
        break;
    default:
        break;
    }
    if (!isForSearch(event))
        return false;
    q_ptr->focusSearch();
    QCoreApplication::sendEvent(searchEdit, event);
    return true;
}

/// Whether \a event types something while the focus is elsewhere.
bool RibbonGalleryPopupPrivate::isForSearch(const QKeyEvent *event) const
{
    if (searchEdit->hasFocus())
        return false;
    if (event->key() == Qt::Key_Backspace)
        return true;
    const Qt::KeyboardModifiers commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return !event->text().isEmpty() && event->text().at(0).isPrint()
           && (event->modifiers() & commands) == Qt::NoModifier;
}

void RibbonGalleryPopupPrivate::activateFocused()
{
    QWidget *widget = focused();
    if (const auto *field = qobject_cast<QLineEdit *>(widget)) {
        const QList<RibbonGalleryItem *> tiles = reachableItems();
        if (!field->text().isEmpty() && !tiles.isEmpty())
            tiles.first()->click();
    } else if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
        button->click();
    }
}

void RibbonGalleryPopupPrivate::focusInReadingOrder(RibbonGalleryItem *from, int step)
{
    const QList<RibbonGalleryItem *> tiles = reachableItems();
    const qsizetype index = tiles.indexOf(from);
    const qsizetype next = index + step;
    if (index >= 0 && next >= 0 && next < tiles.size())
        focus(tiles.at(next), Qt::OtherFocusReason);
}

/// The tile that is nearest to the focus in the next row \a below or above; null when there is none.
RibbonGalleryItem *RibbonGalleryPopupPrivate::nearestInNextRow(bool below) const
{
    const QRect from = placeOf(focused());
    RibbonGalleryItem *nearest = nullptr;
    std::pair<int, int> distance;
    const QList<RibbonGalleryItem *> tiles = reachableItems();
    for (RibbonGalleryItem *tile : tiles) {
        const QRect place = placeOf(tile);
        const std::pair<int, int> other{below ? place.top() - from.bottom()
                                              : from.top() - place.bottom(),
                                        std::abs(place.center().x() - from.center().x())};
        if (other.first > 0 && (!nearest || other < distance)) {
            nearest = tile;
            distance = other;
        }
    }
    return nearest;
}

/// In the content; above all of it for null.
QRect RibbonGalleryPopupPrivate::placeOf(const QWidget *widget) const
{
    return widget ? QRect(widget->mapTo(contentFrame, QPoint(0, 0)), widget->size()) : QRect();
}

bool RibbonGalleryPopup::focusNextPrevChild(bool next)
{
    Q_D(RibbonGalleryPopup);
    const QList<QWidget *> stops = d->keyboardStops();
    const QWidget *current = d->focused();
    qsizetype index = stops.indexOf(current);
    // Tiles after the first of their group are no stops: they count as that one.
    for (qsizetype i = 0; index < 0 && current && i < stops.size(); ++i) {
        if (qobject_cast<RibbonGalleryItem *>(stops.at(i))
            && stops.at(i)->parent() == current->parent())
            index = i;
    }
    const qsizetype count = stops.size();
    const qsizetype target = index < 0 ? 0 : (index + (next ? 1 : count - 1)) % count;
    d->focus(stops.at(target), next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void RibbonGalleryPopup::keyPressEvent(QKeyEvent *event)
{
    Q_D(RibbonGalleryPopup);
    if (!d->handleKey(event))
        QScrollArea::keyPressEvent(event);
}

} // namespace VornFrame
