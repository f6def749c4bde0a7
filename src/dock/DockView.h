// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>

#include <memory>

class QMenu;

namespace VornFrame {

class DockViewPrivate;

/// A widget of the application, docked into a side panel: a title bar, and the widget below it.
class DockView : public QFrame
{
    Q_OBJECT

public:
    explicit DockView(QWidget *parent);
    ~DockView() override;

    void setTitle(const QString &title);

    /// Puts \a widget below the title and owns it; the widget that was there is deleted. The
    /// minimum height of \a widget becomes 0. Null leaves the place empty.
    void setWidget(QWidget *widget);
    /// The docked widget; null if there is none, or it was deleted or taken to another place.
    QWidget *widget() const;

    /// The menu of the title.
    QMenu *menu() const;
    void setCollapseButtonVisible(bool visible);
    /// The height of the title bar as it is now, in px.
    int titleHeight() const;

    /// Both empty until the view is shown for the first time: to measure the views that nobody has
    /// seen yet costs more than to build them.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user asked for the side to be minimized.
    void signalMinimize();
    /// The user collapsed (true) or unfolded this view. The view stays as it is.
    void signalCollapsed(bool collapsed);

protected:
    bool event(QEvent *event) override;

private:
    Q_DECLARE_PRIVATE(DockView)
    Q_DISABLE_COPY_MOVE(DockView)

    const std::unique_ptr<DockViewPrivate> d_ptr;
};

} // namespace VornFrame
