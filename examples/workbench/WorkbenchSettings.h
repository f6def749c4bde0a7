// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "DockState.h"

/// What the program keeps from one start to the next, in an INI file.
struct WorkbenchSettings
{
    /// What the file at \a path holds. What is missing in it, or makes no sense, is as at first.
    static WorkbenchSettings load(const QString &path);

    /// Writes all to the file at \a path, and keeps what else it holds. Returns whether it could.
    bool save(const QString &path) const;

    /// Where settings of the user belong on this system.
    static QString defaultPath();

    QByteArray geometry; ///< of the window
    DockState docks;
    DockState defaultDocks; ///< what "Reset Layout" goes back to
    QString folder; ///< empty for none
    QStringList files; ///< the open ones
    QString currentFile; ///< the one that is seen; empty for none
    QStringList favourites; ///< ids of picture filters
};
