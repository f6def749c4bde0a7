// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/VornFrameGlobal.h>

#include <QObject>

#include <memory>

class QIcon;
class QMenu;
class QWidget;

namespace VornFrame {

class DockPanelWidgetPrivate;

/// One side of a dock container: slots for the tool views of the application, a bar with one button
/// for each slot, and the stack that shows the current slot.
///
/// Not a widget itself: it makes the bar, panel(), and the stack, stackedWidget(), which a
/// DockContainer places at the edge and beside the content. It owns both wherever they are.
///
/// A click on a button shows its slot; a click on the checked button minimizes the side: the
/// container then takes the stack's room and the bar stays. A slot holds one view, or two that
/// share it (tabifyView()). Slot indexes have base 0 and never change, because slots are only ever
/// added.
class VORNFRAME_EXPORT DockPanelWidget : public QObject
{
    Q_OBJECT

public:
    /// The side. Any other value means Right.
    enum DockPanelDirection { Left = 0, Right = 1, Bottom = 2 };

    explicit DockPanelWidget(DockPanelDirection direction, QWidget *parent = nullptr);
    ~DockPanelWidget() override;

    /// The bar of buttons, upright on the left and right side, level at the bottom.
    QWidget *panel() const;
    /// The stack with one page for each slot.
    QWidget *stackedWidget() const;

    /// Appends a slot with \a view under a title bar that shows \a text, and a button with \a icon
    /// and the tool tip \a text; returns the index of the slot. The slot owns \a view, whose
    /// minimum height becomes 0. The first slot is the current one and its button is checked.
    ///
    /// A view that was docked before leaves its old place, which stays empty. Null, or a widget
    /// that this side lies in, is ignored and gives -1.
    int addView(QWidget *view, const QIcon &icon, const QString &text);

    /// Puts \a view beside the view of slot \a index: below it on the left and right side, right of
    /// it at the bottom. The slot's button shows both icons. Returns the view's place in the slot
    /// (base 0), or -1, and nothing changes, if there is no such slot, it holds two views already,
    /// or addView() would not take \a view.
    int tabifyView(int index, QWidget *view, const QIcon &icon, const QString &text);

    /// Appends a line to the bar. It takes no index.
    void addSeparator();

    /// The number of slots.
    int count() const;

    /// The slot that the stack shows; -1 if there is none, and while the stack has no width.
    int currentIndex() const;
    /// Shows slot \a index and checks its button alone; out of range it does nothing. A minimized
    /// side stays minimized, though a button is checked.
    void setCurrentIndex(int index);

    /// Whether the side counts as minimized; false at first.
    bool isMinimized() const;
    /// Sets that flag, and checks or un-checks the button of the current slot to suit. Resizes
    /// nothing and emits nothing: this is for whoever gave the stack its size.
    void setMinimized(bool minimized);

    /// Whether the page of slot \a index can be seen now; false out of range.
    bool isViewVisible(int index) const;
    /// Shows or hides the button of slot \a index; out of range it does nothing. Hiding the slot
    /// that is shown makes the first other one current, also if that is hidden itself; the page of
    /// an only slot stays. Showing one while the side is minimized makes it current and restores the
    /// side, with signalMinimized().
    void setViewVisible(int index, bool visible);

    /// The menu in the title bar of \a view, to add entries to; null if \a view is not docked here.
    QMenu *menu(QWidget *view) const;

Q_SIGNALS:
    /// The side was minimized (true) or restored, by the user or by setViewVisible().
    void signalMinimized(bool minimized);
    /// The stack shows another slot; -1 if it has none left.
    void signalCurrentIndexChanged(int index);

protected:
    /// For subclasses inside the library: takes \a d over and sets nothing up.
    DockPanelWidget(DockPanelWidgetPrivate &d, QWidget *parent);

private:
    Q_DECLARE_PRIVATE(DockPanelWidget)
    Q_DISABLE_COPY_MOVE(DockPanelWidget)

    const std::unique_ptr<DockPanelWidgetPrivate> d_ptr;
};

} // namespace VornFrame
