// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "RibbonTabBar.h"

#include "RibbonTabBar_p.h"

#include "RibbonTab.h"

#include <QPainter>

namespace VornFrame {

namespace {

constexpr int BarHeight = 28;
constexpr int TabSpacing = 4;
constexpr QMargins BarMargins(3, 3, 3, 0);
constexpr QMargins PlateOverhang(2, 3, 2, 0);

} // namespace

RibbonTab *RibbonTabBarPrivate::tab(int index) const
{
    // Tabs are only ever added, so position and id are one number; looking up an id walks the whole
    // group.
    return qobject_cast<RibbonTab *>(buttonGroup->buttons().value(index));
}

void RibbonTabBarPrivate::setTabVisible(int index, bool visible)
{
    RibbonTab *target = tab(index);
    if (!target)
        return;
    target->setVisible(visible);
    // The plate of a temporary tab is larger than the tab.
    q_ptr->update();
}

RibbonTabBar::RibbonTabBar(QWidget *parent)
    : QFrame(parent), d_ptr(std::make_unique<RibbonTabBarPrivate>())
{
    Q_D(RibbonTabBar);
    d->q_ptr = this;
    d->layout->setContentsMargins(BarMargins);
    d->layout->setSpacing(TabSpacing);
    setLayout(d->layout);
    d->buttonGroup->setParent(this);
    setFixedHeight(BarHeight);
    connect(d->buttonGroup, &QButtonGroup::idClicked, this, &RibbonTabBar::idClicked);
}

RibbonTabBar::~RibbonTabBar() = default;

int RibbonTabBar::addTab(const QString &title, bool temporary)
{
    Q_D(RibbonTabBar);
    auto *tab = new RibbonTab(title, this);
    tab->setTemporary(temporary);
    if (d->tabsByTitle.isEmpty())
        tab->setChecked(true);
    d->tabsByTitle.insert(title, tab);
    d->layout->addWidget(tab);
    d->buttonGroup->addButton(tab, count());
    return d->buttonGroup->id(tab);
}

int RibbonTabBar::count() const
{
    Q_D(const RibbonTabBar);
    return int(d->buttonGroup->buttons().size());
}

void RibbonTabBar::hideTab(int index)
{
    Q_D(RibbonTabBar);
    d->setTabVisible(index, false);
}

void RibbonTabBar::showTab(int index)
{
    Q_D(RibbonTabBar);
    d->setTabVisible(index, true);
}

void RibbonTabBar::setCurrent(int index)
{
    Q_D(RibbonTabBar);
    // The group is exclusive, so this un-checks the tab that was checked.
    if (RibbonTab *tab = d->tab(index))
        tab->setChecked(true);
}

void RibbonTabBar::setTabEnabled(int index, bool enabled)
{
    Q_D(RibbonTabBar);
    if (RibbonTab *tab = d->tab(index))
        tab->setEnabled(enabled);
}

bool RibbonTabBar::isTemporary(int index) const
{
    Q_D(const RibbonTabBar);
    const RibbonTab *tab = d->tab(index);
    return tab != nullptr && tab->isTemporary();
}

void RibbonTabBar::paintEvent(QPaintEvent *event)
{
    Q_D(RibbonTabBar);
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    painter.setBrush(d->temporaryColor);
    const QList<QAbstractButton *> buttons = d->buttonGroup->buttons();
    for (const QAbstractButton *button : buttons) {
        const auto *tab = qobject_cast<const RibbonTab *>(button);
        if (tab && tab->isVisible() && tab->isTemporary())
            painter.drawRect(tab->geometry().marginsAdded(PlateOverhang));
    }
}

} // namespace VornFrame
