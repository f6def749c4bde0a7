// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QScrollArea>

class PictureCanvas;

/// A picture to look at: the wheel with Ctrl, "+", "-", "0" (fit) and "1" (actual size) zoom, and
/// the mouse drags it.
class PictureView : public QScrollArea
{
    Q_OBJECT

public:
    explicit PictureView(QWidget *parent = nullptr);

    QImage image() const;
    void setImage(const QImage &image);

    /// How many px wide a pixel of the picture is.
    qreal zoom() const;
    /// Zooms around the middle of what is seen. Limited to what zoomIn() and zoomOut() reach.
    void setZoom(qreal zoom);
    void zoomIn();
    void zoomOut();
    /// As large as the view, also when that changes its size, until another zoom is set.
    void fit();
    void actualSize();

Q_SIGNALS:
    void zoomChanged(qreal zoom);
    void imageChanged();

protected:
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    enum class Fit { None, Shrink, Whole };

    void step(int direction, QPoint anchor);
    void zoomAt(qreal zoom, QPoint anchor);
    void applyFit();
    void scrollBy(QPoint distance);

    PictureCanvas *m_canvas;
    /// A picture that is opened is shown whole, but not larger than it is.
    Fit m_fit = Fit::Shrink;
    int m_wheelAngle = 0;
    QPoint m_dragPoint;
};
