// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/VornFrameGlobal.h>

#include <QList>
#include <QObject>

#include <memory>

class QDialog;
class QMainWindow;
class QWidget;

class VornFrameAgentPrivate;

namespace VornFrame {
class AddressBar;
class DockContainer;
class RibbonBar;
class RibbonPage;
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

    /// Gives \a window a central widget in which the ribbon bar, where asked for an address bar, and
    /// a dock container are stacked; all of them belong to \a window from then on. A central widget
    /// that it had is deleted. Then the style sheet of \a window, followed by the library's global
    /// rules, becomes the style sheet of the application, in place of the one that it had.
    ///
    /// With \a dockPanels the container sets the window up: the buttons of its bottom side go into a
    /// status bar. Without, the three bars of buttons are hidden, and views that are added to a side
    /// cannot be opened.
    ///
    /// From now on each change of the current section hides the temporary pages of the ribbon and
    /// shows the pages that were bound to the section, see bindRibbonPagesAndDockPartition().
    ///
    /// A null \a window does nothing, but counts as the one set-up.
    void setup(QMainWindow *window, bool addressBar, bool dockPanels);

    /// Binds \a pages, which must be pages of the agent's ribbon bar and are normally temporary ones,
    /// to \a section of the dock container's work surface, in place of those that were bound to it.
    /// When the section becomes current they are shown, and the first of them becomes the current
    /// page; no signal follows. In a section without bound pages the first page of the bar becomes
    /// current.
    ///
    /// Null entries are skipped; a null first entry leaves the current page as it is. Pages that are
    /// not temporary stay visible in all sections. Section -1 stands for none: the last tab of all
    /// was removed. The binding takes effect with the next change of section.
    ///
    /// False when \a pages is empty, and before the set-up of a main window.
    bool bindRibbonPagesAndDockPartition(const QList<VornFrame::RibbonPage *> &pages, int section);

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
