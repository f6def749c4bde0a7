// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FileCopier.h"

#include "FileCheck.h"
#include "FileProgress.h"
#include "FileRemoval.h"

#include <QDebug>
#include <QRandomGenerator>
#include <QScopeGuard>

#include <algorithm>
#include <set>
#include <system_error>
#include <utility>

namespace VornFrame {

using namespace NativeFiles;
using namespace Qt::StringLiterals;

namespace {

/// A name beside \a target that nobody sees in the tree, and that nobody else will choose.
Path temporaryName(const Path &target)
{
    const QString number = QString::number(QRandomGenerator::global()->generate64(), 36);
    return target.parent_path() / fromText(u".vornframe-"_s + number);
}

void logFailure(const Path &source, const Path &target)
{
    const QString message = u"Error: copy file from %1 to %2"_s;
    qDebug().noquote() << message.arg(toText(source), toText(target));
}

} // namespace

FileCopier::FileCopier(FileProgress &progress, Report report, FileRecord *record)
    : m_progress(progress), m_report(std::move(report)), m_record(record)
{}

void FileCopier::copy(const Path &source, const Path &target, bool overwrite)
{
    switch (const FileCheck::Code code = FileCheck::check(source, target)) {
    case FileCheck::SameFile:
        return;
    case FileCheck::SourceMissing:
    case FileCheck::TargetInsideSource:
    case FileCheck::FileAndFolder:
    case FileCheck::PermissionDenied:
        m_report(source, target, code);
        return;
    default:
        break;
    }
    m_replacements.clear();
    const Facts facts = factsOf(source);
    if (facts.isFolder() && !target.parent_path().empty()) {
        std::error_code error;
        std::filesystem::create_directories(target.parent_path(), error);
    }
    // A link on the way to the target may be what is replaced.
    const Path place = resolved(target);
    copyChecked({source, facts}, {place, factsOf(place)}, overwrite);
}

void FileCopier::copyChecked(const Entry &source, const Entry &target, bool overwrite)
{
    m_progress.setCurrent(source.path);
    switch (source.facts.kind) {
    case Kind::Folder:
        copyFolder(source, target, overwrite);
        break;
    case Kind::File:
    case Kind::Link:
        copyLeaf(source, target, overwrite);
        break;
    case Kind::Special:
    case Kind::None:
        break;
    }
}

// --- Folders --------------------------------------------------------------------------------

void FileCopier::copyFolder(const Entry &source, const Entry &target, bool overwrite)
{
    const bool isNew = !target.facts.exists();
    if (isNew && !makeFolder(target.path))
        return;
    m_targets.push_back(isNew ? factsOf(target.path).identity : target.facts.identity);
    const auto leave = qScopeGuard([this] { m_targets.pop_back(); });
    // In a new folder there is nothing to look for.
    const auto found = [isNew](const Path &path) { return isNew ? Facts() : factsOf(path); };

    const std::optional<std::vector<Path>> names = namesIn(source.path);
    std::vector<Path> folders;
    for (const Path &name : names.value_or(std::vector<Path>())) {
        if (m_progress.isCancelled())
            return;
        const Path path = source.path / name;
        const Facts facts = factsOf(path);
        const Path place = target.path / name;
        if (facts.isFolder())
            folders.push_back(name);
        else
            copyChecked({path, facts}, {place, found(place)}, overwrite);
    }
    for (const Path &name : folders) {
        if (m_progress.isCancelled())
            return;
        const Path path = source.path / name;
        const Path place = target.path / name;
        copySubFolder({path, factsOf(path)}, {place, found(place)}, overwrite);
    }
    if (isNew)
        setAttributes(target.path, source.facts);
    if (names)
        note(source);
}

void FileCopier::copySubFolder(const Entry &source, const Entry &target, bool overwrite)
{
    // Mounted in two places, a folder can lie inside itself without its name telling so.
    if (std::find(m_targets.cbegin(), m_targets.cend(), source.facts.identity) != m_targets.cend())
        return;
    const FileCheck::Code code = FileCheck::checkKinds(source.facts, target.facts);
    if (code == FileCheck::SourceMissing || code == FileCheck::FileAndFolder)
        m_report(source.path, target.path, code);
    else
        copyChecked(source, target, overwrite);
}

// --- Files and links ------------------------------------------------------------------------

void FileCopier::copyLeaf(const Entry &source, const Entry &target, bool overwrite)
{
    const bool isTaken = target.facts.exists();
    if (isTaken && (!overwrite || !isReplaceable(source, target)))
        return;
    const Path copy = temporaryName(target.path);
    Facts copied = source.facts;
    if (makeCopy(source, copy, &copied)) {
        if (putInPlace(copy, target.path, isTaken)) {
            if (overwrite)
                m_replacements.insert(factsOf(target.path).identity.file);
            note({source.path, copied});
            return;
        }
        removeFile(copy);
    }
    if (isTaken)
        logFailure(source.path, target.path);
}

bool FileCopier::isReplaceable(const Entry &source, const Entry &target) const
{
    const bool isFile = target.facts.kind == Kind::File || target.facts.kind == Kind::Link;
    // Where upper and lower case are the same, two names of the source can be one here.
    const bool isOwn = m_replacements.count(target.facts.identity.file) != 0;
    return isFile && !isOwn && !FileCheck::isSame(source.path, target.path);
}

bool FileCopier::makeCopy(const Entry &source, const Path &copy, Facts *copied)
{
    if (source.facts.kind == Kind::Link)
        return copyLink(source.path, copy);
    return copyFile(source.path, copy, copied, m_progress);
}

bool FileCopier::putInPlace(const Path &copy, const Path &target, bool overwrite)
{
    if (!overwrite)
        return moveTo(copy, target);
    // What was there goes to the trash. Where there is none, it is gone with the move; so its
    // replacement has to be on the disk by then.
    if (FileRemoval::moveToTrash(target))
        return moveTo(copy, target);
    const bool isOnDisk = factsOf(copy).kind == Kind::Link || syncFile(copy);
    return isOnDisk && moveOver(copy, target);
}

// --- Proof ----------------------------------------------------------------------------------

void FileCopier::note(const Entry &source)
{
    if (m_record)
        m_record->add(source.path, source.facts);
}

bool FileCopier::hasArrived(const Path &source, const Path &target) const
{
    std::vector<Path> folders = {target.parent_path()};
    if (!isComplete(source, target, &folders))
        return false;
    // One call for each file system that was written to.
    std::set<quint64> synced;
    return std::all_of(folders.cbegin(), folders.cend(), [&synced](const Path &folder) {
        const std::optional<Identity> identity = identityOf(folder);
        return identity && (!synced.insert(identity->device).second || syncFileSystem(folder));
    });
}

bool FileCopier::isComplete(const Path &source, const Path &target,
                            std::vector<Path> *folders) const
{
    const Facts facts = factsOf(source);
    const Facts arrived = factsOf(target);
    if (!m_record || !m_record->holds(source, facts) || facts.kind != arrived.kind)
        return false;
    if (!facts.isFolder())
        return isLeafComplete(source, facts, target);
    folders->push_back(target);
    const std::optional<std::vector<Path>> names = namesIn(source);
    return names && std::all_of(names->cbegin(), names->cend(), [&](const Path &name) {
               return isComplete(source / name, target / name, folders);
           });
}

bool FileCopier::isLeafComplete(const Path &source, const Facts &facts, const Path &target)
{
    if (facts.kind == Kind::Link)
        return linkText(source) == linkText(target);
    return facts.size == factsOf(target).size && (canSyncFileSystems() || syncFile(target));
}

} // namespace VornFrame
