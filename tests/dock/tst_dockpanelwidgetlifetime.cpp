// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/SideWindow.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <QMenu>
#include <QPointer>
#include <QSignalSpy>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace SideWindows;
using namespace VornFrame;

namespace {

/// A docked widget that calls back from its destructor.
class Talkative : public QWidget
{
public:
    explicit Talkative(std::function<void(Talkative *)> lastWords)
        : m_lastWords(std::move(lastWords))
    {}
    ~Talkative() override { m_lastWords(this); }
    Q_DISABLE_COPY_MOVE(Talkative)

private:
    const std::function<void(Talkative *)> m_lastWords;
};

/// Everything that can be asked of a side, and what it answers when there is nothing left of it.
void askInVain(DockPanelWidget &side)
{
    QCOMPARE(side.count(), 0);
    QCOMPARE(side.currentIndex(), -1);
    QVERIFY(!side.isViewVisible(0));
    const auto view = std::make_unique<QWidget>();
    QCOMPARE(side.addView(view.get(), icon(), u"late"_s), -1);
    QCOMPARE(side.tabifyView(0, view.get(), icon(), u"late"_s), -1);
    QVERIFY(!side.menu(view.get()));
    side.addSeparator();
    side.setCurrentIndex(0);
    side.setViewVisible(0, false);
    side.setViewVisible(0, true);
    side.setMinimized(true);
    QVERIFY(side.isMinimized());
    side.setMinimized(false);
    QVERIFY(!side.isMinimized());
}

} // namespace

class tst_DockPanelWidgetLifetime : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ownsBarAndStack();
    void theWindowMayGoFirst();
    void theBarMayGoFirst();
    void theStackMayGoFirst();
    void deletingASideReportsNothing();
    void aViewMayAskTheSideWhileItGoes_data();
    void aViewMayAskTheSideWhileItGoes();
    void aViewDeletedByItsOwnerLeavesAnEmptySlot();
    void aViewDockedTwiceMoves();
    void aViewMayMoveToTheOtherSide();
    void nothingIsNoView();
    void whatTheSideLiesInIsNoView();
};

void tst_DockPanelWidgetLifetime::ownsBarAndStack()
{
    QPointer<QWidget> panel;
    QPointer<QWidget> stack;
    const QPointer<QWidget> view = new QWidget;
    QPointer<DockView> dockView;
    {
        DockPanelWidget side(DockPanelWidget::Left);
        panel = side.panel();
        stack = side.stackedWidget();
        side.addView(view, icon(), u"0"_s);
        dockView = viewOf(side, 0);
    }
    QVERIFY(!panel);
    QVERIFY(!stack);
    QVERIFY(!view);
    QVERIFY(!dockView);
}

void tst_DockPanelWidgetLifetime::theWindowMayGoFirst()
{
    DockPanelWidget side(DockPanelWidget::Left);
    const QPointer<QWidget> view = new QWidget;
    side.addView(view, icon(), u"0"_s);
    {
        QWidget window;
        side.panel()->setParent(&window);
        side.stackedWidget()->setParent(&window);
    }
    QVERIFY(!view);
    QVERIFY(!side.panel());
    QVERIFY(!side.stackedWidget());
    askInVain(side);
}

void tst_DockPanelWidgetLifetime::theBarMayGoFirst()
{
    DockPanelWidget side(DockPanelWidget::Left);
    addViews(side, 2);
    QWidget *first = viewOf(side, 0)->widget();
    delete side.panel();
    QVERIFY(!side.panel());
    QCOMPARE(side.count(), 2);
    QVERIFY(side.menu(first));
    QWidget view;
    QCOMPARE(side.addView(&view, icon(), u"late"_s), -1);
    QCOMPARE(side.tabifyView(0, &view, icon(), u"late"_s), -1);
    side.addSeparator();
    side.setCurrentIndex(1);
    side.setViewVisible(0, false);
    side.setViewVisible(0, true);
    side.setMinimized(true);
    side.menu(first)->actions().constFirst()->trigger();
    QVERIFY(!view.parent());
}

void tst_DockPanelWidgetLifetime::theStackMayGoFirst()
{
    DockPanelWidget side(DockPanelWidget::Left);
    addViews(side, 2);
    delete side.stackedWidget();
    QVERIFY(!side.stackedWidget());
    QVERIFY(side.panel());
    askInVain(side);
    Q_EMIT barOf(side)->signalCurrentChanged(1);
    Q_EMIT barOf(side)->signalCurrentChanged(-1);
}

void tst_DockPanelWidgetLifetime::deletingASideReportsNothing()
{
    auto side = std::make_unique<DockPanelWidget>(DockPanelWidget::Left);
    addViews(*side, 3);
    const QSignalSpy index(side.get(), &DockPanelWidget::signalCurrentIndexChanged);
    const QSignalSpy minimized(side.get(), &DockPanelWidget::signalMinimized);
    side.reset();
    QCOMPARE(index.size(), 0);
    QCOMPARE(minimized.size(), 0);
}

void tst_DockPanelWidgetLifetime::aViewMayAskTheSideWhileItGoes_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"view", "side", "stack", "bar and stack"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

void tst_DockPanelWidgetLifetime::aViewMayAskTheSideWhileItGoes()
{
    QFETCH(const QString, what);
    int calls = 0;
    auto side = std::make_unique<DockPanelWidget>(DockPanelWidget::Left);
    DockPanelWidget *asked = side.get();
    const auto ask = [&calls, asked](Talkative *going) {
        ++calls;
        // Whatever the answers are by now.
        asked->menu(going);
        for (const int index : {0, 1, asked->count()}) {
            asked->isViewVisible(index);
            asked->setCurrentIndex(index);
            asked->setViewVisible(index, index > 0);
        }
        asked->currentIndex();
        asked->stackedWidget();
        asked->setMinimized(!asked->isMinimized());
        asked->addView(nullptr, {}, {});
        asked->tabifyView(0, nullptr, {}, {});
    };
    auto *first = new Talkative(ask);
    side->addView(first, icon(), u"0"_s);
    side->addView(new Talkative(ask), icon(), u"1"_s);
    side->tabifyView(0, new Talkative(ask), icon(), u"2"_s);
    if (what == u"view"_s) {
        delete first;
        QCOMPARE(calls, 1);
        side.reset();
    } else if (what == u"side"_s) {
        side.reset();
    } else if (what == u"stack"_s) {
        delete side->stackedWidget();
    } else {
        QWidget window;
        side->panel()->setParent(&window);
        side->stackedWidget()->setParent(&window);
    }
    QCOMPARE(calls, 3);
}

void tst_DockPanelWidgetLifetime::aViewDeletedByItsOwnerLeavesAnEmptySlot()
{
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, 2);
    auto *tabified = new QWidget;
    side.tabifyView(0, tabified, icon(), u"more"_s);
    QVERIFY(Input::show(&window));
    delete viewOf(side, 0)->widget();
    delete tabified;
    QCOMPARE(side.count(), 2);
    QCOMPARE(pageOf(side, 0)->count(), 2);
    QVERIFY(!viewOf(side, 0)->widget());
    QVERIFY(side.isViewVisible(0));
    Input::click(buttonOf(side, 1));
    Input::click(buttonOf(side, 0));
    QCOMPARE(side.currentIndex(), 0);
    QWidget another;
    QCOMPARE(side.tabifyView(0, &another, icon(), u"no room"_s), -1);
}

void tst_DockPanelWidgetLifetime::aViewDockedTwiceMoves()
{
    DockPanelWidget side(DockPanelWidget::Left);
    const QPointer<QWidget> view = new QWidget;
    QCOMPARE(side.addView(view, icon(), u"0"_s), 0);
    QCOMPARE(side.addView(view, icon(), u"1"_s), 1);
    QVERIFY(view);
    QVERIFY(!viewOf(side, 0)->widget());
    QCOMPARE(viewOf(side, 1)->widget(), view.data());
    QCOMPARE(side.menu(view), titleOf(viewOf(side, 1))->menu());
    QCOMPARE(side.tabifyView(0, view, icon(), u"2"_s), 1);
    QVERIFY(view);
    QVERIFY(!viewOf(side, 1)->widget());
    QCOMPARE(viewOf(side, 0, 1)->widget(), view.data());
    QCOMPARE(side.menu(view), titleOf(viewOf(side, 0, 1))->menu());
    QCOMPARE(side.count(), 2);
}

void tst_DockPanelWidgetLifetime::aViewMayMoveToTheOtherSide()
{
    auto left = std::make_unique<DockPanelWidget>(DockPanelWidget::Left);
    DockPanelWidget bottom(DockPanelWidget::Bottom);
    const QPointer<QWidget> view = new QWidget;
    left->addView(view, icon(), u"0"_s);
    bottom.addView(view, icon(), u"0"_s);
    QVERIFY(!left->menu(view));
    QVERIFY(bottom.menu(view));
    left.reset();
    QVERIFY(view);
    QCOMPARE(viewOf(bottom, 0)->widget(), view.data());
}

void tst_DockPanelWidgetLifetime::nothingIsNoView()
{
    DockPanelWidget side(DockPanelWidget::Bottom);
    QCOMPARE(side.addView(nullptr, icon(), u"0"_s), -1);
    QCOMPARE(side.count(), 0);
    QVERIFY(!buttonOf(side, 0));
    addViews(side, 1);
    QCOMPARE(side.tabifyView(0, nullptr, icon(), u"1"_s), -1);
    QCOMPARE(side.addView(nullptr, icon(), u"1"_s), -1);
    QCOMPARE(side.count(), 1);
    QVERIFY(!buttonOf(side, 1));
    QCOMPARE(pageOf(side, 0)->count(), 1);
    QCOMPARE(buttonOf(side, 0)->icons().size(), 1);
}

void tst_DockPanelWidgetLifetime::whatTheSideLiesInIsNoView()
{
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, 1);
    QCOMPARE(side.addView(&window, icon(), u"window"_s), -1);
    QCOMPARE(side.addView(side.stackedWidget(), icon(), u"stack"_s), -1);
    QCOMPARE(side.tabifyView(0, &window, icon(), u"window"_s), -1);
    QCOMPARE(side.count(), 1);
    QVERIFY(!buttonOf(side, 1));
    QVERIFY(!window.parent());
    QCOMPARE(side.stackedWidget()->parent(), &window);
}

QTEST_MAIN(tst_DockPanelWidgetLifetime)

#include "tst_dockpanelwidgetlifetime.moc"
