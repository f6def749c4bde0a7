// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/ContainerWindow.h"
#include "dock/TabRows.h"

#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace ContainerWindows;
using namespace TabRows;

namespace {

using Act = std::function<void(TabWindow &)>;

void addCounts(std::initializer_list<int> counts)
{
    QTest::addColumn<int>("count");
    for (const int count : counts)
        QTest::addRow("%d tabs", count) << count;
}

/// A content widget with one section of tabs, with the sheet of the container.
std::unique_ptr<ContentWindow> contentWith(int count)
{
    auto window = std::make_unique<ContentWindow>(QList<int>{0});
    VornFrame::StyleSheets::load(window.get(), VornFrame::ResourcePaths::DockSheet);
    for (int i = 0; i < count; ++i)
        window->content()->addTab(0, new QWidget, textOf(i));
    return window;
}

QString closeEntry(int index)
{
    return u"close 0 0 %1"_s.arg(index);
}

QWidget *newButton()
{
    auto *button = new QWidget;
    button->setFixedSize(60, 10);
    return button;
}

QIcon newIcon()
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::blue);
    return {pixmap};
}

} // namespace

Q_DECLARE_METATYPE(Act)

class tst_DockTabBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tabsThatComeIntoSightHaveTheirButton_data();
    void tabsThatComeIntoSightHaveTheirButton();
    void arrowsScrollLikeThoseOfAPlainRow_data();
    void arrowsScrollLikeThoseOfAPlainRow();
    void arrowsScrollOnAfterTheWheel();
    void everyTabIsHitBeforeTheFirstShow_data() { addCounts({1, 3, 12, 60}); }
    void everyTabIsHitBeforeTheFirstShow();
    void middleButtonHitsBeforeTheFirstShow_data() { addCounts({3, 12, 60}); }
    void middleButtonHitsBeforeTheFirstShow();
    void contextMenuHitsBeforeTheFirstShow_data() { addCounts({3, 12, 60}); }
    void contextMenuHitsBeforeTheFirstShow();
    void fewTabsHaveTheirButtonsAtOnce_data() { addCounts({1, 3, 32}); }
    void fewTabsHaveTheirButtonsAtOnce();
    void buttonTakenAwayStaysAway_data() { addCounts({3, 32, 33, 200}); }
    void buttonTakenAwayStaysAway();
    void manyButtonsComeAfterTheFirstShow_data() { addCounts({33, 200}); }
    void manyButtonsComeAfterTheFirstShow();
    void closeButtonFarInTheRowReportsItsTab();
    void tabsThatComeAndGoLeaveRoomForTheButtons();
    void rowIsThatOfAPlainTabWidget_data();
    void rowIsThatOfAPlainTabWidget();
    void draggedTabLeavesAPlainRow_data() { addCounts({6, 40}); }
    void draggedTabLeavesAPlainRow();
    void cornerWidgetsCountInTheHints_data();
    void cornerWidgetsCountInTheHints();
};

void tst_DockTabBar::tabsThatComeIntoSightHaveTheirButton_data()
{
    QTest::addColumn<int>("current");
    QTest::newRow("first tab shown") << 0;
    QTest::newRow("middle tab shown") << 100;
    QTest::newRow("last tab shown") << 199;
}

void tst_DockTabBar::tabsThatComeIntoSightHaveTheirButton()
{
    QFETCH(const int, current);
    TabWindow window(new VornFrame::DockTabWidget(nullptr));
    window.addTabs(200);
    window.tabs()->setCurrentIndex(current);
    // Not Input::show(): all buttons may have come when that returns.
    window.show();
    for (int removed = 1; removed <= 150; ++removed) {
        window.removeTab(0);
        QCoreApplication::processEvents();
        QCOMPARE(window.bareTabs(true), QList<int>());
    }
    QCOMPARE(window.tabs()->count(), 50);
}

void tst_DockTabBar::arrowsScrollLikeThoseOfAPlainRow_data()
{
    QTest::addColumn<int>("current");
    QTest::newRow("from the start") << 0;
    QTest::newRow("from the middle") << 100;
}

void tst_DockTabBar::arrowsScrollLikeThoseOfAPlainRow()
{
    QFETCH(const int, current);
    Pair pair(200);
    QVERIFY(pair.show());
    pair.inBoth([current](TabWindow &window) { window.tabs()->setCurrentIndex(current); });
    for (const Qt::ArrowType arrow : {Qt::RightArrow, Qt::LeftArrow}) {
        for (int i = 0; i < 10; ++i) {
            const int before = pair.dock.bar()->tabRect(0).x();
            pair.inBoth([arrow](TabWindow &window) { Input::click(window.arrow(arrow)); });
            QCOMPARE(pair.difference(), QString());
            const int after = pair.dock.bar()->tabRect(0).x();
            QVERIFY(arrow == Qt::RightArrow ? after < before : after > before);
        }
    }
}

void tst_DockTabBar::arrowsScrollOnAfterTheWheel()
{
    Pair pair(200);
    QVERIFY(pair.show());
    for (int i = 0; i < 6; ++i) {
        pair.inBoth([](TabWindow &window) { Input::wheel(window.bar(), -3); });
        QCOMPARE(pair.difference(), QString());
        const int before = pair.dock.bar()->tabRect(0).x();
        pair.inBoth([](TabWindow &window) { Input::click(window.arrow(Qt::RightArrow)); });
        QCOMPARE(pair.difference(), QString());
        QVERIFY(pair.dock.bar()->tabRect(0).x() < before);
    }
}

void tst_DockTabBar::everyTabIsHitBeforeTheFirstShow()
{
    QFETCH(const int, count);
    const auto window = contentWith(count);
    const QTabBar *bar = window->bar();
    for (int i = 0; i < count; ++i) {
        QVERIFY(!bar->tabRect(i).isEmpty());
        QCOMPARE(bar->tabAt(bar->tabRect(i).center()), i);
    }
}

void tst_DockTabBar::middleButtonHitsBeforeTheFirstShow()
{
    QFETCH(const int, count);
    const auto window = contentWith(count);
    TabLog log(window->content());
    for (int i = 0; i < count; ++i) {
        const QPointF at = window->onTab(i);
        QMouseEvent release(QEvent::MouseButtonRelease, at, window->tabs()->mapToGlobal(at),
                            Qt::MiddleButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window->tabs(), &release);
        QCOMPARE(log.take(), QStringList(closeEntry(i)));
    }
}

void tst_DockTabBar::contextMenuHitsBeforeTheFirstShow()
{
    QFETCH(const int, count);
    const auto window = contentWith(count);
    TabLog log(window->content());
    for (const int i : {0, count / 2, count - 1}) {
        PopupDriver driver([](QMenu *menu) {
            Input::click(menu, menu->actionGeometry(menu->actions().constFirst()).center());
        });
        const QPoint at = window->onTab(i);
        QContextMenuEvent request(QContextMenuEvent::Mouse, at, window->bar()->mapToGlobal(at));
        QCoreApplication::sendEvent(window->bar(), &request);
        QVERIFY(driver.hasRun());
        QCOMPARE(log.take(), QStringList(closeEntry(i)));
    }
}

void tst_DockTabBar::fewTabsHaveTheirButtonsAtOnce()
{
    QFETCH(const int, count);
    TabWindow window(new VornFrame::DockTabWidget(nullptr));
    for (int i = 0; i < count; ++i) {
        window.addTabs(1);
        QVERIFY(window.closeButton(i));
    }
    QVERIFY(Input::show(&window));
    QCOMPARE(window.bareTabs(false), QList<int>());
}

void tst_DockTabBar::buttonTakenAwayStaysAway()
{
    QFETCH(const int, count);
    TabWindow window(new VornFrame::DockTabWidget(nullptr));
    window.addTabs(count);
    const QPointer<QWidget> button = window.closeButton(0);
    QVERIFY(button);
    window.bar()->setTabButton(0, QTabBar::RightSide, nullptr);
    QVERIFY(!window.closeButton(0));
    QVERIFY(Input::show(&window));
    QTRY_COMPARE(window.bareTabs(false), QList<int>{0});
    window.addTabs(1);
    window.tabs()->setCurrentIndex(count);
    QCoreApplication::processEvents();
    QCOMPARE(window.bareTabs(false), QList<int>{0});
}

void tst_DockTabBar::manyButtonsComeAfterTheFirstShow()
{
    QFETCH(const int, count);
    const auto window = contentWith(count);
    QVERIFY(Input::show(window.get()));
    const auto bareTabs = [&window, count] {
        QList<int> bare;
        for (int i = 0; i < count; ++i) {
            if (!window->bar()->tabButton(i, QTabBar::RightSide))
                bare.append(i);
        }
        return bare;
    };
    QTRY_COMPARE(bareTabs(), QList<int>());
    for (int i = 0; i < count; ++i) {
        const QWidget *button = window->bar()->tabButton(i, QTabBar::RightSide);
        QVERIFY(window->bar()->tabRect(i).contains(button->geometry()));
    }
}

void tst_DockTabBar::closeButtonFarInTheRowReportsItsTab()
{
    const auto window = contentWith(200);
    QVERIFY(Input::show(window.get()));
    window->content()->setCurrentTab(0, 150);
    QTRY_VERIFY(window->bar()->tabButton(150, QTabBar::RightSide));
    QWidget *button = window->bar()->tabButton(150, QTabBar::RightSide);
    QVERIFY(window->bar()->rect().contains(button->geometry()));
    TabLog log(window->content());
    Input::click(button);
    QCOMPARE(log.take(), QStringList(closeEntry(150)));
}

void tst_DockTabBar::tabsThatComeAndGoLeaveRoomForTheButtons()
{
    for (const bool comes : {false, true}) {
        Pair pair(200);
        pair.inBoth([](TabWindow &window) { window.show(); });
        pair.inBoth([comes](TabWindow &window) {
            if (comes)
                window.addTabs(1);
            else
                window.removeTab(0);
        });
        QVERIFY(!pair.dock.bareTabs(false).isEmpty());
        for (int i = 0; i < pair.dock.tabs()->count(); ++i)
            QCOMPARE(pair.dock.bar()->tabRect(i).size(), pair.plain.bar()->tabRect(i).size());
    }
}

void tst_DockTabBar::rowIsThatOfAPlainTabWidget_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<int>("count");
    const auto rows = [](const char *name, const Act &act) {
        for (const int count : {4, 50})
            QTest::addRow("%s, %d tabs", name, count) << act << count;
    };
    rows("nothing", [](TabWindow &) {});
    rows("own button",
         [](TabWindow &window) { window.bar()->setTabButton(1, QTabBar::LeftSide, newButton()); });
    rows("no buttons", [](TabWindow &window) {
        window.bar()->setTabButton(1, QTabBar::LeftSide, newButton());
        window.bar()->setTabButton(1, QTabBar::LeftSide, nullptr);
        window.bar()->setTabButton(1, QTabBar::RightSide, nullptr);
    });
    rows("own close button",
         [](TabWindow &window) { window.bar()->setTabButton(2, QTabBar::RightSide, newButton()); });
    rows("west", [](TabWindow &window) { window.tabs()->setTabPosition(QTabWidget::West); });
    rows("west and back", [](TabWindow &window) {
        window.tabs()->setTabPosition(QTabWidget::West);
        window.tabs()->setTabPosition(QTabWidget::North);
    });
    rows("icon", [](TabWindow &window) { window.tabs()->setTabIcon(1, newIcon()); });
    rows("icon size", [](TabWindow &window) {
        window.tabs()->setTabIcon(1, newIcon());
        window.tabs()->setIconSize({32, 20});
    });
    rows("icon taken away", [](TabWindow &window) {
        window.tabs()->setTabIcon(1, newIcon());
        window.tabs()->setTabIcon(1, {});
    });
    rows("longer text", [](TabWindow &window) {
        window.tabs()->setTabText(1, u"a text that is longer than it was"_s);
    });
    rows("shorter text", [](TabWindow &window) { window.tabs()->setTabText(3, u"i"_s); });
    rows("no text", [](TabWindow &window) { window.tabs()->setTabText(0, {}); });
    rows("font", [](TabWindow &window) {
        QFont font = window.bar()->font();
        font.setPointSize(17);
        font.setBold(true);
        window.bar()->setFont(font);
    });
    rows("font of the window", [](TabWindow &window) {
        QFont font = window.font();
        font.setPointSize(7);
        window.setFont(font);
    });
    rows("sheet", [](TabWindow &window) {
        window.tabs()->setStyleSheet(u"QTabBar::tab { min-width: 90px; padding-left: 20px; }"_s);
    });
    rows("not closable", [](TabWindow &window) { window.tabs()->setTabsClosable(false); });
    rows("not closable for a while", [](TabWindow &window) {
        window.tabs()->setTabsClosable(false);
        window.tabs()->setTabsClosable(true);
    });
    rows("elided", [](TabWindow &window) { window.tabs()->setElideMode(Qt::ElideMiddle); });
    rows("no arrows", [](TabWindow &window) { window.tabs()->setUsesScrollButtons(false); });
    rows("elided without arrows", [](TabWindow &window) {
        window.tabs()->setElideMode(Qt::ElideMiddle);
        window.tabs()->setUsesScrollButtons(false);
    });
    rows("document mode", [](TabWindow &window) { window.tabs()->setDocumentMode(true); });
    rows("expanding", [](TabWindow &window) { window.bar()->setExpanding(true); });
    rows("other current tab", [](TabWindow &window) { window.tabs()->setCurrentIndex(2); });
    rows("tab hidden", [](TabWindow &window) { window.tabs()->setTabVisible(1, false); });
    rows("tab added in front",
         [](TabWindow &window) { window.tabs()->insertTab(0, new QWidget, u"front"_s); });
    rows("tab removed", [](TabWindow &window) { window.removeTab(0); });
    rows("tab moved", [](TabWindow &window) { window.bar()->moveTab(0, 3); });
    rows("right to left", [](TabWindow &window) { window.setLayoutDirection(Qt::RightToLeft); });
    rows("narrower", [](TabWindow &window) { window.resize(200, 300); });
}

void tst_DockTabBar::rowIsThatOfAPlainTabWidget()
{
    QFETCH(const Act, act);
    QFETCH(const int, count);
    {
        Pair pair(count);
        QVERIFY(pair.show());
        QCOMPARE(pair.difference(), QString());
        pair.inBoth(act);
        QTRY_COMPARE(pair.difference(true), QString());
    }
    // The same before the first show.
    Pair pair(count);
    pair.inBoth(act);
    QVERIFY(Input::show(&pair.plain));
    QVERIFY(Input::show(&pair.dock));
    // Bringing the buttons of many tabs scrolls the current one into sight.
    QTRY_COMPARE(pair.difference(true), QString());
}

void tst_DockTabBar::draggedTabLeavesAPlainRow()
{
    QFETCH(const int, count);
    for (const auto &[from, to] : {std::pair(1, 3), std::pair(3, 0), std::pair(0, 2)}) {
        // A new row each time: a dropped tab glides into its place, and cannot be taken meanwhile.
        Pair pair(count);
        pair.inBoth([](TabWindow &window) {
            window.bar()->setTabButton(1, QTabBar::LeftSide, newButton());
            window.tabs()->setTabIcon(2, newIcon());
        });
        QVERIFY(pair.show());
        const QString dragged = pair.dock.tabs()->tabText(from);
        pair.inBoth([from = from, to = to](TabWindow &window) {
            const QPoint start = window.bar()->tabRect(from).center();
            const QPoint end = window.bar()->tabRect(to).center();
            Input::drag(window.bar(), start, end);
        });
        QTRY_COMPARE(pair.difference(), QString());
        QVERIFY(pair.dock.tabs()->tabText(from) != dragged);
    }
}

void tst_DockTabBar::cornerWidgetsCountInTheHints_data()
{
    QTest::addColumn<Qt::Corner>("corner");
    QTest::newRow("left") << Qt::TopLeftCorner;
    QTest::newRow("right") << Qt::TopRightCorner;
}

void tst_DockTabBar::cornerWidgetsCountInTheHints()
{
    QFETCH(const Qt::Corner, corner);
    Pair pair(2);
    QVERIFY(pair.show());
    pair.inBoth([corner](TabWindow &window) {
        for (int i = 0; i < 2; ++i) // both pages seen
            window.tabs()->setCurrentIndex(i);
        auto *widget = new QLabel;
        widget->setPixmap(QPixmap(450, 70));
        window.tabs()->setCornerWidget(widget, corner);
        widget->show();
    });
    const QTabWidget *tabs = pair.dock.tabs();
    QCOMPARE(tabs->sizeHint(), pair.plain.tabs()->sizeHint());
    QCOMPARE(tabs->minimumSizeHint(), pair.plain.tabs()->minimumSizeHint());
    QVERIFY(tabs->sizeHint().width() >= 450);
    QVERIFY(tabs->minimumSizeHint().height() >= 70);
    pair.inBoth([corner](TabWindow &window) { window.tabs()->setCornerWidget(nullptr, corner); });
    QVERIFY(tabs->sizeHint().width() < 450);
}

QTEST_MAIN(tst_DockTabBar)

#include "tst_docktabbar.moc"
