// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "NativeFiles.h"

#include "FileProgress.h"
#include "PosixFile.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#ifdef Q_OS_LINUX
#    include <mntent.h>
#else
#    include <sys/mount.h>
#    include <sys/param.h>
#endif

namespace VornFrame::NativeFiles {

namespace {

constexpr mode_t OwnerOnlyFile = S_IRUSR | S_IWUSR;
constexpr mode_t OwnerOnlyFolder = S_IRWXU;
constexpr mode_t AllPermissions = S_IRWXU | S_IRWXG | S_IRWXO;

qint64 modifiedAt(const struct stat &status)
{
#ifdef Q_OS_DARWIN
    const timespec &time = status.st_mtimespec;
#else
    const timespec &time = status.st_mtim;
#endif
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

std::array<timespec, 2> timesOf(const Facts &facts)
{
    constexpr qint64 Second = 1'000'000'000;
    // Rounded down also before 1970, where the nanoseconds still count forwards.
    const qint64 nanoseconds = ((facts.modified % Second) + Second) % Second;
    std::array<timespec, 2> times = {};
    times[0].tv_nsec = UTIME_OMIT;
    times[1].tv_sec = time_t((facts.modified - nanoseconds) / Second);
    times[1].tv_nsec = long(nanoseconds);
    return times;
}

Kind kindOf(mode_t mode)
{
    if (S_ISREG(mode))
        return Kind::File;
    if (S_ISDIR(mode))
        return Kind::Folder;
    return S_ISLNK(mode) ? Kind::Link : Kind::Special;
}

Facts factsFrom(const struct stat &status)
{
    Facts facts;
    facts.kind = kindOf(status.st_mode);
    facts.identity = {quint64(status.st_dev), quint64(status.st_ino)};
    facts.size = facts.kind == Kind::File ? qint64(status.st_size) : 0;
    facts.modified = modifiedAt(status);
    // Without the bits that run a program as its owner: the owner of the copy is another one.
    facts.mode = status.st_mode & AllPermissions;
    return facts;
}

// --- The data of a file ---------------------------------------------------------------------

/// Copies the data of an open file. Ranges are half open, in bytes.
class DataCopy
{
public:
    DataCopy(int from, int to, FileProgress &progress)
        : m_from(from), m_to(to), m_progress(progress)
    {}

    bool copy(const struct stat &status)
    {
        const off_t size = status.st_size;
        // Some files of the system say that they are empty and are not.
        if (size == 0)
            return copyRest();
        constexpr qint64 BytesPerBlock = 512;
        if (qint64(status.st_blocks) * BytesPerBlock < qint64(size))
            return copySparse(size);
        return copyRange(0, size);
    }

private:
    /// Leaves out the holes, which would fill a disk with zeros.
    bool copySparse(off_t size)
    {
        for (off_t position = 0; position < size;) {
            const off_t data = ::lseek(m_from, position, SEEK_DATA);
            if (data == -1 && errno == ENXIO)
                break;
            if (data == -1)
                return copyRange(position, size);
            const off_t hole = ::lseek(m_from, data, SEEK_HOLE);
            const off_t end = hole == -1 ? size : std::min(hole, size);
            if (data < size && !copyRange(data, end))
                return false;
            position = std::max(end, data);
        }
        // Past the end of a file that shrinks meanwhile all looks like a hole.
        struct stat status = {};
        if (retried([&] { return ::fstat(m_from, &status); }) != 0 || status.st_size < size)
            return false;
        return retried([&] { return ::ftruncate(m_to, size); }) == 0;
    }

    bool copyRange(off_t begin, off_t end)
    {
        off_t position = begin;
#ifdef Q_OS_LINUX
        // Within the kernel; some file systems share the data between both files. Where it does not
        // work, or says that there is nothing, reading and writing finds out why.
        constexpr off_t Chunk = off_t(16) * 1024 * 1024;
        off_t written = begin;
        while (position < end && !m_progress.isCancelled()) {
            const auto length = size_t(std::min(Chunk, end - position));
            const ssize_t copied = retried(
                [&] { return ::copy_file_range(m_from, &position, m_to, &written, length, 0); });
            if (copied <= 0)
                break;
            m_progress.add(copied);
        }
#endif
        while (position < end) {
            const ssize_t copied = copyBlock(position, end - position);
            if (copied <= 0)
                return false;
            position += copied;
        }
        return true;
    }

    bool copyRest()
    {
        for (off_t position = 0;;) {
            const ssize_t copied = copyBlock(position, off_t(Block));
            if (copied <= 0)
                return copied == 0;
            position += copied;
        }
    }

    /// How many bytes were copied: 0 at the end of the file, -1 after an error.
    ssize_t copyBlock(off_t position, off_t most)
    {
        if (m_progress.isCancelled())
            return -1;
        m_buffer.resize(Block);
        const size_t wanted = std::min(size_t(most), Block);
        const ssize_t length = retried(
            [&] { return ::pread(m_from, m_buffer.data(), wanted, position); });
        for (ssize_t written = 0; written < length;) {
            const ssize_t result = retried([&] {
                return ::pwrite(m_to, m_buffer.data() + written, size_t(length - written),
                                position + written);
            });
            if (result <= 0)
                return -1;
            written += result;
        }
        m_progress.add(std::max<ssize_t>(length, 0));
        return length;
    }

    static constexpr size_t Block = size_t(256) * 1024;

    const int m_from;
    const int m_to;
    FileProgress &m_progress;
    std::vector<char> m_buffer;
};

/// Fills the new file \a target; what it leaves behind when it fails is for the caller to remove.
bool fillFile(PosixFile &source, PosixFile &target, const struct stat &status,
              FileProgress &progress)
{
    DataCopy data(source.descriptor(), target.descriptor(), progress);
    if (!data.copy(status))
        return false;
    const Facts facts = factsFrom(status);
    // Not every file system has permissions and times to set; the data matters.
    static_cast<void>(retried([&] { return ::fchmod(target.descriptor(), mode_t(facts.mode)); }));
    static_cast<void>(
        retried([&] { return ::futimens(target.descriptor(), timesOf(facts).data()); }));
    return target.close();
}

/// Moves without replacing anything where the system has no call for that: reserves the name first
/// and then moves over what it has just made.
bool moveToReserved(const Path &from, const Path &to)
{
    if (factsOf(from).isFolder()) {
        if (retried([&] { return ::mkdir(to.c_str(), OwnerOnlyFolder); }) != 0)
            return false;
    } else if (!PosixFile(to, O_WRONLY | O_CREAT | O_EXCL, OwnerOnlyFile).isOpen()) {
        return false;
    }
    if (moveOver(from, to))
        return true;
    const int error = errno;
    // What did not stay at its place may have been moved nonetheless.
    if (factsOf(to).isFolder())
        removeFolder(to);
    else if (factsOf(from).exists())
        removeFile(to);
    errno = error;
    return false;
}

/// Null at the end, where errno is 0, and after an error.
const dirent *nextEntry(DIR *stream)
{
    constexpr int MaxTries = 100;
    for (int tries = 1;; ++tries) {
        errno = 0;
        const dirent *entry = ::readdir(stream);
        if (entry != nullptr || errno != EINTR || tries == MaxTries)
            return entry;
    }
}

/// Whether the user may add to a folder and take out of it.
bool isChangeable(const Path &folder)
{
    return retried([&] { return ::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS); })
           == 0;
}

#ifdef Q_OS_LINUX

/// Nothing, and why in errno, when it could not be read to its end.
std::optional<std::vector<std::string>> readMountPoints()
{
    PosixFile file("/proc/self/mounts", O_RDONLY);
    const std::unique_ptr<FILE, int (*)(FILE *)> table(
        file.isOpen() ? ::fdopen(file.descriptor(), "r") : nullptr, ::endmntent);
    if (!table)
        return std::nullopt;
    file.release();
    std::vector<std::string> points;
    mntent mount = {};
    std::array<char, 16384> buffer = {};
    while (::getmntent_r(table.get(), &mount, buffer.data(), int(buffer.size())) != nullptr)
        points.emplace_back(mount.mnt_dir);
    if (std::ferror(table.get()) != 0)
        return std::nullopt;
    return points;
}

#endif

/// Nothing when it could not be found out.
std::optional<std::vector<std::string>> mountPoints()
{
    std::optional<std::vector<std::string>> points;
#ifdef Q_OS_LINUX
    constexpr int MaxTries = 3;
    for (int tries = 0; tries < MaxTries && !points; ++tries)
        points = readMountPoints();
#else
    struct statfs *mounts = nullptr;
    const int count = ::getmntinfo(&mounts, MNT_NOWAIT);
    points.emplace();
    for (int i = 0; i < count; ++i)
        points->emplace_back(&mounts[i].f_mntonname[0]);
#endif
    // There is always one.
    return points && !points->empty() ? points : std::nullopt;
}

bool isAtOrBelow(const std::string &path, const std::string &folder)
{
    const std::string start = folder == "/" ? folder : folder + '/';
    return path == folder || path.compare(0, start.size(), start) == 0;
}

} // namespace

// --- Paths and facts ------------------------------------------------------------------------

Path fromText(const QString &path)
{
    std::string bytes = QFile::encodeName(path).toStdString();
    // A slash at the end would name what a link leads to, and hide the name of a folder.
    while (bytes.size() > 1 && bytes.back() == '/')
        bytes.pop_back();
    return Path(bytes);
}

QString toText(const Path &path)
{
    return QFile::decodeName(path.c_str());
}

Facts factsOf(const Path &path)
{
    struct stat status = {};
    if (retried([&] { return ::lstat(path.c_str(), &status); }) != 0)
        return {};
    return factsFrom(status);
}

std::optional<Identity> identityOf(const Path &path)
{
    struct stat status = {};
    if (retried([&] { return ::stat(path.c_str(), &status); }) != 0)
        return std::nullopt;
    return factsFrom(status).identity;
}

Path resolved(const Path &path)
{
    std::error_code error;
    const Path folder = std::filesystem::weakly_canonical(path.parent_path(), error);
    return error || path.parent_path().empty() ? path : folder / path.filename();
}

std::optional<std::vector<Path>> namesIn(const Path &folder)
{
    PosixFile file(folder, O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
    DIR *stream = file.isOpen() ? ::fdopendir(file.descriptor()) : nullptr;
    if (stream == nullptr)
        return std::nullopt;
    file.release();
    std::vector<Path> names;
    while (const dirent *entry = nextEntry(stream)) {
        const char *name = &entry->d_name[0];
        if (std::strcmp(name, ".") != 0 && std::strcmp(name, "..") != 0)
            names.emplace_back(name);
    }
    const bool complete = errno == 0;
    ::closedir(stream);
    if (!complete)
        return std::nullopt;
    return names;
}

Path linkText(const Path &path)
{
    std::error_code error;
    return std::filesystem::read_symlink(path, error);
}

// --- Making ---------------------------------------------------------------------------------

bool makeFolder(const Path &folder)
{
    return retried([&] { return ::mkdir(folder.c_str(), OwnerOnlyFolder); }) == 0;
}

bool copyFile(const Path &source, const Path &target, Facts *facts, FileProgress &progress)
{
    // Not waiting for anything: what was a file a moment ago may be a pipe by now.
    PosixFile from(source, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
    struct stat status = {};
    if (!from.isOpen() || retried([&] { return ::fstat(from.descriptor(), &status); }) != 0
        || !S_ISREG(status.st_mode))
        return false;
    *facts = factsFrom(status);
    PosixFile to(target, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, OwnerOnlyFile);
    if (!to.isOpen())
        return false;
    if (fillFile(from, to, status, progress))
        return true;
    removeFile(target);
    return false;
}

bool copyLink(const Path &source, const Path &target)
{
    const Path text = linkText(source);
    return !text.empty() && retried([&] { return ::symlink(text.c_str(), target.c_str()); }) == 0;
}

void setAttributes(const Path &path, const Facts &facts)
{
    // Links have neither to set, and no other kind is handed in that one could have replaced.
    const PosixFile folder(path, O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
    if (!folder.isOpen())
        return;
    static_cast<void>(
        retried([&] { return ::futimens(folder.descriptor(), timesOf(facts).data()); }));
    static_cast<void>(retried([&] { return ::fchmod(folder.descriptor(), mode_t(facts.mode)); }));
}

// --- Moving and removing --------------------------------------------------------------------

bool moveTo(const Path &from, const Path &to)
{
#ifdef Q_OS_LINUX
    const int result = retried([&] {
        return ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
    });
#elif defined(Q_OS_DARWIN)
    const int result = retried([&] { return ::renamex_np(from.c_str(), to.c_str(), RENAME_EXCL); });
#else
    const int result = -1;
    errno = ENOTSUP;
#endif
    if (result == 0)
        return true;
    if (errno == EINVAL || errno == ENOSYS || errno == ENOTSUP)
        return moveToReserved(from, to);
    return false;
}

bool moveOver(const Path &from, const Path &to)
{
    return retried([&] { return ::rename(from.c_str(), to.c_str()); }) == 0;
}

bool removeFile(const Path &path)
{
    return retried([&] { return ::unlink(path.c_str()); }) == 0;
}

bool removeFolder(const Path &path)
{
    return retried([&] { return ::rmdir(path.c_str()); }) == 0;
}

bool isRemovable(const Path &path)
{
    const Path folder = resolved(path).parent_path();
    if (!isChangeable(folder))
        return false;
    struct stat folderStatus = {};
    struct stat status = {};
    if (retried([&] { return ::stat(folder.c_str(), &folderStatus); }) != 0
        || retried([&] { return ::lstat(path.c_str(), &status); }) != 0)
        return false;
    // Neither to the trash nor for good; but a part of what is further below could be removed.
    if (S_ISDIR(status.st_mode) && !isChangeable(path)
        && !namesIn(path).value_or(std::vector<Path>(1)).empty())
        return false;
    const uid_t user = ::geteuid();
    const bool isSticky = (folderStatus.st_mode & S_ISVTX) != 0;
    return !isSticky || user == 0 || status.st_uid == user || folderStatus.st_uid == user;
}

bool hasMountPoint(const Path &path)
{
    std::error_code error;
    const Path folder = std::filesystem::canonical(path, error);
    const std::optional<std::vector<std::string>> mounts = mountPoints();
    if (error || !mounts)
        return true;
    return std::any_of(mounts->cbegin(), mounts->cend(), [&folder](const std::string &mount) {
        return isAtOrBelow(mount, folder.native());
    });
}

Path mountPointOf(const Path &path)
{
    std::string nearest;
    for (const std::string &mount : mountPoints().value_or(std::vector<std::string>())) {
        if (isAtOrBelow(path.native(), mount) && mount.size() > nearest.size())
            nearest = mount;
    }
    return nearest;
}

// --- To the disk ----------------------------------------------------------------------------

bool syncFile(const Path &path)
{
    const PosixFile file(path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
    return file.isOpen() && retried([&] { return ::fsync(file.descriptor()); }) == 0;
}

#ifdef Q_OS_LINUX

bool canSyncFileSystems()
{
    return true;
}

bool syncFileSystem(const Path &folder)
{
    const PosixFile file(folder, O_RDONLY | O_DIRECTORY);
    return file.isOpen() && retried([&] { return ::syncfs(file.descriptor()); }) == 0;
}

#else

bool canSyncFileSystems()
{
    return false;
}

bool syncFileSystem(const Path &)
{
    return true;
}

#endif

} // namespace VornFrame::NativeFiles
