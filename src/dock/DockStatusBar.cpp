// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DockStatusBar.h"

#include "DockStatusBar_p.h"

#include <QEvent>
#include <QLayout>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace VornFrame {

namespace {

constexpr QMargins PanelMargins(0, 1, 0, 0);

} // namespace

void DockStatusBarPrivate::fitPanel()
{
    if (const QSize hint = panel->sizeHint(); hint.isValid())
        panel->resize(hint);
    host->setFixedHeight(panel->height());
    alignPanel();
}

void DockStatusBarPrivate::alignPanel() const
{
    if (!panel)
        return;
    // All lengths count from the leading edge: the bar keeps to that side of the dock area.
    const Qt::LayoutDirection direction = q_ptr->layoutDirection();
    const QRect hostRect = QStyle::visualRect(direction, q_ptr->rect(), host->geometry());
    const int left = qMin(position - hostRect.left(), hostRect.width() - panel->width());
    const QRect wanted(QPoint(left, 0), panel->size());
    panel->move(QStyle::visualRect(direction, host->rect(), wanted).topLeft());
}

DockStatusBar::DockStatusBar(QWidget *parent)
    : QStatusBar(parent), d_ptr(std::make_unique<DockStatusBarPrivate>())
{
    Q_D(DockStatusBar);
    d->q_ptr = this;
    setObjectName(u"dockStatusBar"_s);
    addWidget(d->host, 1);
    d->host->installEventFilter(this);
}

DockStatusBar::~DockStatusBar() = default;

void DockStatusBar::setPanel(QWidget *panel)
{
    Q_D(DockStatusBar);
    if (!panel || panel == d->panel)
        return;
    d->panel = panel;
    const bool wasHidden = panel->isHidden();
    if (QLayout *layout = panel->layout())
        layout->setContentsMargins(PanelMargins);
    panel->setParent(d->host);
    panel->setHidden(wasHidden);
    panel->installEventFilter(this);
    d->fitPanel();
}

void DockStatusBar::movePanel(int x)
{
    Q_D(DockStatusBar);
    d->position = x;
    d->alignPanel();
}

bool DockStatusBar::eventFilter(QObject *watched, QEvent *event)
{
    Q_D(DockStatusBar);
    if (watched == d->panel) {
        // Its buttons come and go, and the style sheet gives it another size when it is polished.
        if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize)
            d->fitPanel();
    } else if (watched == d->host) {
        // It moves alone where the layout direction turns.
        if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
            d->alignPanel();
    }
    return QStatusBar::eventFilter(watched, event);
}

} // namespace VornFrame
