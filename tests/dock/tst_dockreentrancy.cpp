// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT
// clazy:excludeall=lambda-in-connect (no slot here outlives the test function that connects it)

#include "dock/ContainerWindow.h"

#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QMenu>
#include <QPointer>

#include <memory>

using namespace Qt::StringLiterals;
using namespace ContainerWindows;
using namespace VornFrame;

namespace {

/// Closes what the user wants closed at once, inside of the signal.
void closeOnRequest(const ContentWindow &window)
{
    DockContentWidget *content = window.content();
    QObject::connect(content, &DockContentWidget::signalTabCloseRequested, content,
                     [content](CloseMode mode, int section, int index) {
                         for (int i = content->tabCount(section) - 1; i >= 0; --i) {
                             if (mode != CloseAll && i != index)
                                 continue;
                             QWidget *widget = content->widget(section, i);
                             content->removeTab(section, i);
                             widget->deleteLater();
                         }
                     });
}

} // namespace

class tst_DockReentrancy : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void contentDeletedInItsOwnMenu();
    void tabRemovedInsideCloseRequest();
    void allTabsRemovedInsideCloseRequest();
    void tabRemovedInsideCurrentTabChanged();
    void allTabsRemovedInsideCurrentTabChanged();
    void tabsAddedInsideCurrentTabChanged();
    void sectionSwitchedInsideSectionChanged();
    void sectionSwitchedInsideCurrentTabChanged();
    void sectionAddedInsideSectionChanged();
    void tabAddedWhenTheLastOneGoes();
    void tabRemovedWhenTheFirstOneComes();
    void tabRemovedWhenItShowsTheContent();
    void tabDeletedWhenItBecomesTheCurrentOne();
    void minimizedInsideMinimized();
};

void tst_DockReentrancy::contentDeletedInItsOwnMenu()
{
    auto window = std::make_unique<ContentWindow>(QList<int>{3});
    QVERIFY(Input::show(window.get()));
    QPointer<DockContentWidget> content = window->content();
    connect(content, &DockContentWidget::signalTabCloseRequested, content,
            [content] { content->deleteLater(); });
    PopupDriver driver([](QMenu *menu) {
        Input::click(menu, menu->actionGeometry(menu->actions().constFirst()).center());
    });
    Input::rightClick(window->bar(), window->onTab(1));
    QVERIFY(driver.hasRun());
    QTRY_VERIFY(!content);
}

void tst_DockReentrancy::tabRemovedInsideCloseRequest()
{
    ContentWindow window({3});
    QVERIFY(Input::show(&window));
    closeOnRequest(window);
    for (int left = 2; left >= 0; --left) {
        QWidget *button = window.bar()->tabButton(0, QTabBar::RightSide);
        Input::click(button ? button : window.bar()->tabButton(0, QTabBar::LeftSide));
        QCOMPARE(window.content()->tabCount(0), left);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    window.addTab();
    window.addTab();
    Input::click(window.bar(), window.onTab(1), Qt::MiddleButton);
    QCOMPARE(window.content()->tabCount(0), 1);
}

void tst_DockReentrancy::allTabsRemovedInsideCloseRequest()
{
    ContentWindow window({5});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    closeOnRequest(window);
    PopupDriver driver([](QMenu *menu) {
        Input::click(menu, menu->actionGeometry(menu->actions().constLast()).center());
    });
    Input::rightClick(window.bar(), window.onTab(2));
    QVERIFY(driver.hasRun());
    QCOMPARE(window.content()->tabCount(0), 0);
    QCOMPARE(log.entries().constLast(), u"tab -1 -1"_s);
    QCOMPARE(log.entries().count(u"tab -1 -1"_s), 1);
}

void tst_DockReentrancy::tabRemovedInsideCurrentTabChanged()
{
    ContentWindow window({4});
    QVERIFY(Input::show(&window));
    DockContentWidget *content = window.content();
    const auto once = connect(content, &DockContentWidget::signalCurrentTabChanged, content,
                              [&window](int section, int index) {
                                  if (window.content()->tabCount(section) == 4)
                                      window.removeTab(section, index);
                              });
    window.content()->setCurrentTab(0, 2);
    disconnect(once);
    QCOMPARE(content->tabCount(0), 3);
    TabLog log(content);
    content->setCurrentTab(0, 0);
    content->setCurrentTab(0, 2);
    QCOMPARE(log.entries().constLast(), u"tab 0 2"_s);
    QVERIFY(content->currentWidget(0)->isVisible());
}

void tst_DockReentrancy::allTabsRemovedInsideCurrentTabChanged()
{
    ContentWindow window({4, 0});
    QVERIFY(Input::show(&window));
    DockContentWidget *content = window.content();
    TabLog log(content);
    connect(content, &DockContentWidget::signalCurrentTabChanged, content,
            [content](int section, int /*index*/) {
                while (section >= 0 && content->tabCount(section) > 0) {
                    const std::unique_ptr<QWidget> removed(content->widget(section, 0));
                    content->removeTab(section, 0);
                }
            });
    content->setCurrentTab(0, 2);
    QCOMPARE(content->tabCount(0), 0);
    QVERIFY(!content->isSectionBarVisible());
    QCOMPARE(log.entries().last(2), QStringList({u"section -1"_s, u"tab -1 -1"_s}));
    // A tab that goes as soon as it comes.
    content->addTab(1, new QWidget, u"short"_s);
    QCOMPARE(content->tabCount(1), 0);
    QVERIFY(!content->isSectionBarVisible());
    QVERIFY(!content->isSectionVisible(1));
}

void tst_DockReentrancy::tabsAddedInsideCurrentTabChanged()
{
    ContentWindow window({0});
    QVERIFY(Input::show(&window));
    connect(window.content(), &DockContentWidget::signalCurrentTabChanged, &window, [&window] {
        if (window.content()->tabCount(0) < 10)
            window.addTab();
    });
    TabLog log(window.content());
    window.addTab();
    QCOMPARE(window.content()->tabCount(0), 2);
    window.content()->setCurrentTab(0, 1);
    QCOMPARE(window.content()->tabCount(0), 3);
    QCOMPARE(window.content()->currentTab(0), 1);
    QCOMPARE(log.take(), QStringList({u"tab 0 0"_s, u"section 0"_s, u"tab 0 1"_s}));
}

void tst_DockReentrancy::sectionSwitchedInsideSectionChanged()
{
    ContentWindow window({1, 1, 1});
    QVERIFY(Input::show(&window));
    window.visitSections();
    DockContentWidget *content = window.content();
    TabLog log(content);
    connect(content, &DockContentWidget::signalCurrentSectionChanged, content,
            [content](int section) {
                if (section == 1)
                    content->setCurrentTab(2, 0);
            });
    content->setCurrentTab(1, 0);
    QCOMPARE(content->currentSection(), 2);
    QCOMPARE(log.entries().constLast(), u"tab 2 0"_s);
    QVERIFY(!log.entries().contains(u"tab 1 0"_s));
    log.take();
    content->setCurrentTab(0, 0);
    QCOMPARE(log.take(), QStringList({u"section 0"_s, u"tab 0 0"_s}));
}

void tst_DockReentrancy::sectionSwitchedInsideCurrentTabChanged()
{
    ContentWindow window({1, 1, 1});
    QVERIFY(Input::show(&window));
    window.visitSections();
    DockContentWidget *content = window.content();
    connect(content, &DockContentWidget::signalCurrentTabChanged, content,
            [content](int section, int /*index*/) {
                if (section == 1)
                    content->setCurrentTab(2, 0);
            });
    content->setCurrentTab(1, 0);
    QCOMPARE(content->currentSection(), 2);
    TabLog log(content);
    content->setCurrentTab(2, 0);
    QCOMPARE(log.take(), QStringList());
    content->setCurrentTab(0, 0);
    QCOMPARE(log.take(), QStringList({u"section 0"_s, u"tab 0 0"_s}));
}

void tst_DockReentrancy::sectionAddedInsideSectionChanged()
{
    ContentWindow window({1, 1});
    QVERIFY(Input::show(&window));
    window.visitSections();
    DockContentWidget *content = window.content();
    connect(content, &DockContentWidget::signalCurrentSectionChanged, content, [content] {
        if (content->sectionCount() < 5)
            content->addTab(content->addSection(u"late"_s), new QWidget, u"late"_s);
    });
    content->setCurrentTab(1, 0);
    QCOMPARE(content->sectionCount(), 3);
    QCOMPARE(content->currentSection(), 1);
    QCOMPARE(content->tabCount(2), 1);
}

void tst_DockReentrancy::tabAddedWhenTheLastOneGoes()
{
    for (const bool autoHide : {true, false}) {
        ContainerWindow window;
        window.fill();
        window.content()->setAutoHide(autoHide);
        window.content()->show();
        QVERIFY(Input::show(&window));
        // Always one tab open, as a browser keeps it.
        connect(window.content(), &DockContentWidget::signalCurrentSectionChanged, &window,
                [&window](int section) {
                    if (section < 0)
                        window.addTab();
                });
        window.content()->removeTab(0, 0);
        QCOMPARE(window.content()->tabCount(0), 1);
        QVERIFY(window.content()->isVisible());
        QVERIFY(window.content()->isSectionBarVisible());
        QVERIFY(window.content()->isSectionVisible(0));
        QTRY_VERIFY(window.content()->height() > 0);
    }
}

void tst_DockReentrancy::tabRemovedWhenTheFirstOneComes()
{
    ContainerWindow window;
    QVERIFY(Input::show(&window));
    connect(window.content(), &DockContentWidget::signalCurrentSectionChanged, &window,
            [&window](int section) {
                if (section >= 0 && window.content()->tabCount(section) > 0)
                    window.content()->removeTab(section, 0);
            });
    window.addTab();
    QCOMPARE(window.content()->tabCount(0), 0);
    QVERIFY(window.content()->isHidden());
    QVERIFY(!window.content()->isSectionVisible(0));
}

void tst_DockReentrancy::tabRemovedWhenItShowsTheContent()
{
    ContainerWindow window;
    window.content()->addSection(u"Section"_s);
    QVERIFY(Input::show(&window));
    DockContentWidget *content = window.content();
    TabLog log(content);
    const auto once = connect(content, &DockContentWidget::signalVisibleChanged, content,
                              [content](bool visible) {
                                  if (visible)
                                      content->removeTab(0, 0);
                              });
    const std::unique_ptr<QWidget> page = std::make_unique<QWidget>();
    QCOMPARE(content->addTab(0, page.get(), u"short"_s), -1);
    QCOMPARE(content->tabCount(0), 0);
    QCOMPARE(log.entries().last(2), QStringList({u"section -1"_s, u"tab -1 -1"_s}));
    disconnect(once);
    log.take();
    QCOMPARE(content->addTab(0, new QWidget, u"long"_s), 0);
    QCOMPARE(log.take(), QStringList({u"tab 0 0"_s, u"visible 1"_s, u"section 0"_s}));
    QVERIFY(content->isVisible());
}

void tst_DockReentrancy::tabDeletedWhenItBecomesTheCurrentOne()
{
    ContentWindow window({0});
    QVERIFY(Input::show(&window));
    DockContentWidget *content = window.content();
    TabLog log(content);
    const auto once = connect(content, &DockContentWidget::signalCurrentTabChanged, content,
                              [content](int section, int index) { //
                                  delete content->widget(section, index);
                              });
    QCOMPARE(content->addTab(0, new QWidget, u"short"_s), -1);
    QCOMPARE(content->tabCount(0), 0);
    QVERIFY(!content->isSectionBarVisible());
    QCOMPARE(log.entries().last(2), QStringList({u"section -1"_s, u"tab -1 -1"_s}));
    disconnect(once);
    log.take();
    QCOMPARE(content->addTab(0, new QWidget, u"long"_s), 0);
    QCOMPARE(log.take(), QStringList({u"tab 0 0"_s, u"section 0"_s}));
}

void tst_DockReentrancy::minimizedInsideMinimized()
{
    ContainerWindow window;
    window.fill();
    QVERIFY(Input::show(&window));
    window.dragTo(150, 120, 160);
    connect(window.side(DockContainer::Left), &DockPanelWidget::signalMinimized, &window,
            [&window](bool minimized) {
                if (window.side(DockContainer::Right)->isMinimized() != minimized)
                    window.button(DockContainer::Right)->click();
            });
    for (int i = 0; i < 3; ++i) {
        Input::click(window.button(DockContainer::Left));
        QCOMPARE(window.hSplitter()->sizes(), QList<int>({0, window.hSplitter()->width(), 0}));
        Input::click(window.button(DockContainer::Left));
        QCOMPARE(window.hSplitter()->sizes(),
                 QList<int>({150, window.hSplitter()->width() - 310, 160}));
    }
}

QTEST_MAIN(tst_DockReentrancy)

#include "tst_dockreentrancy.moc"
