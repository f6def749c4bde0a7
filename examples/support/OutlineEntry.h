// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// A line in the outline of a document.
struct OutlineEntry
{
    QString text;
    int level = 1; ///< 1 is the highest; the level below belongs to it
    int line = -1; ///< where it leads, with base 0; -1 if it leads to none
};
