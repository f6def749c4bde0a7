// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PictureFilters.h"

#include "support/TestCase.h"

#include <QColor>
#include <QElapsedTimer>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

/// \a color, with one pixel in the middle of another.
QImage dotted(QColor color, QColor dot, QSize size = QSize(9, 9))
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    image.setPixelColor(size.width() / 2, size.height() / 2, dot);
    return image;
}

QImage filled(QColor color)
{
    return dotted(color, color);
}

/// Noise, always the same.
QImage noise(QSize size, QImage::Format format)
{
    QImage image(size, QImage::Format_ARGB32);
    quint32 state = 1;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            state = state * 1664525u + 1013904223u;
            image.setPixel(x, y, state);
        }
    }
    return image.convertToFormat(format);
}

void addAllFilters()
{
    QTest::addColumn<QString>("id");
    const QList<PictureFilters::Filter> filters = PictureFilters::all();
    for (const PictureFilters::Filter &filter : filters)
        QTest::newRow(qPrintable(filter.id)) << filter.id;
}

} // namespace

/// What the filters make of pictures.
class tst_PictureFilters final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theCatalogueIsComplete();
    void colorsChange_data();
    void colorsChange();
    void everyFilterChangesAPicture_data() { addAllFilters(); }
    void everyFilterChangesAPicture();
    void anyFormatAndSizeIsTaken_data() { addAllFilters(); }
    void anyFormatAndSizeIsTaken();
    void opaquePicturesStayOpaque_data() { addAllFilters(); }
    void opaquePicturesStayOpaque();
    void coloursOfTransparentPixelsDoNotBleed_data() { addAllFilters(); }
    void coloursOfTransparentPixelsDoNotBleed();
    void halfTransparentPixelsKeepTheirOpacity_data() { addAllFilters(); }
    void halfTransparentPixelsKeepTheirOpacity();
    void blurSpreadsADot();
    void noiseReductionRemovesADot();
    void edgesAreFoundAroundADot();
    void pixelsBecomeBlocks();
    void theVignetteDarkensTheCorners();
    void shapesAreTurned();
    void metadataIsKept();
    void anUnknownFilterChangesNothing();
    void previewsShowTheFilter();
    void largePicturesAreFiltered_data();
    void largePicturesAreFiltered();
};

void tst_PictureFilters::theCatalogueIsComplete()
{
    QSet<QString> ids;
    QSet<QString> names;
    QStringList groups;
    const QList<PictureFilters::Filter> filters = PictureFilters::all();
    for (const PictureFilters::Filter &filter : filters) {
        ids.insert(filter.id);
        names.insert(filter.name);
        QCOMPARE(PictureFilters::name(filter.id), filter.name);
        if (groups.isEmpty() || groups.constLast() != filter.group)
            groups.append(filter.group);
    }
    QVERIFY(filters.size() >= 24);
    QCOMPARE(ids.size(), filters.size());
    QCOMPARE(names.size(), filters.size());
    // Five runs: no group is in two places.
    QCOMPARE(groups.size(), 5);
    QCOMPARE(QSet<QString>(groups.cbegin(), groups.cend()).size(), 5);
}

void tst_PictureFilters::colorsChange_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QColor>("before");
    QTest::addColumn<QColor>("after");

    const QColor color(100, 150, 200);
    const int gray = qGray(color.rgb());
    QTest::newRow("grayscale") << u"grayscale"_s << color << QColor(gray, gray, gray);
    QTest::newRow("sepia") << u"sepia"_s << QColor(0, 100, 0) << QColor(76, 68, 53);
    QTest::newRow("sepia, white") << u"sepia"_s << QColor(Qt::white) << QColor(255, 255, 238);
    QTest::newRow("invert") << u"invert"_s << color << QColor(155, 105, 55);
    QTest::newRow("warm") << u"warm"_s << color << QColor(124, 150, 176);
    QTest::newRow("cool") << u"cool"_s << color << QColor(76, 150, 224);
    QTest::newRow("desaturate") << u"desaturate"_s << QColor(100, 100, 100)
                                << QColor(100, 100, 100);
    QTest::newRow("red") << u"red"_s << color << QColor(100, 0, 0);
    QTest::newRow("green") << u"green"_s << color << QColor(0, 150, 0);
    QTest::newRow("blue") << u"blue"_s << color << QColor(0, 0, 200);
    QTest::newRow("brighter") << u"brighter"_s << color << QColor(140, 190, 240);
    QTest::newRow("brighter, to the end")
        << u"brighter"_s << QColor(250, 0, 0) << QColor(255, 40, 40);
    QTest::newRow("darker") << u"darker"_s << color << QColor(60, 110, 160);
    QTest::newRow("darker, to the end") << u"darker"_s << QColor(30, 40, 50) << QColor(0, 0, 10);
    QTest::newRow("contrast") << u"moreContrast"_s << QColor(128, 28, 228) << QColor(128, 0, 255);
    QTest::newRow("less contrast")
        << u"lessContrast"_s << QColor(128, 28, 228) << QColor(128, 58, 198);
    QTest::newRow("shadows, ends") << u"gammaUp"_s << QColor(0, 255, 0) << QColor(0, 255, 0);
    QTest::newRow("posterize") << u"posterize"_s << QColor(63, 64, 255) << QColor(0, 85, 255);
    QTest::newRow("threshold, dark") << u"threshold"_s << QColor(127, 127, 127) << QColor(0, 0, 0);
    QTest::newRow("threshold, light")
        << u"threshold"_s << QColor(128, 128, 128) << QColor(255, 255, 255);
    QTest::newRow("solarize") << u"solarize"_s << QColor(100, 127, 200) << QColor(100, 127, 55);
    QTest::newRow("blur, flat") << u"blur"_s << color << color;
    QTest::newRow("strong blur, flat") << u"strongBlur"_s << color << color;
    QTest::newRow("sharpen, flat") << u"sharpen"_s << color << color;
    QTest::newRow("noise, flat") << u"noise"_s << color << color;
    QTest::newRow("pixelate, flat") << u"pixelate"_s << color << color;
    QTest::newRow("edges, flat") << u"edges"_s << color << QColor(0, 0, 0);
    QTest::newRow("emboss, flat") << u"emboss"_s << color << QColor(127, 127, 127);
}

void tst_PictureFilters::colorsChange()
{
    QFETCH(const QString, id);
    QFETCH(const QColor, before);
    QFETCH(const QColor, after);
    const QImage result = PictureFilters::apply(id, filled(before));
    for (int y = 0; y < result.height(); ++y) {
        for (int x = 0; x < result.width(); ++x)
            QCOMPARE(result.pixelColor(x, y), after);
    }
}

void tst_PictureFilters::everyFilterChangesAPicture()
{
    QFETCH(const QString, id);
    const QImage before = noise({130, 70}, QImage::Format_RGB32);
    const QImage after = PictureFilters::apply(id, before);
    QCOMPARE(after.size(), before.size());
    QVERIFY(after.convertToFormat(before.format()) != before);
}

void tst_PictureFilters::anyFormatAndSizeIsTaken()
{
    QFETCH(const QString, id);
    const QList<QImage::Format> formats{
        QImage::Format_Mono,   QImage::Format_Indexed8, QImage::Format_Grayscale8,
        QImage::Format_RGB16,  QImage::Format_RGB888,   QImage::Format_ARGB32_Premultiplied,
        QImage::Format_RGBA64, QImage::Format_Alpha8,
    };
    const QList<QSize> sizes{{1, 1}, {1, 5}, {5, 1}, {2, 2}, {33, 17}};
    for (const QImage::Format format : formats) {
        for (const QSize size : sizes)
            QCOMPARE(PictureFilters::apply(id, noise(size, format)).size(), size);
    }
    QVERIFY(PictureFilters::apply(id, QImage()).isNull());
}

void tst_PictureFilters::opaquePicturesStayOpaque()
{
    QFETCH(const QString, id);
    const QImage rgb = PictureFilters::apply(id, noise({20, 20}, QImage::Format_RGB32));
    QVERIFY(!rgb.hasAlphaChannel());
    QImage opaque = noise({20, 20}, QImage::Format_RGB32).convertToFormat(QImage::Format_ARGB32);
    opaque = PictureFilters::apply(id, opaque);
    for (int y = 0; y < opaque.height(); ++y) {
        for (int x = 0; x < opaque.width(); ++x)
            QCOMPARE(qAlpha(opaque.pixel(x, y)), 255);
    }
}

void tst_PictureFilters::coloursOfTransparentPixelsDoNotBleed()
{
    QFETCH(const QString, id);
    // Red that nobody sees, beside gray.
    QImage image = filled(QColor(100, 100, 100));
    QImage black = image;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < 3; ++x) {
            image.setPixelColor(x, y, QColor(255, 0, 0, 0));
            black.setPixelColor(x, y, QColor(0, 0, 0, 0));
        }
    }
    const auto seen = [&id](const QImage &picture) {
        return PictureFilters::apply(id, picture)
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    };
    QCOMPARE(seen(image), seen(black));
}

void tst_PictureFilters::halfTransparentPixelsKeepTheirOpacity()
{
    QFETCH(const QString, id);
    const QImage result = PictureFilters::apply(
        id, filled(QColor(200, 100, 50, 128)).convertToFormat(QImage::Format_ARGB32_Premultiplied));
    for (int y = 0; y < result.height(); ++y) {
        for (int x = 0; x < result.width(); ++x)
            QCOMPARE(qAlpha(result.pixel(x, y)), 128);
    }
}

void tst_PictureFilters::blurSpreadsADot()
{
    const QImage image = dotted(Qt::black, Qt::white, {41, 41});
    const QImage blur = PictureFilters::apply(u"blur"_s, image);
    const QImage strong = PictureFilters::apply(u"strongBlur"_s, image);
    QVERIFY(qRed(blur.pixel(20, 20)) > qRed(blur.pixel(22, 20)));
    QVERIFY(qRed(blur.pixel(22, 20)) > 0);
    // To all sides alike.
    QCOMPARE(blur.pixel(22, 20), blur.pixel(18, 20));
    QCOMPARE(blur.pixel(22, 20), blur.pixel(20, 22));
    QCOMPARE(blur.pixel(22, 20), blur.pixel(20, 18));
    QCOMPARE(qRed(blur.pixel(25, 20)), 0);
    QVERIFY(qRed(strong.pixel(20, 20)) < qRed(blur.pixel(20, 20)));
    // White on white stays, also at the sides.
    QCOMPARE(PictureFilters::apply(u"strongBlur"_s, filled(Qt::white)).pixelColor(0, 0),
             QColor(Qt::white));
}

void tst_PictureFilters::noiseReductionRemovesADot()
{
    const QImage result = PictureFilters::apply(u"noise"_s, dotted(QColor(9, 99, 199), Qt::white));
    QCOMPARE(result.convertToFormat(QImage::Format_ARGB32), filled(QColor(9, 99, 199)));
    // An edge stays sharp.
    QImage half = filled(Qt::black);
    for (int y = 0; y < 9; ++y) {
        for (int x = 0; x < 4; ++x)
            half.setPixelColor(x, y, Qt::white);
    }
    QCOMPARE(PictureFilters::apply(u"noise"_s, half).convertToFormat(half.format()), half);
}

void tst_PictureFilters::edgesAreFoundAroundADot()
{
    const QImage result = PictureFilters::apply(u"edges"_s, dotted(Qt::black, Qt::white));
    QCOMPARE(result.pixelColor(3, 4), QColor(Qt::white));
    QCOMPARE(result.pixelColor(4, 3), QColor(Qt::white));
    QCOMPARE(result.pixelColor(4, 4), QColor(Qt::black));
    QCOMPARE(result.pixelColor(0, 0), QColor(Qt::black));
}

void tst_PictureFilters::pixelsBecomeBlocks()
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.setPixelColor(0, 0, QColor(10, 0, 0));
    image.setPixelColor(1, 0, QColor(20, 0, 40));
    image.setPixelColor(0, 1, QColor(30, 80, 0));
    image.setPixelColor(1, 1, QColor(40, 0, 0));
    const QImage result = PictureFilters::apply(u"pixelate"_s, image);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(result.pixelColor(i % 2, i / 2), QColor(25, 20, 10));
}

void tst_PictureFilters::theVignetteDarkensTheCorners()
{
    const QImage result = PictureFilters::apply(u"vignette"_s, filled(QColor(200, 200, 200)));
    QCOMPARE(result.pixelColor(4, 4), QColor(200, 200, 200));
    QVERIFY(qRed(result.pixel(0, 0)) < 60);
    QCOMPARE(result.pixel(0, 0), result.pixel(8, 8));
    QCOMPARE(result.pixel(0, 8), result.pixel(8, 0));
}

void tst_PictureFilters::shapesAreTurned()
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setPixelColor(0, 0, Qt::red);
    QCOMPARE(PictureFilters::apply(u"mirror"_s, image).pixelColor(1, 0), QColor(Qt::red));
    QCOMPARE(PictureFilters::apply(u"flip"_s, image).pixelColor(0, 1), QColor(Qt::red));
    QCOMPARE(PictureFilters::apply(u"halfTurn"_s, image).pixelColor(1, 1), QColor(Qt::red));
}

void tst_PictureFilters::metadataIsKept()
{
    QImage image = filled(Qt::red);
    image.setText(u"Author"_s, u"somebody"_s);
    image.setDotsPerMeterX(1234);
    const QList<PictureFilters::Filter> filters = PictureFilters::all();
    for (const PictureFilters::Filter &filter : filters) {
        const QImage result = PictureFilters::apply(filter.id, image);
        QCOMPARE(result.text(u"Author"_s), u"somebody"_s);
        QCOMPARE(result.dotsPerMeterX(), 1234);
    }
}

void tst_PictureFilters::anUnknownFilterChangesNothing()
{
    const QImage image = noise({9, 9}, QImage::Format_RGB888);
    QCOMPARE(PictureFilters::apply(u"none"_s, image), image);
    QVERIFY(PictureFilters::name(u"none"_s).isEmpty());
}

void tst_PictureFilters::previewsShowTheFilter()
{
    QImage image({400, 100}, QImage::Format_RGB32);
    image.fill(QColor(10, 20, 30));
    const QIcon preview = PictureFilters::preview(u"invert"_s, image);
    QCOMPARE(preview.availableSizes(), QList<QSize>{QSize(128, 32)});
    QCOMPARE(preview.pixmap(128, 32).toImage().pixelColor(64, 16), QColor(245, 235, 225));
    // Each has an icon of its own.
    QList<QImage> icons;
    const QList<PictureFilters::Filter> filters = PictureFilters::all();
    for (const PictureFilters::Filter &filter : filters) {
        const QImage icon = PictureFilters::filterIcon(filter.id).pixmap(128, 96).toImage();
        QVERIFY2(!icons.contains(icon), qPrintable(filter.id));
        icons.append(icon);
    }
}

void tst_PictureFilters::largePicturesAreFiltered_data()
{
    addAllFilters();
}

void tst_PictureFilters::largePicturesAreFiltered()
{
    QFETCH(const QString, id);
    QImage image({4000, 3000}, QImage::Format_RGB32);
    image.fill(QColor(90, 120, 150));
    QElapsedTimer timer;
    timer.start();
    const QImage result = PictureFilters::apply(id, image);
    // Several times what it needs, as machines and builds differ.
    QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    qInfo("%lld ms", timer.elapsed());
    QCOMPARE(result.size(), image.size());
}

QTEST_MAIN(tst_PictureFilters)

#include "tst_picturefilters.moc"
