// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FileRecord.h"
#include "NativeFiles.h"

#include <functional>
#include <unordered_set>
#include <vector>

namespace VornFrame {

class FileProgress;

/// Copies files and folders. A file that exists already is never written into: the copy is made
/// beside it under another name, and takes its place when it is complete. Links are copied as what
/// they are; special files are left out.
class FileCopier
{
public:
    using Path = NativeFiles::Path;

    /// Told about a folder or file that cannot be copied; \a code is one of FileCheck.
    using Report = std::function<void(const Path &source, const Path &target, int code)>;

    /// All that is copied is noted in \a record, which hasArrived() needs; null notes nothing. It is
    /// borrowed, as is \a progress.
    FileCopier(FileProgress &progress, Report report, FileRecord *record = nullptr);

    /// Copies \a source, which may be a folder with all that is in it, to the name \a target. Files
    /// that exist there stay, unless \a overwrite: then they go to the trash, or for good where
    /// there is none.
    void copy(const Path &source, const Path &target, bool overwrite);

    /// Whether all of \a source was copied to \a target, did not change since, and is on the disk.
    bool hasArrived(const Path &source, const Path &target) const;

private:
    using Facts = NativeFiles::Facts;

    struct Entry
    {
        const Path &path;
        Facts facts;
    };

    void copyChecked(const Entry &source, const Entry &target, bool overwrite);
    void copyFolder(const Entry &source, const Entry &target, bool overwrite);
    void copySubFolder(const Entry &source, const Entry &target, bool overwrite);
    void copyLeaf(const Entry &source, const Entry &target, bool overwrite);
    bool isReplaceable(const Entry &source, const Entry &target) const;
    void note(const Entry &source);
    bool makeCopy(const Entry &source, const Path &copy, Facts *copied);
    static bool putInPlace(const Path &copy, const Path &target, bool overwrite);
    bool isComplete(const Path &source, const Path &target, std::vector<Path> *folders) const;
    static bool isLeafComplete(const Path &source, const Facts &facts, const Path &target);

    FileProgress &m_progress;
    const Report m_report;
    FileRecord *const m_record;
    std::vector<NativeFiles::Identity> m_targets; ///< the folder that is filled, and those above
    std::unordered_set<quint64> m_replacements; ///< files that were copied with overwriting
};

} // namespace VornFrame
