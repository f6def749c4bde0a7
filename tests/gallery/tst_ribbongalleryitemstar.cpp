// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/TileWindow.h"

#include "support/TestCase.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace VornFrame;

class tst_RibbonGalleryItemStar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void starIsAHiddenCheckableButton();
    void startsWithoutBeingAFavourite();
    void favouriteShowsItsStarFilled();
    void otherTilesHideTheirStar();
    void favouriteShowsItsStarEvenWhereCollectingIsNotAllowed();
    void settingTheStateAlwaysReportsIt_data();
    void settingTheStateAlwaysReportsIt();
    void stateAndStarAreSetBeforeTheSignal_data();
    void stateAndStarAreSetBeforeTheSignal();
    void starFollowsThePointer_data();
    void starFollowsThePointer();
    void forbiddingHidesTheStarOfAFavourite();
    void forbiddingHidesTheStarUnderThePointer();
    void allowingShowsTheStarOnlyOnTheNextEntry();
    void leavingHidesTheStarWhereNothingIsAllowedToo();
    void starIsShownBeforeTheActionReportsThePointer();
    void clickOnTheStarMakesAFavouriteAndTriggersNothing();
    void secondClickOnTheStarTakesItBackAndHidesIt();
    void clickOnTheStarReportsAfterTheStateIsSet();
    void toggleIsAClickOnTheStar();
    void toggleDoesNothingWhereCollectingIsNotAllowed();
    void toggleNeedsNoPointerOnTheTile();
    void starIsNoStopOfTheKeyboard();
    void starStandsInTheLeadingCorner_data();
    void starStandsInTheLeadingCorner();
    void starChangesSidesWithTheDirection();
    void starStaysInItsCornerWhenTheTileGrows();
    void lateStarIsPolishedWhenItComesIntoSight();
};

void tst_RibbonGalleryItemStar::starIsAHiddenCheckableButton()
{
    QAction action;
    const RibbonGalleryItem tile(&action, nullptr);
    const auto *star = tile.findChild<QToolButton *>(u"collectedButton"_s,
                                                     Qt::FindDirectChildrenOnly);
    QVERIFY(star);
    QVERIFY(star->isHidden());
    QVERIFY(star->isCheckable());
    QVERIFY(!star->isChecked());
    QCOMPARE(star->pos(), QPoint(0, 0));
    QCOMPARE(star->iconSize(), QSize(16, 16));
    QVERIFY(showsIcon(star, ResourcePaths::Collect));
    QVERIFY(!showsIcon(star, ResourcePaths::Collected));
}

void tst_RibbonGalleryItemStar::startsWithoutBeingAFavourite()
{
    QAction action;
    const RibbonGalleryItem tile(&action, nullptr);
    QVERIFY(!tile.isCollected());
    TileWindow window;
    QVERIFY(window.showAlone());
    window.enter();
    QVERIFY(window.star()->isHidden());
}

void tst_RibbonGalleryItemStar::favouriteShowsItsStarFilled()
{
    TileWindow window;
    QVERIFY(window.showAlone());
    window.tile()->setCollectEnabled(true);
    window.tile()->setCollected(true);
    QVERIFY(window.tile()->isCollected());
    QVERIFY(window.star()->isVisible());
    QVERIFY(showsIcon(window.star(), ResourcePaths::Collected));
}

void tst_RibbonGalleryItemStar::otherTilesHideTheirStar()
{
    TileWindow window;
    QVERIFY(window.showAlone());
    window.tile()->setCollectEnabled(true);
    window.tile()->setCollected(true);
    window.tile()->setCollected(false);
    QVERIFY(!window.tile()->isCollected());
    QVERIFY(window.star()->isHidden());
    QVERIFY(showsIcon(window.star(), ResourcePaths::Collect));
}

void tst_RibbonGalleryItemStar::favouriteShowsItsStarEvenWhereCollectingIsNotAllowed()
{
    TileWindow window;
    QVERIFY(window.showAlone());
    window.tile()->setCollected(true);
    QVERIFY(window.star()->isVisible());
    window.enter();
    window.leave();
    QVERIFY(window.star()->isVisible());
}

void tst_RibbonGalleryItemStar::settingTheStateAlwaysReportsIt_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("after");
    QTest::newRow("off again") << false << false;
    QTest::newRow("on") << false << true;
    QTest::newRow("on again") << true << true;
    QTest::newRow("off") << true << false;
}

void tst_RibbonGalleryItemStar::settingTheStateAlwaysReportsIt()
{
    QFETCH(const bool, before);
    QFETCH(const bool, after);
    QAction action;
    RibbonGalleryItem tile(&action, nullptr);
    tile.setCollected(before);
    const QSignalSpy spy(&tile, &RibbonGalleryItem::signalCollected);
    tile.setCollected(after);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0), QVariantList{after});
    QCOMPARE(tile.isCollected(), after);
}

void tst_RibbonGalleryItemStar::stateAndStarAreSetBeforeTheSignal_data()
{
    QTest::addColumn<bool>("collected");
    QTest::newRow("becoming a favourite") << true;
    QTest::newRow("being one no more") << false;
}

void tst_RibbonGalleryItemStar::stateAndStarAreSetBeforeTheSignal()
{
    QFETCH(const bool, collected);
    const QLatin1StringView icon = collected ? ResourcePaths::Collected : ResourcePaths::Collect;
    QAction action;
    RibbonGalleryItem tile(&action, nullptr);
    tile.setCollected(!collected);
    const auto *star = tile.findChild<QToolButton *>();
    QList<bool> log;
    connect(&tile, &RibbonGalleryItem::signalCollected, &tile, [&tile, star, &log, icon](bool on) {
        log << on << tile.isCollected() << !star->isHidden() << showsIcon(star, icon);
    });
    tile.setCollected(collected);
    QCOMPARE(log, QList<bool>({collected, collected, collected, true}));
}

void tst_RibbonGalleryItemStar::starFollowsThePointer_data()
{
    QTest::addColumn<bool>("collected");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("shownInside");
    QTest::addColumn<bool>("shownOutside");
    QTest::newRow("nothing allowed") << false << false << false << false;
    QTest::newRow("allowed") << false << true << true << false;
    QTest::newRow("favourite") << true << true << true << true;
    // Forbidding hid the star.
    QTest::newRow("favourite, then nothing allowed") << true << false << false << false;
}

void tst_RibbonGalleryItemStar::starFollowsThePointer()
{
    QFETCH(const bool, collected);
    QFETCH(const bool, enabled);
    QFETCH(const bool, shownInside);
    QFETCH(const bool, shownOutside);
    TileWindow window;
    QVERIFY(window.showAlone());
    window.tile()->setCollected(collected);
    window.tile()->setCollectEnabled(enabled);
    for (int i = 0; i < 2; ++i) {
        window.enter();
        QCOMPARE(window.star()->isVisible(), shownInside);
        window.leave();
        QCOMPARE(window.star()->isVisible(), shownOutside);
    }
}

void tst_RibbonGalleryItemStar::forbiddingHidesTheStarOfAFavourite()
{
    TileWindow window;
    QVERIFY(window.showAlone());
    window.tile()->setCollectEnabled(true);
    window.tile()->setCollected(true);
    window.enter();
    const QSignalSpy spy(window.tile(), &RibbonGalleryItem::signalCollected);
    window.tile()->setCollectEnabled(false);
    QVERIFY(window.star()->isHidden());
    QVERIFY(window.tile()->isCollected());
    QCOMPARE(spy.size(), 0);
    window.leave();
    QVERIFY(window.star()->isHidden());
    window.enter();
    QVERIFY(window.star()->isHidden());
    window.leave();
    window.tile()->setCollectEnabled(true);
    QVERIFY(window.star()->isHidden());
    window.enter();
    QVERIFY(window.star()->isVisible());
    QVERIFY(showsIcon(window.star(), ResourcePaths::Collected));
}

void tst_RibbonGalleryItemStar::forbiddingHidesTheStarUnderThePointer()
{
    TileWindow window;
    QVERIFY(window.showAlone());
    window.tile()->setCollectEnabled(true);
    window.enter();
    QVERIFY(window.star()->isVisible());
    window.tile()->setCollectEnabled(false);
    QVERIFY(window.star()->isHidden());
}

void tst_RibbonGalleryItemStar::allowingShowsTheStarOnlyOnTheNextEntry()
{
    TileWindow window;
    QVERIFY(window.showAlone());
    window.enter();
    window.tile()->setCollectEnabled(true);
    QVERIFY(window.star()->isHidden());
    window.leave();
    QVERIFY(window.star()->isHidden());
    window.enter();
    QVERIFY(window.star()->isVisible());
}

void tst_RibbonGalleryItemStar::leavingHidesTheStarWhereNothingIsAllowedToo()
{
    TileWindow window;
    QVERIFY(window.showAlone());
    window.enter();
    window.star()->show();
    window.leave();
    QVERIFY(window.star()->isHidden());
}

void tst_RibbonGalleryItemStar::starIsShownBeforeTheActionReportsThePointer()
{
    TileWindow window;
    window.tile()->setCollectEnabled(true);
    QVERIFY(window.showAlone());
    QList<bool> shown;
    connect(window.action(), &QAction::hovered, this,
            [&window, &shown] { shown.append(window.star()->isVisible()); });
    window.enter();
    QCOMPARE(shown, QList<bool>{true});
}

void tst_RibbonGalleryItemStar::clickOnTheStarMakesAFavouriteAndTriggersNothing()
{
    TileWindow window;
    window.tile()->setCollectEnabled(true);
    QVERIFY(window.showAlone());
    const QSignalSpy collected(window.tile(), &RibbonGalleryItem::signalCollected);
    const QSignalSpy triggered(window.action(), &QAction::triggered);
    window.enter();
    Input::click(window.star());
    QCOMPARE(collected.size(), 1);
    QCOMPARE(collected.at(0), QVariantList{true});
    QVERIFY(window.tile()->isCollected());
    QVERIFY(showsIcon(window.star(), ResourcePaths::Collected));
    window.leave();
    QVERIFY(window.star()->isVisible());
    QCOMPARE(triggered.size(), 0);
}

void tst_RibbonGalleryItemStar::secondClickOnTheStarTakesItBackAndHidesIt()
{
    TileWindow window;
    window.tile()->setCollectEnabled(true);
    QVERIFY(window.showAlone());
    window.enter();
    Input::click(window.star());
    const QSignalSpy spy(window.tile(), &RibbonGalleryItem::signalCollected);
    Input::click(window.star());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0), QVariantList{false});
    QVERIFY(!window.tile()->isCollected());
    // Even though the pointer is still on the tile.
    QVERIFY(window.star()->isHidden());
}

void tst_RibbonGalleryItemStar::clickOnTheStarReportsAfterTheStateIsSet()
{
    TileWindow window;
    window.tile()->setCollectEnabled(true);
    QVERIFY(window.showAlone());
    QList<bool> log;
    connect(window.tile(), &RibbonGalleryItem::signalCollected, this, [&window, &log](bool on) {
        log << on << window.tile()->isCollected() << window.star()->isVisible();
    });
    window.enter();
    Input::click(window.star());
    Input::click(window.star());
    QCOMPARE(log, QList<bool>({true, true, true, false, false, false}));
}

void tst_RibbonGalleryItemStar::toggleIsAClickOnTheStar()
{
    TileWindow window;
    window.tile()->setCollectEnabled(true);
    QVERIFY(window.showAlone());
    const QSignalSpy spy(window.tile(), &RibbonGalleryItem::signalCollected);
    window.tile()->toggleCollected();
    QVERIFY(window.tile()->isCollected());
    QVERIFY(window.star()->isVisible());
    window.tile()->toggleCollected();
    QVERIFY(!window.tile()->isCollected());
    QVERIFY(window.star()->isHidden());
    QCOMPARE(spy.size(), 2);
}

void tst_RibbonGalleryItemStar::toggleDoesNothingWhereCollectingIsNotAllowed()
{
    QAction action;
    RibbonGalleryItem tile(&action, nullptr);
    const QSignalSpy spy(&tile, &RibbonGalleryItem::signalCollected);
    tile.toggleCollected();
    QCOMPARE(spy.size(), 0);
    QVERIFY(!tile.isCollected());
}

void tst_RibbonGalleryItemStar::toggleNeedsNoPointerOnTheTile()
{
    QAction action;
    RibbonGalleryItem tile(&action, nullptr);
    tile.setCollectEnabled(true);
    tile.toggleCollected();
    QVERIFY(tile.isCollected());
    tile.toggleCollected();
    QVERIFY(!tile.isCollected());
}

void tst_RibbonGalleryItemStar::starIsNoStopOfTheKeyboard()
{
    TileWindow window;
    window.tile()->setCollected(true);
    QVERIFY(window.showAlone());
    QCOMPARE(window.star()->focusPolicy(), Qt::NoFocus);
    window.tile()->setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    QVERIFY(window.tile()->hasFocus());
}

void tst_RibbonGalleryItemStar::starStandsInTheLeadingCorner_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("place");
    // The tile is 90 px wide, the icon of 16 px has a border of 1 px.
    QTest::newRow("left to right") << Qt::LeftToRight << QRect(0, 0, 18, 18);
    QTest::newRow("right to left") << Qt::RightToLeft << QRect(72, 0, 18, 18);
}

void tst_RibbonGalleryItemStar::starStandsInTheLeadingCorner()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QRect, place);
    TileWindow window(direction);
    window.tile()->setCollected(true);
    QVERIFY(window.showAlone());
    QCOMPARE(window.star()->geometry(), place);
}

void tst_RibbonGalleryItemStar::starChangesSidesWithTheDirection()
{
    TileWindow window;
    window.tile()->setCollected(true);
    QVERIFY(window.showAlone());
    window.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(window.star()->geometry(), QRect(72, 0, 18, 18));
    window.setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(window.star()->geometry(), QRect(0, 0, 18, 18));
}

void tst_RibbonGalleryItemStar::starStaysInItsCornerWhenTheTileGrows()
{
    TileWindow window(Qt::RightToLeft);
    window.tile()->setCollected(true);
    QVERIFY(window.showAlone());
    window.tile()->setFixedSize(110, 70);
    QCOMPARE(window.star()->geometry(), QRect(92, 0, 18, 18));
}

void tst_RibbonGalleryItemStar::lateStarIsPolishedWhenItComesIntoSight()
{
    TileWindow window;
    window.tile()->setTilePolishedLate();
    window.tile()->setCollectEnabled(true);
    QVERIFY(window.showAlone());
    QTRY_VERIFY(window.tile()->testAttribute(Qt::WA_WState_Polished));
    window.enter();
    QTRY_VERIFY(window.star()->testAttribute(Qt::WA_WState_Polished));
    QCOMPARE(window.star()->geometry(), QRect(0, 0, 18, 18));
}

QTEST_MAIN(tst_RibbonGalleryItemStar)
#include "tst_ribbongalleryitemstar.moc"
