// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QTextDocument;

/// What styles the text of a document has, in words.
namespace StyleChecks {

/// One entry a paragraph: its style, then each piece of text with the styles that it has; such as
/// "quote: <quote>so <quote bold>strong". Says it where a format is not that of the names that it
/// carries.
QStringList stylesOf(const QTextDocument &document);

} // namespace StyleChecks
