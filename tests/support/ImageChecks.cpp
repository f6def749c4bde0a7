// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "support/ImageChecks.h"

#include <QPainter>
#include <QRegion>
#include <QWidget>

#include <algorithm>
#include <functional>

namespace ImageChecks {

using namespace Qt::StringLiterals;

namespace {

QString name(QRgb color)
{
    return u"rgb(%1, %2, %3)"_s.arg(qRed(color)).arg(qGreen(color)).arg(qBlue(color));
}

QString name(const QRect &rect)
{
    return u"(%1, %2) %3x%4"_s.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

int ratioOf(const QImage &image)
{
    return qRound(image.devicePixelRatio());
}

QRect toDevice(const QRect &rect, int ratio)
{
    return {rect.topLeft() * ratio, rect.size() * ratio};
}

bool isNear(QRgb left, QRgb right, int tolerance)
{
    return std::abs(qRed(left) - qRed(right)) <= tolerance
           && std::abs(qGreen(left) - qGreen(right)) <= tolerance
           && std::abs(qBlue(left) - qBlue(right)) <= tolerance;
}

QRegion regionOf(const QList<QRect> &rects)
{
    QRegion region;
    for (const QRect &rect : rects)
        region += rect;
    return region;
}

using ExpectedColor = std::function<QRgb(QPoint device)>;

/// Compares the device pixels of the logical \a region one by one with what is expected there.
QString compare(const QImage &image, const QRegion &region, const ExpectedColor &expected,
                int tolerance)
{
    const int ratio = ratioOf(image);
    qsizetype count = 0;
    qsizetype wrong = 0;
    QRect wrongRect;
    QString first;
    for (const QRect &rect : region) {
        const QRect device = toDevice(rect, ratio);
        if (!image.rect().contains(device))
            return u"%1 reaches out of the image"_s.arg(name(rect));
        for (int y = device.top(); y <= device.bottom(); ++y) {
            for (int x = device.left(); x <= device.right(); ++x) {
                ++count;
                const QRgb actual = image.pixel(x, y);
                const QRgb wanted = expected({x, y});
                if (isNear(actual, wanted, tolerance))
                    continue;
                if (++wrong == 1)
                    first = u"(%1, %2) is %3, not %4"_s.arg(x).arg(y).arg(name(actual),
                                                                          name(wanted));
                wrongRect |= QRect(x, y, 1, 1);
            }
        }
    }
    if (count == 0)
        return u"There is nothing to compare"_s;
    if (wrong == 0)
        return {};
    return u"In %1 at ratio %2, %3 of %4 device pixels differ: %5; all in %6"_s
        .arg(name(region.boundingRect()))
        .arg(ratio)
        .arg(wrong)
        .arg(count)
        .arg(first, name(wrongRect));
}

} // namespace

QImage blank(QSize size, int ratio)
{
    QImage image(size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Untouched);
    return image;
}

QImage rendered(QWidget *widget, int ratio, bool withBackground)
{
    QImage image = blank(widget->size(), ratio);
    QWidget::RenderFlags flags = QWidget::DrawChildren;
    flags.setFlag(QWidget::DrawWindowBackground, withBackground);
    widget->render(&image, {}, {}, flags);
    return image;
}

QPixmap checkerboard(QSize size, int ratio)
{
    QImage image(size * ratio, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, (x + y) % 2 == 0 ? Qt::black : Qt::white);
    }
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QColor colorAt(const QImage &image, QPoint at)
{
    const QPoint device = at * ratioOf(image);
    return image.rect().contains(device) ? QColor(image.pixel(device)) : QColor();
}

QString isFilled(const QImage &image, const QRect &rect, const QColor &color,
                 const QList<QRect> &except)
{
    const QRgb wanted = color.rgb();
    return compare(
        image, QRegion(rect) - regionOf(except), [wanted](QPoint) { return wanted; }, 0);
}

QString contains(const QImage &image, const QRect &rect, const QColor &color)
{
    const QRect device = toDevice(rect, ratioOf(image)) & image.rect();
    for (int y = device.top(); y <= device.bottom(); ++y) {
        for (int x = device.left(); x <= device.right(); ++x) {
            if (image.pixel(x, y) == color.rgb())
                return {};
        }
    }
    return u"No device pixel of %1 is %2"_s.arg(name(rect), name(color.rgb()));
}

QRect paintedRect(const QImage &image, const QRect &rect, const QColor &background)
{
    const int ratio = ratioOf(image);
    const QRect device = toDevice(rect, ratio) & image.rect();
    QRect painted;
    for (int y = device.top(); y <= device.bottom(); ++y) {
        for (int x = device.left(); x <= device.right(); ++x) {
            if (image.pixel(x, y) != background.rgb())
                painted |= QRect(x / ratio, y / ratio, 1, 1);
        }
    }
    return painted;
}

QString isSame(const QImage &image, const QImage &expected, const QRect &rect, int tolerance)
{
    if (image.size() != expected.size())
        return u"The image has the size of %1 and not of %2"_s.arg(name(image.rect()),
                                                                   name(expected.rect()));
    return compare(
        image, rect, [&expected](QPoint at) { return expected.pixel(at); }, tolerance);
}

QString isMirrored(const QImage &image, const QImage &other, const QList<QRect> &except,
                   int tolerance)
{
    if (image.size() != other.size())
        return u"The image has the size of %1 and its mirror image of %2"_s.arg(name(image.rect()),
                                                                                name(other.rect()));
    const QRegion whole(QRect(QPoint(), image.size() / ratioOf(image)));
    return compare(
        image, whole - regionOf(except),
        [&other](QPoint at) { return other.pixel(other.width() - 1 - at.x(), at.y()); }, tolerance);
}

} // namespace ImageChecks
