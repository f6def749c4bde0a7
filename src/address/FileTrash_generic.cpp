// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FileTrash.h"

#include <QFile>

namespace VornFrame::FileTrash {

bool take(const NativeFiles::Path &path)
{
    // Qt may report success with the file still in place.
    return QFile::moveToTrash(NativeFiles::toText(path)) && !NativeFiles::factsOf(path).exists();
}

bool isInside(const NativeFiles::Path & /*path*/)
{
    // The system refuses to put the trash into itself.
    return false;
}

} // namespace VornFrame::FileTrash
