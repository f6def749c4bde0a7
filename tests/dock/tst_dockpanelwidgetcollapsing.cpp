// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/SideWindow.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <numeric>

using namespace SideWindows;
using namespace VornFrame;

namespace {

int sum(const QList<int> &numbers)
{
    return std::accumulate(numbers.cbegin(), numbers.cend(), 0);
}

} // namespace

class tst_DockPanelWidgetCollapsing : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void collapsingASecondViewGivesItsRoomToTheFirst_data();
    void collapsingASecondViewGivesItsRoomToTheFirst();
    void collapsingAFirstViewGivesItsRoomToTheSecond_data();
    void collapsingAFirstViewGivesItsRoomToTheSecond();
    void collapsedViewOfAContainerLeavesItsTitle();
    void unfoldingResizesNothing();
    void aFirstViewAtTheBottomCannotCollapse();
    void aViewAloneCannotCollapse();
    void twoViewsMayGoWhileOneIsCollapsed();
};

void tst_DockPanelWidgetCollapsing::collapsingASecondViewGivesItsRoomToTheFirst_data()
{
    QTest::addColumn<DockPanelWidget::DockPanelDirection>("direction");
    QTest::newRow("left") << DockPanelWidget::Left;
    QTest::newRow("right") << DockPanelWidget::Right;
    QTest::newRow("bottom") << DockPanelWidget::Bottom;
}

void tst_DockPanelWidgetCollapsing::collapsingASecondViewGivesItsRoomToTheFirst()
{
    QFETCH(const DockPanelWidget::DockPanelDirection, direction);
    // Without a sheet, whose lines and least widths the splitter would have to keep.
    SideWindow window(direction, false);
    DockPanelWidget &side = window.side();
    addViews(side, 1);
    side.tabifyView(0, new QWidget, icon(), u"second"_s);
    QVERIFY(Input::show(&window));
    DockView *second = viewOf(side, 0, 1);
    titleOf(second)->setFixedHeight(90);
    QTRY_COMPARE(second->titleHeight(), 90);
    const int whole = sum(pageOf(side, 0)->sizes());
    QVERIFY(pageOf(side, 0)->sizes().at(1) > 90);
    Q_EMIT second->signalCollapsed(true);
    QCOMPARE(pageOf(side, 0)->sizes(), QList<int>({whole - 90, 90}));
    Q_EMIT second->signalCollapsed(true);
    QCOMPARE(pageOf(side, 0)->sizes(), QList<int>({whole - 90, 90}));
}

void tst_DockPanelWidgetCollapsing::collapsingAFirstViewGivesItsRoomToTheSecond_data()
{
    QTest::addColumn<DockPanelWidget::DockPanelDirection>("direction");
    QTest::newRow("left") << DockPanelWidget::Left;
    QTest::newRow("right") << DockPanelWidget::Right;
}

void tst_DockPanelWidgetCollapsing::collapsingAFirstViewGivesItsRoomToTheSecond()
{
    QFETCH(const DockPanelWidget::DockPanelDirection, direction);
    SideWindow window(direction);
    DockPanelWidget &side = window.side();
    addViews(side, 1);
    side.tabifyView(0, new QWidget, icon(), u"second"_s);
    QVERIFY(Input::show(&window));
    QVERIFY(pageOf(side, 0)->sizes().at(0) > 25);
    Q_EMIT viewOf(side, 0, 0)->signalCollapsed(true);
    QCOMPARE(pageOf(side, 0)->sizes(), QList<int>({25, 575}));
}

void tst_DockPanelWidgetCollapsing::collapsedViewOfAContainerLeavesItsTitle()
{
    SideWindow window(DockPanelWidget::Left);
    DockPanelWidget &side = window.side();
    addViews(side, 1);
    side.tabifyView(0, new QWidget, icon(), u"second"_s);
    // Nothing shows this button yet; were it shown, it would work.
    viewOf(side, 0, 1)->setCollapseButtonVisible(true);
    QVERIFY(Input::show(&window));
    Input::click(collapseButtonOf(viewOf(side, 0, 1)));
    // The title, and the line above it.
    QCOMPARE(pageOf(side, 0)->sizes(), QList<int>({574, 26}));
    QVERIFY(titleOf(viewOf(side, 0, 1))->isVisible());
    QCOMPARE(titleOf(viewOf(side, 0, 1))->height(), 25);
}

void tst_DockPanelWidgetCollapsing::unfoldingResizesNothing()
{
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, 1);
    side.tabifyView(0, new QWidget, icon(), u"second"_s);
    QVERIFY(Input::show(&window));
    const QList<int> before = pageOf(side, 0)->sizes();
    Q_EMIT viewOf(side, 0, 0)->signalCollapsed(false);
    Q_EMIT viewOf(side, 0, 1)->signalCollapsed(false);
    QCOMPARE(pageOf(side, 0)->sizes(), before);
    Q_EMIT viewOf(side, 0, 0)->signalCollapsed(true);
    const QList<int> collapsed = pageOf(side, 0)->sizes();
    Q_EMIT viewOf(side, 0, 0)->signalCollapsed(false);
    QCOMPARE(pageOf(side, 0)->sizes(), collapsed);
}

void tst_DockPanelWidgetCollapsing::aFirstViewAtTheBottomCannotCollapse()
{
    SideWindow window(DockPanelWidget::Bottom);
    DockPanelWidget &side = window.side();
    addViews(side, 1);
    side.tabifyView(0, new QWidget, icon(), u"second"_s);
    QVERIFY(Input::show(&window));
    const QList<int> before = pageOf(side, 0)->sizes();
    Q_EMIT viewOf(side, 0, 0)->signalCollapsed(true);
    QCOMPARE(pageOf(side, 0)->sizes(), before);
}

void tst_DockPanelWidgetCollapsing::aViewAloneCannotCollapse()
{
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, 1);
    QVERIFY(Input::show(&window));
    Q_EMIT viewOf(side, 0)->signalCollapsed(true);
    QCOMPARE(pageOf(side, 0)->sizes(), QList<int>({600}));
}

void tst_DockPanelWidgetCollapsing::twoViewsMayGoWhileOneIsCollapsed()
{
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, 1);
    side.tabifyView(0, new QWidget, icon(), u"second"_s);
    QVERIFY(Input::show(&window));
    DockView *second = viewOf(side, 0, 1);
    delete viewOf(side, 0, 0);
    Q_EMIT second->signalCollapsed(true);
    second->setParent(&window);
    Q_EMIT second->signalCollapsed(true);
    QCOMPARE(pageOf(side, 0)->count(), 0);
}

QTEST_MAIN(tst_DockPanelWidgetCollapsing)

#include "tst_dockpanelwidgetcollapsing.moc"
