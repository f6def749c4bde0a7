// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FilePaste.h"

#include "FileCheck.h"
#include "FileProgress.h"
#include "FileRemoval.h"

#include <algorithm>
#include <system_error>

namespace VornFrame {

using namespace NativeFiles;
using namespace Qt::StringLiterals;

namespace {

/// What is in \a path, in bytes.
qint64 sizeOf(const Path &path, const FileProgress &progress)
{
    const Facts facts = factsOf(path);
    if (!facts.isFolder())
        return facts.size;
    qint64 size = 0;
    for (const Path &name : namesIn(path).value_or(std::vector<Path>())) {
        if (progress.isCancelled())
            break;
        size += sizeOf(path / name, progress);
    }
    return size;
}

/// The first name of a copy that is free in \a folder.
Path freeCopyName(const Path &source, const Path &folder)
{
    const QString name = toText(source.filename());
    int counter = 2;
    Path target = folder / fromText(copyName(counter, name));
    while (factsOf(target).exists())
        target = folder / fromText(copyName(++counter, name));
    return target;
}

bool isInside(const Path &path, const Path &folder)
{
    return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first
           == folder.end();
}

} // namespace

QString copyName(int counter, const QString &name)
{
    constexpr qsizetype MaxBytes = 255;
    constexpr qsizetype MaxSuffix = 64;
    const auto named = [counter](const QString &stem) {
        return u"Copy_%1_of_%2"_s.arg(QString::number(counter), stem);
    };
    const auto isTooLong = [](const QString &text) { return text.toUtf8().size() > MaxBytes; };

    const qsizetype dot = name.lastIndexOf(u'.');
    const bool hasSuffix = dot > 0 && name.size() - dot <= MaxSuffix;
    QString stem = hasSuffix ? name.left(dot) : name;
    const QString suffix = hasSuffix ? name.mid(dot) : QString();
    while (!stem.isEmpty() && isTooLong(named(stem + suffix))) {
        const bool isPair = stem.size() > 1 && stem.back().isLowSurrogate();
        stem.chop(isPair ? 2 : 1);
    }
    return named(stem + suffix);
}

FilePaste::FilePaste(bool isCut, Dialogs dialogs, FileProgress &progress)
    : m_isCut(isCut), m_dialogs(std::move(dialogs)), m_progress(progress),
      m_copier(
          progress,
          [this](const Path &source, const Path &target, int code) {
              settle();
              m_dialogs.report(source, target, code);
          },
          isCut ? &m_record : nullptr)
{}

void FilePaste::run(const std::vector<Path> &sources, const Path &folder)
{
    // A link that leads to the folder may be replaced, or cut, itself.
    std::error_code error;
    const Path place = std::filesystem::canonical(folder, error);
    if (error)
        return;
    for (const Path &source : sources) {
        // A folder that cannot be pasted can be the whole disk.
        if (FileCheck::check(source, place / source.filename()) != FileCheck::TargetInsideSource)
            m_progress.addTotal(sizeOf(source, m_progress));
    }
    for (const Path &source : sources) {
        if (m_progress.isCancelled())
            break;
        settleAround(source);
        pasteOne(source, place);
    }
    settle();
}

void FilePaste::pasteOne(const Path &source, const Path &folder)
{
    const Path target = folder / source.filename();
    const FileCheck::Code code = FileCheck::check(source, target);
    switch (code) {
    case FileCheck::SourceMissing:
    case FileCheck::TargetInsideSource:
    case FileCheck::FileAndFolder:
    case FileCheck::PermissionDenied:
    case FileCheck::Unknown:
        settle();
        m_dialogs.report(source, target, code);
        return;
    case FileCheck::SameFile:
        if (!m_isCut)
            copyTo(source, factsOf(target).exists() ? freeCopyName(source, folder) : target, false);
        return;
    case FileCheck::BothFiles:
    case FileCheck::BothFolders:
        break;
    case FileCheck::TargetMissing:
        copyTo(source, target, false);
        return;
    }

    settle();
    // "Cancel" leaves this source alone, as "Skip" does; the others are still pasted.
    switch (m_dialogs.ask(target, code == FileCheck::BothFiles)) {
    case Answer::Replace:
        copyTo(source, target, true);
        break;
    case Answer::SaveCopy:
        copyTo(source, freeCopyName(source, folder), false);
        break;
    case Answer::Skip:
        break;
    }
}

void FilePaste::copyTo(const Path &source, const Path &target, bool overwrite)
{
    // It may have gone while the question was open. Only when it is copied that is told.
    if (m_isCut && !factsOf(source).exists())
        return;
    m_copier.copy(source, target, overwrite);
    if (m_isCut) {
        m_copied.emplace_back(source, target);
        m_waiting.insert(source);
    }
}

/// Removes the sources that have arrived; forgets the others, which stay. To put them on the disk
/// one by one would take longer than all the rest, so it is done for as many as possible at once.
void FilePaste::settle()
{
    std::vector<Path> arrived;
    for (const auto &[source, target] : m_copied) {
        if (m_copier.hasArrived(source, target))
            arrived.push_back(source);
    }
    for (const Path &source : arrived)
        FileRemoval::removeCopied(source, m_record, m_progress);
    m_copied.clear();
    m_waiting.clear();
    // What arrived at one target is no proof of having arrived at the next.
    m_record.clear();
}

/// A source inside another one that was cut has gone with it, and the other way round.
void FilePaste::settleAround(const Path &source)
{
    const auto next = m_waiting.upper_bound(source);
    bool isRelated = next != m_waiting.cend() && isInside(*next, source);
    for (Path path = source; !isRelated; path = path.parent_path()) {
        isRelated = m_waiting.count(path) != 0;
        if (path == path.parent_path())
            break;
    }
    if (isRelated)
        settle();
}

} // namespace VornFrame
