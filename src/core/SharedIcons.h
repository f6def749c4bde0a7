// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>
#include <QLatin1StringView>
#include <QStyle>

/// Icons that many widgets show. An SVG icon is parsed as soon as it is made, so each is made once
/// and shared until the application ends.
namespace VornFrame::SharedIcons {

/// The icon in the resource \a path.
QIcon icon(QLatin1StringView path);

/// An icon with the resource \a off, and \a on for the checked state.
QIcon toggleIcon(QLatin1StringView off, QLatin1StringView on);

/// An icon of the application's style, asked for once as long as the application has that style: a
/// style may look for it in all folders of a theme.
QIcon standardIcon(QStyle::StandardPixmap icon);

} // namespace VornFrame::SharedIcons
