// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonGalleryGroup.h"

#include <QLabel>
#include <QPushButton>

namespace VornFrame {

class RibbonGalleryLayout;

class RibbonGalleryGroupPrivate
{
public:
    void init(const QIcon &icon, const QString &title);
    QFrame *createTitle();
    void initMoveButton(QPushButton *button, QLatin1StringView icon, const QString &text,
                        RibbonGalleryGroup::Position position) const;
    qsizetype indexOf(const QAction *action) const;

    QList<RibbonGalleryItem *> items; ///< in order
    QLabel *iconLabel = new QLabel;
    QLabel *titleLabel = new QLabel;
    QFrame *itemsFrame = new QFrame;
    RibbonGalleryLayout *layout = nullptr; ///< of the frame
    QPushButton *toTopButton = new QPushButton;
    QPushButton *toBottomButton = new QPushButton;
    RibbonGalleryGroup *q_ptr = nullptr;
};

} // namespace VornFrame
