// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "NativeFiles.h"

#include <string>
#include <unordered_map>

namespace VornFrame {

/// What was copied, and what it was like then.
class FileRecord
{
public:
    void add(const NativeFiles::Path &source, const NativeFiles::Facts &facts)
    {
        m_facts.insert_or_assign(source.native(), facts);
    }

    void clear() { m_facts.clear(); }

    /// Whether \a source was copied, and is still what it was; \a facts are those of now. The
    /// contents of a folder are for the caller to look at.
    bool holds(const NativeFiles::Path &source, const NativeFiles::Facts &facts) const
    {
        const auto found = m_facts.find(source.native());
        if (found == m_facts.end())
            return false;
        const NativeFiles::Facts &then = found->second;
        if (then.kind != facts.kind || !(then.identity == facts.identity))
            return false;
        return facts.isFolder() || (then.size == facts.size && then.modified == facts.modified);
    }

private:
    std::unordered_map<NativeFiles::Path::string_type, NativeFiles::Facts> m_facts;
};

} // namespace VornFrame
