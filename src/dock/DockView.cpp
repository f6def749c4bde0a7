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

DockView::~DockView()
{
    // It may ask for its menu while it goes, so it goes before what answers.
    delete widget();
}

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
    dropEarlyPolish(widget);
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

QSize DockView::sizeHint() const
{
    return testAttribute(Qt::WA_WState_Polished) ? QFrame::sizeHint() : QSize(0, 0);
}

QSize DockView::minimumSizeHint() const
{
    return testAttribute(Qt::WA_WState_Polished) ? QFrame::minimumSizeHint() : QSize(0, 0);
}

bool DockView::event(QEvent *event)
{
    if (isEarlyPolish(this, event))
        return true;
    const bool handled = QFrame::event(event);
    if (event->type() == QEvent::Polish)
        updateGeometry();
    return handled;
}

} // namespace VornFrame
