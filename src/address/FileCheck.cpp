// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FileCheck.h"

namespace VornFrame::FileCheck {

using namespace NativeFiles;

namespace {

/// Asks for the identity of every folder above, which sees through links and through folders that
/// are mounted in two places; names alone would also take "docs-old" for a part of "docs".
bool isInside(const Path &target, const Facts &source)
{
    Path folder = resolved(target).parent_path();
    for (;;) {
        if (identityOf(folder) == source.identity)
            return true;
        const Path parent = folder.parent_path();
        if (parent == folder)
            return false;
        folder = parent;
    }
}

} // namespace

bool isSame(const Path &source, const Path &target)
{
    const Facts facts = factsOf(source);
    if (facts.exists() && facts.identity == factsOf(target).identity)
        return true;
    const std::optional<Identity> identity = identityOf(source);
    return identity && identity == identityOf(target);
}

Code check(const Path &source, const Path &target)
{
    const Facts facts = factsOf(source);
    if (!facts.exists())
        return SourceMissing;
    if (isSame(source, target))
        return SameFile;
    if (facts.isFolder() && isInside(target, facts))
        return TargetInsideSource;
    return checkKinds(facts, factsOf(target));
}

Code checkKinds(const Facts &source, const Facts &target)
{
    if (!source.exists())
        return SourceMissing;
    if (!target.exists())
        return TargetMissing;
    if (source.isFolder() != target.isFolder())
        return FileAndFolder;
    return source.isFolder() ? BothFolders : BothFiles;
}

} // namespace VornFrame::FileCheck
