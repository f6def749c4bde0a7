// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/StateWindow.h"

#include "support/TestCase.h"

#include <QRandomGenerator>

#include <functional>

using namespace Qt::StringLiterals;
using namespace ContainerWindows;
using namespace VornFrame;

namespace {

/// \a state with a few bytes changed, cut out, doubled or cut off.
QByteArray mutated(QByteArray state, QRandomGenerator &random)
{
    const int changes = int(random.bounded(1, 5));
    for (int i = 0; i < changes && !state.isEmpty(); ++i) {
        const qsizetype at = random.bounded(int(state.size()));
        switch (random.bounded(8)) {
        case 0:
            state.remove(at, 1);
            break;
        case 1:
            state.insert(at, char(random.bounded(256)));
            break;
        case 2:
            state.truncate(at);
            break;
        case 3:
            state[at] = char(0xff);
            break;
        case 4:
            state[at] = char(0);
            break;
        default:
            state[at] = char(random.bounded(256));
            break;
        }
    }
    return state;
}

} // namespace

class tst_DockStateBroken : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void stateWithASeparatorInANumberIsIgnored_data();
    void stateWithASeparatorInANumberIsIgnored();
    void stateWithoutTwoPiecesIsIgnored_data();
    void stateWithoutTwoPiecesIsIgnored();
    void stateCutAnywhereIsIgnored();
    void stateWithBytesBehindIsRead();
    void brokenSplitterStateChangesNoWidth_data();
    void brokenSplitterStateChangesNoWidth();
    void strangeSplitterStateLeavesAUsableWindow_data();
    void strangeSplitterStateLeavesAUsableWindow();
    void anyRememberedSizesLeaveAUsableWindow_data();
    void anyRememberedSizesLeaveAUsableWindow();
    void separatorAtEveryPlaceDoesNoHarm();
    void randomMutationsDoNoHarm();
    void randomMutationsBeforeShowDoNoHarm();
};

void tst_DockStateBroken::stateWithASeparatorInANumberIsIgnored_data()
{
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("right");
    QTest::newRow("left is 124") << 124 << 1 << 1;
    QTest::newRow("left is 380") << 380 << 1 << 1;
    QTest::newRow("bottom is 124") << 1 << 124 << 1;
    QTest::newRow("right is 124") << 1 << 1 << 124;
    QTest::newRow("right has it in its highest byte") << 1 << 1 << 0x7c000000;
    QTest::newRow("all have it") << 124 << 124 << 124;
}

void tst_DockStateBroken::stateWithASeparatorInANumberIsIgnored()
{
    QFETCH(const int, left);
    QFETCH(const int, bottom);
    QFETCH(const int, right);
    StateWindow window;
    QVERIFY(window.showArranged());
    const QByteArray before = window.dock()->saveState();
    SplitterState splitter;
    splitter.sizes = {0, 500, 0};
    window.dock()->restoreState(stateOf(splitter.bytes(), {left, bottom, right}));
    QCOMPARE(window.dock()->saveState(), before);
    QVERIFY(!window.side(DockContainer::Left)->isMinimized());
}

void tst_DockStateBroken::stateWithoutTwoPiecesIsIgnored_data()
{
    QTest::addColumn<QByteArray>("state");
    const QByteArray splitter = SplitterState().bytes();
    const QByteArray sides(12, '\1');
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("a separator alone") << "|"_ba;
    QTest::newRow("two separators") << "||"_ba;
    QTest::newRow("no separator") << splitter + sides;
    QTest::newRow("sides alone") << sides;
    QTest::newRow("one too many in front") << "|" + splitter + "|" + sides;
    QTest::newRow("one too many behind") << splitter + "|" + sides + "|";
    QTest::newRow("one too many between") << splitter + "||" + sides;
    QTest::newRow("nothing but separators") << QByteArray(48, '|');
    QTest::newRow("short sides") << splitter + "|" + sides.first(11);
    QTest::newRow("no sides") << splitter + "|";
    QTest::newRow("text") << "not a state at all"_ba;
}

void tst_DockStateBroken::stateWithoutTwoPiecesIsIgnored()
{
    QFETCH(const QByteArray, state);
    StateWindow window;
    QVERIFY(window.showArranged());
    const QByteArray before = window.dock()->saveState();
    window.dock()->restoreState(state);
    QCoreApplication::processEvents();
    QCOMPARE(window.dock()->saveState().toHex(), before.toHex());
    VERIFY_NO_FAULT(window.fault());
}

void tst_DockStateBroken::stateCutAnywhereIsIgnored()
{
    StateWindow window;
    QVERIFY(window.showArranged());
    window.dragTo(210, 95, 140);
    const QByteArray state = window.dock()->saveState();
    window.dragTo(60, 70, 80);
    const QByteArray before = window.dock()->saveState();
    for (qsizetype length = 0; length < state.size(); ++length) {
        window.dock()->restoreState(state.first(length));
        QCOMPARE(window.dock()->saveState(), before);
    }
    VERIFY_NO_FAULT(window.fault());
    window.dock()->restoreState(state);
    QCOMPARE(window.dock()->saveState(), state);
}

void tst_DockStateBroken::stateWithBytesBehindIsRead()
{
    StateWindow window;
    QVERIFY(window.showArranged());
    window.dragTo(210, 95, 140);
    const QByteArray state = window.dock()->saveState();
    window.dragTo(60, 70, 80);
    window.dock()->restoreState(state + "more");
    QCOMPARE(window.dock()->saveState(), state);
}

void tst_DockStateBroken::brokenSplitterStateChangesNoWidth_data()
{
    QTest::addColumn<QByteArray>("splitter");
    const auto row = [](const char *name, const std::function<void(SplitterState &)> &breakIt) {
        SplitterState state;
        breakIt(state);
        QTest::newRow(name) << state.bytes();
    };
    row("wrong marker", [](SplitterState &state) { state.marker = 0xfe; });
    row("no marker", [](SplitterState &state) { state.marker = 0; });
    row("version from the future", [](SplitterState &state) { state.version = 1000; });
    row("negative version", [](SplitterState &state) { state.version = -1; });
    row("no sizes", [](SplitterState &state) {
        state.count = 0;
        state.sizes.clear();
    });
    row("two sizes", [](SplitterState &state) {
        state.count = 2;
        state.sizes = {1, 2};
    });
    row("four sizes", [](SplitterState &state) {
        state.count = 4;
        state.sizes = {1, 2, 3, 4};
    });
    row("more sizes promised", [](SplitterState &state) { state.count = 4; });
    row("a million sizes promised", [](SplitterState &state) { state.count = 1000000; });
    row("all sizes promised",
        [](SplitterState &state) { state.count = std::numeric_limits<qint32>::max(); });
    row("negative count", [](SplitterState &state) { state.count = -1; });
    row("vertical", [](SplitterState &state) { state.orientation = Qt::Vertical; });
    row("no orientation", [](SplitterState &state) { state.orientation = 0; });
    row("both orientations", [](SplitterState &state) { state.orientation = 3; });
    row("strange orientation", [](SplitterState &state) { state.orientation = -7; });
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zeros") << QByteArray(35, '\0');
    QTest::newRow("ones") << QByteArray(35, '\xff');
    QTest::newRow("text") << "this is not what a splitter saves"_ba;
}

void tst_DockStateBroken::brokenSplitterStateChangesNoWidth()
{
    QFETCH(const QByteArray, splitter);
    StateWindow window;
    QVERIFY(window.showArranged());
    const QList<int> sizes = window.hSplitter()->sizes();
    window.dock()->restoreState(stateOf(splitter, {55, 66, 77}));
    QCoreApplication::processEvents();
    QCOMPARE(window.hSplitter()->sizes(), sizes);
    // The other piece is good.
    QCOMPARE(rememberedIn(window.dock()->saveState()), Remembered({55, 66, 77}));
    VERIFY_NO_FAULT(window.fault());
    VERIFY_NO_FAULT(window.unusableSide());
}

void tst_DockStateBroken::strangeSplitterStateLeavesAUsableWindow_data()
{
    constexpr qint32 Largest = std::numeric_limits<qint32>::max();
    constexpr qint32 Smallest = std::numeric_limits<qint32>::min();
    QTest::addColumn<QByteArray>("splitter");
    const auto sizes = [](const char *name, const QList<qint32> &list) {
        SplitterState state;
        state.sizes = list;
        QTest::newRow(name) << state.bytes();
    };
    sizes("all zero", {0, 0, 0});
    sizes("no column", {400, 0, 400});
    sizes("left alone", {900, 0, 0});
    sizes("right alone", {0, 0, 900});
    sizes("too small", {1, 1, 1});
    sizes("too large", {5000, 5000, 5000});
    sizes("huge", {10000000, 16000000, 10000000});
    sizes("huge left", {16777215, 0, 0});
    sizes("largest", {Largest, Largest, Largest});
    sizes("largest right", {0, 0, Largest});
    sizes("negative", {-5, -5, -5});
    sizes("minus one", {-1, -1, -1});
    sizes("smallest", {Smallest, Smallest, Smallest});
    sizes("mixed", {-100, 300, Largest});

    SplitterState state;
    state.handleWidth = 50;
    QTest::newRow("handles") << state.bytes();
    state.handleWidth = -50;
    QTest::newRow("negative handles") << state.bytes();
    state.handleWidth = Largest;
    QTest::newRow("largest handles") << state.bytes();
    state = {};
    state.collapsible = false;
    QTest::newRow("not collapsible") << state.bytes();
    state = {};
    state.opaque = false;
    QTest::newRow("not opaque") << state.bytes();
    state = {};
    state.version = 0;
    QTest::newRow("old version") << state.bytes();
}

void tst_DockStateBroken::strangeSplitterStateLeavesAUsableWindow()
{
    QFETCH(const QByteArray, splitter);
    StateWindow window;
    QVERIFY(window.showArranged());
    window.dock()->restoreState(stateOf(splitter));
    VERIFY_NO_FAULT(window.fault());
    QCoreApplication::processEvents();
    VERIFY_NO_FAULT(window.fault());
    VERIFY_NO_FAULT(window.unusableSide());
    VERIFY_NO_FAULT(window.fault());
}

void tst_DockStateBroken::anyRememberedSizesLeaveAUsableWindow_data()
{
    QTest::addColumn<int>("size");
    constexpr int Largest = std::numeric_limits<int>::max();
    constexpr int Smallest = std::numeric_limits<int>::min();
    for (const int size : {0, 1, -1, 899, 900, 5000, 1 << 24, Largest, Smallest, Smallest + 1})
        QTest::addRow("%d", size) << size;
}

void tst_DockStateBroken::anyRememberedSizesLeaveAUsableWindow()
{
    QFETCH(const int, size);
    StateWindow window;
    QVERIFY(window.showArranged());
    for (const DockContainer::DockArea area : Areas)
        Input::click(window.button(area));
    const QByteArray state = window.dock()->saveState();
    window.dock()->restoreState(withRemembered(state, {size, size, size}));
    QCOMPARE(rememberedIn(window.dock()->saveState()), Remembered({size, size, size}));
    for (const DockContainer::DockArea area : Areas) {
        Input::click(window.button(area));
        VERIFY_NO_FAULT(window.fault());
    }
    VERIFY_NO_FAULT(window.unusableSide());
}

void tst_DockStateBroken::separatorAtEveryPlaceDoesNoHarm()
{
    StateWindow window;
    QVERIFY(window.showArranged());
    const QByteArray state = window.dock()->saveState();
    for (qsizetype at = 0; at < state.size(); ++at) {
        QByteArray broken = state;
        broken[at] = '|';
        window.dock()->restoreState(broken);
        QCOMPARE(window.dock()->saveState(), state);
    }
    VERIFY_NO_FAULT(window.fault());
}

void tst_DockStateBroken::randomMutationsDoNoHarm()
{
    constexpr int Rounds = 20000;
    constexpr int RoundsPerUse = 500;
    StateWindow window;
    QVERIFY(window.showArranged());
    const QByteArray state = window.dock()->saveState();
    QRandomGenerator random(20240501);
    for (int round = 0; round < Rounds; ++round) {
        const QByteArray broken = mutated(state, random);
        window.dock()->restoreState(broken);
        const QString fault = window.fault();
        QVERIFY2(fault.isEmpty(),
                 qPrintable(fault + u" by "_s + QString::fromLatin1(broken.toHex())));
        if (round % RoundsPerUse != 0)
            continue;
        QCoreApplication::processEvents();
        const QString unusable = window.unusableSide();
        QVERIFY2(unusable.isEmpty(),
                 qPrintable(unusable + u" after "_s + QString::fromLatin1(broken.toHex())));
    }
    QCoreApplication::processEvents();
    VERIFY_NO_FAULT(window.fault());
    window.dock()->restoreState(state);
    QCOMPARE(window.dock()->saveState(), state);
}

void tst_DockStateBroken::randomMutationsBeforeShowDoNoHarm()
{
    QByteArray state;
    {
        StateWindow window;
        QVERIFY(window.showArranged());
        state = window.dock()->saveState();
    }
    QRandomGenerator random(7);
    for (int round = 0; round < 100; ++round) {
        const QByteArray broken = mutated(state, random);
        StateWindow window;
        window.dock()->restoreState(broken);
        window.show();
        QCOMPARE(window.size(), QSize(900, 600));
        QVERIFY2(window.column()->width() > 0, broken.toHex().constData());
        QCOMPARE(window.hSplitter()->orientation(), Qt::Horizontal);
        QCOMPARE(window.hSplitter()->handleWidth(), 0);
    }
}

QTEST_MAIN(tst_DockStateBroken)

#include "tst_dockstatebroken.moc"
