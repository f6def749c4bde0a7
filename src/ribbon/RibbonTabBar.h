// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>

#include <memory>

namespace VornFrame {

class RibbonTabBarPrivate;

/// The row of page tabs of a RibbonBar, 28 px high. Indexes have base 0; those out of range are
/// ignored.
class RibbonTabBar : public QFrame
{
    Q_OBJECT

public:
    explicit RibbonTabBar(QWidget *parent);
    ~RibbonTabBar() override;

    /// Appends a visible tab and returns its index. The first tab is the checked one.
    int addTab(const QString &title, bool temporary);
    int count() const;

    void hideTab(int index);
    void showTab(int index);
    void setCurrent(int index);
    void setTabEnabled(int index, bool enabled);

    /// Whether tab \a index stands for a temporary page; false out of range.
    bool isTemporary(int index) const;

Q_SIGNALS:
    /// The user clicked the tab at \a index.
    void idClicked(int index);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DECLARE_PRIVATE(RibbonTabBar)
    Q_DISABLE_COPY_MOVE(RibbonTabBar)

    const std::unique_ptr<RibbonTabBarPrivate> d_ptr;
};

} // namespace VornFrame
