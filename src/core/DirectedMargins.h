// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLayout>
#include <QMargins>
#include <QWidget>

namespace VornFrame {

/// Gives the layout of \a widget \a margins as they are meant in a left-to-right layout, mirrored
/// where \a widget is laid out from right to left. Qt mirrors the items of a layout, but not its
/// margins.
inline void setDirectedMargins(QWidget *widget, const QMargins &margins)
{
    const QMargins mirrored(margins.right(), margins.top(), margins.left(), margins.bottom());
    if (QLayout *layout = widget->layout())
        layout->setContentsMargins(widget->isRightToLeft() ? mirrored : margins);
}

} // namespace VornFrame
