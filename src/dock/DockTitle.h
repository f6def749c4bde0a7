// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>

#include <memory>

class QMenu;

namespace VornFrame {

class DockTitlePrivate;

/// The title bar of a DockView: the arrow that collapses the view (hidden at first), its text, and
/// the button of its menu. A right click anywhere on the bar opens the same menu.
class DockTitle : public QFrame
{
    Q_OBJECT

public:
    explicit DockTitle(QWidget *parent);
    ~DockTitle() override;

    /// The menu, which the title owns; it holds "minimize to bar" and takes more entries.
    QMenu *menu() const;

    /// Shows \a text as it is, never as markup; empty at first.
    void setText(const QString &text);
    void setCollapseButtonVisible(bool visible);

Q_SIGNALS:
    /// The user asked for the side to be minimized.
    void signalMinimize();
    /// The user collapsed (true) or unfolded the view.
    void signalCollapsed(bool collapsed);

protected:
    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;

private:
    Q_DECLARE_PRIVATE(DockTitle)
    Q_DISABLE_COPY_MOVE(DockTitle)

    const std::unique_ptr<DockTitlePrivate> d_ptr;
};

} // namespace VornFrame
