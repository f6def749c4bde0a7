// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1StringView>

class QWidget;

namespace VornFrame::StyleSheets {

/// Sets the sheet in the resource \a path on \a widget, in place of the one that it had. A resource
/// that cannot be read counts as an empty sheet.
void load(QWidget *widget, QLatin1StringView path);

/// Makes the style sheet of \a window, followed by the library's global sheet, the application's
/// style sheet, in place of the one that it had. The sheet of \a window itself stays as it is.
void installGlobalSheet(const QWidget *window);

} // namespace VornFrame::StyleSheets
