// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DockLayout.h"

#include <QLayout>
#include <QSplitter>
#include <QWidget>

#include <algorithm>

using VornFrame::DockContainer;

DockLayout::DockLayout(DockContainer *container, QObject *parent)
    : QObject(parent), m_container(container)
{
    for (const auto area : {DockContainer::Left, DockContainer::Right, DockContainer::Bottom})
        m_sides[area] = new SideController(container->panelWidget(area), this);
}

SideController *DockLayout::side(DockContainer::DockArea area) const
{
    return m_sides[area];
}

QList<QWidget *> DockLayout::views() const
{
    QList<QWidget *> views;
    for (const SideController *side : m_sides)
        views += side->views();
    return views;
}

bool DockLayout::isShown(const QWidget *view) const
{
    return std::any_of(m_sides.cbegin(), m_sides.cend(),
                       [view](const SideController *side) { return side->isShown(view); });
}

void DockLayout::setShown(const QWidget *view, bool shown)
{
    // The others do not know it.
    for (SideController *side : m_sides)
        side->setShown(view, shown);
}

void DockLayout::activate(QWidget *view) const
{
    for (SideController *side : m_sides)
        side->activate(view);
}

DockState DockLayout::state() const
{
    DockState state;
    state.container = m_container->saveState();
    for (std::size_t i = 0; i < m_sides.size(); ++i) {
        const SideController *side = m_sides[i];
        state.sides[i] = {side->extent(), side->currentSlot(), side->isMinimized()};
    }
    const QList<QWidget *> all = views();
    for (const QWidget *view : all) {
        if (!isShown(view))
            state.hiddenViews.append(view->objectName());
    }
    return state;
}

void DockLayout::apply(const DockState &state)
{
    const QList<QWidget *> all = views();
    for (const QWidget *view : all)
        setShown(view, true);
    for (SideController *side : m_sides)
        side->setMinimized(false);
    setSizes(state);
    // Deliberately after the sizes: the container ignores a state in which a width looks like the
    // end of a piece, keeps no height of the bottom side, and knows better than we otherwise.
    m_container->restoreState(state.container);
    for (std::size_t i = 0; i < m_sides.size(); ++i) {
        m_sides[i]->setCurrentSlot(0);
        m_sides[i]->setCurrentSlot(state.sides[i].currentSlot);
        m_sides[i]->setMinimized(state.sides[i].isMinimized);
    }
    switchOff(state.hiddenViews);
    m_container->updateState();
}

void DockLayout::setSizes(const DockState &state) const
{
    const int left = state.sides[DockContainer::Left].extent;
    const int right = state.sides[DockContainer::Right].extent;
    const int bottom = state.sides[DockContainer::Bottom].extent;
    if (QSplitter *splitter = m_sides[DockContainer::Left]->splitter())
        splitter->setSizes({left, qMax(1, splitter->width() - left - right), right});
    if (QSplitter *splitter = m_sides[DockContainer::Bottom]->splitter())
        splitter->setSizes({qMax(1, splitter->height() - bottom), bottom});
}

void DockLayout::switchOff(const QStringList &names)
{
    QSplitter *splitter = m_sides[DockContainer::Left]->splitter();
    const QList<int> before = splitter ? splitter->sizes() : QList<int>();
    const QList<QWidget *> all = views();
    for (const QWidget *view : all)
        setShown(view, !names.contains(view->objectName()));
    const SideController *left = m_sides[DockContainer::Left];
    const SideController *right = m_sides[DockContainer::Right];
    if (!splitter || before.size() != DockState::SideCount
        || (!left->isEmpty() && !right->isEmpty()))
        return;
    // The bar that vanished leaves its room to all, but here it belongs to the centre.
    m_container->layout()->activate();
    const int leftWidth = left->isEmpty() ? 0 : before.first();
    const int rightWidth = right->isEmpty() ? 0 : before.last();
    splitter->setSizes({leftWidth, splitter->width() - leftWidth - rightWidth, rightWidth});
}
