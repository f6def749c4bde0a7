// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "LookRestorer.h"

#include <VornFrame/DockContainer.h>
#include <VornFrame/DockContentWidget.h>
#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonPage.h>
#include <VornFrame/VornFrameAgent.h>

#include "ribbon/RibbonTab.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <QDialog>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalSpy>
#include <QTabBar>

#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

/// A window with two ordinary pages, three temporary ones, and three sections with a tab each.
struct Workbench
{
    Workbench()
    {
        agent->setup(window.get(), false, true);
        RibbonBar *bar = agent->ribbonBar();
        for (const auto &title : {u"Home"_s, u"View"_s})
            pages.append(bar->addPage(title));
        for (const auto &title : {u"Text"_s, u"Picture"_s, u"Table"_s})
            pages.append(bar->addPage(title, true));
        for (const auto &text : {u"Texts"_s, u"Pictures"_s, u"Tables"_s})
            content()->addTab(content()->addSection(text), new QWidget, u"Tab"_s);
        content()->setCurrentTab(2, 0);
        bar->setCurrentIndex(1);
    }

    DockContentWidget *content() const { return agent->dockContainer()->contentWidget(); }

    /// The titles of the pages whose tabs are shown, the current one in brackets.
    QString shown() const
    {
        const RibbonBar *bar = agent->ribbonBar();
        const QList<RibbonTab *> tabs = bar->findChildren<RibbonTab *>();
        QStringList titles;
        for (int i = 0; i < tabs.size(); ++i) {
            const QString title = tabs.at(i)->isHidden() ? u"hidden"_s : tabs.at(i)->text();
            if (bar->page(i) == bar->currentPage())
                titles.append(u'[' + title + u']');
            else if (!tabs.at(i)->isHidden())
                titles.append(title);
        }
        return titles.join(u' ');
    }

    void switchTo(int section) const { content()->setCurrentTab(section, 0); }

    bool bind(const QList<int> &indexes, int section) const
    {
        QList<RibbonPage *> bound;
        for (const int index : indexes)
            bound.append(pages.value(index));
        return agent->bindRibbonPagesAndDockPartition(bound, section);
    }

    LookRestorer restorer;
    std::unique_ptr<QMainWindow> window = std::make_unique<QMainWindow>();
    std::unique_ptr<VornFrameAgent> agent = std::make_unique<VornFrameAgent>();
    QList<RibbonPage *> pages;
};

constexpr int NoPage = -1; ///< as an index: a null entry

} // namespace

class tst_VornFrameAgentSections : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void bindsPagesToASection();
    void refusesAnEmptyList();
    void refusesBeforeAnySetup();
    void refusesAfterTheSetupOfADialog();
    void refusesAfterAnEmptySetup();

    void showsTheBoundPages_data();
    void showsTheBoundPages();
    void aSectionWithoutBindingMakesTheFirstPageCurrent();
    void withoutAnyBindingTheFirstPageBecomesCurrent();
    void anEmptyListLeavesTheFormerBinding();
    void aNewBindingReplacesTheFormerOne();
    void aBindingTakesEffectWithTheNextSwitch();
    void aPageThatIsNotTemporaryIsNotHiddenAgain();
    void aPageOfAnotherBarIsLeftAlone();
    void aDeletedPageIsSkipped();
    void theLastTabOfAllGivesSectionMinusOne();
    void theFirstTabOfAllShowsTheBoundPages();
    void changesTheCurrentPageSilently();
    void aClickOnASectionTabShowsItsPages();

    void theSectionMayDeleteTheAgent();
    void theSectionMayDeleteTheWindow();
    void aClickedSectionMayDeleteTheWindow();
    void theFirstTabMayDeleteTheWindow();
    void theLastTabMayDeleteTheWindow();
    void aPageThatIsShownMayDeleteTheAgent();
    void anAgentThatIsEndingHearsNoSection();
};

void tst_VornFrameAgentSections::bindsPagesToASection()
{
    const Workbench bench;
    QVERIFY(bench.bind({2}, 0));
    QVERIFY(bench.bind({3, 4}, 7)); // there is no such section yet
    QVERIFY(bench.bind({NoPage}, -3));
}

void tst_VornFrameAgentSections::refusesAnEmptyList()
{
    const Workbench bench;
    QVERIFY(!bench.bind({}, 0));
}

void tst_VornFrameAgentSections::refusesBeforeAnySetup()
{
    const LookRestorer restorer;
    VornFrameAgent agent;
    const std::unique_ptr<RibbonBar> bar(agent.ribbonBar());
    QVERIFY(!agent.bindRibbonPagesAndDockPartition({bar->addPage(u"Page"_s, true)}, 0));
}

void tst_VornFrameAgentSections::refusesAfterTheSetupOfADialog()
{
    const LookRestorer restorer;
    QDialog dialog;
    VornFrameAgent agent;
    agent.setup(&dialog, nullptr);
    QVERIFY(!agent.bindRibbonPagesAndDockPartition({agent.ribbonBar()->addPage(u"Page"_s)}, 0));
}

void tst_VornFrameAgentSections::refusesAfterAnEmptySetup()
{
    const LookRestorer restorer;
    VornFrameAgent agent;
    const std::unique_ptr<RibbonBar> bar(agent.ribbonBar());
    agent.setup(static_cast<QMainWindow *>(nullptr), false, false);
    QVERIFY(!agent.bindRibbonPagesAndDockPartition({bar->addPage(u"Page"_s, true)}, 0));
}

void tst_VornFrameAgentSections::showsTheBoundPages_data()
{
    QTest::addColumn<QList<int>>("bound");
    QTest::addColumn<QString>("shown");
    QTest::newRow("one") << QList<int>{2} << u"Home View [Text]"_s;
    QTest::newRow("two, the first becomes current")
        << QList<int>{4, 2} << u"Home View Text [Table]"_s;
    QTest::newRow("a null page first leaves the current one")
        << QList<int>{NoPage, 3} << u"Home [View] Picture"_s;
    QTest::newRow("a null page later") << QList<int>{3, NoPage, 2} << u"Home View Text [Picture]"_s;
    QTest::newRow("null pages only") << QList<int>{NoPage, NoPage} << u"Home [View]"_s;
    QTest::newRow("a page that is not temporary") << QList<int>{1} << u"Home [View]"_s;
    QTest::newRow("the same page twice") << QList<int>{3, 3} << u"Home View [Picture]"_s;
}

void tst_VornFrameAgentSections::showsTheBoundPages()
{
    QFETCH(const QList<int>, bound);
    QFETCH(const QString, shown);
    const Workbench bench;
    QVERIFY(bench.bind(bound, 1));
    bench.switchTo(1);
    QCOMPARE(bench.shown(), shown);
}

void tst_VornFrameAgentSections::aSectionWithoutBindingMakesTheFirstPageCurrent()
{
    const Workbench bench;
    QVERIFY(bench.bind({2, 3}, 1));
    bench.switchTo(1);
    QCOMPARE(bench.shown(), u"Home View [Text] Picture"_s);
    bench.switchTo(0);
    QCOMPARE(bench.shown(), u"[Home] View"_s);
}

void tst_VornFrameAgentSections::withoutAnyBindingTheFirstPageBecomesCurrent()
{
    const Workbench bench;
    bench.agent->ribbonBar()->showPage(3);
    bench.switchTo(0);
    QCOMPARE(bench.shown(), u"[Home] View"_s);
}

void tst_VornFrameAgentSections::anEmptyListLeavesTheFormerBinding()
{
    const Workbench bench;
    QVERIFY(bench.bind({2}, 1));
    QVERIFY(!bench.bind({}, 1));
    bench.switchTo(1);
    QCOMPARE(bench.shown(), u"Home View [Text]"_s);
}

void tst_VornFrameAgentSections::aNewBindingReplacesTheFormerOne()
{
    const Workbench bench;
    QVERIFY(bench.bind({2, 3}, 1));
    QVERIFY(bench.bind({4}, 1));
    bench.switchTo(1);
    QCOMPARE(bench.shown(), u"Home View [Table]"_s);
}

void tst_VornFrameAgentSections::aBindingTakesEffectWithTheNextSwitch()
{
    const Workbench bench;
    QVERIFY(bench.bind({4}, 2)); // the current section
    QCOMPARE(bench.shown(), u"Home [View]"_s);
    bench.switchTo(0);
    bench.switchTo(2);
    QCOMPARE(bench.shown(), u"Home View [Table]"_s);
}

void tst_VornFrameAgentSections::aPageThatIsNotTemporaryIsNotHiddenAgain()
{
    const Workbench bench;
    bench.agent->ribbonBar()->hidePage(1);
    QVERIFY(bench.bind({1}, 1));
    bench.switchTo(1);
    QCOMPARE(bench.shown(), u"Home [View]"_s);
    bench.switchTo(0);
    QCOMPARE(bench.shown(), u"[Home] View"_s);
}

void tst_VornFrameAgentSections::aPageOfAnotherBarIsLeftAlone()
{
    const Workbench bench;
    RibbonBar other;
    RibbonPage *foreign = other.addPage(u"Foreign"_s, true);
    QVERIFY(bench.agent->bindRibbonPagesAndDockPartition({foreign, bench.pages.at(2)}, 1));
    bench.switchTo(1);
    QCOMPARE(bench.shown(), u"Home [View] Text"_s);
    QVERIFY(other.findChild<RibbonTab *>()->isHidden());
}

void tst_VornFrameAgentSections::aDeletedPageIsSkipped()
{
    const Workbench bench;
    RibbonBar other;
    QPointer<RibbonPage> page = other.addPage(u"Page"_s, true);
    QVERIFY(bench.agent->bindRibbonPagesAndDockPartition({page, bench.pages.at(3)}, 1));
    delete page;
    bench.switchTo(1);
    QCOMPARE(bench.shown(), u"Home [View] Picture"_s);
}

void tst_VornFrameAgentSections::theLastTabOfAllGivesSectionMinusOne()
{
    const Workbench bench;
    QVERIFY(bench.bind({2}, -1));
    for (const int section : {0, 1, 2}) {
        QWidget *tab = bench.content()->widget(section, 0);
        bench.content()->removeTab(section, 0);
        delete tab;
    }
    QCOMPARE(bench.shown(), u"Home View [Text]"_s);
}

void tst_VornFrameAgentSections::theFirstTabOfAllShowsTheBoundPages()
{
    const LookRestorer restorer;
    QMainWindow window;
    VornFrameAgent agent;
    agent.setup(&window, false, false);
    agent.ribbonBar()->addPage(u"Home"_s);
    RibbonPage *page = agent.ribbonBar()->addPage(u"Text"_s, true);
    agent.ribbonBar()->setCurrentIndex(0);
    DockContentWidget *content = agent.dockContainer()->contentWidget();
    const int section = content->addSection(u"Texts"_s);
    QVERIFY(agent.bindRibbonPagesAndDockPartition({page}, section));
    content->addTab(section, new QWidget, u"Tab"_s);
    QCOMPARE(agent.ribbonBar()->currentPage(), page);
    QVERIFY(!agent.ribbonBar()->findChildren<RibbonTab *>().constLast()->isHidden());
}

void tst_VornFrameAgentSections::changesTheCurrentPageSilently()
{
    const Workbench bench;
    const QSignalSpy spy(bench.agent->ribbonBar(), &RibbonBar::signalCurrentPageChanged);
    QVERIFY(bench.bind({2}, 1));
    bench.switchTo(1);
    bench.switchTo(0);
    QCOMPARE(bench.shown(), u"[Home] View"_s);
    QCOMPARE(spy.count(), 0);
}

void tst_VornFrameAgentSections::aClickOnASectionTabShowsItsPages()
{
    const Workbench bench;
    QVERIFY(bench.bind({3}, 1));
    bench.window->resize(780, 500);
    bench.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(bench.window.get()));
    auto *sections = bench.content()->findChild<QTabBar *>(u"dockSectionBar"_s);
    QVERIFY(sections);
    Input::click(sections, sections->tabRect(1).center());
    QCOMPARE(bench.content()->currentSection(), 1);
    QCOMPARE(bench.shown(), u"Home View [Picture]"_s);
    QVERIFY(bench.pages.at(3)->isVisible());
}

void tst_VornFrameAgentSections::theSectionMayDeleteTheAgent()
{
    Workbench bench;
    QVERIFY(bench.bind({2}, 1));
    connect(bench.content(), &DockContentWidget::signalCurrentSectionChanged, this,
            [&bench] { bench.agent.reset(); }); // clazy:exclude=lambda-in-connect
    DockContentWidget *content = bench.content();
    content->setCurrentTab(1, 0);
    QVERIFY(!bench.agent);
    content->setCurrentTab(0, 0);
    QCOMPARE(content->currentSection(), 0);
}

void tst_VornFrameAgentSections::theSectionMayDeleteTheWindow()
{
    Workbench bench;
    QVERIFY(bench.bind({2}, 1));
    connect(bench.content(), &DockContentWidget::signalCurrentSectionChanged, this,
            [&bench] { bench.window.reset(); }); // clazy:exclude=lambda-in-connect
    bench.switchTo(1);
    QVERIFY(!bench.agent->ribbonBar());
    QVERIFY(!bench.agent->dockContainer());
}

void tst_VornFrameAgentSections::aClickedSectionMayDeleteTheWindow()
{
    Workbench bench;
    bench.window->resize(780, 500);
    bench.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(bench.window.get()));
    connect(bench.content(), &DockContentWidget::signalCurrentSectionChanged, this,
            [&bench] { bench.window.reset(); }); // clazy:exclude=lambda-in-connect
    auto *sections = bench.content()->findChild<QTabBar *>(u"dockSectionBar"_s);
    const QPoint place = sections->tabRect(1).center();
    QMouseEvent press(QEvent::MouseButtonPress, place, sections->mapToGlobal(place), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(sections, &press);
    QVERIFY(!bench.window);
    QVERIFY(!bench.agent->dockContainer());
}

void tst_VornFrameAgentSections::theFirstTabMayDeleteTheWindow()
{
    const LookRestorer restorer;
    auto window = std::make_unique<QMainWindow>();
    VornFrameAgent agent;
    agent.setup(window.get(), false, true);
    DockContentWidget *content = agent.dockContainer()->contentWidget();
    const int section = content->addSection(u"Section"_s);
    connect(content, &DockContentWidget::signalCurrentSectionChanged, this,
            [&window] { window.reset(); }); // clazy:exclude=lambda-in-connect
    QCOMPARE(content->addTab(section, new QWidget, u"Tab"_s), 0);
    QVERIFY(!window);
}

void tst_VornFrameAgentSections::theLastTabMayDeleteTheWindow()
{
    const LookRestorer restorer;
    auto window = std::make_unique<QMainWindow>();
    VornFrameAgent agent;
    agent.setup(window.get(), false, true);
    DockContentWidget *content = agent.dockContainer()->contentWidget();
    content->addTab(content->addSection(u"Section"_s), new QWidget, u"Tab"_s);
    connect(content, &DockContentWidget::signalCurrentSectionChanged, this,
            [&window] { window.reset(); }); // clazy:exclude=lambda-in-connect
    content->removeTab(0, 0);
    QVERIFY(!window);
}

void tst_VornFrameAgentSections::aPageThatIsShownMayDeleteTheAgent()
{
    // Deletes it as soon as it sees its page.
    class Deleter : public QObject
    {
    public:
        explicit Deleter(Workbench *bench) : m_bench(bench) {}

        bool eventFilter(QObject *page, QEvent *event) override
        {
            if (event->type() == QEvent::Show) {
                page->removeEventFilter(this);
                m_bench->agent.reset();
            }
            return false;
        }

    private:
        Workbench *m_bench;
    };

    Workbench bench;
    bench.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(bench.window.get()));
    QVERIFY(bench.bind({2, 3}, 1));
    Deleter deleter(&bench);
    bench.pages.at(2)->installEventFilter(&deleter);
    DockContentWidget *content = bench.content();
    content->setCurrentTab(1, 0);
    QVERIFY(!bench.agent);
}

void tst_VornFrameAgentSections::anAgentThatIsEndingHearsNoSection()
{
    Workbench bench;
    QVERIFY(bench.bind({2}, 1));
    DockContentWidget *content = bench.content();
    const RibbonBar *bar = bench.agent->ribbonBar();
    // Told while the agent is still there as an object, but no longer as an agent.
    connect(bench.agent.get(), &QObject::destroyed, content,
            [content] { content->setCurrentTab(1, 0); });
    bench.agent.reset();
    QCOMPARE(content->currentSection(), 1);
    QCOMPARE(bar->currentPage(), bench.pages.at(1));
}

QTEST_MAIN(tst_VornFrameAgentSections)

#include "tst_vornframeagentsections.moc"
