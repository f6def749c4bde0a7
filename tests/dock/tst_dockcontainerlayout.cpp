// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/ContainerWindow.h"

#include "support/TestCase.h"

#include <QMenu>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace ContainerWindows;
using namespace VornFrame;

namespace {

/// The place of a side in what a state remembers.
std::size_t memoryOf(DockContainer::DockArea area)
{
    switch (area) {
    case DockContainer::Left:
        return 0;
    case DockContainer::Bottom:
        return 1;
    case DockContainer::Right:
        break;
    }
    return 2;
}

qint32 remembered(const ContainerWindow &window, DockContainer::DockArea area)
{
    return rememberedIn(window.dock()->saveState()).at(memoryOf(area));
}

/// Lets \a area remember \a size, as a state from elsewhere does.
void remember(const ContainerWindow &window, DockContainer::DockArea area, qint32 size)
{
    const QByteArray state = window.dock()->saveState();
    Remembered sizes = rememberedIn(state);
    sizes.at(memoryOf(area)) = size;
    window.dock()->restoreState(withRemembered(state, sizes));
}

/// How much a side and what it shares with have together.
int wholeOf(const ContainerWindow &window, DockContainer::DockArea area)
{
    return area == DockContainer::Bottom ? window.vSplitter()->height()
                                         : window.hSplitter()->width();
}

/// Whether the next tab comes before or after the layout without content.
void addMoments()
{
    QTest::addColumn<bool>("atOnce");
    QTest::newRow("at once") << true;
    QTest::newRow("after a while") << false;
}

} // namespace

class tst_DockContainerLayout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void firstLayoutGivesEachSideItsHint_data() { addDirections(); }
    void firstLayoutGivesEachSideItsHint();
    void firstLayoutGivesASideAtMostAQuarter();
    void firstLayoutGivesTheBottomSideItsHint();
    void firstLayoutKeepsAMinimizedSideSmall_data() { addAreas(); }
    void firstLayoutKeepsAMinimizedSideSmall();
    void firstLayoutKeepsRestoredWidths();
    void firstLayoutIsNotRepeated();
    void emptySidesLeaveTheRoomToTheContent();

    void draggingASideRecordsItsSize_data() { addAreas(); }
    void draggingASideRecordsItsSize();
    void draggingASideToNothingMinimizesIt_data() { addAreas(); }
    void draggingASideToNothingMinimizesIt();
    void draggingAMinimizedSideOutRestoresIt_data() { addAreas(); }
    void draggingAMinimizedSideOutRestoresIt();
    void draggingOneSideLeavesTheOther();
    void draggingWorksFromRightToLeft();

    void minimizingGivesTheRoomAway_data() { addAreas(); }
    void minimizingGivesTheRoomAway();
    void minimizingFromTheMenuOfAView_data() { addAreas(); }
    void minimizingFromTheMenuOfAView();
    void restoringTakesBackWhatWasThere_data() { addAreas(); }
    void restoringTakesBackWhatWasThere();
    void restoringAgainAndAgainKeepsTheSize_data() { addAreas(); }
    void restoringAgainAndAgainKeepsTheSize();
    void minimizingASideWithoutSizeKeepsItsMemory_data() { addAreas(); }
    void minimizingASideWithoutSizeKeepsItsMemory();
    void restoringWithoutUsableMemoryGivesAQuarter_data();
    void restoringWithoutUsableMemoryGivesAQuarter();
    void theOtherSideKeepsItsSizeMeanwhile();
    void minimizingBeforeShowIsKept_data() { addAreas(); }
    void minimizingBeforeShowIsKept();
    void showingAViewRestoresTheSide_data() { addAreas(); }
    void showingAViewRestoresTheSide();

    void theFirstTabShowsTheContent();
    void theLastTabHidesTheContent();
    void aHiddenContentLeavesItsRoomToTheBottomSide();
    void theContentTakesItsHeightBack_data() { addMoments(); }
    void theContentTakesItsHeightBack();
    void theBottomSideComesBackWhenTheContentGoes();
    void theContentComesBackAfterTheBottomSideFilledAll_data() { addMoments(); }
    void theContentComesBackAfterTheBottomSideFilledAll();
    void theContentTakesAllWhereNoViewIsBelow();
    void withoutAutoHideTheContentStays();
    void minimizingTheBottomSideWithoutContent();
};

void tst_DockContainerLayout::firstLayoutGivesEachSideItsHint()
{
    QFETCH(const Qt::LayoutDirection, direction);
    ContainerWindow window(direction);
    window.addView(DockContainer::Left, {140, 50});
    window.addView(DockContainer::Right, {170, 50});
    window.addTab();
    QVERIFY(Input::show(&window));
    const int left = window.stack(DockContainer::Left)->sizeHint().width();
    const int right = window.stack(DockContainer::Right)->sizeHint().width();
    QVERIFY(left >= 140 && left < 150);
    QVERIFY(right >= 170 && right < 180);
    QCOMPARE(window.hSplitter()->sizes(),
             QList<int>({left, window.hSplitter()->width() - left - right, right}));
}

void tst_DockContainerLayout::firstLayoutGivesASideAtMostAQuarter()
{
    ContainerWindow window;
    window.addView(DockContainer::Left, {2000, 2000});
    window.addView(DockContainer::Right, {500, 2000});
    window.addTab();
    QVERIFY(Input::show(&window));
    const int whole = window.hSplitter()->width();
    QCOMPARE(window.hSplitter()->sizes(),
             QList<int>({whole / 4, whole - 2 * (whole / 4), whole / 4}));
}

void tst_DockContainerLayout::firstLayoutGivesTheBottomSideItsHint()
{
    for (const int wanted : {80, 2000}) {
        ContainerWindow window;
        window.addView(DockContainer::Bottom, {100, wanted});
        window.addTab();
        QVERIFY(Input::show(&window));
        const int whole = window.vSplitter()->height();
        const int hint = window.stack(DockContainer::Bottom)->sizeHint().height();
        const int height = qMin(hint, whole / 4);
        QCOMPARE(window.vSplitter()->sizes(), QList<int>({whole - height, height}));
    }
}

void tst_DockContainerLayout::firstLayoutKeepsAMinimizedSideSmall()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    window.side(area)->setMinimized(true);
    QVERIFY(Input::show(&window));
    QCOMPARE(window.sizeOf(area), 0);
    QVERIFY(window.side(area)->isMinimized());
    QVERIFY(window.bar(area)->isVisible());
}

void tst_DockContainerLayout::firstLayoutKeepsRestoredWidths()
{
    QByteArray state;
    {
        ContainerWindow window;
        window.fill();
        QVERIFY(Input::show(&window));
        window.dragTo(210, 100, 90);
        state = window.dock()->saveState();
    }
    ContainerWindow window;
    window.fill();
    window.dock()->restoreState(state);
    QVERIFY(Input::show(&window));
    QCOMPARE(window.sizeOf(DockContainer::Left), 210);
    QCOMPARE(window.sizeOf(DockContainer::Right), 90);
}

void tst_DockContainerLayout::firstLayoutIsNotRepeated()
{
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragTo(60, 70, 80);
    window.hide();
    QVERIFY(Input::show(&window));
    QCOMPARE(window.sizeOf(DockContainer::Left), 60);
    QCOMPARE(window.sizeOf(DockContainer::Right), 80);
    QCOMPARE(window.sizeOf(DockContainer::Bottom), 70);
}

void tst_DockContainerLayout::emptySidesLeaveTheRoomToTheContent()
{
    ContainerWindow window;
    window.addTab();
    QVERIFY(Input::show(&window));
    QVERIFY(window.content()->width() >= window.hSplitter()->width() - 2);
    QCOMPARE(window.content()->height(), window.vSplitter()->height());
}

void tst_DockContainerLayout::draggingASideRecordsItsSize()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    for (const int size : {111, 180, 70}) {
        window.dragEdge(area, size);
        QCOMPARE(window.sizeOf(area), size);
        QCOMPARE(remembered(window, area), size);
        QVERIFY(!window.side(area)->isMinimized());
        QVERIFY(window.button(area)->isChecked());
    }
}

void tst_DockContainerLayout::draggingASideToNothingMinimizesIt()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragEdge(area, 130);
    const QSignalSpy minimized(window.side(area), &DockPanelWidget::signalMinimized);
    window.dragEdge(area, 0);
    QCOMPARE(window.sizeOf(area), 0);
    QVERIFY(window.side(area)->isMinimized());
    QVERIFY(!window.button(area)->isChecked());
    QVERIFY(window.bar(area)->isVisible());
    QVERIFY(remembered(window, area) > 0);
    // The container only follows what the user did.
    QCOMPARE(minimized.size(), 0);
}

void tst_DockContainerLayout::draggingAMinimizedSideOutRestoresIt()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    Input::click(window.button(area));
    QVERIFY(window.side(area)->isMinimized());
    window.dragEdge(area, 120);
    QCOMPARE(window.sizeOf(area), 120);
    QVERIFY(!window.side(area)->isMinimized());
    QVERIFY(window.button(area)->isChecked());
    QCOMPARE(remembered(window, area), 120);
}

void tst_DockContainerLayout::draggingOneSideLeavesTheOther()
{
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragTo(150, 100, 160);
    window.dragEdge(DockContainer::Left, 250);
    QCOMPARE(window.sizeOf(DockContainer::Right), 160);
    QCOMPARE(remembered(window, DockContainer::Right), 160);
    QCOMPARE(window.sizeOf(DockContainer::Bottom), 100);
}

void tst_DockContainerLayout::draggingWorksFromRightToLeft()
{
    ContainerWindow window(Qt::RightToLeft);
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragTo(150, 100, 90);
    QCOMPARE(window.stack(DockContainer::Left)->width(), 150);
    QCOMPARE(window.stack(DockContainer::Right)->width(), 90);
    QCOMPARE(rememberedIn(window.dock()->saveState()), Remembered({150, 100, 90}));
    window.dragEdge(DockContainer::Right, 0);
    QVERIFY(window.side(DockContainer::Right)->isMinimized());
}

void tst_DockContainerLayout::minimizingGivesTheRoomAway()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragTo(150, 120, 160);
    QList<int> expected = window.sizes(area);
    const int size = window.sizeOf(area);
    expected[ContainerWindow::indexOf(area)] = 0;
    expected[area == DockContainer::Bottom ? 0 : 1] += size;
    Input::click(window.button(area));
    QVERIFY(window.side(area)->isMinimized());
    QCOMPARE(window.sizes(area), expected);
    QCOMPARE(remembered(window, area), size);
    QVERIFY(window.bar(area)->isVisible());
    QVERIFY(!window.button(area)->isChecked());
}

void tst_DockContainerLayout::minimizingFromTheMenuOfAView()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    QWidget *view = window.addView(area);
    QVERIFY(Input::show(&window));
    window.dragEdge(area, 140);
    window.side(area)->menu(view)->actions().constFirst()->trigger();
    QCOMPARE(window.sizeOf(area), 0);
    QVERIFY(window.side(area)->isMinimized());
    Input::click(window.button(area, 1));
    QCOMPARE(window.sizeOf(area), 140);
}

void tst_DockContainerLayout::restoringTakesBackWhatWasThere()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragTo(150, 120, 160);
    const QList<int> before = window.sizes(area);
    Input::click(window.button(area));
    Input::click(window.button(area));
    QCOMPARE(window.sizes(area), before);
    QVERIFY(!window.side(area)->isMinimized());
    QVERIFY(window.button(area)->isChecked());
}

void tst_DockContainerLayout::restoringAgainAndAgainKeepsTheSize()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragTo(151, 121, 161);
    const QList<int> before = window.sizes(area);
    for (int i = 0; i < 20; ++i) {
        Input::click(window.button(area));
        Input::click(window.button(area));
    }
    QCOMPARE(window.sizes(area), before);
}

void tst_DockContainerLayout::minimizingASideWithoutSizeKeepsItsMemory()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragEdge(area, 133);
    window.dragEdge(area, 0);
    const qint32 before = remembered(window, area);
    QVERIFY(before > 0);
    // The user dragged it to nothing, the program thinks it is open and the user clicks.
    window.side(area)->setMinimized(false);
    Input::click(window.button(area));
    QVERIFY(window.side(area)->isMinimized());
    QCOMPARE(remembered(window, area), before);
    Input::click(window.button(area));
    QCOMPARE(window.sizeOf(area), before);
}

void tst_DockContainerLayout::restoringWithoutUsableMemoryGivesAQuarter_data()
{
    QTest::addColumn<DockContainer::DockArea>("area");
    QTest::addColumn<int>("memory");
    constexpr int Largest = std::numeric_limits<int>::max();
    constexpr int Smallest = std::numeric_limits<int>::min();
    for (const DockContainer::DockArea area : Areas) {
        for (const int memory : {0, -1, -300, 5000, Largest, Smallest})
            QTest::addRow("%s, %d", nameOf(area), memory) << area << memory;
    }
}

void tst_DockContainerLayout::restoringWithoutUsableMemoryGivesAQuarter()
{
    QFETCH(const DockContainer::DockArea, area);
    QFETCH(const int, memory);
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    Input::click(window.button(area));
    remember(window, area, memory);
    Input::click(window.button(area));
    QCOMPARE(window.sizeOf(area), wholeOf(window, area) / 4);
    QVERIFY(window.column()->width() > 0);
    QVERIFY(window.content()->height() > 0);
}

void tst_DockContainerLayout::theOtherSideKeepsItsSizeMeanwhile()
{
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragTo(150, 120, 160);
    Input::click(window.button(DockContainer::Left));
    QCOMPARE(window.sizeOf(DockContainer::Right), 160);
    Input::click(window.button(DockContainer::Right));
    Input::click(window.button(DockContainer::Bottom));
    Input::click(window.button(DockContainer::Left));
    QCOMPARE(window.sizes(DockContainer::Left),
             QList<int>({150, window.hSplitter()->width() - 150, 0}));
    Input::click(window.button(DockContainer::Right));
    Input::click(window.button(DockContainer::Bottom));
    QCOMPARE(window.sizeOf(DockContainer::Left), 150);
    QCOMPARE(window.sizeOf(DockContainer::Right), 160);
    QCOMPARE(window.sizeOf(DockContainer::Bottom), 120);
}

void tst_DockContainerLayout::minimizingBeforeShowIsKept()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    window.button(area)->click();
    QVERIFY(window.side(area)->isMinimized());
    QVERIFY(Input::show(&window));
    QCOMPARE(window.sizeOf(area), 0);
    Input::click(window.button(area));
    QVERIFY(window.sizeOf(area) > 0);
    QVERIFY(window.sizeOf(area) <= wholeOf(window, area) / 4);
}

void tst_DockContainerLayout::showingAViewRestoresTheSide()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    window.addView(area);
    QVERIFY(Input::show(&window));
    window.dragEdge(area, 141);
    Input::click(window.button(area));
    QCOMPARE(window.sizeOf(area), 0);
    window.side(area)->setViewVisible(1, true);
    QCOMPARE(window.sizeOf(area), 141);
    QVERIFY(!window.side(area)->isMinimized());
    QCOMPARE(window.side(area)->currentIndex(), 1);
}

void tst_DockContainerLayout::theFirstTabShowsTheContent()
{
    ContainerWindow window;
    window.addView(DockContainer::Bottom);
    QVERIFY(Input::show(&window));
    QVERIFY(window.content()->isHidden());
    TabLog log(window.content());
    window.addTab();
    QCOMPARE(log.take().count(u"visible 1"_s), 1);
    QVERIFY(window.content()->isVisible());
    QVERIFY(window.content()->isSectionBarVisible());
    QVERIFY(window.content()->height() > 0);
    QVERIFY(window.stack(DockContainer::Bottom)->height() > 0);
}

void tst_DockContainerLayout::theLastTabHidesTheContent()
{
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    window.content()->removeTab(0, 0);
    QCOMPARE(log.take(), QStringList({u"visible 0"_s, u"section -1"_s, u"tab -1 -1"_s}));
    QVERIFY(window.content()->isHidden());
}

void tst_DockContainerLayout::aHiddenContentLeavesItsRoomToTheBottomSide()
{
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.content()->removeTab(0, 0);
    QTRY_COMPARE(window.stack(DockContainer::Bottom)->height(), window.vSplitter()->height());
}

void tst_DockContainerLayout::theContentTakesItsHeightBack()
{
    QFETCH(const bool, atOnce);
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragEdge(DockContainer::Bottom, 130);
    const int before = window.content()->height();
    for (int i = 0; i < 3; ++i) {
        window.content()->removeTab(0, 0);
        QVERIFY(window.content()->isHidden());
        if (!atOnce)
            QTRY_COMPARE(window.sizeOf(DockContainer::Bottom), window.vSplitter()->height());
        window.addTab();
        QVERIFY(window.content()->isVisible());
        QTRY_COMPARE(window.content()->height(), before);
        QCOMPARE(window.sizeOf(DockContainer::Bottom), 130);
    }
}

void tst_DockContainerLayout::theBottomSideComesBackWhenTheContentGoes()
{
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    Input::click(window.button(DockContainer::Bottom));
    QCOMPARE(window.content()->height(), window.vSplitter()->height());
    window.content()->removeTab(0, 0);
    QVERIFY(!window.side(DockContainer::Bottom)->isMinimized());
    QVERIFY(window.button(DockContainer::Bottom)->isChecked());
}

void tst_DockContainerLayout::theContentTakesAllWhereNoViewIsBelow()
{
    ContainerWindow window;
    window.addTab();
    QVERIFY(Input::show(&window));
    window.content()->removeTab(0, 0);
    QTRY_COMPARE(window.sizeOf(DockContainer::Bottom), window.vSplitter()->height());
    window.addTab();
    QTRY_COMPARE(window.content()->height(), window.vSplitter()->height());
    QCOMPARE(window.sizeOf(DockContainer::Bottom), 0);
}

void tst_DockContainerLayout::theContentComesBackAfterTheBottomSideFilledAll()
{
    QFETCH(const bool, atOnce);
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    Input::click(window.button(DockContainer::Bottom));
    window.content()->removeTab(0, 0);
    if (!atOnce)
        QTRY_COMPARE(window.sizeOf(DockContainer::Bottom), window.vSplitter()->height());
    window.addTab();
    QCoreApplication::processEvents();
    QVERIFY(window.content()->isVisible());
    const QList<int> sizes = window.vSplitter()->sizes();
    QCOMPARE(sizes.at(0) + sizes.at(1), window.vSplitter()->height());
    QVERIFY(sizes.at(0) > 0);
    QCOMPARE(window.side(DockContainer::Bottom)->isMinimized(), sizes.at(1) == 0);
    // And everything still works.
    window.dragEdge(DockContainer::Bottom, 150);
    QCOMPARE(window.sizeOf(DockContainer::Bottom), 150);
    Input::click(window.button(DockContainer::Bottom));
    QCOMPARE(window.sizeOf(DockContainer::Bottom), 0);
    Input::click(window.button(DockContainer::Bottom));
    QCOMPARE(window.sizeOf(DockContainer::Bottom), 150);
}

void tst_DockContainerLayout::withoutAutoHideTheContentStays()
{
    ContainerWindow window;
    window.fill();
    window.content()->setAutoHide(false);
    QVERIFY(Input::show(&window));
    window.dragEdge(DockContainer::Bottom, 130);
    const int before = window.content()->height();
    window.content()->removeTab(0, 0);
    QVERIFY(window.content()->isVisible());
    QCOMPARE(window.content()->height(), before);
}

void tst_DockContainerLayout::minimizingTheBottomSideWithoutContent()
{
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragEdge(DockContainer::Bottom, 130);
    window.content()->removeTab(0, 0);
    Input::click(window.button(DockContainer::Bottom));
    QVERIFY(window.side(DockContainer::Bottom)->isMinimized());
    window.addTab();
    QVERIFY(window.content()->isVisible());
    QVERIFY(window.content()->height() > 0);
    Input::click(window.button(DockContainer::Bottom));
    QVERIFY(!window.side(DockContainer::Bottom)->isMinimized());
    QVERIFY(window.sizeOf(DockContainer::Bottom) > 0);
    QVERIFY(window.content()->height() > 0);
    QCOMPARE(window.content()->height() + window.sizeOf(DockContainer::Bottom),
             window.vSplitter()->height());
}

QTEST_MAIN(tst_DockContainerLayout)

#include "tst_dockcontainerlayout.moc"
