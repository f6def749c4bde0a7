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

class RibbonSubgroupPrivate;

/// A column inside a ribbon group that stacks small buttons (icon beside text, 22 px high) or rows
/// of icon-only buttons (22 px by 22 px). Three of them fit the height of a group; the column
/// itself sets no limit.
///
/// Items are only ever added: the button of an action that is removed from the subgroup stays where
/// it is. Hiding an action hides its button.
class VORNFRAME_EXPORT RibbonSubgroup : public QWidget
{
    Q_OBJECT

public:
    /// An empty column; RibbonGroup::addSubgroup() makes one in its place.
    explicit RibbonSubgroup(QWidget *parent = nullptr);
    ~RibbonSubgroup() override;

    using QWidget::addAction;

    /// Appends a small button for \a action, or the widget of a QWidgetAction (shown, also if it
    /// was hidden). A separator action becomes a small button too. The caller keeps \a action,
    /// except that a QWidgetAction that has a widget to give becomes a child of the subgroup. A
    /// null \a action is ignored; an action that was added before gets one more button.
    void addAction(QAction *action);

    /// Appends one row of icon-only buttons, one for each of \a actions in their order; an empty
    /// list appends an empty row. The actions stay the caller's and do not enter actions(). Null
    /// entries are skipped.
    void addActions(const QList<QAction *> &actions);

    /// Appends a small button for \a menu and returns the menu's own action; null if \a menu is
    /// null. The caller keeps \a menu, whose window shadow is switched off.
    ///
    /// \a mode is also the popup mode of every small button that is added to this subgroup after
    /// this call, until the next addMenu(); before the first one it is QToolButton::DelayedPopup.
    QAction *addMenu(QMenu *menu, QToolButton::ToolButtonPopupMode mode);

    /// Appends \a widget as it is and returns the action that stands for it; null if \a widget is
    /// null. The subgroup owns the action, and the action owns \a widget.
    QAction *addWidget(QWidget *widget);

protected:
    /// For subclasses inside the library: takes \a d over and sets nothing up.
    RibbonSubgroup(RibbonSubgroupPrivate &d, QWidget *parent);

    bool event(QEvent *event) override;
    void actionEvent(QActionEvent *event) override;

private:
    Q_DECLARE_PRIVATE(RibbonSubgroup)
    Q_DISABLE_COPY_MOVE(RibbonSubgroup)

    const std::unique_ptr<RibbonSubgroupPrivate> d_ptr;
};

} // namespace VornFrame
