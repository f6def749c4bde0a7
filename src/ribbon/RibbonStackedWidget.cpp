// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "RibbonStackedWidget.h"

#include "RibbonStackedWidget_p.h"

#include <VornFrame/RibbonPage.h>

#include <QLayout>
#include <QPointer>

namespace VornFrame {

namespace {

constexpr int StackHeight = 95;

/// Keeps a page from laying itself out, and from polishing all its buttons for their sizes, when it
/// is shown in a stack that nobody sees: it may never be the current page of a visible one.
class LayoutDelay
{
    Q_DISABLE_COPY_MOVE(LayoutDelay)

public:
    explicit LayoutDelay(const QWidget *page)
        : m_layout(page && !page->parentWidget()->isVisible() ? page->layout() : nullptr),
          m_wasEnabled(m_layout != nullptr && m_layout->isEnabled())
    {
        if (m_wasEnabled)
            m_layout->setEnabled(false);
    }

    ~LayoutDelay()
    {
        if (m_wasEnabled && m_layout)
            m_layout->setEnabled(true);
    }

private:
    const QPointer<QLayout> m_layout;
    const bool m_wasEnabled;
};

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
            size = size.expandedTo((page->*hint)()).expandedTo(page->minimumSize());
    }
    return size.grownBy(q_ptr->contentsMargins());
}

void RibbonStackedWidgetPrivate::letWait(QWidget *page)
{
    // The page keeps its size, so that its layout stays as it will be seen.
    const QRect area = q_ptr->contentsRect();
    page->setGeometry(area.translated(0, -area.height()));
    page->lower();
    QList<FocusPolicy> &policies = waitingPages[page];
    const QList<QWidget *> widgets = page->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        // A widget with a proxy would hand the change on to it; Tab passes it anyway.
        if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy())
            continue;
        policies.append({widget, widget->focusPolicy()});
        widget->setFocusPolicy(Qt::NoFocus);
    }
}

void RibbonStackedWidgetPrivate::endWait(const QWidget *page)
{
    const QList<FocusPolicy> policies = waitingPages.take(page);
    for (const auto &[widget, policy] : policies) {
        if (widget && widget->focusPolicy() == Qt::NoFocus)
            widget->setFocusPolicy(policy);
    }
}

void RibbonStackedWidgetPrivate::bringCurrentPageForward()
{
    QWidget *page = q_ptr->currentWidget();
    if (!page)
        return;
    if (waitingPages.contains(page)) {
        endWait(page);
        page->setGeometry(q_ptr->contentsRect());
    }
    if (q_ptr->isVisible())
        seenPages.insert(page);
}

void RibbonStackedWidgetPrivate::forgetMissingPages()
{
    const auto isMissing = [this](const QWidget *page) {
        for (int i = 0; i < q_ptr->count(); ++i) {
            if (q_ptr->widget(i) == page)
                return false;
        }
        return true;
    };
    const QList<const QWidget *> waiting = waitingPages.keys();
    for (const QWidget *page : waiting) {
        if (isMissing(page))
            endWait(page);
    }
    const QSet<const QWidget *> seen = seenPages;
    for (const QWidget *page : seen) {
        if (isMissing(page))
            seenPages.remove(page);
    }
}

RibbonStackedWidget::RibbonStackedWidget(QWidget *parent)
    : QStackedWidget(parent), d_ptr(std::make_unique<RibbonStackedWidgetPrivate>())
{
    Q_D(RibbonStackedWidget);
    d->q_ptr = this;
    setFixedHeight(StackHeight);
    connect(this, &QStackedWidget::currentChanged, this, [d] { d->bringCurrentPageForward(); });
    connect(this, &QStackedWidget::widgetRemoved, this, [d] { d->forgetMissingPages(); });
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
    RibbonPage *page = d->reachablePage(index);
    if (!page)
        return;
    page->hide();
    d->endWait(page);
}

void RibbonStackedWidget::showPage(int index)
{
    Q_D(RibbonStackedWidget);
    RibbonPage *page = d->reachablePage(index);
    if (!page)
        return;
    // The stack lays out its current page only, and would let another one be seen through its gaps.
    if (page != currentWidget())
        d->letWait(page);
    const LayoutDelay delay(page);
    page->show();
}

void RibbonStackedWidget::setCurrentPage(int index)
{
    const LayoutDelay delay(widget(index));
    setCurrentIndex(index);
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
