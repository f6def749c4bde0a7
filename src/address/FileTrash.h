// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "NativeFiles.h"

namespace VornFrame::FileTrash {

/// Moves \a path into the user's trash, within its file system. Returns whether it is there; if not,
/// it is where it was.
bool take(const NativeFiles::Path &path);

/// Whether the trash lies in the folder \a path.
bool isInside(const NativeFiles::Path &path);

} // namespace VornFrame::FileTrash
