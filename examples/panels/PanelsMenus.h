// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/DockContainer.h>

#include <QHash>
#include <QObject>

#include <functional>

class DockLayout;
class Documents;
class QAction;
class QMainWindow;
class QMenu;

/// The menus of the window. Every command is an action of the window with an object name.
class PanelsMenus : public QObject
{
    Q_OBJECT

public:
    /// All have to live as long as this, which belongs to \a window.
    PanelsMenus(QMainWindow *window, Documents *documents, DockLayout *layout);

Q_SIGNALS:
    void openWished();

private:
    QAction *add(QMenu *menu, const QString &text, const QString &name,
                 const QKeySequence &keys = {});
    QAction *addSwitch(QMenu *menu, const QString &text, const QString &name,
                       const std::function<void(bool)> &set);
    void createFileMenu();
    void createViewMenu();
    void createGoMenu();
    void addViewSwitches(QMenu *menu);
    void addSectionSwitches(QMenu *menu);
    void addSideSwitches(QMenu *menu);
    void showState();

    QMainWindow *m_window;
    Documents *m_documents;
    DockLayout *m_layout;
    QHash<QWidget *, QAction *> m_viewSwitches;
    QHash<int, QAction *> m_sectionSwitches;
    QHash<VornFrame::DockContainer::DockArea, QAction *> m_sideSwitches;
    QAction *m_close = nullptr;
};
