// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/ContainerWindow.h"
#include "dock/DockStatusBar.h"

#include "core/StyleSheets.h"
#include "support/TestCase.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPointer>
#include <QScopeGuard>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace ContainerWindows;
using namespace VornFrame;

namespace {

/// A bar of a fixed width with a layout, as the bottom side has one.
QWidget *newBar(int width)
{
    auto *bar = new QWidget;
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(7, 7, 7, 7);
    auto *button = new QWidget;
    button->setFixedSize(width, 30);
    layout->addWidget(button);
    return bar;
}

/// A status bar with its bar, shown at a size of its own.
struct StatusBar
{
    explicit StatusBar(int barWidth = 100, Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        widget.setLayoutDirection(direction);
        bar = newBar(barWidth);
        bar->setParent(&before); // as in the container
        widget.setPanel(bar);
        widget.setSizeGripEnabled(false);
        widget.resize(600, 40);
    }

    QWidget *host() const { return bar->parentWidget(); }

    QWidget before;
    DockStatusBar widget{nullptr};
    QWidget *bar = nullptr;
};

/// A filled window with the bar of its bottom side in the status bar.
class BarWindow : public ContainerWindow
{
public:
    explicit BarWindow(Qt::LayoutDirection direction = Qt::LeftToRight) : ContainerWindow(direction)
    {
        fill();
    }

    QWidget *bottomBar() const { return bar(DockContainer::Bottom); }

    /// Where the bar starts, seen from the leading edge of the window.
    int barStart() const { return startOf(bottomBar()); }
    /// Where the bottom side starts.
    int sideStart() const { return startOf(vSplitter()); }

    [[nodiscard]] bool showSetUp()
    {
        dock()->setupMainWindow(this);
        return Input::show(this);
    }

private:
    int startOf(const QWidget *widget) const
    {
        const QRect area = areaOf(widget);
        return isRightToLeft() ? width() - 1 - area.right() : area.left();
    }
};

void addMoves()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<std::function<void(BarWindow &)>>("move");
    const auto rows = [](const char *name, const std::function<void(BarWindow &)> &move) {
        QTest::addRow("%s, left to right", name) << Qt::LeftToRight << move;
        QTest::addRow("%s, right to left", name) << Qt::RightToLeft << move;
    };
    rows("left side wider", [](BarWindow &window) { window.dragEdge(DockContainer::Left, 220); });
    rows("left side narrower", [](BarWindow &window) { window.dragEdge(DockContainer::Left, 60); });
    rows("left side dragged to nothing",
         [](BarWindow &window) { window.dragEdge(DockContainer::Left, 0); });
    rows("left side minimized",
         [](BarWindow &window) { Input::click(window.button(DockContainer::Left)); });
    rows("left side minimized and restored", [](BarWindow &window) {
        Input::click(window.button(DockContainer::Left));
        Input::click(window.button(DockContainer::Left));
    });
    rows("right side wider", [](BarWindow &window) { window.dragEdge(DockContainer::Right, 220); });
    rows("right side minimized",
         [](BarWindow &window) { Input::click(window.button(DockContainer::Right)); });
    rows("bottom side higher",
         [](BarWindow &window) { window.dragEdge(DockContainer::Bottom, 200); });
    rows("bottom side minimized",
         [](BarWindow &window) { Input::click(window.button(DockContainer::Bottom)); });
    rows("bottom side minimized, left side moved", [](BarWindow &window) {
        Input::click(window.button(DockContainer::Bottom));
        window.dragEdge(DockContainer::Left, 200);
    });
    rows("bottom side restored elsewhere", [](BarWindow &window) {
        Input::click(window.button(DockContainer::Bottom));
        window.dragEdge(DockContainer::Left, 200);
        Input::click(window.button(DockContainer::Bottom));
    });
    rows("window larger", [](BarWindow &window) { window.resize(1300, 800); });
    rows("window smaller", [](BarWindow &window) { window.resize(600, 400); });
    rows("left bar hidden", [](BarWindow &window) { window.bar(DockContainer::Left)->hide(); });
    rows("all views hidden",
         [](BarWindow &window) { window.dock()->setAllDockViewVisible(false); });
    rows("content hidden", [](BarWindow &window) { window.content()->removeTab(0, 0); });
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(BarWindow &)>)

class tst_DockStatusBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAStatusBarWithItsName();
    void holdsOneHostOverItsWidth();
    void takesTheBarIn();
    void givesTheBarItsMargins();
    void givesTheHostTheHeightOfTheBar();
    void barWithoutALayoutKeepsItsSize();
    void takesNoBarWithoutOne();
    void putsTheBarBelowThePlace_data();
    void putsTheBarBelowThePlace();
    void countsFromTheHost();
    void pullsTheBarInsideWhereItDoesNotFit_data();
    void pullsTheBarInsideWhereItDoesNotFit();
    void keepsThePlaceWhenResized();
    void survivesItsBar();

    void barIsBelowTheBottomSide_data();
    void barIsBelowTheBottomSide();
    void barFollows_data() { addMoves(); }
    void barFollows();
    void barStaysInsideOfTheStatusBar_data() { addDirections(); }
    void barStaysInsideOfTheStatusBar();
    void barTurnsWithTheLayoutDirection();
    void updatingPutsTheBarBack();
    void barHasItsRealSize_data();
    void barHasItsRealSize();
    void barGrowsWithItsButtons();
    void barShrinksWithItsButtons();
    void barButtonsWorkInTheStatusBar();
    void statusBarIs35PxHighBelowItsLine();
};

void tst_DockStatusBar::isAStatusBarWithItsName()
{
    const DockStatusBar bar(nullptr);
    QCOMPARE(bar.objectName(), u"dockStatusBar"_s);
    QVERIFY(bar.inherits("QStatusBar"));
    QWidget parent;
    const auto *child = new DockStatusBar(&parent);
    QCOMPARE(child->parent(), &parent);
}

void tst_DockStatusBar::holdsOneHostOverItsWidth()
{
    StatusBar status;
    QVERIFY(Input::show(&status.widget));
    QCOMPARE(status.host()->parentWidget(), &status.widget);
    QCOMPARE(status.host()->layout(), nullptr);
    QVERIFY(status.host()->width() > 580);
    const int before = status.host()->width();
    status.widget.resize(700, 40);
    QTRY_COMPARE(status.host()->width(), before + 100);
}

void tst_DockStatusBar::takesTheBarIn()
{
    auto status = std::make_unique<StatusBar>();
    const QPointer<QWidget> bar = status->bar;
    QVERIFY(Input::show(&status->widget));
    QVERIFY(bar->isVisible());
    status.reset();
    QVERIFY(!bar);
}

void tst_DockStatusBar::givesTheBarItsMargins()
{
    const StatusBar status;
    QCOMPARE(status.bar->layout()->contentsMargins(), QMargins(0, 1, 0, 0));
    DockStatusBar plain(nullptr);
    plain.setPanel(new QWidget); // no layout, no margins
}

void tst_DockStatusBar::givesTheHostTheHeightOfTheBar()
{
    StatusBar status;
    QVERIFY(Input::show(&status.widget));
    QCOMPARE(status.bar->size(), QSize(100, 31));
    QCOMPARE(status.host()->minimumHeight(), 31);
    QCOMPARE(status.host()->maximumHeight(), 31);
    QCOMPARE(status.bar->y(), 0);
}

void tst_DockStatusBar::barWithoutALayoutKeepsItsSize()
{
    DockStatusBar status(nullptr);
    status.resize(600, 40);
    auto *bar = new QWidget;
    bar->resize(120, 31);
    status.setPanel(bar);
    bar->show();
    QCOMPARE(bar->size(), QSize(120, 31));
    QCOMPARE(bar->parentWidget()->minimumHeight(), 31);
    QCOMPARE(bar->parentWidget()->maximumHeight(), 31);
    QVERIFY(Input::show(&status));
    status.resize(500, 40);
    QCOMPARE(bar->size(), QSize(120, 31));
    bar->resize(90, 20);
    QCOMPARE(bar->size(), QSize(90, 20));
    QCOMPARE(bar->parentWidget()->maximumHeight(), 20);
}

void tst_DockStatusBar::takesNoBarWithoutOne()
{
    DockStatusBar bar(nullptr);
    bar.movePanel(50);
    bar.setPanel(nullptr);
    bar.movePanel(-50);
    bar.resize(300, 40);
    QVERIFY(Input::show(&bar));
}

void tst_DockStatusBar::putsTheBarBelowThePlace_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("x");
    for (const int x : {200, 10, 300, 480}) {
        QTest::addRow("%d, left to right", x) << Qt::LeftToRight << x;
        QTest::addRow("%d, right to left", x) << Qt::RightToLeft << x;
    }
}

void tst_DockStatusBar::putsTheBarBelowThePlace()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const int, x);
    StatusBar status(100, direction);
    QVERIFY(Input::show(&status.widget));
    status.widget.movePanel(x);
    const QRect place(status.bar->mapTo(&status.widget, QPoint()), status.bar->size());
    QCOMPARE(
        direction == Qt::LeftToRight ? place.left() : status.widget.width() - 1 - place.right(), x);
}

void tst_DockStatusBar::countsFromTheHost()
{
    StatusBar status;
    QVERIFY(Input::show(&status.widget));
    status.widget.layout()->setContentsMargins(10, 0, 0, 0);
    status.widget.layout()->activate();
    const int hostX = status.host()->x();
    QVERIFY(hostX >= 10);
    status.widget.movePanel(200);
    QCOMPARE(status.bar->pos(), QPoint(200 - hostX, 0));
}

void tst_DockStatusBar::pullsTheBarInsideWhereItDoesNotFit_data()
{
    QTest::addColumn<int>("barWidth");
    QTest::addColumn<int>("x");
    QTest::newRow("a bit too far") << 100 << 520;
    QTest::newRow("far outside") << 100 << 100000;
    QTest::newRow("wider than the host") << 900 << 0;
    QTest::newRow("wider than the host, further on") << 900 << 300;
    QTest::newRow("wide") << 500 << 200;
}

void tst_DockStatusBar::pullsTheBarInsideWhereItDoesNotFit()
{
    QFETCH(const int, barWidth);
    QFETCH(const int, x);
    StatusBar status(barWidth);
    QVERIFY(Input::show(&status.widget));
    status.widget.resize(600, 40);
    status.widget.movePanel(x);
    QCOMPARE(status.bar->width(), barWidth);
    QCOMPARE(status.bar->x() + barWidth, status.host()->width());
}

void tst_DockStatusBar::keepsThePlaceWhenResized()
{
    StatusBar status;
    QVERIFY(Input::show(&status.widget));
    status.widget.movePanel(300);
    const int before = status.bar->x();
    status.widget.resize(350, 40);
    QTRY_COMPARE(status.bar->x() + 100, status.host()->width());
    status.widget.resize(800, 40);
    QTRY_COMPARE(status.bar->x(), before);
}

void tst_DockStatusBar::survivesItsBar()
{
    StatusBar status;
    QVERIFY(Input::show(&status.widget));
    delete status.bar;
    status.widget.movePanel(100);
    status.widget.resize(500, 40);
    QCoreApplication::processEvents();
    status.widget.setPanel(newBar(70));
}

void tst_DockStatusBar::barIsBelowTheBottomSide_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("setupFirst");
    QTest::newRow("set up before it is shown, left to right") << Qt::LeftToRight << true;
    QTest::newRow("set up before it is shown, right to left") << Qt::RightToLeft << true;
    QTest::newRow("set up when it is seen, left to right") << Qt::LeftToRight << false;
    QTest::newRow("set up when it is seen, right to left") << Qt::RightToLeft << false;
}

void tst_DockStatusBar::barIsBelowTheBottomSide()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const bool, setupFirst);
    BarWindow window(direction);
    if (setupFirst)
        window.dock()->setupMainWindow(&window);
    QVERIFY(Input::show(&window));
    if (!setupFirst)
        window.dock()->setupMainWindow(&window);
    QTRY_COMPARE(window.barStart(), window.sideStart());
    QVERIFY(window.sideStart() > 35);
    QTRY_VERIFY(window.areaOf(window.bottomBar()).top() > window.areaOf(window.dock()).bottom());
    QVERIFY(window.bottomBar()->isVisible());
}

void tst_DockStatusBar::barFollows()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const std::function<void(BarWindow &)>, move);
    BarWindow window(direction);
    QVERIFY(window.showSetUp());
    move(window);
    QTRY_COMPARE(window.barStart(), window.sideStart());
}

void tst_DockStatusBar::barStaysInsideOfTheStatusBar()
{
    QFETCH(const Qt::LayoutDirection, direction);
    BarWindow window(direction);
    for (int i = 0; i < 8; ++i)
        window.addView(DockContainer::Bottom);
    QVERIFY(window.showSetUp());
    const auto isInside = [&window] {
        return window.areaOf(window.dockStatusBar()).contains(window.areaOf(window.bottomBar()));
    };
    QVERIFY(isInside());
    window.dragEdge(DockContainer::Right, 0);
    window.dragEdge(DockContainer::Left, 700);
    QTRY_VERIFY(isInside());
    Input::click(window.button(DockContainer::Bottom));
    QTRY_VERIFY(isInside());
    window.resize(500, 400);
    QTRY_VERIFY(isInside());
}

void tst_DockStatusBar::barTurnsWithTheLayoutDirection()
{
    BarWindow window;
    QVERIFY(window.showSetUp());
    window.dragEdge(DockContainer::Left, 220);
    window.setLayoutDirection(Qt::RightToLeft);
    QTRY_COMPARE(window.barStart(), window.sideStart());
    QVERIFY(window.areaOf(window.bottomBar()).left() > window.width() / 2);
    window.setLayoutDirection(Qt::LeftToRight);
    QTRY_COMPARE(window.barStart(), window.sideStart());
}

void tst_DockStatusBar::updatingPutsTheBarBack()
{
    BarWindow window;
    QVERIFY(window.showSetUp());
    const int before = window.barStart();
    window.bottomBar()->move(3, 0);
    QVERIFY(window.barStart() != before);
    window.dock()->updateState();
    QCOMPARE(window.barStart(), before);
}

void tst_DockStatusBar::barHasItsRealSize_data()
{
    QTest::addColumn<bool>("setupFirst");
    QTest::addColumn<bool>("buttonsFirst");
    QTest::newRow("set up, filled, shown") << true << false;
    QTest::newRow("filled, set up, shown") << true << true;
    QTest::newRow("filled, shown, set up") << false << true;
    QTest::newRow("shown, set up, filled") << false << false;
}

void tst_DockStatusBar::barHasItsRealSize()
{
    QFETCH(const bool, setupFirst);
    QFETCH(const bool, buttonsFirst);
    ContainerWindow window;
    const auto addButtons = [&window] {
        for (int i = 0; i < 3; ++i)
            window.addView(DockContainer::Bottom);
    };
    if (buttonsFirst)
        addButtons();
    if (setupFirst)
        window.dock()->setupMainWindow(&window);
    if (setupFirst && !buttonsFirst)
        addButtons();
    QVERIFY(Input::show(&window));
    if (!setupFirst)
        window.dock()->setupMainWindow(&window);
    if (!setupFirst && !buttonsFirst)
        addButtons();
    const QWidget *bar = window.bar(DockContainer::Bottom);
    QTRY_COMPARE(bar->size(), bar->sizeHint());
    // A line, three buttons and the gaps between them.
    QVERIFY(bar->width() >= 3 * 30 + 3 * 6 + 1);
    QVERIFY(bar->height() >= 31);
    QCOMPARE(bar->parentWidget()->height(), bar->height());
    for (int i = 0; i < 3; ++i)
        QVERIFY(bar->rect().contains(window.button(DockContainer::Bottom, i)->geometry()));
}

void tst_DockStatusBar::barGrowsWithItsButtons()
{
    BarWindow window;
    QVERIFY(window.showSetUp());
    const QSize before = window.bottomBar()->size();
    window.addView(DockContainer::Bottom);
    QTRY_COMPARE(window.bottomBar()->width(), before.width() + 36);
    window.side(DockContainer::Bottom)->tabifyView(0, new QWidget, plainIcon(), u"second"_s);
    QTRY_COMPARE(window.bottomBar()->height(), before.height() + 27);
    QTRY_COMPARE(window.bottomBar()->parentWidget()->height(), window.bottomBar()->height());
    QCOMPARE(window.barStart(), window.sideStart());
}

void tst_DockStatusBar::barShrinksWithItsButtons()
{
    BarWindow window;
    window.addView(DockContainer::Bottom);
    QVERIFY(window.showSetUp());
    const QSize before = window.bottomBar()->size();
    window.side(DockContainer::Bottom)->setViewVisible(1, false);
    QTRY_COMPARE(window.bottomBar()->width(), before.width() - 36);
    window.side(DockContainer::Bottom)->setViewVisible(1, true);
    QTRY_COMPARE(window.bottomBar()->width(), before.width());
    QVERIFY(window.button(DockContainer::Bottom, 1)->isVisible());
}

void tst_DockStatusBar::barButtonsWorkInTheStatusBar()
{
    BarWindow window;
    window.addView(DockContainer::Bottom);
    QVERIFY(window.showSetUp());
    Input::click(window.button(DockContainer::Bottom, 1));
    QCOMPARE(window.side(DockContainer::Bottom)->currentIndex(), 1);
    Input::click(window.button(DockContainer::Bottom, 1));
    QVERIFY(window.side(DockContainer::Bottom)->isMinimized());
    QCOMPARE(window.sizeOf(DockContainer::Bottom), 0);
}

void tst_DockStatusBar::statusBarIs35PxHighBelowItsLine()
{
    const auto reset = qScopeGuard([] { qApp->setStyleSheet({}); });
    BarWindow window;
    StyleSheets::installGlobalSheet(&window);
    QVERIFY(window.showSetUp());
    QCOMPARE(window.dockStatusBar()->height(), 35);
    QCOMPARE(window.bottomBar()->height(), 31);
    QVERIFY(window.areaOf(window.dockStatusBar()).contains(window.areaOf(window.bottomBar())));
}

QTEST_MAIN(tst_DockStatusBar)

#include "tst_dockstatusbar.moc"
