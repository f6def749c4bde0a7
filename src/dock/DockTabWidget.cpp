// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DockTabWidget.h"

#include "DockTabBar.h"

#include <QStyleOptionTabWidgetFrame>

namespace VornFrame {

namespace {

/// The widest that a row of tabs asks to be; it can be scrolled.
constexpr int WidestBarHint = 200;

/// The hints of all pages seen, as one size; \a hintOf gives that of a page.
template <typename HintOf>
QSize largestHint(const QTabWidget *tabs, HintOf hintOf)
{
    QSize largest(0, 0);
    for (int i = 0; i < tabs->count(); ++i) {
        const QWidget *page = tabs->widget(i);
        if (page->testAttribute(Qt::WA_WState_Polished))
            largest = largest.expandedTo(hintOf(page));
    }
    return largest;
}

} // namespace

DockTabWidget::DockTabWidget(QWidget *parent) : QTabWidget(parent)
{
    setTabBar(new DockTabBar(this));
    // A page that is seen for the first time counts from now on.
    connect(this, &QTabWidget::currentChanged, this, &DockTabWidget::updateGeometry);
}

QSize DockTabWidget::sizeHint() const
{
    if (!testAttribute(Qt::WA_WState_Polished))
        return {0, 0};
    if (!isPlain())
        return QTabWidget::sizeHint();
    return aroundPages(largestHint(this, [](const QWidget *page) { return page->sizeHint(); }),
                       tabBar()->sizeHint().boundedTo({WidestBarHint, QWIDGETSIZE_MAX}));
}

QSize DockTabWidget::minimumSizeHint() const
{
    if (!testAttribute(Qt::WA_WState_Polished))
        return {0, 0};
    if (!isPlain())
        return QTabWidget::minimumSizeHint();
    const auto minimumOf = [](const QWidget *page) {
        return page->minimumSizeHint().expandedTo(page->minimumSize());
    };
    return aroundPages(largestHint(this, minimumOf), tabBar()->minimumSizeHint());
}

/// The bar stands above the pages and fills its row alone.
bool DockTabWidget::isPlain() const
{
    return tabPosition() == North && cornerWidget(Qt::TopLeftCorner) == nullptr
           && cornerWidget(Qt::TopRightCorner) == nullptr;
}

/// The bar stands above the \a pages.
QSize DockTabWidget::aroundPages(QSize pages, QSize bar) const
{
    QStyleOptionTabWidgetFrame option;
    initStyleOption(&option);
    const QSize contents(qMax(pages.width(), bar.width()), pages.height() + bar.height());
    return style()->sizeFromContents(QStyle::CT_TabWidget, &option, contents, this);
}

} // namespace VornFrame
