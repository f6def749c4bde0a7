// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QList>
#include <QPixmap>
#include <QStringList>

namespace VornFrame {

class DockButton;

class DockButtonPrivate
{
public:
    explicit DockButtonPrivate(Qt::Orientation barOrientation) : orientation(barOrientation) {}

    /// Makes the button's icon of \a icons, by the ratio of the primary screen.
    void composeIcon();
    QPixmap composed(qreal ratio) const;
    /// The text for the height \a y: the button is cut into equal bands, one for each text.
    QString toolTipAt(int y) const;

    QList<QIcon> icons;
    QStringList toolTips;
    const Qt::Orientation orientation;
    DockButton *q_ptr = nullptr;
};

} // namespace VornFrame
