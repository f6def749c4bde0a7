// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PictureFile.h"

#include "FileBytes.h"
#include "PictureExtras.h"
#include "PixelRows.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QLocale>
#include <QStringList>

#include <algorithm>

namespace {

/// In MB: as many pixels as allowed, of 64 bits each.
constexpr int Memory_Maximum = int(PictureFile::MaximumArea * 8 / 1'000'000);
/// Of 100. The usual 75 shows after a few times.
constexpr int Jpeg_Quality = 95;
/// Of 100, which stands for a picture without a loss.
constexpr int Webp_Quality = 100;

bool isJpeg(const QByteArray &format)
{
    return format == "jpg" || format == "jpeg";
}

bool isOpaque(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return true;
    const QImage straight = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < straight.height(); ++y) {
        const QRgb *row = PixelRows::row(straight, y);
        const auto isSolid = [](QRgb pixel) { return qAlpha(pixel) == 255; };
        if (!std::all_of(row, row + straight.width(), isSolid))
            return false;
    }
    return true;
}

/// \a image in 32 bits a pixel, without the colours of what cannot be seen.
QImage seen(const QImage &image)
{
    if (isOpaque(image))
        return image.convertToFormat(QImage::Format_RGB32);
    return image.convertToFormat(QImage::Format_ARGB32)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

FileStatus PictureFile::load(const QString &path)
{
    using Error = FileStatus::Error;
    QByteArray bytes;
    if (FileStatus status = FileBytes::read(path, MaximumSize, &bytes); !status.ok())
        return status;
    // That of the system ends at half of what is allowed here.
    QImageReader::setAllocationLimit(Memory_Maximum);
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
    m_hasMetadata = PictureExtras::hasMetadata(bytes);
    m_hasAnimation = PictureExtras::hasAnimation(bytes);
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
                    : tr("Pictures in the format %1 can be read, but not written. A copy can have "
                         "another format.")
                          .arg(name)};
    QBuffer buffer(bytes);
    QImageWriter writer(&buffer, format);
    if (isJpeg(format))
        writer.setQuality(Jpeg_Quality);
    else if (format == "webp")
        writer.setQuality(Webp_Quality);
    if (!writer.write(image))
        return {Error::WriteFailed,
                tr("The picture could not be written: %1.").arg(writer.errorString())};
    return {};
}

/// Whether \a bytes hold all of \a image, which only reading them tells: some formats know few
/// colours, and some no transparency.
FileStatus PictureFile::check(const QImage &image, const QByteArray &format,
                              const QByteArray &bytes)
{
    const bool isKept = isJpeg(format) ? isOpaque(image)
                                       : seen(QImage::fromData(bytes, format)) == seen(image);
    if (isKept)
        return {};
    return {FileStatus::Error::NotEncodable,
            tr("The format %1 cannot hold all colours of the picture, or its transparency.")
                .arg(QString::fromLatin1(format).toUpper())};
}

/// What the file that was loaded has, and would lose with \a image in it.
FileStatus PictureFile::checkExtras(const QImage &image) const
{
    QStringList reasons;
    if (m_hasMetadata)
        reasons.append(tr("The file also holds notes of a camera or a program, such as the date, "
                          "which would be lost."));
    if (m_hasAnimation)
        reasons.append(tr("The file holds several pictures, and only this one would be left."));
    const int before = PictureExtras::colorBits(m_image);
    const int after = PictureExtras::colorBits(image);
    if (after < before)
        reasons.append(tr("Each colour of the picture would have %1 bits, not %2 as before.")
                           .arg(after)
                           .arg(before));
    if (reasons.isEmpty())
        return {};
    return {FileStatus::Error::NotEncodable, reasons.join(u'\n')};
}

FileStatus PictureFile::save(const QImage &image, Loss loss)
{
    if (m_imageCount > 1)
        return {FileStatus::Error::WriteFailed,
                tr("The file holds %1 pictures, and only one of them would be left. It can be "
                   "saved as a copy.")
                    .arg(m_imageCount)};
    if (FileStatus status = checkExtras(image); !status.ok() && loss == Loss::Refused)
        return status;
    QByteArray bytes;
    if (FileStatus status = encode(image, m_format, &bytes); !status.ok())
        return status;
    FileStatus kept = check(image, m_format, bytes);
    if (!kept.ok() && loss == Loss::Refused)
        return kept;
    if (FileStatus status = FileBytes::write(m_path, bytes); !status.ok())
        return status;
    m_image = image;
    m_digest = FileBytes::digest(bytes);
    m_hasMetadata = false;
    m_hasAnimation = false;
    return {};
}

FileStatus PictureFile::saveCopy(const QString &path, const QImage &image)
{
    QByteArray bytes;
    const QByteArray format = QFileInfo(path).suffix().toLower().toLatin1();
    if (FileStatus status = encode(image, format, &bytes); !status.ok())
        return status;
    if (FileStatus status = check(image, format, bytes); !status.ok())
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
