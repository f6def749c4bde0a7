// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FileRemoval.h"

#include "FileProgress.h"
#include "FileRecord.h"
#include "FileTrash.h"

namespace VornFrame::FileRemoval {

using namespace NativeFiles;

namespace {

/// What removeTree() needs to know at every level.
struct Removal
{
    const FileRecord *record; ///< limits it to what was copied; null for all
    FileProgress &progress;
    quint64 device;
};

/// Removes for good, to the end also where a part cannot be removed. What has been mounted inside
/// since it began stays.
bool removeTree(const Path &path, const Removal &removal)
{
    // What was copied is taken away to the end: the user cancelled the copying of more.
    if (removal.progress.isCancelled() && !removal.record)
        return false;
    removal.progress.setCurrent(path);
    const Facts facts = factsOf(path);
    if (!facts.exists() || (removal.record && !removal.record->holds(path, facts)))
        return false;
    if (!facts.isFolder())
        return removeFile(path);
    if (facts.identity.device != removal.device)
        return false;
    for (const Path &name : namesIn(path).value_or(std::vector<Path>())) {
        // Somebody may have put another folder, or a link to one, in its place meanwhile.
        if (!(factsOf(path).identity == facts.identity))
            return false;
        removeTree(path / name, removal);
    }
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
    const quint64 device = factsOf(path).identity.device;
    return FileTrash::take(path) || removeTree(path, {record, progress, device});
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
