// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "FileStatus.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QImage>
#include <QString>

/// The file of a picture, read and written in the format that its content has.
class PictureFile
{
    Q_DECLARE_TR_FUNCTIONS(PictureFile)

public:
    /// In bytes.
    static constexpr qint64 MaximumSize = qint64(256) * 1024 * 1024;
    /// In px of width times height.
    static constexpr qint64 MaximumArea = 64'000'000;

    /// Reads the file at \a path. When that fails, everything stays as it was.
    FileStatus load(const QString &path);

    /// Writes \a image to the file that was loaded, in the same format, and makes it image().
    FileStatus save(const QImage &image);

    /// Writes \a image to another file, in the format that the name says.
    FileStatus saveCopy(const QString &path, const QImage &image) const;

    bool isChangedOnDisk() const;

    /// As it was last loaded or saved.
    QImage image() const { return m_image; }
    /// Such as "PNG".
    QString formatName() const;
    /// How many pictures are in the file.
    int imageCount() const { return m_imageCount; }

private:
    static FileStatus encode(const QImage &image, const QByteArray &format, QByteArray *bytes);

    QString m_path;
    QImage m_image;
    QByteArray m_format;
    QByteArray m_digest;
    int m_imageCount = 1;
};
