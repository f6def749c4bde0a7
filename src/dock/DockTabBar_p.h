// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockTabBar.h"

#include <QBasicTimer>
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
        QSize leftButton;
        QSize rightButton;
        QSize parkedButton; ///< what needs room though it is no button of the tab yet
        QTabBar::Shape shape = QTabBar::RoundedNorth;
        Qt::TextElideMode elideMode = Qt::ElideNone;
        bool isCurrent = false;
        bool isFirst = false;
        bool isLast = false;

        bool operator==(const Content &other) const;
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

    bool isInStep() const;
    Content contentOf(int index) const;
    template <typename Measure>
    QSize measured(int index, Size Tab::*size, Measure measure);
    void forgetSizes();
    QSize roughSize();
    QTabBar::ButtonPosition closeSide() const;
    QSize buttonSize(int index, QTabBar::ButtonPosition side) const;
    bool isNearView(int index) const;
    void parkButton(int index);
    void bringButton(int index);
    void bringSeenButtons();
    bool bringNextButtons();
    void reveal();
    void makeRoomForParked();
    void layOutAgain();
    void startAnew();

    QList<Tab> tabs; ///< as the tabs of the bar
    bool wasShown = false; ///< until then sizes and places are only roughly right
    bool measuringMinimum = false;
    bool bringing = false;
    QBasicTimer bringTimer; ///< runs while buttons are parked after the bar was shown
    DockTabBar *q_ptr = nullptr;
};

} // namespace VornFrame
