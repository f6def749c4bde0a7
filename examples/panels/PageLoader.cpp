// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PageLoader.h"

#include "PicturePage.h"
#include "TextPage.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QMimeDatabase>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace {

/// A drawing has no pixels of its own, so it gets those of the sharpest screen.
void sharpen(QImageReader &reader, qreal ratio)
{
    const QSize size = reader.size();
    if (!size.isEmpty())
        reader.setScaledSize((QSizeF(size) * ratio).toSize());
}

} // namespace

PageLoader::Result PageLoader::load(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return failure(tr("There is no such file."));
    if (!info.isFile())
        return failure(tr("It is no file with text or a picture."));
    const QMimeType type = QMimeDatabase().mimeTypeForFile(info);
    if (QImageReader::supportedMimeTypes().contains(type.name().toLatin1()))
        return loadPicture(path);
    return loadText(path, type.inherits(u"text/markdown"_s));
}

PageLoader::Result PageLoader::failure(const QString &reason)
{
    return {nullptr, Kind::Text, reason};
}

PageLoader::Result PageLoader::loadPicture(const QString &path)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const QString format = QString::fromLatin1(reader.format()).toUpper();
    const qreal ratio = format.startsWith(u"SVG"_s) ? qApp->devicePixelRatio() : 1.0;
    sharpen(reader, ratio);
    QImage image = reader.read();
    if (image.isNull())
        return failure(tr("The picture could not be read: %1.").arg(reader.errorString()));
    image.setDevicePixelRatio(ratio);
    return {std::make_unique<PicturePage>(path, image, format), Kind::Picture, {}};
}

PageLoader::Result PageLoader::loadText(const QString &path, bool isMarkdown)
{
    QFile file(path);
    if (file.size() > MaximumSize)
        return failure(tr("It is larger than %1 MiB.").arg(MaximumSize / 1024 / 1024));
    if (!file.open(QIODevice::ReadOnly))
        return failure(tr("It could not be read: %1.").arg(file.errorString()));
    const QByteArray bytes = file.readAll();
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    if (decoder.hasError() || bytes.contains('\0'))
        return failure(tr("It is neither a picture nor a text in UTF-8."));
    return {std::make_unique<TextPage>(path, text, isMarkdown),
            isMarkdown ? Kind::Markdown : Kind::Text,
            {}};
}
