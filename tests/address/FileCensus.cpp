// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/FileCensus.h"

#include <QCryptographicHash>

#include <fstream>
#include <iterator>
#include <system_error>

namespace fs = std::filesystem;

FileCensus FileCensus::of(const std::vector<Path> &roots)
{
    FileCensus census;
    for (const Path &root : roots)
        census.addBelow(root);
    return census;
}

QByteArrayList FileCensus::lostIn(const FileCensus &after) const
{
    QByteArrayList lost;
    for (auto place = m_places.cbegin(); place != m_places.cend(); ++place) {
        if (!after.m_places.contains(place.key()))
            lost.append(place.value());
    }
    return lost;
}

QByteArrayList FileCensus::strangeIn(const FileCensus &after) const
{
    QByteArrayList strange;
    for (auto place = after.m_places.cbegin(); place != after.m_places.cend(); ++place) {
        if (!m_places.contains(place.key()) && !place.value().endsWith(".trashinfo"))
            strange.append(place.value());
    }
    return strange;
}

QByteArray FileCensus::contentOf(const Path &path)
{
    std::error_code error;
    const fs::file_status status = fs::symlink_status(path, error);
    if (fs::is_symlink(status))
        return "link " + QByteArray::fromStdString(fs::read_symlink(path, error).native());
    if (!fs::is_regular_file(status))
        return {};
    constexpr std::uintmax_t Most = std::uintmax_t(64) * 1024 * 1024;
    const std::uintmax_t size = fs::file_size(path, error);
    if (size > Most)
        return "big " + QByteArray::number(qulonglong(size));
    std::ifstream file(path, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(file)),
                            std::istreambuf_iterator<char>());
    return "file " + QByteArray::number(qulonglong(bytes.size())) + ' '
           + QCryptographicHash::hash(QByteArrayView(bytes), QCryptographicHash::Sha1).toHex();
}

void FileCensus::addBelow(const Path &folder)
{
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        if (fs::is_directory(entry->symlink_status(error)))
            addBelow(entry->path());
        else
            add(entry->path());
    }
}

void FileCensus::add(const Path &path)
{
    const QByteArray name = QByteArray::fromStdString(path.native());
    if (path.filename().native().rfind(".vornframe-", 0) == 0)
        m_leftovers.append(name);
    const QByteArray content = contentOf(path);
    // Nothing of an empty file can be lost.
    if (!content.isEmpty() && !content.startsWith("file 0 "))
        m_places.insert(content, name);
}
