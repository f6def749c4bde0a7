// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/DockContainer.h>

#include "DockStatusBar.h"

#include <VornFrame/DockContentWidget.h>
#include <VornFrame/DockPanelWidget.h>

#include <QMainWindow>
#include <QPointer>
#include <QSplitter>
#include <QVBoxLayout>

namespace VornFrame {

class DockContainerPrivate
{
    Q_DISABLE_COPY_MOVE(DockContainerPrivate)

public:
    DockContainerPrivate() = default;
    virtual ~DockContainerPrivate() = default;

    void init();
    void initLayout();
    void initConnections();

    bool isWhole() const;
    void settleSoon();
    void settle();
    void arrangeSides();
    void arrangeBottom();
    void followHorizontalMove();
    void followVerticalMove();
    bool canResize(const DockPanelWidget *side) const;
    void resizeSide(const DockPanelWidget *side, int index, qint32 &width, bool minimized) const;
    void resizeBottom(bool minimized);
    void setContentVisible(bool visible);
    void makeRoomForContent() const;
    void alignBottomBar() const;

    void restoreWidths(const QByteArray &state);

    QSplitter *hSplitter = new QSplitter(Qt::Horizontal); ///< left side, column, right side
    QSplitter *vSplitter = new QSplitter(Qt::Vertical); ///< content, bottom side
    QPointer<DockPanelWidget> left = new DockPanelWidget(DockPanelWidget::Left);
    QPointer<DockPanelWidget> bottom = new DockPanelWidget(DockPanelWidget::Bottom);
    QPointer<DockPanelWidget> right = new DockPanelWidget(DockPanelWidget::Right);
    QPointer<DockContentWidget> content = new DockContentWidget;
    QPointer<DockStatusBar> statusBar; ///< made by setupMainWindow(); the main window owns it
    QPointer<QMainWindow> mainWindow;
    qint32 leftWidth = 0; ///< the last width of the left side that was not 0
    qint32 bottomHeight = 0; ///< the last height of the bottom side that was not 0
    qint32 rightWidth = 0; ///< the last width of the right side that was not 0
    qint32 savedContentHeight = 0; ///< of the content when it was last hidden
    bool widthsRestored = false; ///< the splitter got its sizes from a saved state
    bool wasShown = false; ///< until then sizes mean nothing
    bool leftArranged = false; ///< whether the side got its first room; so the next two
    bool bottomArranged = false;
    bool rightArranged = false;
    DockContainer *q_ptr = nullptr;
};

} // namespace VornFrame
