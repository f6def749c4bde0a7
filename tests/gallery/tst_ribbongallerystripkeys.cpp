// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/GalleryParts.h"

#include "support/TestCase.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace GalleryParts;
using namespace VornFrame;

namespace {

QString focusedText()
{
    const auto *tile = qobject_cast<RibbonGalleryItem *>(QApplication::focusWidget());
    return tile ? tile->text() : QString();
}

void pressKey(const QWidget &window, Qt::Key key)
{
    QTest::keyClick(window.windowHandle(), key);
}

} // namespace

class tst_RibbonGalleryStripKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void clickedTileIsReported();
    void arrowKeysGoFromTileToTile_data();
    void arrowKeysGoFromTileToTile();
    void arrowKeysPassDisabledTiles();
    void arrowKeysAreNothingOutsideTheStrip();
    void keysTriggerTheFocusedTile_data();
    void keysTriggerTheFocusedTile();
    void otherKeysAreNotTaken();
    void focusStaysOnTheActionWhenTheStripFollows();
    void focusStaysInTheStripWhenItsActionLeaves();
};

void tst_RibbonGalleryStripKeys::clickedTileIsReported()
{
    GalleryWindow window;
    window.addGroup(u"a"_s, 3);
    QVERIFY(window.showAlone());
    const QSignalSpy spy(window.gallery(), &RibbonGallery::signalTriggered);
    RibbonGalleryItem *tile = tilesOf(window.gallery()).at(1);
    QTRY_VERIFY(tile->isVisible());
    Input::click(tile);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).value<QAction *>(), window.action(0, 1));
    QVERIFY(window.field()->hasFocus());
}

void tst_RibbonGalleryStripKeys::arrowKeysGoFromTileToTile_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_RibbonGalleryStripKeys::arrowKeysGoFromTileToTile()
{
    QFETCH(const Qt::LayoutDirection, direction);
    const bool isLeftToRight = direction == Qt::LeftToRight;
    const Qt::Key forward = isLeftToRight ? Qt::Key_Right : Qt::Key_Left;
    const Qt::Key backward = isLeftToRight ? Qt::Key_Left : Qt::Key_Right;
    GalleryWindow window(direction);
    window.gallery()->setDispalyCount(4);
    window.addGroup(u"a"_s, 3);
    QVERIFY(window.showAlone());
    QTRY_VERIFY(tilesOf(window.gallery()).at(3)->isVisible());
    tilesOf(window.gallery()).at(0)->setFocus();
    QStringList visited;
    // Beyond the ends there is nothing: blank tiles are no stops.
    for (const Qt::Key key : {backward, forward, forward, forward, backward}) {
        pressKey(window, key);
        visited.append(focusedText());
    }
    QCOMPARE(visited, QStringList({u"a0"_s, u"a1"_s, u"a2"_s, u"a2"_s, u"a1"_s}));
}

void tst_RibbonGalleryStripKeys::arrowKeysPassDisabledTiles()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(5);
    window.addGroup(u"a"_s, 5);
    for (const int i : {1, 2, 4})
        window.action(0, i)->setEnabled(false);
    QVERIFY(window.showAlone());
    QTRY_VERIFY(tilesOf(window.gallery()).at(4)->isVisible());
    tilesOf(window.gallery()).at(0)->setFocus();
    pressKey(window, Qt::Key_Right);
    QCOMPARE(focusedText(), u"a3"_s);
    pressKey(window, Qt::Key_Right);
    QCOMPARE(focusedText(), u"a3"_s);
    pressKey(window, Qt::Key_Left);
    QCOMPARE(focusedText(), u"a0"_s);
}

void tst_RibbonGalleryStripKeys::arrowKeysAreNothingOutsideTheStrip()
{
    GalleryWindow window;
    window.addGroup(u"a"_s, 3);
    QVERIFY(window.showAlone());
    QTest::keyClick(window.gallery(), Qt::Key_Right);
    QVERIFY(window.field()->hasFocus());
}

void tst_RibbonGalleryStripKeys::keysTriggerTheFocusedTile_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Space") << Qt::Key_Space;
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

void tst_RibbonGalleryStripKeys::keysTriggerTheFocusedTile()
{
    QFETCH(const Qt::Key, key);
    GalleryWindow window;
    window.addGroup(u"a"_s, 3);
    QVERIFY(window.showAlone());
    QTRY_VERIFY(tilesOf(window.gallery()).at(1)->isVisible());
    const QSignalSpy spy(window.gallery(), &RibbonGallery::signalTriggered);
    tilesOf(window.gallery()).at(1)->setFocus();
    pressKey(window, key);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).value<QAction *>(), window.action(0, 1));
    QCOMPARE(focusedText(), u"a1"_s);
}

void tst_RibbonGalleryStripKeys::otherKeysAreNotTaken()
{
    GalleryWindow window;
    window.addGroup(u"a"_s, 3);
    QVERIFY(window.showAlone());
    const QSignalSpy spy(window.gallery(), &RibbonGallery::signalTriggered);
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_A, Qt::Key_Escape}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(window.gallery(), &event);
        QVERIFY(!event.isAccepted());
    }
    QCOMPARE(spy.size(), 0);
    QVERIFY(!menuOf(window.gallery())->isVisible());
}

void tst_RibbonGalleryStripKeys::focusStaysOnTheActionWhenTheStripFollows()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(3);
    window.addGroup(u"a"_s, 2);
    window.addGroup(u"b"_s, 1);
    QVERIFY(window.showAlone());
    QTRY_VERIFY(tilesOf(window.gallery()).at(1)->isVisible());
    tilesOf(window.gallery()).at(1)->setFocus();
    auto *last = groupsOf(window.gallery()).at(1);
    Q_EMIT last->signalPositionChange(RibbonGalleryGroup::Top);
    QCOMPARE(stripOf(window.gallery()), QStringList({u"b0"_s, u"a0"_s, u"a1"_s}));
    QCOMPARE(focusedText(), u"a1"_s);
    QTRY_VERIFY(tilesOf(window.gallery()).at(2)->isVisible());
    pressKey(window, Qt::Key_Left);
    QCOMPARE(focusedText(), u"a0"_s);
}

void tst_RibbonGalleryStripKeys::focusStaysInTheStripWhenItsActionLeaves()
{
    GalleryWindow window;
    window.gallery()->setDispalyCount(2);
    window.addGroup(u"a"_s, 2);
    window.addGroup(u"b"_s, 2);
    QVERIFY(window.showAlone());
    QTRY_VERIFY(tilesOf(window.gallery()).at(1)->isVisible());
    tilesOf(window.gallery()).at(1)->setFocus();
    auto *last = groupsOf(window.gallery()).at(1);
    Q_EMIT last->signalPositionChange(RibbonGalleryGroup::Top);
    QCOMPARE(stripOf(window.gallery()), QStringList({u"b0"_s, u"b1"_s}));
    QCOMPARE(focusedText(), u"b1"_s);
}

QTEST_MAIN(tst_RibbonGalleryStripKeys)
#include "tst_ribbongallerystripkeys.moc"
