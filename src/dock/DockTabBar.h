// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTabBar>

#include <memory>

namespace VornFrame {

class DockTabBarPrivate;

/// The row of document tabs of a section, which stays quick with hundreds of them.
///
/// For each tab that comes, QTabBar measures all tabs and places all their close buttons. This one
/// measures a tab once, and keeps the close buttons of tabs that are out of sight aside: they are
/// no tabButton() until they are about to be seen.
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
    void tabLayoutChange() override;
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DECLARE_PRIVATE(DockTabBar)
    Q_DISABLE_COPY_MOVE(DockTabBar)

    const std::unique_ptr<DockTabBarPrivate> d_ptr;
};

} // namespace VornFrame
