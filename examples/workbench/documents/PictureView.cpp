// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PictureView.h"

#include "PictureCanvas.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <array>

namespace {

constexpr std::array<qreal, 22> Zoom_Levels{0.01, 0.02, 0.03, 0.05, 0.07, 0.1, 0.15, 0.2,
                                            0.25, 0.33, 0.5,  0.67, 0.75, 1,   1.25, 1.5,
                                            2,    3,    4,    8,    16,   32};
/// Of eighths of a degree: a notch of a wheel.
constexpr int Wheel_Notch = 120;
/// A zoom that is this near to a level is on it.
constexpr qreal Zoom_Tolerance = 0.001;

qreal levelAbove(qreal zoom)
{
    const auto *level = std::upper_bound(Zoom_Levels.cbegin(), Zoom_Levels.cend(),
                                         zoom * (1 + Zoom_Tolerance));
    return level == Zoom_Levels.cend() ? Zoom_Levels.back() : *level;
}

qreal levelBelow(qreal zoom)
{
    const auto *level = std::lower_bound(Zoom_Levels.cbegin(), Zoom_Levels.cend(),
                                         zoom * (1 - Zoom_Tolerance));
    return level == Zoom_Levels.cbegin() ? Zoom_Levels.front() : *(level - 1);
}

} // namespace

PictureView::PictureView(QWidget *parent) : QScrollArea(parent), m_canvas(new PictureCanvas)
{
    setFrameShape(QFrame::NoFrame);
    setAlignment(Qt::AlignCenter);
    setBackgroundRole(QPalette::Mid);
    setWidget(m_canvas);
}

QImage PictureView::image() const
{
    return m_canvas->image();
}

void PictureView::setImage(const QImage &image)
{
    m_canvas->setImage(image);
    applyFit();
    Q_EMIT imageChanged();
}

qreal PictureView::zoom() const
{
    return m_canvas->zoom();
}

void PictureView::setZoom(qreal zoom)
{
    m_fit = Fit::None;
    zoomAt(zoom, viewport()->rect().center());
}

void PictureView::zoomIn()
{
    step(1, viewport()->rect().center());
}

void PictureView::zoomOut()
{
    step(-1, viewport()->rect().center());
}

void PictureView::fit()
{
    m_fit = Fit::Whole;
    applyFit();
}

void PictureView::actualSize()
{
    setZoom(1.0);
}

void PictureView::step(int direction, QPoint anchor)
{
    m_fit = Fit::None;
    zoomAt(direction > 0 ? levelAbove(zoom()) : levelBelow(zoom()), anchor);
}

/// The point of the picture under \a anchor, a point of the viewport, stays there.
void PictureView::zoomAt(qreal zoom, QPoint anchor)
{
    const qreal before = m_canvas->zoom();
    const qreal after = std::clamp(zoom, Zoom_Levels.front(), Zoom_Levels.back());
    if (qFuzzyCompare(before, after))
        return;
    const QPointF point = QPointF(m_canvas->mapFrom(viewport(), anchor)) / before;
    m_canvas->setZoom(after);
    scrollBy((point * after).toPoint() - m_canvas->mapFrom(viewport(), anchor));
    Q_EMIT zoomChanged(after);
}

void PictureView::applyFit()
{
    const QSize picture = image().size();
    if (m_fit == Fit::None || picture.isEmpty())
        return;
    const QSizeF room = maximumViewportSize();
    const qreal zoom = std::min(room.width() / picture.width(), room.height() / picture.height());
    zoomAt(m_fit == Fit::Shrink ? std::min(zoom, 1.0) : zoom, viewport()->rect().center());
}

/// Shows what is \a distance px further right and down.
void PictureView::scrollBy(QPoint distance)
{
    // From right to left, the scroll bar counts from the right.
    const int across = isRightToLeft() ? -distance.x() : distance.x();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + across);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + distance.y());
}

void PictureView::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QScrollArea::wheelEvent(event);
        return;
    }
    event->accept();
    // Fine wheels send parts of a notch.
    m_wheelAngle += event->angleDelta().y();
    const QPoint anchor = viewport()->mapFrom(this, event->position().toPoint());
    for (; m_wheelAngle >= Wheel_Notch; m_wheelAngle -= Wheel_Notch)
        step(1, anchor);
    for (; m_wheelAngle <= -Wheel_Notch; m_wheelAngle += Wheel_Notch)
        step(-1, anchor);
}

void PictureView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomIn();
        break;
    case Qt::Key_Minus:
        zoomOut();
        break;
    case Qt::Key_0:
        fit();
        break;
    case Qt::Key_1:
        actualSize();
        break;
    default:
        QScrollArea::keyPressEvent(event);
    }
}

void PictureView::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    applyFit();
}

void PictureView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QScrollArea::mousePressEvent(event);
        return;
    }
    m_dragPoint = event->globalPosition().toPoint();
    viewport()->setCursor(Qt::ClosedHandCursor);
}

void PictureView::mouseMoveEvent(QMouseEvent *event)
{
    if (!event->buttons().testFlag(Qt::LeftButton))
        return;
    const QPoint point = event->globalPosition().toPoint();
    scrollBy(m_dragPoint - point);
    m_dragPoint = point;
}

void PictureView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        viewport()->unsetCursor();
}
