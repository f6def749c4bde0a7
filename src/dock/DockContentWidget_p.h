// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/DockContentWidget.h>

#include <QAction>
#include <QHash>
#include <QPixmap>
#include <QTabWidget>

#include <array>

class QMouseEvent;

namespace VornFrame {

class DockContentWidgetPrivate
{
    Q_DISABLE_COPY_MOVE(DockContentWidgetPrivate)

public:
    DockContentWidgetPrivate();
    virtual ~DockContentWidgetPrivate() = default;

    void init();
    void initCloseActions();
    void wireSection(QTabWidget *tabs);

    QTabWidget *section(int index) const;
    QTabBar *tabBar(int section, int index) const;
    int sectionOf(const QTabWidget *tabs) const;
    bool hasTabs() const;

    void changeSection(int index);
    void changeTab(const QTabWidget *tabs, int index);
    int insertTab(QTabWidget *tabs, QWidget *widget, const QString &text);
    bool pressSection(const QMouseEvent *event) const;
    void enterFilled();
    void leaveFilled();
    static void polishTabBar(QTabBar *bar);
    void refreshPlaceholder() const;
    void showCloseMenu(const QTabBar *bar, QPoint pos);
    void requestMiddleClose(const QTabWidget *tabs, QPoint pos) const;

    QHash<int, QTabWidget *> sections; ///< by index; an entry stays for good
    QTabWidget *sectionWidget = new QTabWidget;
    int menuTab = -1; ///< the tab whose menu was opened last
    int lastSection = -1; ///< the section and tab reported last
    int lastTab = -1;
    QPixmap placeholder;
    std::array<QAction *, 5> closeActions{}; ///< by CloseMode; one set for all sections
    bool autoHide = true;
    bool movingTabs = false; ///< tabs come and go by a call, which reports the outcome itself
    DockContentWidget *q_ptr = nullptr;
};

} // namespace VornFrame
