// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "LateStyled.h"

#include <QToolButton>

namespace VornFrame {

class RibbonGalleryItem;

class RibbonGalleryItemPrivate
{
public:
    explicit RibbonGalleryItemPrivate(RibbonGalleryItem *q);

    void init(QAction *action);
    void initCollectButton();
    void updateState();
    void showCollectButton();
    void placeCollectButton();
    bool hasFixedSize() const;

    LateStyled<QToolButton> *const collectButton;
    bool collected = false;
    bool collectEnabled = false;
    bool showsFocus = false; ///< the keyboard brought it
    RibbonGalleryItem *const q_ptr;
};

} // namespace VornFrame
