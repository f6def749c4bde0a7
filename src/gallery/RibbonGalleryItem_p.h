// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "LateToolButton.h"

namespace VornFrame {

class RibbonGalleryItem;

class RibbonGalleryItemPrivate
{
public:
    void init(QAction *action);
    void initCollectButton();
    void updateState();
    void placeCollectButton();
    bool hasFixedSize() const;

    LateToolButton *collectButton = new LateToolButton;
    bool collected = false;
    bool collectEnabled = false;
    RibbonGalleryItem *q_ptr = nullptr;
};

} // namespace VornFrame
