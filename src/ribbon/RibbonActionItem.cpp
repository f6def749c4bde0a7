// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "RibbonActionItem.h"

#include "RibbonButton.h"

#include <QMenu>
#include <QWidgetAction>

namespace VornFrame::RibbonActionItem {

QToolButton *createButton(QAction *action, Qt::ToolButtonStyle style)
{
    auto *button = new RibbonButton(nullptr);
    button->setFocusPolicy(Qt::NoFocus);
    button->setToolButtonStyle(style);
    button->setAction(action);
    return button;
}

QWidget *createEmbedded(QWidget *container, QWidgetAction *action)
{
    QWidget *widget = action->requestWidget(container);
    // An action without a widget to give has one elsewhere, and stays with that one.
    if (!widget)
        return nullptr;
    action->setParent(container);
    widget->show();
    return widget;
}

QAction *addWidget(QWidget *container, QWidget *widget)
{
    if (!widget)
        return nullptr;
    auto *action = new QWidgetAction(container);
    action->setDefaultWidget(widget);
    container->addAction(action);
    return action;
}

QAction *addMenu(QWidget *container, QMenu *menu)
{
    if (!menu)
        return nullptr;
    menu->setWindowFlag(Qt::NoDropShadowWindowHint);
    container->addAction(menu->menuAction());
    return menu->menuAction();
}

} // namespace VornFrame::RibbonActionItem
