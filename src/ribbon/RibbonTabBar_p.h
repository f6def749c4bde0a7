// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QButtonGroup>
#include <QColor>
#include <QHash>
#include <QHBoxLayout>
#include <QString>

namespace VornFrame {

class RibbonTab;
class RibbonTabBar;

class RibbonTabBarPrivate
{
public:
    /// The tab with the given index, null out of range.
    RibbonTab *tab(int index) const;
    void setTabVisible(int index, bool visible);

    QColor temporaryColor{17, 113, 190}; ///< the plate behind temporary tabs
    QColor secondColor{22, 81,
                       170}; ///< kept beside the first for a second kind of plate; not painted
    QHash<QString, RibbonTab *> tabsByTitle;
    QButtonGroup *buttonGroup = new QButtonGroup; ///< exclusive; a tab's id is its index
    QHBoxLayout *layout = new QHBoxLayout;
    RibbonTabBar *q_ptr = nullptr;
};

} // namespace VornFrame
