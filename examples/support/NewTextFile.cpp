// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "NewTextFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

NewTextFile::Result NewTextFile::create(const QString &path)
{
    const QFileInfo info(path);
    const QDir folder(info.isDir() ? path : info.path());
    QString name = tr("New Text File.txt");
    for (int number = 2;; ++number) {
        QFile file(folder.filePath(name));
        // Fails if there is a file already, also when it came a moment ago.
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return {file.fileName(), {}};
        const QFileInfo existing(file.fileName());
        if (!existing.exists() && !existing.isSymLink())
            return {{}, file.errorString()};
        name = tr("New Text File (%1).txt").arg(number);
    }
}
