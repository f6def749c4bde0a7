// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// What the address bar asks the file system.
namespace VornFrame::AddressFolders {

/// The names of the drives, "C:" and the like; "/" where there are none.
QStringList drives();

/// The names of the folders in \a folder that are not hidden, sorted; none if it cannot be read.
QStringList below(const QString &folder);

/// The path of the folder that a person means by \a text; empty if there is no such folder.
QString meantBy(const QString &text);

/// The folder around \a path; empty if there is none.
QString above(const QString &path);

} // namespace VornFrame::AddressFolders
