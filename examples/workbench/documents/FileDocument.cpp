// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FileDocument.h"

#include <QFileInfo>

QString FileDocument::save()
{
    m_canSaveAnyway = isChangedOnDisk();
    if (m_canSaveAnyway)
        return tr("The file was changed by another program since it was read. Saving would undo "
                  "those changes.");
    if (!isModified() && QFileInfo::exists(path()))
        return {};
    const FileStatus status = write(Loss::Refused);
    m_canSaveAnyway = status.error == FileStatus::Error::NotEncodable;
    return status.reason;
}

QString FileDocument::saveAnyway()
{
    m_canSaveAnyway = false;
    return write(Loss::Accepted).reason;
}

QString FileDocument::saveCopy(const QString &path)
{
    const QFileInfo target(path);
    if (target.exists()
        && target.canonicalFilePath() == QFileInfo(this->path()).canonicalFilePath())
        return tr("It is the file of this document.");
    return writeCopy(path).reason;
}
