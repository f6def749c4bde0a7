// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

namespace VornFrame {

class DockTitle;

class DockTitlePrivate
{
public:
    void initCollapseButton();
    void initLabel();
    void alignLabel();
    QMenu *madeMenu();
    void initMenuButton();
    void initLayout();

    QPushButton *collapseButton = new QPushButton;
    QLabel *label = new QLabel;
    QPushButton *menuButton = new QPushButton;
    QMenu *menu = nullptr; ///< null until it is asked for; the title owns it
    QAction *minimizeAction = nullptr; ///< the first entry of the menu, which owns it
    DockTitle *q_ptr = nullptr;
};

} // namespace VornFrame
