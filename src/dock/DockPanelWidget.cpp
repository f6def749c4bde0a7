// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/DockPanelWidget.h>

#include "DockPanelWidget_p.h"

#include <QIcon>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace VornFrame {

namespace {

constexpr int MaximumViews = 2; ///< in one slot

QString nameOf(DockPanelWidget::DockPanelDirection direction)
{
    switch (direction) {
    case DockPanelWidget::Left:
        return u"left"_s;
    case DockPanelWidget::Bottom:
        return u"bottom"_s;
    case DockPanelWidget::Right:
        break;
    }
    return u"right"_s;
}

} // namespace

DockPanelWidgetPrivate::DockPanelWidgetPrivate(DockPanelWidget::DockPanelDirection direction)
    : panel(new DockPanel(direction == DockPanelWidget::Bottom ? Qt::Horizontal : Qt::Vertical,
                          nullptr)),
      stack(new QStackedWidget), pages(stack->layout())
{
    const QString name = nameOf(direction);
    panel->setProperty("direction", name);
    stack->setProperty("direction", name);
}

DockPanelWidgetPrivate::~DockPanelWidgetPrivate()
{
    deleteWidgets();
}

/// They may lie in two windows, or in none.
void DockPanelWidgetPrivate::deleteWidgets()
{
    const std::unique_ptr<QWidget> bar(panel);
    const std::unique_ptr<QWidget> pageStack(livingStack());
    panel.clear();
    stack.clear();
}

void DockPanelWidgetPrivate::init()
{
    QObject::connect(stack, &QStackedWidget::currentChanged, q_ptr,
                     &DockPanelWidget::signalCurrentIndexChanged);
    QObject::connect(panel, &DockPanel::signalCurrentChanged, q_ptr,
                     [this](int index) { showClicked(index); });
}

bool DockPanelWidgetPrivate::accepts(const QWidget *view) const
{
    return view != nullptr && view != stack && !view->isAncestorOf(stack);
}

QStackedWidget *DockPanelWidgetPrivate::livingStack() const
{
    return pages ? stack.data() : nullptr;
}

QSplitter *DockPanelWidgetPrivate::page(int index) const
{
    const QStackedWidget *living = livingStack();
    return living ? qobject_cast<QSplitter *>(living->widget(index)) : nullptr;
}

DockView *DockPanelWidgetPrivate::makeView(QWidget *view, const QString &text)
{
    auto *dockView = new DockView(nullptr);
    dockView->setTitle(text);
    dockView->setWidget(view);
    views.append(dockView);
    QObject::connect(dockView, &DockView::signalMinimize, q_ptr, [this] { minimizeToBar(); });
    return dockView;
}

/// No title shows its collapse button, so nobody can ask for this today; it is there for a title
/// that does.
void DockPanelWidgetPrivate::wireCollapsing(QSplitter *page, DockView *added)
{
    const auto wire = [this](DockView *view) {
        QObject::connect(view, &DockView::signalCollapsed, q_ptr,
                         [view](bool collapsed) { collapse(view, collapsed); });
    };
    wire(added);
    if (page->orientation() == Qt::Horizontal)
        return;
    added->setCollapseButtonVisible(false);
    auto *first = qobject_cast<DockView *>(page->widget(0));
    if (page->indexOf(added) != 1 || !first)
        return;
    first->setCollapseButtonVisible(false);
    wire(first);
}

void DockPanelWidgetPrivate::showClicked(int index)
{
    if (!livingStack())
        return;
    if (index >= 0)
        stack->setCurrentIndex(index);
    const bool isMinimizing = index < 0;
    if (minimized == isMinimizing)
        return;
    minimized = isMinimizing;
    Q_EMIT q_ptr->signalMinimized(isMinimizing);
}

void DockPanelWidgetPrivate::minimizeToBar()
{
    if (minimized || !panel)
        return;
    Q_EMIT q_ptr->signalMinimized(true);
    minimized = true;
    if (panel)
        panel->setButtonChecked(panel->checkedId(), false);
}

void DockPanelWidgetPrivate::collapse(DockView *view, bool collapsed)
{
    auto *page = qobject_cast<QSplitter *>(view->parentWidget());
    if (!collapsed || !page || page->count() < 2)
        return;
    const int index = page->indexOf(view);
    const int neighbour = index > 0 ? index - 1 : index + 1;
    QList<int> sizes = page->sizes();
    sizes[neighbour] += sizes.at(index) - view->titleHeight();
    sizes[index] = view->titleHeight();
    page->setSizes(sizes);
}

DockPanelWidget::DockPanelWidget(DockPanelDirection direction, QWidget *parent)
    : DockPanelWidget(*new DockPanelWidgetPrivate(direction), parent)
{
    Q_D(DockPanelWidget);
    d->init();
}

DockPanelWidget::DockPanelWidget(DockPanelWidgetPrivate &d, QWidget *parent)
    : QObject(parent), d_ptr(&d)
{
    d.q_ptr = this;
}

DockPanelWidget::~DockPanelWidget()
{
    Q_D(DockPanelWidget);
    // What happens while the pages go is nobody's business any more.
    if (QStackedWidget *stack = d->livingStack())
        stack->disconnect(this);
    // Before the private object goes, because the views may still ask.
    d->deleteWidgets();
}

QWidget *DockPanelWidget::panel() const
{
    Q_D(const DockPanelWidget);
    return d->panel;
}

QWidget *DockPanelWidget::stackedWidget() const
{
    Q_D(const DockPanelWidget);
    return d->livingStack();
}

int DockPanelWidget::addView(QWidget *view, const QIcon &icon, const QString &text)
{
    Q_D(DockPanelWidget);
    if (!d->isAlive() || !d->accepts(view))
        return -1;
    d->panel->addButton(text, icon);
    DockView *dockView = d->makeView(view, text);
    // A child of the stack from the start, so that the view gets its style once; polished while it
    // is empty, so that the view is polished when it is first shown and not with the window.
    auto *page = new QSplitter(d->panel->orientation(), d->stack);
    page->ensurePolished();
    page->setHandleWidth(0);
    page->addWidget(dockView);
    page->setCollapsible(0, false);
    // The first button of a bar is checked at once, which would contradict a minimized side.
    if (d->minimized)
        d->panel->setButtonChecked(d->panel->checkedId(), false);
    return d->stack->addWidget(page);
}

int DockPanelWidget::tabifyView(int index, QWidget *view, const QIcon &icon, const QString &text)
{
    Q_D(DockPanelWidget);
    QSplitter *page = d->page(index);
    if (!d->isAlive() || !page || page->count() >= MaximumViews || !d->accepts(view))
        return -1;
    d->panel->tabifyButton(index, text, icon);
    DockView *dockView = d->makeView(view, text);
    if (d->panel->orientation() == Qt::Vertical)
        dockView->setProperty("tabified", true);
    page->addWidget(dockView);
    page->setCollapsible(page->indexOf(dockView), false);
    d->wireCollapsing(page, dockView);
    return page->indexOf(dockView);
}

void DockPanelWidget::addSeparator()
{
    Q_D(DockPanelWidget);
    if (d->panel)
        d->panel->addSeparator();
}

int DockPanelWidget::count() const
{
    Q_D(const DockPanelWidget);
    const QStackedWidget *stack = d->livingStack();
    return stack ? stack->count() : 0;
}

int DockPanelWidget::currentIndex() const
{
    Q_D(const DockPanelWidget);
    const QStackedWidget *stack = d->livingStack();
    return stack && stack->width() >= 1 ? stack->currentIndex() : -1;
}

void DockPanelWidget::setCurrentIndex(int index)
{
    Q_D(DockPanelWidget);
    if (!d->isAlive() || index < 0 || index >= count())
        return;
    d->panel->setCurrentIndex(index);
    d->stack->setCurrentIndex(index);
}

bool DockPanelWidget::isMinimized() const
{
    Q_D(const DockPanelWidget);
    return d->minimized;
}

void DockPanelWidget::setMinimized(bool minimized)
{
    Q_D(DockPanelWidget);
    d->minimized = minimized;
    if (d->isAlive())
        d->panel->setButtonChecked(d->stack->currentIndex(), !minimized);
}

bool DockPanelWidget::isViewVisible(int index) const
{
    Q_D(const DockPanelWidget);
    const QWidget *page = d->page(index);
    return page != nullptr && page->isVisible();
}

void DockPanelWidget::setViewVisible(int index, bool visible)
{
    Q_D(DockPanelWidget);
    const QWidget *page = d->page(index);
    if (!d->isAlive() || !page)
        return;
    if (visible) {
        if (d->minimized) {
            setCurrentIndex(index);
            Q_EMIT signalMinimized(false);
            d->minimized = false;
        }
    } else if (d->stack->width() > 0 && index == d->stack->currentIndex() && !d->minimized
               && page->isVisible()) {
        // Deliberately the first other slot, whether its button is shown or not.
        setCurrentIndex(index == 0 ? 1 : 0);
    }
    if (d->panel)
        d->panel->setButtonVisible(index, visible);
}

QMenu *DockPanelWidget::menu(QWidget *view) const
{
    Q_D(const DockPanelWidget);
    const auto found = std::find_if(d->views.cbegin(), d->views.cend(),
                                    [view](const QPointer<DockView> &candidate) {
                                        return candidate != nullptr && candidate->widget() == view;
                                    });
    return view != nullptr && found != d->views.cend() ? (*found)->menu() : nullptr;
}

} // namespace VornFrame
