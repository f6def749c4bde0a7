// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

class QFont;
class QIcon;
class QPixmap;
class QString;

#include <QtGlobal>

/// The picture on a work surface without tabs.
namespace Placeholder {

/// Draws \a icon and \a hint below it in \a font, in the pixels of a screen of \a ratio device
/// pixels to one.
QPixmap draw(const QString &hint, const QIcon &icon, const QFont &font, qreal ratio);

} // namespace Placeholder
