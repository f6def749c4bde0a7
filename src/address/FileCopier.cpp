// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FileCopier.h"

#include "FileCheck.h"
#include "FileProgress.h"
#include "FileRemoval.h"

#include <QDebug>
#include <QRandomGenerator>

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
    m_target.reset();
    m_replacements.clear();
    const Facts facts = factsOf(source);
    if (facts.isFolder() && !target.parent_path().empty()) {
        std::error_code error;
        std::filesystem::create_directories(target.parent_path(), error);
    }
    // A link on the way to the target may be what is replaced.
    copyChecked(source, facts, resolved(target), overwrite);
}

void FileCopier::copyChecked(const Path &source, const Facts &facts, const Path &target,
                             bool overwrite)
{
    m_progress.setCurrent(source);
    switch (facts.kind) {
    case Kind::Folder:
        copyFolder(source, facts, target, overwrite);
        break;
    case Kind::File:
    case Kind::Link:
        copyLeaf(source, facts, target, overwrite);
        break;
    case Kind::Special:
    case Kind::None:
        break;
    }
}

// --- Folders --------------------------------------------------------------------------------

void FileCopier::copyFolder(const Path &source, const Facts &facts, const Path &target,
                            bool overwrite)
{
    const bool isNew = !factsOf(target).exists();
    if (isNew && !makeFolder(target))
        return;
    const Identity identity = factsOf(target).identity;
    if (!m_target)
        m_target = identity;

    const std::optional<std::vector<Path>> names = namesIn(source);
    std::vector<Path> folders;
    for (const Path &name : names.value_or(std::vector<Path>())) {
        if (m_progress.isCancelled())
            return;
        const Facts entry = factsOf(source / name);
        if (entry.isFolder())
            folders.push_back(name);
        else
            copyChecked(source / name, entry, target / name, overwrite);
    }
    for (const Path &name : folders) {
        if (m_progress.isCancelled())
            return;
        copySubFolder(source / name, target / name, overwrite);
    }
    if (isNew)
        setAttributes(target, facts);
    if (names)
        note(source, facts);
}

void FileCopier::copySubFolder(const Path &source, const Path &target, bool overwrite)
{
    const Facts facts = factsOf(source);
    // Mounted in two places, a folder can lie inside itself without its name telling so.
    if (facts.identity == m_target)
        return;
    const FileCheck::Code code = FileCheck::checkKinds(facts, factsOf(target));
    if (code == FileCheck::SourceMissing || code == FileCheck::FileAndFolder)
        m_report(source, target, code);
    else
        copyChecked(source, facts, target, overwrite);
}

// --- Files and links ------------------------------------------------------------------------

void FileCopier::copyLeaf(const Path &source, const Facts &facts, const Path &target,
                          bool overwrite)
{
    const Facts existing = factsOf(target);
    if (existing.exists()) {
        const bool isFile = existing.kind == Kind::File || existing.kind == Kind::Link;
        // Where upper and lower case are the same, two names of the source can be one here.
        const bool isOwn = m_replacements.count(existing.identity.file) != 0;
        if (!overwrite || !isFile || isOwn || FileCheck::isSame(source, target))
            return;
    }
    const Path copy = temporaryName(target);
    Facts copied = facts;
    if (makeCopy(source, facts, copy, &copied)) {
        if (putInPlace(copy, target, existing.exists())) {
            if (overwrite)
                m_replacements.insert(factsOf(target).identity.file);
            note(source, copied);
            return;
        }
        removeFile(copy);
    }
    if (existing.exists())
        logFailure(source, target);
}

bool FileCopier::makeCopy(const Path &source, const Facts &facts, const Path &copy, Facts *copied)
{
    m_progress.setCurrent(source);
    if (facts.kind == Kind::Link)
        return copyLink(source, copy);
    return copyFile(source, copy, copied, m_progress);
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

void FileCopier::note(const Path &source, const Facts &facts)
{
    if (m_record)
        m_record->add(source, facts);
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

bool FileCopier::isLeafComplete(const Path &source, const Facts &facts, const Path &target) const
{
    if (facts.kind == Kind::Link)
        return linkText(source) == linkText(target);
    return facts.size == factsOf(target).size && (canSyncFileSystems() || syncFile(target));
}

} // namespace VornFrame
