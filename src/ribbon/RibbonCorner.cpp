// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonCorner.h>

#include "RibbonCorner_p.h"

#include "core/DirectedMargins.h"

#include <QEvent>

namespace VornFrame {

namespace {

constexpr QMargins CornerMargins(0, 0, 5, 0);
constexpr int CornerSpacing = 2;

} // namespace

void RibbonCornerPrivate::init()
{
    layout->setSpacing(CornerSpacing);
    q_ptr->setLayout(layout);
    setDirectedMargins(q_ptr, CornerMargins);
    // A line edit in the corner would claim a share of the empty room before it.
    q_ptr->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
}

RibbonCorner::RibbonCorner(QWidget *parent) : RibbonCorner(*new RibbonCornerPrivate, parent)
{
    Q_D(RibbonCorner);
    d->init();
}

RibbonCorner::RibbonCorner(RibbonCornerPrivate &d, QWidget *parent) : QFrame(parent), d_ptr(&d)
{
    d.q_ptr = this;
}

RibbonCorner::~RibbonCorner() = default;

void RibbonCorner::addWidget(QWidget *widget)
{
    Q_D(RibbonCorner);
    if (!widget)
        return;
    d->layout->addWidget(widget);
    d->widgets.append(widget);
}

void RibbonCorner::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        setDirectedMargins(this, CornerMargins);
    QFrame::changeEvent(event);
}

} // namespace VornFrame
