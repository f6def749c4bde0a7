// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

/// Painted views, the same each time.
namespace Landscape {

/// Mountains behind water in the evening.
QImage fjord(const QSize &size);

/// A lighthouse on a rock at noon.
QImage lighthouse(const QSize &size);

} // namespace Landscape
