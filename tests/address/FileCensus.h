// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QMap>
#include <QSet>
#include <QStringList>

#include <filesystem>
#include <vector>

/// All that can be lost below some folders: what is in files and what links say, wherever it lies.
/// Names that are no UTF-8 count too; nothing is followed.
class FileCensus
{
public:
    using Path = std::filesystem::path;

    static FileCensus of(const std::vector<Path> &roots);

    /// What is here and nowhere in \a after, by the path where it was.
    QByteArrayList lostIn(const FileCensus &after) const;

    /// What is in \a after and neither here nor of the trash's own: parts of files.
    QByteArrayList strangeIn(const FileCensus &after) const;

    /// What operations leave behind when they are killed.
    QByteArrayList leftovers() const { return m_leftovers; }

    /// What is at \a path, in a form that can be compared; empty where there is nothing.
    static QByteArray contentOf(const Path &path);

    /// Takes out what may be lost.
    void forget(const QByteArray &content) { m_places.remove(content); }

private:
    void addBelow(const Path &folder);
    void add(const Path &path);

    QMap<QByteArray, QByteArray> m_places; ///< content → where it is, one of several
    QByteArrayList m_leftovers;
};
