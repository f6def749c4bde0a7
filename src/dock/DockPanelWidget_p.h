// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/DockPanelWidget.h>

#include "DockPanel.h"
#include "DockView.h"

#include <QLayout>
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
    void deleteWidgets();
    bool isAlive() const { return panel != nullptr && livingStack() != nullptr; }
    /// The stack; null also while it is being deleted, because its views may ask the side until
    /// they are gone.
    QStackedWidget *livingStack() const;
    bool accepts(const QWidget *view) const;
    QSplitter *page(int index) const;
    DockView *makeView(QWidget *view, const QString &text);
    void wireCollapsing(QSplitter *page, DockView *added);

    void showClicked(int index);
    void minimizeToBar();
    static void collapse(DockView *view, bool collapsed);

    QPointer<DockPanel> panel;
    QPointer<QStackedWidget> stack; ///< a page is a splitter with the views of one slot
    bool minimized = false; ///< the stack has been given no room
    QList<QPointer<DockView>> views; ///< of all slots, in the order they were made
    QPointer<QLayout> pages; ///< the layout of the stack, which goes before its pages do
    DockPanelWidget *q_ptr = nullptr;
};

} // namespace VornFrame
