// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PictureCanvas.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPaintEvent>

#include <cmath>

namespace {

/// In px, of the squares behind what is transparent.
constexpr int Square_Side = 8;
/// From here on the pixels are shown as squares; below, as a soft picture.
constexpr qreal Zoom_Squares = 2.0;

QBrush squares()
{
    QPixmap tile(2 * Square_Side, 2 * Square_Side);
    tile.fill(Qt::white);
    QPainter painter(&tile);
    const QColor gray(204, 204, 204);
    painter.fillRect(0, 0, Square_Side, Square_Side, gray);
    painter.fillRect(Square_Side, Square_Side, Square_Side, Square_Side, gray);
    return QBrush(tile);
}

} // namespace

PictureCanvas::PictureCanvas(QWidget *parent) : QWidget(parent) {}

void PictureCanvas::setImage(const QImage &image)
{
    m_image = image;
    m_reduced = QPixmap();
    fitSize();
    update();
}

void PictureCanvas::setZoom(qreal zoom)
{
    m_zoom = zoom;
    fitSize();
    update();
}

void PictureCanvas::fitSize()
{
    const QSizeF size = QSizeF(m_image.size()) * m_zoom;
    resize(std::max(1, qRound(size.width())), std::max(1, qRound(size.height())));
}

void PictureCanvas::paintEvent(QPaintEvent *event)
{
    if (m_image.isNull())
        return;
    QPainter painter(this);
    if (m_image.hasAlphaChannel())
        painter.fillRect(event->rect(), squares());
    // Of what is painted on, which need not be the screen.
    const qreal ratio = painter.paintEngine()->paintDevice()->devicePixelRatioF();
    if (m_zoom * ratio < 1.0)
        drawReduced(&painter, ratio);
    else
        drawEnlarged(&painter, ratio, event->rect());
}

/// Only what is exposed: far enlarged, a picture is larger than any memory.
void PictureCanvas::drawEnlarged(QPainter *painter, qreal ratio, const QRect &exposed) const
{
    const qreal scale = m_zoom;
    const int left = int(std::floor(exposed.left() / scale));
    const int top = int(std::floor(exposed.top() / scale));
    const int right = int(std::ceil((exposed.right() + 1) / scale));
    const int bottom = int(std::ceil((exposed.bottom() + 1) / scale));
    const QRect source = QRect(QPoint(left, top), QPoint(right - 1, bottom - 1))
                             .intersected(m_image.rect());
    const qreal pixel = scale * ratio;
    const bool isWhole = qFuzzyCompare(pixel, std::round(pixel));
    painter->setRenderHint(QPainter::SmoothPixmapTransform, !isWhole && scale < Zoom_Squares);
    painter->drawImage(QRectF(QPointF(source.topLeft()) * scale, QSizeF(source.size()) * scale),
                       m_image, QRectF(source));
}

void PictureCanvas::drawReduced(QPainter *painter, qreal ratio)
{
    const QSize pixels = (QSizeF(size()) * ratio).toSize();
    // Once for each size: this looks much better than what a painter does, and is slower.
    if (m_reduced.size() != pixels)
        m_reduced = QPixmap::fromImage(
            m_image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    painter->drawPixmap(rect(), m_reduced);
}
