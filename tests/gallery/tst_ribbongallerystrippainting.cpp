// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/GalleryParts.h"
#include "ribbon/RibbonWindow.h"

#include "support/ImageChecks.h"
#include "support/TestCase.h"

#include <QStyle>

using namespace Qt::StringLiterals;
using namespace GalleryParts;
using namespace VornFrame;

namespace {

constexpr QColor Line(191, 191, 191);
constexpr QColor PressedColor(220, 220, 220);

} // namespace

class tst_RibbonGalleryStripPainting : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tilesStandSideBySide_data();
    void tilesStandSideBySide();
    void directionMayChange();
    void frameAndButtonAreOutlined_data();
    void frameAndButtonAreOutlined();
    void pressedButtonIsGrey();
    void looksTheSameInARibbon();
};

void tst_RibbonGalleryStripPainting::tilesStandSideBySide_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QList<QRect>>("places");
    QTest::addColumn<QRect>("frame");
    QTest::addColumn<QRect>("button");
    // The frame has a line of 1 px and margins of 5 px at the sides, the button 18 px and one line.
    QTest::newRow("left to right")
        << Qt::LeftToRight << QList<QRect>{{6, 4, 90, 60}, {96, 4, 90, 60}, {186, 4, 90, 60}}
        << QRect(0, 0, 282, 68) << QRect(282, 0, 19, 68);
    QTest::newRow("right to left")
        << Qt::RightToLeft << QList<QRect>{{186, 4, 90, 60}, {96, 4, 90, 60}, {6, 4, 90, 60}}
        << QRect(19, 0, 282, 68) << QRect(0, 0, 19, 68);
}

void tst_RibbonGalleryStripPainting::tilesStandSideBySide()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QList<QRect>, places);
    QFETCH(const QRect, frame);
    QFETCH(const QRect, button);
    GalleryWindow window(direction);
    window.gallery()->setDispalyCount(3);
    window.addGroup(u"a"_s, 3);
    QVERIFY(window.showAlone());
    QTRY_COMPARE(window.gallery()->size(), QSize(301, 68));
    QCOMPARE(frameOf(window.gallery())->geometry(), frame);
    QCOMPARE(buttonOf(window.gallery())->geometry(), button);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(tilesOf(window.gallery()).at(i)->geometry(), places.at(i));
}

void tst_RibbonGalleryStripPainting::directionMayChange()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(2);
    window.addGroup(u"a"_s, 2);
    QVERIFY(window.showAlone());
    window.setLayoutDirection(Qt::RightToLeft);
    QTRY_COMPARE(tilesOf(window.gallery()).at(0)->geometry(), QRect(96, 4, 90, 60));
    QCOMPARE(tilesOf(window.gallery()).at(1)->geometry(), QRect(6, 4, 90, 60));
    QCOMPARE(buttonOf(window.gallery())->geometry(), QRect(0, 0, 19, 68));
}

void tst_RibbonGalleryStripPainting::frameAndButtonAreOutlined_data()
{
    QTest::addColumn<int>("ratio");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const int ratio : {1, 2}) {
        QTest::addRow("ratio %d, left to right", ratio) << ratio << Qt::LeftToRight;
        QTest::addRow("ratio %d, right to left", ratio) << ratio << Qt::RightToLeft;
    }
}

void tst_RibbonGalleryStripPainting::frameAndButtonAreOutlined()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    GalleryWindow window(direction);
    window.gallery()->setDispalyCount(2);
    window.addGroup(u"a"_s, {u""_s});
    QVERIFY(window.showAlone());
    QTRY_COMPARE(window.gallery()->size(), QSize(211, 68));
    const QImage image = ImageChecks::rendered(window.gallery(), ratio);
    const QRect whole = window.gallery()->rect();
    const auto visual = [&whole, direction](const QRect &rect) {
        return QStyle::visualRect(direction, whole, rect);
    };
    const QRect frame = visual({0, 0, 192, 68});
    VERIFY_IMAGE(ImageChecks::isFilled(image, frame, Line, {frame.adjusted(1, 1, -1, -1)}));
    VERIFY_IMAGE(ImageChecks::isFilled(image, frame.adjusted(1, 1, -1, -1), Qt::white));
    // Straight where it meets the frame, round outside.
    VERIFY_IMAGE(ImageChecks::isFilled(image, visual({192, 0, 16, 1}), Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, visual({192, 67, 16, 1}), Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, visual({210, 3, 1, 62}), Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, visual({192, 1, 16, 20}), ImageChecks::Untouched));
    for (const int y : {0, 67})
        QVERIFY(ImageChecks::colorAt(image, visual({210, y, 1, 1}).topLeft()) != Line);
    // The arrow stands in the middle of what the lines leave: 18 px, of which 17 px are the picture's.
    const QRect arrow = ImageChecks::paintedRect(image, visual({192, 10, 18, 48}));
    QVERIFY(!arrow.isEmpty());
    QVERIFY(std::abs(arrow.center().x() - visual({192, 10, 18, 48}).center().x()) <= 1);
}

void tst_RibbonGalleryStripPainting::pressedButtonIsGrey()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(2);
    window.addGroup(u"a"_s, {u""_s});
    QVERIFY(window.showAlone());
    QTRY_COMPARE(window.gallery()->size(), QSize(211, 68));
    buttonOf(window.gallery())->setDown(true);
    const QImage image = ImageChecks::rendered(window.gallery(), 1);
    VERIFY_IMAGE(ImageChecks::isFilled(image, {192, 1, 16, 20}, PressedColor));
}

void tst_RibbonGalleryStripPainting::looksTheSameInARibbon()
{
    GalleryWindow other;
    other.gallery()->setDispalyCount(3);
    other.addGroup(u"a"_s, 2);
    QVERIFY(other.showAlone());
    QTRY_COMPARE(other.gallery()->width(), 301);
    const QImage expected = ImageChecks::rendered(other.gallery(), 1);
    other.hide();

    QAction first(u"a0"_s);
    QAction second(u"a1"_s);
    RibbonWindows::RibbonWindow window;
    window.resize(600, 200);
    auto *gallery = RibbonWindows::embed<RibbonGallery>(window);
    gallery->setDispalyCount(3);
    gallery->addItem(u"a"_s, &first);
    gallery->addItem(u"a"_s, &second);
    QVERIFY(window.showAlone());
    QTRY_COMPARE(gallery->size(), QSize(301, 68));
    VERIFY_IMAGE(ImageChecks::isSame(ImageChecks::rendered(gallery, 1), expected, gallery->rect()));
}

QTEST_MAIN(tst_RibbonGalleryStripPainting)
#include "tst_ribbongallerystrippainting.moc"
