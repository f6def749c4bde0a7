// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QToolButton>

class QAction;
class QMenu;
class QWidgetAction;

/// What a group and a subgroup do alike with the actions that they are given.
namespace VornFrame::RibbonActionItem {

/// A button of the given form for \a action. It gets its parent from the layout that it is added
/// to: made inside a styled window, it would have to look up its style rules at once.
QToolButton *createButton(QAction *action, Qt::ToolButtonStyle style);

/// Takes \a action over into \a container and returns its widget there, shown; null if the action
/// has none to give (its default widget is in use elsewhere).
QWidget *createEmbedded(QWidget *container, QWidgetAction *action);

/// Adds \a widget to \a container through an action that \a container owns; null if \a widget is
/// null.
QAction *addWidget(QWidget *container, QWidget *widget);

/// Adds the action of \a menu, whose window shadow is switched off, to \a container; null if \a
/// menu is null.
QAction *addMenu(QWidget *container, QMenu *menu);

} // namespace VornFrame::RibbonActionItem
