// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/GalleryWindow.h"

#include "support/TestCase.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace GalleryWindows;
using namespace VornFrame;

namespace {

/// Room for the search row and one group.
constexpr int LittleRoom = 180;

void addDirections()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");

    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

/// A popup that shows its parts only one after the other.
class LowWindow : public GalleryWindow
{
public:
    explicit LowWindow(Qt::LayoutDirection direction = Qt::LeftToRight) : GalleryWindow(direction)
    {
        leaveRoom(LittleRoom);
    }
};

/// A place in the popup that is not for clicking.
struct Place
{
    QWidget *widget = nullptr;
    QPoint at;
};

Place deadPlace(const GalleryWindow &window, const QString &name)
{
    const RibbonGalleryGroup *one = window.parts().group(0);
    QFrame *items = itemsFrame(one);
    if (name == "title"_L1)
        return {titleLabel(one), titleLabel(one)->rect().center()};
    if (name == "right of the title"_L1)
        return {titleFrame(one), titleFrame(one)->rect().center()};
    if (name == "above the tiles"_L1)
        return {items, QPoint(50, 2)};
    if (name == "behind the tiles"_L1)
        return {items, QPoint(400, 90)};
    if (name == "in the search row"_L1)
        return {window.parts().content(), QPoint(100, 2)};
    if (name == "the line without match"_L1)
        return {window.parts().noMatchLabel(), QPoint(100, 15)};
    return {window.tile(u"a1"_s), QPoint(40, 30)};
}

} // namespace

class tst_RibbonGalleryUse : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void tabGoesFromGroupToGroup_data() { addDirections(); }
    void tabGoesFromGroupToGroup();
    void backtabGoesBack();
    void tabComesFromAnyTile_data();
    void tabComesFromAnyTile();
    void tabPassesOverWhatIsHidden();
    void tabGoesThroughFavouritesFirst();
    void tabKeepsInSight();

    void pageKeysScroll_data();
    void pageKeysScroll();
    void theFocusedTileStaysInSight_data() { addDirections(); }
    void theFocusedTileStaysInSight();
    void downAndUpKeepInSight();
    void typingScrollsToTheSearchField();
    void openingStartsAtTheTop();
    void theScrollBarHasRoomOfItsOwn_data() { addDirections(); }
    void theScrollBarHasRoomOfItsOwn();
    void theScrollBarGoesWhenTheSearchNeedsLess();

    void theWheelScrolls_data();
    void theWheelScrolls();
    void theWheelDoesNothingWithoutNeed();

    void deadPlacesDoNothing_data();
    void deadPlacesDoNothing();
    void aDragToATileDoesNothing();
    void aPressMovedAwayDoesNothing();
    void aClickOnATileTriggersAndCloses();
    void aClickOnAStarLeavesThePopupOpen();
    void aClickOnAMoveButtonLeavesThePopupOpen();
    void aClickOnTheCloseButtonCloses();
    void aClickOutsideCloses();
    void theStripFollowsWhenThePopupCloses();

    void controlSpaceCollects();
    void controlSpaceOnAFavouriteRemovesIt();
    void controlSpaceDoesNothingElsewhere();
    void controlSpaceNeedsAStar();
};

void tst_RibbonGalleryUse::initTestCase()
{
    TestCase::initTestCase();
    qRegisterMetaType<QAction *>();
}

void tst_RibbonGalleryUse::tabGoesFromGroupToGroup()
{
    QFETCH(const Qt::LayoutDirection, direction);
    GalleryWindow window(direction);
    QVERIFY(window.open());
    QStringList stops;
    for (int i = 0; i < 10; ++i) {
        stops.append(window.focused());
        window.key(Qt::Key_Tab);
    }
    QCOMPARE(stops.join(u' '), u"search close vone a0 ^two vtwo b0 ^three c0 search"_s);
}

void tst_RibbonGalleryUse::backtabGoesBack()
{
    GalleryWindow window;
    QVERIFY(window.open());
    QStringList stops;
    for (int i = 0; i < 10; ++i) {
        stops.append(window.focused());
        window.key(Qt::Key_Backtab, Qt::ShiftModifier);
    }
    QCOMPARE(stops.join(u' '), u"search c0 ^three b0 vtwo ^two a0 vone close search"_s);
}

void tst_RibbonGalleryUse::tabComesFromAnyTile_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("next");
    QTest::addColumn<QString>("previous");

    QTest::newRow("in the first group") << u"a5"_s << u"^two"_s << u"vone"_s;
    QTest::newRow("in the second row") << u"a7"_s << u"^two"_s << u"vone"_s;
    QTest::newRow("alone") << u"b0"_s << u"^three"_s << u"vtwo"_s;
    QTest::newRow("in the last group") << u"c6"_s << u"search"_s << u"^three"_s;
}

void tst_RibbonGalleryUse::tabComesFromAnyTile()
{
    QFETCH(const QString, from);
    QFETCH(const QString, next);
    QFETCH(const QString, previous);
    GalleryWindow window;
    QVERIFY(window.open());
    window.focusTile(from);
    window.key(Qt::Key_Tab);
    QCOMPARE(window.focused(), next);
    window.focusTile(from);
    window.key(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(window.focused(), previous);
}

void tst_RibbonGalleryUse::tabPassesOverWhatIsHidden()
{
    GalleryWindow window;
    QVERIFY(window.open());
    window.type('c');
    window.type('3');
    QStringList stops;
    for (int i = 0; i < 5; ++i) {
        stops.append(window.focused());
        window.key(Qt::Key_Tab);
    }
    QCOMPARE(stops.join(u' '), u"search close ^three c3 search"_s);
    window.key(Qt::Key_Backtab, Qt::ShiftModifier);
    window.type('x');
    window.key(Qt::Key_Tab);
    QCOMPARE(window.focused(), u"close"_s);
    window.key(Qt::Key_Tab);
    QCOMPARE(window.focused(), u"search"_s);
}

void tst_RibbonGalleryUse::tabGoesThroughFavouritesFirst()
{
    GalleryWindow window;
    window.gallery()->setItemCollected(2, 3, true);
    window.gallery()->setItemCollected(2, 4, true);
    QVERIFY(window.open());
    window.key(Qt::Key_Tab);
    window.key(Qt::Key_Tab);
    QCOMPARE(window.focused(), u"*c3"_s);
    window.key(Qt::Key_Tab);
    QCOMPARE(window.focused(), u"vone"_s);
}

void tst_RibbonGalleryUse::tabKeepsInSight()
{
    LowWindow window;
    QVERIFY(window.open());
    for (int i = 0; i < 9; ++i) {
        QVERIFY2(window.isInSight(QApplication::focusWidget()), qPrintable(window.focused()));
        window.key(Qt::Key_Tab);
    }
}

void tst_RibbonGalleryUse::pageKeysScroll_data()
{
    QTest::addColumn<QString>("from");

    QTest::newRow("from the search field") << QString();
    QTest::newRow("from a tile") << u"a0"_s;
}

void tst_RibbonGalleryUse::pageKeysScroll()
{
    QFETCH(const QString, from);
    LowWindow window;
    QVERIFY(window.open());
    if (!from.isEmpty())
        window.focusTile(from);
    const QString focused = window.focused();
    const int page = window.scrollBar()->pageStep();
    QCOMPARE(page, LittleRoom);
    QVERIFY(window.scrollBar()->maximum() > page);
    window.key(Qt::Key_PageDown);
    QCOMPARE(window.scrollBar()->value(), page);
    for (int i = 0; i < 5; ++i)
        window.key(Qt::Key_PageDown);
    QCOMPARE(window.scrollBar()->value(), window.scrollBar()->maximum());
    QVERIFY(window.isInSight(window.tile(u"c0"_s)));
    window.key(Qt::Key_PageUp);
    QCOMPARE(window.scrollBar()->value(), window.scrollBar()->maximum() - page);
    for (int i = 0; i < 5; ++i)
        window.key(Qt::Key_PageUp);
    QCOMPARE(window.scrollBar()->value(), 0);
    QCOMPARE(window.focused(), focused);
    QVERIFY(window.menu()->isVisible());
}

void tst_RibbonGalleryUse::theFocusedTileStaysInSight()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const bool isRightToLeft = direction == Qt::RightToLeft;
    LowWindow window(direction);
    QVERIFY(window.open());
    window.focusTile(u"a0"_s);
    for (int i = 0; i < 15; ++i) {
        window.key(isRightToLeft ? Qt::Key_Left : Qt::Key_Right);
        QVERIFY2(window.isInSight(QApplication::focusWidget()), qPrintable(window.focused()));
    }
    QCOMPARE(window.focused(), u"c6"_s);
    QVERIFY(window.scrollBar()->value() > 0);
    for (int i = 0; i < 15; ++i) {
        window.key(isRightToLeft ? Qt::Key_Right : Qt::Key_Left);
        QVERIFY2(window.isInSight(QApplication::focusWidget()), qPrintable(window.focused()));
    }
    QCOMPARE(window.focused(), u"a0"_s);
}

void tst_RibbonGalleryUse::downAndUpKeepInSight()
{
    LowWindow window;
    QVERIFY(window.open());
    window.focusTile(u"a0"_s);
    QStringList down;
    for (int i = 0; i < 5; ++i) {
        down.append(window.focused());
        QVERIFY2(window.isInSight(QApplication::focusWidget()), qPrintable(window.focused()));
        window.key(Qt::Key_Down);
    }
    QCOMPARE(down.join(u' '), u"a0 a6 b0 c0 c6"_s);
    for (int i = 0; i < 5; ++i)
        window.key(Qt::Key_Up);
    QCOMPARE(window.focused(), u"search"_s);
    QVERIFY(window.isInSight(window.parts().searchEdit()));
}

void tst_RibbonGalleryUse::typingScrollsToTheSearchField()
{
    LowWindow window;
    QVERIFY(window.open());
    window.focusTile(u"c6"_s);
    window.scrollBar()->setValue(window.scrollBar()->maximum());
    QVERIFY(!window.isInSight(window.parts().searchEdit()));
    window.type('0');
    QVERIFY(window.isInSight(window.parts().searchEdit()));
}

void tst_RibbonGalleryUse::openingStartsAtTheTop()
{
    LowWindow window;
    QVERIFY(window.open());
    window.scrollBar()->setValue(100);
    window.key(Qt::Key_Escape);
    QVERIFY(window.open());
    QCOMPARE(window.scrollBar()->value(), 0);
    QVERIFY(window.isInSight(window.parts().searchEdit()));
}

void tst_RibbonGalleryUse::theScrollBarHasRoomOfItsOwn()
{
    QFETCH(const Qt::LayoutDirection, direction);
    LowWindow window(direction);
    QVERIFY(window.open());
    const int width = window.gallery()->width();
    QCOMPARE(window.popup()->size(), QSize(width + 17, LittleRoom));
    QCOMPARE(window.menu()->size(), QSize(width + 19, LittleRoom + 2));
    QCOMPARE(window.parts().content()->width(), width);
    const QRect gallery(window.gallery()->mapToGlobal(QPoint(0, 0)), window.gallery()->size());
    QCOMPARE(window.menu()->y(), gallery.y());
    if (direction == Qt::LeftToRight)
        QCOMPARE(window.menu()->x(), gallery.x());
    else
        QCOMPARE(window.menu()->geometry().right(), gallery.right());
}

void tst_RibbonGalleryUse::theScrollBarGoesWhenTheSearchNeedsLess()
{
    LowWindow window;
    QVERIFY(window.open());
    QVERIFY(window.scrollBar()->isVisible());
    window.type('b');
    QCOMPARE(window.popup()->size(), QSize(window.gallery()->width(), SearchRow + FirstRow));
    QCOMPARE(window.menu()->size(), window.popup()->size() + QSize(2, 2));
    QCOMPARE(window.parts().content()->width(), window.gallery()->width());
    QTRY_VERIFY(!window.scrollBar()->isVisible());
    window.key(Qt::Key_Backspace);
    QCOMPARE(window.popup()->size(), QSize(window.gallery()->width() + 17, LittleRoom));
}

void tst_RibbonGalleryUse::theWheelScrolls_data()
{
    QTest::addColumn<QString>("over");

    QTest::newRow("over a tile") << u"tile"_s;
    QTest::newRow("over a star") << u"star"_s;
    QTest::newRow("over a title") << u"title"_s;
    QTest::newRow("over the search field") << u"search"_s;
    QTest::newRow("over a button") << u"close"_s;
    QTest::newRow("over a disabled tile") << u"disabled"_s;
}

void tst_RibbonGalleryUse::theWheelScrolls()
{
    QFETCH(const QString, over);
    LowWindow window;
    window.gallery()->setItemCollected(0, 0, true);
    QVERIFY(window.open());
    window.parts().favourites()->item(0)->defaultAction()->setEnabled(over != "disabled"_L1);
    QWidget *widget = window.parts().favourites()->item(0);
    if (over == "star"_L1)
        widget = starOf(window.parts().favourites()->item(0));
    else if (over == "title"_L1)
        widget = titleFrame(window.parts().favourites());
    else if (over == "search"_L1)
        widget = window.parts().searchEdit();
    else if (over == "close"_L1)
        widget = window.parts().closeButton();
    const QPoint at = widget->mapTo(window.menu(), widget->rect().center());
    QVERIFY(window.menu()->rect().contains(at));
    Input::wheel(window.menu(), -1, at);
    QVERIFY(window.scrollBar()->value() > 0);
    QVERIFY(window.scrollBar()->value() < LittleRoom);
    // Past whatever comes below the mouse, and once more at the end.
    for (int i = 0; i < 20; ++i)
        Input::wheel(window.menu(), -2, at);
    QCOMPARE(window.scrollBar()->value(), window.scrollBar()->maximum());
    QVERIFY(window.isInSight(window.tile(u"c6"_s)));
    for (int i = 0; i < 20; ++i)
        Input::wheel(window.menu(), 2, at);
    QCOMPARE(window.scrollBar()->value(), 0);
    QVERIFY(window.menu()->isVisible());
}

void tst_RibbonGalleryUse::theWheelDoesNothingWithoutNeed()
{
    GalleryWindow window;
    QVERIFY(window.open());
    QCOMPARE(window.scrollBar()->maximum(), 0);
    Input::wheel(window.tile(u"b0"_s), -3);
    QCOMPARE(window.scrollBar()->value(), 0);
}

void tst_RibbonGalleryUse::deadPlacesDoNothing_data()
{
    QTest::addColumn<QString>("place");

    for (const char *place : {"title", "right of the title", "above the tiles", "behind the tiles",
                              "in the search row", "the line without match", "a disabled tile"})
        QTest::newRow(place) << QString::fromLatin1(place);
}

void tst_RibbonGalleryUse::deadPlacesDoNothing()
{
    QFETCH(const QString, place);
    GalleryWindow window;
    QVERIFY(window.open());
    const QSignalSpy triggered(window.gallery(), &RibbonGallery::signalTriggered);
    if (place == "the line without match"_L1)
        window.type('x');
    if (place == "a disabled tile"_L1)
        window.tile(u"a1"_s)->defaultAction()->setEnabled(false);
    QCoreApplication::sendPostedEvents();
    const Place dead = deadPlace(window, place);
    QVERIFY(dead.widget->isVisible());
    Input::click(dead.widget, dead.at);
    Input::rightClick(dead.widget, dead.at);
    Input::doubleClick(dead.widget, dead.at);
    Input::release(dead.widget, dead.at);
    QVERIFY(window.menu()->isVisible());
    QCOMPARE(triggered.size(), 0);
    QCOMPARE(window.parts().titles(), QStringList({u"one"_s, u"two"_s, u"three"_s}));
    // The keys still come to the popup.
    window.type('b');
    QVERIFY(window.parts().searchEdit()->text().endsWith(u'b'));
}

void tst_RibbonGalleryUse::aDragToATileDoesNothing()
{
    GalleryWindow window;
    QVERIFY(window.open());
    const QSignalSpy triggered(window.gallery(), &RibbonGallery::signalTriggered);
    QFrame *title = titleFrame(window.parts().group(0));
    const QPoint tile = title->mapFromGlobal(window.tile(u"a2"_s)->mapToGlobal(QPoint(40, 30)));
    Input::drag(title, title->rect().center(), tile);
    QVERIFY(window.menu()->isVisible());
    QCOMPARE(triggered.size(), 0);
}

void tst_RibbonGalleryUse::aPressMovedAwayDoesNothing()
{
    GalleryWindow window;
    QVERIFY(window.open());
    const QSignalSpy triggered(window.gallery(), &RibbonGallery::signalTriggered);
    RibbonGalleryItem *tile = window.tile(u"a2"_s);
    Input::drag(tile, QPoint(40, 30), QPoint(40, -15));
    QVERIFY(window.menu()->isVisible());
    Input::drag(tile, QPoint(40, 30), QPoint(140, 30));
    QVERIFY(window.menu()->isVisible());
    QCOMPARE(triggered.size(), 0);
}

void tst_RibbonGalleryUse::aClickOnATileTriggersAndCloses()
{
    GalleryWindow window;
    window.gallery()->setItemCollected(2, 2, true);
    for (const bool isFavourite : {false, true}) {
        QVERIFY(window.open());
        QSignalSpy triggered(window.gallery(), &RibbonGallery::signalTriggered);
        RibbonGalleryItem *tile = isFavourite ? window.parts().favourites()->item(0)
                                              : window.tile(u"c2"_s);
        Input::click(tile);
        QVERIFY(!window.menu()->isVisible());
        QCOMPARE(triggered.size(), 1);
        QCOMPARE(triggered.takeFirst().constFirst().value<QAction *>(), tile->defaultAction());
    }
}

void tst_RibbonGalleryUse::aClickOnAStarLeavesThePopupOpen()
{
    GalleryWindow window;
    QVERIFY(window.open());
    const QSignalSpy triggered(window.gallery(), &RibbonGallery::signalTriggered);
    RibbonGalleryItem *tile = window.tile(u"c2"_s);
    Input::move(tile);
    QVERIFY(starOf(tile)->isVisible());
    Input::click(starOf(tile));
    QCOMPARE(texts(window.parts().favourites()), QStringList{u"c2"_s});
    QTRY_VERIFY(window.parts().favourites()->item(0)->isVisible());
    Input::move(window.parts().favourites()->item(0));
    Input::click(starOf(window.parts().favourites()->item(0)));
    QCOMPARE(texts(window.parts().favourites()), QStringList());
    QVERIFY(window.menu()->isVisible());
    QCOMPARE(triggered.size(), 0);
    // The keys still come to the popup.
    window.type('b');
    QCOMPARE(window.parts().searchEdit()->text(), u"b"_s);
}

void tst_RibbonGalleryUse::aClickOnAMoveButtonLeavesThePopupOpen()
{
    GalleryWindow window;
    QVERIFY(window.open());
    Input::click(toTop(window.parts().group(2)));
    QCOMPARE(window.parts().titles(), QStringList({u"three"_s, u"one"_s, u"two"_s}));
    QVERIFY(window.menu()->isVisible());
    window.type('b');
    QCOMPARE(window.parts().searchEdit()->text(), u"b"_s);
}

void tst_RibbonGalleryUse::aClickOnTheCloseButtonCloses()
{
    GalleryWindow window;
    QVERIFY(window.open());
    Input::click(window.parts().closeButton());
    QVERIFY(!window.menu()->isVisible());
    QVERIFY(window.isVisible());
    QVERIFY(window.open());
}

void tst_RibbonGalleryUse::aClickOutsideCloses()
{
    GalleryWindow window;
    QVERIFY(window.open());
    const QSignalSpy triggered(window.gallery(), &RibbonGallery::signalTriggered);
    Input::click(&window, QPoint(690, 5));
    QVERIFY(!window.menu()->isVisible());
    QCOMPARE(triggered.size(), 0);
}

void tst_RibbonGalleryUse::theStripFollowsWhenThePopupCloses()
{
    GalleryWindow window;
    QVERIFY(window.open());
    const auto *strip = window.findChild<QFrame *>(u"itemsFrame"_s);
    const auto first = [strip] {
        const auto *tile = qobject_cast<RibbonGalleryItem *>(strip->layout()->itemAt(0)->widget());
        return tile->text();
    };
    window.focusTile(u"c2"_s);
    window.key(Qt::Key_Space, Qt::ControlModifier);
    QCoreApplication::processEvents();
    QCOMPARE(first(), u"a0"_s);
    window.key(Qt::Key_Escape);
    QTRY_COMPARE(first(), u"c2"_s);
}

void tst_RibbonGalleryUse::controlSpaceCollects()
{
    GalleryWindow window;
    QVERIFY(window.open());
    const QSignalSpy triggered(window.gallery(), &RibbonGallery::signalTriggered);
    window.focusTile(u"c2"_s);
    window.key(Qt::Key_Space, Qt::ControlModifier);
    QVERIFY(window.tile(u"c2"_s)->isCollected());
    QCOMPARE(texts(window.parts().favourites()), QStringList{u"c2"_s});
    QCOMPARE(window.focused(), u"c2"_s);
    window.key(Qt::Key_Space, Qt::ControlModifier);
    QVERIFY(!window.tile(u"c2"_s)->isCollected());
    QCOMPARE(texts(window.parts().favourites()), QStringList());
    QCOMPARE(window.focused(), u"c2"_s);
    QCOMPARE(triggered.size(), 0);
    QVERIFY(window.menu()->isVisible());
}

void tst_RibbonGalleryUse::controlSpaceOnAFavouriteRemovesIt()
{
    GalleryWindow window;
    window.gallery()->setItemCollected(2, 2, true);
    QVERIFY(window.open());
    window.focus(window.parts().favourites()->item(0));
    QCOMPARE(window.focused(), u"*c2"_s);
    window.key(Qt::Key_Space, Qt::ControlModifier);
    QCOMPARE(texts(window.parts().favourites()), QStringList());
    QVERIFY(!window.tile(u"c2"_s)->isCollected());
    QVERIFY(window.menu()->isVisible());
    // The keys still come to the popup.
    window.type('b');
    QCOMPARE(window.parts().searchEdit()->text(), u"b"_s);
    window.key(Qt::Key_Escape);
    QVERIFY(!window.menu()->isVisible());
}

void tst_RibbonGalleryUse::controlSpaceDoesNothingElsewhere()
{
    GalleryWindow window;
    QVERIFY(window.open());
    const QList<QWidget *> places{window.parts().searchEdit(), window.parts().closeButton(),
                                  toTop(window.parts().group(1))};
    for (QWidget *place : places) {
        window.focus(place);
        window.key(Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(texts(window.parts().favourites()), QStringList());
    }
}

void tst_RibbonGalleryUse::controlSpaceNeedsAStar()
{
    GalleryWindow window;
    window.gallery()->setCollectEnabled(false);
    window.addGroup(u"four"_s, u'd', 1);
    QVERIFY(window.open());
    window.focusTile(u"d0"_s);
    window.key(Qt::Key_Space, Qt::ControlModifier);
    QVERIFY(!window.tile(u"d0"_s)->isCollected());
    QCOMPARE(texts(window.parts().favourites()), QStringList());
}

QTEST_MAIN(tst_RibbonGalleryUse)

#include "tst_ribbongalleryuse.moc"
