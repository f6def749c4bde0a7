// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/PopupParts.h"

#include "support/TestCase.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace PopupParts;
using namespace VornFrame;

class tst_RibbonGalleryMoves : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void positionsFollowEachAddedGroup();
    void movedGroupsChangeTheOrder_data();
    void movedGroupsChangeTheOrder();
    void aMovedGroupKeepsItsTiles();
    void aGroupIsMovedByItsButton();
    void aGroupIsInPlaceWhenTheMoveIsTold();
    void otherPositionsLeaveTheGroupOut_data();
    void otherPositionsLeaveTheGroupOut();
    void aGroupLeftOutComesBack();
};

void tst_RibbonGalleryMoves::positionsFollowEachAddedGroup()
{
    RibbonGalleryPopup popup(nullptr);
    const Parts parts(&popup);
    const QList<QStringList> expected{
        {u"v"_s}, {u"v"_s, u"^"_s}, {u"v"_s, u"^v"_s, u"^"_s}, {u"v"_s, u"^v"_s, u"^v"_s, u"^"_s}};
    for (const QStringList &buttons : expected) {
        popup.addGroup(u"group"_s, QIcon());
        QCOMPARE(parts.buttons(), buttons);
        QVERIFY(toTop(parts.favourites())->isHidden());
        QVERIFY(toBottom(parts.favourites())->isHidden());
    }
}

void tst_RibbonGalleryMoves::movedGroupsChangeTheOrder_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("moved");
    QTest::addColumn<RibbonGalleryGroup::Position>("to");
    QTest::addColumn<QString>("order");

    const auto top = RibbonGalleryGroup::Top;
    const auto bottom = RibbonGalleryGroup::Bottom;
    QTest::newRow("the only one to the top") << 1 << 0 << top << u"0"_s;
    QTest::newRow("the only one to the bottom") << 1 << 0 << bottom << u"0"_s;
    QTest::newRow("the second to the top") << 2 << 1 << top << u"10"_s;
    QTest::newRow("the first of two to the bottom") << 2 << 0 << bottom << u"10"_s;
    QTest::newRow("the first to the top") << 3 << 0 << top << u"012"_s;
    QTest::newRow("the middle to the top") << 3 << 1 << top << u"102"_s;
    QTest::newRow("the last to the top") << 3 << 2 << top << u"201"_s;
    QTest::newRow("the first to the bottom") << 3 << 0 << bottom << u"120"_s;
    QTest::newRow("the middle to the bottom") << 3 << 1 << bottom << u"021"_s;
    QTest::newRow("the last to the bottom") << 3 << 2 << bottom << u"012"_s;
    QTest::newRow("the fourth of five to the top") << 5 << 3 << top << u"30124"_s;
    QTest::newRow("the second of five to the bottom") << 5 << 1 << bottom << u"02341"_s;
}

void tst_RibbonGalleryMoves::movedGroupsChangeTheOrder()
{
    QFETCH(const int, count);
    QFETCH(const int, moved);
    QFETCH(const RibbonGalleryGroup::Position, to);
    QFETCH(const QString, order);
    RibbonGalleryPopup popup(nullptr);
    const Parts parts(&popup);
    for (int i = 0; i < count; ++i)
        popup.addGroup(QString::number(i), QIcon());
    const QStringList buttons = parts.buttons();
    const QSignalSpy updated(&popup, &RibbonGalleryPopup::signalGroupUpdated);
    Q_EMIT parts.group(moved)->signalPositionChange(to);
    QCOMPARE(parts.titles().join(QString()), order);
    // The place decides on the buttons, not the group.
    QCOMPARE(parts.buttons(), buttons);
    QCOMPARE(updated.size(), 1);
    for (int i = 0; i < count; ++i)
        QCOMPARE(popup.indexOfGroup(order.at(i)), i);
    QCOMPARE(parts.favourites()->title(), u"collected"_s);
    QVERIFY(parts.noMatchLabel());
}

void tst_RibbonGalleryMoves::aMovedGroupKeepsItsTiles()
{
    FilledWindow window;
    Q_EMIT window.parts().group(2)->signalPositionChange(RibbonGalleryGroup::Top);
    QCOMPARE(texts(window.parts().group(0)), QStringList({u"d"_s, u"e"_s}));
    QAction action(u"f"_s);
    QCOMPARE(window.addItem(0, &action), 2);
    QCOMPARE(texts(window.parts().group(0)), QStringList({u"d"_s, u"e"_s, u"f"_s}));
}

void tst_RibbonGalleryMoves::aGroupIsMovedByItsButton()
{
    FilledWindow window;
    QVERIFY(Input::show(&window));
    const Parts parts = window.parts();
    const RibbonGalleryGroup *last = parts.group(2);
    Input::click(toTop(last));
    QCOMPARE(parts.titles(), QStringList({u"three"_s, u"one"_s, u"two"_s}));
    QVERIFY(!toTop(last)->isVisible());
    QVERIFY(toTop(parts.group(1))->isVisible());
    QVERIFY(toBottom(parts.group(1))->isVisible());
    QTRY_COMPARE(last->y(), parts.searchRow()->geometry().bottom() + 1);
    QCOMPARE(parts.group(1)->y(), last->geometry().bottom() + 1);
    Input::click(toBottom(parts.group(1)));
    QCOMPARE(parts.titles(), QStringList({u"three"_s, u"two"_s, u"one"_s}));
    QTRY_VERIFY(parts.group(1)->y() < parts.group(2)->y());
    for (int i = 0; i < 3; ++i)
        QVERIFY(parts.group(i)->isVisible());
}

void tst_RibbonGalleryMoves::aGroupIsInPlaceWhenTheMoveIsTold()
{
    FilledWindow window;
    QStringList titles;
    QStringList buttons;
    connect(window.popup(), &RibbonGalleryPopup::signalGroupUpdated, this, [&] {
        titles = window.parts().titles();
        buttons = window.parts().buttons();
    });
    Q_EMIT window.parts().group(0)->signalPositionChange(RibbonGalleryGroup::Bottom);
    QCOMPARE(titles, QStringList({u"two"_s, u"three"_s, u"one"_s}));
    QCOMPARE(buttons, QStringList({u"v"_s, u"^v"_s, u"^"_s}));
}

void tst_RibbonGalleryMoves::otherPositionsLeaveTheGroupOut_data()
{
    QTest::addColumn<RibbonGalleryGroup::Position>("position");

    QTest::newRow("fixed") << RibbonGalleryGroup::Fixed;
    QTest::newRow("middle") << RibbonGalleryGroup::Middle;
}

void tst_RibbonGalleryMoves::otherPositionsLeaveTheGroupOut()
{
    QFETCH(const RibbonGalleryGroup::Position, position);
    FilledWindow window;
    const QSignalSpy updated(window.popup(), &RibbonGalleryPopup::signalGroupUpdated);
    Q_EMIT window.parts().group(1)->signalPositionChange(position);
    QCOMPARE(updated.size(), 1);
    QCOMPARE(window.popup()->indexOfGroup(u"two"_s), -1);
    QCOMPARE(window.popup()->indexOfGroup(u"three"_s), 1);
    QCOMPARE(texts(window.popup()->displayedActions()),
             QStringList({u"a"_s, u"b"_s, u"d"_s, u"e"_s}));
    QCOMPARE(window.popup()->contentHeight(true), SearchRow + 2 * FirstRow);
}

void tst_RibbonGalleryMoves::aGroupLeftOutComesBack()
{
    FilledWindow window;
    RibbonGalleryGroup *two = window.parts().group(1);
    Q_EMIT two->signalPositionChange(RibbonGalleryGroup::Middle);
    window.popup()->addGroup(u"four"_s, QIcon());
    QCOMPARE(window.popup()->indexOfGroup(u"four"_s), 2);
    Q_EMIT window.parts().group(1)->signalPositionChange(RibbonGalleryGroup::Bottom);
    Q_EMIT two->signalPositionChange(RibbonGalleryGroup::Top);
    QCOMPARE(window.parts().titles(), QStringList({u"two"_s, u"three"_s, u"four"_s, u"one"_s}));
    QCOMPARE(window.parts().buttons(), QStringList({u"v"_s, u"^v"_s, u"^v"_s, u"^"_s}));
    QCOMPARE(window.popup()->indexOfGroup(u"two"_s), 0);
}

QTEST_MAIN(tst_RibbonGalleryMoves)

#include "tst_ribbongallerymoves.moc"
