// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/RibbonSubgroup.h>

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QList>
#include <QPointer>
#include <QToolButton>

namespace VornFrame {

class RibbonGroup;

class RibbonGroupPrivate
{
    Q_DISABLE_COPY_MOVE(RibbonGroupPrivate)

public:
    RibbonGroupPrivate() = default;
    virtual ~RibbonGroupPrivate() = default;

    void init(const QString &title);
    QFrame *createSeparator();

    /// The item that \a action becomes; null if it has none to give.
    QWidget *createItem(QAction *action);

    QToolButton::ToolButtonPopupMode popupMode =
        QToolButton::DelayedPopup; ///< of the buttons to come
    QPointer<QLabel> titleLabel = new QLabel;
    QPointer<QHBoxLayout> actionsLayout = new QHBoxLayout;
    QList<QPointer<RibbonSubgroup>>
        subgroups; ///< in the order added; null where the subgroup was deleted
    RibbonGroup *q_ptr = nullptr;
};

} // namespace VornFrame
