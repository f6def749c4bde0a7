// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FileReader.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QLocale>
#include <QMimeDatabase>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace {

/// Whether the file at \a path, said to be of \a type, is to be shown as a picture. A drawing is
/// not: it may name other files, even pipes, which would be opened for it.
bool isPicture(const QString &path, const QMimeType &type)
{
    return QImageReader::supportedMimeTypes().contains(type.name().toLatin1())
           && !QImageReader::imageFormat(path).startsWith("svg");
}

/// The size to read a picture of \a size in.
QSize sizeToRead(QSize size)
{
    constexpr QSize Maximum(FileReader::Picture_MaximumSide, FileReader::Picture_MaximumSide);
    const bool fits = size.boundedTo(Maximum) == size;
    return fits ? size : size.scaled(Maximum, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

} // namespace

FileContent FileReader::read(const QString &path, const std::atomic_bool &isCancelled)
{
    const QFileInfo info(path);
    FileContent content;
    content.path = path;
    content.facts = factsOf(info);
    if (info.isDir())
        readFolder(&content, isCancelled);
    else if (info.isFile())
        readFile(&content, info);
    else if (info.exists())
        content.text = tr("It is not opened for a preview.");
    else if (info.isSymLink())
        content.text = tr("The link leads nowhere.");
    else
        content.text = tr("It does not exist any more.");
    return content;
}

QString FileReader::kindOf(const QFileInfo &info)
{
    if (info.isDir())
        return tr("Folder");
    if (info.isFile())
        return tr("File");
    return info.exists() ? tr("Pipe, socket or device") : QString();
}

QString FileReader::factsOf(const QFileInfo &info)
{
    QStringList facts;
    if (info.isSymLink())
        facts.append(tr("Link to %1").arg(info.symLinkTarget()));
    facts.append(kindOf(info));
    if (info.isFile())
        facts.append(QLocale().formattedDataSize(info.size()));
    if (info.lastModified().isValid())
        facts.append(QLocale().toString(info.lastModified(), QLocale::ShortFormat));
    facts.removeAll(QString());
    return facts.join(u" · "_s);
}

void FileReader::readFolder(FileContent *content, const std::atomic_bool &isCancelled)
{
    if (!QDir(content->path).isReadable()) {
        content->text = tr("The folder cannot be read.");
        return;
    }
    int count = 0;
    QDirIterator entries(content->path,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (; entries.hasNext() && !isCancelled; entries.next())
        ++count;
    content->text = tr("Number of entries: %1").arg(QLocale().toString(count));
}

void FileReader::readFile(FileContent *content, const QFileInfo &info)
{
    // Not only for speed: some files of the system say that they are empty, and wait for ever when
    // they are read.
    if (info.size() == 0) {
        content->text = tr("The file is empty.");
        return;
    }
    const QMimeType type = QMimeDatabase().mimeTypeForFile(info);
    if (isPicture(content->path, type))
        readPicture(content);
    else
        readText(content, type.inherits(u"text/plain"_s));
}

void FileReader::readPicture(FileContent *content)
{
    QImageReader reader(content->path);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    QSize size = reader.size();
    if (!size.isEmpty())
        reader.setScaledSize(sizeToRead(size));
    const bool isTooLarge = qint64(size.width()) * size.height() > Picture_MaximumArea;
    content->picture = isTooLarge ? QImage() : reader.read();
    if (content->picture.isNull()) {
        content->text = isTooLarge
                            ? tr("The picture is too large to be shown.")
                            : tr("The picture could not be read: %1.").arg(reader.errorString());
        return;
    }
    if (size.isEmpty())
        size = content->picture.size();
    else if (reader.transformation().testFlag(QImageIOHandler::TransformationRotate90))
        size.transpose();
    content->kind = FileContent::Kind::Picture;
    content->pictureSize = size;
    addFact(content, tr("%1 × %2 pixels").arg(size.width()).arg(size.height()));
}

void FileReader::readText(FileContent *content, bool isKnownAsText)
{
    QFile file(content->path);
    if (!file.open(QIODevice::ReadOnly)) {
        content->text = tr("It could not be read: %1.").arg(file.errorString());
        return;
    }
    const QByteArray bytes = file.read(Text_Maximum);
    // A character that is cut at the end is no error.
    QStringDecoder decoder(QStringConverter::encodingForData(bytes).value_or(QStringDecoder::Utf8));
    content->text = decoder(bytes);
    content->kind = FileContent::Kind::Text;
    if (decoder.hasError() || content->text.contains(QChar::Null)) {
        if (!isKnownAsText || bytes.contains('\0')) {
            content->kind = FileContent::Kind::Message;
            content->text = tr("There is no preview of files of this kind.");
            return;
        }
        content->text = QString::fromLatin1(bytes);
        addFact(content, tr("not in UTF-8, read as Latin-1"));
    }
    if (!file.atEnd())
        addFact(content, tr("the first %1").arg(QLocale().formattedDataSize(bytes.size())));
}

void FileReader::addFact(FileContent *content, const QString &fact)
{
    content->facts += u" · "_s + fact;
}
