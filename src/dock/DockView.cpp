// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DockView.h"

#include "DockView_p.h"

#include "core/LazyPolish.h"

#include <QVBoxLayout>

namespace VornFrame {

DockView::DockView(QWidget *parent) : QFrame(parent), d_ptr(std::make_unique<DockViewPrivate>())
{
    Q_D(DockView);
    d->q_ptr = this;
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(d->title);
    connect(d->title, &DockTitle::signalCollapsed, this, &DockView::signalCollapsed);
    connect(d->title, &DockTitle::signalMinimize, this, &DockView::signalMinimize);
}

DockView::~DockView() = default;

void DockView::setTitle(const QString &title)
{
    Q_D(DockView);
    d->title->setText(title);
}

void DockView::setWidget(QWidget *widget)
{
    Q_D(DockView);
    if (widget == this->widget())
        return;
    const std::unique_ptr<QWidget> old(this->widget());
    d->widget = widget;
    if (!widget)
        return;
    widget->setMinimumHeight(0);
    layout()->addWidget(widget);
}

QWidget *DockView::widget() const
{
    Q_D(const DockView);
    return d->widget && d->widget->parent() == this ? d->widget.data() : nullptr;
}

QMenu *DockView::menu() const
{
    Q_D(const DockView);
    return d->title->menu();
}

void DockView::setCollapseButtonVisible(bool visible)
{
    Q_D(DockView);
    d->title->setCollapseButtonVisible(visible);
}

int DockView::titleHeight() const
{
    Q_D(const DockView);
    return d->title->height();
}

bool DockView::event(QEvent *event)
{
    return isEarlyPolish(this, event) || QFrame::event(event);
}

} // namespace VornFrame
