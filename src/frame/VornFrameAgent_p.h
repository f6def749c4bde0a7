// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/AddressBar.h>
#include <VornFrame/DockContainer.h>
#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonPage.h>
#include <VornFrame/VornFrameAgent.h>

#include <QHash>
#include <QList>
#include <QPointer>

class VornFrameAgentPrivate
{
    Q_DISABLE_COPY_MOVE(VornFrameAgentPrivate)

public:
    VornFrameAgentPrivate() = default;
    virtual ~VornFrameAgentPrivate() = default;

    /// The pages that belong to a section. A page may be deleted by the host.
    using Pages = QList<QPointer<VornFrame::RibbonPage>>;

    bool beginSetup();
    void setupDialog(QDialog *dialog, QWidget *content) const;
    void setupMainWindow(QMainWindow *window, bool withAddressBar, bool withDockPanels);
    void followSections(const QPointer<VornFrameAgent> &agent) const;
    void showPagesOf(int section) const;

    QPointer<VornFrame::RibbonBar> ribbonBar =
        new VornFrame::RibbonBar; ///< the window owns it once it is placed
    QPointer<VornFrame::AddressBar> addressBar; ///< the window owns it
    QPointer<VornFrame::DockContainer> dockContainer; ///< the window owns it
    bool setupOnce = false; ///< shared by all set-ups
    QHash<int, Pages> bindings; ///< by section
    VornFrameAgent *q_ptr = nullptr;
};
