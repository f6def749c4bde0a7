// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/StateWindow.h"

#include "support/TestCase.h"

#include <memory>

using namespace Qt::StringLiterals;
using namespace ContainerWindows;
using namespace VornFrame;

class tst_DockState : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void freshStateEndsWithTwelveZeroBytes();
    void stateStartsWithThatOfTheSplitter();
    void stateHoldsTheSidesInOrder();
    void sidesAreLittleEndian();
    void savingChangesNothing();
    void savingARestoredStateGivesTheSameBytes_data();
    void savingARestoredStateGivesTheSameBytes();
    void savingBeforeShowAndRestoringBeforeShow();

    void restoringGivesTheWidthsBack_data() { addDirections(); }
    void restoringGivesTheWidthsBack();
    void restoringLeavesTheBottomSide();
    void restoringMinimizesASideWithoutWidth_data();
    void restoringMinimizesASideWithoutWidth();
    void restoringRestoresNoMinimizedFlag();
    void restoringGivesWhatASideTakesLater();
    void restoringAlignsTheBarLater();
    void restoringInASmallerWindowKeepsTheColumn();
    void restoringAMinimizedSideIntoANewWindow();
};

void tst_DockState::freshStateEndsWithTwelveZeroBytes()
{
    const DockContainer dock;
    const QByteArray state = dock.saveState();
    QCOMPARE(state.last(13), "|" + QByteArray(12, '\0'));
}

void tst_DockState::stateStartsWithThatOfTheSplitter()
{
    StateWindow window;
    QVERIFY(window.showArranged());
    const QByteArray state = window.dock()->saveState();
    const QByteArray splitter = window.hSplitter()->saveState();
    QCOMPARE(state.size(), splitter.size() + 13);
    QCOMPARE(state.first(splitter.size()), splitter);
    QCOMPARE(state.at(splitter.size()), char(0x7c));
}

void tst_DockState::stateHoldsTheSidesInOrder()
{
    StateWindow window;
    QVERIFY(window.showArranged());
    QCOMPARE(rememberedIn(window.dock()->saveState()), Remembered({150, 110, 160}));
}

void tst_DockState::sidesAreLittleEndian()
{
    StateWindow window;
    QVERIFY(window.showArranged());
    window.dragTo(0x12c, 0x61, 0x0ff);
    const QByteArray state = window.dock()->saveState();
    QCOMPARE(state.last(12).toHex(' '), "2c 01 00 00 61 00 00 00 ff 00 00 00"_ba);
}

void tst_DockState::savingChangesNothing()
{
    StateWindow window;
    QVERIFY(window.showArranged());
    const QByteArray state = window.dock()->saveState();
    QCOMPARE(window.dock()->saveState(), state);
    VERIFY_NO_FAULT(window.fault());
}

void tst_DockState::savingARestoredStateGivesTheSameBytes_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::newRow("all open") << QList<int>{210, 95, 140};
    QTest::newRow("left minimized") << QList<int>{0, 95, 140};
    QTest::newRow("right minimized") << QList<int>{210, 95, 0};
    QTest::newRow("bottom minimized") << QList<int>{210, 0, 140};
    QTest::newRow("all minimized") << QList<int>{0, 0, 0};
}

void tst_DockState::savingARestoredStateGivesTheSameBytes()
{
    QFETCH(const QList<int>, sizes);
    StateWindow window;
    QVERIFY(window.showArranged());
    window.dragTo(sizes.at(0), sizes.at(1), sizes.at(2));
    const QByteArray state = window.dock()->saveState();
    QCOMPARE(state.count('|'), 1);
    window.dock()->restoreState(state);
    QCOMPARE(window.dock()->saveState(), state);

    StateWindow other;
    QVERIFY(other.showArranged());
    other.dock()->restoreState(state);
    QCOMPARE(other.dock()->saveState().toHex(' '), state.toHex(' '));
    QCoreApplication::processEvents();
    QCOMPARE(other.dock()->saveState().toHex(' '), state.toHex(' '));
    VERIFY_NO_FAULT(other.fault());
}

void tst_DockState::savingBeforeShowAndRestoringBeforeShow()
{
    const StateWindow window;
    const QByteArray state = window.dock()->saveState();
    StateWindow other;
    other.dock()->restoreState(state);
    QVERIFY(other.showArranged());
    VERIFY_NO_FAULT(other.fault());
    VERIFY_NO_FAULT(other.unusableSide());
}

void tst_DockState::restoringGivesTheWidthsBack()
{
    QFETCH(const Qt::LayoutDirection, direction);
    StateWindow window(direction);
    QVERIFY(window.showArranged());
    window.dragTo(210, 95, 140);
    const QByteArray state = window.dock()->saveState();
    const QList<int> sizes = window.hSplitter()->sizes();
    window.dragTo(60, 200, 70);
    window.dock()->restoreState(state);
    QCOMPARE(window.hSplitter()->sizes(), sizes);
    QCOMPARE(window.stack(DockContainer::Left)->width(), 210);
    QCOMPARE(rememberedIn(window.dock()->saveState()), Remembered({210, 95, 140}));
}

void tst_DockState::restoringLeavesTheBottomSide()
{
    StateWindow window;
    QVERIFY(window.showArranged());
    const QByteArray state = window.dock()->saveState();
    window.dragTo(150, 200, 160);
    window.dock()->restoreState(state);
    QCOMPARE(window.sizeOf(DockContainer::Bottom), 200);
    // But not what it takes next time.
    Input::click(window.button(DockContainer::Bottom));
    QCOMPARE(rememberedIn(window.dock()->saveState()).at(1), 200);
    window.dock()->restoreState(state);
    Input::click(window.button(DockContainer::Bottom));
    QCOMPARE(window.sizeOf(DockContainer::Bottom), 110);
}

void tst_DockState::restoringMinimizesASideWithoutWidth_data()
{
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::newRow("left") << 0 << 140;
    QTest::newRow("right") << 140 << 0;
    QTest::newRow("both") << 0 << 0;
    QTest::newRow("none") << 150 << 140;
}

void tst_DockState::restoringMinimizesASideWithoutWidth()
{
    QFETCH(const int, left);
    QFETCH(const int, right);
    StateWindow window;
    QVERIFY(window.showArranged());
    window.dragTo(left, 100, right);
    const QByteArray state = window.dock()->saveState();
    StateWindow other;
    QVERIFY(other.showArranged());
    other.dock()->restoreState(state);
    QCOMPARE(other.side(DockContainer::Left)->isMinimized(), left == 0);
    QCOMPARE(other.side(DockContainer::Right)->isMinimized(), right == 0);
    QCOMPARE(other.button(DockContainer::Left)->isChecked(), left != 0);
    QCOMPARE(other.button(DockContainer::Right)->isChecked(), right != 0);
    QCOMPARE(other.sizeOf(DockContainer::Left), left);
    QCOMPARE(other.sizeOf(DockContainer::Right), right);
    VERIFY_NO_FAULT(other.unusableSide());
}

void tst_DockState::restoringRestoresNoMinimizedFlag()
{
    StateWindow window;
    QVERIFY(window.showArranged());
    const QByteArray state = window.dock()->saveState();
    Input::click(window.button(DockContainer::Left));
    window.dock()->restoreState(state);
    QCOMPARE(window.sizeOf(DockContainer::Left), 150);
    QVERIFY(window.side(DockContainer::Left)->isMinimized());
}

void tst_DockState::restoringGivesWhatASideTakesLater()
{
    StateWindow window;
    QVERIFY(window.showArranged());
    for (const DockContainer::DockArea area : Areas)
        Input::click(window.button(area));
    const QByteArray state = withRemembered(window.dock()->saveState(), {201, 99, 77});
    window.dock()->restoreState(state);
    for (const DockContainer::DockArea area : Areas)
        Input::click(window.button(area));
    QCOMPARE(window.sizeOf(DockContainer::Left), 201);
    QCOMPARE(window.sizeOf(DockContainer::Bottom), 99);
    QCOMPARE(window.sizeOf(DockContainer::Right), 77);
}

void tst_DockState::restoringAlignsTheBarLater()
{
    StateWindow window;
    QVERIFY(window.showArranged());
    window.dragTo(210, 95, 140);
    const QByteArray state = window.dock()->saveState();
    window.dragTo(60, 95, 140);
    window.dock()->restoreState(state);
    const auto barX = [&window] { return window.areaOf(window.bar(DockContainer::Bottom)).left(); };
    QTRY_COMPARE(barX(), window.areaOf(window.stack(DockContainer::Bottom)).left());
    // Nobody is left to align when the timer comes.
    auto gone = std::make_unique<StateWindow>();
    gone->dock()->restoreState(state);
    gone.reset();
    QCoreApplication::processEvents();
}

void tst_DockState::restoringInASmallerWindowKeepsTheColumn()
{
    StateWindow window;
    window.resize(1900, 600);
    QVERIFY(window.showArranged());
    window.dragTo(700, 100, 700);
    const QByteArray state = window.dock()->saveState();
    StateWindow small;
    QVERIFY(small.showArranged());
    small.dock()->restoreState(state);
    QCoreApplication::processEvents();
    VERIFY_NO_FAULT(small.fault());
    VERIFY_NO_FAULT(small.unusableSide());
}

void tst_DockState::restoringAMinimizedSideIntoANewWindow()
{
    StateWindow window;
    QVERIFY(window.showArranged());
    window.dragTo(0, 100, 140);
    const qint32 before = rememberedIn(window.dock()->saveState()).at(0);
    QVERIFY(before > 0);
    StateWindow other;
    other.dock()->restoreState(window.dock()->saveState());
    QVERIFY(Input::show(&other));
    QCOMPARE(other.sizeOf(DockContainer::Left), 0);
    QCOMPARE(other.sizeOf(DockContainer::Right), 140);
    Input::click(other.button(DockContainer::Left));
    QCOMPARE(other.sizeOf(DockContainer::Left), before);
}

QTEST_MAIN(tst_DockState)

#include "tst_dockstate.moc"
