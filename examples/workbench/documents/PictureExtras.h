// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>

/// What the file of a picture may hold and a picture in memory does not, so that it is lost when
/// the file is written anew.
namespace PictureExtras {

/// Whether the file of these \a bytes says where, when or how the picture was taken, or what a
/// program noted. Known of JPEG and PNG.
bool hasMetadata(const QByteArray &bytes);

/// Whether the file of these \a bytes is a PNG of several pictures.
bool hasAnimation(const QByteArray &bytes);

/// The bits of each colour of a pixel.
int colorBits(const QImage &image);

} // namespace PictureExtras
