// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QSize>

/// Sizes that the buttons of a bar and the pictures on them share, in px.
namespace VornFrame::DockMetrics {

inline constexpr QSize IconSize(24, 24); ///< one view's icon
inline constexpr int IconSpacing = 3; ///< between the icons of a button
inline constexpr int ButtonMargin = 3; ///< around them

} // namespace VornFrame::DockMetrics
