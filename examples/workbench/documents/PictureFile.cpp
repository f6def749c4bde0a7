// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PictureFile.h"

#include "FileBytes.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QLocale>

namespace {

/// Of 100. The usual 75 shows after a few times.
constexpr int Jpeg_Quality = 95;

} // namespace

FileStatus PictureFile::load(const QString &path)
{
    using Error = FileStatus::Error;
    QByteArray bytes;
    if (FileStatus status = FileBytes::read(path, MaximumSize, &bytes); !status.ok())
        return status;
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    const QByteArray format = reader.format();
    if (format.isEmpty())
        return {Error::Binary, tr("It is no picture, or one of an unknown format.")};
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height() > MaximumArea)
        return {Error::TooLarge, tr("The picture has more than %1 million pixels.")
                                     .arg(QLocale().toString(MaximumArea / 1'000'000))};
    const int count = reader.imageCount();
    QImage image = reader.read();
    if (image.isNull())
        return {Error::ReadFailed,
                tr("The picture could not be read: %1.").arg(reader.errorString())};
    image.setDevicePixelRatio(1.0);
    m_path = path;
    m_image = image;
    m_format = format;
    m_digest = FileBytes::digest(bytes);
    m_imageCount = std::max(count, 1);
    return {};
}

FileStatus PictureFile::encode(const QImage &image, const QByteArray &format, QByteArray *bytes)
{
    using Error = FileStatus::Error;
    const QString name = QString::fromLatin1(format).toUpper();
    if (!QImageWriter::supportedImageFormats().contains(format))
        return {Error::WriteFailed,
                format.isEmpty()
                    ? tr("The name says no format for pictures.")
                    : tr("Pictures in the format %1 can be read, but not written.").arg(name)};
    QBuffer buffer(bytes);
    QImageWriter writer(&buffer, format);
    if (format == "jpg" || format == "jpeg")
        writer.setQuality(Jpeg_Quality);
    if (!writer.write(image))
        return {Error::WriteFailed,
                tr("The picture could not be written: %1.").arg(writer.errorString())};
    return {};
}

FileStatus PictureFile::save(const QImage &image)
{
    if (m_imageCount > 1)
        return {FileStatus::Error::WriteFailed,
                tr("The file holds %1 pictures, and only one of them would be left.")
                    .arg(m_imageCount)};
    QByteArray bytes;
    if (FileStatus status = encode(image, m_format, &bytes); !status.ok())
        return status;
    if (FileStatus status = FileBytes::write(m_path, bytes); !status.ok())
        return status;
    m_image = image;
    m_digest = FileBytes::digest(bytes);
    return {};
}

FileStatus PictureFile::saveCopy(const QString &path, const QImage &image) const
{
    QByteArray bytes;
    const QByteArray format = QFileInfo(path).suffix().toLower().toLatin1();
    if (FileStatus status = encode(image, format, &bytes); !status.ok())
        return status;
    return FileBytes::write(path, bytes);
}

bool PictureFile::isChangedOnDisk() const
{
    return FileBytes::isChanged(m_path, m_digest);
}

QString PictureFile::formatName() const
{
    return QString::fromLatin1(m_format).toUpper();
}
