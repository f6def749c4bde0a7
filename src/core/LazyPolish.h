// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace VornFrame {

/// Whether \a event asks \a widget to polish itself before anyone can see it.
///
/// Qt posts such a request to every new widget. Below a style sheet each one costs a search through
/// all rules, and a window full of hidden pages would pay for all of them before it opens. Widgets
/// that swallow the request are polished when they are first shown or first asked for their size.
inline bool isEarlyPolish(const QWidget *widget, const QEvent *event)
{
    return event->type() == QEvent::PolishRequest && !widget->isVisible();
}

/// Takes that request back for a widget of a class that does not swallow it.
inline void dropEarlyPolish(QWidget *widget)
{
    if (!widget->isVisible())
        QCoreApplication::removePostedEvents(widget, QEvent::PolishRequest);
}

} // namespace VornFrame
