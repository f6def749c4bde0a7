// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPushButton>

#include <memory>

namespace VornFrame {

class RibbonTabPrivate;

/// The tab of one page in a RibbonTabBar: a checkable button as wide as its text with a margin on
/// each side.
class RibbonTab : public QPushButton
{
    Q_OBJECT

public:
    RibbonTab(const QString &text, QWidget *parent);
    ~RibbonTab() override;

    /// Whether the tab belongs to a temporary page; false at first.
    bool isTemporary() const;
    void setTemporary(bool temporary);

    QSize sizeHint() const override;

private:
    Q_DECLARE_PRIVATE(RibbonTab)
    Q_DISABLE_COPY_MOVE(RibbonTab)

    const std::unique_ptr<RibbonTabPrivate> d_ptr;
};

} // namespace VornFrame
