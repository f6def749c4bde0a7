// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/FavouriteWindow.h"

#include "support/TestCase.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace FavouriteWindows;
using namespace VornFrame;

class tst_RibbonGalleryFavourites : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void collectingHasItsOrder();
    void uncollectingHasItsOrder();
    void theStarOfAFavouriteHasItsOrder();
    void everyGroupIsToldInItsOrder();
    void whatAFavouriteSaysIsNotLookedAt();
    void favouritesAreShownAlsoWhenTheHeightHidThem();
    void emptyFavouritesStayHidden();

    void favouritesStandInTheOrderOfCollecting();
    void aFavouriteIsACopyOfItsTile();
    void aFavouriteShowsItsStar_data() { addDirections(); }
    void aFavouriteShowsItsStar();
    void aFavouriteTriggersItsAction();
    void sizesAreThoseOfTheMoment();
    void favouritesGrowByRows();
    void collectingTwiceMakesTwoFavourites();
    void theSameActionInTwoGroupsHasTwoFavourites_data();
    void theSameActionInTwoGroupsHasTwoFavourites();
    void tilesWithoutStarAreNoFavourites();
    void thePopupsSwitchIsStoredOnly();
    void movedGroupsKeepTheirFavourites();
};

void tst_RibbonGalleryFavourites::collectingHasItsOrder()
{
    LoggedWindow window;
    window.watch(0, 1);
    QVERIFY(window.open());
    QVERIFY(!window.parts().favourites()->isVisible());
    window.parts().tile(0, 1)->setCollected(true);
    QCOMPARE(window.takeLog(),
             QStringList({line(WithRow, "shown b"), u"copy b on"_s, u"0 b on"_s}));
    QVERIFY(window.parts().favourites()->isVisible());
    QVERIFY(window.favourite(0)->isCollected());
    QCOMPARE(window.parts().content()->height(), WithRow);
}

void tst_RibbonGalleryFavourites::uncollectingHasItsOrder()
{
    LoggedWindow window;
    window.watch(0, 1);
    QVERIFY(window.open());
    window.parts().tile(0, 1)->setCollected(true);
    window.parts().tile(2, 0)->setCollected(true);
    window.takeLog();
    window.parts().tile(0, 1)->setCollected(false);
    QCOMPARE(window.takeLog(), QStringList({line(WithRow, "shown d*"), u"0 b off"_s}));
    QVERIFY(window.parts().favourites()->isVisible());
    window.parts().tile(2, 0)->setCollected(false);
    QCOMPARE(window.takeLog(), QStringList{line(Plain, "hidden")});
    QVERIFY(!window.parts().favourites()->isVisible());
    // There is nothing left to remove: the height is told all the same.
    window.parts().tile(0, 1)->setCollected(false);
    QCOMPARE(window.takeLog(), QStringList({line(Plain, "hidden"), u"0 b off"_s}));
}

void tst_RibbonGalleryFavourites::theStarOfAFavouriteHasItsOrder()
{
    LoggedWindow window;
    window.watch(0, 1);
    QVERIFY(window.open());
    window.parts().tile(0, 1)->setCollected(true);
    window.takeLog();
    starOf(window.favourite(0))->click();
    // Once for the favourite itself, once more by the tile that is un-marked.
    QCOMPARE(window.takeLog(), QStringList({u"copy b off"_s, line(Plain, "hidden"),
                                            line(Plain, "hidden"), u"0 b off"_s}));
    QVERIFY(!window.parts().tile(0, 1)->isCollected());
    QVERIFY(!window.parts().favourites()->isVisible());
}

void tst_RibbonGalleryFavourites::everyGroupIsToldInItsOrder()
{
    LoggedWindow window;
    QAction action(u"x"_s);
    for (int group = 0; group < 3; ++group)
        window.watch(group, window.addItem(group, &action));
    QVERIFY(window.open());
    window.parts().tile(1, 1)->setCollected(true);
    window.parts().tile(0, 0)->setCollected(true);
    window.takeLog();
    starOf(window.favourite(0))->click();
    // Also those whose tile is not marked.
    QCOMPARE(window.takeLog(),
             QStringList({u"copy x off"_s, line(WithRow, "shown a*"), line(WithRow, "shown a*"),
                          u"0 x off"_s, line(WithRow, "shown a*"), u"1 x off"_s,
                          line(WithRow, "shown a*"), u"2 x off"_s}));
    QVERIFY(!window.parts().tile(1, 1)->isCollected());
    QVERIFY(window.parts().tile(0, 0)->isCollected());
}

void tst_RibbonGalleryFavourites::whatAFavouriteSaysIsNotLookedAt()
{
    LoggedWindow window;
    QVERIFY(window.open());
    window.parts().tile(0, 1)->setCollected(true);
    window.favourite(0)->setCollected(true);
    QCOMPARE(window.favourites(), QStringList());
    QVERIFY(!window.parts().tile(0, 1)->isCollected());
}

void tst_RibbonGalleryFavourites::favouritesAreShownAlsoWhenTheHeightHidThem()
{
    LoggedWindow window;
    QVERIFY(window.open());
    connect(window.popup(), &RibbonGalleryPopup::signalHeightChanged, &window,
            [&window] { window.parts().favourites()->hide(); });
    window.parts().tile(0, 1)->setCollected(true);
    QVERIFY(window.parts().favourites()->isVisible());
}

void tst_RibbonGalleryFavourites::emptyFavouritesStayHidden()
{
    LoggedWindow window;
    QVERIFY(window.open());
    window.parts().tile(0, 1)->setCollected(true);
    connect(window.popup(), &RibbonGalleryPopup::signalHeightChanged, &window,
            [&window] { window.parts().favourites()->show(); });
    window.parts().tile(0, 1)->setCollected(false);
    QVERIFY(!window.parts().favourites()->isVisible());
}

void tst_RibbonGalleryFavourites::favouritesStandInTheOrderOfCollecting()
{
    LoggedWindow window;
    window.parts().tile(2, 1)->setCollected(true);
    window.parts().tile(0, 0)->setCollected(true);
    window.parts().tile(1, 0)->setCollected(true);
    QCOMPARE(window.favourites(), QStringList({u"e"_s, u"a"_s, u"c"_s}));
    window.parts().tile(0, 0)->setCollected(false);
    window.parts().tile(0, 0)->setCollected(true);
    QCOMPARE(window.favourites(), QStringList({u"e"_s, u"c"_s, u"a"_s}));
}

void tst_RibbonGalleryFavourites::aFavouriteIsACopyOfItsTile()
{
    LoggedWindow window;
    window.parts().tile(0, 1)->setCollected(true);
    QCOMPARE(window.parts().group(0)->count(), 2);
    QCOMPARE(window.parts().favourites()->count(), 1);
    QVERIFY(window.favourite(0) != window.parts().tile(0, 1));
    QCOMPARE(window.favourite(0)->defaultAction(), window.actionOf(0, 1));
    QVERIFY(window.favourite(0)->isCollected());
    QVERIFY(window.parts().tile(0, 1)->isCollected());
    window.actionOf(0, 1)->setText(u"bb"_s);
    QCOMPARE(window.favourites(), QStringList{u"bb"_s});
}

void tst_RibbonGalleryFavourites::aFavouriteShowsItsStar()
{
    QFETCH(const Qt::LayoutDirection, direction);
    LoggedWindow window(direction);
    window.parts().tile(0, 1)->setCollected(true);
    QVERIFY(window.open());
    const RibbonGalleryItem *copy = window.favourite(0);
    QTRY_VERIFY(copy->isVisible());
    for (const RibbonGalleryItem *tile :
         {copy, static_cast<const RibbonGalleryItem *>(window.parts().tile(0, 1))}) {
        const QToolButton *star = starOf(tile);
        QVERIFY(star->isVisible());
        QCOMPARE(star->icon().pixmap(QSize(16, 16), 1).toImage(),
                 QIcon(u":/res/collected.svg"_s).pixmap(QSize(16, 16), 1).toImage());
        QCOMPARE(star->y(), 0);
        if (direction == Qt::LeftToRight)
            QCOMPARE(star->x(), 0);
        else
            QCOMPARE(star->geometry().right(), tile->width() - 1);
    }
    // The others show theirs only below the mouse.
    QVERIFY(!starOf(window.parts().tile(0, 0))->isVisible());
}

void tst_RibbonGalleryFavourites::aFavouriteTriggersItsAction()
{
    LoggedWindow window;
    window.parts().tile(0, 1)->setCollected(true);
    const QSignalSpy triggered(window.actionOf(0, 1), &QAction::triggered);
    QVERIFY(window.open());
    QTRY_VERIFY(window.favourite(0)->isVisible());
    Input::click(window.favourite(0));
    QCOMPARE(triggered.size(), 1);
    QCOMPARE(window.favourites(), QStringList{u"b"_s});
}

void tst_RibbonGalleryFavourites::sizesAreThoseOfTheMoment()
{
    LoggedWindow window;
    window.iconSize = QSize(32, 30);
    window.tileSize = QSize(70, 50);
    window.parts().tile(0, 1)->setCollected(true);
    QCOMPARE(window.favourite(0)->iconSize(), QSize(32, 30));
    QCOMPARE(window.favourite(0)->minimumSize(), QSize(70, 50));
    QCOMPARE(window.favourite(0)->maximumSize(), QSize(70, 50));
    QCOMPARE(window.parts().tile(0, 1)->iconSize(), IconSize);
    QCOMPARE(window.parts().tile(0, 1)->maximumSize(), TileSize);
    window.tileSize = QSize(80, 40);
    window.parts().tile(0, 0)->setCollected(true);
    QCOMPARE(window.favourite(1)->maximumSize(), QSize(80, 40));
    QCOMPARE(window.favourite(0)->maximumSize(), QSize(70, 50));
}

void tst_RibbonGalleryFavourites::favouritesGrowByRows()
{
    LoggedWindow window;
    window.popup()->setDisplayCount(2);
    QVERIFY(window.open());
    const QList<int> heights{WithRow, WithRow, WithRow + OtherRow, WithRow + OtherRow,
                             WithRow + 2 * OtherRow};
    for (int i = 0; i < heights.size(); ++i) {
        window.parts().tile(1, 0)->setCollected(true);
        QCOMPARE(window.parts().favourites()->count(), i + 1);
        QCOMPARE(window.parts().content()->height(), heights.at(i));
    }
    for (qsizetype i = heights.size() - 1; i > 0; --i) {
        window.parts().tile(1, 0)->setCollected(false);
        QCOMPARE(window.parts().content()->height(), heights.at(i - 1));
    }
}

void tst_RibbonGalleryFavourites::collectingTwiceMakesTwoFavourites()
{
    LoggedWindow window;
    QVERIFY(window.popup()->setItemCollected(0, 1, true));
    QVERIFY(window.popup()->setItemCollected(0, 1, true));
    QCOMPARE(window.favourites(), QStringList({u"b"_s, u"b"_s}));
    // Of several the first is meant.
    const RibbonGalleryItem *second = window.favourite(1);
    QVERIFY(window.popup()->setItemCollected(0, 1, false));
    QCOMPARE(window.parts().favourites()->count(), 1);
    QCOMPARE(window.favourite(0), second);
    QVERIFY(window.popup()->setItemCollected(0, 1, true));
    // The star of the first takes the second along: by it the tile is un-marked.
    starOf(window.favourite(0))->click();
    QCOMPARE(window.favourites(), QStringList());
    QVERIFY(!window.parts().tile(0, 1)->isCollected());
}

void tst_RibbonGalleryFavourites::theSameActionInTwoGroupsHasTwoFavourites_data()
{
    QTest::addColumn<int>("clicked");
    QTest::addColumn<int>("firstGroup");

    QTest::newRow("the star of the first") << 0 << 0;
    QTest::newRow("the star of the second") << 1 << 0;
    QTest::newRow("the star of the first, collected upwards") << 0 << 1;
    QTest::newRow("the star of the second, collected upwards") << 1 << 1;
}

void tst_RibbonGalleryFavourites::theSameActionInTwoGroupsHasTwoFavourites()
{
    QFETCH(const int, clicked);
    QFETCH(const int, firstGroup);
    LoggedWindow window;
    QAction action(u"x"_s);
    window.watch(0, window.addItem(0, &action));
    window.watch(1, window.addItem(1, &action));
    QVERIFY(window.open());
    window.parts().group(firstGroup)->setItemCollected(&action, true);
    window.parts().group(1 - firstGroup)->setItemCollected(&action, true);
    QCOMPARE(window.favourites(), QStringList({u"x"_s, u"x"_s}));
    window.takeLog();
    LoggedWindow::clickStar(window.favourite(clicked));
    // The second favourite goes by the first tile's own handler.
    QCOMPARE(
        window.takeLog(),
        QStringList({u"copy x off"_s, line(WithRow, clicked == 0 ? "shown x*" : "shown x"),
                     line(Plain, "hidden"), u"0 x off"_s, line(Plain, "hidden"), u"1 x off"_s}));
    QCOMPARE(window.favourites(), QStringList());
    QVERIFY(!window.parts().group(0)->isItemCollected(2));
    QVERIFY(!window.parts().group(1)->isItemCollected(1));
}

void tst_RibbonGalleryFavourites::tilesWithoutStarAreNoFavourites()
{
    LoggedWindow window;
    window.addItem(0, u"p"_s, false);
    QVERIFY(window.open());
    QVERIFY(window.popup()->setItemCollected(0, 2, true));
    QVERIFY(window.parts().tile(0, 2)->isCollected());
    QCOMPARE(window.favourites(), QStringList());
    QCOMPARE(window.takeLog(), QStringList());
    QVERIFY(window.popup()->setItemCollected(0, 2, false));
    QCOMPARE(window.takeLog(), QStringList());
}

void tst_RibbonGalleryFavourites::thePopupsSwitchIsStoredOnly()
{
    LoggedWindow window;
    QVERIFY(window.open());
    window.parts().tile(0, 1)->setCollected(true);
    window.takeLog();
    window.popup()->setCollectEnabled(false);
    QCOMPARE(window.takeLog(), QStringList());
    QVERIFY(window.parts().favourites()->isVisible());
    QVERIFY(starOf(window.favourite(0))->isVisible());
    // A tile keeps what held when it was added.
    window.parts().tile(0, 0)->setCollected(true);
    QCOMPARE(window.favourites(), QStringList({u"b"_s, u"a"_s}));
}

void tst_RibbonGalleryFavourites::movedGroupsKeepTheirFavourites()
{
    LoggedWindow window;
    QVERIFY(window.open());
    window.parts().tile(2, 0)->setCollected(true);
    const RibbonGalleryGroup *moved = window.parts().group(2);
    Q_EMIT window.parts().group(2)->signalPositionChange(RibbonGalleryGroup::Top);
    QCOMPARE(window.favourites(), QStringList{u"d"_s});
    QTRY_VERIFY(window.parts().favourites()->y() < moved->y());
    LoggedWindow::clickStar(window.favourite(0));
    QVERIFY(!moved->isItemCollected(0));
}

QTEST_MAIN(tst_RibbonGalleryFavourites)

#include "tst_ribbongalleryfavourites.moc"
