// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonPage.h>

#include "RibbonPage_p.h"

#include "core/DirectedMargins.h"

#include <QEvent>

namespace VornFrame {

namespace {

constexpr QMargins PageMargins(3, 0, 0, 0);

} // namespace

void RibbonPagePrivate::init()
{
    layout->setSpacing(0);
    layout->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    q_ptr->setLayout(layout);
    setDirectedMargins(q_ptr, PageMargins);
    // Polishing goes down to all children, once for each widget. A page that has been polished
    // while it was empty ends that walk: its groups are polished when the page is first shown.
    q_ptr->ensurePolished();
}

RibbonPage::RibbonPage(QWidget *parent) : RibbonPage(*new RibbonPagePrivate, parent)
{
    Q_D(RibbonPage);
    d->init();
}

RibbonPage::RibbonPage(RibbonPagePrivate &d, QWidget *parent) : QWidget(parent), d_ptr(&d)
{
    d.q_ptr = this;
}

RibbonPage::~RibbonPage() = default;

RibbonGroup *RibbonPage::addGroup(const QString &title)
{
    Q_D(RibbonPage);
    auto *group = new RibbonGroup(title, this);
    d->layout->addWidget(group);
    d->groups.append(group);
    return group;
}

RibbonGroup *RibbonPage::group(int index) const
{
    Q_D(const RibbonPage);
    return d->groups.value(index);
}

int RibbonPage::indexOf(RibbonGroup *group) const
{
    Q_D(const RibbonPage);
    return group ? int(d->groups.indexOf(group)) : -1;
}

void RibbonPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        setDirectedMargins(this, PageMargins);
    QWidget::changeEvent(event);
}

} // namespace VornFrame
