// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/VornFrameGlobal.h>

#include <QFrame>

#include <memory>

class QByteArray;
class QMainWindow;

namespace VornFrame {

class DockContainerPrivate;
class DockContentWidget;
class DockPanelWidget;

/// The central area of a main window: a work surface, with a side of tool views on its left, on its
/// right and below it.
///
/// A side that is minimized gives its room to the content and keeps its bar of buttons; restored,
/// it takes back what it had. So does one that the user drags to nothing. The work surface is
/// hidden until it gets its first tab. In right-to-left layouts the left side stands on the right.
class VORNFRAME_EXPORT DockContainer : public QFrame
{
    Q_OBJECT

public:
    /// A side, numbered as DockPanelWidget::DockPanelDirection. Any other value means Right.
    enum DockArea { Left = 0, Right = 1, Bottom = 2 };

    explicit DockContainer(QWidget *parent = nullptr);
    ~DockContainer() override;

    /// The work surface; the container owns it.
    DockContentWidget *contentWidget() const;

    /// The views of side \a area; the container owns it.
    DockPanelWidget *panelWidget(DockArea area) const;

    /// Moves the button bar of the bottom side into a status bar of its own, which becomes that of
    /// \a window and belongs to it. It stands below the bottom side and follows it. Null, or the
    /// window of the last call, is ignored.
    void setupMainWindow(QMainWindow *window);

    /// Puts the bar in the status bar below the bottom side again; without a main window it does
    /// nothing. Moves of the container's own parts are followed without this.
    void updateState();

    /// Whether the user may drag the sides and the work surface to nothing; they may at first.
    void setPanelCollapsible(bool collapsible);

    /// Shows or hides the views of all sides. Their bars stay as they are.
    void setAllDockViewVisible(bool visible);

    /// The widths of the sides and what each takes when it is restored, for restoreState(). The
    /// height of the bottom side is not part of it, only what it takes when restored.
    QByteArray saveState() const;

    /// Gives the sides the widths in \a state, which saveState() made. One without width becomes
    /// minimized; a minimized one does not become restored.
    ///
    /// Other bytes do no harm: what is not understood leaves the layout as it is. A state in which
    /// a remembered size contains the byte 0x7C, such as the width 124, is ignored, because that
    /// byte separates its two pieces.
    void restoreState(const QByteArray &state);

protected:
    /// For subclasses inside the library: takes \a d over and sets nothing up.
    DockContainer(DockContainerPrivate &d, QWidget *parent);

    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Q_DECLARE_PRIVATE(DockContainer)
    Q_DISABLE_COPY_MOVE(DockContainer)

    const std::unique_ptr<DockContainerPrivate> d_ptr;
};

} // namespace VornFrame
