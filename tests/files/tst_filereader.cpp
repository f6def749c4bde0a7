// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "support/TestCase.h"

#include "FileReader.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#    include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;
using Kind = FileContent::Kind;

/// What a preview gets of files.
class tst_FileReader final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void tellsTheKindOfAFile_data();
    void tellsTheKindOfAFile();
    void readsTheBeginningOfALongText();
    void cutsNoCharacterIntoPieces();
    void takesOtherTextsForLatin1();
    void readsTheTextOfADrawing();
    void aDrawingIsNoPictureByAnotherName();
    void readsAPicture();
    void scalesALargePictureDown();
    void turnsAPictureAsTheCameraWasHeld();
    void saysThatAPictureIsTooLarge();
    void countsWhatIsInAFolder();
    void countsNoFurtherWhenCancelled();
    void opensNoPipe();
    void opensNothingThatSaysItIsEmpty();
    void saysWhereALinkLeads();
    void saysThatThereIsNothing();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString createFile(const QString &name, const QByteArray &bytes) const;
    static FileContent read(const QString &path);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_FileReader::init()
{
    TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
}

QString tst_FileReader::createFile(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("a file for the test could not be written");
    return file.fileName();
}

FileContent tst_FileReader::read(const QString &path)
{
    return FileReader::read(path, false);
}

void tst_FileReader::tellsTheKindOfAFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");

    const auto text = [](const char *row, const QString &name, const QByteArray &bytes,
                         const QString &expected) {
        QTest::newRow(row) << name << bytes << int(Kind::Text) << expected;
    };
    const auto message = [](const char *row, const QString &name, const QByteArray &bytes,
                            const QString &expected) {
        QTest::newRow(row) << name << bytes << int(Kind::Message) << expected;
    };
    text("text", u"a.txt"_s, "some\ntext\n", u"some\ntext\n"_s);
    text("without suffix", u"a"_s, "text", u"text"_s);
    text("unknown suffix", u"a.xyzzy"_s, "text", u"text"_s);
    text("suffix of other files", u"a.bin"_s, "text", u"text"_s);
    text("not only ASCII", u"a.txt"_s, "gr\xc3\xbc\xc3\x9f", u"grüß"_s);
    text("mark of UTF-8", u"a.txt"_s,
         "\xef\xbb\xbf"
         "a",
         u"a"_s);
    text("UTF-16", u"a.txt"_s,
         QByteArray("\xff\xfe"
                    "a\0\xfc\0",
                    6),
         u"aü"_s);
    text("markup", u"a.html"_s, "<b>a</b>", u"<b>a</b>"_s);
    text("table", u"a.csv"_s, "a;b", u"a;b"_s);
    message("empty", u"a.txt"_s, "", u"The file is empty."_s);
    message("empty picture", u"a.png"_s, "", u"The file is empty."_s);
    message("zeros", u"a.dat"_s, QByteArray("a\0b", 3),
            u"There is no preview of files of this kind."_s);
    message("zeros with the suffix of a text", u"a.txt"_s, QByteArray("a\0b", 3),
            u"There is no preview of files of this kind."_s);
    message("neither text nor picture", u"a.zip"_s, "PK\3\4\xff\xfe",
            u"There is no preview of files of this kind."_s);
    message("broken picture", u"a.png"_s, "no picture",
            u"The picture could not be read: Unsupported image format."_s);
    message("cut picture", u"a.png"_s, "\x89PNG\r\n\x1a\n",
            u"The picture could not be read: Unable to read image data."_s);
}

void tst_FileReader::tellsTheKindOfAFile()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);
    const FileContent content = read(createFile(name, bytes));
    QCOMPARE(content.path, path(name));
    QTEST(content.text, "text");
    QTEST(int(content.kind), "kind");
    QVERIFY(content.picture.isNull());
    QVERIFY2(content.facts.contains(u"%1 bytes"_s.arg(bytes.size())), qPrintable(content.facts));
}

void tst_FileReader::readsTheBeginningOfALongText()
{
    constexpr auto Maximum = FileReader::Text_Maximum;
    const FileContent exact = read(createFile(u"a.txt"_s, QByteArray(Maximum, 'a')));
    QCOMPARE(exact.text.size(), Maximum);
    QVERIFY2(!exact.facts.contains(u"first"_s), qPrintable(exact.facts));
    const FileContent longer = read(createFile(u"b.txt"_s, QByteArray(Maximum + 1, 'a')));
    QCOMPARE(longer.text.size(), Maximum);
    QVERIFY2(longer.facts.endsWith(u"the first 64.00 KiB"_s), qPrintable(longer.facts));
}

void tst_FileReader::cutsNoCharacterIntoPieces()
{
    const QByteArray bytes = 'a' + QByteArray("ü").repeated(FileReader::Text_Maximum);
    const FileContent content = read(createFile(u"a.txt"_s, bytes));
    QCOMPARE(content.kind, Kind::Text);
    QCOMPARE(content.text.size(), FileReader::Text_Maximum / 2);
    QVERIFY(content.text.endsWith(u'ü'));
}

void tst_FileReader::takesOtherTextsForLatin1()
{
    const FileContent content = read(createFile(u"a.txt"_s, "gr\xfc\xdf"));
    QCOMPARE(content.kind, Kind::Text);
    QCOMPARE(content.text, u"grüß"_s);
    QVERIFY2(content.facts.contains(u"Latin-1"_s), qPrintable(content.facts));
}

void tst_FileReader::readsTheTextOfADrawing()
{
    const QByteArray drawing("<svg xmlns=\"http://www.w3.org/2000/svg\"/>");
    const FileContent content = read(createFile(u"a.svg"_s, drawing));
    QCOMPARE(content.kind, Kind::Text);
    QCOMPARE(content.text, QString::fromUtf8(drawing));
}

void tst_FileReader::aDrawingIsNoPictureByAnotherName()
{
#ifdef Q_OS_UNIX
    QCOMPARE(mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), S_IRWXU), 0);
#endif
    QByteArray drawing(R"(<svg xmlns="http://www.w3.org/2000/svg")"
                       R"( xmlns:xlink="http://www.w3.org/1999/xlink">)"
                       R"(<image xlink:href="%1" width="1" height="1"/></svg>)");
    drawing.replace("%1", QFile::encodeName(path(u"pipe"_s)));
    for (const QString &name : {u"a.svg"_s, u"a.png"_s, u"a"_s})
        QCOMPARE(read(createFile(name, drawing)).kind, Kind::Text);
}

void tst_FileReader::readsAPicture()
{
    QImage image(300, 40, QImage::Format_RGB32);
    image.fill(Qt::blue);
    for (const char *format : {"png", "jpg", "bmp"}) {
        // The suffix may be wrong.
        QVERIFY(image.save(path(u"a.png"_s), format));
        const FileContent content = read(path(u"a.png"_s));
        QCOMPARE(content.kind, Kind::Picture);
        QCOMPARE(content.pictureSize, QSize(300, 40));
        QCOMPARE(content.picture.size(), QSize(300, 40));
        QVERIFY2(content.facts.endsWith(u"300 × 40 pixels"_s), qPrintable(content.facts));
    }
}

void tst_FileReader::scalesALargePictureDown()
{
    QImage image(4000, 20, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QVERIFY(image.save(path(u"a.png"_s)));
    const FileContent content = read(path(u"a.png"_s));
    QCOMPARE(content.kind, Kind::Picture);
    QCOMPARE(content.pictureSize, QSize(4000, 20));
    QCOMPARE(content.picture.size(), QSize(2048, 10));
}

void tst_FileReader::turnsAPictureAsTheCameraWasHeld()
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QVERIFY(image.save(&buffer, "jpg"));
    // The facts that a camera writes, with the one on the orientation: turned by a quarter.
    constexpr int AfterStart = 2;
    bytes.insert(AfterStart, QByteArray::fromHex("ffe1002245786966000049492a00080000000100"
                                                 "12010300010000000600000000000000"));
    const FileContent content = read(createFile(u"a.jpg"_s, bytes));
    QCOMPARE(content.kind, Kind::Picture);
    QCOMPARE(content.pictureSize, QSize(20, 40));
    QCOMPARE(content.picture.size(), QSize(20, 40));
}

void tst_FileReader::saysThatAPictureIsTooLarge()
{
    // The head says how large it is; there is no need to write all of it.
    const FileContent content = read(createFile(u"a.ppm"_s, "P6 20000 20000 255\nabc"));
    QCOMPARE(content.kind, Kind::Message);
    QCOMPARE(content.text, u"The picture is too large to be shown."_s);
}

void tst_FileReader::countsWhatIsInAFolder()
{
    const QDir folder(m_folder->path());
    QCOMPARE(read(folder.path()).text, u"Number of entries: 0"_s);
    QVERIFY(folder.mkdir(u"folder"_s));
    createFile(u"folder/not counted"_s, "a");
    createFile(u".hidden"_s, "a");
    createFile(u"a & <b>"_s, "a");
    QVERIFY(QFile::link(u"nowhere"_s, path(u"link.lnk"_s)));
    const FileContent content = read(folder.path());
    QCOMPARE(content.kind, Kind::Message);
    QCOMPARE(content.text, u"Number of entries: 4"_s);
    QVERIFY2(content.facts.startsWith(u"Folder · "_s), qPrintable(content.facts));
}

void tst_FileReader::countsNoFurtherWhenCancelled()
{
    createFile(u"a"_s, "a");
    QCOMPARE(FileReader::read(m_folder->path(), true).text, u"Number of entries: 0"_s);
}

void tst_FileReader::opensNoPipe()
{
#ifdef Q_OS_UNIX
    for (const QString &name : {u"pipe"_s, u"pipe.txt"_s, u"pipe.png"_s}) {
        QCOMPARE(mkfifo(QFile::encodeName(path(name)).constData(), S_IRWXU), 0);
        const FileContent content = read(path(name));
        QCOMPARE(content.kind, Kind::Message);
        QCOMPARE(content.text, u"It is not opened for a preview."_s);
        QVERIFY2(content.facts.startsWith(u"Pipe, "_s), qPrintable(content.facts));
    }
    QCOMPARE(read(u"/dev/zero"_s).text, u"It is not opened for a preview."_s);
#else
    QSKIP("There are no pipes with names here.");
#endif
}

void tst_FileReader::opensNothingThatSaysItIsEmpty()
{
#ifdef Q_OS_LINUX
    // It would give its text, others of its kind would wait.
    QCOMPARE(read(u"/proc/version"_s).text, u"The file is empty."_s);
#else
    QSKIP("There are no such files here.");
#endif
}

void tst_FileReader::saysWhereALinkLeads()
{
    createFile(u"a.txt"_s, "text");
    QVERIFY(QFile::link(path(u"a.txt"_s), path(u"link.lnk"_s)));
    const FileContent content = read(path(u"link.lnk"_s));
    QCOMPARE(content.text, u"text"_s);
    QVERIFY2(content.facts.startsWith(u"Link to %1 · "_s.arg(path(u"a.txt"_s))),
             qPrintable(content.facts));
    QVERIFY(QFile::remove(path(u"a.txt"_s)));
    const FileContent broken = read(path(u"link.lnk"_s));
    QCOMPARE(broken.text, u"The link leads nowhere."_s);
    QVERIFY2(broken.facts.startsWith(u"Link to "_s), qPrintable(broken.facts));
}

void tst_FileReader::saysThatThereIsNothing()
{
    const FileContent content = read(path(u"none"_s));
    QCOMPARE(content.kind, Kind::Message);
    QCOMPARE(content.text, u"It does not exist any more."_s);
    QCOMPARE(content.facts, QString());
}

QTEST_MAIN(tst_FileReader)

#include "tst_filereader.moc"
