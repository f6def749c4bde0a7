// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMessageBox>

/// Message boxes of a program. All texts are shown as they are: a file name may look like markup.
namespace Messages {

/// Says \a text with \a reason below.
void warn(QWidget *window, const QString &text, const QString &reason);

/// Says \a text without holding the program up.
void tell(QWidget *window, const QString &text);

/// Says \a text in a friendly way.
void inform(QWidget *window, const QString &text);

enum class Answer { Save, Discard, Cancel };

/// Asks what is to become of unsaved changes to the file of \a name.
Answer askToSave(QWidget *window, const QString &name);

/// Asks whether to go on with \a action, the name of a button; the safe answer is the default.
bool confirm(QWidget *window, const QString &text, const QString &action);

} // namespace Messages
