// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "AddressCompletions.h"

#include "AddressFolders.h"

#include <algorithm>

namespace VornFrame {

namespace {

/// One past the last separator in \a text; 0 if there is none.
qsizetype nameStart(const QString &text)
{
    return std::max(text.lastIndexOf(u'/'), text.lastIndexOf(u'\\')) + 1;
}

/// Adds those of \a names that begin with \a start to \a completions, after \a prefix.
void add(QStringList &completions, const QString &prefix, const QString &start,
         const QStringList &names)
{
    for (const QString &name : names) {
        if (completions.size() >= AddressCompletions::Maximum)
            return;
        // A backslash in a name would be taken for a separator when the completion is chosen.
        if (name.startsWith(start, Qt::CaseInsensitive) && name != start && !name.contains(u'\\'))
            completions.append(prefix + name);
    }
}

} // namespace

QStringList AddressCompletions::of(const QString &text)
{
    QStringList completions;
    const qsizetype start = nameStart(text);
    if (start == 0)
        return completions;
    const QString prefix = text.left(start);
    const QString name = text.mid(start);
    add(completions, prefix, name, namesIn(AddressFolders::meantBy(prefix)));
    if (!name.isEmpty())
        add(completions, text + text.at(start - 1), {}, namesIn(AddressFolders::meantBy(text)));
    return completions;
}

void AddressCompletions::forget()
{
    m_names.clear();
}

const QStringList &AddressCompletions::namesIn(const QString &folder)
{
    auto names = m_names.find(folder);
    if (names == m_names.end())
        names = m_names.insert(folder,
                               folder.isEmpty() ? QStringList() : AddressFolders::below(folder));
    return *names;
}

} // namespace VornFrame
