// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/VornFrameGlobal.h>

#include <QObject>

#include <memory>

class QDialog;
class QWidget;

class VornFrameAgentPrivate;

namespace VornFrame {
class AddressBar;
class DockContainer;
class RibbonBar;
} // namespace VornFrame

/// Dresses one window with the library: creates the ribbon bar, places it with the window's
/// content, and gives the application the library's light look.
///
/// An agent sets up one window in its life: the first call of setup() counts, later ones do
/// nothing. The widgets belong to the window that they were placed in and stay there when the agent
/// is destroyed. A ribbon bar that was never placed belongs to the caller.
class VORNFRAME_EXPORT VornFrameAgent : public QObject
{
    Q_OBJECT

public:
    /// Creates the ribbon bar and sets the application's colour scheme to light. Before Qt 6.8,
    /// where the scheme cannot be set, a dark application palette is replaced by the light one of
    /// the Fusion style.
    explicit VornFrameAgent(QObject *parent = nullptr);
    ~VornFrameAgent() override;

    /// Stacks the ribbon bar, a line of 1 px and \a content in \a dialog, which becomes their
    /// parent. A layout that \a dialog had is deleted; the widgets that it held stay in the dialog,
    /// unplaced. Then the style sheet of \a dialog, followed by the library's global rules, becomes
    /// the style sheet of the application, in place of the one that it had.
    ///
    /// A null \a content leaves its place empty. A null \a dialog does nothing, but counts as the
    /// one set-up.
    void setup(QDialog *dialog, QWidget *content);

    /// The ribbon bar, there from construction on; null only after its window was destroyed.
    VornFrame::RibbonBar *ribbonBar() const;

    /// The address bar of a main window that was set up with one, else null.
    VornFrame::AddressBar *addressBar() const;

    /// The dock container of a main window that was set up, else null.
    VornFrame::DockContainer *dockContainer() const;

protected:
    /// For subclasses inside the library: takes \a d over and sets the colour scheme.
    VornFrameAgent(VornFrameAgentPrivate &d, QObject *parent);

private:
    Q_DECLARE_PRIVATE(VornFrameAgent)
    Q_DISABLE_COPY_MOVE(VornFrameAgent)

    const std::shared_ptr<VornFrameAgentPrivate> d_ptr;
};
