// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/VornFrameGlobal.h>

#include <QToolButton>
#include <QWidget>

#include <memory>

class QAction;
class QMenu;

namespace VornFrame {

class RibbonGroupPrivate;
class RibbonSubgroup;

/// A titled block of commands on a ribbon page, 95 px high: one row of large buttons, embedded
/// widgets, separators and subgroups, with the title under the row and a thin line at the trailing
/// end.
///
/// What an action becomes is decided by the container that it is added to: here a large button
/// (icon above text). The commands reach the application through the actions' own signals. Items
/// are only ever added: the button of an action that is removed from the group stays where it is.
/// Hiding an action hides its button, but not an embedded widget or a separator.
class VORNFRAME_EXPORT RibbonGroup : public QWidget
{
    Q_OBJECT

public:
    /// An empty group; RibbonPage::addGroup() makes one in its place. \a title is shown as it is,
    /// never as markup.
    explicit RibbonGroup(const QString &title, QWidget *parent = nullptr);
    ~RibbonGroup() override;

    using QWidget::addAction;

    /// Appends a large button for \a action, the widget of a QWidgetAction (shown, also if it was
    /// hidden), or a vertical line for a separator action. The caller keeps \a action, except that
    /// a QWidgetAction that has a widget to give becomes a child of the group. A null \a action is
    /// ignored; an action that was added before gets one more button or line.
    void addAction(QAction *action);

    /// Appends a large button for \a menu and returns the menu's own action; null if \a menu is
    /// null. The caller keeps \a menu, whose window shadow is switched off.
    ///
    /// \a mode is also the popup mode of every button that is added to this group after this call,
    /// until the next addMenu(); before the first one it is QToolButton::DelayedPopup.
    QAction *addMenu(QMenu *menu, QToolButton::ToolButtonPopupMode mode);

    /// Appends a vertical line, 1 px by 80 px, and returns its action, which the group owns.
    QAction *addSeparator();

    /// Appends \a widget as it is and returns the action that stands for it; null if \a widget is
    /// null. The group owns the action, and the action owns \a widget.
    QAction *addWidget(QWidget *widget);

    /// Appends an empty column for small buttons and returns it. The group owns it.
    RibbonSubgroup *addSubgroup();

    /// The subgroup at \a index (base 0, in the order added); null for any other index and for a
    /// subgroup that was deleted since. Deleting a subgroup does not move the indexes of the
    /// others.
    RibbonSubgroup *subgroup(int index) const;

    /// The index of \a subgroup, -1 if it is not a subgroup of this group.
    int indexOfSubgroup(RibbonSubgroup *subgroup) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    /// For subclasses inside the library: takes \a d over and sets nothing up.
    RibbonGroup(RibbonGroupPrivate &d, QWidget *parent);

    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void actionEvent(QActionEvent *event) override;

private:
    Q_DECLARE_PRIVATE(RibbonGroup)
    Q_DISABLE_COPY_MOVE(RibbonGroup)

    const std::unique_ptr<RibbonGroupPrivate> d_ptr;
};

} // namespace VornFrame
