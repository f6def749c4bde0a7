// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QToolButton>

#include <memory>

namespace VornFrame {

class RibbonButtonPrivate;

/// The button that shows one action in a ribbon group or subgroup.
///
/// It sizes and paints itself by its own metrics, in one of three forms that follow from the
/// tool-button style: large (Qt::ToolButtonTextUnderIcon, 72 px high), small
/// (Qt::ToolButtonTextBesideIcon, 22 px high) and icon-only (any other style, 22 px by 22 px). An
/// action with a menu gets an arrow; unless the popup mode is QToolButton::InstantPopup, the part
/// with the arrow is highlighted and pressed for itself.
class RibbonButton : public QToolButton
{
    Q_OBJECT

public:
    explicit RibbonButton(QWidget *parent);
    ~RibbonButton() override;

    /// Shows \a action, which stays the caller's, and follows its visibility. Called once, after
    /// the tool-button style is set.
    void setAction(QAction *action);

    /// The size that the button's own metrics ask for. The button takes it as its fixed size when
    /// it is resized.
    QSize sizeHint() const override;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    Q_DECLARE_PRIVATE(RibbonButton)
    Q_DISABLE_COPY_MOVE(RibbonButton)

    const std::unique_ptr<RibbonButtonPrivate> d_ptr;
};

} // namespace VornFrame
