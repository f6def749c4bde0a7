// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "CloseRange.h"

namespace CloseRange {

namespace {

bool isMeant(VornFrame::CloseMode mode, int tab, int index)
{
    switch (mode) {
    case VornFrame::CloseCurrent:
        return tab == index;
    case VornFrame::CloseAllLeft:
        return tab < index;
    case VornFrame::CloseAllRight:
        return tab > index;
    case VornFrame::CloseAllExceptCurrent:
        return tab != index;
    case VornFrame::CloseAll:
        return true;
    }
    return false;
}

} // namespace

QList<int> tabs(VornFrame::CloseMode mode, int index, int count)
{
    QList<int> found;
    if (index < 0 || index >= count)
        return found;
    for (int tab = 0; tab < count; ++tab) {
        if (isMeant(mode, tab, index))
            found.append(tab);
    }
    return found;
}

} // namespace CloseRange
