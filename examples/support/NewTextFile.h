// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

/// Creates empty text files.
class NewTextFile
{
    Q_DECLARE_TR_FUNCTIONS(NewTextFile)

public:
    struct Result
    {
        QString path; ///< of the new file; empty if there is none
        QString reason; ///< why not
    };

    /// Creates a file of a name that is free in the folder at \a path, or in that of the file
    /// there. No other file is touched, whatever else happens in the folder at the same time.
    static Result create(const QString &path);
};
