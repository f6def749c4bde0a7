// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "address/FaultBench.h"

/// Files and folders of every kind, and the operations on them that are tried under every fault.
class FaultScene
{
public:
    using Path = FaultBench::Path;

    enum class Work {
        Copy, ///< to a folder where nothing is in the way
        Replace, ///< a file, and a folder that is merged
        Cut,
        CutAndReplace,
        Delete,
    };

    /// With Trash::None a source is gone for good when it is removed, so that every mistake shows.
    enum class Trash {
        Home,
        Unsure, ///< there is one, which may fail; then what goes there is gone for good
        None,
    };

    /// The sources lie below \a sourceDisk, the target folder below \a targetDisk; both folders
    /// belong to this scene alone. The trash, and where it is not to be the files in its place, lie
    /// in \a dataHome and at the tops that are named.
    FaultScene(Path sourceDisk, Path targetDisk, Path dataHome);

    void make(Work work, Trash trash, const std::vector<Path> &tops = {});

    QStringList words(const QStringList &options = {}) const;
    Path dataHome() const { return m_dataHome; }
    Path source() const { return m_source; }
    Path target() const { return m_target; }

    /// What is wrong after the operation; empty where nothing is. \a isHurt: it was killed, or had
    /// no way to tidy up.
    QString faults(bool isHurt = false) const;

    /// Whether all that was asked for was done.
    bool isDone() const;

private:
    std::vector<Path> roots() const;
    bool replaces() const { return m_work == Work::Replace || m_work == Work::CutAndReplace; }
    bool cuts() const { return m_work == Work::Cut || m_work == Work::CutAndReplace; }

    const Path m_source;
    const Path m_target;
    const Path m_dataHome;
    std::vector<Path> m_tops;
    Work m_work = Work::Copy;
    Trash m_trash = Trash::Home;
    FileCensus m_before;
};
