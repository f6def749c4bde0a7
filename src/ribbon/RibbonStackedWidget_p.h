// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QList>
#include <QPointer>
#include <QSet>
#include <QSize>
#include <QString>
#include <QWidget>

namespace VornFrame {

class RibbonPage;
class RibbonStackedWidget;

class RibbonStackedWidgetPrivate
{
public:
    struct FocusPolicy
    {
        QPointer<QWidget> widget;
        Qt::FocusPolicy policy;
    };

    /// The page that hidePage() and showPage() reach at \a index, null beyond the number of
    /// distinct titles.
    RibbonPage *reachablePage(int index) const;

    /// The largest of what \a hint gives for the current page and those seen before it.
    QSize largestOfSeenPages(QSize (QWidget::*hint)() const) const;

    /// Moves a shown page out of sight, and its widgets out of the reach of Tab, until it is the
    /// current one or is hidden.
    void letWait(QWidget *page);
    void endWait(const QWidget *page);

    void bringCurrentPageForward();
    void forgetMissingPages();

    QHash<QString, RibbonPage *> pagesByTitle; ///< two pages of one title share an entry
    QSet<const QWidget *> seenPages; ///< those that were the current one in a visible stack
    QHash<const QWidget *, QList<FocusPolicy>> waitingPages; ///< what their widgets had before
    RibbonStackedWidget *q_ptr = nullptr;
};

} // namespace VornFrame
