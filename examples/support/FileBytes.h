// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FileStatus.h"

#include <QByteArray>
#include <QCoreApplication>

/// Reads and writes whole files. Only regular files: a pipe would hold up the program.
class FileBytes
{
    Q_DECLARE_TR_FUNCTIONS(FileBytes)

public:
    /// Reads the file at \a path, which has to be of at most \a maximumSize bytes.
    static FileStatus read(const QString &path, qint64 maximumSize, QByteArray *bytes);

    /// Writes \a bytes to the file at \a path. A file that is there is replaced in one step and only
    /// when all bytes are on the disk; until then it stays as it was. A link stays a link, and
    /// permissions are kept.
    static FileStatus write(const QString &path, const QByteArray &bytes);

    /// By which changed bytes are told from others.
    static QByteArray digest(const QByteArray &bytes);

    /// Whether there is something at \a path whose bytes have not \a digest. Nothing is no change,
    /// and what cannot be read is one.
    static bool isChanged(const QString &path, const QByteArray &digest);
};
