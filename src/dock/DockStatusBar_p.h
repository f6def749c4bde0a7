// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

namespace VornFrame {

class DockStatusBar;

class DockStatusBarPrivate
{
public:
    void fitPanel();
    void alignPanel() const;

    QPointer<QWidget> panel;
    QWidget *host = new QWidget; ///< fills the status bar; the panel is placed in it by hand
    int position = 0; ///< where the panel is wanted, in px from the window's leading edge
    DockStatusBar *q_ptr = nullptr;
};

} // namespace VornFrame
