// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QList>
#include <QPushButton>
#include <QStringList>

#include <memory>

namespace VornFrame {

class DockButtonPrivate;

/// The button of one slot in a DockPanel. It shows the icons of the slot's views one below the
/// other, greyed while it is not checked, and gives the tool tip of the icon under the pointer.
class DockButton : public QPushButton
{
    Q_OBJECT

public:
    DockButton(Qt::Orientation orientation, QWidget *parent);
    ~DockButton() override;

    /// One icon per view, in order. They replace the button's own icon.
    QList<QIcon> icons() const;
    void setIcons(const QList<QIcon> &icons);

    /// One text per view, in order; together they are the button's accessible name.
    QStringList toolTips() const;
    void setToolTips(const QStringList &toolTips);

protected:
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    Q_DECLARE_PRIVATE(DockButton)
    Q_DISABLE_COPY_MOVE(DockButton)

    const std::unique_ptr<DockButtonPrivate> d_ptr;
};

} // namespace VornFrame
