// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonBar.h>

#include "RibbonBar_p.h"

#include <VornFrame/RibbonPage.h>

#include "core/ResourcePaths.h"
#include "core/StyleSheets.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <utility>

namespace VornFrame {

using namespace Qt::StringLiterals;

void RibbonBarPrivate::init()
{
    auto *topRow = new QHBoxLayout;
    topRow->addWidget(tabBar);
    topRow->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
    topRow->addWidget(corner);

    auto *mainLayout = new QVBoxLayout(q_ptr);
    mainLayout->setContentsMargins(0, 0, 0, 0);
    mainLayout->setSpacing(0);
    mainLayout->addLayout(topRow);
    mainLayout->addWidget(stack);
    q_ptr->setFixedHeight(mainLayout->sizeHint().height());
    // Otherwise a tall widget in the corner would push the page out of the bar.
    corner->setMaximumHeight(tabBar->height());

    q_ptr->setObjectName(u"RibbonBar"_s);
    q_ptr->setContextMenuPolicy(Qt::CustomContextMenu);
    StyleSheets::load(q_ptr, ResourcePaths::RibbonSheet);

    QObject::connect(tabBar, &RibbonTabBar::idClicked, stack, &QStackedWidget::setCurrentIndex);
    QObject::connect(tabBar, &RibbonTabBar::idClicked, q_ptr, &RibbonBar::signalCurrentPageChanged);
}

void RibbonBarPrivate::askForParentChanges() const
{
    // Only a widget with a native window is told of its new parent before it gets it.
    if (!q_ptr->parentWidget() && !q_ptr->testAttribute(Qt::WA_WState_Created))
        q_ptr->create();
}

void RibbonBarPrivate::liftSheet()
{
    if (q_ptr->testAttribute(Qt::WA_WState_Polished))
        return;
    liftedSheet = q_ptr->styleSheet();
    q_ptr->setStyleSheet({});
}

void RibbonBarPrivate::putSheetBack()
{
    const QString sheet = std::exchange(liftedSheet, {});
    if (!sheet.isEmpty() && q_ptr->styleSheet().isEmpty())
        q_ptr->setStyleSheet(sheet);
}

RibbonBar::RibbonBar(QWidget *parent) : RibbonBar(*new RibbonBarPrivate, parent)
{
    Q_D(RibbonBar);
    d->init();
}

RibbonBar::RibbonBar(RibbonBarPrivate &d, QWidget *parent) : QFrame(parent), d_ptr(&d)
{
    d.q_ptr = this;
}

RibbonBar::~RibbonBar() = default;

int RibbonBar::addPage(const QString &title, RibbonPage *page, bool temporary)
{
    Q_D(RibbonBar);
    // One page stands behind one tab: neither nothing nor a page with a tab already gets another
    // one.
    if (!page || contains(page))
        return indexOf(page);
    d->askForParentChanges();
    d->tabBar->addTab(title, temporary);
    return d->stack->addPage(title, page);
}

RibbonPage *RibbonBar::addPage(const QString &title, bool temporary)
{
    Q_D(RibbonBar);
    d->askForParentChanges();
    const int index = d->tabBar->addTab(title, temporary);
    // Only the tab: the page itself is hidden by the stack until it is the current one.
    if (temporary)
        d->tabBar->hideTab(index);
    return d->stack->addPage(title);
}

bool RibbonBar::contains(RibbonPage *page) const
{
    return indexOf(page) >= 0;
}

int RibbonBar::count() const
{
    Q_D(const RibbonBar);
    return d->stack->count();
}

RibbonPage *RibbonBar::currentPage() const
{
    Q_D(const RibbonBar);
    return qobject_cast<RibbonPage *>(d->stack->currentWidget());
}

int RibbonBar::indexOf(RibbonPage *page) const
{
    Q_D(const RibbonBar);
    return d->stack->indexOf(page);
}

RibbonPage *RibbonBar::page(int index) const
{
    Q_D(const RibbonBar);
    return d->stack->page(index);
}

void RibbonBar::setCurrentIndex(int index)
{
    Q_D(RibbonBar);
    if (index < 0 || index >= count())
        return;
    d->tabBar->setCurrent(index);
    d->stack->setCurrentPage(index);
}

void RibbonBar::setCurrentPage(RibbonPage *page)
{
    setCurrentIndex(indexOf(page));
}

void RibbonBar::hidePage(int index)
{
    Q_D(RibbonBar);
    d->tabBar->hideTab(index);
    d->stack->hidePage(index);
}

void RibbonBar::showPage(int index)
{
    Q_D(RibbonBar);
    d->tabBar->showTab(index);
    d->stack->showPage(index);
}

void RibbonBar::setPageHidden(int index, bool hidden)
{
    setPageVisible(index, !hidden);
}

void RibbonBar::setPageVisible(int index, bool visible)
{
    if (visible)
        showPage(index);
    else
        hidePage(index);
}

void RibbonBar::setPageEnabled(int index, bool enabled)
{
    Q_D(RibbonBar);
    d->tabBar->setTabEnabled(index, enabled);
}

void RibbonBar::hideTemporaryPages()
{
    Q_D(RibbonBar);
    for (int i = 0; i < d->tabBar->count(); ++i) {
        if (d->tabBar->isTemporary(i))
            hidePage(i);
    }
}

RibbonCorner *RibbonBar::corner() const
{
    Q_D(const RibbonBar);
    return d->corner;
}

bool RibbonBar::event(QEvent *event)
{
    Q_D(RibbonBar);
    if (event->type() == QEvent::ParentAboutToChange)
        d->liftSheet();
    else if (event->type() == QEvent::ParentChange)
        d->putSheetBack();
    return QFrame::event(event);
}

} // namespace VornFrame
