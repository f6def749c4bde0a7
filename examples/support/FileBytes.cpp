// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FileBytes.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>

namespace {

/// More links in a row than any sane system has; a ring of links ends here.
constexpr int MaximumLinks = 40;

/// The file behind \a path. Unlike QFileInfo's canonical path, this also follows a link to nowhere.
QString followLinks(const QString &path)
{
    QString target = path;
    for (int i = 0; i < MaximumLinks; ++i) {
        const QFileInfo info(target);
        if (!info.isSymLink())
            break;
        target = info.symLinkTarget();
    }
    return target;
}

} // namespace

FileStatus FileBytes::read(const QString &path, qint64 maximumSize, QByteArray *bytes)
{
    using Error = FileStatus::Error;
    const QFileInfo info(path);
    if (!info.exists())
        return {Error::NotFound, tr("There is no such file.")};
    if (info.isDir())
        return {Error::NotRegular, tr("It is a folder.")};
    if (!info.isFile())
        return {Error::NotRegular, tr("It is not a regular file.")};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {Error::ReadFailed, file.errorString()};
    // One byte more than allowed tells, whatever size the system reports.
    *bytes = info.size() > maximumSize ? QByteArray() : file.read(maximumSize + 1);
    if (file.error() != QFileDevice::NoError)
        return {Error::ReadFailed, file.errorString()};
    if (info.size() > maximumSize || bytes->size() > maximumSize)
        return {Error::TooLarge,
                tr("It is larger than %1.").arg(QLocale().formattedDataSize(maximumSize, 0))};
    return {};
}

FileStatus FileBytes::write(const QString &path, const QByteArray &bytes)
{
    using Error = FileStatus::Error;
    const QString target = followLinks(path);
    const QFileInfo info(target);
    if (info.isDir())
        return {Error::NotRegular, tr("It is a folder.")};
    if (info.isSymLink())
        return {Error::NotRegular, tr("It is a link that leads to itself.")};
    if (info.exists() && !info.isFile())
        return {Error::NotRegular, tr("It is not a regular file.")};
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        return {Error::WriteFailed, file.errorString()};
    // QSaveFile::commit() of Qt 6.4 may report success although the last bytes found no room on the
    // disk.
    const bool isWritten = file.write(bytes) == bytes.size() && file.flush()
                           && file.size() == bytes.size();
    // A write that is cut short is no error to Qt, and has no text.
    const QString cutShort = tr("Not all of it could be written. The disk may be full.");
    if (!isWritten || !file.commit())
        return {Error::WriteFailed,
                file.error() == QFileDevice::NoError ? cutShort : file.errorString()};
    if (QFileInfo(target).size() != bytes.size())
        return {Error::WriteFailed, cutShort};
    return {};
}

QByteArray FileBytes::digest(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

bool FileBytes::isChanged(const QString &path, const QByteArray &digest)
{
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists())
        return false;
    QFile file(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return true;
    QCryptographicHash hash(QCryptographicHash::Sha256);
    return !hash.addData(&file) || hash.result() != digest;
}
