// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DockTabBar.h"

#include "DockTabBar_p.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionTab>

#include <utility>

namespace VornFrame {

namespace {

/// What QTabBar leaves between the text of a tab and a button, in px.
constexpr int ButtonSpacing = 4;
/// How far from the visible part of the bar a tab gets its button, in px: the next scroll step
/// finds it there.
constexpr int ViewMargin = 200;

} // namespace

DockTabBarPrivate::Content DockTabBarPrivate::contentOf(int index) const
{
    Content content;
    content.text = q_ptr->tabText(index);
    if (const QIcon icon = q_ptr->tabIcon(index); !icon.isNull()) {
        content.icon = icon.cacheKey();
        content.iconSize = q_ptr->iconSize();
    }
    content.elideMode = q_ptr->elideMode();
    content.isCurrent = index == q_ptr->currentIndex();
    content.isFirst = index == 0;
    content.isLast = index == q_ptr->count() - 1;
    return content;
}

/// Measures tab \a index with \a measure, unless \a size is still true; the room for a parked
/// button is added.
template <typename Measure>
QSize DockTabBarPrivate::measured(int index, Size Tab::*size, Measure measure)
{
    Content content = contentOf(index);
    if (!((tabs.at(index).*size).content == content)) {
        QSize hint = measure();
        if (const QWidget *button = tabs.at(index).parkedButton)
            hint.rwidth() += button->width() + ButtonSpacing;
        tabs[index].*size = {std::move(content), hint};
    }
    return (tabs.at(index).*size).hint;
}

void DockTabBarPrivate::forgetSizes()
{
    for (Tab &tab : tabs)
        tab.preferred = tab.minimum = {};
}

QTabBar::ButtonPosition DockTabBarPrivate::closeSide() const
{
    return QTabBar::ButtonPosition(
        q_ptr->style()->styleHint(QStyle::SH_TabBar_CloseButtonPosition, nullptr, q_ptr));
}

bool DockTabBarPrivate::isNearView(int index) const
{
    // Before the first layout a bar is as wide as all its tabs and far wider than its tab widget.
    const QWidget *parent = q_ptr->parentWidget();
    const QRect room = parent ? parent->rect().translated(-q_ptr->pos()) : q_ptr->rect();
    const QRect view = q_ptr->rect() & room;
    return view.adjusted(-ViewMargin, 0, ViewMargin, 0).intersects(q_ptr->tabRect(index));
}

void DockTabBarPrivate::parkButton(int index)
{
    QWidget *button = q_ptr->tabButton(index, closeSide());
    if (!button)
        return;
    tabs[index].parkedButton = button;
    q_ptr->setTabButton(index, closeSide(), nullptr);
}

/// For tabs that come and go while others do: a slot of currentChanged() may add and remove some, and
/// the bar reports the inner changes first. The close buttons are all alike.
void DockTabBarPrivate::startAnew()
{
    QList<QWidget *> parked;
    for (const Tab &tab : std::as_const(tabs)) {
        if (tab.parkedButton)
            parked.append(tab.parkedButton);
    }
    tabs = QList<Tab>(q_ptr->count());
    for (int i = 0; i < tabs.size() && !parked.isEmpty(); ++i) {
        if (!q_ptr->tabButton(i, closeSide()))
            tabs[i].parkedButton = parked.takeFirst();
    }
    for (QWidget *button : std::as_const(parked))
        button->deleteLater();
}

/// The first time that the bar is seen.
void DockTabBarPrivate::reveal()
{
    if (wasShown)
        return;
    wasShown = true;
    // There is no other way to have all tabs laid out again.
    if (q_ptr->count() > 0)
        q_ptr->setTabText(0, q_ptr->tabText(0));
}

void DockTabBarPrivate::bringButtons()
{
    if (bringing)
        return;
    const QScopedValueRollback guard(bringing, true);
    const QTabBar::ButtonPosition side = closeSide();
    for (int i = 0; i < tabs.size(); ++i) {
        QWidget *button = tabs.at(i).parkedButton;
        if (!button || !isNearView(i))
            continue;
        tabs[i].parkedButton = nullptr;
        if (q_ptr->tabsClosable() && !q_ptr->tabButton(i, side))
            q_ptr->setTabButton(i, side, button);
        else
            button->deleteLater();
    }
}

DockTabBar::DockTabBar(QWidget *parent)
    : QTabBar(parent), d_ptr(std::make_unique<DockTabBarPrivate>())
{
    Q_D(DockTabBar);
    d->q_ptr = this;
    connect(this, &QTabBar::tabMoved, this, [d](int from, int to) {
        if (d->tabs.size() == d->q_ptr->count())
            d->tabs.move(from, to);
    });
}

DockTabBar::~DockTabBar() = default;

QSize DockTabBar::tabSizeHint(int index) const
{
    DockTabBarPrivate *d = d_ptr.get();
    // Until the bar is seen, the first tab stands for all: layouts ask for the height. Without
    // widths the bar does not get its scroll buttons, which would be polished at once.
    if (!d->wasShown && index > 0 && !d->tabs.isEmpty())
        return {0, tabSizeHint(0).height()};
    // A tab that is just being inserted is not known yet, and while the minimum is measured, the
    // bar asks for a tab with a shorter text.
    if (index >= d->tabs.size() || d->measuringMinimum)
        return QTabBar::tabSizeHint(index);
    return d->measured(index, &DockTabBarPrivate::Tab::preferred,
                       [this, index] { return QTabBar::tabSizeHint(index); });
}

QSize DockTabBar::minimumTabSizeHint(int index) const
{
    if (elideMode() == Qt::ElideNone)
        return tabSizeHint(index);
    DockTabBarPrivate *d = d_ptr.get();
    const QScopedValueRollback guard(d->measuringMinimum, true);
    if (index >= d->tabs.size())
        return QTabBar::minimumTabSizeHint(index);
    return d->measured(index, &DockTabBarPrivate::Tab::minimum,
                       [this, index] { return QTabBar::minimumTabSizeHint(index); });
}

void DockTabBar::initStyleOption(QStyleOptionTab *option, int tabIndex) const
{
    // Until the bar is seen, no part of a tab has a place, and eliding its text takes long.
    if (d_ptr->wasShown)
        QTabBar::initStyleOption(option, tabIndex);
    else
        option->initFrom(this);
}

void DockTabBar::tabInserted(int index)
{
    Q_D(DockTabBar);
    QTabBar::tabInserted(index);
    if (d->tabs.size() + 1 == count())
        d->tabs.insert(index, {});
    else
        d->startAnew();
    if (!isVisible() || !d->isNearView(index))
        d->parkButton(index);
}

void DockTabBar::tabRemoved(int index)
{
    Q_D(DockTabBar);
    QTabBar::tabRemoved(index);
    if (d->tabs.size() != count() + 1) {
        d->startAnew();
        return;
    }
    if (QWidget *button = d->tabs.takeAt(index).parkedButton)
        button->deleteLater();
}

void DockTabBar::tabLayoutChange()
{
    Q_D(DockTabBar);
    QTabBar::tabLayoutChange();
    if (isVisible())
        d->bringButtons();
}

bool DockTabBar::event(QEvent *event)
{
    Q_D(DockTabBar);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::Polish:
    case QEvent::StyleChange:
        d->forgetSizes();
        break;
    default:
        break;
    }
    return QTabBar::event(event);
}

void DockTabBar::showEvent(QShowEvent *event)
{
    Q_D(DockTabBar);
    d->reveal();
    QTabBar::showEvent(event);
    d->bringButtons();
}

void DockTabBar::paintEvent(QPaintEvent *event)
{
    Q_D(DockTabBar);
    // A bar may be painted without being shown.
    d->reveal();
    d->bringButtons();
    QTabBar::paintEvent(event);
}

} // namespace VornFrame
