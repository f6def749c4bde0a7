// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "Landscape.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>
#include <QRandomGenerator>

#include <cmath>
#include <utility>

namespace {

/// A sky from \a top to the \a horizon, in parts of the picture's height.
void drawSky(QPainter *painter, const QRectF &area, const QGradientStops &colors)
{
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setStops(colors);
    painter->fillRect(area, gradient);
}

void drawSun(QPainter *painter, const QPointF &center, qreal radius)
{
    constexpr qreal GlowFactor = 5;
    QRadialGradient glow(center, radius * GlowFactor);
    glow.setColorAt(0, QColor(255, 236, 190, 200));
    glow.setColorAt(1, QColor(255, 220, 160, 0));
    painter->setPen(Qt::NoPen);
    painter->setBrush(glow);
    painter->drawEllipse(center, radius * GlowFactor, radius * GlowFactor);
    painter->setBrush(QColor(255, 246, 220));
    painter->drawEllipse(center, radius, radius);
}

/// The outline of a range of mountains whose feet stand at \a foot, halved again and again with
/// less and less chance.
QPolygonF ridge(quint32 seed, qreal width, qreal foot, qreal height)
{
    constexpr int Rounds = 8;
    constexpr qreal Roughness = 0.52;
    QRandomGenerator random(seed);
    QList<qreal> heights{height * 0.45, height * 0.6};
    qreal spread = height;
    for (int round = 0; round < Rounds; ++round) {
        QList<qreal> finer{heights.constFirst()};
        for (qsizetype i = 1; i < heights.size(); ++i) {
            const qreal chance = (random.generateDouble() - 0.5) * spread;
            finer << qMax(0.0, (heights.at(i - 1) + heights.at(i)) / 2 + chance) << heights.at(i);
        }
        heights = finer;
        spread *= Roughness;
    }
    QPolygonF outline{QPointF(0, foot)};
    const qreal step = width / qreal(heights.size() - 1);
    for (qsizetype i = 0; i < heights.size(); ++i)
        outline << QPointF(qreal(i) * step, foot - heights.at(i));
    outline << QPointF(width, foot);
    return outline;
}

void drawRidge(QPainter *painter, const QPolygonF &outline, const QColor &top, const QColor &foot)
{
    const QRectF area = outline.boundingRect();
    QLinearGradient gradient(area.topLeft(), area.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, foot);
    painter->setPen(Qt::NoPen);
    painter->setBrush(gradient);
    painter->drawPolygon(outline);
}

/// What stands above the \a horizon once more below it, turned over, darker, and moved by waves.
void drawWater(QImage *image, int horizon)
{
    const QImage above = image->copy(0, 0, image->width(), horizon).mirrored();
    QPainter painter(image);
    for (int y = horizon; y < image->height(); ++y) {
        const int depth = y - horizon;
        const int row = qMin(above.height() - 1, depth);
        const qreal swell = std::sin(depth * 0.55) * (1.0 + depth * 0.02);
        // What the swell leaves open at one end shows the row where it was.
        for (const qreal x : {0.0, swell})
            painter.drawImage(QPointF(x, y), above, QRectF(0, row, above.width(), 1));
    }
    QLinearGradient shade(0, horizon, 0, image->height());
    shade.setColorAt(0, QColor(20, 50, 90, 70));
    shade.setColorAt(1, QColor(8, 24, 52, 190));
    painter.fillRect(QRect(0, horizon, image->width(), image->height() - horizon), shade);
}

void drawTower(QPainter *painter, const QRectF &tower)
{
    constexpr int Bands = 5;
    const qreal slope = tower.width() * 0.18;
    const auto edge = [&](int band) {
        const qreal part = qreal(band) / Bands;
        const qreal inset = slope * (1 - part);
        return QLineF(tower.left() + inset, tower.top() + tower.height() * part,
                      tower.right() - inset, tower.top() + tower.height() * part);
    };
    painter->setPen(Qt::NoPen);
    for (int band = 0; band < Bands; ++band) {
        const QLineF top = edge(band);
        const QLineF bottom = edge(band + 1);
        painter->setBrush(band % 2 == 0 ? QColor(196, 44, 40) : QColor(250, 248, 242));
        painter->drawPolygon(QPolygonF{top.p1(), top.p2(), bottom.p2(), bottom.p1()});
    }
    const QRectF lamp(tower.center().x() - tower.width() * 0.24, tower.top() - tower.width() * 0.55,
                      tower.width() * 0.48, tower.width() * 0.55);
    painter->setBrush(QColor(255, 226, 120));
    painter->drawRect(lamp);
    painter->setBrush(QColor(70, 76, 84));
    painter->drawPolygon(QPolygonF{lamp.topLeft() - QPointF(6, 0), lamp.topRight() + QPointF(6, 0),
                                   QPointF(lamp.center().x(), lamp.top() - tower.width() * 0.4)});
    painter->drawRect(
        QRectF(tower.left() + slope - 8, tower.top() - 6, tower.width() - 2 * slope + 16, 10));
}

void drawCloud(QPainter *painter, const QPointF &at, qreal size)
{
    QPainterPath cloud;
    cloud.setFillRule(Qt::WindingFill);
    cloud.addEllipse(at, size, size * 0.32);
    cloud.addEllipse(at + QPointF(-size * 0.35, -size * 0.2), size * 0.42, size * 0.3);
    cloud.addEllipse(at + QPointF(size * 0.25, -size * 0.28), size * 0.5, size * 0.38);
    painter->fillPath(cloud, QColor(255, 255, 255, 215));
}

} // namespace

QImage Landscape::fjord(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    const qreal width = size.width();
    const qreal height = size.height();
    const qreal horizon = std::floor(height * 0.62);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        drawSky(
            &painter, QRectF(0, 0, width, horizon),
            {{0, QColor(28, 62, 120)}, {0.55, QColor(122, 140, 190)}, {1, QColor(252, 196, 140)}});
        drawSun(&painter, QPointF(width * 0.64, horizon * 0.74), height * 0.035);
        drawRidge(&painter, ridge(11, width, horizon, height * 0.36), QColor(126, 120, 160),
                  QColor(206, 160, 150));
        drawRidge(&painter, ridge(29, width, horizon, height * 0.26), QColor(76, 82, 122),
                  QColor(140, 116, 132));
        drawRidge(&painter, ridge(71, width, horizon, height * 0.13), QColor(28, 44, 62),
                  QColor(44, 58, 74));
    }
    drawWater(&image, int(horizon));
    return image;
}

QImage Landscape::lighthouse(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    const qreal width = size.width();
    const qreal height = size.height();
    const qreal horizon = std::floor(height * 0.7);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        drawSky(&painter, QRectF(0, 0, width, horizon),
                {{0, QColor(40, 112, 196)}, {1, QColor(190, 222, 244)}});
        drawCloud(&painter, QPointF(width * 0.26, height * 0.24), width * 0.12);
        drawCloud(&painter, QPointF(width * 0.82, height * 0.36), width * 0.09);
        drawRidge(&painter, ridge(5, width, horizon, height * 0.1), QColor(120, 160, 150),
                  QColor(150, 184, 170));
        drawTower(&painter, QRectF(width * 0.52, height * 0.26, width * 0.11, height * 0.44));
        drawRidge(&painter, ridge(97, width, horizon, height * 0.16), QColor(96, 88, 80),
                  QColor(60, 56, 54));
    }
    drawWater(&image, int(horizon));
    return image;
}
