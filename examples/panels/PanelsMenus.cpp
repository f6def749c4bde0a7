// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PanelsMenus.h"

#include "DockLayout.h"
#include "Documents.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

using namespace Qt::StringLiterals;
using VornFrame::DockContainer;

PanelsMenus::PanelsMenus(QMainWindow *window, Documents *documents, DockLayout *layout)
    : QObject(window), m_window(window), m_documents(documents), m_layout(layout)
{
    createFileMenu();
    createViewMenu();
    createGoMenu();
    connect(documents, &Documents::currentChanged, this, &PanelsMenus::showState);
    showState();
}

QAction *PanelsMenus::add(QMenu *menu, const QString &text, const QString &name,
                          const QKeySequence &keys)
{
    auto *action = new QAction(text, m_window);
    action->setObjectName(name);
    action->setShortcut(keys);
    menu->addAction(action);
    return action;
}

/// An entry that calls \a set when the user checks it, and shows what became of that.
QAction *PanelsMenus::addSwitch(QMenu *menu, const QString &text, const QString &name,
                                const std::function<void(bool)> &set)
{
    QAction *action = add(menu, text, name);
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, set](bool checked) {
        set(checked);
        showState();
    });
    return action;
}

void PanelsMenus::createFileMenu()
{
    QMenu *menu = m_window->menuBar()->addMenu(tr("&File"));
    const QAction *open = add(menu, tr("&Open…"), u"open"_s, QKeySequence::Open);
    connect(open, &QAction::triggered, this, &PanelsMenus::openWished);
    m_close = add(menu, tr("&Close Tab"), u"closeTab"_s, {u"Ctrl+W"_s});
    connect(m_close, &QAction::triggered, m_documents, &Documents::closeCurrent);
    menu->addSeparator();
    const QAction *quit = add(menu, tr("&Quit"), u"quit"_s, {u"Ctrl+Q"_s});
    connect(quit, &QAction::triggered, m_window, &QWidget::close);
}

void PanelsMenus::createViewMenu()
{
    QMenu *menu = m_window->menuBar()->addMenu(tr("&View"));
    addViewSwitches(menu);
    menu->addSeparator();
    addSectionSwitches(menu);
    menu->addSeparator();
    addSideSwitches(menu);
    menu->addSeparator();
    const QAction *reset = add(menu, tr("&Reset Layout"), u"resetLayout"_s);
    connect(reset, &QAction::triggered, m_layout, [this] {
        m_layout->apply({});
        showState();
    });
    // Sides are minimized by other ways too.
    connect(menu, &QMenu::aboutToShow, this, &PanelsMenus::showState);
}

void PanelsMenus::addViewSwitches(QMenu *menu)
{
    int number = 0;
    const QList<QWidget *> views = m_layout->views();
    for (QWidget *view : views) {
        ++number;
        const QString text = u"&%1 %2"_s.arg(number).arg(view->windowTitle());
        const auto set = [this, view](bool shown) { m_layout->setShown(view, shown); };
        m_viewSwitches.insert(view, addSwitch(menu, text, u"show_"_s + view->objectName(), set));
    }
}

void PanelsMenus::addSectionSwitches(QMenu *menu)
{
    const QStringList texts{tr("&Documents"), tr("&Text Files"), tr("&Pictures")};
    for (int section = 0; section < m_documents->sectionCount(); ++section) {
        const QString text = texts.value(section, m_documents->sectionText(section));
        const auto set = [this, section](bool shown) {
            m_documents->setSectionShown(section, shown);
        };
        m_sectionSwitches.insert(section, addSwitch(menu, text, u"section_%1"_s.arg(section), set));
    }
}

void PanelsMenus::addSideSwitches(QMenu *menu)
{
    const auto addFor = [this, menu](DockContainer::DockArea area, const QString &text,
                                     const QString &name) {
        const auto set = [this, area](bool minimized) {
            m_layout->side(area)->setMinimized(minimized);
        };
        m_sideSwitches.insert(area, addSwitch(menu, text, name, set));
    };
    addFor(DockContainer::Left, tr("Minimize &Left Side"), u"minimize_left"_s);
    addFor(DockContainer::Right, tr("Minimize Ri&ght Side"), u"minimize_right"_s);
    addFor(DockContainer::Bottom, tr("Minimize &Bottom Side"), u"minimize_bottom"_s);
}

void PanelsMenus::createGoMenu()
{
    QMenu *menu = m_window->menuBar()->addMenu(tr("&Go"));
    const auto addStep = [this, menu](const QString &text, const QString &name, const QString &keys,
                                      auto go) {
        connect(add(menu, text, name, QKeySequence(keys)), &QAction::triggered, m_documents, go);
    };
    addStep(tr("&Next Tab"), u"nextTab"_s, u"Ctrl+PgDown"_s, [this] { m_documents->stepTab(1); });
    addStep(tr("&Previous Tab"), u"previousTab"_s, u"Ctrl+PgUp"_s,
            [this] { m_documents->stepTab(-1); });
    addStep(tr("Next &Section"), u"nextSection"_s, u"F6"_s,
            [this] { m_documents->stepSection(1); });
    addStep(tr("Pre&vious Section"), u"previousSection"_s, u"Shift+F6"_s,
            [this] { m_documents->stepSection(-1); });
    menu->addSeparator();
    int number = 0;
    const QList<QWidget *> views = m_layout->views();
    for (QWidget *view : views) {
        ++number;
        const QAction *action = add(menu, u"&%1 %2"_s.arg(number).arg(view->windowTitle()),
                                    u"go_"_s + view->objectName(), {u"Ctrl+%1"_s.arg(number)});
        connect(action, &QAction::triggered, m_layout, [this, view] {
            m_layout->activate(view);
            showState();
        });
    }
}

void PanelsMenus::showState()
{
    m_close->setEnabled(m_documents->currentPage() != nullptr);
    for (auto it = m_viewSwitches.cbegin(); it != m_viewSwitches.cend(); ++it)
        it.value()->setChecked(m_layout->isShown(it.key()));
    for (auto it = m_sectionSwitches.cbegin(); it != m_sectionSwitches.cend(); ++it) {
        it.value()->setEnabled(m_documents->hasTabs(it.key()));
        it.value()->setChecked(m_documents->isSectionShown(it.key()));
    }
    for (auto it = m_sideSwitches.cbegin(); it != m_sideSwitches.cend(); ++it) {
        const SideController *side = m_layout->side(it.key());
        it.value()->setEnabled(!side->isEmpty());
        it.value()->setChecked(side->isMinimized());
    }
}
