// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockState.h"

#include <QHash>
#include <QObject>

class ActionFactory;
class DockLayout;
class QAction;
class QWidget;

namespace VornFrame {
class RibbonPage;
}

/// The ribbon page for what stands around the documents.
class ViewPage : public QObject
{
    Q_OBJECT

public:
    /// Fills \a page with commands from \a actions for the views in \a layout. All have to live as
    /// long as this, which belongs to \a page.
    ViewPage(VornFrame::RibbonPage *page, const ActionFactory &actions, DockLayout *layout);

    /// The layout that "Reset Layout" goes back to.
    DockState defaultLayout() const { return m_default; }
    void setDefaultLayout(const DockState &layout) { m_default = layout; }

    /// Has the switches show which views are on.
    void showState();

Q_SIGNALS:
    /// Something for the log.
    void signalMessage(const QString &text);

private:
    void addSwitches(VornFrame::RibbonPage *page, const ActionFactory &actions);
    void addLayout(VornFrame::RibbonPage *page, const ActionFactory &actions);
    void keepLayout();
    void resetLayout();

    DockLayout *m_layout;
    DockState m_default;
    QHash<QWidget *, QAction *> m_switches;
};
