// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/ContainerWindow.h"

#include "support/TestCase.h"

#include <QPointer>

using namespace Qt::StringLiterals;
using namespace ContainerWindows;
using namespace VornFrame;

class tst_DockContentTabs : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void addingTabsGivesTheirIndexes();
    void theFirstTabReportsTabThenSection();
    void theFirstTabOfAnotherSectionReportsThatInTheEnd();
    void aFurtherTabReportsNothing();
    void theFirstTabOfASecondSectionReportsItself();
    void aHiddenWidgetAsksToBeShownForEachTab();
    void aHiddenWidgetAsksAlsoWithoutAutoHide();
    void addingAgainShowsAHiddenSectionArea();
    void addingNothingIsRefused();
    void addingAnAncestorIsRefused();
    void addingATabAgainMovesIt();
    void movingTheOnlyTabToAnotherSectionIsNoEmptying();

    void removingTheLastTabReportsInOrder_data();
    void removingTheLastTabReportsInOrder();
    void removingFromAnEmptyWidgetReportsItsEmptiness();
    void removingKeepsTheWidget();
    void removingTheCurrentTabReportsTheNext();
    void removingATabBeforeTheCurrentOneReportsItsNewIndex();
    void removingATabBehindTheCurrentOneReportsNothing();
    void emptyingTheCurrentSectionShowsAnother();
    void emptyingAnotherSectionUnlistsIt();
    void fillingAgainReportsAsTheFirstTime();
    void deletingTheLastWidgetReportsItsEmptiness();
    void deletingATabOfSeveralReportsTheNext();

    void choosingATabReportsIt();
    void choosingTheCurrentTabReportsNothing();
    void choosingASectionReportsSectionThenTab();
    void choosingAnEmptySectionReportsNoTab();
    void choosingATabOutOfRangeShowsItsSection();
    void comingBackToASectionReportsItsTab();
    void clickingASectionShowsIt();
    void clickingATabShowsIt();
    void arrowKeysChangeTheTab();
    void draggingATabMovesIt();
    void hidingTheCurrentTabReportsAnother();
};

void tst_DockContentTabs::addingTabsGivesTheirIndexes()
{
    const ContentWindow window({0, 0});
    DockContentWidget *content = window.content();
    QCOMPARE(content->addTab(1, new QWidget, u"a"_s), 0);
    QCOMPARE(content->addTab(1, new QWidget, u"b"_s), 1);
    QCOMPARE(content->addTab(0, new QWidget, u"c"_s), 0);
    QCOMPARE(content->tabCount(0), 1);
    QCOMPARE(content->tabCount(1), 2);
    QCOMPARE(content->tabText(1, 1), u"b"_s);
    QCOMPARE(content->currentTab(1), 0);
}

void tst_DockContentTabs::theFirstTabReportsTabThenSection()
{
    ContentWindow window({0});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    window.addTab();
    QCOMPARE(log.take(), QStringList({u"tab 0 0"_s, u"section 0"_s}));
    QVERIFY(window.content()->isSectionBarVisible());
    QVERIFY(window.content()->isSectionVisible(0));
}

void tst_DockContentTabs::theFirstTabOfAnotherSectionReportsThatInTheEnd()
{
    ContentWindow window({0, 0, 0});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    window.addTab(2);
    // A row of tabs may turn to its first visible one by itself, and reports that too.
    const QStringList entries = log.take();
    QCOMPARE(entries.count(u"tab 2 0"_s), 1);
    QCOMPARE(entries.last(), u"section 2"_s);
    QVERIFY(window.content()->isSectionVisible(2));
    QVERIFY(!window.content()->isSectionVisible(0));
    window.content()->setCurrentTab(2, 0);
    QCOMPARE(window.content()->currentSection(), 2);
    QVERIFY(!log.take().contains(u"tab 2 0"_s));
}

void tst_DockContentTabs::aFurtherTabReportsNothing()
{
    ContentWindow window({1});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    QCOMPARE(window.addTab(), 1);
    QCOMPARE(window.addTab(), 2);
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(window.content()->currentTab(0), 0);
}

void tst_DockContentTabs::theFirstTabOfASecondSectionReportsItself()
{
    ContentWindow window({1, 0});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    window.addTab(1);
    QCOMPARE(log.take(), QStringList({u"tab 1 0"_s}));
    QCOMPARE(window.content()->currentSection(), 0);
    QVERIFY(window.content()->isSectionVisible(1));
}

void tst_DockContentTabs::aHiddenWidgetAsksToBeShownForEachTab()
{
    ContentWindow window({0});
    QVERIFY(Input::show(&window));
    window.content()->hide();
    TabLog log(window.content());
    window.addTab();
    QCOMPARE(log.take(), QStringList({u"tab 0 0"_s, u"visible 1"_s, u"section 0"_s}));
    window.addTab();
    QCOMPARE(log.take(), QStringList({u"visible 1"_s}));
    window.content()->show();
    window.addTab();
    QCOMPARE(log.take(), QStringList());
}

void tst_DockContentTabs::aHiddenWidgetAsksAlsoWithoutAutoHide()
{
    ContentWindow window({0});
    QVERIFY(Input::show(&window));
    window.content()->setAutoHide(false);
    window.content()->hide();
    TabLog log(window.content());
    window.addTab();
    QCOMPARE(log.take(), QStringList({u"tab 0 0"_s, u"visible 1"_s, u"section 0"_s}));
}

void tst_DockContentTabs::addingAgainShowsAHiddenSectionArea()
{
    ContentWindow window({1});
    QVERIFY(Input::show(&window));
    window.content()->setSectionBarVisible(false);
    TabLog log(window.content());
    window.addTab();
    QVERIFY(window.content()->isSectionBarVisible());
    QCOMPARE(log.take(), QStringList());
}

void tst_DockContentTabs::addingNothingIsRefused()
{
    ContentWindow window({0});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    QCOMPARE(window.content()->addTab(0, nullptr, u"a"_s), -1);
    QCOMPARE(window.content()->tabCount(0), 0);
    QVERIFY(!window.content()->isSectionBarVisible());
    QCOMPARE(log.take(), QStringList());
}

void tst_DockContentTabs::addingAnAncestorIsRefused()
{
    ContentWindow window({1});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    for (QWidget *widget = window.tabs(); widget; widget = widget->parentWidget()) {
        const QWidget *parent = widget->parentWidget();
        QCOMPARE(window.content()->addTab(0, widget, u"a"_s), -1);
        QCOMPARE(widget->parentWidget(), parent);
    }
    QCOMPARE(window.content()->tabCount(0), 1);
    QCOMPARE(log.take(), QStringList());
}

void tst_DockContentTabs::addingATabAgainMovesIt()
{
    const ContentWindow window({2, 1});
    QWidget *widget = window.content()->widget(0, 0);
    QCOMPARE(window.content()->addTab(1, widget, u"moved"_s), 1);
    QCOMPARE(window.content()->tabCount(0), 1);
    QCOMPARE(window.content()->sectionOf(widget), 1);
    QCOMPARE(window.content()->tabOf(widget), 1);
    QCOMPARE(window.content()->tabText(1, 1), u"moved"_s);
}

void tst_DockContentTabs::movingTheOnlyTabToAnotherSectionIsNoEmptying()
{
    ContentWindow window({1, 0});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    QCOMPARE(window.content()->addTab(1, window.content()->widget(0, 0), u"moved"_s), 0);
    QVERIFY(!window.content()->isSectionVisible(0));
    QVERIFY(window.content()->isSectionVisible(1));
    QVERIFY(window.content()->isSectionBarVisible());
    const QStringList entries = log.take();
    QVERIFY(entries.contains(u"tab 1 0"_s));
    QVERIFY(!entries.contains(u"section -1"_s));
    QVERIFY(!entries.contains(u"visible 0"_s));
}

void tst_DockContentTabs::removingTheLastTabReportsInOrder_data()
{
    QTest::addColumn<bool>("autoHide");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<QStringList>("entries");
    const QStringList empty{u"section -1"_s, u"tab -1 -1"_s};
    QTest::newRow("visible, auto-hide") << true << true << (QStringList{u"visible 0"_s} + empty);
    QTest::newRow("visible, no auto-hide") << false << true << empty;
    QTest::newRow("hidden, auto-hide") << true << false << empty;
    QTest::newRow("hidden, no auto-hide") << false << false << empty;
}

void tst_DockContentTabs::removingTheLastTabReportsInOrder()
{
    QFETCH(const bool, autoHide);
    QFETCH(const bool, visible);
    QFETCH(const QStringList, entries);
    ContentWindow window({0, 1});
    QVERIFY(Input::show(&window));
    window.content()->setAutoHide(autoHide);
    window.content()->setVisible(visible);
    TabLog log(window.content());
    window.removeTab(1, 0);
    QCOMPARE(log.take(), entries);
    QVERIFY(!window.content()->isSectionVisible(1));
    QVERIFY(!window.content()->isSectionBarVisible());
    QVERIFY(!visible || sectionArea(window.content())->isHidden());
    // The widget itself is left to whoever listens.
    QCOMPARE(window.content()->isVisible(), visible);
}

void tst_DockContentTabs::removingFromAnEmptyWidgetReportsItsEmptiness()
{
    ContentWindow window({0});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    window.content()->removeTab(0, 0);
    QCOMPARE(log.take(), QStringList({u"visible 0"_s, u"section -1"_s, u"tab -1 -1"_s}));
}

void tst_DockContentTabs::removingKeepsTheWidget()
{
    ContentWindow window({2});
    QVERIFY(Input::show(&window));
    const QPointer<QWidget> widget = window.content()->widget(0, 0);
    window.content()->removeTab(0, 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(widget);
    QVERIFY(!widget->isVisible());
    QVERIFY(window.isAncestorOf(widget));
    QCOMPARE(window.content()->addTab(0, widget, u"again"_s), 1);
}

void tst_DockContentTabs::removingTheCurrentTabReportsTheNext()
{
    ContentWindow window({3});
    QVERIFY(Input::show(&window));
    window.content()->setCurrentTab(0, 2);
    TabLog log(window.content());
    window.removeTab(0, 2);
    QCOMPARE(log.take(), QStringList({u"tab 0 1"_s}));
}

void tst_DockContentTabs::removingATabBeforeTheCurrentOneReportsItsNewIndex()
{
    ContentWindow window({3});
    QVERIFY(Input::show(&window));
    window.content()->setCurrentTab(0, 2);
    TabLog log(window.content());
    window.removeTab(0, 0);
    QCOMPARE(log.take(), QStringList({u"tab 0 1"_s}));
    QCOMPARE(window.content()->currentTab(0), 1);
}

void tst_DockContentTabs::removingATabBehindTheCurrentOneReportsNothing()
{
    ContentWindow window({3});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    window.removeTab(0, 2);
    QCOMPARE(log.take(), QStringList());
}

void tst_DockContentTabs::emptyingTheCurrentSectionShowsAnother()
{
    ContentWindow window({2, 1});
    QVERIFY(Input::show(&window));
    window.content()->setCurrentTab(1, 0);
    TabLog log(window.content());
    window.removeTab(1, 0);
    QCOMPARE(log.take(), QStringList({u"section 0"_s, u"tab 0 0"_s}));
    QCOMPARE(window.content()->currentSection(), 0);
    QVERIFY(!window.content()->isSectionVisible(1));
}

void tst_DockContentTabs::emptyingAnotherSectionUnlistsIt()
{
    ContentWindow window({2, 1});
    QVERIFY(Input::show(&window));
    QVERIFY(window.content()->isSectionVisible(1));
    TabLog log(window.content());
    window.removeTab(1, 0);
    QCOMPARE(log.take(), QStringList());
    QVERIFY(!window.content()->isSectionVisible(1));
    QVERIFY(window.content()->isSectionBarVisible());
}

void tst_DockContentTabs::fillingAgainReportsAsTheFirstTime()
{
    ContentWindow window({1});
    QVERIFY(Input::show(&window));
    window.removeTab(0, 0);
    TabLog log(window.content());
    window.addTab();
    QCOMPARE(log.take(), QStringList({u"tab 0 0"_s, u"section 0"_s}));
    QVERIFY(window.content()->isSectionVisible(0));
}

void tst_DockContentTabs::deletingTheLastWidgetReportsItsEmptiness()
{
    ContentWindow window({1});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    delete window.content()->widget(0, 0);
    QCOMPARE(log.take(), QStringList({u"visible 0"_s, u"section -1"_s, u"tab -1 -1"_s}));
    QCOMPARE(window.content()->tabCount(0), 0);
    QVERIFY(!window.content()->isSectionBarVisible());
    QVERIFY(!window.content()->isSectionVisible(0));
}

void tst_DockContentTabs::deletingATabOfSeveralReportsTheNext()
{
    ContentWindow window({2});
    QVERIFY(Input::show(&window));
    window.content()->setCurrentTab(0, 1);
    TabLog log(window.content());
    delete window.content()->widget(0, 1);
    QCOMPARE(log.take(), QStringList({u"tab 0 0"_s}));
}

void tst_DockContentTabs::choosingATabReportsIt()
{
    const ContentWindow window({3});
    TabLog log(window.content());
    window.content()->setCurrentTab(0, 2);
    window.content()->setCurrentTab(0, 1);
    QCOMPARE(log.take(), QStringList({u"tab 0 2"_s, u"tab 0 1"_s}));
    QCOMPARE(window.content()->currentTab(0), 1);
}

void tst_DockContentTabs::choosingTheCurrentTabReportsNothing()
{
    const ContentWindow window({2, 1});
    window.content()->setCurrentTab(0, 1);
    TabLog log(window.content());
    window.content()->setCurrentTab(0, 1);
    QCOMPARE(log.take(), QStringList());
}

void tst_DockContentTabs::choosingASectionReportsSectionThenTab()
{
    const ContentWindow window({2, 3});
    window.visitSections();
    TabLog log(window.content());
    window.content()->setCurrentTab(1, 2);
    QCOMPARE(log.take(), QStringList({u"section 1"_s, u"tab 1 0"_s, u"tab 1 2"_s}));
    QCOMPARE(window.content()->currentSection(), 1);
}

void tst_DockContentTabs::choosingAnEmptySectionReportsNoTab()
{
    const ContentWindow window({1, 0});
    TabLog log(window.content());
    window.content()->setCurrentTab(1, 0);
    QCOMPARE(log.take(), QStringList({u"section 1"_s, u"tab 1 -1"_s}));
}

void tst_DockContentTabs::choosingATabOutOfRangeShowsItsSection()
{
    const ContentWindow window({1, 2});
    for (const int index : {2, 1000, -1}) {
        window.visitSections();
        TabLog log(window.content());
        window.content()->setCurrentTab(1, index);
        QCOMPARE(log.take(), QStringList({u"section 1"_s, u"tab 1 0"_s}));
        QCOMPARE(window.content()->currentTab(1), 0);
    }
}

void tst_DockContentTabs::comingBackToASectionReportsItsTab()
{
    const ContentWindow window({2, 1});
    window.content()->setCurrentTab(0, 1);
    window.content()->setCurrentTab(1, 0);
    TabLog log(window.content());
    sectionArea(window.content())->setCurrentIndex(0);
    QCOMPARE(log.take(), QStringList({u"section 0"_s, u"tab 0 1"_s}));
}

void tst_DockContentTabs::clickingASectionShowsIt()
{
    ContentWindow window({1, 1});
    QVERIFY(Input::show(&window));
    window.visitSections();
    TabLog log(window.content());
    Input::click(window.sectionBar(), window.sectionBar()->tabRect(1).center());
    QCOMPARE(log.take(), QStringList({u"section 1"_s, u"tab 1 0"_s}));
}

void tst_DockContentTabs::clickingATabShowsIt()
{
    ContentWindow window({3});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    Input::click(window.bar(), window.onTab(2));
    QCOMPARE(log.take(), QStringList({u"tab 0 2"_s}));
    Input::click(window.bar(), window.onTab(2));
    QCOMPARE(log.take(), QStringList());
}

void tst_DockContentTabs::arrowKeysChangeTheTab()
{
    ContentWindow window({3});
    QVERIFY(Input::show(&window));
    window.bar()->setFocus();
    TabLog log(window.content());
    QTest::keyClick(window.bar(), Qt::Key_Right);
    QTest::keyClick(window.bar(), Qt::Key_Right);
    QTest::keyClick(window.bar(), Qt::Key_Left);
    QCOMPARE(log.take(), QStringList({u"tab 0 1"_s, u"tab 0 2"_s, u"tab 0 1"_s}));
}

void tst_DockContentTabs::draggingATabMovesIt()
{
    ContentWindow window({3});
    QVERIFY(Input::show(&window));
    QWidget *first = window.content()->widget(0, 0);
    QWidget *second = window.content()->widget(0, 1);
    TabLog log(window.content());
    Input::drag(window.bar(), window.onTab(0), window.onTab(1) + QPoint(20, 0));
    QCOMPARE(window.content()->tabOf(first), 1);
    QCOMPARE(window.content()->tabOf(second), 0);
    QCOMPARE(window.content()->currentTab(0), 1);
    QCOMPARE(log.take(), QStringList({u"tab 0 1"_s}));
}

void tst_DockContentTabs::hidingTheCurrentTabReportsAnother()
{
    ContentWindow window({2});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    window.content()->setTabVisible(0, 0, false);
    QCOMPARE(log.take(), QStringList({u"tab 0 1"_s}));
    window.content()->setTabVisible(0, 0, true);
    QCOMPARE(log.take(), QStringList());
}

QTEST_MAIN(tst_DockContentTabs)

#include "tst_dockcontenttabs.moc"
