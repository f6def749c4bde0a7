// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/SideWindow.h"
#include "support/Input.h"
#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <limits>

using namespace Qt::StringLiterals;
using namespace SideWindows;
using namespace VornFrame;

namespace {

constexpr int Slots = 3;

/// What a side reports, in its order, with what it says of itself at that moment.
class Log : public QObject
{
    Q_OBJECT

public:
    explicit Log(DockPanelWidget &side) : m_side(side)
    {
        connect(&side, &DockPanelWidget::signalMinimized, this,
                [this](bool minimized) { add(minimized ? u"minimized"_s : u"restored"_s); });
        connect(&side, &DockPanelWidget::signalCurrentIndexChanged, this,
                [this](int index) { add(u"index %1"_s.arg(index)); });
    }

    QStringList takeAll() { return std::exchange(m_entries, {}); }

private:
    void add(const QString &what)
    {
        QStringList checked;
        for (const int index : checkedButtons(m_side))
            checked.append(QString::number(index));
        m_entries.append(u"%1 (%2, checked %3)"_s.arg(
            what, m_side.isMinimized() ? u"flag set"_s : u"flag clear"_s,
            checked.isEmpty() ? u"none"_s : checked.join(u' ')));
    }

    DockPanelWidget &m_side;
    QStringList m_entries;
};

void chooseMinimize(QMenu *open)
{
    Input::click(open, open->actionGeometry(open->actions().constFirst()).center());
}

void addWrongIndexes()
{
    QTest::addColumn<int>("index");
    QTest::newRow("minus one") << -1;
    QTest::newRow("smallest number") << std::numeric_limits<int>::min();
    QTest::newRow("one too many") << Slots;
    QTest::newRow("largest number") << std::numeric_limits<int>::max();
}

void addDirections()
{
    QTest::addColumn<DockPanelWidget::DockPanelDirection>("direction");
    QTest::newRow("left") << DockPanelWidget::Left;
    QTest::newRow("right") << DockPanelWidget::Right;
    QTest::newRow("bottom") << DockPanelWidget::Bottom;
}

} // namespace

class tst_DockPanelWidgetUse : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void clickShowsTheSlot_data() { addDirections(); }
    void clickShowsTheSlot();
    void clickOnTheCheckedButtonMinimizes_data() { addDirections(); }
    void clickOnTheCheckedButtonMinimizes();
    void anyClickRestoresOnce_data();
    void anyClickRestoresOnce();
    void menuEntryMinimizes_data();
    void menuEntryMinimizes();
    void menuEntryOfAMinimizedSideDoesNothing();

    void setMinimizedSetsTheFlagAndTheButtonAlone();
    void setMinimizedOfAnEmptySideSetsTheFlag();
    void currentIndexIsMinusOneWithoutWidth_data();
    void currentIndexIsMinusOneWithoutWidth();
    void setCurrentIndexChecksTheButtonAndThenShowsThePage();
    void setCurrentIndexLeavesAMinimizedSideMinimized();
    void setCurrentIndexOutOfRangeDoesNothing_data() { addWrongIndexes(); }
    void setCurrentIndexOutOfRangeDoesNothing();

    void onlyTheShownSlotIsVisible();
    void noSlotOutOfRangeIsVisible_data() { addWrongIndexes(); }
    void noSlotOutOfRangeIsVisible();
    void hidingTheShownSlotShowsTheFirstOther_data();
    void hidingTheShownSlotShowsTheFirstOther();
    void hidingTheShownSlotMayShowOneWithoutButton();
    void hidingTheOnlySlotKeepsItsPage();
    void hidingTheCurrentSlotOfAHiddenWindowHidesTheButtonAlone();
    void hidingInAnyOtherCaseHidesTheButtonAlone_data();
    void hidingInAnyOtherCaseHidesTheButtonAlone();
    void showingASlotShowsItsButton();
    void showingASlotOfAMinimizedSideRestoresIt_data();
    void showingASlotOfAMinimizedSideRestoresIt();
    void setViewVisibleOutOfRangeDoesNothing_data() { addWrongIndexes(); }
    void setViewVisibleOutOfRangeDoesNothing();

    void toolTipsOfASharedButtonFollowThePointer_data() { addDirections(); }
    void toolTipsOfASharedButtonFollowThePointer();
    void returnInADialogClicksNoButton();
    void rightToLeftPutsTheSecondViewOnTheLeft();
};

void tst_DockPanelWidgetUse::clickShowsTheSlot()
{
    QFETCH(const DockPanelWidget::DockPanelDirection, direction);
    SideWindow window(direction);
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    QVERIFY(Input::show(&window));
    Log log(side);
    const QSignalSpy clicked(barOf(side), &DockPanel::signalCurrentChanged);
    Input::click(buttonOf(side, 2));
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(clicked.at(0), QVariantList{2});
    QCOMPARE(log.takeAll(), QStringList({u"index 2 (flag clear, checked 2)"_s}));
    QCOMPARE(side.currentIndex(), 2);
    QVERIFY(side.isViewVisible(2));
    QVERIFY(!side.isMinimized());
}

void tst_DockPanelWidgetUse::clickOnTheCheckedButtonMinimizes()
{
    QFETCH(const DockPanelWidget::DockPanelDirection, direction);
    SideWindow window(direction);
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    QVERIFY(Input::show(&window));
    Log log(side);
    const QSignalSpy clicked(barOf(side), &DockPanel::signalCurrentChanged);
    const QSize before = side.stackedWidget()->size();
    Input::click(buttonOf(side, 0));
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(clicked.at(0), QVariantList{-1});
    QCOMPARE(log.takeAll(), QStringList({u"minimized (flag set, checked none)"_s}));
    QVERIFY(side.isMinimized());
    QCOMPARE(checkedButtons(side), QList<int>());
    // The room is the container's to take, and the page stays the current one.
    QCOMPARE(side.stackedWidget()->size(), before);
    QCOMPARE(stackOf(side)->currentIndex(), 0);
}

void tst_DockPanelWidgetUse::anyClickRestoresOnce_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("same slot") << 1 << QStringList{u"restored (flag clear, checked 1)"_s};
    QTest::newRow("other slot") << 2
                                << QStringList{u"index 2 (flag set, checked 2)"_s,
                                               u"restored (flag clear, checked 2)"_s};
}

void tst_DockPanelWidgetUse::anyClickRestoresOnce()
{
    QFETCH(const int, index);
    QFETCH(const QStringList, expected);
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    QVERIFY(Input::show(&window));
    Input::click(buttonOf(side, 1));
    Input::click(buttonOf(side, 1));
    QVERIFY(side.isMinimized());
    Log log(side);
    Input::click(buttonOf(side, index));
    QCOMPARE(log.takeAll(), expected);
    QVERIFY(!side.isMinimized());
    Input::click(buttonOf(side, 0));
    QCOMPARE(log.takeAll(), QStringList({u"index 0 (flag clear, checked 0)"_s}));
}

void tst_DockPanelWidgetUse::menuEntryMinimizes_data()
{
    QTest::addColumn<DockPanelWidget::DockPanelDirection>("direction");
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("byRightClick");
    QTest::newRow("left, first view") << DockPanelWidget::Left << 0 << false;
    QTest::newRow("left, first view, right click") << DockPanelWidget::Left << 0 << true;
    QTest::newRow("right, second view") << DockPanelWidget::Right << 1 << false;
    QTest::newRow("bottom, second view") << DockPanelWidget::Bottom << 1 << false;
    QTest::newRow("bottom, second view, right click") << DockPanelWidget::Bottom << 1 << true;
}

void tst_DockPanelWidgetUse::menuEntryMinimizes()
{
    QFETCH(const DockPanelWidget::DockPanelDirection, direction);
    QFETCH(const int, position);
    QFETCH(const bool, byRightClick);
    SideWindow window(direction);
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    side.tabifyView(1, new QWidget, icon(), u"second"_s);
    side.setCurrentIndex(1);
    QVERIFY(Input::show(&window));
    const DockView *view = viewOf(side, 1, position);
    Log log(side);
    PopupDriver driver(chooseMinimize);
    if (byRightClick)
        Input::rightClick(titleOf(view));
    else
        Input::click(menuButtonOf(view));
    QVERIFY(driver.hasRun());
    // It reports first, and then sets the flag and unchecks the button.
    QCOMPARE(log.takeAll(), QStringList({u"minimized (flag clear, checked 1)"_s}));
    QVERIFY(side.isMinimized());
    QCOMPARE(checkedButtons(side), QList<int>());
    QCOMPARE(stackOf(side)->currentIndex(), 1);
}

void tst_DockPanelWidgetUse::menuEntryOfAMinimizedSideDoesNothing()
{
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    QAction *minimize = side.menu(viewOf(side, 0)->widget())->actions().constFirst();
    Log log(side);
    minimize->trigger();
    QCOMPARE(log.takeAll().size(), 1);
    minimize->trigger();
    QCOMPARE(log.takeAll(), QStringList());
    QVERIFY(side.isMinimized());
    // Nor does a button that is checked meanwhile lose its mark.
    barOf(side)->setButtonChecked(2, true);
    minimize->trigger();
    QCOMPARE(checkedButtons(side), QList<int>({2}));
}

void tst_DockPanelWidgetUse::setMinimizedSetsTheFlagAndTheButtonAlone()
{
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    side.setCurrentIndex(1);
    QVERIFY(Input::show(&window));
    Log log(side);
    const QSize before = side.stackedWidget()->size();
    side.setMinimized(true);
    QVERIFY(side.isMinimized());
    QCOMPARE(checkedButtons(side), QList<int>());
    side.setMinimized(true);
    QVERIFY(side.isMinimized());
    side.setMinimized(false);
    QVERIFY(!side.isMinimized());
    QCOMPARE(checkedButtons(side), QList<int>({1}));
    side.setMinimized(false);
    QCOMPARE(checkedButtons(side), QList<int>({1}));
    QCOMPARE(log.takeAll(), QStringList());
    QCOMPARE(side.stackedWidget()->size(), before);
    QCOMPARE(side.currentIndex(), 1);
}

void tst_DockPanelWidgetUse::setMinimizedOfAnEmptySideSetsTheFlag()
{
    DockPanelWidget side(DockPanelWidget::Bottom);
    side.setMinimized(true);
    QVERIFY(side.isMinimized());
    side.setMinimized(false);
    QVERIFY(!side.isMinimized());
}

void tst_DockPanelWidgetUse::currentIndexIsMinusOneWithoutWidth_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("expected");
    QTest::newRow("no width") << QSize(0, 100) << -1;
    QTest::newRow("one pixel") << QSize(1, 100) << 1;
    QTest::newRow("width") << QSize(200, 100) << 1;
    QTest::newRow("no height") << QSize(200, 0) << 1;
}

void tst_DockPanelWidgetUse::currentIndexIsMinusOneWithoutWidth()
{
    QFETCH(const QSize, size);
    QFETCH(const int, expected);
    DockPanelWidget side(DockPanelWidget::Left);
    addViews(side, Slots);
    side.setCurrentIndex(1);
    side.stackedWidget()->resize(size);
    QCOMPARE(side.currentIndex(), expected);
    QCOMPARE(side.count(), Slots);
}

void tst_DockPanelWidgetUse::setCurrentIndexChecksTheButtonAndThenShowsThePage()
{
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    QVERIFY(Input::show(&window));
    Log log(side);
    const QSignalSpy clicked(barOf(side), &DockPanel::signalCurrentChanged);
    side.setCurrentIndex(2);
    QCOMPARE(log.takeAll(), QStringList({u"index 2 (flag clear, checked 2)"_s}));
    QCOMPARE(side.currentIndex(), 2);
    QVERIFY(side.isViewVisible(2));
    side.setCurrentIndex(2);
    QCOMPARE(log.takeAll(), QStringList());
    QCOMPARE(checkedButtons(side), QList<int>({2}));
    QCOMPARE(clicked.size(), 0);
}

void tst_DockPanelWidgetUse::setCurrentIndexLeavesAMinimizedSideMinimized()
{
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    side.setMinimized(true);
    Log log(side);
    side.setCurrentIndex(1);
    QCOMPARE(log.takeAll(), QStringList({u"index 1 (flag set, checked 1)"_s}));
    QVERIFY(side.isMinimized());
}

void tst_DockPanelWidgetUse::setCurrentIndexOutOfRangeDoesNothing()
{
    QFETCH(const int, index);
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    side.setCurrentIndex(1);
    Log log(side);
    side.setCurrentIndex(index);
    QCOMPARE(side.currentIndex(), 1);
    QCOMPARE(checkedButtons(side), QList<int>({1}));
    QCOMPARE(log.takeAll(), QStringList());
}

void tst_DockPanelWidgetUse::onlyTheShownSlotIsVisible()
{
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    for (int i = 0; i < Slots; ++i)
        QVERIFY(!side.isViewVisible(i));
    QVERIFY(Input::show(&window));
    side.setCurrentIndex(1);
    QVERIFY(!side.isViewVisible(0));
    QVERIFY(side.isViewVisible(1));
    QVERIFY(!side.isViewVisible(2));
    side.stackedWidget()->hide();
    QVERIFY(!side.isViewVisible(1));
}

void tst_DockPanelWidgetUse::noSlotOutOfRangeIsVisible()
{
    QFETCH(const int, index);
    SideWindow window;
    addViews(window.side(), Slots);
    QVERIFY(Input::show(&window));
    QVERIFY(!window.side().isViewVisible(index));
}

void tst_DockPanelWidgetUse::hidingTheShownSlotShowsTheFirstOther_data()
{
    QTest::addColumn<int>("hidden");
    QTest::addColumn<int>("shown");
    QTest::newRow("first slot") << 0 << 1;
    QTest::newRow("second slot") << 1 << 0;
    QTest::newRow("third slot") << 2 << 0;
}

void tst_DockPanelWidgetUse::hidingTheShownSlotShowsTheFirstOther()
{
    QFETCH(const int, hidden);
    QFETCH(const int, shown);
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    side.setCurrentIndex(hidden);
    QVERIFY(Input::show(&window));
    Log log(side);
    side.setViewVisible(hidden, false);
    QCOMPARE(log.takeAll(), QStringList({u"index %1 (flag clear, checked %1)"_s.arg(shown)}));
    QCOMPARE(side.currentIndex(), shown);
    QCOMPARE(checkedButtons(side), QList<int>({shown}));
    for (int i = 0; i < Slots; ++i)
        QCOMPARE(buttonOf(side, i)->isVisible(), i != hidden);
    QVERIFY(!side.isMinimized());
}

void tst_DockPanelWidgetUse::hidingTheShownSlotMayShowOneWithoutButton()
{
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    side.setCurrentIndex(2);
    QVERIFY(Input::show(&window));
    side.setViewVisible(0, false);
    side.setViewVisible(2, false);
    QCOMPARE(side.currentIndex(), 0);
    QVERIFY(!buttonOf(side, 0)->isVisible());
    QCOMPARE(checkedButtons(side), QList<int>({0}));
}

void tst_DockPanelWidgetUse::hidingTheOnlySlotKeepsItsPage()
{
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, 1);
    QVERIFY(Input::show(&window));
    Log log(side);
    side.setViewVisible(0, false);
    QVERIFY(!buttonOf(side, 0)->isVisible());
    QVERIFY(side.isViewVisible(0));
    QCOMPARE(side.currentIndex(), 0);
    QCOMPARE(checkedButtons(side), QList<int>({0}));
    QCOMPARE(log.takeAll(), QStringList());
}

void tst_DockPanelWidgetUse::hidingTheCurrentSlotOfAHiddenWindowHidesTheButtonAlone()
{
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    QVERIFY(side.stackedWidget()->width() > 0);
    Log log(side);
    side.setViewVisible(0, false);
    QVERIFY(buttonOf(side, 0)->isHidden());
    QCOMPARE(side.currentIndex(), 0);
    QCOMPARE(checkedButtons(side), QList<int>({0}));
    QCOMPARE(log.takeAll(), QStringList());
}

void tst_DockPanelWidgetUse::hidingInAnyOtherCaseHidesTheButtonAlone_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("minimized");
    QTest::addColumn<bool>("withWidth");
    QTest::newRow("not the current slot") << 2 << false << true;
    QTest::newRow("current slot of a minimized side") << 1 << true << true;
    QTest::newRow("current slot of a side without width") << 1 << false << false;
    QTest::newRow("other slot of a minimized side") << 0 << true << false;
}

void tst_DockPanelWidgetUse::hidingInAnyOtherCaseHidesTheButtonAlone()
{
    QFETCH(const int, index);
    QFETCH(const bool, minimized);
    QFETCH(const bool, withWidth);
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    side.setCurrentIndex(1);
    side.setMinimized(minimized);
    if (!withWidth)
        side.stackedWidget()->setFixedWidth(0);
    QVERIFY(Input::show(&window));
    const QList<int> checked = checkedButtons(side);
    Log log(side);
    side.setViewVisible(index, false);
    for (int i = 0; i < Slots; ++i)
        QCOMPARE(buttonOf(side, i)->isVisible(), i != index);
    QCOMPARE(stackOf(side)->currentIndex(), 1);
    QCOMPARE(checkedButtons(side), checked);
    QCOMPARE(side.isMinimized(), minimized);
    QCOMPARE(log.takeAll(), QStringList());
}

void tst_DockPanelWidgetUse::showingASlotShowsItsButton()
{
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    QVERIFY(Input::show(&window));
    side.setViewVisible(2, false);
    Log log(side);
    side.setViewVisible(2, true);
    QVERIFY(buttonOf(side, 2)->isVisible());
    side.setViewVisible(2, true);
    QVERIFY(buttonOf(side, 2)->isVisible());
    QCOMPARE(side.currentIndex(), 0);
    QCOMPARE(checkedButtons(side), QList<int>({0}));
    QCOMPARE(log.takeAll(), QStringList());
}

void tst_DockPanelWidgetUse::showingASlotOfAMinimizedSideRestoresIt_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("expected");
    // It reports first, and then clears the flag.
    QTest::newRow("current slot") << 0 << QStringList{u"restored (flag set, checked 0)"_s};
    QTest::newRow("other slot") << 2
                                << QStringList{u"index 2 (flag set, checked 2)"_s,
                                               u"restored (flag set, checked 2)"_s};
}

void tst_DockPanelWidgetUse::showingASlotOfAMinimizedSideRestoresIt()
{
    QFETCH(const int, index);
    QFETCH(const QStringList, expected);
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    QVERIFY(Input::show(&window));
    side.setMinimized(true);
    side.setViewVisible(index, false);
    bool isButtonVisibleMeanwhile = true;
    connect(&side, &DockPanelWidget::signalMinimized, &side,
            [&] { isButtonVisibleMeanwhile = buttonOf(side, index)->isVisible(); });
    Log log(side);
    side.setViewVisible(index, true);
    QCOMPARE(log.takeAll(), expected);
    QVERIFY(!isButtonVisibleMeanwhile);
    QVERIFY(!side.isMinimized());
    QVERIFY(buttonOf(side, index)->isVisible());
    QCOMPARE(side.currentIndex(), index);
    QCOMPARE(checkedButtons(side), QList<int>({index}));
}

void tst_DockPanelWidgetUse::setViewVisibleOutOfRangeDoesNothing()
{
    QFETCH(const int, index);
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, Slots);
    QVERIFY(Input::show(&window));
    for (const bool minimized : {false, true}) {
        side.setMinimized(minimized);
        Log log(side);
        side.setViewVisible(index, false);
        side.setViewVisible(index, true);
        QCOMPARE(log.takeAll(), QStringList());
        QCOMPARE(side.isMinimized(), minimized);
        QCOMPARE(side.currentIndex(), 0);
        for (int i = 0; i < Slots; ++i)
            QVERIFY(buttonOf(side, i)->isVisible());
    }
}

void tst_DockPanelWidgetUse::toolTipsOfASharedButtonFollowThePointer()
{
    QFETCH(const DockPanelWidget::DockPanelDirection, direction);
    SideWindow window(direction);
    DockPanelWidget &side = window.side();
    addViews(side, 1);
    side.tabifyView(0, new QWidget, icon(), u"second"_s);
    QVERIFY(Input::show(&window));
    DockButton *button = buttonOf(side, 0);
    QCOMPARE(button->accessibleName(), u"0, second"_s);
    Input::move(button, QPoint(15, 40));
    QTRY_COMPARE(button->toolTip(), u"second"_s);
    Input::move(button, QPoint(15, 10));
    QTRY_COMPARE(button->toolTip(), u"0"_s);
    QVERIFY(button->isChecked());
}

void tst_DockPanelWidgetUse::returnInADialogClicksNoButton()
{
    QDialog dialog;
    auto *layout = new QVBoxLayout(&dialog);
    DockPanelWidget side(DockPanelWidget::Left);
    auto *edit = new QLineEdit;
    side.addView(edit, icon(), u"Search"_s);
    addViews(side, 1);
    layout->addWidget(side.panel());
    layout->addWidget(side.stackedWidget());
    QVERIFY(Input::show(&dialog));
    Log log(side);
    const PopupBan ban;
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClick(edit, Qt::Key_Enter);
    QCOMPARE(log.takeAll(), QStringList());
    QCOMPARE(checkedButtons(side), QList<int>({0}));
    QVERIFY(!side.isMinimized());
}

void tst_DockPanelWidgetUse::rightToLeftPutsTheSecondViewOnTheLeft()
{
    SideWindow window(DockPanelWidget::Bottom);
    window.setLayoutDirection(Qt::RightToLeft);
    DockPanelWidget &side = window.side();
    addViews(side, 2);
    QCOMPARE(side.tabifyView(0, new QWidget, icon(), u"second"_s), 1);
    QVERIFY(Input::show(&window));
    QVERIFY(viewOf(side, 0, 1)->geometry().right() < viewOf(side, 0, 0)->geometry().left());
    QVERIFY(buttonOf(side, 1)->geometry().right() < buttonOf(side, 0)->geometry().left());
    Input::click(buttonOf(side, 1));
    QCOMPARE(side.currentIndex(), 1);
}

QTEST_MAIN(tst_DockPanelWidgetUse)

#include "tst_dockpanelwidgetuse.moc"
