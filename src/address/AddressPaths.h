// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// Arithmetic on paths of folders. Nothing here looks at a file system, and everything does the same
/// on every system: "/home/u", "C:/Users" and "//server/share" are understood everywhere.
namespace VornFrame::AddressPaths {

/// One folder on the way to another.
struct Part
{
    QString name;
    QString path; ///< of a drive "C:", without a separator
};

/// \a path as it is kept and reported: "/" as separator, none at the end. The root of a file system
/// keeps its "/" and a drive has one ("C:/").
QString normalized(const QString &path);

/// \a path as it is shown for editing: with backslashes.
QString forEditing(const QString &path);

/// The folders of the normalized \a path, outermost first. The root "/" has none.
QList<Part> parts(const QString &path);

/// The path of the folder \a name in the folder \a folder.
QString child(const QString &folder, const QString &name);

/// The name of the drive on which \a path is: "C:", or "/" where there are no drives.
QString driveName(const QString &path);

/// The normalized paths that a person can mean by \a text, the likeliest first. The separators may
/// be mixed and doubled. Spaces around a name may belong to it or be typed by mistake. None for a
/// text of nothing but spaces.
QStringList typed(const QString &text);

/// \a text on a single line: what would break it becomes a space.
QString singleLine(const QString &text);

} // namespace VornFrame::AddressPaths
