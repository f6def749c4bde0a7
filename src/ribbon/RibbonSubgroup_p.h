// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QToolButton>
#include <QVBoxLayout>

namespace VornFrame {

class RibbonSubgroup;

class RibbonSubgroupPrivate
{
    Q_DISABLE_COPY_MOVE(RibbonSubgroupPrivate)

public:
    RibbonSubgroupPrivate() = default;
    virtual ~RibbonSubgroupPrivate() = default;

    void init();

    /// The item that \a action becomes; null if it has none to give.
    QWidget *createItem(QAction *action);

    QToolButton::ToolButtonPopupMode popupMode =
        QToolButton::DelayedPopup; ///< of the buttons to come
    QVBoxLayout *layout = new QVBoxLayout;
    RibbonSubgroup *q_ptr = nullptr;
};

} // namespace VornFrame
