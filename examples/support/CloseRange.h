// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/DockContentWidget.h>

#include <QList>

/// What a wish to close tabs means.
namespace CloseRange {

/// The tabs to close, in rising order, of a section that holds \a count, when \a mode was wished
/// for at tab \a index. None if there is no such tab.
QList<int> tabs(VornFrame::CloseMode mode, int index, int count);

} // namespace CloseRange
