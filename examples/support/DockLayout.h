// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockState.h"
#include "SideController.h"

#include <VornFrame/DockContainer.h>

#include <array>

/// All views around a work surface: switching them, minimizing the sides, and the layout that is
/// kept.
class DockLayout : public QObject
{
    Q_OBJECT

public:
    /// \a container has to live as long as this.
    explicit DockLayout(VornFrame::DockContainer *container, QObject *parent = nullptr);

    SideController *side(VornFrame::DockContainer::DockArea area) const;

    /// Of the left, the right and the bottom side, in this order.
    QList<QWidget *> views() const;

    bool isShown(const QWidget *view) const;
    void setShown(const QWidget *view, bool shown);
    void activate(QWidget *view) const;

    /// The layout as it is now. The views are kept by their object names.
    DockState state() const;

    /// Lays all out as \a state says, once the container has its size. What \a state says about
    /// views that are not there is ignored. The state that DockState has at first resets the layout.
    void apply(const DockState &state);

private:
    void setSizes(const DockState &state) const;
    void switchOff(const QStringList &names);

    VornFrame::DockContainer *m_container;
    std::array<SideController *, DockState::SideCount> m_sides{};
};
