// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "SideController.h"

#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QResizeEvent>
#include <QSplitter>

#include <algorithm>

using VornFrame::DockPanelWidget;

SideController::SideController(DockPanelWidget *side, QObject *parent)
    : QObject(parent), m_side(side)
{
    side->stackedWidget()->installEventFilter(this);
    // The side itself has no current slot while it is minimized.
    connect(side, &DockPanelWidget::signalCurrentIndexChanged, this,
            [this](int index) { m_currentSlot = index; });
}

void SideController::addView(QWidget *view)
{
    append(view, m_side->addView(view, view->windowIcon(), view->windowTitle()));
}

void SideController::addViewBeside(QWidget *neighbour, QWidget *view)
{
    const int slot = slotOf(neighbour);
    if (m_side->tabifyView(slot, view, view->windowIcon(), view->windowTitle()) >= 0)
        append(view, slot);
}

void SideController::append(QWidget *view, int slot)
{
    m_places.append({view, slot});
    if (!view->actions().isEmpty())
        m_side->menu(view)->addSeparator();
    m_side->menu(view)->addActions(view->actions());
}

void SideController::addSeparator()
{
    m_side->addSeparator();
}

QList<QWidget *> SideController::views() const
{
    QList<QWidget *> views;
    for (const Place &place : m_places)
        views.append(place.view);
    return views;
}

bool SideController::isShown(const QWidget *view) const
{
    return std::any_of(m_places.cbegin(), m_places.cend(),
                       [view](const Place &place) { return place.view == view && place.isShown; });
}

void SideController::setShown(const QWidget *view, bool shown)
{
    Place *place = placeOf(view);
    if (!place || place->isShown == shown)
        return;
    place->isShown = shown;
    // The view and its title bar.
    place->view->parentWidget()->setVisible(shown);
    if (shown)
        enterSlot(place->slot);
    else if (!isSlotShown(place->slot))
        leaveSlot(place->slot);
}

void SideController::activate(QWidget *view)
{
    const Place *place = placeOf(view);
    if (!place)
        return;
    setShown(view, true);
    enterSlot(place->slot);
    view->setFocus(Qt::ShortcutFocusReason);
}

bool SideController::isEmpty() const
{
    return firstShownSlot() < 0;
}

bool SideController::isMinimized() const
{
    return m_side->isMinimized();
}

void SideController::setMinimized(bool minimized)
{
    if (isEmpty() || minimized == isMinimized())
        return;
    if (minimized)
        m_side->menu(m_places.constFirst().view)->actions().constFirst()->trigger();
    else
        m_side->setViewVisible(m_currentSlot, true);
}

void SideController::setCurrentSlot(int slot)
{
    if (!isSlotShown(slot))
        return;
    m_side->setCurrentIndex(slot);
    // Its button is checked now, which it must not be on a minimized side.
    if (m_side->isMinimized())
        m_side->setMinimized(true);
}

QSplitter *SideController::splitter() const
{
    return qobject_cast<QSplitter *>(m_side->stackedWidget()->parentWidget());
}

bool SideController::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && splitter()) {
        const QSize size = static_cast<QResizeEvent *>(event)->size();
        const bool isLevel = splitter()->orientation() == Qt::Horizontal;
        const int extent = isLevel ? size.width() : size.height();
        if (extent > 0)
            m_extent = extent;
    }
    return QObject::eventFilter(watched, event);
}

SideController::Place *SideController::placeOf(const QWidget *view)
{
    const auto place = std::find_if(m_places.begin(), m_places.end(),
                                    [view](const Place &one) { return one.view == view; });
    return place != m_places.end() ? &*place : nullptr;
}

int SideController::slotOf(const QWidget *view) const
{
    for (const Place &place : m_places) {
        if (place.view == view)
            return place.slot;
    }
    return -1;
}

int SideController::firstShownSlot() const
{
    for (const Place &place : m_places) {
        if (place.isShown)
            return place.slot;
    }
    return -1;
}

bool SideController::isSlotShown(int slot) const
{
    return std::any_of(m_places.cbegin(), m_places.cend(),
                       [slot](const Place &place) { return place.slot == slot && place.isShown; });
}

void SideController::enterSlot(int slot)
{
    m_side->panel()->show();
    m_side->stackedWidget()->show();
    // Restores a minimized side, too.
    m_side->setViewVisible(slot, true);
    m_side->setCurrentIndex(slot);
}

/// The container itself would show the first other slot, switched on or not, and leave the page of
/// an only one.
void SideController::leaveSlot(int slot)
{
    if (!isEmpty()) {
        if (m_currentSlot == slot)
            setCurrentSlot(firstShownSlot());
        m_side->setViewVisible(slot, false);
        return;
    }
    if (!isMinimized())
        m_side->menu(m_places.constFirst().view)->actions().constFirst()->trigger();
    m_side->setViewVisible(slot, false);
    m_side->stackedWidget()->hide();
    m_side->panel()->hide();
}
