// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FileDocument.h"

#include <QFileInfo>

QString FileDocument::save()
{
    finishInput();
    m_doubt = Doubt::File;
    if (isChangedOnDisk())
        return tr("The file was changed by another program since it was read. Saving would undo "
                  "those changes.");
    if (!QFileInfo::exists(path()))
        return tr("There is no such file any more: it was deleted, moved or renamed. Saving would "
                  "make a new one.");
    m_doubt = Doubt::None;
    return isModified() ? writeWith(Loss::Refused) : QString();
}

QString FileDocument::saveAnyway()
{
    // Who accepts one thing has not been asked about the other yet.
    return writeWith(m_doubt == Doubt::Loss ? Loss::Accepted : Loss::Refused);
}

QString FileDocument::writeWith(Loss loss)
{
    const FileStatus status = write(loss);
    m_doubt = status.error == FileStatus::Error::NotEncodable ? Doubt::Loss : Doubt::None;
    return status.reason;
}

QString FileDocument::saveCopy(const QString &path)
{
    finishInput();
    const QFileInfo target(path);
    if (target.exists()
        && target.canonicalFilePath() == QFileInfo(this->path()).canonicalFilePath())
        return tr("It is the file of this document.");
    return writeCopy(path).reason;
}
