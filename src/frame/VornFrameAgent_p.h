// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/RibbonBar.h>
#include <VornFrame/VornFrameAgent.h>

#include <QPointer>

class VornFrameAgentPrivate
{
    Q_DISABLE_COPY_MOVE(VornFrameAgentPrivate)

public:
    VornFrameAgentPrivate() = default;
    virtual ~VornFrameAgentPrivate() = default;

    void setupDialog(QDialog *dialog, QWidget *content) const;

    QPointer<VornFrame::RibbonBar> ribbonBar =
        new VornFrame::RibbonBar; ///< the window owns it once it is placed
    VornFrame::AddressBar *addressBar = nullptr;
    VornFrame::DockContainer *dockContainer = nullptr;
    bool setupOnce = false; ///< shared by all set-ups
    VornFrameAgent *q_ptr = nullptr;
};
