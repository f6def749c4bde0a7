// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

class QString;
class QWidget;

/// Pictures of windows.
namespace Screenshot {

/// Shows \a window and writes its picture to the PNG file at \a path, in the pixels of its screen.
/// Returns whether the file could be written.
bool take(QWidget *window, const QString &path);

} // namespace Screenshot
