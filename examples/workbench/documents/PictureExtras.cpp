// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PictureExtras.h"

#include <QtEndian>

namespace PictureExtras {

namespace {

/// The segments of a JPEG before its pixels that begin as one of metadata does.
bool hasJpegMetadata(const QByteArray &bytes)
{
    // Marker and length, in bytes.
    constexpr qsizetype Head = 4;
    constexpr uchar Marker = 0xff;
    constexpr uchar Pixels = 0xda;
    constexpr uchar Exif = 0xe1; // and XMP
    constexpr uchar Photoshop = 0xed;
    for (qsizetype at = 2; at + Head <= bytes.size();) {
        const auto kind = uchar(bytes.at(at + 1));
        if (uchar(bytes.at(at)) != Marker || kind == Pixels)
            break;
        if (kind == Exif || kind == Photoshop)
            return true;
        // A marker may be padded.
        at += kind == Marker ? 1 : 2 + qFromBigEndian<quint16>(bytes.constData() + at + 2);
    }
    return false;
}

/// Whether a PNG has a chunk of this \a kind, four letters.
bool hasChunk(const QByteArray &bytes, const char *kind)
{
    constexpr qsizetype Signature = 8;
    // Length, kind and checksum, in bytes.
    constexpr qsizetype Frame = 12;
    if (!bytes.startsWith("\x89PNG"))
        return false;
    for (qsizetype at = Signature; at + Frame <= bytes.size();) {
        if (bytes.mid(at + 4, 4) == kind)
            return true;
        const auto length = qFromBigEndian<quint32>(bytes.constData() + at);
        if (length > quint64(bytes.size()))
            break;
        at += Frame + qsizetype(length);
    }
    return false;
}

} // namespace

bool hasMetadata(const QByteArray &bytes)
{
    if (bytes.startsWith("\xff\xd8"))
        return hasJpegMetadata(bytes);
    return hasChunk(bytes, "eXIf");
}

bool hasAnimation(const QByteArray &bytes)
{
    return hasChunk(bytes, "acTL");
}

int colorBits(const QImage &image)
{
    // A colour of an indexed picture is one of a table, with as many as usual.
    constexpr int Usual = 8;
    switch (image.format()) {
    case QImage::Format_Grayscale16:
    case QImage::Format_RGBX64:
    case QImage::Format_RGBA64:
    case QImage::Format_RGBA64_Premultiplied:
        return 16;
    default:
        return Usual;
    }
}

} // namespace PictureExtras
