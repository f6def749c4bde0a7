// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "RibbonGalleryGroup.h"

#include <QLabel>
#include <QPushButton>

namespace VornFrame {

class RibbonGalleryLayout;

/// The title of a group. Until it is polished it does not ask its parts how large they would be.
class RibbonGalleryTitle : public LateStyled<QFrame>
{
public:
    static constexpr int Height = 24; ///< in px, also below a style sheet

    using LateStyled::LateStyled;

    // A style sheet that is taken away takes the minimum height along: then these hold.
    QSize sizeHint() const override
    {
        return {isPolished() ? QFrame::sizeHint().width() : minimumWidth(), Height};
    }
    QSize minimumSizeHint() const override
    {
        return {isPolished() ? QFrame::minimumSizeHint().width() : minimumWidth(), Height};
    }
};

class RibbonGalleryGroupPrivate
{
public:
    void init(const QIcon &icon, const QString &title);
    void initTitle();
    void polishParts() const;
    void initMoveButton(QPushButton *button, QLatin1StringView icon, const QString &text,
                        RibbonGalleryGroup::Position position) const;
    qsizetype indexOf(const QAction *action) const;
    void focusBeside(RibbonGalleryItem *item) const;

    QList<RibbonGalleryItem *> items; ///< in order
    LateStyled<QLabel> *iconLabel = new LateStyled<QLabel>;
    LateStyled<QLabel> *titleLabel = new LateStyled<QLabel>;
    RibbonGalleryTitle *titleFrame = new RibbonGalleryTitle;
    LateStyled<QFrame> *itemsFrame = new LateStyled<QFrame>;
    RibbonGalleryLayout *layout = nullptr; ///< of the frame
    LateStyled<QPushButton> *toTopButton = new LateStyled<QPushButton>;
    LateStyled<QPushButton> *toBottomButton = new LateStyled<QPushButton>;
    RibbonGalleryGroup *q_ptr = nullptr;
};

} // namespace VornFrame
