// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/GalleryParts.h"

#include "support/TestCase.h"

#include <QApplication>
#include <QPointer>
#include <QScrollBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace GalleryParts;
using namespace VornFrame;

namespace {

constexpr int StripWidth = 301; ///< of three tiles

QString focusedText()
{
    const auto *tile = qobject_cast<RibbonGalleryItem *>(QApplication::focusWidget());
    return tile ? tile->text() : QString();
}

/// As a person does: the popup gets it when it is open.
void pressKey(const QWidget &window, Qt::Key key)
{
    QTest::keyClick(window.windowHandle(), key);
}

QRect onScreen(const QWidget *widget)
{
    return {widget->mapToGlobal(QPoint(0, 0)), widget->size()};
}

/// A gallery with three tiles in its strip.
class OpeningWindow : public GalleryWindow
{
public:
    explicit OpeningWindow(Qt::LayoutDirection direction = Qt::LeftToRight)
        : GalleryWindow(direction)
    {
        gallery()->setDispalyCount(3);
    }

    void addGroups(const QList<int> &counts)
    {
        for (const int count : counts)
            addGroup(QString(QChar(u'a' + static_cast<char16_t>(groupsOf(gallery()).size()))),
                     count);
    }
    QMenu *menu() const { return menuOf(gallery()); }
    RibbonGalleryPopup *popup() const { return popupOf(gallery()); }
    bool hasScrollBar() const { return popup()->verticalScrollBar()->isVisible(); }
    /// Gives the tile at \a index of the strip the focus.
    [[nodiscard]] bool focusTile(int index) const
    {
        RibbonGalleryItem *tile = tilesOf(gallery()).at(index);
        if (!QTest::qWaitFor([tile] { return tile->isVisible(); }))
            return false;
        tile->setFocus();
        return tile->hasFocus();
    }
};

void addDirections()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

} // namespace

class tst_RibbonGalleryPopupOpening : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void coversTheStrip_data() { addDirections(); }
    void coversTheStrip();
    void isAsHighAsAllGroups_data();
    void isAsHighAsAllGroups();
    void endsAboveTheEdgeOfTheScreen_data();
    void endsAboveTheEdgeOfTheScreen();
    void scrollBarStandsBesideTheStrip_data() { addDirections(); }
    void scrollBarStandsBesideTheStrip();
    void opensScrolledToTheTop();
    void widthFollowsTheStrip();

    void shrinksToWhatIsFound();
    void shrunkenPopupNeedsNoScrollBar_data() { addDirections(); }
    void shrunkenPopupNeedsNoScrollBar();
    void favouritesAreSearchedWhereCollectingIsAllowed_data();
    void favouritesAreSearchedWhereCollectingIsAllowed();
    void growsWithTheFavourites_data() { addDirections(); }
    void growsWithTheFavourites();
    void growsOnlyToTheEdgeOfTheScreen();
    void shrinksWhenActionsAreDeleted();
    void changesWhileItIsClosedOpenNothing();

    void downKeyOpensItFromTheStrip();
    void escapeGivesTheFocusBack_data();
    void escapeGivesTheFocusBack();
    void chosenTileGivesTheFocusBack();
    void closeButtonGivesTheFocusBack();
    void focusFollowsItsActionBehindThePopup();
    void focusStaysInTheStripThatFollows();
    void typingReachesOnlyTheSearch();

    void closesBeforeTheActionIsReported_data();
    void closesBeforeTheActionIsReported();
    void closedPopupIsNoneToClose();
    void actionAddedTwiceIsReportedTwiceAfterClosing();
};

void tst_RibbonGalleryPopupOpening::coversTheStrip()
{
    QFETCH(const Qt::LayoutDirection, direction);
    OpeningWindow window(direction);
    window.addGroups({3, 4});
    QVERIFY(window.showAlone());
    QTRY_COMPARE(window.gallery()->width(), StripWidth);
    QVERIFY(!window.menu()->isVisible());
    QVERIFY(window.openPopup());
    const int height = SearchRow + FirstRow + FirstRow + OtherRow;
    // The menu has a line of 1 px around; its leading top corner is that of the strip.
    const int left = direction == Qt::LeftToRight ? 0 : -2;
    QCOMPARE(window.menu()->geometry(), QRect(window.gallery()->mapToGlobal(QPoint(left, 0)),
                                              QSize(StripWidth + 2, height + 2)));
    QCOMPARE(window.popup()->geometry(), QRect(1, 1, StripWidth, height));
    QCOMPARE(window.popup()->widget()->size(), QSize(StripWidth, height));
    QVERIFY(!window.hasScrollBar());
    QVERIFY(!buttonOf(window.gallery())->isDown());
    window.menu()->close();
}

void tst_RibbonGalleryPopupOpening::isAsHighAsAllGroups_data()
{
    QTest::addColumn<int>("displayCount");
    QTest::addColumn<QList<int>>("counts");
    QTest::addColumn<int>("favourites");
    QTest::addColumn<int>("height");
    QTest::newRow("no groups") << 3 << QList<int>() << 0 << 62;
    QTest::newRow("empty group") << 3 << QList<int>{0} << 0 << 130;
    QTest::newRow("one tile") << 3 << QList<int>{1} << 0 << 130;
    QTest::newRow("full row") << 3 << QList<int>{3} << 0 << 130;
    QTest::newRow("second row") << 3 << QList<int>{4} << 0 << 204;
    QTest::newRow("third row") << 3 << QList<int>{7} << 0 << 278;
    QTest::newRow("two groups") << 3 << QList<int>{1, 3} << 0 << 228;
    QTest::newRow("favourite") << 3 << QList<int>{3} << 1 << 228;
    QTest::newRow("two rows of favourites") << 6 << QList<int>{2} << 7 << 302;
    QTest::newRow("one in a row") << 1 << QList<int>{3} << 0 << 278;
    QTest::newRow("none in a row") << 0 << QList<int>{2} << 0 << 204;
    QTest::newRow("none in a row, empty group") << 0 << QList<int>{0} << 0 << 130;
    QTest::newRow("negative") << -4 << QList<int>{2} << 0 << 204;
}

void tst_RibbonGalleryPopupOpening::isAsHighAsAllGroups()
{
    QFETCH(const int, displayCount);
    QFETCH(const QList<int>, counts);
    QFETCH(const int, favourites);
    QFETCH(const int, height);
    OpeningWindow window;
    window.gallery()->setDispalyCount(displayCount);
    window.gallery()->setCollectEnabled(true);
    window.addGroups(counts);
    for (int i = 0; i < favourites; ++i)
        window.gallery()->setItemCollected(0, 0, true);
    QVERIFY(window.showAlone());
    QVERIFY(window.openPopup());
    QCOMPARE(window.popup()->height(), height);
    QCOMPARE(window.menu()->height(), height + 2);
    window.menu()->close();
}

void tst_RibbonGalleryPopupOpening::endsAboveTheEdgeOfTheScreen_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("hasScrollBar");
    QTest::newRow("more than enough") << 229 << 228 << false;
    QTest::newRow("exactly enough") << 228 << 228 << false;
    QTest::newRow("a little too small") << 227 << 227 << true;
    QTest::newRow("small") << 150 << 150 << true;
    QTest::newRow("nearly nothing") << 1 << 1 << true;
    QTest::newRow("nothing") << 0 << 0 << true;
    QTest::newRow("off the screen") << -40 << 0 << true;
}

void tst_RibbonGalleryPopupOpening::endsAboveTheEdgeOfTheScreen()
{
    QFETCH(const int, room);
    QFETCH(const int, height);
    QFETCH(const bool, hasScrollBar);
    OpeningWindow window;
    window.addGroups({3, 3});
    QVERIFY(window.showAlone());
    QTRY_COMPARE(window.gallery()->width(), StripWidth);
    window.leaveRoom(room);
    const QPoint corner = window.gallery()->mapToGlobal(QPoint(0, 0));
    QCOMPARE(QGuiApplication::primaryScreen()->geometry().height() - 30 - corner.y(), room);
    buttonOf(window.gallery())->click();
    const int width = StripWidth + (hasScrollBar ? ScrollBar : 0);
    QCOMPARE(window.popup()->size(), QSize(width, height));
    QCOMPARE(window.menu()->geometry(), QRect(corner, QSize(width + 2, height + 2)));
    window.menu()->close();
}

void tst_RibbonGalleryPopupOpening::scrollBarStandsBesideTheStrip()
{
    QFETCH(const Qt::LayoutDirection, direction);
    OpeningWindow window(direction);
    window.addGroups({3, 3, 3});
    QVERIFY(window.showAlone());
    QTRY_COMPARE(window.gallery()->width(), StripWidth);
    window.leaveRoom(150);
    QVERIFY(window.openPopup());
    const bool isLeftToRight = direction == Qt::LeftToRight;
    QCOMPARE(window.menu()->geometry(),
             QRect(window.gallery()->mapToGlobal(QPoint(isLeftToRight ? 0 : -19, 0)),
                   QSize(StripWidth + ScrollBar + 2, 152)));
    QVERIFY(window.hasScrollBar());
    const QScrollBar *bar = window.popup()->verticalScrollBar();
    const int left = isLeftToRight ? StripWidth : 0;
    QCOMPARE(onScreen(bar),
             QRect(window.popup()->mapToGlobal(QPoint(left, 0)), QSize(ScrollBar, 150)));
    QCOMPARE(window.popup()->widget()->size(), QSize(StripWidth, SearchRow + 3 * FirstRow));
    window.menu()->close();
}

void tst_RibbonGalleryPopupOpening::opensScrolledToTheTop()
{
    OpeningWindow window;
    window.addGroups({3, 3, 3});
    QVERIFY(window.showAlone());
    window.leaveRoom(150);
    QVERIFY(window.openPopup());
    QScrollBar *bar = window.popup()->verticalScrollBar();
    bar->setValue(100);
    QCOMPARE(bar->value(), 100);
    window.menu()->close();
    buttonOf(window.gallery())->click();
    QVERIFY(window.menu()->isVisible());
    QCOMPARE(bar->value(), 0);
    window.menu()->close();
}

void tst_RibbonGalleryPopupOpening::widthFollowsTheStrip()
{
    OpeningWindow window;
    window.addGroups({3});
    QVERIFY(window.showAlone());
    QTRY_COMPARE(window.gallery()->width(), StripWidth);
    window.gallery()->setDispalyCount(2);
    window.showAgain();
    QTRY_COMPARE(window.gallery()->width(), StripWidth - 90);
    QVERIFY(window.openPopup());
    QCOMPARE(window.popup()->width(), StripWidth - 90);
    QCOMPARE(window.menu()->width(), StripWidth - 90 + 2);
    window.menu()->close();
}

void tst_RibbonGalleryPopupOpening::shrinksToWhatIsFound()
{
    OpeningWindow window;
    window.addGroups({3, 3});
    QVERIFY(window.showAlone());
    QVERIFY(window.openPopup());
    const QPoint corner = window.menu()->pos();
    struct Step
    {
        QString text;
        int height;
    };
    for (const Step &step : {Step{u"a"_s, 130}, Step{u"ax"_s, 62}, Step{u""_s, 228}}) {
        searchOf(window.gallery())->setText(step.text);
        QCOMPARE(window.popup()->size(), QSize(StripWidth, step.height));
        QCOMPARE(window.menu()->geometry(), QRect(corner, QSize(StripWidth + 2, step.height + 2)));
    }
    window.menu()->close();
}

void tst_RibbonGalleryPopupOpening::shrunkenPopupNeedsNoScrollBar()
{
    QFETCH(const Qt::LayoutDirection, direction);
    OpeningWindow window(direction);
    window.addGroups({3, 3});
    QVERIFY(window.showAlone());
    window.leaveRoom(150);
    QVERIFY(window.openPopup());
    const bool isLeftToRight = direction == Qt::LeftToRight;
    const QPoint corner = window.gallery()->mapToGlobal(QPoint(0, 0));
    searchOf(window.gallery())->setText(u"b"_s);
    QCOMPARE(window.popup()->size(), QSize(StripWidth, 130));
    QCOMPARE(window.menu()->geometry(),
             QRect(corner - QPoint(isLeftToRight ? 0 : 2, 0), QSize(StripWidth + 2, 132)));
    QVERIFY(!window.hasScrollBar());
    searchOf(window.gallery())->clear();
    QCOMPARE(window.popup()->size(), QSize(StripWidth + ScrollBar, 150));
    QCOMPARE(window.menu()->geometry(), QRect(corner - QPoint(isLeftToRight ? 0 : 19, 0),
                                              QSize(StripWidth + ScrollBar + 2, 152)));
    QTRY_VERIFY(window.hasScrollBar());
    window.menu()->close();
}

void tst_RibbonGalleryPopupOpening::favouritesAreSearchedWhereCollectingIsAllowed_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::newRow("allowed") << true;
    QTest::newRow("not any more") << false;
}

void tst_RibbonGalleryPopupOpening::favouritesAreSearchedWhereCollectingIsAllowed()
{
    QFETCH(const bool, enabled);
    OpeningWindow window;
    window.gallery()->setCollectEnabled(true);
    window.addGroups({1, 1});
    window.gallery()->setItemCollected(0, 0, true);
    window.gallery()->setCollectEnabled(enabled);
    QVERIFY(window.showAlone());
    QVERIFY(window.openPopup());
    searchOf(window.gallery())->setText(u"b"_s);
    QCOMPARE(favouritesOf(window.gallery())->isVisible(), !enabled);
    QCOMPARE(window.popup()->height(), enabled ? 130 : 228);
    window.menu()->close();
}

void tst_RibbonGalleryPopupOpening::growsWithTheFavourites()
{
    QFETCH(const Qt::LayoutDirection, direction);
    OpeningWindow window(direction);
    window.gallery()->setCollectEnabled(true);
    window.addGroups({3});
    QVERIFY(window.showAlone());
    QVERIFY(window.openPopup());
    QCOMPARE(window.popup()->height(), 130);
    RibbonGalleryItem *tile = groupsOf(window.gallery()).at(0)->item(1);
    Input::move(tile);
    Input::click(starOf(tile));
    QCOMPARE(window.popup()->height(), 228);
    QCOMPARE(window.menu()->height(), 230);
    QTRY_VERIFY(favouritesOf(window.gallery())->item(0)->isVisible());
    Input::click(starOf(favouritesOf(window.gallery())->item(0)));
    QCOMPARE(window.popup()->height(), 130);
    QCOMPARE(window.menu()->height(), 132);
    QVERIFY(!tile->isCollected());
    window.menu()->close();
}

void tst_RibbonGalleryPopupOpening::growsOnlyToTheEdgeOfTheScreen()
{
    OpeningWindow window;
    window.gallery()->setCollectEnabled(true);
    window.addGroups({3});
    QVERIFY(window.showAlone());
    window.leaveRoom(200);
    QVERIFY(window.openPopup());
    QCOMPARE(window.popup()->size(), QSize(StripWidth, 130));
    window.gallery()->setItemCollected(0, 0, true);
    QCOMPARE(window.popup()->size(), QSize(StripWidth + ScrollBar, 200));
    QCOMPARE(window.menu()->size(), QSize(StripWidth + ScrollBar + 2, 202));
    QCOMPARE(window.popup()->widget()->size(), QSize(StripWidth, 228));
    window.menu()->close();
}

void tst_RibbonGalleryPopupOpening::shrinksWhenActionsAreDeleted()
{
    OpeningWindow window;
    window.addGroups({4});
    QVERIFY(window.showAlone());
    QVERIFY(window.openPopup());
    QCOMPARE(window.popup()->height(), 204);
    delete window.action(0, 1);
    QCOMPARE(window.popup()->height(), 130);
    QCOMPARE(textsOf(groupsOf(window.gallery()).at(0)), QStringList({u"a0"_s, u"a2"_s, u"a3"_s}));
    const RibbonGalleryItem *third = groupsOf(window.gallery()).at(0)->item(2);
    QTRY_COMPARE(third->x(), 3 + 2 * 90);
    window.menu()->close();
}

void tst_RibbonGalleryPopupOpening::changesWhileItIsClosedOpenNothing()
{
    OpeningWindow window;
    window.gallery()->setCollectEnabled(true);
    window.addGroups({3});
    window.gallery()->setItemCollected(0, 0, true);
    QVERIFY(window.showAlone());
    window.gallery()->setItemCollected(0, 1, true);
    delete window.action(0, 2);
    QCoreApplication::processEvents();
    QVERIFY(!window.menu()->isVisible());
    QVERIFY(!window.popup()->isVisible());
}

void tst_RibbonGalleryPopupOpening::downKeyOpensItFromTheStrip()
{
    OpeningWindow window;
    window.addGroups({3, 3});
    QVERIFY(window.showAlone());
    QVERIFY(window.focusTile(1));
    pressKey(window, Qt::Key_Down);
    QVERIFY(window.menu()->isVisible());
    QCOMPARE(window.menu()->pos(), window.gallery()->mapToGlobal(QPoint(0, 0)));
    QVERIFY(searchOf(window.gallery())->hasFocus());
    window.menu()->close();
    QCOMPARE(focusedText(), u"a1"_s);
}

void tst_RibbonGalleryPopupOpening::escapeGivesTheFocusBack_data()
{
    QTest::addColumn<bool>("fromStrip");
    QTest::newRow("to the strip") << true;
    QTest::newRow("to the field") << false;
}

void tst_RibbonGalleryPopupOpening::escapeGivesTheFocusBack()
{
    QFETCH(const bool, fromStrip);
    OpeningWindow window;
    window.addGroups({3});
    QVERIFY(window.showAlone());
    if (fromStrip)
        QVERIFY(window.focusTile(1));
    const QPointer<QWidget> focused = QApplication::focusWidget();
    QVERIFY(window.openPopup());
    QVERIFY(searchOf(window.gallery())->hasFocus());
    pressKey(window, Qt::Key_Escape);
    QVERIFY(!window.menu()->isVisible());
    QCOMPARE(QApplication::focusWidget(), focused.data());
    QCoreApplication::processEvents();
    QCOMPARE(QApplication::focusWidget(), focused.data());
}

void tst_RibbonGalleryPopupOpening::chosenTileGivesTheFocusBack()
{
    OpeningWindow window;
    window.addGroups({3, 3});
    QVERIFY(window.showAlone());
    QVERIFY(window.openPopup());
    const QSignalSpy spy(window.gallery(), &RibbonGallery::signalTriggered);
    Input::click(groupsOf(window.gallery()).at(1)->item(2));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).value<QAction *>(), window.action(1, 2));
    QVERIFY(!window.menu()->isVisible());
    QVERIFY(window.field()->hasFocus());
}

void tst_RibbonGalleryPopupOpening::closeButtonGivesTheFocusBack()
{
    OpeningWindow window;
    window.addGroups({3});
    QVERIFY(window.showAlone());
    QVERIFY(window.openPopup());
    const auto buttons = window.popup()->widget()->findChildren<QPushButton *>(
        QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(buttons.size(), 1);
    Input::click(buttons.at(0));
    QVERIFY(!window.menu()->isVisible());
    QVERIFY(window.field()->hasFocus());
}

void tst_RibbonGalleryPopupOpening::focusFollowsItsActionBehindThePopup()
{
    OpeningWindow window;
    window.addGroups({2, 1});
    QVERIFY(window.showAlone());
    QVERIFY(window.focusTile(1));
    pressKey(window, Qt::Key_Down);
    auto *last = groupsOf(window.gallery()).at(1);
    Q_EMIT last->signalPositionChange(RibbonGalleryGroup::Top);
    QCOMPARE(stripOf(window.gallery()), QStringList({u"b0"_s, u"a0"_s, u"a1"_s}));
    QVERIFY(searchOf(window.gallery())->hasFocus());
    pressKey(window, Qt::Key_Escape);
    QCOMPARE(focusedText(), u"a1"_s);
}

void tst_RibbonGalleryPopupOpening::focusStaysInTheStripThatFollows()
{
    OpeningWindow window;
    window.gallery()->setCollectEnabled(true);
    window.addGroups({4});
    QVERIFY(window.showAlone());
    QVERIFY(window.focusTile(2));
    pressKey(window, Qt::Key_Down);
    window.gallery()->setItemCollected(0, 3, true);
    pressKey(window, Qt::Key_Escape);
    QTRY_COMPARE(stripOf(window.gallery()), QStringList({u"a3"_s, u"a0"_s, u"a1"_s}));
    QCOMPARE(focusedText(), u"a1"_s);
}

void tst_RibbonGalleryPopupOpening::typingReachesOnlyTheSearch()
{
    OpeningWindow window;
    window.addGroups({3});
    QVERIFY(window.showAlone());
    QVERIFY(window.openPopup());
    pressKey(window, Qt::Key_A);
    QCOMPARE(searchOf(window.gallery())->text(), u"a"_s);
    QCOMPARE(window.field()->text(), QString());
    window.menu()->close();
    QCOMPARE(searchOf(window.gallery())->text(), QString());
    pressKey(window, Qt::Key_B);
    QCOMPARE(window.field()->text(), u"b"_s);
}

void tst_RibbonGalleryPopupOpening::closesBeforeTheActionIsReported_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("mouse") << u"mouse"_s;
    QTest::newRow("Return") << u"Return"_s;
    QTest::newRow("elsewhere") << u"elsewhere"_s;
}

void tst_RibbonGalleryPopupOpening::closesBeforeTheActionIsReported()
{
    QFETCH(const QString, way);
    OpeningWindow window;
    window.addGroups({3, 3});
    QVERIFY(window.showAlone());
    QVERIFY(window.openPopup());
    QStringList log;
    connect(window.menu(), &QMenu::aboutToHide, this, [&log] { log.append(u"closed"_s); });
    connect(window.gallery(), &RibbonGallery::signalTriggered, this,
            [&log, &window](const QAction *action) {
                log.append(action->text());
                log.append(window.menu()->isVisible() ? u"open"_s : u"not open"_s);
            });
    if (way == "mouse"_L1) {
        Input::click(groupsOf(window.gallery()).at(1)->item(0));
    } else if (way == "Return"_L1) {
        pressKey(window, Qt::Key_B);
        pressKey(window, Qt::Key_Return);
    } else {
        window.action(1, 0)->trigger();
    }
    QCOMPARE(log, QStringList({u"closed"_s, u"b0"_s, u"not open"_s}));
}

void tst_RibbonGalleryPopupOpening::closedPopupIsNoneToClose()
{
    OpeningWindow window;
    window.addGroups({3});
    QVERIFY(window.showAlone());
    const QSignalSpy closed(window.menu(), &QMenu::aboutToHide);
    const QSignalSpy reported(window.gallery(), &RibbonGallery::signalTriggered);
    window.action(0, 0)->trigger();
    QCOMPARE(closed.size(), 0);
    QCOMPARE(reported.size(), 1);
}

void tst_RibbonGalleryPopupOpening::actionAddedTwiceIsReportedTwiceAfterClosing()
{
    OpeningWindow window;
    window.addGroups({2});
    window.gallery()->addItem(0, window.action(0, 1));
    QVERIFY(window.showAlone());
    QVERIFY(window.openPopup());
    QStringList log;
    connect(window.menu(), &QMenu::aboutToHide, this, [&log] { log.append(u"closed"_s); });
    connect(window.gallery(), &RibbonGallery::signalTriggered, this,
            [&log](const QAction *action) { log.append(action->text()); });
    Input::click(groupsOf(window.gallery()).at(0)->item(2));
    QCOMPARE(log, QStringList({u"closed"_s, u"a1"_s, u"a1"_s}));
}

QTEST_MAIN(tst_RibbonGalleryPopupOpening)
#include "tst_ribbongallerypopupopening.moc"
