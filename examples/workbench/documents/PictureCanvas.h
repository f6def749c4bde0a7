// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

/// A picture at some zoom, as large as that makes it.
class PictureCanvas : public QWidget
{
    Q_OBJECT

public:
    explicit PictureCanvas(QWidget *parent = nullptr);

    QImage image() const { return m_image; }
    void setImage(const QImage &image);

    /// How many px wide a pixel of the picture is.
    qreal zoom() const { return m_zoom; }
    void setZoom(qreal zoom);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void fitSize();
    void drawEnlarged(QPainter *painter, qreal ratio, const QRect &exposed) const;
    void drawReduced(QPainter *painter, qreal ratio);

    QImage m_image;
    QPixmap m_reduced; ///< in the pixels of the screen
    qreal m_zoom = 1.0;
};
