// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1StringView>

/// The resources that the code itself reads; the style sheets name theirs by the same paths.
namespace VornFrame::ResourcePaths {

inline constexpr QLatin1StringView GlobalSheet(":/vornframe/vornframelight.css");
inline constexpr QLatin1StringView RibbonSheet(":/res/ribbonLight.css");
inline constexpr QLatin1StringView DockSheet(":/res/dockLight.css");
inline constexpr QLatin1StringView AddressSheet(":/res/addressLight.css");

inline constexpr QLatin1StringView Arrow(":/res/arrow.svg");
inline constexpr QLatin1StringView DownArrowNormal(":/res/downArrowNormal.svg");
inline constexpr QLatin1StringView RightArrowNormal(":/res/rightArrowNormal.svg");
inline constexpr QLatin1StringView Menu(":/res/menu.svg");

inline constexpr QLatin1StringView Collect(":/res/collect.svg");
inline constexpr QLatin1StringView Collected(":/res/collected.svg");
inline constexpr QLatin1StringView Search(":/res/search.svg");
inline constexpr QLatin1StringView Close(":/res/close.svg");
inline constexpr QLatin1StringView ToTop(":/res/toTop.svg");
inline constexpr QLatin1StringView ToBottom(":/res/toBottom.svg");

inline constexpr QLatin1StringView AddressArrowRight(":/res/arrowRight.svg");
inline constexpr QLatin1StringView AddressArrowDown(":/res/arrowDown.svg");
inline constexpr QLatin1StringView Backward(":/res/backward.svg");
inline constexpr QLatin1StringView Forward(":/res/forward.svg");
inline constexpr QLatin1StringView DirUp(":/res/dirup.svg");
inline constexpr QLatin1StringView Browse(":/res/browse.svg");

} // namespace VornFrame::ResourcePaths
