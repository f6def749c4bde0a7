// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QLatin1StringView>
#include <QPixmap>
#include <QSize>

class QPainter;

namespace VornFrame::Pixmaps {

/// The resource image \a path rendered for a logical \a size at the given device pixel \a ratio; \a
/// mode greys it where needed. Rendered once and then taken from the application's pixmap cache, so
/// it is cheap to call while painting.
QPixmap rendered(QLatin1StringView path, QSize size, qreal ratio, QIcon::Mode mode = QIcon::Normal);

/// The pixel ratio of what \a painter paints on in the end: a widget may be rendered into an image
/// that has another one than itself.
qreal deviceRatio(const QPainter &painter);

} // namespace VornFrame::Pixmaps
