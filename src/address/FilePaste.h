// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FileCopier.h"
#include "FileRecord.h"

#include <functional>
#include <set>
#include <utility>
#include <vector>

namespace VornFrame {

class FileProgress;

/// Pastes files and folders into a folder: finds out what is in the way, asks, and copies. Cut
/// sources are removed when all of them has arrived.
class FilePaste
{
public:
    using Path = NativeFiles::Path;

    /// What shall become of a source whose name is taken.
    enum class Answer { Replace, SaveCopy, Skip };

    struct Dialogs
    {
        std::function<Answer(const Path &target, bool isFile)> ask;
        FileCopier::Report report;
    };

    /// \a progress is borrowed.
    FilePaste(bool isCut, Dialogs dialogs, FileProgress &progress);

    void run(const std::vector<Path> &sources, const Path &folder);

private:
    Q_DISABLE_COPY_MOVE(FilePaste)

    void pasteOne(const Path &source, const Path &folder);
    void copyTo(const Path &source, const Path &target, bool overwrite);
    void settle();
    void settleAround(const Path &source);

    const bool m_isCut;
    const Dialogs m_dialogs;
    FileProgress &m_progress;
    FileRecord m_record;
    FileCopier m_copier;
    std::vector<std::pair<Path, Path>>
        m_copied; ///< cut sources not removed yet, with their targets
    std::set<Path> m_waiting; ///< the same sources, to be looked up
};

/// \a name with "Copy_", the \a counter and "_of_" before it, shortened before its suffix where it
/// would be too long for a file system.
QString copyName(int counter, const QString &name);

} // namespace VornFrame
