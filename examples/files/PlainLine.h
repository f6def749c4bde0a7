// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

class QString;

/// File names as they can be shown in one line of text.
namespace PlainLine {

/// \a text with spaces in place of line ends and other control characters.
QString of(const QString &text);

} // namespace PlainLine
