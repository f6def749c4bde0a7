// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

// For systems that are no POSIX systems: only what the standard library and Qt know of files.

#include "NativeFiles.h"

#include "FileProgress.h"

#include <QFile>
#include <QFileInfo>

#include <system_error>

namespace VornFrame::NativeFiles {

namespace fs = std::filesystem;

namespace {

constexpr qint64 Block = qint64(1024) * 1024;

Kind kindOf(fs::file_type type)
{
    switch (type) {
    case fs::file_type::none:
    case fs::file_type::not_found:
        return Kind::None;
    case fs::file_type::regular:
        return Kind::File;
    case fs::file_type::symlink:
        return Kind::Link;
    case fs::file_type::directory:
        return Kind::Folder;
    default:
        return Kind::Special;
    }
}

/// The path without any link in it takes the place of the number that POSIX systems give a file.
Identity identityOfName(const Path &path)
{
    const Path place = resolved(path);
    return {fs::hash_value(place.root_path()), fs::hash_value(place)};
}

Identity identityFrom(const Path &path)
{
    std::error_code error;
    return identityOfName(fs::weakly_canonical(path, error));
}

bool copyData(QFile &source, QFile &target, FileProgress &progress)
{
    std::vector<char> buffer(static_cast<std::size_t>(Block));
    const qint64 size = source.size();
    for (qint64 done = 0; done < size;) {
        const qint64 length = progress.isCancelled() ? -1 : source.read(buffer.data(), Block);
        if (length <= 0 || target.write(buffer.data(), length) != length)
            return false;
        done += length;
        progress.add(length);
    }
    return target.flush();
}

void applyAttributes(const Path &path, const Facts &facts)
{
    std::error_code error;
    fs::last_write_time(path, fs::file_time_type(fs::file_time_type::duration(facts.modified)),
                        error);
    fs::permissions(path, fs::perms(facts.mode), error);
}

} // namespace

Path fromText(const QString &path)
{
    QString text = path;
    while (text.size() > 3 && text.endsWith(u'/'))
        text.chop(1);
    return Path(text.toStdU16String()).make_preferred();
}

QString toText(const Path &path)
{
    return QString::fromStdU16String(path.generic_u16string());
}

Facts factsOf(const Path &path)
{
    std::error_code error;
    const fs::file_status status = fs::symlink_status(path, error);
    Facts facts;
    facts.kind = kindOf(status.type());
    if (!facts.exists())
        return facts;
    facts.mode = quint32(status.permissions());
    facts.identity = facts.kind == Kind::Link ? identityOfName(path) : identityFrom(path);
    if (facts.kind == Kind::Link)
        return facts;
    facts.size = facts.kind == Kind::File ? qint64(fs::file_size(path, error)) : 0;
    facts.modified = qint64(fs::last_write_time(path, error).time_since_epoch().count());
    return facts;
}

std::optional<Identity> identityOf(const Path &path)
{
    std::error_code error;
    if (!fs::exists(path, error))
        return std::nullopt;
    return identityFrom(path);
}

Path resolved(const Path &path)
{
    std::error_code error;
    const Path folder = fs::weakly_canonical(path.parent_path(), error);
    return error || path.parent_path().empty() ? path : folder / path.filename();
}

std::optional<std::vector<Path>> namesIn(const Path &folder)
{
    std::error_code error;
    std::vector<Path> names;
    fs::directory_iterator entry(folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        names.push_back(entry->path().filename());
    if (error)
        return std::nullopt;
    return names;
}

bool makeFolder(const Path &folder)
{
    std::error_code error;
    return fs::create_directory(folder, error);
}

bool copyFile(const Path &source, const Path &target, Facts *facts, FileProgress &progress)
{
    *facts = factsOf(source);
    QFile from(toText(source));
    QFile to(toText(target));
    if (facts->kind != Kind::File || !from.open(QIODevice::ReadOnly)
        || !to.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return false;
    const bool isCopied = copyData(from, to, progress);
    to.close();
    if (isCopied && to.error() == QFileDevice::NoError) {
        applyAttributes(target, *facts);
        return true;
    }
    removeFile(target);
    return false;
}

bool copyLink(const Path &source, const Path &target)
{
    std::error_code error;
    fs::copy_symlink(source, target, error);
    return !error;
}

Path linkText(const Path &path)
{
    std::error_code error;
    return fs::read_symlink(path, error);
}

void setAttributes(const Path &path, const Facts &facts)
{
    applyAttributes(path, facts);
}

bool moveTo(const Path &from, const Path &to)
{
    // Both refuse to replace anything.
    return factsOf(from).isFolder() ? !factsOf(to).exists() && moveOver(from, to)
                                    : QFile(toText(from)).rename(toText(to));
}

bool moveOver(const Path &from, const Path &to)
{
    std::error_code error;
    fs::rename(from, to, error);
    return !error;
}

bool removeFile(const Path &path)
{
    std::error_code error;
    return !factsOf(path).isFolder() && fs::remove(path, error);
}

bool removeFolder(const Path &path)
{
    std::error_code error;
    return fs::is_empty(path, error) && fs::remove(path, error);
}

bool isRemovable(const Path &path)
{
    // Here the rights to a file itself decide, which only the attempt shows.
    return factsOf(path).exists();
}

Path mountPointOf(const Path &path)
{
    return path.root_path();
}

bool hasMountPoint(const Path &path)
{
    return path.has_root_path() && !path.has_relative_path();
}

bool syncFile(const Path &path)
{
    QFile file(toText(path));
    return file.open(QIODevice::ReadWrite) && file.flush();
}

bool canSyncFileSystems()
{
    return false;
}

bool syncFileSystem(const Path & /*folder*/)
{
    return true;
}

} // namespace VornFrame::NativeFiles
