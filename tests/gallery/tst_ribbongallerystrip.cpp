// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/GalleryParts.h"

#include "support/TestCase.h"

#include <QPointer>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace GalleryParts;
using namespace VornFrame;

namespace {

/// The tiles for actions, without the blank ones.
QList<RibbonGalleryItem *> filledTilesOf(const RibbonGallery *gallery)
{
    QList<RibbonGalleryItem *> tiles = tilesOf(gallery);
    tiles.removeIf([](const RibbonGalleryItem *tile) { return tile->text().isEmpty(); });
    return tiles;
}

} // namespace

class tst_RibbonGalleryStrip : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isEmptyBeforeItIsShown();
    void missingTilesAreBlank();
    void blankTilesTriggerNothing();
    void tilesHaveTheSizesOfTheGallery();
    void tilesNeverShowAStar();
    void takesTheItemsInTheOrderOfTheGroups_data();
    void takesTheItemsInTheOrderOfTheGroups();
    void favouritesComeFirst();
    void emptyGalleryHasNoTiles();

    void itemsAddedLaterComeWithTheNextShow();
    void itemsAddedLaterComeWhenThePopupCloses();
    void stripFollowsAMovedGroupAtOnce();
    void sameActionsKeepTheirTiles();
    void newSizesHoldForNewTiles();
    void blankTilesStayAheadOfNewOnes();
    void displayCountHoldsForTheNextShow_data();
    void displayCountHoldsForTheNextShow();
    void displayCountAloneAddsNoBlankTiles();

    void deletedActionLeavesTheStrip();
    void actionsDeletedTogetherAreReplacedOnce();
    void actionDeletedWhileHiddenIsNotShown();
    void actionShownTwiceLeavesTwice();
    void deletingTheLastActionsLeavesBlankTiles();
    void deletedActionTakesItsFavouriteAlong();
};

void tst_RibbonGalleryStrip::isEmptyBeforeItIsShown()
{
    GalleryWindow window;
    window.addGroup(u"Styles"_s, {u"First"_s});
    QCOMPARE(tilesOf(window.gallery()).size(), 0);
    QVERIFY(window.showAlone());
    QCOMPARE(tilesOf(window.gallery()).size(), 6);
}

void tst_RibbonGalleryStrip::missingTilesAreBlank()
{
    GalleryWindow window;
    window.gallery()->setIconSize(QSize(16, 16));
    window.gallery()->setActionSize(QSize(60, 50));
    window.addGroup(u"Styles"_s, {u"First"_s, u"Second"_s});
    QVERIFY(window.showAlone());
    const QList<RibbonGalleryItem *> tiles = tilesOf(window.gallery());
    QCOMPARE(stripOf(window.gallery()), QStringList({u"First"_s, u"Second"_s, {}, {}, {}, {}}));
    for (int i = 0; i < 6; ++i) {
        QTRY_VERIFY(tiles.at(i)->isVisible());
        QCOMPARE(tiles.at(i)->isEnabled(), i < 2);
        QCOMPARE(tiles.at(i)->defaultAction()->isEnabled(), i < 2);
        QCOMPARE(tiles.at(i)->size(), QSize(60, 50));
        // Blank tiles keep the icon size that every tile starts with.
        QCOMPARE(tiles.at(i)->iconSize(), i < 2 ? QSize(16, 16) : QSize(24, 24));
    }
}

void tst_RibbonGalleryStrip::blankTilesTriggerNothing()
{
    GalleryWindow window;
    window.addGroup(u"Styles"_s, {u"First"_s});
    QVERIFY(window.showAlone());
    const QSignalSpy spy(window.gallery(), &RibbonGallery::signalTriggered);
    RibbonGalleryItem *blank = tilesOf(window.gallery()).at(3);
    QTRY_VERIFY(blank->isVisible());
    Input::click(blank);
    blank->click();
    QCOMPARE(spy.size(), 0);
}

void tst_RibbonGalleryStrip::tilesHaveTheSizesOfTheGallery()
{
    GalleryWindow window;
    const int group = window.addGroup(u"Styles"_s, {u"First"_s});
    window.gallery()->setIconSize(QSize(32, 32));
    window.gallery()->setActionSize(QSize(40, 56));
    QVERIFY(window.showAlone());
    const RibbonGalleryItem *tile = tilesOf(window.gallery()).at(0);
    QCOMPARE(tile->defaultAction(), window.action(group, 0));
    QCOMPARE(tile->iconSize(), QSize(32, 32));
    QCOMPARE(tile->minimumSize(), QSize(40, 56));
    QCOMPARE(tile->maximumSize(), QSize(40, 56));
}

void tst_RibbonGalleryStrip::tilesNeverShowAStar()
{
    GalleryWindow window;
    window.gallery()->setCollectEnabled(true);
    window.addGroup(u"Styles"_s, {u"First"_s, u"Second"_s});
    window.gallery()->setItemCollected(0, 1, true);
    QVERIFY(window.showAlone());
    for (RibbonGalleryItem *tile : filledTilesOf(window.gallery())) {
        QTRY_VERIFY(tile->isVisible());
        QVERIFY(!tile->isCollected());
        Input::move(tile);
        QVERIFY(starOf(tile)->isHidden());
    }
}

void tst_RibbonGalleryStrip::takesTheItemsInTheOrderOfTheGroups_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("strip");
    QTest::newRow("negative") << -1 << QStringList();
    QTest::newRow("none") << 0 << QStringList();
    QTest::newRow("one") << 1 << QStringList{u"a0"_s};
    QTest::newRow("a part of a group") << 2 << QStringList{u"a0"_s, u"a1"_s};
    QTest::newRow("a group") << 3 << QStringList{u"a0"_s, u"a1"_s, u"a2"_s};
    QTest::newRow("more than a group") << 4 << QStringList{u"a0"_s, u"a1"_s, u"a2"_s, u"b0"_s};
    QTest::newRow("all") << 5 << QStringList{u"a0"_s, u"a1"_s, u"a2"_s, u"b0"_s, u"b1"_s};
    QTest::newRow("more than all")
        << 6 << QStringList{u"a0"_s, u"a1"_s, u"a2"_s, u"b0"_s, u"b1"_s, {}};
}

void tst_RibbonGalleryStrip::takesTheItemsInTheOrderOfTheGroups()
{
    QFETCH(const int, count);
    QFETCH(const QStringList, strip);
    GalleryWindow window;
    window.addGroup(u"a"_s, 3);
    window.addGroup(u"none"_s, 0);
    window.addGroup(u"b"_s, 2);
    window.gallery()->setDispalyCount(count);
    QVERIFY(window.showAlone());
    QCOMPARE(stripOf(window.gallery()), strip);
}

void tst_RibbonGalleryStrip::favouritesComeFirst()
{
    GalleryWindow window;
    window.gallery()->setCollectEnabled(true);
    window.gallery()->setDispalyCount(4);
    window.addGroup(u"a"_s, 3);
    window.addGroup(u"b"_s, 2);
    window.gallery()->setItemCollected(1, 1, true);
    window.gallery()->setItemCollected(0, 0, true);
    QVERIFY(window.showAlone());
    QCOMPARE(stripOf(window.gallery()), QStringList({u"b1"_s, u"a0"_s, u"a1"_s, u"a2"_s}));
}

void tst_RibbonGalleryStrip::emptyGalleryHasNoTiles()
{
    GalleryWindow window;
    window.addGroup(u"Styles"_s, 0);
    QVERIFY(window.showAlone());
    QCOMPARE(tilesOf(window.gallery()).size(), 0);
    window.addItem(0, u"First"_s);
    window.showAgain();
    QCOMPARE(stripOf(window.gallery()), QStringList({u"First"_s, {}, {}, {}, {}, {}}));
}

void tst_RibbonGalleryStrip::itemsAddedLaterComeWithTheNextShow()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(2);
    window.addGroup(u"Styles"_s, {u"First"_s});
    window.gallery()->addGroup(u"Others"_s);
    QVERIFY(window.showAlone());
    window.gallery()->setDispalyCount(3);
    window.addItem(0, u"Second"_s);
    window.addItem(1, u"Third"_s);
    QCoreApplication::processEvents();
    QCOMPARE(stripOf(window.gallery()), QStringList({u"First"_s, {}}));
    window.showAgain();
    QCOMPARE(stripOf(window.gallery()), QStringList({{}, u"First"_s, u"Second"_s, u"Third"_s}));
}

void tst_RibbonGalleryStrip::itemsAddedLaterComeWhenThePopupCloses()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(3);
    window.addGroup(u"Styles"_s, {u"First"_s, u"Second"_s, u"Third"_s});
    window.gallery()->setCollectEnabled(true);
    window.addItem(0, u"Fourth"_s);
    QVERIFY(window.showAlone());
    QVERIFY(window.openPopup());
    window.gallery()->setItemCollected(0, 3, true);
    QCoreApplication::processEvents();
    const QStringList before{u"First"_s, u"Second"_s, u"Third"_s};
    QCOMPARE(stripOf(window.gallery()), before);
    menuOf(window.gallery())->close();
    // Only when control is back in the event loop.
    QCOMPARE(stripOf(window.gallery()), before);
    QTRY_COMPARE(stripOf(window.gallery()), QStringList({u"Fourth"_s, u"First"_s, u"Second"_s}));
}

void tst_RibbonGalleryStrip::stripFollowsAMovedGroupAtOnce()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(3);
    window.addGroup(u"a"_s, 2);
    window.addGroup(u"b"_s, 2);
    QVERIFY(window.showAlone());
    QCOMPARE(stripOf(window.gallery()), QStringList({u"a0"_s, u"a1"_s, u"b0"_s}));
    QVERIFY(window.openPopup());
    auto *last = groupsOf(window.gallery()).at(1);
    Q_EMIT last->signalPositionChange(RibbonGalleryGroup::Top);
    QCOMPARE(stripOf(window.gallery()), QStringList({u"b0"_s, u"b1"_s, u"a0"_s}));
    QVERIFY(menuOf(window.gallery())->isVisible());
    menuOf(window.gallery())->close();
}

void tst_RibbonGalleryStrip::sameActionsKeepTheirTiles()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(3);
    window.addGroup(u"Styles"_s, {u"First"_s, u"Second"_s});
    QVERIFY(window.showAlone());
    const QList<RibbonGalleryItem *> tiles = tilesOf(window.gallery());
    const QList<QPointer<QWidget>> guards(tiles.cbegin(), tiles.cend());
    window.showAgain();
    QCOMPARE(tilesOf(window.gallery()), tiles);
    window.addItem(0, u"Third"_s);
    window.showAgain();
    QVERIFY(!guards.at(0));
    QVERIFY(!guards.at(1));
    QVERIFY(guards.at(2));
}

void tst_RibbonGalleryStrip::newSizesHoldForNewTiles()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(2);
    window.addGroup(u"Styles"_s, {u"First"_s});
    QVERIFY(window.showAlone());
    window.gallery()->setIconSize(QSize(16, 16));
    window.gallery()->setActionSize(QSize(50, 40));
    window.showAgain();
    QCOMPARE(tilesOf(window.gallery()).at(0)->minimumSize(), QSize(90, 60));
    window.addItem(0, u"Second"_s);
    window.showAgain();
    const QList<RibbonGalleryItem *> tiles = tilesOf(window.gallery());
    QCOMPARE(stripOf(window.gallery()), QStringList({{}, u"First"_s, u"Second"_s}));
    QCOMPARE(tiles.at(0)->minimumSize(), QSize(90, 60));
    for (const int i : {1, 2}) {
        QCOMPARE(tiles.at(i)->minimumSize(), QSize(50, 40));
        QCOMPARE(tiles.at(i)->iconSize(), QSize(16, 16));
    }
}

void tst_RibbonGalleryStrip::blankTilesStayAheadOfNewOnes()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(3);
    window.addGroup(u"Styles"_s, {u"First"_s});
    QVERIFY(window.showAlone());
    QCOMPARE(stripOf(window.gallery()), QStringList({u"First"_s, {}, {}}));
    window.addItem(0, u"Second"_s);
    window.showAgain();
    QCOMPARE(stripOf(window.gallery()), QStringList({{}, {}, u"First"_s, u"Second"_s, {}}));
    window.addItem(0, u"Third"_s);
    window.showAgain();
    QCOMPARE(stripOf(window.gallery()),
             QStringList({{}, {}, {}, u"First"_s, u"Second"_s, u"Third"_s}));
}

void tst_RibbonGalleryStrip::displayCountHoldsForTheNextShow_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("strip");
    QTest::newRow("fewer") << 1 << QStringList{u"a0"_s};
    QTest::newRow("none") << 0 << QStringList();
    QTest::newRow("negative") << -2 << QStringList();
    QTest::newRow("more") << 4 << QStringList{u"a0"_s, u"a1"_s, u"a2"_s, u"a3"_s};
}

void tst_RibbonGalleryStrip::displayCountHoldsForTheNextShow()
{
    QFETCH(const int, count);
    QFETCH(const QStringList, strip);
    GalleryWindow window;
    window.gallery()->setDispalyCount(3);
    window.addGroup(u"a"_s, 4);
    QVERIFY(window.showAlone());
    window.gallery()->setDispalyCount(count);
    QCoreApplication::processEvents();
    QCOMPARE(stripOf(window.gallery()), QStringList({u"a0"_s, u"a1"_s, u"a2"_s}));
    window.showAgain();
    QCOMPARE(stripOf(window.gallery()), strip);
}

void tst_RibbonGalleryStrip::displayCountAloneAddsNoBlankTiles()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(2);
    window.addGroup(u"Styles"_s, {u"First"_s});
    QVERIFY(window.showAlone());
    window.gallery()->setDispalyCount(4);
    window.showAgain();
    QCOMPARE(stripOf(window.gallery()), QStringList({u"First"_s, {}}));
}

void tst_RibbonGalleryStrip::deletedActionLeavesTheStrip()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(2);
    window.addGroup(u"a"_s, 3);
    QVERIFY(window.showAlone());
    const QPointer<RibbonGalleryItem> tile(tilesOf(window.gallery()).at(0));
    delete window.action(0, 0);
    QCOMPARE(stripOf(window.gallery()), QStringList{u"a1"_s});
    QVERIFY(tile->isHidden());
    QTRY_COMPARE(stripOf(window.gallery()), QStringList({u"a1"_s, u"a2"_s}));
    QTRY_VERIFY(!tile);
}

void tst_RibbonGalleryStrip::actionsDeletedTogetherAreReplacedOnce()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(3);
    window.addGroup(u"a"_s, 6);
    QVERIFY(window.showAlone());
    delete window.action(0, 1);
    delete window.action(0, 1);
    QCOMPARE(stripOf(window.gallery()), QStringList{u"a0"_s});
    QTRY_COMPARE(stripOf(window.gallery()), QStringList({u"a0"_s, u"a3"_s, u"a4"_s}));
}

void tst_RibbonGalleryStrip::actionDeletedWhileHiddenIsNotShown()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(2);
    window.addGroup(u"a"_s, 3);
    delete window.action(0, 0);
    QVERIFY(window.showAlone());
    QCOMPARE(stripOf(window.gallery()), QStringList({u"a1"_s, u"a2"_s}));
    window.gallery()->hide();
    delete window.action(0, 0);
    window.addItem(0, u"a3"_s);
    window.gallery()->show();
    QCOMPARE(stripOf(window.gallery()), QStringList({u"a2"_s, u"a3"_s}));
    QCoreApplication::processEvents();
    QCOMPARE(stripOf(window.gallery()), QStringList({u"a2"_s, u"a3"_s}));
}

void tst_RibbonGalleryStrip::actionShownTwiceLeavesTwice()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(4);
    window.addGroup(u"a"_s, 3);
    window.gallery()->addItem(0, window.action(0, 0));
    QVERIFY(window.showAlone());
    QCOMPARE(stripOf(window.gallery()), QStringList({u"a0"_s, u"a1"_s, u"a2"_s, u"a0"_s}));
    delete window.action(0, 0);
    QCOMPARE(stripOf(window.gallery()), QStringList({u"a1"_s, u"a2"_s}));
    QCoreApplication::processEvents();
    QCOMPARE(stripOf(window.gallery()), QStringList({u"a1"_s, u"a2"_s}));
}

void tst_RibbonGalleryStrip::deletingTheLastActionsLeavesBlankTiles()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(2);
    window.addGroup(u"a"_s, 1);
    QVERIFY(window.showAlone());
    delete window.action(0, 0);
    QCoreApplication::processEvents();
    QCOMPARE(stripOf(window.gallery()), QStringList{QString()});
    window.addItem(0, u"a1"_s);
    window.showAgain();
    QCOMPARE(stripOf(window.gallery()), QStringList({{}, u"a1"_s, {}}));
}

void tst_RibbonGalleryStrip::deletedActionTakesItsFavouriteAlong()
{
    GalleryWindow window;
    window.gallery()->setCollectEnabled(true);
    window.gallery()->setDispalyCount(2);
    window.addGroup(u"a"_s, 3);
    window.gallery()->setItemCollected(0, 2, true);
    QVERIFY(window.showAlone());
    QCOMPARE(stripOf(window.gallery()), QStringList({u"a2"_s, u"a0"_s}));
    delete window.action(0, 2);
    QTRY_COMPARE(stripOf(window.gallery()), QStringList({u"a0"_s, u"a1"_s}));
    QCOMPARE(favouritesOf(window.gallery())->count(), 0);
}

QTEST_MAIN(tst_RibbonGalleryStrip)
#include "tst_ribbongallerystrip.moc"
