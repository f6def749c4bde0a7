// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcessEnvironment>
#include <QTemporaryDir>

/// A home folder for programs that must not see or touch that of the user.
class TemporaryHome
{
public:
    TemporaryHome();

    QString path(const QString &name = QString()) const { return m_folder.filePath(name); }

    /// That of a program which finds all its files below this folder, speaks English and sees no
    /// session but the X server \a display; none at all when that is empty.
    QProcessEnvironment environment(const QString &display) const;

private:
    QTemporaryDir m_folder;
};
