// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockMetrics.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QList>
#include <QSize>

namespace VornFrame {

class DockButton;
class DockPanel;

class DockPanelPrivate
{
public:
    explicit DockPanelPrivate(Qt::Orientation barOrientation) : orientation(barOrientation) {}

    void initLayout();
    DockButton *button(int index) const;
    int buttonCount() const;
    void uncheckAllBut(int index);
    void slotClicked(int index);
    /// A horizontal bar is as wide as what it holds.
    void fitWidth();

    QButtonGroup *group = nullptr; ///< not exclusive; a button's id is its index
    QSize iconSize = DockMetrics::IconSize;
    int spacing = DockMetrics::IconSpacing; ///< between the icons of one button
    int buttonMargin = DockMetrics::ButtonMargin; ///< around the icons of a button
    const Qt::Orientation orientation;
    QList<int> viewCounts; ///< per button, how many views it stands for
    QBoxLayout *layout = nullptr;
    DockPanel *q_ptr = nullptr;
};

} // namespace VornFrame
