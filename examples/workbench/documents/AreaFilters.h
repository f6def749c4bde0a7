// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

/// Filters that look at a pixel and what is around it, or at where it is.
namespace AreaFilters {

QImage blur(const QImage &image);
QImage strongBlur(const QImage &image);
QImage sharpen(const QImage &image);
QImage reduceNoise(const QImage &image);
QImage findEdges(const QImage &image);
QImage emboss(const QImage &image);
QImage pixelate(const QImage &image);
QImage vignette(const QImage &image);

} // namespace AreaFilters
