// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/DockPanel.h"
#include "dock/SheetWindow.h"

#include "support/TestCase.h"

#include <QPointer>

#include <functional>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;
using namespace SheetWindows;

namespace {

using Part = std::function<QObject *(DockContainer *)>;

int wholeOf(const ContainerWindow &window, DockContainer::DockArea area)
{
    return area == DockContainer::Bottom ? window.vSplitter()->height()
                                         : window.hSplitter()->width();
}

/// The room that a side gets at first.
int firstRoomOf(const ContainerWindow &window, DockContainer::DockArea area)
{
    const QSize hint = window.stack(area)->sizeHint();
    const int wanted = area == DockContainer::Bottom ? hint.height() : hint.width();
    return qMin(wanted, wholeOf(window, area) / 4);
}

void addAreasAndHints()
{
    QTest::addColumn<DockContainer::DockArea>("area");
    QTest::addColumn<QSize>("hint");
    for (const DockContainer::DockArea area : Areas) {
        QTest::addRow("%s, small", nameOf(area)) << area << QSize(150, 80);
        QTest::addRow("%s, large", nameOf(area)) << area << QSize(2000, 2000);
    }
}

void addHints()
{
    QTest::addColumn<QSize>("hint");
    QTest::newRow("small") << QSize(150, 80);
    QTest::newRow("large") << QSize(2000, 2000);
}

/// Every operation of a container of which something may be gone.
void useAll(DockContainer *dock, QMainWindow *window)
{
    for (const DockContainer::DockArea area : Areas) {
        DockPanelWidget *side = dock->panelWidget(area);
        if (!side)
            continue;
        const int slot = side->addView(new QWidget(dock), plainIcon(), u"late"_s);
        if (!side->panel() || !side->stackedWidget())
            QCOMPARE(slot, -1);
        if (!side->stackedWidget())
            QVERIFY(!side->isViewVisible(0));
        side->setViewVisible(0, false);
        side->setViewVisible(0, true);
        side->setCurrentIndex(0);
        side->setMinimized(true);
        side->setMinimized(false);
    }
    for (const bool on : {false, true}) {
        dock->setPanelCollapsible(on);
        dock->setAllDockViewVisible(on);
    }
    dock->setupMainWindow(window);
    dock->updateState();
    const QByteArray state = dock->saveState();
    dock->restoreState(state);
    dock->restoreState(withRemembered(state, {40, 41, 42}));
    if (DockContentWidget *content = dock->contentWidget()) {
        const int section = content->addSection(u"late"_s);
        content->addTab(section, new QWidget, u"late"_s);
        content->removeTab(section, 0);
        content->setAutoHide(false);
        content->setAutoHide(true);
        content->addTab(section, new QWidget, u"late"_s);
    }
    dock->setLayoutDirection(Qt::RightToLeft);
    dock->setLayoutDirection(Qt::LeftToRight);
    window->resize(window->width() + 50, window->height() + 30);
    QCoreApplication::processEvents();
    QList<QPointer<QAbstractButton>> buttons;
    const QList<VornFrame::DockPanel *> bars = window->findChildren<VornFrame::DockPanel *>();
    for (const VornFrame::DockPanel *bar : bars) {
        const auto inBar = bar->findChildren<QAbstractButton *>();
        for (QAbstractButton *button : inBar)
            buttons.append(button);
    }
    for (const QPointer<QAbstractButton> &button : std::as_const(buttons)) {
        for (int i = 0; i < 2 && button && button->isVisible(); ++i)
            Input::click(button);
    }
    QCoreApplication::processEvents();
}

void addParts()
{
    QTest::addColumn<Part>("part");
    QTest::addColumn<bool>("shown");
    const auto rows = [](const QByteArray &name, const Part &part) {
        QTest::addRow("%s, not shown", name.constData()) << part << false;
        QTest::addRow("%s, shown", name.constData()) << part << true;
    };
    for (const DockContainer::DockArea area : Areas) {
        const QByteArray name = nameOf(area);
        rows(name + " side", [area](DockContainer *dock) { return dock->panelWidget(area); });
        rows(name + " views",
             [area](DockContainer *dock) { return dock->panelWidget(area)->stackedWidget(); });
        rows(name + " bar",
             [area](DockContainer *dock) { return dock->panelWidget(area)->panel(); });
    }
    rows("content", [](DockContainer *dock) { return dock->contentWidget(); });
}

} // namespace

Q_DECLARE_METATYPE(Part)

class tst_DockContainerSettling : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void deletedPartLeavesTheRestUsable_data() { addParts(); }
    void deletedPartLeavesTheRestUsable();
    void deletedPartsAreNullAfterwards();
    void allPartsDeletedLeaveAnEmptyContainer();
    void columnStaysWhenViewsAreDeleted();
    void sideClickedWhileHiddenComesBackAsClicked_data();
    void sideClickedWhileHiddenComesBackAsClicked();
    void sidesHiddenAtFirstGetTheirHint_data() { addHints(); }
    void sidesHiddenAtFirstGetTheirHint();
    void viewsHiddenAtFirstGetTheirHint_data() { addAreasAndHints(); }
    void viewsHiddenAtFirstGetTheirHint();
    void bottomKeepsItsHintWhenTheContentComes_data() { addHints(); }
    void bottomKeepsItsHintWhenTheContentComes();
    void contentTurnsWithTheLayoutDirection_data();
    void contentTurnsWithTheLayoutDirection();
    void restoringMinimizesASideWithoutViews_data();
    void restoringMinimizesASideWithoutViews();
    void stateOfAContainerNeverShownHidesNothing_data();
    void stateOfAContainerNeverShownHidesNothing();
    void firstViewOfAShownWindowGetsItsHint_data() { addAreasAndHints(); }
    void firstViewOfAShownWindowGetsItsHint();
};

void tst_DockContainerSettling::deletedPartLeavesTheRestUsable()
{
    QFETCH(const Part, part);
    QFETCH(const bool, shown);
    ContainerWindow window;
    window.fill();
    if (shown) {
        QVERIFY(Input::show(&window));
        window.dragTo(150, 110, 160);
    }
    delete part(window.dock());
    useAll(window.dock(), &window);
    if (!shown)
        QVERIFY(Input::show(&window));
    useAll(window.dock(), &window);
}

void tst_DockContainerSettling::deletedPartsAreNullAfterwards()
{
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    for (const DockContainer::DockArea area : Areas) {
        delete window.stack(area);
        QVERIFY(!window.stack(area));
        QCOMPARE(window.side(area)->count(), 0);
        QCOMPARE(window.side(area)->currentIndex(), -1);
        delete window.bar(area);
        QVERIFY(!window.bar(area));
        delete window.side(area);
        QVERIFY(!window.side(area));
    }
    delete window.content();
    QVERIFY(!window.content());
}

void tst_DockContainerSettling::allPartsDeletedLeaveAnEmptyContainer()
{
    for (const bool shown : {false, true}) {
        ContainerWindow window;
        window.fill();
        if (shown)
            QVERIFY(Input::show(&window));
        for (const DockContainer::DockArea area : Areas)
            delete window.side(area);
        delete window.content();
        useAll(window.dock(), &window);
        QVERIFY(Input::show(&window));
        useAll(window.dock(), &window);
    }
}

void tst_DockContainerSettling::columnStaysWhenViewsAreDeleted()
{
    for (const DockContainer::DockArea area : {DockContainer::Left, DockContainer::Right}) {
        ContainerWindow window;
        window.fill();
        QVERIFY(Input::show(&window));
        const QWidget *column = window.column();
        const QSplitter *splitter = window.hSplitter();
        delete window.stack(area);
        window.dock()->setPanelCollapsible(true);
        QCOMPARE(splitter->count(), 2);
        for (int i = 0; i < splitter->count(); ++i)
            QCOMPARE(splitter->isCollapsible(i), splitter->widget(i) != column);
    }
}

void tst_DockContainerSettling::sideClickedWhileHiddenComesBackAsClicked_data()
{
    QTest::addColumn<DockContainer::DockArea>("area");
    QTest::addColumn<int>("clicks");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const DockContainer::DockArea area : Areas) {
        for (const int clicks : {0, 1, 2, 3, 4}) {
            QTest::addRow("%s, %d clicks", nameOf(area), clicks)
                << area << clicks << Qt::LeftToRight;
            QTest::addRow("%s, %d clicks, right to left", nameOf(area), clicks)
                << area << clicks << Qt::RightToLeft;
        }
    }
}

void tst_DockContainerSettling::sideClickedWhileHiddenComesBackAsClicked()
{
    QFETCH(const DockContainer::DockArea, area);
    QFETCH(const int, clicks);
    QFETCH(const Qt::LayoutDirection, direction);
    ContainerWindow window(direction);
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragTo(150, 110, 160);
    window.dock()->setAllDockViewVisible(false);
    for (int i = 0; i < clicks; ++i)
        Input::click(window.button(area));
    window.dock()->setAllDockViewVisible(true);
    const bool minimized = clicks % 2 == 1;
    const auto verifySizes = [&window, area](bool isMinimized) {
        for (const DockContainer::DockArea side : Areas) {
            const int size = side == DockContainer::Left    ? 150
                             : side == DockContainer::Right ? 160
                                                            : 110;
            QTRY_COMPARE(window.sizeOf(side), side == area && isMinimized ? 0 : size);
            QCOMPARE(window.side(side)->isMinimized(), side == area && isMinimized);
            QCOMPARE(window.button(side)->isChecked(), side != area || !isMinimized);
        }
    };
    verifySizes(minimized);
    Input::click(window.button(area));
    verifySizes(!minimized);
}

void tst_DockContainerSettling::sidesHiddenAtFirstGetTheirHint()
{
    QFETCH(const QSize, hint);
    ContainerWindow window;
    for (const DockContainer::DockArea area : Areas)
        window.addView(area, hint);
    window.addTab();
    window.dock()->setAllDockViewVisible(false);
    QVERIFY(Input::show(&window));
    QCOMPARE(window.column()->width(), window.hSplitter()->width());
    window.dock()->setAllDockViewVisible(true);
    for (const DockContainer::DockArea area : Areas)
        QTRY_COMPARE(window.sizeOf(area), firstRoomOf(window, area));
}

void tst_DockContainerSettling::viewsHiddenAtFirstGetTheirHint()
{
    QFETCH(const DockContainer::DockArea, area);
    QFETCH(const QSize, hint);
    ContainerWindow window;
    for (const DockContainer::DockArea side : Areas)
        window.addView(side, hint);
    window.addTab();
    window.stack(area)->hide();
    QVERIFY(Input::show(&window));
    window.stack(area)->show();
    for (const DockContainer::DockArea side : Areas)
        QTRY_COMPARE(window.sizeOf(side), firstRoomOf(window, side));
}

void tst_DockContainerSettling::bottomKeepsItsHintWhenTheContentComes()
{
    QFETCH(const QSize, hint);
    ContainerWindow window;
    window.addView(DockContainer::Bottom, hint);
    QVERIFY(Input::show(&window));
    QCOMPARE(window.sizeOf(DockContainer::Bottom), window.vSplitter()->height());
    window.content()->setAutoHide(false);
    QTRY_COMPARE(window.sizeOf(DockContainer::Bottom), firstRoomOf(window, DockContainer::Bottom));
    QVERIFY(window.sizeOf(DockContainer::Bottom) >= 80);
    QVERIFY(window.content()->height() > 0);
}

void tst_DockContainerSettling::contentTurnsWithTheLayoutDirection_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const int count : {1, 3, 40}) {
        QTest::addRow("%d tabs, to right to left", count) << count << Qt::RightToLeft;
        QTest::addRow("%d tabs, to left to right", count) << count << Qt::LeftToRight;
    }
}

void tst_DockContainerSettling::contentTurnsWithTheLayoutDirection()
{
    QFETCH(const int, count);
    QFETCH(const Qt::LayoutDirection, direction);
    const Qt::LayoutDirection other = direction == Qt::LeftToRight ? Qt::RightToLeft
                                                                   : Qt::LeftToRight;
    const auto imageOf = [](SheetWindow &window) {
        QCoreApplication::processEvents();
        return ImageChecks::rendered(window.content(), 1);
    };
    const auto makeAndShow = [count](Qt::LayoutDirection at) {
        auto window = std::make_unique<SheetWindow>(at);
        window->addTabs(count);
        window->addTabs(count, 1);
        return window->showAlone() ? std::move(window) : nullptr;
    };
    auto before = makeAndShow(direction);
    QVERIFY(before);
    QTRY_VERIFY(before->closeButton(count - 1));
    const QImage expected = imageOf(*before);
    before.reset();
    before = makeAndShow(other);
    QVERIFY(before);
    QTRY_VERIFY(before->closeButton(count - 1));
    const QImage expectedOther = imageOf(*before);
    QVERIFY(expected != expectedOther);

    before->setLayoutDirection(direction);
    VERIFY_IMAGE(ImageChecks::isSame(imageOf(*before), expected, before->content()->rect()));
    before->setLayoutDirection(other);
    VERIFY_IMAGE(ImageChecks::isSame(imageOf(*before), expectedOther, before->content()->rect()));
}

void tst_DockContainerSettling::restoringMinimizesASideWithoutViews_data()
{
    QTest::addColumn<DockContainer::DockArea>("area");
    QTest::addColumn<bool>("shown");
    for (const DockContainer::DockArea area : {DockContainer::Left, DockContainer::Right}) {
        QTest::addRow("%s, not shown", nameOf(area)) << area << false;
        QTest::addRow("%s, shown", nameOf(area)) << area << true;
    }
}

void tst_DockContainerSettling::restoringMinimizesASideWithoutViews()
{
    QFETCH(const DockContainer::DockArea, area);
    QFETCH(const bool, shown);
    QByteArray state;
    {
        ContainerWindow window;
        window.fill();
        QVERIFY(Input::show(&window));
        window.dragTo(150, 110, 160);
        Input::click(window.button(area));
        state = window.dock()->saveState();
    }
    ContainerWindow window;
    if (shown)
        QVERIFY(Input::show(&window));
    window.dock()->restoreState(state);
    QVERIFY(window.side(area)->isMinimized());
    window.fill();
    QVERIFY(!window.button(area)->isChecked());
    if (!shown)
        QVERIFY(Input::show(&window));
    QCoreApplication::processEvents();
    QVERIFY(!window.button(area)->isChecked());
    QCOMPARE(window.sizeOf(area), 0);
    Input::click(window.button(area));
    QVERIFY(window.button(area)->isChecked());
    QVERIFY(!window.side(area)->isMinimized());
    QCOMPARE(window.sizeOf(area), area == DockContainer::Left ? 150 : 160);
}

void tst_DockContainerSettling::stateOfAContainerNeverShownHidesNothing_data()
{
    QTest::addColumn<bool>("savedFilled");
    QTest::addColumn<bool>("restoredFilled");
    QTest::newRow("saved empty, restored empty") << false << false;
    QTest::newRow("saved empty, restored filled") << false << true;
    QTest::newRow("saved filled, restored empty") << true << false;
    QTest::newRow("saved filled, restored filled") << true << true;
}

void tst_DockContainerSettling::stateOfAContainerNeverShownHidesNothing()
{
    QFETCH(const bool, savedFilled);
    QFETCH(const bool, restoredFilled);
    ContainerWindow neverShown;
    if (savedFilled)
        neverShown.fill();
    ContainerWindow window;
    if (restoredFilled)
        window.fill();
    window.dock()->restoreState(neverShown.dock()->saveState());
    if (!restoredFilled)
        window.fill();
    QVERIFY(Input::show(&window));
    for (const DockContainer::DockArea area : Areas) {
        QVERIFY(!window.side(area)->isMinimized());
        QCOMPARE(window.sizeOf(area), firstRoomOf(window, area));
    }
}

void tst_DockContainerSettling::firstViewOfAShownWindowGetsItsHint()
{
    QFETCH(const DockContainer::DockArea, area);
    QFETCH(const QSize, hint);
    ContainerWindow window;
    window.addTab();
    QVERIFY(Input::show(&window));
    window.addView(area, hint);
    QTRY_COMPARE(window.sizeOf(area), firstRoomOf(window, area));
    QVERIFY(window.sizeOf(area) >= 80);
    // The next ones change nothing.
    window.dragEdge(area, 120);
    window.addView(area, {400, 400});
    QCoreApplication::processEvents();
    QCOMPARE(window.sizeOf(area), 120);
}

QTEST_MAIN(tst_DockContainerSettling)

#include "tst_dockcontainersettling.moc"
