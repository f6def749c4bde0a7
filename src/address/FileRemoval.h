// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "NativeFiles.h"

namespace VornFrame {

class FileProgress;
class FileRecord;

namespace FileRemoval {

/// Moves \a path to the trash; removes it, with all that is in it, where that cannot be. Links are
/// removed, not what they lead to. Returns whether it is gone.
///
/// Left alone, untouched, are folders that cannot go as a whole: with another file system mounted
/// inside, with the trash inside, or in a folder that the user may not change.
bool remove(const NativeFiles::Path &path, FileProgress &progress);

/// The same for a source of which all in \a record was copied. Without a trash, nothing is removed
/// that is not recorded or has changed since.
bool removeCopied(const NativeFiles::Path &path, const FileRecord &record, FileProgress &progress);

/// Moves \a path to the trash. Returns whether it is there; if not, it is where it was.
bool moveToTrash(const NativeFiles::Path &path);

} // namespace FileRemoval

} // namespace VornFrame
