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

    enum class Loss { Refused, Accepted };

    /// Writes \a image to the file that was loaded, in the same format, and makes it image(). With
    /// Loss::Refused, only when the file then holds all of \a image, and all of what it held
    /// beside its pixels.
    FileStatus save(const QImage &image, Loss loss = Loss::Refused);

    /// Writes \a image to another file, in the format that the name says, which has to hold all of
    /// it.
    static FileStatus saveCopy(const QString &path, const QImage &image);

    bool isChangedOnDisk() const;
    /// Follows the file to another \a path.
    void setPath(const QString &path) { m_path = path; }

    /// As it was last loaded or saved.
    QImage image() const { return m_image; }
    /// Such as "PNG".
    QString formatName() const;
    /// How many pictures are in the file.
    int imageCount() const { return m_imageCount; }

private:
    static FileStatus encode(const QImage &image, const QByteArray &format, QByteArray *bytes);
    static FileStatus check(const QImage &image, const QByteArray &format, const QByteArray &bytes);
    FileStatus checkExtras(const QImage &image) const;

    QString m_path;
    QImage m_image;
    QByteArray m_format;
    QByteArray m_digest;
    int m_imageCount = 1;
    bool m_hasMetadata = false;
    bool m_hasAnimation = false;
};
