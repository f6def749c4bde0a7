// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockTitle.h"

#include <QPointer>

namespace VornFrame {

class DockView;

class DockViewPrivate
{
public:
    DockTitle *title = new DockTitle(nullptr);
    QPointer<QWidget> widget;
    DockView *q_ptr = nullptr;
};

} // namespace VornFrame
