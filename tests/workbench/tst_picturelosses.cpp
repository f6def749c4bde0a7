// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DocumentFixture.h"
#include "PictureDocument.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes;
}

QImage plain(QImage::Format format, const QColor &color)
{
    QImage image(8, 6, format);
    image.fill(color);
    return image;
}

/// A JPEG with a segment of \a kind in which \a content is.
QByteArray jpegWith(char kind, const QByteArray &content)
{
    QByteArray length(2, '\0');
    qToBigEndian(quint16(content.size() + 2), length.data());
    return encoded(plain(QImage::Format_RGB32, Qt::red), "jpeg")
        .insert(2, "\xff" + QByteArray(1, kind) + length + content);
}

/// With a turn to the right, as cameras note it.
QByteArray exif()
{
    return QByteArray("Exif\0\0MM\0*\0\0\0\x08\0\1\1\x12\0\3\0\0\0\1\0\6\0\0\0\0\0\0", 32);
}

/// As the chunks of a PNG have it.
quint32 checksum(const QByteArray &bytes)
{
    quint32 sum = 0xffffffff;
    for (const char byte : bytes) {
        sum ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ (sum & 1 ? 0xedb88320 : 0);
    }
    return ~sum;
}

QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

/// A PNG with a chunk of \a kind, in which \a content is, in front of its pixels.
QByteArray pngWith(const QByteArray &kind, const QByteArray &content)
{
    const QByteArray chunk = number(quint32(content.size())) + kind + content
                             + number(checksum(kind + content));
    QByteArray bytes = encoded(plain(QImage::Format_RGB32, Qt::red), "png");
    return bytes.insert(bytes.indexOf("IDAT") - 4, chunk);
}

} // namespace

/// What is said before a picture is saved that its file cannot hold.
class tst_PictureLosses final : public DocumentFixture
{
    Q_OBJECT

private Q_SLOTS:
    void whatWouldBeLostIsAskedFor_data();
    void whatWouldBeLostIsAskedFor();
    void whatIsKeptIsNotAskedFor_data();
    void whatIsKeptIsNotAskedFor();
    void aCopyHasToHoldThePicture();
};

void tst_PictureLosses::whatWouldBeLostIsAskedFor_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("reason");

    const QImage deep = plain(QImage::Format_RGBX64, QColor(Qt::red));
    QImage gray(8, 6, QImage::Format_Grayscale16);
    gray.fill(Qt::gray);
    const QImage white = plain(QImage::Format_RGB32, Qt::white);
    QTest::newRow("notes of a camera")
        << u"a.jpg"_s << jpegWith('\xe1', exif()) << u"invert"_s << u"date"_s;
    QTest::newRow("notes of a program")
        << u"a.jpg"_s << jpegWith('\xed', "Photoshop 3.0") << u"invert"_s << u"date"_s;
    QTest::newRow("notes in a PNG")
        << u"a.png"_s << pngWith("eXIf", exif().mid(6)) << u"invert"_s << u"date"_s;
    QTest::newRow("a PNG that moves") << u"a.png"_s << pngWith("acTL", number(2) + number(0))
                                      << u"invert"_s << u"several pictures"_s;
    QTest::newRow("16 bits") << u"a.png"_s << encoded(deep, "png") << u"invert"_s
                             << u"8 bits, not 16"_s;
    QTest::newRow("16 bits of grey")
        << u"a.png"_s << encoded(gray, "png") << u"blur"_s << u"8 bits, not 16"_s;
    QTest::newRow("colours in black and white")
        << u"a.xbm"_s << encoded(white, "xbm") << u"emboss"_s << u"XBM"_s;
    QTest::newRow("colours in grey") << u"a.pgm"_s << encoded(white, "pgm") << u"red"_s << u"PGM"_s;
}

void tst_PictureLosses::whatWouldBeLostIsAskedFor()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, filter);
    QFETCH(const QString, reason);
    const QString path = createFile(name, bytes);
    QVERIFY(QImageReader(path).canRead());
    const auto document = load<PictureDocument>(path);
    document->applyFilter(filter);
    const QString said = document->save();
    QVERIFY2(said.contains(reason), qPrintable(said));
    QVERIFY(document->canSaveAnyway());
    QVERIFY(document->isModified());
    QCOMPARE(bytesOf(path), bytes);
    QCOMPARE(document->saveAnyway(), QString());
    QVERIFY(!document->isModified());
    QVERIFY(bytesOf(path) != bytes);
}

void tst_PictureLosses::whatIsKeptIsNotAskedFor_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");

    QImage clear = plain(QImage::Format_ARGB32, Qt::red);
    clear.setPixelColor(2, 2, QColor(0, 0, 255, 100));
    clear.setPixelColor(3, 3, QColor(0, 255, 0, 0));
    const QImage deep = plain(QImage::Format_RGBX64, QColor(Qt::red));
    const QImage solid = plain(QImage::Format_ARGB32, Qt::red);
    QTest::newRow("JPEG") << u"a.jpg"_s << encoded(solid, "jpeg");
    QTest::newRow("JPEG with a comment") << u"a.jpg"_s << jpegWith('\xfe', "a comment");
    QTest::newRow("transparency in a PNG") << u"a.png"_s << encoded(clear, "png");
    QTest::newRow("16 bits in a PNG") << u"a.png"_s << encoded(deep, "png");
    QTest::newRow("BMP") << u"a.bmp"_s << encoded(solid, "bmp");
    QTest::newRow("PPM") << u"a.ppm"_s << encoded(solid, "ppm");
    QTest::newRow("XPM") << u"a.xpm"_s << encoded(solid, "xpm");
    QTest::newRow("black and white")
        << u"a.xbm"_s << encoded(plain(QImage::Format_Mono, Qt::white), "xbm");
}

void tst_PictureLosses::whatIsKeptIsNotAskedFor()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, bytes);
    const auto document = load<PictureDocument>(createFile(name, bytes));
    document->rotate(1);
    QCOMPARE(document->save(), QString());
    document->applyFilter(u"mirror"_s);
    QCOMPARE(document->save(), QString());
}

void tst_PictureLosses::aCopyHasToHoldThePicture()
{
    QImage clear = plain(QImage::Format_ARGB32, Qt::red);
    clear.setPixelColor(2, 2, QColor(0, 0, 255, 100));
    const auto document = load<PictureDocument>(createFile(u"a.png"_s, encoded(clear, "png")));
    QVERIFY(document->saveCopy(filePath(u"b.jpg"_s)).contains(u"JPG"_s));
    QVERIFY(document->saveCopy(filePath(u"b.pbm"_s)).contains(u"PBM"_s));
    QVERIFY(!QFile::exists(filePath(u"b.jpg"_s)));
    QCOMPARE(document->saveCopy(filePath(u"c.png"_s)), QString());
    QCOMPARE(QImage(filePath(u"c.png"_s)), clear);
}

QTEST_MAIN(tst_PictureLosses)

#include "tst_picturelosses.moc"
