// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT
// clazy:excludeall=lambda-in-connect (no slot here outlives the test function that connects it)

#include "dock/ContainerWindow.h"

#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QMenu>
#include <QTabBar>

using namespace Qt::StringLiterals;
using namespace ContainerWindows;
using namespace VornFrame;

namespace {

QAbstractButton *closeButton(const QTabBar *bar, int index)
{
    QWidget *button = bar->tabButton(index, QTabBar::RightSide);
    return qobject_cast<QAbstractButton *>(button ? button
                                                  : bar->tabButton(index, QTabBar::LeftSide));
}

QStringList textsOf(const QMenu *menu)
{
    QStringList texts;
    for (const QAction *action : menu->actions())
        texts.append(action->text());
    return texts;
}

QAction *actionOf(const QMenu *menu, const QString &text)
{
    for (QAction *action : menu->actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

} // namespace

class tst_DockContentClosing : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void contextMenuOffersWhatThereIsToClose_data();
    void contextMenuOffersWhatThereIsToClose();
    void contextMenuEntryReportsItsMode_data();
    void contextMenuEntryReportsItsMode();
    void contextMenuAnswersTheKeyboard();
    void dismissedContextMenuReportsNothing();
    void rightClickOffTheTabsOpensNoMenu();
    void contextMenuReportsTheSectionThatIsShown();
    void contextMenuLeavesNothingBehind();
    void closeModesMeanTheseTabs_data();
    void closeModesMeanTheseTabs();
    void closeButtonReportsItsTab();
    void middleClickReportsItsTab_data();
    void middleClickReportsItsTab();
    void middleClickInAnotherSectionReportsThat();
    void middleClickOffTheTabsReportsNothing_data() { addDirections(); }
    void middleClickOffTheTabsReportsNothing();
    void middleClickIsNotConsumed();
    void closingRemovesNoTabByItself();
};

void tst_DockContentClosing::contextMenuOffersWhatThereIsToClose_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("texts");
    const QString current = u"Close Current"_s;
    const QString left = u"Close All Left"_s;
    const QString right = u"Close All Right"_s;
    const QString others = u"Close All(Except Current)"_s;
    const QString all = u"Close All"_s;
    QTest::newRow("the only tab") << 1 << 0 << QStringList({current});
    QTest::newRow("first of two") << 2 << 0 << QStringList({current, right, others, all});
    QTest::newRow("last of two") << 2 << 1 << QStringList({current, left, others, all});
    QTest::newRow("first of three") << 3 << 0 << QStringList({current, right, others, all});
    QTest::newRow("middle of three") << 3 << 1 << QStringList({current, left, right, others, all});
    QTest::newRow("last of three") << 3 << 2 << QStringList({current, left, others, all});
}

void tst_DockContentClosing::contextMenuOffersWhatThereIsToClose()
{
    QFETCH(const int, count);
    QFETCH(const int, index);
    QFETCH(const QStringList, texts);
    ContentWindow window({count});
    QVERIFY(Input::show(&window));
    QStringList offered;
    QPoint place;
    PopupDriver driver([&](QMenu *menu) {
        offered = textsOf(menu);
        place = menu->pos();
    });
    Input::rightClick(window.bar(), window.onTab(index));
    QVERIFY(driver.hasRun());
    QCOMPARE(offered, texts);
    QCOMPARE(place, window.bar()->mapToGlobal(window.onTab(index)));
}

void tst_DockContentClosing::contextMenuEntryReportsItsMode_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("mode");
    QTest::newRow("current") << u"Close Current"_s << 0;
    QTest::newRow("all left") << u"Close All Left"_s << 1;
    QTest::newRow("all right") << u"Close All Right"_s << 2;
    QTest::newRow("all but current") << u"Close All(Except Current)"_s << 3;
    QTest::newRow("all") << u"Close All"_s << 4;
}

void tst_DockContentClosing::contextMenuEntryReportsItsMode()
{
    QFETCH(const QString, text);
    QFETCH(const int, mode);
    ContentWindow window({0, 3});
    QVERIFY(Input::show(&window));
    window.content()->setCurrentTab(1, 0);
    TabLog log(window.content());
    PopupDriver driver([&text](QMenu *menu) {
        Input::click(menu, menu->actionGeometry(actionOf(menu, text)).center());
    });
    Input::rightClick(window.bar(1), window.onTab(1, 1));
    QVERIFY(driver.hasRun());
    QCOMPARE(log.take(), QStringList({u"close %1 1 1"_s.arg(mode)}));
    QCOMPARE(window.content()->tabCount(1), 3);
}

void tst_DockContentClosing::contextMenuAnswersTheKeyboard()
{
    ContentWindow window({3});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    PopupDriver driver([](QMenu *menu) {
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    const QPoint at = window.onTab(1);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, at, window.bar()->mapToGlobal(at));
    QCoreApplication::sendEvent(window.bar(), &event);
    QVERIFY(driver.hasRun());
    QCOMPARE(log.take(), QStringList({u"close 1 0 1"_s}));
}

void tst_DockContentClosing::dismissedContextMenuReportsNothing()
{
    ContentWindow window({3});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    PopupDriver driver([](QMenu *menu) { QTest::keyClick(menu, Qt::Key_Escape); });
    Input::rightClick(window.bar(), window.onTab(0));
    QVERIFY(driver.hasRun());
    QCOMPARE(log.take(), QStringList());
}

void tst_DockContentClosing::rightClickOffTheTabsOpensNoMenu()
{
    ContentWindow window({2});
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    const PopupBan ban;
    const QRect row(window.bar()->mapTo(window.tabs(), QPoint()), window.bar()->size());
    Input::rightClick(window.tabs(), QPoint(window.tabs()->width() - 5, row.center().y()));
    Input::rightClick(window.content()->widget(0, 0));
    // A row can be told of a place beside its tabs too.
    Q_EMIT window.bar()->customContextMenuRequested(QPoint(-5, 5));
    Q_EMIT window.bar()->customContextMenuRequested(QPoint(5000, 5));
    QCOMPARE(log.take(), QStringList());
}

void tst_DockContentClosing::contextMenuReportsTheSectionThatIsShown()
{
    ContentWindow window({2, 2});
    QVERIFY(Input::show(&window));
    window.visitSections();
    TabLog log(window.content());
    PopupDriver driver([&window](QMenu *menu) {
        window.content()->setCurrentTab(1, 0);
        actionOf(menu, u"Close Current"_s)->trigger();
    });
    Input::rightClick(window.bar(0), window.onTab(1, 0));
    QVERIFY(driver.hasRun());
    QCOMPARE(log.take(), QStringList({u"section 1"_s, u"tab 1 0"_s, u"close 0 1 1"_s}));
}

void tst_DockContentClosing::contextMenuLeavesNothingBehind()
{
    ContentWindow window({2});
    QVERIFY(Input::show(&window));
    const auto openAndClose = [&window] {
        PopupDriver driver([](QMenu *menu) { menu->close(); });
        Input::rightClick(window.bar(), window.onTab(1));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    const qsizetype before = window.findChildren<QObject *>().size();
    for (int i = 0; i < 5; ++i)
        openAndClose();
    QCOMPARE(window.findChildren<QObject *>().size(), before);
}

void tst_DockContentClosing::closeModesMeanTheseTabs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("left");
    QTest::newRow("current") << u"Close Current"_s << u"acd"_s;
    QTest::newRow("all left") << u"Close All Left"_s << u"bcd"_s;
    QTest::newRow("all right") << u"Close All Right"_s << u"ab"_s;
    QTest::newRow("all but current") << u"Close All(Except Current)"_s << u"b"_s;
    QTest::newRow("all") << u"Close All"_s << QString();
}

void tst_DockContentClosing::closeModesMeanTheseTabs()
{
    QFETCH(const QString, text);
    QFETCH(const QString, left);
    ContentWindow window({0});
    DockContentWidget *content = window.content();
    const QString titles = u"abcd"_s;
    for (const QChar name : titles)
        content->addTab(0, new QWidget, name);
    QVERIFY(Input::show(&window));
    // What an application does in answer.
    const auto closes = [](CloseMode mode, int tab, int index) {
        switch (mode) {
        case CloseCurrent:
            return tab == index;
        case CloseAllLeft:
            return tab < index;
        case CloseAllRight:
            return tab > index;
        case CloseAllExceptCurrent:
            return tab != index;
        case CloseAll:
            break;
        }
        return true;
    };
    connect(content, &DockContentWidget::signalTabCloseRequested, content,
            [&](CloseMode mode, int section, int index) {
                for (int tab = content->tabCount(section) - 1; tab >= 0; --tab) {
                    if (closes(mode, tab, index))
                        window.removeTab(section, tab);
                }
            });
    PopupDriver driver([&text](QMenu *menu) {
        Input::click(menu, menu->actionGeometry(actionOf(menu, text)).center());
    });
    Input::rightClick(window.bar(), window.onTab(1));
    QVERIFY(driver.hasRun());
    QString names;
    for (int tab = 0; tab < content->tabCount(0); ++tab)
        names.append(content->tabText(0, tab));
    QCOMPARE(names, left);
}

void tst_DockContentClosing::closeButtonReportsItsTab()
{
    ContentWindow window({0, 3});
    QVERIFY(Input::show(&window));
    window.content()->setCurrentTab(1, 0);
    TabLog log(window.content());
    for (const int index : {2, 0, 1}) {
        Input::click(closeButton(window.bar(1), index));
        QCOMPARE(log.take(), QStringList({u"close 0 1 %1"_s.arg(index)}));
    }
}

void tst_DockContentClosing::middleClickReportsItsTab_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("index");
    for (const int index : {0, 1, 2}) {
        QTest::addRow("tab %d, left to right", index) << Qt::LeftToRight << index;
        QTest::addRow("tab %d, right to left", index) << Qt::RightToLeft << index;
    }
}

void tst_DockContentClosing::middleClickReportsItsTab()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const int, index);
    ContentWindow window({3});
    window.setLayoutDirection(direction);
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    const QPoint at = window.onTab(index);
    Input::press(window.bar(), at, Qt::MiddleButton);
    QCOMPARE(log.take(), QStringList());
    Input::release(window.bar(), at, Qt::MiddleButton);
    QCOMPARE(log.take(), QStringList({u"close 0 0 %1"_s.arg(index)}));
}

void tst_DockContentClosing::middleClickInAnotherSectionReportsThat()
{
    ContentWindow window({1, 2});
    QVERIFY(Input::show(&window));
    window.content()->setCurrentTab(1, 0);
    TabLog log(window.content());
    Input::click(window.bar(1), window.onTab(1, 1), Qt::MiddleButton);
    QCOMPARE(log.take(), QStringList({u"close 0 1 1"_s}));
}

void tst_DockContentClosing::middleClickOffTheTabsReportsNothing()
{
    QFETCH(const Qt::LayoutDirection, direction);
    ContentWindow window({2});
    window.setLayoutDirection(direction);
    QVERIFY(Input::show(&window));
    TabLog log(window.content());
    const int end = direction == Qt::LeftToRight ? window.tabs()->width() - 5 : 5;
    Input::click(window.tabs(), QPoint(end, 8), Qt::MiddleButton);
    Input::click(window.content()->widget(0, 0), {}, Qt::MiddleButton);
    Input::click(window.sectionBar(), {}, Qt::MiddleButton);
    QCOMPARE(log.take(), QStringList());
}

void tst_DockContentClosing::middleClickIsNotConsumed()
{
    class ReleaseCounter : public QObject
    {
    public:
        bool eventFilter(QObject * /*watched*/, QEvent *event) override
        {
            count += event->type() == QEvent::MouseButtonRelease ? 1 : 0;
            return false;
        }
        int count = 0;
    };
    ContentWindow window({2});
    QVERIFY(Input::show(&window));
    ReleaseCounter counter;
    window.tabs()->parentWidget()->installEventFilter(&counter);
    Input::click(window.bar(), window.onTab(0), Qt::MiddleButton);
    QCOMPARE(counter.count, 1);
}

void tst_DockContentClosing::closingRemovesNoTabByItself()
{
    ContentWindow window({2});
    QVERIFY(Input::show(&window));
    Input::click(closeButton(window.bar(), 0));
    Input::click(window.bar(), window.onTab(1), Qt::MiddleButton);
    QCOMPARE(window.content()->tabCount(0), 2);
}

QTEST_MAIN(tst_DockContentClosing)

#include "tst_dockcontentclosing.moc"
