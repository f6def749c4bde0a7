// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

/// Heights and widths in px by which a gallery reckons how large its popup must be.
namespace VornFrame::RibbonGalleryMetrics {

inline constexpr int SearchRowHeight = 32;
inline constexpr int GroupHeight = 98; ///< title and first row
inline constexpr int RowHeight = 74; ///< each row after the first
inline constexpr int NoMatchHeight = 30;
inline constexpr int ScrollBarWidth = 17;
inline constexpr int MenuBorder = 1;

} // namespace VornFrame::RibbonGalleryMetrics
