// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/// What the program keeps from one start to the next, in an INI file.
struct FilesSettings
{
    /// What the file at \a path holds. What is missing in it, or makes no sense, is as at first.
    static FilesSettings load(const QString &path);

    /// Writes all to the file at \a path, and keeps what else it holds. Returns whether it could.
    bool save(const QString &path) const;

    /// Where settings of the user belong on this system.
    static QString defaultPath();

    QByteArray geometry; ///< of the window
    QByteArray panes; ///< the splitter between the panes
    QByteArray preview; ///< the splitter between them and the preview
    QString leftFolder; ///< empty for none
    QString rightFolder;
    bool isPreviewShown = true;
};
