// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockTabBar.h"

#include <QList>
#include <QPointer>

namespace VornFrame {

class DockTabBarPrivate
{
public:
    /// What a tab's size depends on, apart from font and style.
    struct Content
    {
        QString text;
        qint64 icon = 0;
        QSize iconSize;
        Qt::TextElideMode elideMode = Qt::ElideNone;
        bool isCurrent = false;
        bool isFirst = false;
        bool isLast = false;

        bool operator==(const Content &other) const
        {
            return text == other.text && icon == other.icon && iconSize == other.iconSize
                   && elideMode == other.elideMode && isCurrent == other.isCurrent
                   && isFirst == other.isFirst && isLast == other.isLast;
        }
    };
    struct Size
    {
        Content content; ///< that it was measured with
        QSize hint;
    };
    struct Tab
    {
        Size preferred;
        Size minimum;
        QPointer<QWidget> parkedButton; ///< its close button while that is no tabButton()
    };

    Content contentOf(int index) const;
    template <typename Measure>
    QSize measured(int index, Size Tab::*size, Measure measure);
    void forgetSizes();
    QTabBar::ButtonPosition closeSide() const;
    bool isNearView(int index) const;
    void parkButton(int index);
    void startAnew();
    void reveal();
    void bringButtons();

    QList<Tab> tabs; ///< as the tabs of the bar
    bool wasShown = false; ///< until then sizes and places are only roughly right
    bool measuringMinimum = false;
    bool bringing = false;
    DockTabBar *q_ptr = nullptr;
};

} // namespace VornFrame
