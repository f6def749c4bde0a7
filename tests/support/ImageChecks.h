// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QPixmap>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QTest>

class QWidget;

/// What a widget paints, in numbers.
///
/// Positions and rectangles are logical ones. At device pixel ratio 2 each logical pixel stands for
/// two by two device pixels, and a check asks for all of them. A check returns an empty text if it
/// holds, else one that says where the image differs, and from what; VERIFY_IMAGE() turns it into a
/// failure of the test function.
namespace ImageChecks {

/// What shows where the widget paints nothing: a colour that no part of the library uses.
inline constexpr QColor Untouched(255, 0, 255);

/// \a widget and its children on a ground of Untouched, whether the widget is shown or not. With
/// \a withBackground, there is the background of the window on it.
QImage rendered(QWidget *widget, int ratio, bool withBackground = false);

/// An image of the logical \a size for painting what is expected, filled with Untouched.
QImage blank(QSize size, int ratio);

/// A pixmap of the logical \a size whose device pixels are black and white in turn: it turns grey
/// wherever it is scaled or moved by a fraction.
QPixmap checkerboard(QSize size, int ratio);

/// The colour of the first device pixel of the logical pixel \a at; invalid outside of the image.
QColor colorAt(const QImage &image, QPoint at);

/// \a rect is all \a color, apart from what of it lies in \a except.
QString isFilled(const QImage &image, const QRect &rect, const QColor &color,
                 const QList<QRect> &except = {});

/// At least one device pixel of \a rect is \a color.
QString contains(const QImage &image, const QRect &rect, const QColor &color);

/// The smallest rectangle around all logical pixels in \a rect that are not wholly \a background.
QRect paintedRect(const QImage &image, const QRect &rect, const QColor &background = Untouched);

/// \a image is \a expected in \a rect. Red, green and blue may each differ by \a tolerance; that is
/// for curves, whose share of a pixel depends a little on how they are painted.
QString isSame(const QImage &image, const QImage &expected, const QRect &rect, int tolerance = 0);

/// \a image is \a other as seen in a mirror, apart from what of \a image lies in \a except.
QString isMirrored(const QImage &image, const QImage &other, const QList<QRect> &except = {},
                   int tolerance = 0);

} // namespace ImageChecks

/// Fails the test function with the text that \a check returns, unless that is empty.
#define VERIFY_IMAGE(check) \
    do { \
        const QString imageFailure = (check); \
        QVERIFY2(imageFailure.isEmpty(), qPrintable(imageFailure)); \
    } while (false)
