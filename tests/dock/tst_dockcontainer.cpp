// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/ContainerWindow.h"
#include "dock/DockContainer_p.h"

#include "support/TestCase.h"

#include <QFile>
#include <QHBoxLayout>
#include <QPointer>

#include <memory>

using namespace Qt::StringLiterals;
using namespace ContainerWindows;
using namespace VornFrame;

namespace {

class CountedPrivate : public DockContainerPrivate
{
    Q_DISABLE_COPY_MOVE(CountedPrivate)

public:
    explicit CountedPrivate(int *destroyed) : m_destroyed(destroyed) {}
    ~CountedPrivate() override { ++*m_destroyed; }

private:
    int *m_destroyed;
};

class DerivedContainer : public DockContainer
{
    Q_OBJECT

public:
    explicit DerivedContainer(CountedPrivate &d) : DockContainer(d, nullptr)
    {
        wasEmpty = children().isEmpty();
        d.init();
    }

    bool wasEmpty = false;
};

/// Notes which of several widgets are hidden or shown, in order.
class VisibilityLog : public QObject
{
public:
    void watch(QWidget *widget, const QString &name)
    {
        widget->setObjectName(name);
        widget->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::HideToParent)
            entries.append(u"hide "_s + watched->objectName());
        if (event->type() == QEvent::ShowToParent)
            entries.append(u"show "_s + watched->objectName());
        return false;
    }

    QStringList entries;
};

QWidget *itemAt(const QLayout *layout, int index)
{
    QLayoutItem *item = layout->itemAt(index);
    return item ? item->widget() : nullptr;
}

} // namespace

class tst_DockContainer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAFrameInTheNamespace();
    void belongsToItsParent();
    void aSubclassHandsItsOwnPrivateObject();
    void areasHaveTheNumbersOfDirections();
    void areaGivesItsSide_data();
    void areaGivesItsSide();
    void ownsItsSidesAndTheirWidgets();
    void barsStandAroundTheHorizontalSplitter();
    void horizontalSplitterHoldsTheColumnBetweenTheSides();
    void columnHoldsTheVerticalSplitterAboveTheBar();
    void verticalSplitterHoldsContentAndBottomSide();
    void contentIsHiddenAtFirst();
    void hasTheSheetOfTheDock();
    void allWidgetsHaveTheFontOfTheSheet();

    void setupTakesTheBottomBarIntoTheStatusBar();
    void setupWithoutWindowDoesNothing();
    void setupAgainDoesNothing();
    void setupOfAnotherWindowMovesTheStatusBar();
    void updatingWithoutWindowDoesNothing();

    void hidingAllViewsKeepsTheBars();
    void hidingAllViewsWorksBeforeShow();
    void everythingMayBeCollapsedButTheColumn_data();
    void everythingMayBeCollapsedButTheColumn();
    void aSideCollapsesOnlyWhenAllowed_data() { addAreas(); }
    void aSideCollapsesOnlyWhenAllowed();
    void contentCollapsesOnlyWhenAllowed();
    void theColumnNeverCollapses();
    void mirrorsItsSides();
    void barsOfTheSidesAre35PxWide_data() { addDirections(); }
    void barsOfTheSidesAre35PxWide();
};

void tst_DockContainer::isAFrameInTheNamespace()
{
    const DockContainer dock;
    QCOMPARE(dock.metaObject()->className(), "VornFrame::DockContainer");
    QCOMPARE(dock.metaObject()->superClass(), &QFrame::staticMetaObject);
}

void tst_DockContainer::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<DockContainer> dock = new DockContainer(parent.get());
    QCOMPARE(dock->parent(), parent.get());
    parent.reset();
    QVERIFY(!dock);
}

void tst_DockContainer::aSubclassHandsItsOwnPrivateObject()
{
    int destroyed = 0;
    {
        const DerivedContainer dock(*new CountedPrivate(&destroyed));
        QVERIFY(dock.wasEmpty);
        QVERIFY(dock.contentWidget());
    }
    QCOMPARE(destroyed, 1);
}

void tst_DockContainer::areasHaveTheNumbersOfDirections()
{
    QCOMPARE(int(DockContainer::Left), 0);
    QCOMPARE(int(DockContainer::Right), 1);
    QCOMPARE(int(DockContainer::Bottom), 2);
    QCOMPARE(int(DockPanelWidget::Left), 0);
    QCOMPARE(int(DockPanelWidget::Right), 1);
    QCOMPARE(int(DockPanelWidget::Bottom), 2);
}

void tst_DockContainer::areaGivesItsSide_data()
{
    QTest::addColumn<int>("area");
    QTest::addColumn<QString>("direction");
    QTest::newRow("left") << 0 << u"left"_s;
    QTest::newRow("right") << 1 << u"right"_s;
    QTest::newRow("bottom") << 2 << u"bottom"_s;
    for (const int area : {3, 99, -1, std::numeric_limits<int>::max()})
        QTest::addRow("%d", area) << area << u"right"_s;
}

void tst_DockContainer::areaGivesItsSide()
{
    QFETCH(const int, area);
    QFETCH(const QString, direction);
    const DockContainer dock;
    // Read from memory, as a program's settings are.
    const DockPanelWidget *side = dock.panelWidget(DockContainer::DockArea(area));
    QVERIFY(side);
    QCOMPARE(side->panel()->property("direction").toString(), direction);
    QCOMPARE(side->stackedWidget()->property("direction").toString(), direction);
}

void tst_DockContainer::ownsItsSidesAndTheirWidgets()
{
    auto window = std::make_unique<ContainerWindow>();
    window->fill();
    QList<QPointer<QObject>> parts{window->content()};
    for (const DockContainer::DockArea area : Areas)
        parts << window->side(area) << window->stack(area) << window->bar(area);
    window.reset();
    for (const QPointer<QObject> &part : std::as_const(parts))
        QVERIFY(!part);
}

void tst_DockContainer::barsStandAroundTheHorizontalSplitter()
{
    const ContainerWindow window;
    const auto *layout = qobject_cast<QHBoxLayout *>(window.dock()->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), 3);
    QCOMPARE(itemAt(layout, 0), window.bar(DockContainer::Left));
    QCOMPARE(itemAt(layout, 1), window.hSplitter());
    QCOMPARE(itemAt(layout, 2), window.bar(DockContainer::Right));
}

void tst_DockContainer::horizontalSplitterHoldsTheColumnBetweenTheSides()
{
    const ContainerWindow window;
    const QSplitter *splitter = window.hSplitter();
    QCOMPARE(splitter->orientation(), Qt::Horizontal);
    QCOMPARE(splitter->handleWidth(), 0);
    QCOMPARE(splitter->count(), 3);
    QCOMPARE(splitter->widget(0), window.stack(DockContainer::Left));
    QCOMPARE(splitter->widget(1)->metaObject(), &QWidget::staticMetaObject);
    QCOMPARE(splitter->widget(2), window.stack(DockContainer::Right));
    const std::array<int, 3> stretches{1, 5, 1};
    for (int i = 0; i < 3; ++i)
        QCOMPARE(splitter->widget(i)->sizePolicy().horizontalStretch(),
                 stretches.at(std::size_t(i)));
}

void tst_DockContainer::columnHoldsTheVerticalSplitterAboveTheBar()
{
    const ContainerWindow window;
    const auto *layout = qobject_cast<QVBoxLayout *>(window.column()->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), 2);
    QCOMPARE(itemAt(layout, 0), window.vSplitter());
    QCOMPARE(itemAt(layout, 1), window.bar(DockContainer::Bottom));
}

void tst_DockContainer::verticalSplitterHoldsContentAndBottomSide()
{
    const ContainerWindow window;
    const QSplitter *splitter = window.vSplitter();
    QCOMPARE(splitter->orientation(), Qt::Vertical);
    QCOMPARE(splitter->handleWidth(), 0);
    QCOMPARE(splitter->count(), 2);
    QCOMPARE(splitter->widget(0), window.content());
    QCOMPARE(splitter->widget(1), window.stack(DockContainer::Bottom));
    QCOMPARE(splitter->widget(0)->sizePolicy().verticalStretch(), 50);
    QCOMPARE(splitter->widget(1)->sizePolicy().verticalStretch(), 1);
}

void tst_DockContainer::contentIsHiddenAtFirst()
{
    ContainerWindow window;
    QVERIFY(window.content()->isHidden());
    QVERIFY(Input::show(&window));
    QVERIFY(!window.content()->isVisible());
    QVERIFY(window.stack(DockContainer::Left)->isVisible());
}

void tst_DockContainer::hasTheSheetOfTheDock()
{
    QFile file(u":/res/dockLight.css"_s);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const DockContainer dock;
    QCOMPARE(dock.styleSheet(), QString::fromUtf8(file.readAll()));
}

void tst_DockContainer::allWidgetsHaveTheFontOfTheSheet()
{
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    const auto widgets = window.dock()->findChildren<QWidget *>();
    QVERIFY(widgets.size() > 20);
    for (const QWidget *widget : widgets) {
        if (widget->isVisible())
            QCOMPARE(widget->font().family(), u"微软雅黑"_s);
    }
    QVERIFY(window.font().family() != u"微软雅黑"_s);
}

void tst_DockContainer::setupTakesTheBottomBarIntoTheStatusBar()
{
    auto window = std::make_unique<ContainerWindow>();
    window->fill();
    QVERIFY(!window->dockStatusBar());
    window->dock()->setupMainWindow(window.get());
    const QPointer<QStatusBar> statusBar = window->dockStatusBar();
    QVERIFY(statusBar);
    QCOMPARE(window->statusBar(), statusBar);
    QVERIFY(statusBar->isAncestorOf(window->bar(DockContainer::Bottom)));
    QCOMPARE(window->column()->layout()->count(), 1);
    QVERIFY(Input::show(window.get()));
    QVERIFY(window->bar(DockContainer::Bottom)->isVisible());
    window.reset();
    QVERIFY(!statusBar);
}

void tst_DockContainer::setupWithoutWindowDoesNothing()
{
    const ContainerWindow window;
    window.dock()->setupMainWindow(nullptr);
    QVERIFY(!window.dockStatusBar());
    QVERIFY(window.column()->isAncestorOf(window.bar(DockContainer::Bottom)));
    window.dock()->updateState();
}

void tst_DockContainer::setupAgainDoesNothing()
{
    ContainerWindow window;
    window.fill();
    window.dock()->setupMainWindow(&window);
    QVERIFY(Input::show(&window));
    const QPointer<QStatusBar> statusBar = window.dockStatusBar();
    QWidget *bar = window.bar(DockContainer::Bottom);
    bar->layout()->setContentsMargins(1, 2, 3, 4);
    const QRect before = bar->geometry();
    window.dock()->setupMainWindow(&window);
    window.dock()->setupMainWindow(nullptr);
    QCOMPARE(window.findChildren<QStatusBar *>().size(), 1);
    QCOMPARE(window.dockStatusBar(), statusBar);
    QCOMPARE(bar->layout()->contentsMargins(), QMargins(1, 2, 3, 4));
    QCOMPARE(bar->x(), before.x());
}

void tst_DockContainer::setupOfAnotherWindowMovesTheStatusBar()
{
    auto second = std::make_unique<QMainWindow>();
    ContainerWindow window;
    window.fill();
    window.dock()->setupMainWindow(&window);
    window.dock()->setupMainWindow(second.get());
    QVERIFY(!window.dockStatusBar());
    QVERIFY(second->findChild<QStatusBar *>(u"dockStatusBar"_s));
    QVERIFY(second->isAncestorOf(window.bar(DockContainer::Bottom)));
    window.dock()->updateState();
    QVERIFY(Input::show(&window));
    window.dock()->setupMainWindow(&window);
    QVERIFY(window.isAncestorOf(window.bar(DockContainer::Bottom)));
}

void tst_DockContainer::updatingWithoutWindowDoesNothing()
{
    ContainerWindow window;
    window.fill();
    window.dock()->updateState();
    QVERIFY(Input::show(&window));
    const QRect before = window.areaOf(window.bar(DockContainer::Bottom));
    window.dock()->updateState();
    QCOMPARE(window.areaOf(window.bar(DockContainer::Bottom)), before);
}

void tst_DockContainer::hidingAllViewsKeepsTheBars()
{
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    VisibilityLog log;
    for (const DockContainer::DockArea area : Areas)
        log.watch(window.stack(area), QString::fromLatin1(nameOf(area)));
    window.dock()->setAllDockViewVisible(false);
    QCOMPARE(log.entries, QStringList({u"hide left"_s, u"hide bottom"_s, u"hide right"_s}));
    for (const DockContainer::DockArea area : Areas) {
        QVERIFY(!window.stack(area)->isVisible());
        QVERIFY(window.bar(area)->isVisible());
        QVERIFY(window.button(area)->isVisible());
    }
    log.entries.clear();
    window.dock()->setAllDockViewVisible(true);
    QCOMPARE(log.entries, QStringList({u"show left"_s, u"show bottom"_s, u"show right"_s}));
    for (const DockContainer::DockArea area : Areas)
        QVERIFY(window.stack(area)->isVisible());
}

void tst_DockContainer::hidingAllViewsWorksBeforeShow()
{
    ContainerWindow window;
    window.fill();
    window.dock()->setAllDockViewVisible(false);
    QVERIFY(Input::show(&window));
    for (const DockContainer::DockArea area : Areas) {
        QVERIFY(!window.stack(area)->isVisible());
        QVERIFY(window.bar(area)->isVisible());
    }
}

void tst_DockContainer::everythingMayBeCollapsedButTheColumn_data()
{
    QTest::addColumn<QList<bool>>("calls");
    QTest::addColumn<bool>("collapsible");
    QTest::newRow("at first") << QList<bool>() << true;
    QTest::newRow("forbidden") << QList<bool>{false} << false;
    QTest::newRow("allowed") << QList<bool>{true} << true;
    QTest::newRow("forbidden and allowed") << QList<bool>{false, true} << true;
}

void tst_DockContainer::everythingMayBeCollapsedButTheColumn()
{
    QFETCH(const QList<bool>, calls);
    QFETCH(const bool, collapsible);
    const ContainerWindow window;
    for (const bool call : calls)
        window.dock()->setPanelCollapsible(call);
    QCOMPARE(window.hSplitter()->isCollapsible(0), collapsible);
    QVERIFY(!window.hSplitter()->isCollapsible(1));
    QCOMPARE(window.hSplitter()->isCollapsible(2), collapsible);
    QCOMPARE(window.vSplitter()->isCollapsible(0), collapsible);
    QCOMPARE(window.vSplitter()->isCollapsible(1), collapsible);
}

void tst_DockContainer::aSideCollapsesOnlyWhenAllowed()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dock()->setPanelCollapsible(false);
    window.dragEdge(area, 0);
    const QSize least = window.stack(area)->minimumSizeHint();
    QCOMPARE(window.sizeOf(area), area == DockContainer::Bottom ? least.height() : least.width());
    QVERIFY(window.sizeOf(area) > 0);
    QVERIFY(!window.side(area)->isMinimized());
    window.dock()->setPanelCollapsible(true);
    window.dragEdge(area, 0);
    QCOMPARE(window.sizes(area).at(window.indexOf(area)), 0);
    QVERIFY(window.side(area)->isMinimized());
}

void tst_DockContainer::contentCollapsesOnlyWhenAllowed()
{
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dock()->setPanelCollapsible(false);
    window.dragEdge(DockContainer::Bottom, window.vSplitter()->height());
    QVERIFY(window.vSplitter()->sizes().at(0) > 0);
    window.dock()->setPanelCollapsible(true);
    window.dragEdge(DockContainer::Bottom, window.vSplitter()->height());
    QCOMPARE(window.vSplitter()->sizes().at(0), 0);
    QVERIFY(!window.side(DockContainer::Bottom)->isMinimized());
}

void tst_DockContainer::theColumnNeverCollapses()
{
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragEdge(DockContainer::Left, window.hSplitter()->width());
    QVERIFY(window.column()->width() > 0);
    window.dragEdge(DockContainer::Left, 100);
    window.dragEdge(DockContainer::Right, window.hSplitter()->width());
    QVERIFY(window.column()->width() > 0);
}

void tst_DockContainer::mirrorsItsSides()
{
    ContainerWindow window(Qt::RightToLeft);
    window.fill();
    QVERIFY(Input::show(&window));
    const auto x = [&window](const QWidget *widget) { return window.areaOf(widget).left(); };
    QCOMPARE(window.areaOf(window.bar(DockContainer::Left)).right(), window.width() - 1);
    QVERIFY(x(window.bar(DockContainer::Left)) > x(window.stack(DockContainer::Left)));
    QVERIFY(x(window.stack(DockContainer::Left)) > x(window.column()));
    QVERIFY(x(window.column()) > x(window.stack(DockContainer::Right)));
    QVERIFY(x(window.stack(DockContainer::Right)) > x(window.bar(DockContainer::Right)));
    QCOMPARE(x(window.bar(DockContainer::Right)), 0);
    // The bar of the bottom side starts where its side does.
    QCOMPARE(window.areaOf(window.bar(DockContainer::Bottom)).right(),
             window.areaOf(window.column()).right());
}

void tst_DockContainer::barsOfTheSidesAre35PxWide()
{
    QFETCH(const Qt::LayoutDirection, direction);
    ContainerWindow window(direction);
    window.fill();
    QVERIFY(Input::show(&window));
    QCOMPARE(window.bar(DockContainer::Left)->width(), 35);
    QCOMPARE(window.bar(DockContainer::Right)->width(), 35);
    QCOMPARE(window.bar(DockContainer::Left)->height(), window.dock()->contentsRect().height());
}

QTEST_MAIN(tst_DockContainer)

#include "tst_dockcontainer.moc"
