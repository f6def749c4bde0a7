// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "FileKinds.h"

#include <QImageReader>

using namespace Qt::StringLiterals;

namespace FileKinds {

QStringList suffixes()
{
    // What has none is mostly a text.
    QStringList list{QString(), u"txt"_s,   u"md"_s,  u"log"_s,  u"ini"_s,  u"conf"_s,  u"cfg"_s,
                     u"json"_s, u"xml"_s,   u"yml"_s, u"yaml"_s, u"html"_s, u"htm"_s,   u"css"_s,
                     u"js"_s,   u"c"_s,     u"cpp"_s, u"h"_s,    u"hpp"_s,  u"py"_s,    u"sh"_s,
                     u"diff"_s, u"cmake"_s, u"qrc"_s, u"rst"_s,  u"toml"_s, u"patch"_s, u"tex"_s,
                     u"csv"_s,  u"tsv"_s,   u"tab"_s};
    const QByteArrayList formats = QImageReader::supportedImageFormats();
    for (const QByteArray &format : formats)
        list.append(QString::fromLatin1(format));
    // Suffixes are told apart by their case, too.
    const QStringList lower = list;
    for (const QString &suffix : lower)
        list.append(suffix.toUpper());
    return list;
}

} // namespace FileKinds
