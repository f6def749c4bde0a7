// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/ContainerWindow.h"

#include "support/TestCase.h"

#include <QAbstractAnimation>
#include <QTreeWidget>

#include <memory>

using namespace Qt::StringLiterals;
using namespace ContainerWindows;
using namespace VornFrame;

namespace {

/// A window and a container that can go before it or after it.
struct Parts
{
    Parts()
    {
        dock->setupMainWindow(window.get());
        for (const DockContainer::DockArea area : Areas) {
            for (int i = 0; i < 2; ++i)
                dock->panelWidget(area)->addView(new QTreeWidget, plainIcon(), u"view"_s);
        }
        dock->contentWidget()->addSection(u"section"_s);
        dock->contentWidget()->addTab(0, new QWidget, u"tab"_s);
    }

    std::unique_ptr<QMainWindow> window = std::make_unique<QMainWindow>();
    std::unique_ptr<DockContainer> dock = std::make_unique<DockContainer>();
};

} // namespace

class tst_DockStress : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void twoHundredTabsInASection();
    void twoHundredTabsRemovedFromTheFront();
    void eightSectionsWithTabs();
    void twelveViewsOnEachSide_data();
    void twelveViewsOnEachSide();
    void viewsAddedWhileMinimized_data() { addAreas(); }
    void viewsAddedWhileMinimized();
    void viewsAddedWhileHidden_data() { addAreas(); }
    void viewsAddedWhileHidden();

    void viewDeletedByItsOwner_data() { addAreas(); }
    void viewDeletedByItsOwner();
    void tabDeletedByItsOwner();
    void sidePartsDeletedByTheirOwner_data() { addAreas(); }
    void sidePartsDeletedByTheirOwner();
    void windowDeletedBeforeTheContainer();
    void windowDeletedAfterTheContainer();
    void containerDeletedWhileShown();
    void statusBarReplacedByTheApplication();

    void hundredRestoresLeaveNothingBehind();
    void hundredSetupsLeaveNothingBehind();
    void hundredTabsLeaveNothingBehind();
    void hundredMinimizingsKeepTheLayout();
    void allActionsWithoutAnyWindow();
};

void tst_DockStress::twoHundredTabsInASection()
{
    ContentWindow window({0});
    QVERIFY(Input::show(&window));
    for (int i = 0; i < 200; ++i)
        QCOMPARE(window.addTab(), i);
    TabLog log(window.content());
    QStringList expected;
    for (const int index : {199, 100, 0, 57}) {
        window.content()->setCurrentTab(0, index);
        expected.append(u"tab 0 %1"_s.arg(index));
        QVERIFY(window.content()->widget(0, index)->isVisible());
        QTRY_VERIFY(window.tabs()->rect().contains(
            QRect(window.bar()->mapTo(window.tabs(), window.bar()->tabRect(index).topLeft()),
                  QSize(10, 10))));
        Input::click(window.bar(), window.onTab(index), Qt::MiddleButton);
        expected.append(u"close 0 0 %1"_s.arg(index));
    }
    QCOMPARE(log.take(), expected);
}

void tst_DockStress::twoHundredTabsRemovedFromTheFront()
{
    ContentWindow window({200});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    for (int i = 0; i < 200; ++i)
        window.removeTab(0, 0);
    QCOMPARE(log.entries().last(3), QStringList({u"visible 0"_s, u"section -1"_s, u"tab -1 -1"_s}));
    QCOMPARE(log.entries().count(u"section -1"_s), 1);
    QCOMPARE(window.content()->tabCount(0), 0);
}

void tst_DockStress::eightSectionsWithTabs()
{
    ContentWindow window({3, 0, 3, 3, 0, 3, 3, 3});
    QVERIFY(Input::show(&window));
    window.visitSections();
    TabLog log(window.content());
    QStringList expected;
    for (const int section : {7, 2, 5, 3, 0, 6}) {
        Input::click(window.sectionBar(), window.sectionBar()->tabRect(section).center());
        expected << u"section %1"_s.arg(section) << u"tab %1 0"_s.arg(section);
        Input::click(window.bar(section), window.onTab(1, section));
        expected << u"tab %1 1"_s.arg(section);
        window.content()->setCurrentTab(section, 0);
        expected << u"tab %1 0"_s.arg(section);
    }
    QCOMPARE(log.take(), expected);
    QVERIFY(!window.content()->isSectionVisible(1));
    QVERIFY(!window.content()->isSectionVisible(4));
}

void tst_DockStress::twelveViewsOnEachSide_data()
{
    QTest::addColumn<bool>("setupFirst");
    QTest::addColumn<bool>("showFirst");
    QTest::newRow("set up, filled, shown") << true << false;
    QTest::newRow("set up, shown, filled") << true << true;
    QTest::newRow("filled, shown, set up") << false << false;
    QTest::newRow("shown, filled, set up") << false << true;
}

void tst_DockStress::twelveViewsOnEachSide()
{
    QFETCH(const bool, setupFirst);
    QFETCH(const bool, showFirst);
    ContainerWindow window;
    window.addTab();
    if (setupFirst)
        window.dock()->setupMainWindow(&window);
    if (showFirst)
        QVERIFY(Input::show(&window));
    for (const DockContainer::DockArea area : Areas) {
        for (int i = 0; i < 12; ++i) {
            window.addView(area);
            if (i % 3 == 0)
                window.side(area)->tabifyView(i, new QTreeWidget, plainIcon(), u"second"_s);
        }
    }
    if (!showFirst)
        QVERIFY(Input::show(&window));
    if (!setupFirst)
        window.dock()->setupMainWindow(&window);
    QCoreApplication::processEvents();
    for (const DockContainer::DockArea area : Areas) {
        QCOMPARE(window.side(area)->count(), 12);
        Input::click(window.button(area, 5));
        // Without a width before, the stack had no views to ask for one.
        QVERIFY(!window.side(area)->isMinimized());
        window.dragEdge(area, 130);
        QCOMPARE(window.side(area)->currentIndex(), 5);
        Input::click(window.button(area, 5));
        QCOMPARE(window.sizeOf(area), 0);
        Input::click(window.button(area, 7));
        QCOMPARE(window.sizeOf(area), 130);
        QCOMPARE(window.side(area)->currentIndex(), 7);
    }
}

void tst_DockStress::viewsAddedWhileMinimized()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragEdge(area, 130);
    Input::click(window.button(area));
    window.addView(area, {400, 400});
    window.side(area)->tabifyView(0, new QTreeWidget, plainIcon(), u"second"_s);
    QCoreApplication::processEvents();
    QCOMPARE(window.sizeOf(area), 0);
    QVERIFY(window.side(area)->isMinimized());
    Input::click(window.button(area, 1));
    QCOMPARE(window.sizeOf(area), 130);
    QCOMPARE(window.side(area)->currentIndex(), 1);
}

void tst_DockStress::viewsAddedWhileHidden()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragEdge(area, 130);
    window.hide();
    window.addView(area);
    window.side(area)->setCurrentIndex(1);
    QVERIFY(Input::show(&window));
    QCOMPARE(window.sizeOf(area), 130);
    QVERIFY(window.side(area)->isViewVisible(1));
    window.dock()->setAllDockViewVisible(false);
    window.addView(area);
    QCoreApplication::processEvents();
    QVERIFY(!window.stack(area)->isVisible());
    window.dock()->setAllDockViewVisible(true);
    QTRY_COMPARE(window.sizeOf(area), 130);
}

void tst_DockStress::viewDeletedByItsOwner()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    QWidget *second = window.addView(area);
    QVERIFY(Input::show(&window));
    window.side(area)->setCurrentIndex(1);
    delete second;
    QCoreApplication::processEvents();
    QCOMPARE(window.side(area)->count(), 2);
    window.dragEdge(area, 120);
    Input::click(window.button(area, 1));
    QCOMPARE(window.sizeOf(area), 0);
    Input::click(window.button(area, 0));
    QCOMPARE(window.sizeOf(area), 120);
}

void tst_DockStress::tabDeletedByItsOwner()
{
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    delete window.content()->widget(0, 0);
    QVERIFY(window.content()->isHidden());
    window.addTab();
    QVERIFY(window.content()->isVisible());
    QVERIFY(window.content()->height() > 0);
}

void tst_DockStress::sidePartsDeletedByTheirOwner()
{
    QFETCH(const DockContainer::DockArea, area);
    ContainerWindow window;
    window.fill();
    window.dock()->setupMainWindow(&window);
    QVERIFY(Input::show(&window));
    const QByteArray state = window.dock()->saveState();
    delete window.bar(area);
    QVERIFY(!window.bar(area));
    delete window.stack(area);
    QVERIFY(!window.stack(area));
    QCoreApplication::processEvents();
    window.side(area)->setMinimized(true);
    window.side(area)->setMinimized(false);
    window.dock()->setAllDockViewVisible(false);
    window.dock()->setAllDockViewVisible(true);
    window.dock()->setPanelCollapsible(false);
    window.dock()->restoreState(state);
    window.dock()->updateState();
    window.content()->removeTab(0, 0);
    window.addTab();
    window.resize(700, 500);
    QCoreApplication::processEvents();
    window.dock()->restoreState(window.dock()->saveState());
    for (const DockContainer::DockArea other : Areas) {
        if (other != area)
            Input::click(window.button(other));
    }
}

void tst_DockStress::windowDeletedBeforeTheContainer()
{
    Parts parts;
    parts.window->show();
    parts.dock->show();
    parts.window.reset();
    // The bar went with the status bar of the window.
    QVERIFY(!parts.dock->panelWidget(DockContainer::Bottom)->panel());
    parts.dock->updateState();
    parts.dock->resize(400, 300);
    QWidget late;
    QCOMPARE(parts.dock->panelWidget(DockContainer::Bottom)->addView(&late, plainIcon(), u"late"_s),
             -1);
    parts.dock->panelWidget(DockContainer::Bottom)->setViewVisible(0, false);
    parts.dock->restoreState(parts.dock->saveState());
    QMainWindow other;
    parts.dock->setupMainWindow(&other);
    QCoreApplication::processEvents();
}

void tst_DockStress::windowDeletedAfterTheContainer()
{
    Parts parts;
    parts.window->show();
    parts.dock->show();
    parts.dock.reset();
    auto *status = parts.window->findChild<QStatusBar *>(u"dockStatusBar"_s);
    QVERIFY(status);
    parts.window->resize(500, 400);
    QCoreApplication::processEvents();
    QVERIFY(status->findChildren<QAbstractButton *>().isEmpty());
    parts.window.reset();
}

void tst_DockStress::containerDeletedWhileShown()
{
    QMainWindow window;
    auto *dock = new DockContainer;
    window.setCentralWidget(dock);
    dock->setupMainWindow(&window);
    for (const DockContainer::DockArea area : Areas)
        dock->panelWidget(area)->addView(new QTreeWidget, plainIcon(), u"view"_s);
    QVERIFY(Input::show(&window));
    dock->restoreState(dock->saveState());
    delete dock;
    QCoreApplication::processEvents();
    auto *second = new DockContainer;
    window.setCentralWidget(second);
    second->setupMainWindow(&window);
    QCoreApplication::processEvents();
    QCOMPARE(window.statusBar()->objectName(), u"dockStatusBar"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(window.findChildren<QStatusBar *>().size(), 1);
}

void tst_DockStress::statusBarReplacedByTheApplication()
{
    ContainerWindow window;
    window.fill();
    window.dock()->setupMainWindow(&window);
    QVERIFY(Input::show(&window));
    auto *own = new QStatusBar;
    window.setStatusBar(own);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    window.dock()->updateState();
    window.dragEdge(DockContainer::Left, 220);
    window.dock()->setupMainWindow(&window);
    QCOMPARE(window.statusBar(), own);
}

void tst_DockStress::hundredRestoresLeaveNothingBehind()
{
    ContainerWindow window;
    window.fill();
    window.dock()->setupMainWindow(&window);
    QVERIFY(Input::show(&window));
    window.dragTo(150, 120, 160);
    const QByteArray state = window.dock()->saveState();
    window.dock()->restoreState(state);
    QCoreApplication::processEvents();
    // The main window moves its parts there.
    QTRY_VERIFY(window.findChildren<QAbstractAnimation *>().isEmpty());
    const qsizetype before = window.findChildren<QObject *>().size();
    for (int i = 0; i < 100; ++i)
        window.dock()->restoreState(state);
    QCoreApplication::processEvents();
    QTRY_COMPARE(window.findChildren<QObject *>().size(), before);
    QCOMPARE(window.dock()->saveState(), state);
}

void tst_DockStress::hundredSetupsLeaveNothingBehind()
{
    ContainerWindow window;
    window.fill();
    QMainWindow other;
    window.dock()->setupMainWindow(&window);
    QVERIFY(Input::show(&window));
    QTRY_VERIFY(window.findChildren<QAbstractAnimation *>().isEmpty());
    const qsizetype before = window.findChildren<QObject *>().size();
    for (int i = 0; i < 100; ++i) {
        window.dock()->setupMainWindow(&other);
        window.dock()->setupMainWindow(&window);
    }
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTRY_COMPARE(window.findChildren<QObject *>().size(), before);
    QVERIFY(window.isAncestorOf(window.bar(DockContainer::Bottom)));
}

void tst_DockStress::hundredTabsLeaveNothingBehind()
{
    ContentWindow window({1});
    QVERIFY(Input::show(&window));
    window.addTab();
    window.removeTab(0, 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const qsizetype before = window.findChildren<QObject *>().size();
    for (int i = 0; i < 100; ++i) {
        window.addTab();
        window.removeTab(0, 1);
    }
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(window.findChildren<QObject *>().size(), before);
}

void tst_DockStress::hundredMinimizingsKeepTheLayout()
{
    ContainerWindow window;
    window.fill();
    window.dock()->setupMainWindow(&window);
    QVERIFY(Input::show(&window));
    window.dragTo(150, 120, 160);
    const QByteArray state = window.dock()->saveState();
    for (int i = 0; i < 100; ++i) {
        for (const DockContainer::DockArea area : Areas)
            window.button(area)->click();
    }
    QCOMPARE(window.dock()->saveState(), state);
    QCOMPARE(window.sizeOf(DockContainer::Bottom), 120);
}

void tst_DockStress::allActionsWithoutAnyWindow()
{
    DockContainer dock;
    for (const DockContainer::DockArea area : Areas) {
        DockPanelWidget *side = dock.panelWidget(area);
        QCOMPARE(side->addView(new QWidget, {}, {}), 0);
        for (const bool minimized : {true, true, false, false}) {
            side->setMinimized(minimized);
            Q_EMIT side->signalMinimized(minimized);
        }
        side->setViewVisible(0, false);
        side->setViewVisible(0, true);
    }
    dock.setAllDockViewVisible(false);
    dock.setPanelCollapsible(false);
    dock.updateState();
    dock.restoreState(dock.saveState());
    dock.contentWidget()->addTab(dock.contentWidget()->addSection({}), new QWidget, {});
    dock.contentWidget()->removeTab(0, 0);
    QCoreApplication::processEvents();
    QVERIFY(!dock.isVisible());
}

QTEST_MAIN(tst_DockStress)

#include "tst_dockstress.moc"
