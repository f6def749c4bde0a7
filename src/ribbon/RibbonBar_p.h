// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonCorner.h>

#include "RibbonStackedWidget.h"
#include "RibbonTabBar.h"

#include <QString>

namespace VornFrame {

class RibbonBarPrivate
{
    Q_DISABLE_COPY_MOVE(RibbonBarPrivate)

public:
    RibbonBarPrivate() = default;
    virtual ~RibbonBarPrivate() = default;

    void init();

    /// Gives a bar without a parent a native window: Qt announces a change of parent beforehand
    /// only to widgets that have one.
    void askForParentChanges() const;

    /// A bar that is filled before it is placed in its window would be polished as a whole, hidden
    /// pages included, when it gets its parent: Qt does so for a widget with a style sheet of its
    /// own. So the sheet is lifted for that moment, unless the bar has been seen already.
    /// docs/performance.md has the figures.
    void liftSheet();
    void putSheetBack();

    RibbonTabBar *tabBar = new RibbonTabBar(nullptr);
    RibbonCorner *corner = new RibbonCorner(nullptr);
    RibbonStackedWidget *stack = new RibbonStackedWidget(nullptr);
    QString liftedSheet; ///< while the parent changes
    RibbonBar *q_ptr = nullptr;
};

} // namespace VornFrame
