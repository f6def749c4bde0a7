// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/DockPanelWidget.h>

#include "DockPanel.h"
#include "DockView.h"

#include <QList>
#include <QPointer>
#include <QSplitter>
#include <QStackedWidget>

namespace VornFrame {

class DockPanelWidgetPrivate
{
    Q_DISABLE_COPY_MOVE(DockPanelWidgetPrivate)

public:
    explicit DockPanelWidgetPrivate(DockPanelWidget::DockPanelDirection direction);
    virtual ~DockPanelWidgetPrivate();

    void init();
    bool isAlive() const { return panel && livingStack(); }
    /// The stack; null also while it is deleted. Its views may ask the side until they are gone, but
    /// the layout, which knows the pages, goes before the pages.
    QStackedWidget *livingStack() const;
    bool accepts(const QWidget *view) const;
    QSplitter *page(int index) const;
    DockView *makeView(QWidget *view, const QString &text);
    void wireCollapsing(QSplitter *page, DockView *added);

    void showClicked(int index);
    void minimizeToBar();
    void collapse(DockView *view, bool collapsed) const;

    QPointer<DockPanel> panel;
    QPointer<QStackedWidget> stack; ///< a page is a splitter with the views of one slot
    bool minimized = false; ///< the stack has been given no room
    QList<QPointer<DockView>> views; ///< of all slots, in the order they were made
    DockPanelWidget *q_ptr = nullptr;
};

} // namespace VornFrame
