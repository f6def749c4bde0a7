// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "OutlineEntry.h"

#include <QList>

/// The headings of Markdown texts.
namespace MarkdownHeadings {

/// All headings of \a text in their order: those behind number signs and those underlined by a line
/// of "=" or "-", but not what stands in a fenced block of code.
QList<OutlineEntry> find(const QString &text);

} // namespace MarkdownHeadings
