// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

/// Filters that look at one pixel at a time.
namespace ColorFilters {

QImage grayscale(const QImage &image);
QImage sepia(const QImage &image);
QImage invert(const QImage &image);
QImage warm(const QImage &image);
QImage cool(const QImage &image);
QImage saturate(const QImage &image);
QImage desaturate(const QImage &image);
QImage redChannel(const QImage &image);
QImage greenChannel(const QImage &image);
QImage blueChannel(const QImage &image);
QImage brighter(const QImage &image);
QImage darker(const QImage &image);
QImage moreContrast(const QImage &image);
QImage lessContrast(const QImage &image);
QImage gammaUp(const QImage &image);
QImage gammaDown(const QImage &image);
QImage posterize(const QImage &image);
QImage threshold(const QImage &image);
QImage solarize(const QImage &image);

} // namespace ColorFilters
