// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "core/Pixmaps.h"
#include "core/ResourcePaths.h"
#include "support/TestCase.h"

#include <QImage>
#include <QPixmapCache>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr QLatin1StringView Coloured(":/res/collected.svg");
constexpr QSize IconSize(16, 16);

/// The strongest colour of an image, from 0 (only greys) to 255.
int maximalSaturation(const QPixmap &pixmap)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    int maximum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() == 255)
                maximum = qMax(maximum, color.hsvSaturation());
        }
    }
    return maximum;
}

bool hasInk(const QPixmap &pixmap)
{
    QImage blank(pixmap.size(), QImage::Format_ARGB32_Premultiplied);
    blank.fill(Qt::transparent);
    return pixmap.toImage().convertToFormat(blank.format()) != blank;
}

} // namespace

class tst_Pixmaps : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheLogicalSizeAtEveryRatio_data();
    void hasTheLogicalSizeAtEveryRatio();
    void theDisabledModeIsPaler();
    void theSecondCallTakesTheFirstOnesPixmap();
    void everyArgumentMakesAnotherPixmap();
    void isRenderedAnewAfterTheCacheWasCleared();
    void anUnknownPathGivesNothing();
};

void tst_Pixmaps::hasTheLogicalSizeAtEveryRatio_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<QSize>("pixels");

    QTest::newRow("arrow at 1") << QSize(8, 4) << 1.0 << QSize(8, 4);
    QTest::newRow("arrow at 1.5") << QSize(8, 4) << 1.5 << QSize(12, 6);
    QTest::newRow("arrow at 2") << QSize(8, 4) << 2.0 << QSize(16, 8);
    QTest::newRow("enlarged at 1") << QSize(24, 12) << 1.0 << QSize(24, 12);
    QTest::newRow("enlarged at 3") << QSize(24, 12) << 3.0 << QSize(72, 36);
}

void tst_Pixmaps::hasTheLogicalSizeAtEveryRatio()
{
    QFETCH(const QSize, size);
    QFETCH(const qreal, ratio);
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled}) {
        const QPixmap pixmap = Pixmaps::rendered(ResourcePaths::Arrow, size, ratio, mode);
        QTEST(pixmap.size(), "pixels");
        QCOMPARE(pixmap.devicePixelRatio(), ratio);
        QCOMPARE(pixmap.deviceIndependentSize(), QSizeF(size));
        QVERIFY(hasInk(pixmap));
    }
}

void tst_Pixmaps::theDisabledModeIsPaler()
{
    const QPixmap normal = Pixmaps::rendered(Coloured, IconSize, 1.0);
    const QPixmap disabled = Pixmaps::rendered(Coloured, IconSize, 1.0, QIcon::Disabled);
    QVERIFY(maximalSaturation(normal) > 100);
    QVERIFY(maximalSaturation(disabled) < maximalSaturation(normal) / 2);
}

void tst_Pixmaps::theSecondCallTakesTheFirstOnesPixmap()
{
    const QPixmap first = Pixmaps::rendered(ResourcePaths::Arrow, QSize(8, 4), 1.0);
    const QPixmap second = Pixmaps::rendered(ResourcePaths::Arrow, QSize(8, 4), 1.0);
    QCOMPARE(second.cacheKey(), first.cacheKey());
}

void tst_Pixmaps::everyArgumentMakesAnotherPixmap()
{
    const QPixmap pixmap = Pixmaps::rendered(ResourcePaths::Arrow, IconSize, 1.0, QIcon::Normal);
    const QPixmap otherPath = Pixmaps::rendered(Coloured, IconSize, 1.0, QIcon::Normal);
    const QPixmap otherSize = Pixmaps::rendered(ResourcePaths::Arrow, QSize(16, 32), 1.0);
    const QPixmap thirdSize = Pixmaps::rendered(ResourcePaths::Arrow, QSize(32, 16), 1.0);
    const QPixmap otherRatio = Pixmaps::rendered(ResourcePaths::Arrow, IconSize, 2.0);
    const QPixmap otherMode = Pixmaps::rendered(ResourcePaths::Arrow, IconSize, 1.0,
                                                QIcon::Disabled);

    const QSet<qint64> keys{pixmap.cacheKey(),    otherPath.cacheKey(),  otherSize.cacheKey(),
                            thirdSize.cacheKey(), otherRatio.cacheKey(), otherMode.cacheKey()};
    QCOMPARE(keys.size(), 6);
}

void tst_Pixmaps::isRenderedAnewAfterTheCacheWasCleared()
{
    const QPixmap before = Pixmaps::rendered(ResourcePaths::Arrow, QSize(8, 4), 2.0);
    QPixmapCache::clear();
    const QPixmap after = Pixmaps::rendered(ResourcePaths::Arrow, QSize(8, 4), 2.0);
    QVERIFY(after.cacheKey() != before.cacheKey());
    QCOMPARE(after.toImage(), before.toImage());
}

void tst_Pixmaps::anUnknownPathGivesNothing()
{
    QVERIFY(Pixmaps::rendered(":/res/no-such-file.png"_L1, IconSize, 1.0).isNull());
    QVERIFY(Pixmaps::rendered(":/res/no-such-file.png"_L1, IconSize, 1.0).isNull());
}

QTEST_MAIN(tst_Pixmaps)

#include "tst_pixmaps.moc"
