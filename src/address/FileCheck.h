// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "NativeFiles.h"

namespace VornFrame::FileCheck {

/// What stands between a source and a target. The numbers are those that an error is shown by; 6
/// and 8 are known there and never found here.
enum Code {
    SourceMissing = 0,
    SameFile = 1, ///< two names of one file or folder, or one name
    TargetInsideSource = 2,
    BothFiles = 3,
    BothFolders = 4,
    FileAndFolder = 5,
    PermissionDenied = 6,
    TargetMissing = 7,
    Unknown = 8,
};

/// Whether both are names of one file or folder, after links are followed.
bool isSame(const NativeFiles::Path &source, const NativeFiles::Path &target);

/// Checked in the order of the numbers. A link counts as a file, whatever it leads to.
Code check(const NativeFiles::Path &source, const NativeFiles::Path &target);

/// The part of check() that looks at nothing but the kinds: for what lies in folders that were
/// checked already.
Code checkKinds(const NativeFiles::Facts &source, const NativeFiles::Facts &target);

} // namespace VornFrame::FileCheck
