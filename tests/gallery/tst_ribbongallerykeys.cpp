// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/GalleryWindow.h"

#include "support/TestCase.h"

#include <QSignalSpy>

#include <array>

using namespace Qt::StringLiterals;
using namespace GalleryWindows;
using namespace VornFrame;

namespace {

/// Where the focus can be, as GalleryWindow::focused() names it.
QWidget *widgetOf(const GalleryWindow &window, const QString &name)
{
    const Parts parts = window.parts();
    if (name == "search"_L1)
        return parts.searchEdit();
    if (name == "close"_L1)
        return parts.closeButton();
    for (int i = 0; i < parts.titles().size(); ++i) {
        if (name == u'^' + parts.group(i)->title())
            return toTop(parts.group(i));
        if (name == u'v' + parts.group(i)->title())
            return toBottom(parts.group(i));
    }
    return window.tile(name);
}

void addPlaces()
{
    QTest::addColumn<QString>("from");

    QTest::newRow("the search field") << u"search"_s;
    QTest::newRow("the close button") << u"close"_s;
    QTest::newRow("a move button") << u"^two"_s;
    QTest::newRow("the first tile") << u"a0"_s;
    QTest::newRow("a tile in the middle") << u"b0"_s;
    QTest::newRow("the last tile") << u"c6"_s;
}

void addDirections()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");

    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

QAction *takeTriggered(QSignalSpy *spy)
{
    return spy->size() == 1 ? spy->takeFirst().constFirst().value<QAction *>() : nullptr;
}

} // namespace

class tst_RibbonGalleryKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void openingGoesToTheSearchField();
    void typingGoesToTheSearchField_data() { addPlaces(); }
    void typingGoesToTheSearchField();
    void backspaceGoesToTheSearchField();
    void commandsAreNoText_data();
    void commandsAreNoText();
    void thePointerLeavesTheFocus();

    void arrowsGoFromTileToTile_data();
    void arrowsGoFromTileToTile();
    void arrowsLeadFromButtonsToTiles_data();
    void arrowsLeadFromButtonsToTiles();
    void everyTileIsReachedInReadingOrder_data() { addDirections(); }
    void everyTileIsReachedInReadingOrder();
    void downGoesFromTheSearchFieldToTheFirstRow_data() { addDirections(); }
    void downGoesFromTheSearchFieldToTheFirstRow();
    void arrowsOfTheSearchFieldMoveItsCursor();
    void arrowsPassOverWhatIsHiddenOrDisabled();
    void arrowsGoThroughFavouritesFirst();
    void arrowsInAnEmptyGalleryStay();
    void theFocusStaysAmongTheFavourites_data();
    void theFocusStaysAmongTheFavourites();

    void enterTriggersTheTile_data();
    void enterTriggersTheTile();
    void spaceTriggersTheTile();
    void enterInTheSearchFieldTriggersTheFirstMatch_data();
    void enterInTheSearchFieldTriggersTheFirstMatch();
    void enterInTheEmptySearchFieldDoesNothing();
    void enterWithoutMatchDoesNothing();
    void enterPressesButtons();
    void theGalleryMayBeDeletedByEnter();
    void theGalleryMayBeDeletedDuringASearch();

    void escapeClosesTheMenu_data() { addPlaces(); }
    void escapeClosesTheMenu();
    void theFocusReturns_data();
    void theFocusReturns();
};

void tst_RibbonGalleryKeys::initTestCase()
{
    TestCase::initTestCase();
    qRegisterMetaType<QAction *>();
}

void tst_RibbonGalleryKeys::openingGoesToTheSearchField()
{
    GalleryWindow window;
    QVERIFY(window.open());
    QCOMPARE(window.focused(), u"search"_s);
    window.focusTile(u"b0"_s);
    window.key(Qt::Key_Escape);
    QVERIFY(window.open());
    QCOMPARE(window.focused(), u"search"_s);
}

void tst_RibbonGalleryKeys::typingGoesToTheSearchField()
{
    QFETCH(const QString, from);
    GalleryWindow window;
    QVERIFY(window.open());
    window.focus(widgetOf(window, from));
    QCOMPARE(window.focused(), from);
    window.type('c');
    QCOMPARE(window.focused(), u"search"_s);
    QCOMPARE(window.parts().searchEdit()->text(), u"c"_s);
    QVERIFY(!window.parts().group(0)->isVisible());
    window.type('3');
    QCOMPARE(window.parts().searchEdit()->text(), u"c3"_s);
    // What is there already is not replaced.
    window.focusTile(u"c3"_s);
    window.type('X');
    QCOMPARE(window.parts().searchEdit()->text(), u"c3X"_s);
    QVERIFY(window.parts().noMatchLabel()->isVisible());
    QVERIFY(window.menu()->isVisible());
}

void tst_RibbonGalleryKeys::backspaceGoesToTheSearchField()
{
    GalleryWindow window;
    QVERIFY(window.open());
    window.type('c');
    window.type('3');
    window.focusTile(u"c3"_s);
    window.key(Qt::Key_Backspace);
    QCOMPARE(window.focused(), u"search"_s);
    QCOMPARE(window.parts().searchEdit()->text(), u"c"_s);
}

void tst_RibbonGalleryKeys::commandsAreNoText_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");

    QTest::newRow("Ctrl+G") << int(Qt::Key_G) << int(Qt::ControlModifier);
    QTest::newRow("Meta+G") << int(Qt::Key_G) << int(Qt::MetaModifier);
    QTest::newRow("F2") << int(Qt::Key_F2) << int(Qt::NoModifier);
    QTest::newRow("Delete") << int(Qt::Key_Delete) << int(Qt::NoModifier);
    QTest::newRow("Shift") << int(Qt::Key_Shift) << int(Qt::ShiftModifier);
}

void tst_RibbonGalleryKeys::commandsAreNoText()
{
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    GalleryWindow window;
    QVERIFY(window.open());
    window.focusTile(u"b0"_s);
    window.key(key, Qt::KeyboardModifiers(modifiers));
    QCOMPARE(window.parts().searchEdit()->text(), QString());
    QCOMPARE(window.focused(), u"b0"_s);
    QVERIFY(window.menu()->isVisible());
}

void tst_RibbonGalleryKeys::thePointerLeavesTheFocus()
{
    GalleryWindow window;
    QVERIFY(window.open());
    for (const QString &place : {u"search"_s, u"c2"_s, u"close"_s}) {
        window.focus(widgetOf(window, place));
        Input::move(window.tile(u"a4"_s));
        Input::move(titleFrame(window.parts().group(1)));
        Input::move(itemsFrame(window.parts().group(1)));
        QCOMPARE(window.focused(), place);
    }
}

void tst_RibbonGalleryKeys::arrowsGoFromTileToTile_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("to");

    const auto add = [](const char *from, Qt::Key key, const char *to) {
        constexpr std::array names{"left", "up", "right", "down"};
        QTest::addRow("%s from %s", names.at(static_cast<std::size_t>(key - Qt::Key_Left)), from)
            << QString::fromLatin1(from) << int(key) << QString::fromLatin1(to);
    };
    add("a0", Qt::Key_Right, "a1");
    add("a1", Qt::Key_Left, "a0");
    add("a0", Qt::Key_Left, "a0");
    add("a5", Qt::Key_Right, "a6");
    add("a6", Qt::Key_Left, "a5");
    add("a7", Qt::Key_Right, "b0");
    add("b0", Qt::Key_Right, "c0");
    add("b0", Qt::Key_Left, "a7");
    add("c0", Qt::Key_Left, "b0");
    add("c6", Qt::Key_Right, "c6");
    add("a0", Qt::Key_Down, "a6");
    add("a1", Qt::Key_Down, "a7");
    add("a4", Qt::Key_Down, "a7");
    add("a6", Qt::Key_Up, "a0");
    add("a7", Qt::Key_Up, "a1");
    add("a7", Qt::Key_Down, "b0");
    add("b0", Qt::Key_Up, "a6");
    add("b0", Qt::Key_Down, "c0");
    add("c5", Qt::Key_Up, "b0");
    add("c5", Qt::Key_Down, "c6");
    add("c6", Qt::Key_Up, "c0");
    add("c6", Qt::Key_Down, "c6");
    add("a0", Qt::Key_Up, "search");
    add("a5", Qt::Key_Up, "search");
    add("search", Qt::Key_Up, "search");
}

void tst_RibbonGalleryKeys::arrowsGoFromTileToTile()
{
    QFETCH(const QString, from);
    QFETCH(const int, key);
    QFETCH(const QString, to);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        GalleryWindow window(direction);
        QVERIFY(window.open());
        window.focus(widgetOf(window, from));
        int pressed = key;
        if (direction == Qt::RightToLeft && key == Qt::Key_Left)
            pressed = Qt::Key_Right;
        if (direction == Qt::RightToLeft && key == Qt::Key_Right)
            pressed = Qt::Key_Left;
        window.key(pressed);
        QCOMPARE(window.focused(), to);
        QVERIFY(window.menu()->isVisible());
    }
}

void tst_RibbonGalleryKeys::arrowsLeadFromButtonsToTiles_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("to");

    QTest::newRow("down from the close button") << u"close"_s << int(Qt::Key_Down) << u"a0"_s;
    QTest::newRow("down from the first group") << u"vone"_s << int(Qt::Key_Down) << u"a0"_s;
    QTest::newRow("down from the second group") << u"^two"_s << int(Qt::Key_Down) << u"b0"_s;
    QTest::newRow("down from the last group") << u"^three"_s << int(Qt::Key_Down) << u"c0"_s;
    QTest::newRow("up from the second group") << u"vtwo"_s << int(Qt::Key_Up) << u"a0"_s;
    QTest::newRow("up from the last group") << u"^three"_s << int(Qt::Key_Up) << u"b0"_s;
    QTest::newRow("up from the first group") << u"vone"_s << int(Qt::Key_Up) << u"search"_s;
}

/// Past other buttons, as in any window.
void tst_RibbonGalleryKeys::arrowsLeadFromButtonsToTiles()
{
    QFETCH(const QString, from);
    QFETCH(const int, key);
    QFETCH(const QString, to);
    GalleryWindow window;
    QVERIFY(window.open());
    window.focus(widgetOf(window, from));
    for (int i = 0; i < 3 && qobject_cast<QPushButton *>(QApplication::focusWidget()); ++i)
        window.key(key);
    QCOMPARE(window.focused(), to);
}

void tst_RibbonGalleryKeys::everyTileIsReachedInReadingOrder()
{
    QFETCH(const Qt::LayoutDirection, direction);
    GalleryWindow window(direction);
    QVERIFY(window.open());
    const bool isRightToLeft = direction == Qt::RightToLeft;
    window.focusTile(u"a0"_s);
    QStringList reached;
    for (int i = 0; i < 16; ++i) {
        reached.append(window.focused());
        window.key(isRightToLeft ? Qt::Key_Left : Qt::Key_Right);
    }
    QCOMPARE(reached.join(u' '), u"a0 a1 a2 a3 a4 a5 a6 a7 b0 c0 c1 c2 c3 c4 c5 c6"_s);
    QStringList back;
    for (int i = 0; i < 16; ++i) {
        back.prepend(window.focused());
        window.key(isRightToLeft ? Qt::Key_Right : Qt::Key_Left);
    }
    QCOMPARE(back, reached);
}

void tst_RibbonGalleryKeys::downGoesFromTheSearchFieldToTheFirstRow()
{
    QFETCH(const Qt::LayoutDirection, direction);
    GalleryWindow window(direction);
    QVERIFY(window.open());
    window.key(Qt::Key_Down);
    const QString reached = window.focused();
    QVERIFY2(window.tile(reached), qPrintable(reached));
    QCOMPARE(window.tile(reached)->parent(), itemsFrame(window.parts().group(0)));
    QCOMPARE(window.tile(reached)->y(), 5);
    window.key(Qt::Key_Up);
    QCOMPARE(window.focused(), u"search"_s);
    window.type('c');
    window.type('3');
    window.key(Qt::Key_Down);
    QCOMPARE(window.focused(), u"c3"_s);
}

void tst_RibbonGalleryKeys::arrowsOfTheSearchFieldMoveItsCursor()
{
    GalleryWindow window;
    QVERIFY(window.open());
    window.type('a');
    window.type('7');
    window.key(Qt::Key_Left);
    QCOMPARE(window.parts().searchEdit()->cursorPosition(), 1);
    window.key(Qt::Key_Right);
    QCOMPARE(window.parts().searchEdit()->cursorPosition(), 2);
    window.key(Qt::Key_Right);
    QCOMPARE(window.focused(), u"search"_s);
}

void tst_RibbonGalleryKeys::arrowsPassOverWhatIsHiddenOrDisabled()
{
    GalleryWindow window;
    QVERIFY(window.open());
    window.tile(u"a1"_s)->defaultAction()->setEnabled(false);
    window.parts().group(0)->setItemVisible(2, false);
    window.parts().group(1)->hide();
    window.focusTile(u"a0"_s);
    window.key(Qt::Key_Right);
    QCOMPARE(window.focused(), u"a3"_s);
    window.key(Qt::Key_Left);
    QCOMPARE(window.focused(), u"a0"_s);
    window.focusTile(u"a7"_s);
    window.key(Qt::Key_Right);
    QCOMPARE(window.focused(), u"c0"_s);
}

void tst_RibbonGalleryKeys::arrowsGoThroughFavouritesFirst()
{
    GalleryWindow window;
    QVERIFY(window.gallery()->setItemCollected(2, 3, true));
    QVERIFY(window.gallery()->setItemCollected(1, 0, true));
    QVERIFY(window.open());
    window.focusTile(u"a0"_s);
    window.key(Qt::Key_Left);
    QCOMPARE(window.focused(), u"*b0"_s);
    window.key(Qt::Key_Left);
    QCOMPARE(window.focused(), u"*c3"_s);
    window.key(Qt::Key_Up);
    QCOMPARE(window.focused(), u"search"_s);
    window.focusTile(u"a1"_s);
    window.key(Qt::Key_Up);
    QCOMPARE(window.focused(), u"*b0"_s);
}

void tst_RibbonGalleryKeys::arrowsInAnEmptyGalleryStay()
{
    QWidget window;
    window.resize(400, 200);
    RibbonGallery gallery(&window);
    gallery.setGeometry(20, 20, 300, 68);
    QVERIFY(Input::show(&window));
    Input::click(gallery.findChild<QPushButton *>(u"popupButton"_s));
    const auto *menu = gallery.findChild<QMenu *>(u"galleryPopupMenu"_s);
    QTRY_VERIFY(menu->isVisible());
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Left, Qt::Key_Right, Qt::Key_Return,
                              Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab, Qt::Key_PageDown})
        QTest::keyClick(window.windowHandle(), key);
    QVERIFY(menu->isVisible());
    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    QVERIFY(!menu->isVisible());
}

void tst_RibbonGalleryKeys::theFocusStaysAmongTheFavourites_data()
{
    QTest::addColumn<int>("removed");
    QTest::addColumn<QString>("focused");
    QTest::newRow("first") << 0 << u"*a2"_s;
    QTest::newRow("middle") << 1 << u"*a3"_s;
    QTest::newRow("last") << 2 << u"*a2"_s;
}

void tst_RibbonGalleryKeys::theFocusStaysAmongTheFavourites()
{
    QFETCH(const int, removed);
    QFETCH(const QString, focused);
    GalleryWindow window;
    for (const int item : {1, 2, 3})
        window.gallery()->setItemCollected(0, item, true);
    QVERIFY(window.open());
    window.focus(window.parts().favourites()->item(removed));
    window.key(Qt::Key_Space, Qt::ControlModifier);
    QCOMPARE(window.parts().favourites()->count(), 2);
    QCOMPARE(window.focused(), focused);
}

void tst_RibbonGalleryKeys::enterTriggersTheTile_data()
{
    QTest::addColumn<int>("key");

    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void tst_RibbonGalleryKeys::enterTriggersTheTile()
{
    QFETCH(const int, key);
    GalleryWindow window;
    QVERIFY(window.open());
    QSignalSpy triggered(window.gallery(), &RibbonGallery::signalTriggered);
    window.focusTile(u"c2"_s);
    const QAction *action = window.tile(u"c2"_s)->defaultAction();
    window.key(key);
    QCOMPARE(takeTriggered(&triggered), action);
    QVERIFY(!window.menu()->isVisible());
}

void tst_RibbonGalleryKeys::spaceTriggersTheTile()
{
    GalleryWindow window;
    QVERIFY(window.open());
    QSignalSpy triggered(window.gallery(), &RibbonGallery::signalTriggered);
    window.focusTile(u"c2"_s);
    window.key(Qt::Key_Space);
    QCOMPARE(takeTriggered(&triggered), window.tile(u"c2"_s)->defaultAction());
    QVERIFY(!window.menu()->isVisible());
    QCOMPARE(window.parts().searchEdit()->text(), QString());
}

void tst_RibbonGalleryKeys::enterInTheSearchFieldTriggersTheFirstMatch_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("withFavourite");
    QTest::addColumn<QString>("triggered");

    QTest::newRow("the only match") << u"c4"_s << false << u"c4"_s;
    QTest::newRow("the first of a group") << u"c"_s << false << u"c0"_s;
    QTest::newRow("the first of several groups") << u"1"_s << false << u"a1"_s;
    QTest::newRow("a favourite first") << u"1"_s << true << u"c1"_s;
}

void tst_RibbonGalleryKeys::enterInTheSearchFieldTriggersTheFirstMatch()
{
    QFETCH(const QString, text);
    QFETCH(const bool, withFavourite);
    QFETCH(const QString, triggered);
    GalleryWindow window;
    if (withFavourite) {
        window.gallery()->setItemCollected(2, 0, true);
        window.gallery()->setItemCollected(2, 1, true);
    }
    QVERIFY(window.open());
    QSignalSpy spy(window.gallery(), &RibbonGallery::signalTriggered);
    for (const QChar character : text)
        window.type(character.toLatin1());
    window.key(Qt::Key_Return);
    QCOMPARE(takeTriggered(&spy), window.tile(triggered)->defaultAction());
    QVERIFY(!window.menu()->isVisible());
    QCOMPARE(window.parts().searchEdit()->text(), QString());
}

void tst_RibbonGalleryKeys::enterInTheEmptySearchFieldDoesNothing()
{
    GalleryWindow window;
    QVERIFY(window.open());
    const QSignalSpy triggered(window.gallery(), &RibbonGallery::signalTriggered);
    window.key(Qt::Key_Return);
    window.key(Qt::Key_Enter);
    QCOMPARE(triggered.size(), 0);
    QVERIFY(window.menu()->isVisible());
}

void tst_RibbonGalleryKeys::enterWithoutMatchDoesNothing()
{
    GalleryWindow window;
    QVERIFY(window.open());
    const QSignalSpy triggered(window.gallery(), &RibbonGallery::signalTriggered);
    window.type('x');
    window.key(Qt::Key_Return);
    QCOMPARE(triggered.size(), 0);
    QVERIFY(window.menu()->isVisible());
    QVERIFY(window.parts().noMatchLabel()->isVisible());
}

void tst_RibbonGalleryKeys::enterPressesButtons()
{
    GalleryWindow window;
    QVERIFY(window.open());
    const QSignalSpy triggered(window.gallery(), &RibbonGallery::signalTriggered);
    for (const int key : {Qt::Key_Return, Qt::Key_Space}) {
        window.focus(toBottom(window.parts().group(0)));
        window.key(key);
        QVERIFY(window.menu()->isVisible());
    }
    QCOMPARE(window.parts().titles(), QStringList({u"three"_s, u"one"_s, u"two"_s}));
    // The keys still come to the popup.
    window.type('b');
    QCOMPARE(window.parts().searchEdit()->text(), u"b"_s);
    window.focus(window.parts().closeButton());
    window.key(Qt::Key_Return);
    QVERIFY(!window.menu()->isVisible());
    QCOMPARE(triggered.size(), 0);
}

void tst_RibbonGalleryKeys::theGalleryMayBeDeletedByEnter()
{
    GalleryWindow window;
    QVERIFY(window.open());
    const QPointer<RibbonGallery> gallery = window.gallery();
    connect(gallery, &RibbonGallery::signalTriggered, &window, [gallery] { delete gallery; });
    window.type('c');
    window.key(Qt::Key_Down);
    window.key(Qt::Key_Return);
    QVERIFY(!gallery);
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_RibbonGalleryKeys::theGalleryMayBeDeletedDuringASearch()
{
    GalleryWindow window;
    QVERIFY(window.open());
    window.type('c');
    delete window.gallery();
    QVERIFY(!QApplication::activePopupWidget());
    QTRY_VERIFY(window.isActiveWindow());
}

void tst_RibbonGalleryKeys::escapeClosesTheMenu()
{
    QFETCH(const QString, from);
    GalleryWindow window;
    QVERIFY(window.open());
    const QSignalSpy triggered(window.gallery(), &RibbonGallery::signalTriggered);
    window.focus(widgetOf(window, from));
    window.key(Qt::Key_Escape);
    QVERIFY(!window.menu()->isVisible());
    QVERIFY(window.isVisible());
    QCOMPARE(triggered.size(), 0);
    // At once also while there is a text.
    QVERIFY(window.open());
    window.type('c');
    window.key(Qt::Key_Escape);
    QVERIFY(!window.menu()->isVisible());
    QCOMPARE(window.parts().searchEdit()->text(), QString());
}

void tst_RibbonGalleryKeys::theFocusReturns_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("from");

    QTest::newRow("Escape from the search field") << int(Qt::Key_Escape) << u"search"_s;
    QTest::newRow("Escape from a tile") << int(Qt::Key_Escape) << u"c1"_s;
    QTest::newRow("Enter on a tile") << int(Qt::Key_Return) << u"c1"_s;
    QTest::newRow("Enter on the close button") << int(Qt::Key_Return) << u"close"_s;
}

void tst_RibbonGalleryKeys::theFocusReturns()
{
    QFETCH(const int, key);
    QFETCH(const QString, from);
    GalleryWindow window;
    QVERIFY(Input::show(&window));
    window.focus(window.other());
    QVERIFY(window.open());
    QVERIFY(!window.other()->hasFocus());
    window.focus(widgetOf(window, from));
    window.key(key);
    QVERIFY(!window.menu()->isVisible());
    QTRY_VERIFY(window.other()->hasFocus());
}

QTEST_MAIN(tst_RibbonGalleryKeys)

#include "tst_ribbongallerykeys.moc"
