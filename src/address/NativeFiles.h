// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <filesystem>
#include <optional>
#include <vector>

namespace VornFrame {

class FileProgress;

/// What the file operations ask of the system.
///
/// Paths are the system's own: on POSIX systems bytes, so that names which are no UTF-8 are seen
/// and copied too. Nothing here follows a link, and nothing throws; every function tells by its
/// result whether it did all that it says. What an interrupted call left undone is tried again.
namespace NativeFiles {

using Path = std::filesystem::path;

Path fromText(const QString &path);
QString toText(const Path &path);

enum class Kind {
    None, ///< does not exist, or cannot be looked at
    File,
    Link,
    Folder,
    Special, ///< pipe, socket or device: never opened
};

struct Identity
{
    quint64 device = 0;
    quint64 file = 0;

    bool operator==(const Identity &other) const
    {
        return device == other.device && file == other.file;
    }
};

struct Facts
{
    bool exists() const { return kind != Kind::None; }
    bool isFolder() const { return kind == Kind::Folder; }

    Kind kind = Kind::None;
    Identity identity;
    qint64 size = 0; ///< bytes, of a file
    qint64 modified = 0; ///< ns since an epoch of the system's choice
    quint32 mode = 0; ///< permissions as the system counts them
};

Facts factsOf(const Path &path);

/// What a path leads to in the end, links followed; nothing where that does not exist.
std::optional<Identity> identityOf(const Path &path);

/// \a path with all links before its last component resolved.
Path resolved(const Path &path);

/// The names of all that is in \a folder, hidden or not, except "." and "..". Nothing when it could
/// not be read to its end.
std::optional<std::vector<Path>> namesIn(const Path &folder);

/// Makes a folder that only its owner may read until setAttributes() is called.
bool makeFolder(const Path &folder);

/// Copies the data of the file \a source into the new file \a target, which has the permissions and
/// the time of the source then, and gives the facts of what was read in \a facts. Stops when the
/// user cancels. A file that shrinks meanwhile is not copied.
///
/// When this fails, \a target does not exist, unless it did before.
bool copyFile(const Path &source, const Path &target, Facts *facts, FileProgress &progress);

/// Makes a link at \a target that says what the one at \a source says.
bool copyLink(const Path &source, const Path &target);

/// What the link at \a path says; empty where there is none.
Path linkText(const Path &path);

/// Gives the folder \a path the permissions and the time in \a facts.
void setAttributes(const Path &path, const Facts &facts);

/// Moves within a file system. Fails when \a to exists.
bool moveTo(const Path &from, const Path &to);

/// Moves the file \a from within a file system, in place of the file \a to.
bool moveOver(const Path &from, const Path &to);

/// Remove a file, a link or a special file; an empty folder.
bool removeFile(const Path &path);
bool removeFolder(const Path &path);

/// Whether the user may take \a path out of its folder; a folder with all that is directly in it.
bool isRemovable(const Path &path);

/// Whether another file system, or another part of one, is mounted at the folder \a path or below
/// it; also where nobody knows.
bool hasMountPoint(const Path &path);

/// The folder above \a path, or \a path itself, where its file system is mounted. Only below that
/// can a file be moved, also when the same file system is mounted elsewhere too. Empty where nobody
/// knows. There must be no links in \a path.
Path mountPointOf(const Path &path);

/// Puts the file \a path on the disk.
bool syncFile(const Path &path);

/// Whether syncFileSystem() does it for all files at once.
bool canSyncFileSystems();

/// Puts all that was written to the file system of the folder \a folder on the disk.
bool syncFileSystem(const Path &folder);

} // namespace NativeFiles

} // namespace VornFrame
