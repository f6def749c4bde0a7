// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTabBar>

#include <memory>

namespace VornFrame {

class DockTabBarPrivate;

/// The row of document tabs of a section, which opens as quickly with hundreds of tabs as with few.
///
/// For each tab that comes, QTabBar measures all tabs and places all their close buttons. This one
/// measures a tab once, only estimates it until the bar is shown, and from the 33rd tab on keeps
/// the close buttons aside until then: they are no tabButton(). When the bar is shown, the buttons
/// in sight come back at once and the others while the application is idle.
class DockTabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit DockTabBar(QWidget *parent);
    ~DockTabBar() override;

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    void initStyleOption(QStyleOptionTab *option, int tabIndex) const override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    Q_DECLARE_PRIVATE(DockTabBar)
    Q_DISABLE_COPY_MOVE(DockTabBar)

    const std::unique_ptr<DockTabBarPrivate> d_ptr;
};

} // namespace VornFrame
