// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QSet>
#include <QSize>
#include <QString>

class QWidget;

namespace VornFrame {

class RibbonPage;
class RibbonStackedWidget;

class RibbonStackedWidgetPrivate
{
public:
    /// The page that hidePage() and showPage() reach at \a index, null beyond the number of
    /// distinct titles.
    RibbonPage *reachablePage(int index) const;

    /// The largest of what \a hint gives for the current page and those seen before it.
    QSize largestOfSeenPages(QSize (QWidget::*hint)() const) const;

    void bringCurrentPageForward();

    QHash<QString, RibbonPage *> pagesByTitle; ///< two pages of one title share an entry
    QSet<const QWidget *> seenPages; ///< those that were the current one in a visible stack
    QSet<const QWidget *> waitingPages; ///< those shown without being the current one
    RibbonStackedWidget *q_ptr = nullptr;
};

} // namespace VornFrame
