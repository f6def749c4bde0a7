// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

class QString;
class QWidget;

/// Message boxes of the program. All texts are shown as they are: a file name may look like markup.
namespace Messages {

/// Says \a text with \a reason below.
void warn(QWidget *window, const QString &text, const QString &reason);

} // namespace Messages
