// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

namespace VornFrame {

class RibbonTab;

class RibbonTabPrivate
{
public:
    bool temporary = false;
    int margin = 10; ///< px on each side of the text
    RibbonTab *q_ptr = nullptr;
};

} // namespace VornFrame
