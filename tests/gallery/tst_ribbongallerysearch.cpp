// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/PopupParts.h"

#include "support/TestCase.h"

#include <QEvent>
#include <QPointer>
#include <QSignalSpy>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;
using namespace PopupParts;
using namespace VornFrame;

namespace {

/// Four groups: "shapes", "lines", an empty one, and "charts".
class SearchWindow : public PopupWindow
{
public:
    SearchWindow()
    {
        addGroup(u"shapes"_s, {u"Circle"_s, u"Square"_s, u"Small circle"_s});
        addGroup(u"lines"_s, {u"Dashed line"_s, u"Arc"_s});
        addGroup(u"empty"_s, {});
        addGroup(u"charts"_s, {u"Pie (half)"_s, u"Bars"_s, u"Área"_s});
    }

    /// The tiles that are shown, with a bar after each group that is.
    QString shown() const
    {
        QString all;
        for (int i = 0; i < parts().titles().size(); ++i) {
            const RibbonGalleryGroup *group = parts().group(i);
            if (group->isVisible())
                all += shownTexts(group).join(u',') + u'|';
        }
        return all;
    }
    void search(const QString &text) const { parts().searchEdit()->setText(text); }
    bool hasLine() const { return parts().noMatchLabel()->isVisible(); }
    int height() const { return parts().content()->height(); }
};

/// When a widget was placed, and when it was painted.
class PlacingLog : public QObject
{
public:
    explicit PlacingLog(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Move || event->type() == QEvent::Resize)
            entries.append(u"placed"_s);
        if (event->type() == QEvent::Paint)
            entries.append(u"painted"_s);
        return QObject::eventFilter(watched, event);
    }

    QStringList entries;
};

/// Does not let itself be closed.
class StubbornWindow : public PopupWindow
{
protected:
    void closeEvent(QCloseEvent *event) override { event->ignore(); }
};

} // namespace

class tst_RibbonGallerySearch : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textIsSearchedInTheTiles_data();
    void textIsSearchedInTheTiles();
    void typingSearchesWithEachKey();
    void eachTextStartsFromAllTiles();
    void theTextOfTheTileCounts();
    void titlesAreNotSearched();
    void tilesHiddenByHandAreShown();

    void aGroupWithoutTilesIsHidden();
    void withoutGroupsNothingMatches_data();
    void withoutGroupsNothingMatches();
    void anEmptyGroupAloneDoesNotMatch();
    void theLineStandsBelowTheSearchRow();
    void theSearchIsTheSameWithCollecting_data();
    void theSearchIsTheSameWithCollecting();

    void theHeightIsToldOnceWhenAllHasSettled();
    void theSameTextIsNotSearchedAgain();
    void tilesArePlacedOnceAndThenPainted();
    void groupsShrinkToWhatTheyShow();
    void aMovedGroupKeepsWhatItShows();
    void aSearchInAClosedPopupHolds();
    void collectingCanBeChangedDuringASearch();

    void hidingClearsTheSearch();
    void hidingTheWindowClearsTheSearchToo();
    void hidingTellsLaterAndOnce();
    void thePopupMayBeDeletedBeforeItTells();
    void reopeningShowsEverything();

    void theCloseButtonClosesTheParent();
    void theCloseButtonClosesTheParentOnly();
    void theParentMayRefuseToClose();
    void withoutAParentTheCloseButtonDoesNothing();
};

void tst_RibbonGallerySearch::textIsSearchedInTheTiles_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("groups");

    QTest::newRow("the start of a text") << u"Circ"_s << u"Circle|"_s << 1;
    QTest::newRow("within a text") << u"rc"_s << u"Circle,Small circle|Arc|"_s << 2;
    QTest::newRow("a whole text") << u"Square"_s << u"Square|"_s << 1;
    QTest::newRow("the end of a text") << u"s"_s << u"Dashed line|Bars|"_s << 2;
    QTest::newRow("other case") << u"circle"_s << u"Small circle|"_s << 1;
    QTest::newRow("all in capitals") << u"CIRCLE"_s << QString() << 0;
    QTest::newRow("two words") << u"d l"_s << u"Dashed line|"_s << 1;
    QTest::newRow("a blank") << u" "_s << u"Small circle|Dashed line|Pie (half)|"_s << 3;
    QTest::newRow("blanks around") << u" Arc "_s << QString() << 0;
    QTest::newRow("signs of patterns") << u".*"_s << QString() << 0;
    QTest::newRow("brackets") << u"(h"_s << u"Pie (half)|"_s << 1;
    QTest::newRow("beyond ASCII") << u"Á"_s << u"Área|"_s << 1;
    QTest::newRow("in small letters") << u"á"_s << QString() << 0;
    QTest::newRow("nowhere") << u"xyz"_s << QString() << 0;
    QTest::newRow("longer than all texts") << QString(999, u'C') << QString() << 0;
}

void tst_RibbonGallerySearch::textIsSearchedInTheTiles()
{
    QFETCH(const QString, text);
    QFETCH(const QString, shown);
    QFETCH(const int, groups);
    SearchWindow window;
    QVERIFY(Input::show(&window));
    QVERIFY(!window.hasLine());
    window.search(text);
    QCOMPARE(window.shown(), shown);
    QCOMPARE(window.hasLine(), groups == 0);
    QCOMPARE(window.height(), groups == 0 ? NothingShown : SearchRow + groups * FirstRow);
    window.search(QString());
    QCOMPARE(window.shown(), u"Circle,Square,Small circle|Dashed line,Arc|Pie (half),Bars,Área|"_s);
    QVERIFY(!window.hasLine());
}

void tst_RibbonGallerySearch::typingSearchesWithEachKey()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    QLineEdit *edit = window.parts().searchEdit();
    Input::click(edit);
    QVERIFY(edit->hasFocus());
    QTest::keyClick(window.windowHandle(), 'B');
    QCOMPARE(window.shown(), u"Bars|"_s);
    QTest::keyClick(window.windowHandle(), 'i');
    QCOMPARE(window.shown(), QString());
    QVERIFY(window.hasLine());
    QTest::keyClick(window.windowHandle(), Qt::Key_Backspace);
    QCOMPARE(window.shown(), u"Bars|"_s);
    QVERIFY(!window.hasLine());
}

void tst_RibbonGallerySearch::eachTextStartsFromAllTiles()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    window.search(u"xyz"_s);
    window.search(u"Arc"_s);
    QCOMPARE(window.shown(), u"Arc|"_s);
    window.search(u"Bars"_s);
    QCOMPARE(window.shown(), u"Bars|"_s);
    QCOMPARE(window.height(), SearchRow + FirstRow);
    QTRY_COMPARE(window.parts().tile(3, 1)->pos(), QPoint(3, 5));
}

void tst_RibbonGallerySearch::theTextOfTheTileCounts()
{
    PopupWindow window;
    window.addGroup(u"one"_s, 0);
    QAction *bold = window.addItem(0, u"&Bold..."_s);
    QVERIFY(Input::show(&window));
    const QLineEdit *edit = window.parts().searchEdit();
    // What a person reads there, without the mark of the shortcut.
    window.parts().searchEdit()->setText(u"Bold"_s);
    QVERIFY(window.parts().tile(0, 0)->isVisible());
    window.parts().searchEdit()->setText(u"&"_s);
    QVERIFY(!window.parts().tile(0, 0)->isVisible());
    bold->setText(u"Bold && &italic"_s);
    window.parts().searchEdit()->setText(u"Bold & italic"_s);
    QVERIFY(window.parts().tile(0, 0)->isVisible());
    bold->setIconText(u"Fat & black"_s);
    window.parts().searchEdit()->setText(u"Fat"_s);
    QVERIFY(window.parts().tile(0, 0)->isVisible());
    QCOMPARE(edit->text(), u"Fat"_s);
}

void tst_RibbonGallerySearch::titlesAreNotSearched()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    window.search(u"shapes"_s);
    QCOMPARE(window.shown(), QString());
    QVERIFY(window.hasLine());
}

void tst_RibbonGallerySearch::tilesHiddenByHandAreShown()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    window.parts().group(1)->setItemVisible(1, false);
    window.parts().group(0)->hide();
    window.search(u"c"_s);
    QCOMPARE(window.shown(), u"Circle,Small circle|Arc|"_s);
}

void tst_RibbonGallerySearch::aGroupWithoutTilesIsHidden()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    QVERIFY(window.parts().group(2)->isVisible());
    QCOMPARE(window.height(), SearchRow + 4 * FirstRow);
    window.search(u"c"_s);
    QVERIFY(!window.parts().group(2)->isVisible());
    window.search(QString());
    // The empty text is in every tile, but there is none.
    QVERIFY(!window.parts().group(2)->isVisible());
    QCOMPARE(window.height(), SearchRow + 3 * FirstRow);
    QCOMPARE(window.popup()->contentHeight(true), SearchRow + 4 * FirstRow);
}

void tst_RibbonGallerySearch::withoutGroupsNothingMatches_data()
{
    QTest::addColumn<bool>("collectEnabled");

    QTest::newRow("collecting off") << false;
    QTest::newRow("collecting on") << true;
}

void tst_RibbonGallerySearch::withoutGroupsNothingMatches()
{
    QFETCH(const bool, collectEnabled);
    PopupWindow window;
    window.popup()->setCollectEnabled(collectEnabled);
    QVERIFY(Input::show(&window));
    const QLabel *label = window.parts().noMatchLabel();
    QVERIFY(!label->isVisible());
    window.parts().searchEdit()->setText(u"a"_s);
    QVERIFY(label->isVisible());
    window.parts().searchEdit()->clear();
    QVERIFY(label->isVisible());
    QCOMPARE(window.parts().content()->height(), NothingShown);
    QVERIFY(!window.parts().favourites()->isVisible());
}

void tst_RibbonGallerySearch::anEmptyGroupAloneDoesNotMatch()
{
    PopupWindow window;
    window.addGroup(u"empty"_s, 0);
    QVERIFY(Input::show(&window));
    QCOMPARE(window.parts().content()->height(), SearchRow + FirstRow);
    window.parts().searchEdit()->setText(u"a"_s);
    QVERIFY(window.parts().noMatchLabel()->isVisible());
    window.parts().searchEdit()->clear();
    QVERIFY(window.parts().noMatchLabel()->isVisible());
    QCOMPARE(window.parts().content()->height(), NothingShown);
}

void tst_RibbonGallerySearch::theLineStandsBelowTheSearchRow()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    window.search(u"xyz"_s);
    const QLabel *label = window.parts().noMatchLabel();
    QTRY_COMPARE(label->geometry(), QRect(0, window.parts().searchRow()->geometry().bottom() + 1,
                                          window.parts().content()->width(), 30));
    QCOMPARE(label->text(), u"No items match your search criteria."_s);
}

void tst_RibbonGallerySearch::theSearchIsTheSameWithCollecting_data()
{
    withoutGroupsNothingMatches_data();
}

void tst_RibbonGallerySearch::theSearchIsTheSameWithCollecting()
{
    QFETCH(const bool, collectEnabled);
    SearchWindow window;
    window.popup()->setCollectEnabled(collectEnabled);
    QVERIFY(Input::show(&window));
    const QStringList titles = window.parts().titles();
    window.search(u"rc"_s);
    QCOMPARE(window.shown(), u"Circle,Small circle|Arc|"_s);
    QVERIFY(!window.parts().favourites()->isVisible());
    QCOMPARE(window.height(), SearchRow + 2 * FirstRow);
    // The favourites are in the list of groups only meanwhile.
    QCOMPARE(window.popup()->indexOfGroup(u"collected"_s), -1);
    QCOMPARE(window.popup()->indexOfGroup(u"shapes"_s), 0);
    QCOMPARE(window.parts().titles(), titles);
    QCOMPARE(window.popup()->contentHeight(true), SearchRow + 4 * FirstRow);
}

void tst_RibbonGallerySearch::theHeightIsToldOnceWhenAllHasSettled()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    QStringList log;
    const auto note = [&window, &log](int height) {
        log.append(
            u"%1 %2%3"_s.arg(height).arg(window.shown(), window.hasLine() ? u"line"_s : QString()));
    };
    QObject context;
    connect(window.popup(), &RibbonGalleryPopup::signalHeightChanged, &context, note);
    const QSignalSpy strip(window.popup(), &RibbonGalleryPopup::signalUpdateDisplayedItems);
    const QSignalSpy updated(window.popup(), &RibbonGalleryPopup::signalGroupUpdated);
    window.search(u"Arc"_s);
    window.search(u"xyz"_s);
    window.search(u"Bars"_s);
    QCOMPARE(log, QStringList({u"130 Arc|"_s, u"62 line"_s, u"130 Bars|"_s}));
    QCOMPARE(strip.size(), 0);
    QCOMPARE(updated.size(), 0);
}

void tst_RibbonGallerySearch::theSameTextIsNotSearchedAgain()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    window.search(u"Arc"_s);
    const QSignalSpy told(window.popup(), &RibbonGalleryPopup::signalHeightChanged);
    window.search(u"Arc"_s);
    QCOMPARE(told.size(), 0);
}

void tst_RibbonGallerySearch::tilesArePlacedOnceAndThenPainted()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    settle(&window);
    QWidget *tile = window.parts().tile(0, 2);
    QCOMPARE(tile->pos(), QPoint(3 + 2 * TileSize.width(), 5));
    const PlacingLog log(tile);
    window.search(u"circle"_s);
    QTRY_VERIFY(log.entries.contains(u"painted"_s));
    QCOMPARE(log.entries, QStringList({u"placed"_s, u"painted"_s}));
    QCOMPARE(tile->pos(), QPoint(3, 5));
    QCOMPARE(window.height(), SearchRow + FirstRow);
}

void tst_RibbonGallerySearch::groupsShrinkToWhatTheyShow()
{
    PopupWindow window;
    window.addGroup(u"t"_s, 14);
    window.addGroup(u"u"_s, 1);
    QVERIFY(Input::show(&window));
    settle(&window);
    const RibbonGalleryGroup *first = window.parts().group(0);
    const int row = TileSize.height();
    QCOMPARE(itemsFrame(first)->height(), 5 + 3 * row + 5);
    window.parts().searchEdit()->setText(u"3"_s);
    QTRY_COMPARE(itemsFrame(first)->height(), 5 + row + 5);
    window.parts().searchEdit()->setText(u"1"_s); // 1, 10, 11, 12, 13
    QTRY_COMPARE(window.parts().tile(0, 13)->pos(), QPoint(3 + 4 * TileSize.width(), 5));
    // The popup reckons with all tiles of a group all the same.
    QCOMPARE(window.parts().content()->height(), SearchRow + FirstRow + 2 * OtherRow);
    window.parts().searchEdit()->clear();
    QTRY_COMPARE(itemsFrame(first)->height(), 5 + 3 * row + 5);
    QTRY_COMPARE(window.parts().group(1)->y(), first->geometry().bottom() + 1);
}

void tst_RibbonGallerySearch::aMovedGroupKeepsWhatItShows()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    window.search(u"rc"_s);
    Q_EMIT window.parts().group(1)->signalPositionChange(RibbonGalleryGroup::Top);
    QCOMPARE(window.shown(), u"Arc|Circle,Small circle|"_s);
    Q_EMIT window.parts().group(3)->signalPositionChange(RibbonGalleryGroup::Top);
    QCOMPARE(window.shown(), u"Arc|Circle,Small circle|"_s);
}

void tst_RibbonGallerySearch::aSearchInAClosedPopupHolds()
{
    SearchWindow window;
    window.search(u"rc"_s);
    QVERIFY(Input::show(&window));
    QCOMPARE(window.shown(), u"Circle,Small circle|Arc|"_s);
    QCOMPARE(window.height(), SearchRow + 2 * FirstRow);
}

void tst_RibbonGallerySearch::collectingCanBeChangedDuringASearch()
{
    SearchWindow window;
    window.parts().tile(0, 1)->setCollected(true);
    window.popup()->setCollectEnabled(true);
    QVERIFY(Input::show(&window));
    window.search(u"Arc"_s);
    QVERIFY(!window.parts().favourites()->isVisible());
    window.popup()->setCollectEnabled(false);
    window.search(u"Ar"_s);
    // From now on the search leaves the favourites as they are.
    QVERIFY(!window.parts().favourites()->isVisible());
    window.popup()->setCollectEnabled(true);
    window.search(u"Sq"_s);
    QVERIFY(window.parts().favourites()->isVisible());
    QCOMPARE(window.height(), 130 + FirstRow);
}

void tst_RibbonGallerySearch::hidingClearsTheSearch()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    window.search(u"xyz"_s);
    window.popup()->hide();
    QCOMPARE(window.parts().searchEdit()->text(), QString());
    QVERIFY(window.parts().noMatchLabel()->isHidden());
    for (const int group : {0, 1, 3}) {
        QVERIFY(!window.parts().group(group)->isHidden());
        QCOMPARE(shownTexts(window.parts().group(group)), texts(window.parts().group(group)));
    }
}

void tst_RibbonGallerySearch::hidingTheWindowClearsTheSearchToo()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    window.search(u"Arc"_s);
    window.close();
    QCOMPARE(window.parts().searchEdit()->text(), QString());
}

void tst_RibbonGallerySearch::hidingTellsLaterAndOnce()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    const QSignalSpy told(window.popup(), &RibbonGalleryPopup::signalUpdateDisplayedItems);
    for (const QString &text : {u"Arc"_s, QString()}) {
        const qsizetype before = told.size();
        window.search(text);
        window.popup()->hide();
        QCOMPARE(told.size(), before);
        QTRY_COMPARE(told.size(), before + 1);
        window.popup()->show();
        QCoreApplication::processEvents();
        QCOMPARE(told.size(), before + 1);
    }
}

void tst_RibbonGallerySearch::thePopupMayBeDeletedBeforeItTells()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    const QSignalSpy told(window.popup(), &RibbonGalleryPopup::signalUpdateDisplayedItems);
    window.popup()->hide();
    delete window.popup();
    QCoreApplication::processEvents();
    QCOMPARE(told.size(), 0);
}

void tst_RibbonGallerySearch::reopeningShowsEverything()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    window.search(u"xyz"_s);
    window.popup()->hide();
    window.popup()->show();
    QCOMPARE(window.shown(), u"Circle,Square,Small circle|Dashed line,Arc|Pie (half),Bars,Área|"_s);
    QVERIFY(!window.hasLine());
    QCOMPARE(window.height(), SearchRow + 3 * FirstRow);
}

void tst_RibbonGallerySearch::theCloseButtonClosesTheParent()
{
    SearchWindow window;
    QVERIFY(Input::show(&window));
    window.search(u"Arc"_s);
    const QSignalSpy told(window.popup(), &RibbonGalleryPopup::signalUpdateDisplayedItems);
    Input::click(window.parts().closeButton());
    QVERIFY(!window.isVisible());
    QVERIFY(!window.popup()->isHidden());
    QCOMPARE(window.parts().searchEdit()->text(), QString());
    QTRY_COMPARE(told.size(), 1);
}

void tst_RibbonGallerySearch::theCloseButtonClosesTheParentOnly()
{
    QWidget window;
    window.resize(600, 300);
    auto *panel = new QWidget(&window);
    panel->resize(500, 300);
    auto *popup = new RibbonGalleryPopup(panel);
    popup->resize(400, 200);
    QVERIFY(Input::show(&window));
    Input::click(Parts(popup).closeButton());
    QVERIFY(!panel->isVisible());
    QVERIFY(window.isVisible());
}

void tst_RibbonGallerySearch::theParentMayRefuseToClose()
{
    StubbornWindow window;
    QVERIFY(Input::show(&window));
    window.parts().searchEdit()->setText(u"a"_s);
    Input::click(window.parts().closeButton());
    QVERIFY(window.isVisible());
    QCOMPARE(window.parts().searchEdit()->text(), u"a"_s);
}

void tst_RibbonGallerySearch::withoutAParentTheCloseButtonDoesNothing()
{
    RibbonGalleryPopup popup(nullptr);
    popup.resize(400, 200);
    QVERIFY(Input::show(&popup));
    Input::click(Parts(&popup).closeButton());
    QVERIFY(popup.isVisible());
}

QTEST_MAIN(tst_RibbonGallerySearch)

#include "tst_ribbongallerysearch.moc"
