// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/PopupParts.h"

#include "support/TestCase.h"

#include <QScrollBar>
#include <QSignalSpy>

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;
using namespace PopupParts;
using namespace VornFrame;

namespace {

constexpr int ScrollBar = 17;

/// What a group of \a count tiles needs with \a perRow tiles in a row: as many rows as are begun, and
/// never none.
int groupHeight(int count, int perRow)
{
    int rows = 1;
    for (int room = perRow; room < count; room += perRow)
        ++rows;
    return FirstRow + (rows - 1) * OtherRow;
}

void addCounts(const QList<int> &counts)
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("perRow");

    for (const int perRow : {1, 2, 5, 6, 7, 19, 20, 21, 1000}) {
        for (const int count : counts)
            QTest::addRow("%d with %d in a row", count, perRow) << count << perRow;
    }
}

QList<int> upToTwenty(int first)
{
    QList<int> counts;
    for (int i = first; i <= 20; ++i)
        counts.append(i);
    return counts;
}

void collect(const PopupWindow &window, int group, int count)
{
    for (int i = 0; i < count; ++i)
        window.parts().tile(group, i)->setCollected(true);
}

/// What a popup tells, with the height of the content at that moment.
class HeightLog : public QObject
{
public:
    explicit HeightLog(const PopupWindow &window) : m_content(window.parts().content())
    {
        connect(window.popup(), &RibbonGalleryPopup::signalHeightChanged, this,
                [this](int height) { add(height); });
    }

    QList<int> heights;
    QList<int> contentHeights;

private:
    void add(int height)
    {
        heights.append(height);
        contentHeights.append(m_content->height());
    }

    const QFrame *m_content;
};

} // namespace

class tst_RibbonGalleryHeights : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theExamplesOfOneGroupHold_data();
    void theExamplesOfOneGroupHold();
    void oneGroupNeedsItsRows_data() { addCounts(upToTwenty(0)); }
    void oneGroupNeedsItsRows();
    void favouritesNeedTheirRows_data() { addCounts(upToTwenty(1)); }
    void favouritesNeedTheirRows();
    void allPartsAddUp_data() { addCounts({0, 1, 6, 7, 13, 20}); }
    void allPartsAddUp();
    void aRowOfLessThanOneCountsAsOne_data();
    void aRowOfLessThanOneCountsAsOne();
    void nothingIsAsHighAsItsLine();

    void onlyWhatIsVisibleCountsUnlessAllIsAsked();
    void nothingIsVisibleInAClosedPopup();
    void hiddenFavouritesCountOnlyWithAll();
    void emptyFavouritesAreHidden_data();
    void emptyFavouritesAreHidden();
    void askingForTheHeightChangesNothingElse();
    void theDisplayCountHoldsFromTheNextQuestion();

    void updatingTellsTheHeight();
    void theContentHasItsHeightWhenItIsTold();
    void theWidthComesAfterTheHeightWasTold();
    void theContentLeavesRoomForTheScrollBar_data();
    void theContentLeavesRoomForTheScrollBar();
    void theContentIsNeverNegativelyWide();
    void updatingPlacesTheFavourites();
    void showingTellsTheHeightFirst();
    void everyGroupFitsIntoTheContent_data();
    void everyGroupFitsIntoTheContent();
    void hugePopupsHaveTheirHeight();
};

void tst_RibbonGalleryHeights::theExamplesOfOneGroupHold_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("added");

    QTest::newRow("none") << 0 << 98;
    QTest::newRow("one") << 1 << 98;
    QTest::newRow("a full row") << 6 << 98;
    QTest::newRow("one more") << 7 << 172;
    QTest::newRow("two full rows") << 12 << 172;
    QTest::newRow("into the third row") << 13 << 246;
    QTest::newRow("twenty") << 20 << 320;
}

void tst_RibbonGalleryHeights::theExamplesOfOneGroupHold()
{
    QFETCH(const int, count);
    QFETCH(const int, added);
    PopupWindow window;
    window.addGroup(u"one"_s, count);
    QVERIFY(Input::show(&window));
    QCOMPARE(window.popup()->contentHeight(true), 32 + added);
    QCOMPARE(window.popup()->contentHeight(false), 32 + added);
    window.addGroup(u"two"_s, 0);
    QCOMPARE(window.popup()->contentHeight(true), 32 + added + 98);
}

void tst_RibbonGalleryHeights::oneGroupNeedsItsRows()
{
    QFETCH(const int, count);
    QFETCH(const int, perRow);
    PopupWindow window;
    window.popup()->setDisplayCount(perRow);
    window.addGroup(u"one"_s, count);
    const int expected = SearchRow + groupHeight(count, perRow);
    QCOMPARE(window.popup()->contentHeight(true), expected);
    const QSignalSpy told(window.popup(), &RibbonGalleryPopup::signalHeightChanged);
    window.show();
    QVERIFY(!told.isEmpty());
    QCOMPARE(told.constLast(), QVariantList{expected});
    QCOMPARE(window.parts().content()->minimumHeight(), expected);
    QCOMPARE(window.parts().content()->maximumHeight(), expected);
    QCOMPARE(window.popup()->contentHeight(true), expected);
    QCOMPARE(window.popup()->contentHeight(false), expected);
}

void tst_RibbonGalleryHeights::favouritesNeedTheirRows()
{
    QFETCH(const int, count);
    QFETCH(const int, perRow);
    PopupWindow window;
    window.popup()->setDisplayCount(perRow);
    window.addGroup(u"one"_s, count);
    collect(window, 0, count);
    const int expected = 130 + groupHeight(count, perRow) - FirstRow + groupHeight(count, perRow);
    QCOMPARE(window.popup()->contentHeight(true), expected);
    window.show();
    QCOMPARE(window.popup()->contentHeight(true), expected);
    QCOMPARE(window.popup()->contentHeight(false), expected);
    QCOMPARE(window.parts().content()->height(), expected);
}

void tst_RibbonGalleryHeights::allPartsAddUp()
{
    QFETCH(const int, count);
    QFETCH(const int, perRow);
    PopupWindow window;
    window.popup()->setDisplayCount(perRow);
    window.addGroup(u"one"_s, 8);
    window.addGroup(u"two"_s, 0);
    window.addGroup(u"three"_s, count);
    collect(window, 0, 3);
    const int favourites = groupHeight(3, perRow);
    const int groups = groupHeight(8, perRow) + groupHeight(0, perRow) + groupHeight(count, perRow);
    window.show();
    QCOMPARE(window.popup()->contentHeight(true), SearchRow + favourites + groups);
    QCOMPARE(window.popup()->contentHeight(false), SearchRow + favourites + groups);
    collect(window, 0, 1); // a second favourite of the first tile
    QCOMPARE(window.parts().content()->height(), SearchRow + groupHeight(4, perRow) + groups);
}

void tst_RibbonGalleryHeights::aRowOfLessThanOneCountsAsOne_data()
{
    QTest::addColumn<int>("displayCount");

    QTest::newRow("none") << 0;
    QTest::newRow("negative") << -1;
    QTest::newRow("far negative") << std::numeric_limits<int>::min();
}

void tst_RibbonGalleryHeights::aRowOfLessThanOneCountsAsOne()
{
    QFETCH(const int, displayCount);
    PopupWindow window;
    window.popup()->setDisplayCount(displayCount);
    window.addGroup(u"one"_s, 3);
    window.addGroup(u"two"_s, 0);
    collect(window, 0, 2);
    const int expected = 130 + OtherRow + FirstRow + 2 * OtherRow + FirstRow;
    QCOMPARE(window.popup()->contentHeight(true), expected);
    QVERIFY(Input::show(&window));
    QCOMPARE(window.parts().content()->height(), expected);
}

void tst_RibbonGalleryHeights::nothingIsAsHighAsItsLine()
{
    PopupWindow window;
    QCOMPARE(window.popup()->contentHeight(true), NothingShown);
    QCOMPARE(window.popup()->contentHeight(false), NothingShown);
    QVERIFY(Input::show(&window));
    QCOMPARE(window.popup()->contentHeight(true), NothingShown);
    QCOMPARE(window.popup()->contentHeight(false), NothingShown);
    QCOMPARE(window.parts().content()->height(), NothingShown);
}

void tst_RibbonGalleryHeights::onlyWhatIsVisibleCountsUnlessAllIsAsked()
{
    PopupWindow window;
    window.addGroup(u"one"_s, 7);
    window.addGroup(u"two"_s, 1);
    window.addGroup(u"three"_s, 13);
    QVERIFY(Input::show(&window));
    const int all = SearchRow + groupHeight(7, 6) + groupHeight(1, 6) + groupHeight(13, 6);
    window.parts().group(0)->hide();
    QCOMPARE(window.popup()->contentHeight(true), all);
    QCOMPARE(window.popup()->contentHeight(false), all - groupHeight(7, 6));
    window.parts().group(2)->hide();
    QCOMPARE(window.popup()->contentHeight(false), SearchRow + FirstRow);
    // Hidden tiles count all the same.
    window.parts().tile(1, 0)->hide();
    QCOMPARE(window.popup()->contentHeight(false), SearchRow + FirstRow);
    window.parts().group(1)->hide();
    QCOMPARE(window.popup()->contentHeight(false), NothingShown);
    QCOMPARE(window.popup()->contentHeight(true), all);
}

void tst_RibbonGalleryHeights::nothingIsVisibleInAClosedPopup()
{
    PopupWindow window;
    window.addGroup(u"one"_s, 7);
    collect(window, 0, 1);
    QCOMPARE(window.popup()->contentHeight(false), NothingShown);
    QCOMPARE(window.popup()->contentHeight(true), 130 + groupHeight(7, 6));
    QVERIFY(Input::show(&window));
    QCOMPARE(window.popup()->contentHeight(false), 130 + groupHeight(7, 6));
    window.hide();
    QCOMPARE(window.popup()->contentHeight(false), NothingShown);
    QCOMPARE(window.popup()->contentHeight(true), 130 + groupHeight(7, 6));
}

void tst_RibbonGalleryHeights::hiddenFavouritesCountOnlyWithAll()
{
    PopupWindow window;
    window.addGroup(u"one"_s, 1);
    collect(window, 0, 1);
    QVERIFY(Input::show(&window));
    QCOMPARE(window.popup()->contentHeight(false), 130 + FirstRow);
    window.parts().favourites()->hide();
    QCOMPARE(window.popup()->contentHeight(false), SearchRow + FirstRow);
    QCOMPARE(window.popup()->contentHeight(true), 130 + FirstRow);
    window.popup()->updateHeight();
    QVERIFY(window.parts().favourites()->isHidden());
    QCOMPARE(window.parts().content()->height(), SearchRow + FirstRow);
    window.parts().group(0)->hide();
    window.popup()->updateHeight();
    QCOMPARE(window.parts().content()->height(), NothingShown);
}

void tst_RibbonGalleryHeights::emptyFavouritesAreHidden_data()
{
    QTest::addColumn<QString>("by");

    QTest::newRow("asking for all") << u"all"_s;
    QTest::newRow("asking for what is visible") << u"visible"_s;
    QTest::newRow("updating") << u"update"_s;
}

void tst_RibbonGalleryHeights::emptyFavouritesAreHidden()
{
    QFETCH(const QString, by);
    PopupWindow window;
    window.addGroup(u"one"_s, 1);
    QVERIFY(Input::show(&window));
    window.parts().favourites()->show();
    if (by == "update"_L1)
        window.popup()->updateHeight();
    else
        QCOMPARE(window.popup()->contentHeight(by == "all"_L1), SearchRow + FirstRow);
    QVERIFY(window.parts().favourites()->isHidden());
}

void tst_RibbonGalleryHeights::askingForTheHeightChangesNothingElse()
{
    PopupWindow window;
    window.addGroup(u"one"_s, 7);
    collect(window, 0, 1);
    QVERIFY(Input::show(&window));
    window.parts().content()->setFixedSize(111, 222);
    window.parts().favourites()->hide();
    window.parts().group(0)->hide();
    const QSignalSpy told(window.popup(), &RibbonGalleryPopup::signalHeightChanged);
    window.popup()->contentHeight(true);
    window.popup()->contentHeight(false);
    QCOMPARE(told.size(), 0);
    QCOMPARE(window.parts().content()->size(), QSize(111, 222));
    QVERIFY(window.parts().favourites()->isHidden());
    QVERIFY(window.parts().group(0)->isHidden());
}

void tst_RibbonGalleryHeights::theDisplayCountHoldsFromTheNextQuestion()
{
    PopupWindow window;
    window.addGroup(u"one"_s, 12);
    QVERIFY(Input::show(&window));
    const int before = window.parts().content()->height();
    const QSignalSpy told(window.popup(), &RibbonGalleryPopup::signalHeightChanged);
    window.popup()->setDisplayCount(3);
    QCOMPARE(told.size(), 0);
    QCOMPARE(window.parts().content()->height(), before);
    QCOMPARE(window.popup()->contentHeight(true), SearchRow + groupHeight(12, 3));
    window.popup()->updateHeight();
    QCOMPARE(window.parts().content()->height(), SearchRow + groupHeight(12, 3));
}

void tst_RibbonGalleryHeights::updatingTellsTheHeight()
{
    PopupWindow window;
    window.addGroup(u"one"_s, 7);
    QVERIFY(Input::show(&window));
    const HeightLog log(window);
    window.popup()->updateHeight();
    window.popup()->updateHeight(); // told also when it is the same
    window.parts().group(0)->hide();
    window.popup()->updateHeight();
    QCOMPARE(log.heights,
             QList({SearchRow + groupHeight(7, 6), SearchRow + groupHeight(7, 6), NothingShown}));
}

void tst_RibbonGalleryHeights::theContentHasItsHeightWhenItIsTold()
{
    PopupWindow window;
    window.addGroup(u"one"_s, 7);
    QVERIFY(Input::show(&window));
    const HeightLog log(window);
    collect(window, 0, 1);
    window.parts().group(0)->hide();
    window.popup()->updateHeight();
    QCOMPARE(log.heights, QList({130 + groupHeight(7, 6), 130}));
    QCOMPARE(log.contentHeights, log.heights);
}

void tst_RibbonGalleryHeights::theWidthComesAfterTheHeightWasTold()
{
    PopupWindow window;
    window.addGroup(u"one"_s, 7);
    QVERIFY(Input::show(&window));
    RibbonGalleryPopup *popup = window.popup();
    popup->setFixedSize(400, 100);
    popup->updateHeight();
    QCOMPARE(window.parts().content()->width(), 400 - ScrollBar);
    // Whoever is told makes room, and the content fills it.
    connect(popup, &RibbonGalleryPopup::signalHeightChanged, popup,
            [popup](int height) { popup->setFixedSize(500, height); });
    popup->updateHeight();
    QCOMPARE(window.parts().content()->width(), 500);
}

void tst_RibbonGalleryHeights::theContentLeavesRoomForTheScrollBar_data()
{
    QTest::addColumn<int>("missing");
    QTest::addColumn<int>("width");

    QTest::newRow("much room") << -200 << 580;
    QTest::newRow("more room") << -1 << 580;
    QTest::newRow("as much room") << 0 << 580;
    QTest::newRow("less room") << 1 << 563;
    QTest::newRow("no room") << SearchRow + FirstRow + OtherRow << 563;
}

void tst_RibbonGalleryHeights::theContentLeavesRoomForTheScrollBar()
{
    QFETCH(const int, missing);
    QFETCH(const int, width);
    PopupWindow window;
    window.addGroup(u"one"_s, 7);
    const int needed = SearchRow + groupHeight(7, 6);
    QVERIFY(Input::show(&window));
    window.popup()->setFixedSize(580, needed - missing);
    window.popup()->updateHeight();
    QCOMPARE(window.parts().content()->minimumWidth(), width);
    QCOMPARE(window.parts().content()->maximumWidth(), width);
}

void tst_RibbonGalleryHeights::theContentIsNeverNegativelyWide()
{
    PopupWindow window;
    window.addGroup(u"one"_s, 7);
    QVERIFY(Input::show(&window));
    window.popup()->setFixedSize(5, 5);
    window.popup()->updateHeight();
    QCOMPARE(window.parts().content()->width(), 0);
}

void tst_RibbonGalleryHeights::updatingPlacesTheFavourites()
{
    PopupWindow window;
    window.addGroup(u"one"_s, 3);
    collect(window, 0, 1);
    QVERIFY(Input::show(&window));
    RibbonGalleryItem *copy = window.parts().favourites()->item(0);
    settle(&window);
    QCOMPARE(copy->pos(), QPoint(3, 5));
    copy->move(50, 50);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(copy->pos(), QPoint(50, 50));
    window.popup()->updateHeight();
    QTRY_COMPARE(copy->pos(), QPoint(3, 5));
}

void tst_RibbonGalleryHeights::showingTellsTheHeightFirst()
{
    PopupWindow window;
    window.addGroup(u"one"_s, 7);
    window.popup()->hide();
    QVERIFY(Input::show(&window));
    const HeightLog log(window);
    window.popup()->show();
    QVERIFY(!log.heights.isEmpty());
    QCOMPARE(log.heights.constFirst(), SearchRow + groupHeight(7, 6));
    window.popup()->hide();
    const qsizetype told = log.heights.size();
    window.addGroup(u"two"_s, 1);
    window.popup()->show();
    QVERIFY(log.heights.size() > told);
    QCOMPARE(log.heights.constLast(), SearchRow + groupHeight(7, 6) + FirstRow);
}

void tst_RibbonGalleryHeights::everyGroupFitsIntoTheContent_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<Qt::LayoutDirection>("direction");

    for (const int count : {0, 1, 6, 7, 18, 20}) {
        QTest::addRow("%d, left to right", count) << count << Qt::LeftToRight;
        QTest::addRow("%d, right to left", count) << count << Qt::RightToLeft;
    }
}

void tst_RibbonGalleryHeights::everyGroupFitsIntoTheContent()
{
    QFETCH(const int, count);
    QFETCH(const Qt::LayoutDirection, direction);
    PopupWindow window(direction);
    window.addGroup(u"one"_s, count);
    window.addGroup(u"two"_s, 20);
    QVERIFY(Input::show(&window));
    const QRect content = window.parts().content()->rect();
    int previous = window.parts().searchRow()->geometry().bottom();
    for (int group = 0; group < 2; ++group) {
        const RibbonGalleryGroup *shown = window.parts().group(group);
        QVERIFY(content.contains(shown->geometry()));
        QCOMPARE(shown->y(), previous + 1);
        previous = shown->geometry().bottom();
        for (int i = 0; i < shown->count(); ++i)
            QVERIFY(itemsFrame(shown)->rect().contains(shown->item(i)->geometry()));
    }
}

void tst_RibbonGalleryHeights::hugePopupsHaveTheirHeight()
{
    PopupWindow window;
    window.popup()->setDisplayCount(1);
    window.addGroup(u"one"_s, 2000);
    QVERIFY(Input::show(&window));
    const int expected = SearchRow + groupHeight(2000, 1);
    QCOMPARE(window.popup()->contentHeight(true), expected);
    QCOMPARE(window.parts().content()->height(), expected);
    QCOMPARE(window.popup()->verticalScrollBar()->maximum(),
             expected - window.popup()->viewport()->height());
}

QTEST_MAIN(tst_RibbonGalleryHeights)

#include "tst_ribbongalleryheights.moc"
