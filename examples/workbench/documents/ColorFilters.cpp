// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ColorFilters.h"

#include "PixelRows.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int Brightness_Step = 40;
constexpr int Temperature_Step = 24;
constexpr int Posterize_Levels = 4;
constexpr int Middle = 128;

/// A new value for every value of a channel.
using Curve = std::array<int, 256>;

int clamped(int value)
{
    return std::clamp(value, 0, 255);
}

QRgb gray(QRgb pixel, int value)
{
    return qRgba(value, value, value, qAlpha(pixel));
}

template <typename Function>
QImage mapped(const QImage &image, Function function)
{
    QImage result = PixelRows::straight(image);
    for (int y = 0; y < result.height(); ++y) {
        QRgb *row = PixelRows::row(result, y);
        std::transform(row, row + result.width(), row, function);
    }
    return result;
}

template <typename Function>
Curve curveOf(Function function)
{
    Curve curve{};
    for (int value = 0; value < int(curve.size()); ++value)
        curve.at(size_t(value)) = clamped(function(value));
    return curve;
}

QImage curved(const QImage &image, const Curve &red, const Curve &green, const Curve &blue)
{
    return mapped(image, [&](QRgb pixel) {
        return qRgba(red[size_t(qRed(pixel))], green[size_t(qGreen(pixel))],
                     blue[size_t(qBlue(pixel))], qAlpha(pixel));
    });
}

QImage curved(const QImage &image, const Curve &curve)
{
    return curved(image, curve, curve, curve);
}

QImage brightened(const QImage &image, int step)
{
    return curved(image, curveOf([step](int value) { return value + step; }));
}

/// With a positive \a step warmer, with a negative one cooler.
QImage tempered(const QImage &image, int step)
{
    return curved(image, curveOf([step](int value) { return value + step; }),
                  curveOf([](int value) { return value; }),
                  curveOf([step](int value) { return value - step; }));
}

QImage contrasted(const QImage &image, double factor)
{
    return curved(image, curveOf([factor](int value) {
                      return Middle + int(std::lround((value - Middle) * factor));
                  }));
}

QImage gammaCorrected(const QImage &image, double gamma)
{
    return curved(image, curveOf([gamma](int value) {
                      return int(std::lround(255.0 * std::pow(value / 255.0, 1.0 / gamma)));
                  }));
}

/// \a percent of the distance between each colour and its grey.
QImage saturated(const QImage &image, int percent)
{
    return mapped(image, [percent](QRgb pixel) {
        const int base = qGray(pixel);
        const auto channel = [base, percent](int value) {
            return clamped(base + (value - base) * percent / 100);
        };
        return qRgba(channel(qRed(pixel)), channel(qGreen(pixel)), channel(qBlue(pixel)),
                     qAlpha(pixel));
    });
}

} // namespace

QImage ColorFilters::grayscale(const QImage &image)
{
    return mapped(image, [](QRgb pixel) { return gray(pixel, qGray(pixel)); });
}

QImage ColorFilters::sepia(const QImage &image)
{
    return mapped(image, [](QRgb pixel) {
        const int r = qRed(pixel);
        const int g = qGreen(pixel);
        const int b = qBlue(pixel);
        // Parts of 1000 of the usual brown.
        return qRgba(clamped((393 * r + 769 * g + 189 * b) / 1000),
                     clamped((349 * r + 686 * g + 168 * b) / 1000),
                     clamped((272 * r + 534 * g + 131 * b) / 1000), qAlpha(pixel));
    });
}

QImage ColorFilters::invert(const QImage &image)
{
    return mapped(image, [](QRgb pixel) { return pixel ^ 0x00ffffff; });
}

QImage ColorFilters::warm(const QImage &image)
{
    return tempered(image, Temperature_Step);
}

QImage ColorFilters::cool(const QImage &image)
{
    return tempered(image, -Temperature_Step);
}

QImage ColorFilters::saturate(const QImage &image)
{
    return saturated(image, 150);
}

QImage ColorFilters::desaturate(const QImage &image)
{
    return saturated(image, 50);
}

QImage ColorFilters::redChannel(const QImage &image)
{
    return mapped(image, [](QRgb pixel) { return pixel & 0xffff0000; });
}

QImage ColorFilters::greenChannel(const QImage &image)
{
    return mapped(image, [](QRgb pixel) { return pixel & 0xff00ff00; });
}

QImage ColorFilters::blueChannel(const QImage &image)
{
    return mapped(image, [](QRgb pixel) { return pixel & 0xff0000ff; });
}

QImage ColorFilters::brighter(const QImage &image)
{
    return brightened(image, Brightness_Step);
}

QImage ColorFilters::darker(const QImage &image)
{
    return brightened(image, -Brightness_Step);
}

QImage ColorFilters::moreContrast(const QImage &image)
{
    return contrasted(image, 1.4);
}

QImage ColorFilters::lessContrast(const QImage &image)
{
    return contrasted(image, 0.7);
}

QImage ColorFilters::gammaUp(const QImage &image)
{
    return gammaCorrected(image, 1.6);
}

QImage ColorFilters::gammaDown(const QImage &image)
{
    return gammaCorrected(image, 0.625);
}

QImage ColorFilters::posterize(const QImage &image)
{
    return curved(image, curveOf([](int value) {
                      return value * Posterize_Levels / 256 * 255 / (Posterize_Levels - 1);
                  }));
}

QImage ColorFilters::threshold(const QImage &image)
{
    return mapped(image, [](QRgb pixel) { return gray(pixel, qGray(pixel) < Middle ? 0 : 255); });
}

QImage ColorFilters::solarize(const QImage &image)
{
    return curved(image, curveOf([](int value) { return value < Middle ? value : 255 - value; }));
}
