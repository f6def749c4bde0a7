// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStatusBar>

#include <memory>

namespace VornFrame {

class DockStatusBarPrivate;

/// The status bar of a main window whose bottom dock bar lies in it, below the bottom dock area.
/// Style sheets know it by its object name, so it has no meta-object of its own.
class DockStatusBar : public QStatusBar // clazy:exclude=missing-qobject-macro
{
public:
    explicit DockStatusBar(QWidget *parent);
    ~DockStatusBar() override;

    /// Takes \a panel in and owns it; null is ignored. Its size is kept at what its buttons need.
    void setPanel(QWidget *panel);

    /// Moves the bar to \a x, in px from the leading edge of the main window, or as far towards it
    /// as the bar needs to end inside of the status bar. It stays there when that is resized.
    void movePanel(int x);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Q_DECLARE_PRIVATE(DockStatusBar)
    Q_DISABLE_COPY_MOVE(DockStatusBar)

    const std::unique_ptr<DockStatusBarPrivate> d_ptr;
};

} // namespace VornFrame
