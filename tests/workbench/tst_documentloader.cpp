// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DocumentFixture.h"
#include "PictureFile.h"
#include "TextDocument.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QPlainTextEdit>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray picture(const char *format, QSize size = QSize(4, 3))
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes;
}

} // namespace

/// Files as documents.
class tst_DocumentLoader final : public DocumentFixture
{
    Q_OBJECT

private Q_SLOTS:
    void tellsTheKindOfAFile_data();
    void tellsTheKindOfAFile();
    void saysWhyAFileCannotBeOpened_data();
    void saysWhyAFileCannotBeOpened();
    void aPipeIsRefusedInsteadOfAwaited_data();
    void aPipeIsRefusedInsteadOfAwaited();
    void aReasonIsNotNeeded();
    void aFileOfTheMaximumSizeIsOpened();
};

void tst_DocumentLoader::tellsTheKindOfAFile_data()
{
    using Kind = WorkbenchDocument::Kind;
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<WorkbenchDocument::Kind>("kind");

    const QByteArray svg(R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="5"/>)");
    const QByteArray svgWithFile(
        R"(<svg xmlns="http://www.w3.org/2000/svg"><image href="/dev/stdin"/></svg>)");
    QTest::newRow("text") << u"a.txt"_s << QByteArray("a") << Kind::Text;
    QTest::newRow("empty") << u"a.txt"_s << QByteArray() << Kind::Text;
    QTest::newRow("without suffix") << u"a"_s << QByteArray("some text\n") << Kind::Text;
    QTest::newRow("source that looks like an old picture")
        << u"a.h"_s << QByteArray("#define a_width 16\n#define a_height 16\n") << Kind::Text;
    QTest::newRow("text that begins like an old picture")
        << u"a.txt"_s << QByteArray("P1 is a street\n") << Kind::Text;
    QTest::newRow("Markdown") << u"a.md"_s << QByteArray("# a") << Kind::Text;
    QTest::newRow("commas") << u"a.csv"_s << QByteArray("a,b\n") << Kind::Table;
    QTest::newRow("capitals") << u"A.CSV"_s << QByteArray("a,b\n") << Kind::Table;
    QTest::newRow("tabulators") << u"a.tsv"_s << QByteArray("a\tb\n") << Kind::Table;
    QTest::newRow("tabulators, other name") << u"a.tab"_s << QByteArray("a\tb\n") << Kind::Table;
    QTest::newRow("empty table") << u"a.csv"_s << QByteArray() << Kind::Table;
    QTest::newRow("PNG") << u"a.png"_s << picture("png") << Kind::Picture;
    QTest::newRow("JPEG with another name") << u"a.png"_s << picture("jpg") << Kind::Picture;
    QTest::newRow("PNG named as text") << u"a.txt"_s << picture("png") << Kind::Picture;
    QTest::newRow("PNG without a name") << u"a"_s << picture("png") << Kind::Picture;
    QTest::newRow("bitmap") << u"a.pbm"_s << QByteArray("P1 1 1 0\n") << Kind::Picture;
    QTest::newRow("drawing") << u"a.svg"_s << svg << Kind::Picture;
    QTest::newRow("drawing that names files") << u"a.svg"_s << svgWithFile << Kind::Text;
}

void tst_DocumentLoader::tellsTheKindOfAFile()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, name);
    const QString path = createFile(name, bytes);
    QTEST(DocumentLoader::kindOf(path), "kind");
    QString reason = u"before"_s;
    const std::unique_ptr<WorkbenchDocument> document(DocumentLoader::load(path, &reason));
    QVERIFY2(document, qPrintable(reason));
    QVERIFY(reason.isEmpty());
    QTEST(document->kind(), "kind");
    QCOMPARE(document->path(), path);
    QVERIFY(!document->isModified());
}

void tst_DocumentLoader::saysWhyAFileCannotBeOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");

    QTest::newRow("none") << u"none/a.txt"_s << QByteArray() << u"no such file"_s;
    QTest::newRow("no picture") << u"none/a.png"_s << QByteArray() << u"no such file"_s;
    QTest::newRow("no table") << u"none/a.csv"_s << QByteArray() << u"no such file"_s;
    QTest::newRow("folder") << u"."_s << QByteArray() << u"folder"_s;
    QTest::newRow("zeros") << u"a.dat"_s << QByteArray("a\0b", 3) << u"binary"_s;
    QTest::newRow("zeros as a table") << u"a.csv"_s << QByteArray("a\0b", 3) << u"binary"_s;
    QTest::newRow("text as a picture") << u"a.png"_s << QByteArray("text") << u"no picture"_s;
    QTest::newRow("empty picture") << u"a.png"_s << QByteArray("") << u"no picture"_s;
    QTest::newRow("broken picture") << u"a.bmp"_s << picture("bmp").left(20) << u"picture"_s;
    QTest::newRow("large picture")
        << u"a.ppm"_s << QByteArray("P6 9000 9000 255\n") << u"million pixels"_s;
    QTest::newRow("large text") << u"a.txt"_s << QByteArray(TextFile::MaximumSize + 1, 'a')
                                << u"64 MiB"_s;
    QTest::newRow("large table") << u"a.csv"_s << QByteArray(TextFile::MaximumSize + 1, 'a')
                                 << u"64 MiB"_s;
}

void tst_DocumentLoader::saysWhyAFileCannotBeOpened()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, reason);
    if (!bytes.isNull())
        createFile(name, bytes);
    QString given;
    QVERIFY(!DocumentLoader::load(filePath(name), &given));
    QVERIFY2(given.contains(reason), qPrintable(given));
}

void tst_DocumentLoader::aPipeIsRefusedInsteadOfAwaited_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("text") << u"a.txt"_s;
    QTest::newRow("picture") << u"a.png"_s;
    QTest::newRow("drawing") << u"a.svg"_s;
    QTest::newRow("table") << u"a.csv"_s;
}

void tst_DocumentLoader::aPipeIsRefusedInsteadOfAwaited()
{
    QFETCH(const QString, name);
    QCOMPARE(mkfifo(QFile::encodeName(filePath(name)).constData(), 0600), 0);
    QString reason;
    QVERIFY(!DocumentLoader::load(filePath(name), &reason));
    QVERIFY2(reason.contains(u"regular"_s), qPrintable(reason));
}

void tst_DocumentLoader::aReasonIsNotNeeded()
{
    QVERIFY(!DocumentLoader::load(filePath(u"none"_s), nullptr));
}

void tst_DocumentLoader::aFileOfTheMaximumSizeIsOpened()
{
    const QByteArray line = QByteArray(1023, 'a') + '\n';
    const auto document = load<TextDocument>(
        createFile(u"a.txt"_s, line.repeated(int(TextFile::MaximumSize / line.size()))));
    QCOMPARE(document->editor()->blockCount(), TextFile::MaximumSize / line.size() + 1);
}

QTEST_MAIN(tst_DocumentLoader)

#include "tst_documentloader.moc"
