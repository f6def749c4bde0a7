// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FileRemoval.h"

#include "FileProgress.h"
#include "FileRecord.h"
#include "FileTrash.h"

namespace VornFrame::FileRemoval {

using namespace NativeFiles;

namespace {

/// Removes for good, to the end also where a part cannot be removed. With a \a record, only what it
/// holds.
bool removeTree(const Path &path, const FileRecord *record, FileProgress &progress)
{
    // What was copied is taken away to the end: the user cancelled the copying of more.
    if (progress.isCancelled() && !record)
        return false;
    progress.setCurrent(path);
    const Facts facts = factsOf(path);
    if (!facts.exists() || (record && !record->holds(path, facts)))
        return false;
    if (!facts.isFolder())
        return removeFile(path);
    for (const Path &name : namesIn(path).value_or(std::vector<Path>()))
        removeTree(path / name, record, progress);
    return removeFolder(path);
}

bool canGo(const Path &path)
{
    const Facts facts = factsOf(path);
    if (!facts.exists() || !isRemovable(path))
        return false;
    return !facts.isFolder() || !(hasMountPoint(path) || FileTrash::isInside(path));
}

bool removeAny(const Path &path, const FileRecord *record, FileProgress &progress)
{
    if (!canGo(path))
        return false;
    progress.setCurrent(path);
    return FileTrash::take(path) || removeTree(path, record, progress);
}

} // namespace

bool remove(const Path &path, FileProgress &progress)
{
    return removeAny(path, nullptr, progress);
}

bool removeCopied(const Path &path, const FileRecord &record, FileProgress &progress)
{
    return removeAny(path, &record, progress);
}

bool moveToTrash(const Path &path)
{
    return canGo(path) && FileTrash::take(path);
}

} // namespace VornFrame::FileRemoval
