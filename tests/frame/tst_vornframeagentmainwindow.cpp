// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "LookRestorer.h"

#include <VornFrame/AddressBar.h>
#include <VornFrame/DockContainer.h>
#include <VornFrame/DockContentWidget.h>
#include <VornFrame/DockPanelWidget.h>
#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonPage.h>
#include <VornFrame/VornFrameAgent.h>

#include "support/TestCase.h"

#include <QDialog>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QStatusBar>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

/// A main window whose agent was asked to dress it.
struct DressedWindow
{
    DressedWindow(bool addressBar, bool dockPanels, const QString &sheet = {})
    {
        window->setStyleSheet(sheet);
        agent->setup(window.get(), addressBar, dockPanels);
    }

    QBoxLayout *layout() const
    {
        return qobject_cast<QBoxLayout *>(window->centralWidget()->layout());
    }

    QList<QWidget *> stacked() const
    {
        QList<QWidget *> widgets;
        for (int i = 0; i < layout()->count(); ++i)
            widgets.append(layout()->itemAt(i)->widget());
        return widgets;
    }

    QWidget *sideBar(DockContainer::DockArea area) const
    {
        return agent->dockContainer()->panelWidget(area)->panel();
    }

    LookRestorer restorer;
    std::unique_ptr<QMainWindow> window = std::make_unique<QMainWindow>();
    std::unique_ptr<VornFrameAgent> agent = std::make_unique<VornFrameAgent>();
};

constexpr QSize WindowSize(780, 600);

} // namespace

class tst_VornFrameAgentMainWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void stacksWhatIsAskedFor_data();
    void stacksWhatIsAskedFor();
    void stacksItWithoutMarginsAndSpacing();
    void theWindowOwnsWhatWasPlaced();
    void theDockContainerGetsTheRemainingHeight();
    void withoutDockPanelsTheSideBarsAreHidden();
    void withDockPanelsTheSideBarsAreThere();
    void withDockPanelsTheWindowGetsAStatusBar();
    void withoutDockPanelsTheWindowGetsNoStatusBar();
    void hasNoAddressBarAndNoDockContainerBefore();
    void theApplicationsSheetIsTheWindowsAndTheGlobalOne_data();
    void theApplicationsSheetIsTheWindowsAndTheGlobalOne();
    void theWindowKeepsItsOwnSheet();
    void aCentralWidgetThatTheWindowHadIsReplaced();

    void aSecondSetupIsIgnored_data();
    void aSecondSetupIsIgnored();
    void anEmptyWindowPointerCountsAsTheSetup();
    void aSetupDialogCountsForMainWindowsToo();
    void aSetupMainWindowCountsForDialogsToo();
    void eachAgentSetsUpItsOwnWindow();

    void widgetsStayWhenTheAgentGoesFirst();
    void widgetsAreNullWhenTheWindowGoesFirst();
    void anAgentOwnedByItsWindowGoesWithIt();
    void aRibbonBarDeletedBeforeTheSetupIsLeftOut();
    void theSheetMayDeleteTheAgent();
    void theFormerCentralWidgetMayDeleteTheAgent();
    void manyWindowsLeaveNothingBehind();
};

void tst_VornFrameAgentMainWindow::stacksWhatIsAskedFor_data()
{
    QTest::addColumn<bool>("addressBar");
    QTest::addColumn<bool>("dockPanels");
    QTest::newRow("neither") << false << false;
    QTest::newRow("address bar") << true << false;
    QTest::newRow("panels") << false << true;
    QTest::newRow("both") << true << true;
}

void tst_VornFrameAgentMainWindow::stacksWhatIsAskedFor()
{
    QFETCH(const bool, addressBar);
    QFETCH(const bool, dockPanels);
    const DressedWindow dressed(addressBar, dockPanels);

    QCOMPARE(dressed.agent->addressBar() != nullptr, addressBar);
    QVERIFY(dressed.agent->dockContainer());
    QList<QWidget *> expected{dressed.agent->ribbonBar()};
    if (addressBar)
        expected.append(dressed.agent->addressBar());
    expected.append(dressed.agent->dockContainer());
    QCOMPARE(dressed.stacked(), expected);
    QCOMPARE(dressed.layout()->direction(), QBoxLayout::TopToBottom);
}

void tst_VornFrameAgentMainWindow::stacksItWithoutMarginsAndSpacing()
{
    const DressedWindow dressed(true, true);
    QCOMPARE(dressed.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(dressed.layout()->spacing(), 0);
}

void tst_VornFrameAgentMainWindow::theWindowOwnsWhatWasPlaced()
{
    const DressedWindow dressed(true, true);
    QCOMPARE(dressed.window->centralWidget()->parentWidget(), dressed.window.get());
    for (const QWidget *widget : dressed.stacked())
        QCOMPARE(widget->parentWidget(), dressed.window->centralWidget());
}

void tst_VornFrameAgentMainWindow::theDockContainerGetsTheRemainingHeight()
{
    DressedWindow dressed(true, false);
    dressed.agent->ribbonBar()->addPage(u"Page"_s)->addGroup(u"Group"_s);
    dressed.window->resize(WindowSize);
    dressed.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(dressed.window.get()));

    const QWidget *ribbon = dressed.agent->ribbonBar();
    const QWidget *address = dressed.agent->addressBar();
    const QWidget *dock = dressed.agent->dockContainer();
    QCOMPARE(ribbon->geometry().topLeft(), QPoint(0, 0));
    QCOMPARE(ribbon->width(), WindowSize.width());
    QCOMPARE(address->geometry().topLeft(), ribbon->geometry().bottomLeft() + QPoint(0, 1));
    QCOMPARE(dock->geometry(), QRect(QPoint(0, address->geometry().bottom() + 1),
                                     QPoint(WindowSize.width() - 1, WindowSize.height() - 1)));
    dressed.window->resize(WindowSize - QSize(0, 100));
    QTRY_COMPARE(dock->geometry().bottom(), WindowSize.height() - 101);
    QCOMPARE(address->geometry().topLeft(), ribbon->geometry().bottomLeft() + QPoint(0, 1));
}

void tst_VornFrameAgentMainWindow::withoutDockPanelsTheSideBarsAreHidden()
{
    const DressedWindow dressed(false, false);
    for (const auto area : {DockContainer::Left, DockContainer::Right, DockContainer::Bottom})
        QVERIFY(dressed.sideBar(area)->isHidden());
}

void tst_VornFrameAgentMainWindow::withDockPanelsTheSideBarsAreThere()
{
    DressedWindow dressed(false, true);
    for (const auto area : {DockContainer::Left, DockContainer::Right, DockContainer::Bottom})
        dressed.agent->dockContainer()->panelWidget(area)->addView(new QLabel(u"view"_s), QIcon(),
                                                                   u"View"_s);
    dressed.window->resize(WindowSize);
    dressed.window->show();
    QVERIFY(QTest::qWaitForWindowExposed(dressed.window.get()));
    for (const auto area : {DockContainer::Left, DockContainer::Right, DockContainer::Bottom})
        QVERIFY(dressed.sideBar(area)->isVisible());
}

void tst_VornFrameAgentMainWindow::withDockPanelsTheWindowGetsAStatusBar()
{
    const DressedWindow dressed(false, true);
    auto *statusBar = dressed.window->findChild<QStatusBar *>();
    QVERIFY(statusBar);
    QCOMPARE(dressed.window->statusBar(), statusBar);
    QVERIFY(statusBar->isAncestorOf(dressed.sideBar(DockContainer::Bottom)));
}

void tst_VornFrameAgentMainWindow::withoutDockPanelsTheWindowGetsNoStatusBar()
{
    const DressedWindow dressed(true, false);
    QVERIFY(!dressed.window->findChild<QStatusBar *>());
}

void tst_VornFrameAgentMainWindow::hasNoAddressBarAndNoDockContainerBefore()
{
    const LookRestorer restorer;
    const VornFrameAgent agent;
    const std::unique_ptr<RibbonBar> bar(agent.ribbonBar());
    QVERIFY(!agent.addressBar());
    QVERIFY(!agent.dockContainer());
}

void tst_VornFrameAgentMainWindow::theApplicationsSheetIsTheWindowsAndTheGlobalOne_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::newRow("none") << QString();
    QTest::newRow("one") << u"QLabel { color: red; }"_s;
}

void tst_VornFrameAgentMainWindow::theApplicationsSheetIsTheWindowsAndTheGlobalOne()
{
    QFETCH(const QString, sheet);
    const DressedWindow dressed(true, true, sheet);
    QVERIFY(!globalSheet().isEmpty());
    QCOMPARE(qApp->styleSheet(), sheet + globalSheet());
}

void tst_VornFrameAgentMainWindow::theWindowKeepsItsOwnSheet()
{
    const DressedWindow dressed(false, true, u"QLabel { color: red; }"_s);
    QCOMPARE(dressed.window->styleSheet(), u"QLabel { color: red; }"_s);
}

void tst_VornFrameAgentMainWindow::aCentralWidgetThatTheWindowHadIsReplaced()
{
    const LookRestorer restorer;
    QMainWindow window;
    const QPointer<QWidget> former = new QLabel(u"former"_s);
    window.setCentralWidget(former);
    VornFrameAgent agent;
    agent.setup(&window, false, false);
    QVERIFY(window.centralWidget()->isAncestorOf(agent.ribbonBar()));
    QTRY_VERIFY(!former);
}

void tst_VornFrameAgentMainWindow::aSecondSetupIsIgnored_data()
{
    QTest::addColumn<bool>("sameWindow");
    QTest::newRow("same window") << true;
    QTest::newRow("other window") << false;
}

void tst_VornFrameAgentMainWindow::aSecondSetupIsIgnored()
{
    QFETCH(const bool, sameWindow);
    const DressedWindow dressed(false, false);
    const QWidget *central = dressed.window->centralWidget();
    const QList<QWidget *> stacked = dressed.stacked();
    QMainWindow other;
    QMainWindow *second = sameWindow ? dressed.window.get() : &other;
    second->setStyleSheet(u"QLabel { color: red; }"_s);
    dressed.agent->setup(second, true, true);
    QCOMPARE(dressed.window->centralWidget(), central);
    QCOMPARE(dressed.stacked(), stacked);
    QVERIFY(!dressed.agent->addressBar());
    QVERIFY(!other.centralWidget());
    QVERIFY(!second->findChild<QStatusBar *>());
    QCOMPARE(qApp->styleSheet(), globalSheet());
}

void tst_VornFrameAgentMainWindow::anEmptyWindowPointerCountsAsTheSetup()
{
    const LookRestorer restorer;
    VornFrameAgent agent;
    const std::unique_ptr<RibbonBar> bar(agent.ribbonBar());
    const QString sheet = qApp->styleSheet();
    agent.setup(static_cast<QMainWindow *>(nullptr), true, true);
    QCOMPARE(qApp->styleSheet(), sheet);
    QVERIFY(!agent.addressBar());
    QVERIFY(!agent.dockContainer());
    QMainWindow window;
    agent.setup(&window, true, true);
    QVERIFY(!window.centralWidget());
    QVERIFY(!agent.dockContainer());
    QCOMPARE(qApp->styleSheet(), sheet);
}

void tst_VornFrameAgentMainWindow::aSetupDialogCountsForMainWindowsToo()
{
    const LookRestorer restorer;
    QDialog dialog;
    VornFrameAgent agent;
    agent.setup(&dialog, nullptr);
    QMainWindow window;
    agent.setup(&window, true, true);
    QVERIFY(!window.centralWidget());
    QVERIFY(!agent.addressBar());
    QVERIFY(!agent.dockContainer());
}

void tst_VornFrameAgentMainWindow::aSetupMainWindowCountsForDialogsToo()
{
    const DressedWindow dressed(false, false);
    QDialog dialog;
    dressed.agent->setup(&dialog, nullptr);
    QVERIFY(!dialog.layout());
    QVERIFY(dressed.window->isAncestorOf(dressed.agent->ribbonBar()));
}

void tst_VornFrameAgentMainWindow::eachAgentSetsUpItsOwnWindow()
{
    const DressedWindow one(true, true);
    const DressedWindow other(true, true);
    QVERIFY(one.window->isAncestorOf(one.agent->dockContainer()));
    QVERIFY(other.window->isAncestorOf(other.agent->dockContainer()));
    QVERIFY(one.agent->addressBar() != other.agent->addressBar());
}

void tst_VornFrameAgentMainWindow::widgetsStayWhenTheAgentGoesFirst()
{
    DressedWindow dressed(true, true);
    const QList<QWidget *> stacked = dressed.stacked();
    DockContentWidget *content = dressed.agent->dockContainer()->contentWidget();
    dressed.agent.reset();
    QCOMPARE(dressed.stacked(), stacked);
    // Nobody is left to hear it.
    content->addTab(content->addSection(u"Section"_s), new QWidget, u"Tab"_s);
    QCOMPARE(content->currentSection(), 0);
}

void tst_VornFrameAgentMainWindow::widgetsAreNullWhenTheWindowGoesFirst()
{
    DressedWindow dressed(true, true);
    dressed.window.reset();
    QVERIFY(!dressed.agent->ribbonBar());
    QVERIFY(!dressed.agent->addressBar());
    QVERIFY(!dressed.agent->dockContainer());
    QVERIFY(!dressed.agent->bindRibbonPagesAndDockPartition({nullptr}, 0));
}

void tst_VornFrameAgentMainWindow::anAgentOwnedByItsWindowGoesWithIt()
{
    const LookRestorer restorer;
    auto window = std::make_unique<QMainWindow>();
    const QPointer<VornFrameAgent> agent = new VornFrameAgent(window.get());
    agent->setup(window.get(), true, true);
    window.reset();
    QVERIFY(!agent);
}

void tst_VornFrameAgentMainWindow::aRibbonBarDeletedBeforeTheSetupIsLeftOut()
{
    const LookRestorer restorer;
    QMainWindow window;
    VornFrameAgent agent;
    delete agent.ribbonBar();
    agent.setup(&window, false, true);
    QCOMPARE(window.centralWidget()->layout()->count(), 1);
    DockContentWidget *content = agent.dockContainer()->contentWidget();
    content->addTab(content->addSection(u"Section"_s), new QWidget, u"Tab"_s);
    QVERIFY(!agent.ribbonBar());
}

void tst_VornFrameAgentMainWindow::theSheetMayDeleteTheAgent()
{
    // Deletes it as soon as the application has its style sheet.
    class Deleter : public QMainWindow
    {
    public:
        std::unique_ptr<VornFrameAgent> agent;

    protected:
        void changeEvent(QEvent *event) override
        {
            if (event->type() == QEvent::StyleChange)
                agent.reset();
            QMainWindow::changeEvent(event);
        }
    };

    const LookRestorer restorer;
    Deleter window;
    window.agent = std::make_unique<VornFrameAgent>();
    const RibbonBar *bar = window.agent->ribbonBar();
    window.agent->setup(&window, true, true);
    QVERIFY(!window.agent);
    QCOMPARE(bar->parentWidget(), window.centralWidget());
    QCOMPARE(qApp->styleSheet(), globalSheet());
}

void tst_VornFrameAgentMainWindow::theFormerCentralWidgetMayDeleteTheAgent()
{
    // Deletes it when its place is taken.
    class Deleter : public QWidget
    {
    public:
        explicit Deleter(VornFrameAgent *agent) : m_agent(agent) {}

    protected:
        void hideEvent(QHideEvent *event) override
        {
            delete m_agent;
            QWidget::hideEvent(event);
        }

    private:
        QPointer<VornFrameAgent> m_agent;
    };

    const LookRestorer restorer;
    QMainWindow window;
    const QPointer<VornFrameAgent> agent = new VornFrameAgent;
    const RibbonBar *bar = agent->ribbonBar();
    window.setCentralWidget(new Deleter(agent));
    window.resize(WindowSize);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    agent->setup(&window, true, true);
    QVERIFY(!agent);
    // What was begun is done as a whole.
    QCOMPARE(bar->parentWidget(), window.centralWidget());
    auto *content = window.findChild<DockContentWidget *>();
    QVERIFY(content);
    content->addTab(content->addSection(u"Section"_s), new QWidget, u"Tab"_s);
    QCOMPARE(qApp->styleSheet(), globalSheet());
}

void tst_VornFrameAgentMainWindow::manyWindowsLeaveNothingBehind()
{
    const auto widgets = QApplication::allWidgets().size();
    for (int i = 0; i < 20; ++i) {
        const DressedWindow dressed(true, true);
        dressed.window->show();
        QCoreApplication::processEvents();
    }
    QCOMPARE(QApplication::allWidgets().size(), widgets);
}

QTEST_MAIN(tst_VornFrameAgentMainWindow)

#include "tst_vornframeagentmainwindow.moc"
