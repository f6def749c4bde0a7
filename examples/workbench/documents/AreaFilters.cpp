// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "AreaFilters.h"

#include "PixelRows.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace {

/// Which of a pixel's four bytes is its opacity does not matter to a sum.
constexpr int Channels = 4;

/// Divides by a number again and again, by way of a multiplication.
class Divisor
{
public:
    explicit Divisor(int number) : m_factor((1 << Shift) / number) {}

    /// \a sum of so many bytes, divided and rounded.
    uchar mean(int sum) const { return uchar((sum * m_factor + (1 << (Shift - 1))) >> Shift); }

private:
    static constexpr int Shift = 16;

    int m_factor;
};

const uchar *bytes(const QImage &image, int y)
{
    return image.constScanLine(std::clamp(y, 0, image.height() - 1));
}

/// The mean of \a radius pixels to either side, in the row.
void blurRow(const uchar *source, uchar *target, int width, int radius)
{
    const Divisor count(2 * radius + 1);
    for (int channel = 0; channel < Channels; ++channel) {
        const auto at = [source, width, channel](int x) {
            return int(source[std::clamp(x, 0, width - 1) * Channels + channel]);
        };
        int sum = 0;
        for (int x = -radius; x <= radius; ++x)
            sum += at(x);
        for (int x = 0; x < width; ++x) {
            target[x * Channels + channel] = count.mean(sum);
            sum += at(x + radius + 1) - at(x - radius);
        }
    }
}

QImage blurredAcross(const QImage &source, int radius)
{
    QImage target = source;
    for (int y = 0; y < source.height(); ++y)
        blurRow(source.constScanLine(y), target.scanLine(y), source.width(), radius);
    return target;
}

/// Keeps a sum for each column, so that it walks through the lines once.
QImage blurredDown(const QImage &source, int radius)
{
    QImage target = source;
    const Divisor count(2 * radius + 1);
    const int length = source.width() * Channels;
    std::vector<int> sums(size_t(source.width()) * Channels, 0);
    const auto add = [&sums, length](const uchar *row, int sign) {
        for (int i = 0; i < length; ++i)
            sums[size_t(i)] += sign * row[i];
    };
    for (int y = -radius; y <= radius; ++y)
        add(bytes(source, y), 1);
    for (int y = 0; y < source.height(); ++y) {
        uchar *row = target.scanLine(y);
        for (int i = 0; i < length; ++i)
            row[i] = count.mean(sums[size_t(i)]);
        add(bytes(source, y + radius + 1), 1);
        add(bytes(source, y - radius), -1);
    }
    return target;
}

/// Two rounds look almost as soft as a bell curve.
QImage blurred(const QImage &image, int radius, int rounds)
{
    QImage result = PixelRows::premultiplied(image);
    for (int i = 0; i < rounds; ++i)
        result = blurredDown(blurredAcross(result, radius), radius);
    return result;
}

/// The \a value that a colour of a pixel can have: at most its opacity.
int limited(int value, QRgb pixel)
{
    return std::clamp(value, 0, qAlpha(pixel));
}

QRgb gray(int value, QRgb pixel)
{
    const int limit = limited(value, pixel);
    return qRgba(limit, limit, limit, qAlpha(pixel));
}

/// How light the pixels around one are.
struct Neighbours
{
    Neighbours(const QImage &image, int x, int y)
    {
        const int left = std::max(x - 1, 0);
        const int right = std::min(x + 1, image.width() - 1);
        int above = y - 1;
        for (auto &lights : light) {
            const QRgb *row = PixelRows::row(image, std::clamp(above++, 0, image.height() - 1));
            lights = {qGray(row[left]), qGray(row[x]), qGray(row[right])};
        }
    }

    /// From left to right.
    int across() const
    {
        return side(0, 2) + side(1, 2) * 2 + side(2, 2)
               - (side(0, 0) + side(1, 0) * 2 + side(2, 0));
    }
    /// From top to bottom.
    int down() const
    {
        return side(2, 0) + side(2, 1) * 2 + side(2, 2)
               - (side(0, 0) + side(0, 1) * 2 + side(0, 2));
    }
    /// From top left to bottom right.
    int slope() const
    {
        return side(2, 2) + side(1, 2) + side(2, 1) - side(0, 0) - side(0, 1) - side(1, 0);
    }

    int side(size_t row, size_t column) const { return light[row][column]; }

    std::array<std::array<int, 3>, 3> light{};
};

/// Each pixel as \a function makes it of itself and its neighbours.
template <typename Function>
QImage mapped(const QImage &image, Function function)
{
    const QImage source = PixelRows::premultiplied(image);
    QImage target = source;
    for (int y = 0; y < source.height(); ++y) {
        const QRgb *before = PixelRows::row(source, y);
        QRgb *after = PixelRows::row(target, y);
        for (int x = 0; x < source.width(); ++x)
            after[x] = function(before[x], Neighbours(source, x, y));
    }
    return target;
}

void order(uchar &a, uchar &b)
{
    const uchar low = std::min(a, b);
    b = std::max(a, b);
    a = low;
}

/// Orders as few of nine values as put the middle one into its place.
uchar median(uchar a, uchar b, uchar c, uchar d, uchar e, uchar f, uchar g, uchar h, uchar i)
{
    order(b, c), order(e, f), order(h, i);
    order(a, b), order(d, e), order(g, h);
    order(b, c), order(e, f), order(h, i);
    order(a, d), order(f, i), order(e, h);
    order(d, g), order(b, e), order(c, f);
    order(e, h), order(e, c), order(g, e);
    order(e, c);
    return e;
}

/// The mean colour of \a block.
QRgb mean(const QImage &image, const QRect &block)
{
    std::array<int, Channels> sums{};
    for (int y = block.top(); y <= block.bottom(); ++y) {
        const uchar *row = image.constScanLine(y) + qsizetype(block.left()) * Channels;
        for (int i = 0; i < block.width() * Channels; ++i)
            sums[size_t(i % Channels)] += row[i];
    }
    const int count = block.width() * block.height();
    std::array<uchar, Channels> pixel{};
    for (size_t i = 0; i < sums.size(); ++i)
        pixel[i] = uchar((sums[i] + count / 2) / count);
    QRgb result = 0;
    std::copy(pixel.cbegin(), pixel.cend(), reinterpret_cast<uchar *>(&result));
    return result;
}

} // namespace

QImage AreaFilters::blur(const QImage &image)
{
    return blurred(image, 2, 2);
}

QImage AreaFilters::strongBlur(const QImage &image)
{
    return blurred(image, 8, 2);
}

QImage AreaFilters::sharpen(const QImage &image)
{
    QImage result = PixelRows::premultiplied(image);
    const QImage soft = blurred(image, 1, 1);
    for (int y = 0; y < result.height(); ++y) {
        QRgb *row = PixelRows::row(result, y);
        const QRgb *base = PixelRows::row(soft, y);
        for (int x = 0; x < result.width(); ++x) {
            const QRgb pixel = row[x];
            row[x] = qRgba(limited(2 * qRed(pixel) - qRed(base[x]), pixel),
                           limited(2 * qGreen(pixel) - qGreen(base[x]), pixel),
                           limited(2 * qBlue(pixel) - qBlue(base[x]), pixel), qAlpha(pixel));
        }
    }
    return result;
}

QImage AreaFilters::reduceNoise(const QImage &image)
{
    const QImage source = PixelRows::premultiplied(image);
    QImage target = source;
    const int last = (source.width() - 1) * Channels;
    for (int y = 0; y < source.height(); ++y) {
        const std::array<const uchar *, 3> rows{bytes(source, y - 1), bytes(source, y),
                                                bytes(source, y + 1)};
        uchar *row = target.scanLine(y);
        for (int i = 0; i < last + Channels; ++i) {
            const int left = i < Channels ? i : i - Channels;
            const int right = i >= last ? i : i + Channels;
            row[i] = median(rows[0][left], rows[0][i], rows[0][right], rows[1][left], rows[1][i],
                            rows[1][right], rows[2][left], rows[2][i], rows[2][right]);
        }
    }
    return target;
}

QImage AreaFilters::findEdges(const QImage &image)
{
    return mapped(image, [](QRgb pixel, const Neighbours &around) {
        return gray(std::abs(around.across()) + std::abs(around.down()), pixel);
    });
}

QImage AreaFilters::emboss(const QImage &image)
{
    return mapped(image, [](QRgb pixel, const Neighbours &around) {
        return gray(qAlpha(pixel) / 2 + around.slope(), pixel);
    });
}

QImage AreaFilters::pixelate(const QImage &image)
{
    QImage result = PixelRows::premultiplied(image);
    const int side = std::max(2, std::max(result.width(), result.height()) / 64);
    for (int y = 0; y < result.height(); y += side) {
        for (int x = 0; x < result.width(); x += side) {
            const QRect block = QRect(x, y, side, side).intersected(result.rect());
            const QRgb color = mean(result, block);
            for (int line = block.top(); line <= block.bottom(); ++line)
                std::fill_n(PixelRows::row(result, line) + block.left(), block.width(), color);
        }
    }
    return result;
}

QImage AreaFilters::vignette(const QImage &image)
{
    QImage result = PixelRows::straight(image);
    const double centerX = (result.width() - 1) / 2.0;
    const double centerY = (result.height() - 1) / 2.0;
    const double corner = std::max(centerX * centerX + centerY * centerY, 1.0);
    for (int y = 0; y < result.height(); ++y) {
        QRgb *row = PixelRows::row(result, y);
        for (int x = 0; x < result.width(); ++x) {
            const double square = (x - centerX) * (x - centerX) + (y - centerY) * (y - centerY);
            const double distance = square / corner; // 1 in the corners
            // Of 256, so that no pixel needs a division.
            const int light = int(256.0 * (1.0 - 0.8 * distance * distance));
            row[x] = qRgba(qRed(row[x]) * light / 256, qGreen(row[x]) * light / 256,
                           qBlue(row[x]) * light / 256, qAlpha(row[x]));
        }
    }
    return result;
}
