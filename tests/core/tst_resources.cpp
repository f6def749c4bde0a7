// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "support/TestCase.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QIcon>
#include <QImageReader>
#include <QLabel>
#include <QRegularExpression>
#include <QResource>
#include <QXmlStreamReader>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

enum class Storage { Plain, Compressed };

struct Entry
{
    const char *path;
    Storage storage = Storage::Plain;
    std::optional<QSize> size = {}; ///< of icons whose size is promised
};

struct Bundle
{
    QString file;
    QList<Entry> entries;
};

const QList<Bundle> &bundles()
{
    constexpr Storage Compressed = Storage::Compressed;
    constexpr Storage Plain = Storage::Plain;
    constexpr QSize Small(10, 10);
    constexpr QSize Medium(16, 16);
    constexpr QSize ScrollArrow(17, 17);
    static const QList<Bundle> all{
        {u"vornframe_theme.qrc"_s, {{"/vornframe/vornframelight.css"}}},
        {u"vornframe_address.qrc"_s,
         {{"/res/addressLight.css", Compressed},
          {"/res/arrowDown.svg", Plain, QSize(8, 8)},
          {"/res/arrowRight.svg", Plain, QSize(8, 8)},
          {"/res/backward.svg", Plain, Medium},
          {"/res/browse.svg", Plain, Medium},
          {"/res/dirup.svg", Plain, Medium},
          {"/res/forward.svg", Plain, Medium}}},
        {u"vornframe_dock.qrc"_s,
         {{"/res/dockLight.css", Compressed},
          {"/res/addHover.svg", Plain, Small},
          {"/res/addNormal.svg", Plain, Small},
          {"/res/close.svg"},
          {"/res/downArrowNormal.svg", Plain, ScrollArrow},
          {"/res/downArrowPressed.svg", Plain, ScrollArrow},
          {"/res/downHover.svg", Plain, Small},
          {"/res/downNormal.svg", Plain, Small},
          {"/res/drag.svg"},
          {"/res/leftArrowNormal.svg", Plain, ScrollArrow},
          {"/res/leftArrowPressed.svg", Plain, ScrollArrow},
          {"/res/leftDisabled.svg", Plain, Small},
          {"/res/leftHover.svg", Plain, Small},
          {"/res/leftNormal.svg", Plain, Small},
          {"/res/menu.svg", Compressed},
          {"/res/rightArrowNormal.svg", Plain, ScrollArrow},
          {"/res/rightArrowPressed.svg", Plain, ScrollArrow},
          {"/res/rightDisabled.svg", Plain, Small},
          {"/res/rightHover.svg", Plain, Small},
          {"/res/rightNormal.svg", Plain, Small},
          {"/res/upArrowNormal.svg", Plain, ScrollArrow},
          {"/res/upArrowPressed.svg", Plain, ScrollArrow},
          {"/res/workSpace.svg", Plain, QSize(24, 24)}}},
        {u"vornframe_ribbon.qrc"_s,
         {{"/res/ribbonLight.css", Compressed},
          {"/res/ribbonDark.css", Compressed},
          {"/res/arrow.svg", Plain, QSize(8, 4)},
          {"/res/boxChecked.svg", Plain, Medium},
          {"/res/boxUnchecked.svg", Plain, Medium},
          {"/res/close.svg"},
          {"/res/collect.svg", Plain, Medium},
          {"/res/collected.svg", Plain, Medium},
          {"/res/radioChecked.svg", Plain, Medium},
          {"/res/radioUnchecked.svg", Plain, Medium},
          {"/res/search.svg"},
          {"/res/spinDown.svg", Plain, Small},
          {"/res/spinUp.svg", Plain, Small},
          {"/res/toBottom.svg", Plain, Medium},
          {"/res/toTop.svg", Plain, Medium}}},
    };
    return all;
}

QDir sourceDir()
{
    return QDir(QStringLiteral(VORNFRAME_SOURCE_DIR));
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString resourcePath(const Entry &entry)
{
    return u':' + QLatin1StringView(entry.path);
}

/// Where a bundle takes its resources from, by their paths.
QMap<QString, QString> sourcesOf(const QString &qrcFile)
{
    QMap<QString, QString> sources;
    QFile file(sourceDir().filePath(u"resources/"_s + qrcFile));
    if (!file.open(QIODevice::ReadOnly))
        return sources;
    QXmlStreamReader xml(&file);
    QString prefix;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        if (xml.name() == "qresource"_L1)
            prefix = attributes.value("prefix"_L1).toString();
        if (xml.name() != "file"_L1)
            continue;
        const QString alias = attributes.value("alias"_L1).toString();
        const QString source = xml.readElementText();
        sources.insert(prefix + u'/' + (alias.isEmpty() ? source : alias), source);
    }
    return sources;
}

/// The size that an SVG image says it has.
QSize sizeInSvg(const QString &path)
{
    QXmlStreamReader xml(bytesOf(path));
    if (!xml.readNextStartElement() || xml.name() != "svg"_L1)
        return {};
    const QXmlStreamAttributes attributes = xml.attributes();
    return {attributes.value("width"_L1).toInt(), attributes.value("height"_L1).toInt()};
}

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator iterator(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (iterator.hasNext())
        files.append(iterator.next());
    files.sort();
    return files;
}

QStringList listedPaths()
{
    QStringList paths;
    for (const Bundle &bundle : bundles()) {
        for (const Entry &entry : bundle.entries)
            paths.append(resourcePath(entry));
    }
    paths.removeDuplicates();
    paths.sort();
    return paths;
}

void addPathRows(const QString &ending)
{
    QTest::addColumn<QString>("path");
    for (const QString &path : listedPaths().filter(ending))
        QTest::newRow(qPrintable(path)) << path;
}

bool hasInk(const QPixmap &pixmap)
{
    QImage blank(pixmap.size(), QImage::Format_ARGB32_Premultiplied);
    blank.fill(Qt::transparent);
    return pixmap.toImage().convertToFormat(blank.format()) != blank;
}

} // namespace

class tst_Resources : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void exactlyTheListedFilesAreThere();
    void eachBundleHoldsExactlyItsFiles_data();
    void eachBundleHoldsExactlyItsFiles();
    void theMarkedFilesAreCompressedAndNoOthers_data();
    void theMarkedFilesAreCompressedAndNoOthers();
    void noFileIsEmpty_data();
    void noFileIsEmpty();
    void theDataHasFormatVersion3();

    void iconsHaveTheirSizes_data();
    void iconsHaveTheirSizes();
    void iconsRenderAtEveryRatio_data();
    void iconsRenderAtEveryRatio();
    void theStatesOfAnIconLookDifferent_data();
    void theStatesOfAnIconLookDifferent();
    void theCloseIconIsOneArtwork();

    void sheetsAreParsedWithoutAWarning_data();
    void sheetsAreParsedWithoutAWarning();
    void sheetsNameOnlyFilesThatAreThere_data();
    void sheetsNameOnlyFilesThatAreThere();
    void sheetsAreUtf8_data();
    void sheetsAreUtf8();
};

void tst_Resources::exactlyTheListedFilesAreThere()
{
    QCOMPARE(filesBelow(u":/res"_s) + filesBelow(u":/vornframe"_s), listedPaths());
    // Beside what Qt itself brings.
    QStringList roots = QDir(u":/"_s).entryList();
    roots.removeIf([](const QString &root) { return root.startsWith(u'q'); });
    QCOMPARE(roots.join(u' '), u"res vornframe"_s);
}

void tst_Resources::eachBundleHoldsExactlyItsFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("paths");
    for (const Bundle &bundle : bundles()) {
        QStringList paths;
        for (const Entry &entry : bundle.entries)
            paths.append(QString::fromLatin1(entry.path));
        paths.sort();
        QTest::newRow(qPrintable(bundle.file)) << bundle.file << paths;
    }
}

void tst_Resources::eachBundleHoldsExactlyItsFiles()
{
    QFETCH(const QString, file);
    QTEST(QStringList(sourcesOf(file).keys()), "paths");
}

void tst_Resources::theMarkedFilesAreCompressedAndNoOthers_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QResource::Compression>("compression");
    for (const Bundle &bundle : bundles()) {
        for (const Entry &entry : bundle.entries) {
            const bool compressed = entry.storage == Storage::Compressed;
            QTest::addRow("%s in %s", entry.path, qPrintable(bundle.file))
                << resourcePath(entry)
                << (compressed ? QResource::ZlibCompression : QResource::NoCompression);
        }
    }
}

void tst_Resources::theMarkedFilesAreCompressedAndNoOthers()
{
    QFETCH(const QString, path);
    const QResource resource(path);
    QVERIFY(resource.isValid());
    QTEST(resource.compressionAlgorithm(), "compression");
}

void tst_Resources::noFileIsEmpty_data()
{
    addPathRows(QString());
}

void tst_Resources::noFileIsEmpty()
{
    QFETCH(const QString, path);
    QVERIFY(!bytesOf(path).isEmpty());
}

void tst_Resources::theDataHasFormatVersion3()
{
    const QByteArray buildFile = bytesOf(sourceDir().filePath(u"src/CMakeLists.txt"_s));
    QVERIFY(buildFile.contains("OPTIONS --format-version 3\n"));
    // Times of modification came with version 2; without them the data would be older.
    QVERIFY(QResource(u":/res/arrow.svg"_s).lastModified().isValid());
}

void tst_Resources::iconsHaveTheirSizes_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    for (const Bundle &bundle : bundles()) {
        for (const Entry &entry : bundle.entries) {
            if (entry.size)
                QTest::newRow(entry.path) << resourcePath(entry) << *entry.size;
        }
    }
}

void tst_Resources::iconsHaveTheirSizes()
{
    QFETCH(const QString, path);
    QTEST(sizeInSvg(path), "size");
    QTEST(QImageReader(path).size(), "size");
}

void tst_Resources::iconsRenderAtEveryRatio_data()
{
    addPathRows(u".svg"_s);
}

void tst_Resources::iconsRenderAtEveryRatio()
{
    QFETCH(const QString, path);
    const QSize size = sizeInSvg(path);
    QVERIFY(!size.isEmpty());
    const QIcon icon(path);
    for (const int ratio : {1, 2}) {
        for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
            const QPixmap pixmap = icon.pixmap(size, ratio, mode);
            QCOMPARE(pixmap.size(), size * ratio);
            QVERIFY(hasInk(pixmap));
        }
    }
    // The style sheets read the icons as images, not through the icon engine.
    QVERIFY(hasInk(QPixmap(path)));
}

void tst_Resources::theStatesOfAnIconLookDifferent_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
    const QList<std::pair<const char *, const char *>> pairs{
        {"addNormal", "addHover"},
        {"boxUnchecked", "boxChecked"},
        {"collect", "collected"},
        {"downArrowNormal", "downArrowPressed"},
        {"downNormal", "downHover"},
        {"leftArrowNormal", "leftArrowPressed"},
        {"leftNormal", "leftDisabled"},
        {"leftNormal", "leftHover"},
        {"radioUnchecked", "radioChecked"},
        {"rightArrowNormal", "rightArrowPressed"},
        {"rightNormal", "rightDisabled"},
        {"rightNormal", "rightHover"},
        {"upArrowNormal", "upArrowPressed"},
        {"backward", "forward"},
        {"spinUp", "spinDown"},
        {"toTop", "toBottom"},
    };
    for (const auto &[one, other] : pairs) {
        QTest::addRow("%s and %s", one, other) << u":/res/%1.svg"_s.arg(QLatin1StringView(one))
                                               << u":/res/%1.svg"_s.arg(QLatin1StringView(other));
    }
}

void tst_Resources::theStatesOfAnIconLookDifferent()
{
    QFETCH(const QString, one);
    QFETCH(const QString, other);
    const QImage oneImage(one);
    const QImage otherImage(other);
    QCOMPARE(oneImage.size(), otherImage.size());
    QVERIFY(oneImage != otherImage);
}

void tst_Resources::theCloseIconIsOneArtwork()
{
    const QString path = u"/res/close.svg"_s;
    const QString ofDock = sourcesOf(u"vornframe_dock.qrc"_s).value(path);
    const QString ofRibbon = sourcesOf(u"vornframe_ribbon.qrc"_s).value(path);
    const QDir folder(sourceDir().filePath(u"resources"_s));
    const QByteArray bytes = bytesOf(folder.filePath(ofDock));
    QVERIFY(!bytes.isEmpty());
    QCOMPARE(bytesOf(folder.filePath(ofRibbon)), bytes);
    QCOMPARE(bytesOf(u':' + path), bytes);
}

void tst_Resources::sheetsAreParsedWithoutAWarning_data()
{
    addPathRows(u".css"_s);
}

void tst_Resources::sheetsAreParsedWithoutAWarning()
{
    QFETCH(const QString, path);
    QWidget widget;
    QLabel label(u"text"_s, &widget);
    widget.setStyleSheet(QString::fromUtf8(bytesOf(path)));
    widget.ensurePolished();
    QVERIFY(!widget.grab().isNull());
}

void tst_Resources::sheetsNameOnlyFilesThatAreThere_data()
{
    addPathRows(u".css"_s);
}

void tst_Resources::sheetsNameOnlyFilesThatAreThere()
{
    QFETCH(const QString, path);
    static const QRegularExpression url(u"url\\(([^)]*)\\)"_s);
    auto matches = url.globalMatch(QString::fromUtf8(bytesOf(path)));
    while (matches.hasNext()) {
        const QString named = matches.next().captured(1);
        QVERIFY2(QFile::exists(named), qPrintable(named));
    }
}

void tst_Resources::sheetsAreUtf8_data()
{
    addPathRows(u".css"_s);
}

void tst_Resources::sheetsAreUtf8()
{
    QFETCH(const QString, path);
    const QByteArray bytes = bytesOf(path);
    QCOMPARE(QString::fromUtf8(bytes).toUtf8(), bytes);
    QVERIFY(!bytes.startsWith("\xef\xbb\xbf"));
}

QTEST_MAIN(tst_Resources)

#include "tst_resources.moc"
