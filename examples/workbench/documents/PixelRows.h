// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

/// Pictures as lines of pixels.
namespace PixelRows {

/// \a image with 32 bits a pixel and colours that do not depend on their transparency.
inline QImage straight(const QImage &image)
{
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32
                                                         : QImage::Format_RGB32);
}

/// \a image with 32 bits a pixel and colours multiplied by their opacity, so that sums of them are
/// right.
inline QImage premultiplied(const QImage &image)
{
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

inline QRgb *row(QImage &image, int y)
{
    return reinterpret_cast<QRgb *>(image.scanLine(y));
}

inline const QRgb *row(const QImage &image, int y)
{
    return reinterpret_cast<const QRgb *>(image.constScanLine(y));
}

} // namespace PixelRows
