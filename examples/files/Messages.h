// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

class QString;
class QWidget;

/// Message boxes of the program. All texts are shown as they are: a file name may look like markup.
namespace Messages {

/// Says \a text. Returns at once; the box stays until the user closes it.
void warn(QWidget *window, const QString &text);

} // namespace Messages
