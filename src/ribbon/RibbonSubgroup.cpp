// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonSubgroup.h>

#include "RibbonSubgroup_p.h"

#include "core/LazyPolish.h"
#include "RibbonActionItem.h"

#include <QActionEvent>
#include <QMenu>
#include <QWidgetAction>

namespace VornFrame {

namespace {

constexpr int ColumnSpacing = 2;
constexpr int RowSpacing = 1;
constexpr QSize RowIconSize(16, 16);

} // namespace

void RibbonSubgroupPrivate::init()
{
    layout->setAlignment(Qt::AlignCenter);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(ColumnSpacing);
    q_ptr->setLayout(layout);
    q_ptr->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
}

QWidget *RibbonSubgroupPrivate::createItem(QAction *action)
{
    if (auto *widgetAction = qobject_cast<QWidgetAction *>(action))
        return RibbonActionItem::createEmbedded(q_ptr, widgetAction);
    // A column has no vertical lines: a separator deliberately becomes a small button like any
    // other action.
    QToolButton *button = RibbonActionItem::createButton(action, Qt::ToolButtonTextBesideIcon);
    button->setPopupMode(popupMode);
    return button;
}

RibbonSubgroup::RibbonSubgroup(QWidget *parent) : RibbonSubgroup(*new RibbonSubgroupPrivate, parent)
{
    Q_D(RibbonSubgroup);
    d->init();
}

RibbonSubgroup::RibbonSubgroup(RibbonSubgroupPrivate &d, QWidget *parent)
    : QWidget(parent), d_ptr(&d)
{
    d.q_ptr = this;
}

RibbonSubgroup::~RibbonSubgroup() = default;

void RibbonSubgroup::addAction(QAction *action)
{
    if (action)
        QWidget::addAction(action);
}

void RibbonSubgroup::addActions(const QList<QAction *> &actions)
{
    Q_D(RibbonSubgroup);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(RowSpacing);
    row->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    for (QAction *action : actions) {
        if (!action)
            continue;
        QToolButton *button = RibbonActionItem::createButton(action, Qt::ToolButtonIconOnly);
        button->setIconSize(RowIconSize);
        row->addWidget(button);
    }
    d->layout->addLayout(row);
}

QAction *RibbonSubgroup::addMenu(QMenu *menu, QToolButton::ToolButtonPopupMode mode)
{
    Q_D(RibbonSubgroup);
    // The mode stays for the buttons that follow, deliberately.
    if (menu)
        d->popupMode = mode;
    return RibbonActionItem::addMenu(this, menu);
}

QAction *RibbonSubgroup::addWidget(QWidget *widget)
{
    return RibbonActionItem::addWidget(this, widget);
}

bool RibbonSubgroup::event(QEvent *event)
{
    return isEarlyPolish(this, event) || QWidget::event(event);
}

void RibbonSubgroup::actionEvent(QActionEvent *event)
{
    Q_D(RibbonSubgroup);
    // Items are only ever added: a removed action deliberately leaves its item in place.
    if (event->type() != QEvent::ActionAdded)
        return;
    if (QWidget *item = d->createItem(event->action()))
        d->layout->addWidget(item);
}

} // namespace VornFrame
