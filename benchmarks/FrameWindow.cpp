// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FrameWindow.h"

#include <VornFrame/AddressBar.h>
#include <VornFrame/DockContainer.h>
#include <VornFrame/DockContentWidget.h>
#include <VornFrame/DockPanelWidget.h>
#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonGallery.h>
#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>

#include <QAction>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

void setSize(QMainWindow *window, FrameWidth width)
{
    if (width == FrameWidth::OfScreen)
        window->setFixedSize(WindowSize);
    else
        window->resize(WindowSize);
}

} // namespace

FrameWindow::FrameWindow(const QString &path, FrameWidth width)
{
    m_agent.setup(&m_window, true, true);
    addPages();
    addGallery();
    m_agent.addressBar()->resetPath(path);
    addViews();
    addSections();
    setSize(&m_window, width);
}

void FrameWindow::switchTo(int section)
{
    m_agent.dockContainer()->contentWidget()->setCurrentTab(section, 0);
}

void FrameWindow::addPages()
{
    RibbonBar *bar = m_agent.ribbonBar();
    const QIcon icon = fileIcon();
    for (int p = 0; p < Pages; ++p) {
        RibbonPage *page = bar->addPage(pageName(p), p >= OrdinaryPages);
        for (int g = 0; g < GroupsPerPage; ++g) {
            RibbonGroup *group = page->addGroup(u"Group"_s);
            for (int a = 0; a < ActionsPerGroup; ++a)
                group->addAction(new QAction(icon, commandName(p, g, a), bar));
        }
    }
}

void FrameWindow::addGallery()
{
    constexpr int ActionsPerGalleryGroup = 10;
    auto *gallery = new RibbonGallery;
    gallery->setCollectEnabled(true);
    m_agent.ribbonBar()->page(0)->addGroup(u"Group"_s)->addWidget(gallery);
    int group = 0;
    for (int i = 0; i < m_actions.count(); ++i) {
        if (i % ActionsPerGalleryGroup == 0)
            group = gallery->addGroup(u"Group %1"_s.arg(i));
        gallery->addItem(group, m_actions.at(i));
    }
}

void FrameWindow::addViews()
{
    const QIcon icon = fileIcon();
    for (int side = 0; side < Sides; ++side) {
        DockPanelWidget *panel = m_agent.dockContainer()->panelWidget(
            DockContainer::DockArea(side));
        for (int view = 0; view < ViewsPerSide; ++view)
            panel->addView(new QLabel(viewName(side, view)), icon, viewName(side, view));
    }
}

void FrameWindow::addSections()
{
    RibbonBar *bar = m_agent.ribbonBar();
    DockContentWidget *content = m_agent.dockContainer()->contentWidget();
    for (int section = 0; section < Sections; ++section) {
        content->addSection(u"Section %1"_s.arg(section));
        m_agent.bindRibbonPagesAndDockPartition({bar->page(OrdinaryPages + section)}, section);
    }
    for (int tab = 0; tab < Tabs; ++tab)
        content->addTab(tab / TabsPerSection, new QLabel(tabName(tab)), tabName(tab));
    bar->setCurrentIndex(0);
}

PlainFrameWindow::PlainFrameWindow(const QString &path, FrameWidth width)
{
    auto *central = new QWidget;
    auto *layout = new QVBoxLayout(central);
    layout->addWidget(m_pages);
    layout->addWidget(createPlainPathRow(path));
    layout->addWidget(m_content);
    m_window.setCentralWidget(central);
    addPlainDocks(&m_window);
    m_buttons.fill(m_actions);
    m_buttons.place();
    m_buttons.frame().setFixedSize(PlainButtons::Columns * PlainButtons::TileSize.width(),
                                   PlainButtons::TileSize.height());
    m_buttons.frame().setUpdatesEnabled(true);
    m_pages->widget(0)->layout()->addWidget(&m_buttons.frame());
    for (int p = FrameWindow::OrdinaryPages; p < FrameWindow::Pages; ++p)
        m_pages->setTabVisible(p, p == FrameWindow::OrdinaryPages);
    setSize(&m_window, width);
}

void PlainFrameWindow::switchTo(int section)
{
    m_content->setCurrentIndex(section * FrameWindow::TabsPerSection);
    for (int p = FrameWindow::OrdinaryPages; p < FrameWindow::Pages; ++p)
        m_pages->setTabVisible(p, false);
    m_pages->setTabVisible(FrameWindow::OrdinaryPages + section, true);
    m_pages->setCurrentIndex(FrameWindow::OrdinaryPages + section);
}
