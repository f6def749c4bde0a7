// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "RibbonStackedWidget.h"

#include "RibbonStackedWidget_p.h"

#include <VornFrame/RibbonPage.h>

namespace VornFrame {

namespace {

constexpr int StackHeight = 95;
constexpr const char *WaitingFocusPolicy = "vornFrameFocusPolicy";

/// Moves a shown page out of sight, and its widgets out of the reach of Tab. The page keeps its
/// size, so that its layout stays as it will be seen.
void letWait(QWidget *page, const QRect &area)
{
    page->setGeometry(area.translated(0, -area.height()));
    page->lower();
    const QList<QWidget *> widgets = page->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (widget->focusPolicy() == Qt::NoFocus)
            continue;
        widget->setProperty(WaitingFocusPolicy, int(widget->focusPolicy()));
        widget->setFocusPolicy(Qt::NoFocus);
    }
}

/// Undoes letWait().
void endWait(QWidget *page, const QRect &area)
{
    page->setGeometry(area);
    const QList<QWidget *> widgets = page->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const QVariant policy = widget->property(WaitingFocusPolicy);
        if (!policy.isValid())
            continue;
        widget->setFocusPolicy(Qt::FocusPolicy(policy.toInt()));
        widget->setProperty(WaitingFocusPolicy, {});
    }
}

} // namespace

RibbonPage *RibbonStackedWidgetPrivate::reachablePage(int index) const
{
    return index < pagesByTitle.size() ? q_ptr->page(index) : nullptr;
}

QSize RibbonStackedWidgetPrivate::largestOfSeenPages(QSize (QWidget::*hint)() const) const
{
    QSize size(0, 0);
    for (int i = 0; i < q_ptr->count(); ++i) {
        const QWidget *page = q_ptr->widget(i);
        if (i == q_ptr->currentIndex() || seenPages.contains(page))
            size = size.expandedTo((page->*hint)());
    }
    return size;
}

void RibbonStackedWidgetPrivate::bringCurrentPageForward()
{
    QWidget *page = q_ptr->currentWidget();
    if (!page)
        return;
    if (waitingPages.remove(page))
        endWait(page, q_ptr->contentsRect());
    if (q_ptr->isVisible())
        seenPages.insert(page);
}

RibbonStackedWidget::RibbonStackedWidget(QWidget *parent)
    : QStackedWidget(parent), d_ptr(std::make_unique<RibbonStackedWidgetPrivate>())
{
    Q_D(RibbonStackedWidget);
    d->q_ptr = this;
    setFixedHeight(StackHeight);
    connect(this, &QStackedWidget::currentChanged, this, [d] { d->bringCurrentPageForward(); });
}

RibbonStackedWidget::~RibbonStackedWidget() = default;

int RibbonStackedWidget::addPage(const QString &title, RibbonPage *page)
{
    Q_D(RibbonStackedWidget);
    const int index = addWidget(page);
    d->pagesByTitle.insert(title, page);
    return index;
}

RibbonPage *RibbonStackedWidget::addPage(const QString &title)
{
    auto *page = new RibbonPage;
    addPage(title, page);
    setCurrentIndex(0);
    return page;
}

void RibbonStackedWidget::hidePage(int index)
{
    Q_D(RibbonStackedWidget);
    if (RibbonPage *page = d->reachablePage(index))
        page->hide();
}

void RibbonStackedWidget::showPage(int index)
{
    Q_D(RibbonStackedWidget);
    RibbonPage *page = d->reachablePage(index);
    if (!page)
        return;
    // The stack lays out its current page only, and a shown page would be seen through the gaps of
    // that one.
    if (page != currentWidget()) {
        letWait(page, contentsRect());
        d->waitingPages.insert(page);
    }
    page->show();
}

RibbonPage *RibbonStackedWidget::page(int index) const
{
    return qobject_cast<RibbonPage *>(widget(index));
}

QSize RibbonStackedWidget::sizeHint() const
{
    Q_D(const RibbonStackedWidget);
    return d->largestOfSeenPages(&QWidget::sizeHint);
}

QSize RibbonStackedWidget::minimumSizeHint() const
{
    Q_D(const RibbonStackedWidget);
    return d->largestOfSeenPages(&QWidget::minimumSizeHint);
}

void RibbonStackedWidget::showEvent(QShowEvent *event)
{
    Q_D(RibbonStackedWidget);
    QStackedWidget::showEvent(event);
    d->bringCurrentPageForward();
}

} // namespace VornFrame
