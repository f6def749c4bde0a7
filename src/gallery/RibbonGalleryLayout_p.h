// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStyle>

#include <limits>

class QLayoutItem;
class QRect;

namespace VornFrame {

class RibbonGalleryLayout;

class RibbonGalleryLayoutPrivate
{
public:
    static constexpr int NotAsked = std::numeric_limits<int>::min(); ///< no width

    int doLayout(const QRect &rect, bool testOnly) const;
    int smartSpacing(QStyle::PixelMetric metric) const;
    int spacingBeside(const QLayoutItem *item, Qt::Orientation orientation) const;

    QList<QLayoutItem *> items; ///< owned
    int hSpace = 0;
    int vSpace = 0;
    mutable int askedWidth = NotAsked; ///< that askedHeight is for
    mutable int askedHeight = 0;
    RibbonGalleryLayout *q_ptr = nullptr;
};

} // namespace VornFrame
