// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

// The trash that the freedesktop.org desktops share. QFile::moveToTrash() knows it too, but must not
// be trusted with people's files: in Qt 6.4 it never returns when the trash cannot be written to or
// the name is too long for it, moves the file into the working directory when the user has no data
// folder, and copies across file systems without noticing that the disk is full; in Qt 6.8 it may
// report success with the file still in place.

#include "FileTrash.h"

#include "PosixFile.h"

#include <QByteArray>
#include <QDateTime>
#include <QStandardPaths>

#include <algorithm>
#include <cerrno>
#include <string>
#include <vector>

#include <sys/stat.h>

namespace VornFrame::FileTrash {

using namespace NativeFiles;

namespace {

/// A trash folder: the files in one sub-folder, where they came from in another.
struct Trash
{
    Path folder;
    Path top; ///< paths are noted relative to it; empty for absolute ones
};

constexpr size_t MaxNameLength = 255;

Path homeFolder()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return fromText(data) / "Trash";
}

/// Whether nobody else can look into, or swap, what is put into \a folder. The user's home trash may
/// be a link to another place.
bool isTrusted(const Trash &trash)
{
    struct stat status = {};
    if (trash.top.empty())
        return ::stat(trash.folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
    return ::lstat(trash.folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode)
           && status.st_uid == ::geteuid();
}

bool makeMissing(const Path &folder)
{
    return factsOf(folder).isFolder() || makeFolder(folder) || errno == EEXIST;
}

bool makeHome()
{
    const Path folder = homeFolder();
    std::error_code error;
    if (!std::filesystem::is_directory(folder.parent_path(), error))
        std::filesystem::create_directories(folder.parent_path(), error);
    return makeMissing(folder);
}

/// The highest folder above \a path on the same file system.
Path topFolder(const Path &path, quint64 device)
{
    Path top = path.parent_path();
    const Path mountPoint = mountPointOf(top);
    for (Path folder = top; factsOf(folder).identity.device == device; folder = top.parent_path()) {
        top = folder;
        if (top == mountPoint || top == top.parent_path())
            break;
    }
    return top;
}

/// Those of the file system of \a path, best first.
std::vector<Trash> trashesAtTop(const Path &path, quint64 device)
{
    std::vector<Trash> trashes;
    const Path top = topFolder(path, device);
    const std::string user = std::to_string(::geteuid());
    const Path shared = top / ".Trash";
    struct stat status = {};
    // The shared one must be sticky, and no link, or others could take what is put there.
    if (::lstat(shared.c_str(), &status) == 0 && S_ISDIR(status.st_mode)
        && (status.st_mode & S_ISVTX) != 0)
        trashes.push_back({shared / user, top});
    trashes.push_back({top / (".Trash-" + user), top});
    return trashes;
}

/// Where \a path could go, best first. Never another file system: that would be a copy, which can
/// fail half-way.
std::vector<Trash> trashesFor(const Path &path)
{
    const quint64 device = factsOf(path).identity.device;
    const Path home = homeFolder();
    if (makeHome() && identityOf(home).value_or(Identity()).device == device
        && mountPointOf(resolved(home / "files")) == mountPointOf(path))
        return {{home, {}}};
    return trashesAtTop(path, device);
}

/// Whether \a path is in \a folder, or is that.
bool holds(const Identity &folder, Path path)
{
    for (;;) {
        if (identityOf(path) == folder)
            return true;
        const Path parent = path.parent_path();
        if (parent == path)
            return false;
        path = parent;
    }
}

QByteArray infoText(const Path &path, const Trash &trash)
{
    const Path noted = trash.top.empty() ? path : path.lexically_relative(trash.top);
    const QByteArray encoded = QByteArray::fromStdString(noted.native())
                                   .toPercentEncoding(QByteArrayLiteral("/"));
    const QByteArray date =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-ddThh:mm:ss")).toLatin1();
    return "[Trash Info]\nPath=" + encoded + "\nDeletionDate=" + date + '\n';
}

enum class Written { Yes, NameTaken, No };

/// Writes where a file came from, before the file itself comes: so no other program takes its name.
Written writeInfo(const Path &path, const QByteArray &text)
{
    PosixFile file(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (!file.isOpen())
        return errno == EEXIST ? Written::NameTaken : Written::No;
    const ssize_t length = retried(
        [&] { return ::write(file.descriptor(), text.constData(), size_t(text.size())); });
    if (length == text.size() && file.close())
        return Written::Yes;
    removeFile(path);
    return Written::No;
}

/// \a name, shortened at the end of a character so that it can take \a room more bytes.
std::string shortened(std::string name, size_t room)
{
    if (name.size() + room <= MaxNameLength)
        return name;
    size_t length = MaxNameLength - room;
    const auto isInsideCharacter = [&] {
        return (static_cast<unsigned char>(name[length]) & 0xC0U) == 0x80U;
    };
    while (length > 1 && isInsideCharacter())
        --length;
    name.resize(length);
    return name;
}

bool takeTo(const Trash &trash, const Path &path)
{
    const Path files = trash.folder / "files";
    const Path infos = trash.folder / "info";
    if (!makeMissing(trash.folder) || !isTrusted(trash) || !makeMissing(files)
        || !makeMissing(infos))
        return false;

    const QByteArray text = infoText(path, trash);
    constexpr int MaxNames = 10'000;
    constexpr const char *InfoSuffix = ".trashinfo";
    for (int counter = 1; counter <= MaxNames; ++counter) {
        const std::string number = counter == 1 ? std::string() : '.' + std::to_string(counter);
        const size_t room = number.size() + std::string_view(InfoSuffix).size();
        const std::string name = shortened(path.filename().native(), room) + number;
        const Path info = infos / (name + InfoSuffix);
        const Written written = writeInfo(info, text);
        if (written == Written::No)
            return false;
        if (written == Written::NameTaken)
            continue;
        if (moveTo(path, files / name))
            return true;
        const bool isTaken = errno == EEXIST || errno == ENOTEMPTY;
        removeFile(info);
        if (!isTaken)
            return false;
    }
    return false;
}

} // namespace

bool take(const Path &path)
{
    const Path place = resolved(path);
    const std::vector<Trash> trashes = trashesFor(place);
    return std::any_of(trashes.cbegin(), trashes.cend(),
                       [&place](const Trash &trash) { return takeTo(trash, place); });
}

bool isInside(const Path &path)
{
    const Facts facts = factsOf(path);
    if (!facts.isFolder())
        return false;
    const Path place = resolved(path);
    std::vector<Trash> trashes = trashesAtTop(place, facts.identity.device);
    trashes.push_back({homeFolder(), {}});
    return std::any_of(trashes.cbegin(), trashes.cend(), [&](const Trash &trash) {
        // The folders of the trash may be links to other places.
        const Path files = trash.folder / "files";
        return holds(facts.identity, resolved(files))
               || holds(facts.identity, resolved(files / ""));
    });
}

} // namespace VornFrame::FileTrash
