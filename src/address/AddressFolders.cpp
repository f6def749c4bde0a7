// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "AddressFolders.h"

#include "AddressPaths.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace VornFrame::AddressFolders {

QStringList drives()
{
    QStringList names;
    const QFileInfoList infos = QDir::drives();
    for (const QFileInfo &info : infos)
        names.append(AddressPaths::driveName(info.absoluteDir().path()));
    return names;
}

QStringList below(const QString &folder)
{
    // With a separator at its end, "C:" is the root of the drive and not its working directory.
    return QDir(AddressPaths::child(folder, {}))
        .entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

QString meantBy(const QString &text)
{
    const QStringList paths = AddressPaths::typed(text);
    const auto found = std::find_if(paths.begin(), paths.end(),
                                    [](const QString &path) { return QFileInfo(path).isDir(); });
    return found == paths.end() ? QString() : *found;
}

QString above(const QString &path)
{
    QDir dir(AddressPaths::child(path, {}));
    return dir.cdUp() ? dir.path() : QString();
}

} // namespace VornFrame::AddressFolders
