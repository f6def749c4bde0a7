// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/FavouriteWindow.h"

#include "support/TestCase.h"

#include <QPointer>
#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;
using namespace FavouriteWindows;
using namespace VornFrame;

class tst_RibbonGalleryFavouritesUse : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theMouseCollectsAndUncollects_data() { addDirections(); }
    void theMouseCollectsAndUncollects();
    void theStarOfAFavouriteRemovesIt_data() { addDirections(); }
    void theStarOfAFavouriteRemovesIt();
    void aFavouriteOutlivesItsOwnStarsClick();
    void severalFavouritesAreRemovedOneByOne();
    void theMouseCollectsInEveryGroup();

    void aDeletedActionTakesTileAndFavourites();
    void aDeletedActionOfAClosedPopupLeavesNoTrace();
    void anActionMayBeDeletedWhenItIsCollected();
    void anActionMayBeDeletedWhenItIsUncollected();
    void aFavouriteMayDeleteItsAction();
    void deletedActionsComeWithTheirWindow();

    void searchLooksIntoFavourites();
    void searchLeavesFavouritesAloneWhereCollectingIsOff();
    void collectingDuringASearchShowsTheFavourite();
    void uncollectingDuringASearchFitsTheHeight();
};

void tst_RibbonGalleryFavouritesUse::theMouseCollectsAndUncollects()
{
    QFETCH(const Qt::LayoutDirection, direction);
    LoggedWindow window(direction);
    QVERIFY(window.open());
    RibbonGalleryItem *tile = window.parts().tile(1, 0);
    const QSignalSpy triggered(tile->defaultAction(), &QAction::triggered);
    LoggedWindow::clickStar(tile);
    QVERIFY(tile->isCollected());
    QCOMPARE(window.favourites(), QStringList{u"c"_s});
    QTRY_COMPARE(window.favourite(0)->mapTo(window.parts().content(), QPoint()).y(),
                 window.parts().favourites()->y()
                     + titleFrame(window.parts().favourites())->height() + 5);
    LoggedWindow::clickStar(tile);
    QVERIFY(!tile->isCollected());
    QCOMPARE(window.favourites(), QStringList());
    QCOMPARE(triggered.size(), 0);
    QVERIFY(!window.takeLog().contains(u"strip"_s));
}

void tst_RibbonGalleryFavouritesUse::theStarOfAFavouriteRemovesIt()
{
    QFETCH(const Qt::LayoutDirection, direction);
    LoggedWindow window(direction);
    QVERIFY(window.open());
    LoggedWindow::clickStar(window.parts().tile(1, 0));
    QTRY_VERIFY(window.favourite(0)->isVisible());
    const QPointer<RibbonGalleryItem> copy = window.favourite(0);
    LoggedWindow::clickStar(copy);
    QCOMPARE(window.favourites(), QStringList());
    QVERIFY(!window.parts().tile(1, 0)->isCollected());
    QVERIFY(!window.parts().favourites()->isVisible());
    QTRY_VERIFY(!copy);
    QVERIFY(!window.grab().isNull());
}

void tst_RibbonGalleryFavouritesUse::aFavouriteOutlivesItsOwnStarsClick()
{
    LoggedWindow window;
    QVERIFY(window.open());
    window.parts().tile(1, 0)->setCollected(true);
    const QPointer<RibbonGalleryItem> copy = window.favourite(0);
    QStringList ends;
    connect(copy, &QObject::destroyed, &window, [&ends] { ends.append(u"destroyed"_s); });
    // The last to be told.
    connect(copy, &RibbonGalleryItem::signalCollected, copy,
            [&ends, copy] { ends.append(copy->isHidden() ? u"hidden"_s : u"?"_s); });
    connect(starOf(copy), &QToolButton::clicked, copy, [&ends] { ends.append(u"clicked"_s); });
    LoggedWindow::clickStar(copy);
    QTRY_VERIFY(!copy);
    QCOMPARE(ends, QStringList({u"hidden"_s, u"clicked"_s, u"destroyed"_s}));
}

void tst_RibbonGalleryFavouritesUse::severalFavouritesAreRemovedOneByOne()
{
    LoggedWindow window;
    QVERIFY(window.open());
    for (const auto &[group, index] : {std::pair(0, 0), std::pair(0, 1), std::pair(2, 1)})
        LoggedWindow::clickStar(window.parts().tile(group, index));
    QCOMPARE(window.favourites(), QStringList({u"a"_s, u"b"_s, u"e"_s}));
    for (const QStringList &left :
         {QStringList{u"b"_s, u"e"_s}, QStringList{u"e"_s}, QStringList()}) {
        QTRY_COMPARE(window.favourite(0)->pos(), QPoint(3, 5));
        // One place, another favourite below the mouse each time.
        Input::click(starOf(window.favourite(0)));
        QCOMPARE(window.favourites(), left);
    }
    for (int group = 0; group < 3; ++group)
        QVERIFY(!window.parts().group(group)->isItemCollected(0));
}

void tst_RibbonGalleryFavouritesUse::theMouseCollectsInEveryGroup()
{
    LoggedWindow window;
    QVERIFY(window.open());
    for (int group = 0; group < 3; ++group) {
        QCoreApplication::sendPostedEvents(); // the groups move down by the favourites
        LoggedWindow::clickStar(window.parts().tile(group, 0));
    }
    QCOMPARE(window.favourites(), QStringList({u"a"_s, u"c"_s, u"d"_s}));
    QCOMPARE(texts(window.popup()->displayedActions()).join(QString()), u"acdbe"_s);
}

void tst_RibbonGalleryFavouritesUse::aDeletedActionTakesTileAndFavourites()
{
    LoggedWindow window;
    auto *action = new QAction(u"x"_s);
    for (int group = 0; group < 2; ++group) {
        window.addItem(group, action);
        window.parts().group(group)->setItemCollected(action, true);
    }
    window.parts().tile(2, 0)->setCollected(true);
    QVERIFY(window.open());
    QCOMPARE(window.favourites(), QStringList({u"x"_s, u"x"_s, u"d"_s}));
    delete action;
    QCOMPARE(window.favourites(), QStringList{u"d"_s});
    QCOMPARE(texts(window.parts().group(0)), QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(texts(window.parts().group(1)), QStringList{u"c"_s});
    QCOMPARE(texts(window.popup()->displayedActions()).join(QString()), u"dabce"_s);
    QCOMPARE(window.takeLog().constLast(), line(WithRow, "shown d*"));
    delete window.actionOf(2, 0);
    QCOMPARE(window.takeLog().constLast(), line(Plain, "hidden"));
    QVERIFY(!window.parts().favourites()->isVisible());
    QVERIFY(!window.grab().isNull());
}

void tst_RibbonGalleryFavouritesUse::aDeletedActionOfAClosedPopupLeavesNoTrace()
{
    LoggedWindow window;
    window.parts().tile(0, 1)->setCollected(true);
    window.takeLog();
    delete window.actionOf(0, 1);
    QCOMPARE(window.takeLog(), QStringList());
    QCOMPARE(window.favourites(), QStringList());
    QCOMPARE(texts(window.popup()->displayedActions()).join(QString()), u"acde"_s);
    QVERIFY(Input::show(&window));
    QVERIFY(!window.parts().favourites()->isVisible());
    QCOMPARE(window.parts().content()->height(), Plain);
}

void tst_RibbonGalleryFavouritesUse::anActionMayBeDeletedWhenItIsCollected()
{
    LoggedWindow window;
    QVERIFY(window.open());
    const QPointer<QAction> action = window.actionOf(0, 1);
    RibbonGalleryItem *tile = window.parts().tile(0, 1);
    connect(tile, &RibbonGalleryItem::signalCollected, &window, [action] { delete action; });
    LoggedWindow::clickStar(tile);
    QVERIFY(!action);
    QCOMPARE(window.favourites(), QStringList());
    QCOMPARE(texts(window.parts().group(0)), QStringList{u"a"_s});
    QVERIFY(!window.parts().favourites()->isVisible());
}

void tst_RibbonGalleryFavouritesUse::anActionMayBeDeletedWhenItIsUncollected()
{
    LoggedWindow window;
    QVERIFY(window.open());
    const QPointer<QAction> action = new QAction(u"x"_s);
    for (int group = 0; group < 3; ++group) {
        window.addItem(group, action);
        window.parts().group(group)->setItemCollected(action, true);
    }
    // In the midst of the groups that are told one after the other.
    connect(window.parts().tile(1, 1), &RibbonGalleryItem::signalCollected, &window,
            [action] { delete action; });
    LoggedWindow::clickStar(window.favourite(1));
    QVERIFY(!action);
    QCOMPARE(window.favourites(), QStringList());
    for (int group = 0; group < 3; ++group)
        QVERIFY(!texts(window.parts().group(group)).contains(u"x"_s));
}

void tst_RibbonGalleryFavouritesUse::aFavouriteMayDeleteItsAction()
{
    LoggedWindow window;
    const QPointer<QAction> action = window.actionOf(0, 1);
    window.parts().tile(0, 1)->setCollected(true);
    connect(action, &QAction::triggered, &window, [action] { delete action; });
    QVERIFY(window.open());
    QTRY_VERIFY(window.favourite(0)->isVisible());
    Input::click(window.favourite(0));
    QVERIFY(!action);
    QCOMPARE(window.favourites(), QStringList());
    QCOMPARE(window.parts().group(0)->count(), 1);
}

void tst_RibbonGalleryFavouritesUse::deletedActionsComeWithTheirWindow()
{
    auto window = std::make_unique<LoggedWindow>();
    auto actions = std::make_unique<QObject>();
    for (int i = 0; i < 10; ++i)
        window->addItem(i % 3, new QAction(QString::number(i), actions.get()));
    for (int group = 0; group < 3; ++group) {
        for (int i = 0; i < window->parts().group(group)->count(); ++i)
            window->parts().tile(group, i)->setCollected(true);
    }
    QVERIFY(window->open());
    actions.reset();
    QCOMPARE(window->favourites().join(QString()), u"abcde"_s);
    // The other way round: the tiles go first.
    QAction outlives(u"x"_s);
    window->addItem(0, &outlives);
    window->parts().group(0)->setItemCollected(&outlives, true);
    window.reset();
    outlives.setText(u"y"_s);
}

void tst_RibbonGalleryFavouritesUse::searchLooksIntoFavourites()
{
    LoggedWindow window;
    QVERIFY(window.open());
    window.parts().tile(0, 1)->setCollected(true);
    window.parts().tile(2, 0)->setCollected(true);
    QLineEdit *edit = window.parts().searchEdit();
    edit->setText(u"b"_s);
    QCOMPARE(shownTexts(window.parts().favourites()), QStringList{u"b"_s});
    QVERIFY(window.parts().favourites()->isVisible());
    QCOMPARE(window.parts().content()->height(), 130 + FirstRow);
    edit->setText(u"c"_s);
    QVERIFY(!window.parts().favourites()->isVisible());
    QCOMPARE(window.parts().content()->height(), SearchRow + FirstRow);
    edit->setText(u"none"_s);
    QCOMPARE(window.parts().content()->height(), NothingShown);
    edit->clear();
    QCOMPARE(shownTexts(window.parts().favourites()), QStringList({u"b"_s, u"d"_s}));
    QVERIFY(window.parts().favourites()->isVisible());
    QCOMPARE(window.parts().content()->height(), WithRow);
    // They are no ordinary group afterwards.
    QCOMPARE(window.popup()->indexOfGroup(u"collected"_s), -1);
    QCOMPARE(window.parts().titles(), QStringList({u"one"_s, u"two"_s, u"three"_s}));
}

void tst_RibbonGalleryFavouritesUse::searchLeavesFavouritesAloneWhereCollectingIsOff()
{
    LoggedWindow window;
    QVERIFY(window.open());
    window.parts().tile(0, 1)->setCollected(true);
    window.popup()->setCollectEnabled(false);
    window.parts().searchEdit()->setText(u"none"_s);
    QCOMPARE(shownTexts(window.parts().favourites()), QStringList{u"b"_s});
    QVERIFY(window.parts().favourites()->isVisible());
    // They do not count as a match, but for the height.
    QVERIFY(window.parts().noMatchLabel()->isVisible());
    QCOMPARE(window.parts().content()->height(), 130);
}

void tst_RibbonGalleryFavouritesUse::collectingDuringASearchShowsTheFavourite()
{
    LoggedWindow window;
    QVERIFY(window.open());
    window.parts().tile(2, 0)->setCollected(true);
    window.parts().searchEdit()->setText(u"b"_s);
    QVERIFY(!window.parts().favourites()->isVisible());
    QTRY_COMPARE(window.parts().tile(0, 1)->pos(), QPoint(3, 5));
    LoggedWindow::clickStar(window.parts().tile(0, 1));
    QVERIFY(window.parts().favourites()->isVisible());
    QCOMPARE(shownTexts(window.parts().favourites()), QStringList{u"b"_s});
    QCOMPARE(window.parts().content()->height(), 130 + FirstRow);
}

void tst_RibbonGalleryFavouritesUse::uncollectingDuringASearchFitsTheHeight()
{
    LoggedWindow window;
    QVERIFY(window.open());
    window.parts().tile(0, 1)->setCollected(true);
    window.parts().searchEdit()->setText(u"b"_s);
    QCOMPARE(window.parts().content()->height(), 130 + FirstRow);
    QTRY_VERIFY(window.favourite(0)->isVisible());
    LoggedWindow::clickStar(window.favourite(0));
    QVERIFY(!window.parts().favourites()->isVisible());
    QCOMPARE(window.parts().content()->height(), SearchRow + FirstRow);
    QCOMPARE(shownTexts(window.parts().group(0)), QStringList{u"b"_s});
}

QTEST_MAIN(tst_RibbonGalleryFavouritesUse)

#include "tst_ribbongalleryfavouritesuse.moc"
