// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QStringList>

#include <array>

class QSettings;

/// A layout of the views, at first the default one.
struct DockState
{
    /// What \a settings hold. What is missing in them, or makes no sense, is as at first.
    static DockState load(QSettings &settings);
    void save(QSettings &settings) const;

    static constexpr int SideCount = 3;

    struct Side
    {
        int extent = 0; ///< its width, or its height at the bottom, when not minimized, in px
        int currentSlot = 0;
        bool isMinimized = false;
    };

    QByteArray container; ///< as the container saves it
    std::array<Side, SideCount> sides{Side{270}, Side{220}, Side{180}}; ///< left, right, bottom
    QStringList hiddenViews; ///< the object names of the views that are switched off
};
