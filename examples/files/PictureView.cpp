// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PictureView.h"

#include <QPainter>

PictureView::PictureView(QWidget *parent) : QWidget(parent)
{
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

void PictureView::setPicture(const QImage &image, QSize size)
{
    m_image = image;
    m_size = size;
    m_scaled = QPixmap();
    update();
}

QRect PictureView::pictureRect() const
{
    const QSize room = size();
    const bool fits = m_size.boundedTo(room) == m_size;
    const QSize shown = fits ? m_size : m_size.scaled(room, Qt::KeepAspectRatio);
    QRect rect(QPoint(), shown.expandedTo(QSize(1, 1)));
    rect.moveCenter(this->rect().center());
    return rect;
}

void PictureView::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    if (m_image.isNull())
        return;
    const QRect rect = pictureRect();
    scaleTo((QSizeF(rect.size()) * devicePixelRatioF()).toSize());
    QPainter(this).drawPixmap(rect, m_scaled);
}

void PictureView::scaleTo(QSize pixels)
{
    if (m_scaled.size() == pixels)
        return;
    // Once for each size: this looks much better than what a painter does, and is slower.
    m_scaled = QPixmap::fromImage(
        m_image.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}
