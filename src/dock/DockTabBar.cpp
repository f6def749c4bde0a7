// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DockTabBar.h"

#include "DockTabBar_p.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionTab>
#include <QTimerEvent>

#include <algorithm>
#include <tuple>
#include <utility>

namespace VornFrame {

namespace {

/// Bars with so many tabs keep their close buttons where QTabBar puts them.
constexpr int FewTabs = 32;
/// How many buttons come back at a time when the application is idle.
constexpr int ButtonsAtATime = 8;
/// What QTabBar leaves between the text of a tab and a button, in px.
constexpr int ButtonSpacing = 4;

/// Whether the tabs stand one below the other.
bool isUpright(QTabBar::Shape shape)
{
    return shape == QTabBar::RoundedWest || shape == QTabBar::RoundedEast
           || shape == QTabBar::TriangularWest || shape == QTabBar::TriangularEast;
}

} // namespace

bool DockTabBarPrivate::Content::operator==(const Content &other) const
{
    const auto fields = [](const Content &content) {
        return std::tie(content.text, content.icon, content.iconSize, content.leftButton,
                        content.rightButton, content.parkedButton, content.shape, content.elideMode,
                        content.isCurrent, content.isFirst, content.isLast);
    };
    return fields(*this) == fields(other);
}

/// QTabBar takes a tab away and puts one in before it says so, and lays all out in between.
bool DockTabBarPrivate::isInStep() const
{
    return tabs.size() == q_ptr->count();
}

DockTabBarPrivate::Content DockTabBarPrivate::contentOf(int index) const
{
    Content content;
    content.text = q_ptr->tabText(index);
    if (const QIcon icon = q_ptr->tabIcon(index); !icon.isNull()) {
        content.icon = icon.cacheKey();
        content.iconSize = q_ptr->iconSize();
    }
    content.leftButton = buttonSize(index, QTabBar::LeftSide);
    content.rightButton = buttonSize(index, QTabBar::RightSide);
    if (const QWidget *button = tabs.at(index).parkedButton;
        button && q_ptr->tabsClosable() && !q_ptr->tabButton(index, closeSide()))
        content.parkedButton = button->size();
    content.shape = q_ptr->shape();
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
        if (content.parkedButton.isValid()) {
            if (isUpright(content.shape))
                hint.rheight() += content.parkedButton.height() + ButtonSpacing;
            else
                hint.rwidth() += content.parkedButton.width() + ButtonSpacing;
        }
        tabs[index].*size = {std::move(content), hint};
    }
    return (tabs.at(index).*size).hint;
}

void DockTabBarPrivate::forgetSizes()
{
    for (Tab &tab : tabs)
        tab.preferred = tab.minimum = {};
}

/// Until the bar is shown: all tabs as high as the first, and narrow enough to stand side by side,
/// because the scroll buttons would be polished as soon as they are needed.
QSize DockTabBarPrivate::roughSize()
{
    const auto measureFirst = [this] { return q_ptr->QTabBar::tabSizeHint(0); };
    const QSize first = tabs.isEmpty() ? measureFirst()
                                       : measured(0, &Tab::preferred, measureFirst);
    const int share = q_ptr->width() / qMax(1, q_ptr->count());
    return {qBound(1, share, qMax(1, first.width())), first.height()};
}

QTabBar::ButtonPosition DockTabBarPrivate::closeSide() const
{
    return QTabBar::ButtonPosition(
        q_ptr->style()->styleHint(QStyle::SH_TabBar_CloseButtonPosition, nullptr, q_ptr));
}

QSize DockTabBarPrivate::buttonSize(int index, QTabBar::ButtonPosition side) const
{
    const QWidget *button = q_ptr->tabButton(index, side);
    return button ? button->size() : QSize();
}

bool DockTabBarPrivate::isNearView(int index) const
{
    // Before the first layout a bar is as wide as all its tabs and far wider than its tab widget.
    const QWidget *parent = q_ptr->parentWidget();
    const QRect room = parent ? parent->rect().translated(-q_ptr->pos()) : q_ptr->rect();
    return (q_ptr->rect() & room).intersects(q_ptr->tabRect(index));
}

void DockTabBarPrivate::parkButton(int index)
{
    if (QWidget *button = q_ptr->tabButton(index, closeSide())) {
        tabs[index].parkedButton = button;
        q_ptr->setTabButton(index, closeSide(), nullptr);
    }
}

void DockTabBarPrivate::bringButton(int index)
{
    QWidget *button = std::exchange(tabs[index].parkedButton, nullptr);
    if (!q_ptr->tabsClosable() || q_ptr->tabButton(index, closeSide())) {
        button->deleteLater();
        return;
    }
    const QScopedValueRollback guard(bringing, true);
    q_ptr->setTabButton(index, closeSide(), button);
}

void DockTabBarPrivate::bringSeenButtons()
{
    if (!isInStep())
        return;
    // All first, because the row moves when a button comes.
    QList<int> seen;
    for (int i = 0; i < tabs.size(); ++i) {
        if (tabs.at(i).parkedButton && isNearView(i))
            seen.append(i);
    }
    for (const int index : std::as_const(seen))
        bringButton(index);
}

/// Whether any is left. QTabBar scrolls to the current tab whenever a button comes, so they all come
/// before a user can have scrolled far.
bool DockTabBarPrivate::bringNextButtons()
{
    if (!isInStep())
        return true;
    int brought = 0;
    for (int i = 0; i < tabs.size() && brought <= ButtonsAtATime; ++i) {
        if (tabs.at(i).parkedButton && brought++ < ButtonsAtATime)
            bringButton(i);
    }
    bringSeenButtons();
    return brought > ButtonsAtATime;
}

/// The first time that the bar is seen.
void DockTabBarPrivate::reveal()
{
    if (wasShown)
        return;
    wasShown = true;
    layOutAgain();
}

/// Tabs come and go out of step, and until then parked buttons have no room.
void DockTabBarPrivate::makeRoomForParked()
{
    const bool anyParked = std::any_of(tabs.cbegin(), tabs.cend(),
                                       [](const Tab &tab) { return tab.parkedButton != nullptr; });
    if (wasShown && anyParked)
        layOutAgain();
}

/// QTabBar offers no other way to have all tabs measured and laid out again.
void DockTabBarPrivate::layOutAgain()
{
    if (q_ptr->count() > 0)
        q_ptr->setTabText(0, q_ptr->tabText(0));
}

/// For tabs that come and go while others do: a slot of currentChanged() may add and remove some,
/// and the bar reports the inner changes first. The close buttons are all alike.
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

DockTabBar::DockTabBar(QWidget *parent)
    : QTabBar(parent), d_ptr(std::make_unique<DockTabBarPrivate>())
{
    Q_D(DockTabBar);
    d->q_ptr = this;
    connect(this, &QTabBar::tabMoved, this, [d](int from, int to) {
        if (d->isInStep())
            d->tabs.move(from, to);
    });
}

DockTabBar::~DockTabBar() = default;

QSize DockTabBar::tabSizeHint(int index) const
{
    DockTabBarPrivate *d = d_ptr.get();
    if (!d->wasShown)
        return d->roughSize();
    // While the minimum is measured, the bar asks for a tab with a shorter text.
    if (!d->isInStep() || d->measuringMinimum)
        return QTabBar::tabSizeHint(index);
    return d->measured(index, &DockTabBarPrivate::Tab::preferred,
                       [this, index] { return QTabBar::tabSizeHint(index); });
}

QSize DockTabBar::minimumTabSizeHint(int index) const
{
    DockTabBarPrivate *d = d_ptr.get();
    if (elideMode() == Qt::ElideNone || !d->wasShown)
        return tabSizeHint(index);
    const QScopedValueRollback guard(d->measuringMinimum, true);
    if (!d->isInStep())
        return QTabBar::minimumTabSizeHint(index);
    return d->measured(index, &DockTabBarPrivate::Tab::minimum,
                       [this, index] { return QTabBar::minimumTabSizeHint(index); });
}

void DockTabBar::initStyleOption(QStyleOptionTab *option, int tabIndex) const
{
    Q_D(const DockTabBar);
    if (d->wasShown && !d->bringing) {
        QTabBar::initStyleOption(option, tabIndex);
        return;
    }
    // Only places are asked for, of every button at every turn, and eliding the text takes long.
    option->initFrom(this);
    option->rect = tabRect(tabIndex);
    option->shape = shape();
    option->documentMode = documentMode();
    option->leftButtonSize = d->buttonSize(tabIndex, LeftSide);
    option->rightButtonSize = d->buttonSize(tabIndex, RightSide);
}

void DockTabBar::tabInserted(int index)
{
    Q_D(DockTabBar);
    QTabBar::tabInserted(index);
    if (d->tabs.size() + 1 == count())
        d->tabs.insert(index, {});
    else
        d->startAnew();
    if (!d->wasShown && count() > FewTabs && index < count())
        d->parkButton(index);
    d->makeRoomForParked();
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
    d->makeRoomForParked();
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
    d->bringSeenButtons();
    if (count() > FewTabs)
        d->bringTimer.start(0, this);
}

void DockTabBar::paintEvent(QPaintEvent *event)
{
    Q_D(DockTabBar);
    // A bar may be painted without being shown.
    if (!d->wasShown) {
        d->reveal();
        d->bringSeenButtons();
    }
    QTabBar::paintEvent(event);
}

void DockTabBar::timerEvent(QTimerEvent *event)
{
    Q_D(DockTabBar);
    if (event->timerId() != d->bringTimer.timerId())
        QTabBar::timerEvent(event);
    else if (!d->bringNextButtons())
        d->bringTimer.stop();
}

} // namespace VornFrame
