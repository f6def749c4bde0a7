// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DocumentLoader.h"

#include "PictureDocument.h"
#include "TableDocument.h"
#include "TextDocument.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QMimeDatabase>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// In bytes, of a drawing that is searched for the names of other files.
constexpr qint64 Drawing_Sample = qint64(4) * 1024 * 1024;

bool isReadable(const QMimeType &type)
{
    return QImageReader::supportedMimeTypes().contains(type.name().toLatin1());
}

/// A drawing may name other files, even pipes, which would be opened for it.
bool refersToFiles(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray text = file.read(Drawing_Sample).toLower();
    return text.contains("<image") || text.contains("<!entity") || text.contains(":image");
}

bool isPicture(const QFileInfo &info)
{
    const QMimeDatabase database;
    const QMimeType byName = database.mimeTypeForFile(info);
    if (byName.name().startsWith(u"image/svg"_s))
        return byName.name() == u"image/svg+xml"_s && isReadable(byName)
               && !refersToFiles(info.filePath());
    if (isReadable(byName))
        return true;
    // Some old formats begin with letters that any text may begin with.
    const QMimeType byContent = database.mimeTypeForFile(info, QMimeDatabase::MatchContent);
    return isReadable(byContent) && !byContent.inherits(u"text/plain"_s)
           && !byContent.inherits(u"image/x-portable-anymap"_s);
}

bool isTable(const QFileInfo &info)
{
    const QStringList suffixes{u"csv"_s, u"tsv"_s, u"tab"_s};
    return suffixes.contains(info.suffix().toLower());
}

/// A file of the kind \a File in a document of the kind \a Document.
template <typename Document, typename File, typename... Options>
WorkbenchDocument *loaded(const QString &path, QString *reason, Options... options)
{
    File file;
    const FileStatus status = file.load(path, options...);
    *reason = status.reason;
    return status.ok() ? new Document(path, file) : nullptr;
}

} // namespace

WorkbenchDocument *DocumentLoader::load(const QString &path, QString *reason)
{
    QString unused;
    QString *why = reason ? reason : &unused;
    switch (kindOf(path)) {
    case WorkbenchDocument::Picture:
        return loaded<PictureDocument, PictureFile>(path, why);
    case WorkbenchDocument::Table:
        return loaded<TableDocument, TableFile>(path, why);
    case WorkbenchDocument::Text:
        break;
    }
    return loaded<TextDocument, TextFile>(path, why, TextFile::Encodings::All);
}

WorkbenchDocument::Kind DocumentLoader::kindOf(const QString &path)
{
    const QFileInfo info(path);
    // Only regular files are opened: a pipe would hold up the program.
    if (info.exists() && !info.isFile())
        return WorkbenchDocument::Text;
    if (isPicture(info))
        return WorkbenchDocument::Picture;
    return isTable(info) ? WorkbenchDocument::Table : WorkbenchDocument::Text;
}
