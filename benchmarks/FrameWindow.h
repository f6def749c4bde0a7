// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "PlainWindows.h"

#include <VornFrame/VornFrameAgent.h>

#include <QMainWindow>
#include <QString>

enum class FrameWidth {
    OfScreen, ///< as wide as a screen; what a page has more is cut off
    OfPages, ///< as wide as the widest page, as windows are that nobody limits
};

/// A window that an agent has set up with all that it offers: a ribbon of ten pages with a gallery, an
/// address bar, twelve views and three sections of twenty tabs. Three of the pages are temporary and
/// belong to the sections, one to each.
class FrameWindow
{
public:
    static constexpr int Pages = 10;
    static constexpr int Sections = 3;
    static constexpr int OrdinaryPages = Pages - Sections;
    static constexpr int TabsPerSection = 20;
    static constexpr int Tabs = Sections * TabsPerSection;
    static constexpr int GalleryActions = 60;

    FrameWindow(const QString &path, FrameWidth width);

    QMainWindow *window() { return &m_window; }
    void switchTo(int section);

private:
    void addPages();
    void addGallery();
    void addViews();
    void addSections();

    const Actions m_actions{GalleryActions};
    QMainWindow m_window;
    VornFrameAgent m_agent;
};

/// A window with as many plain widgets.
class PlainFrameWindow
{
public:
    PlainFrameWindow(const QString &path, FrameWidth width);

    QMainWindow *window() { return &m_window; }
    void switchTo(int section);

private:
    const Actions m_actions{FrameWindow::GalleryActions};
    QMainWindow m_window;
    QTabWidget *const m_pages = createPlainPages(FrameWindow::Pages);
    QTabWidget *const m_content = createPlainTabs(FrameWindow::Tabs);
    PlainButtons m_buttons;
};
