// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ribbon/RibbonTab.h"
#include "ribbon/RibbonTabBar.h"
#include "ribbon/RibbonTabBar_p.h"
#include "support/ImageChecks.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPaintEvent>
#include <QPointer>
#include <QSignalSpy>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr QColor PlateColor(17, 113, 190);

QHBoxLayout *layoutOf(const RibbonTabBar &bar)
{
    return qobject_cast<QHBoxLayout *>(bar.layout());
}

QButtonGroup *groupOf(const RibbonTabBar &bar)
{
    return bar.findChild<QButtonGroup *>(QString(), Qt::FindDirectChildrenOnly);
}

/// The tab at a place of the row, counted from the leading end.
RibbonTab *tabAt(const RibbonTabBar &bar, int index)
{
    return qobject_cast<RibbonTab *>(bar.layout()->itemAt(index)->widget());
}

QList<int> checkedTabs(const RibbonTabBar &bar)
{
    QList<int> checked;
    for (int i = 0; i < bar.layout()->count(); ++i) {
        if (tabAt(bar, i)->isChecked())
            checked.append(i);
    }
    return checked;
}

void addTabs(RibbonTabBar *bar, const QStringList &titles)
{
    for (const QString &title : titles)
        bar->addTab(title, false);
}

/// Where a widget was painted.
class PaintLog : public QObject
{
    Q_OBJECT

public:
    explicit PaintLog(QWidget *watched) { watched->installEventFilter(this); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent *>(event)->region();
        return false;
    }

    QRegion painted;
};

void addIndexesOutOfRange(int count)
{
    QTest::addColumn<int>("index");

    QTest::newRow("just behind") << count;
    QTest::newRow("far behind") << 1000;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("minus one") << -1;
    QTest::newRow("minus two, an id that button groups give away") << -2;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

} // namespace

class tst_RibbonTabBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAFrameInTheNamespace();
    void itsRecordStartsAsPromised();
    void belongsToItsParent();
    void startsEmptyWithItsMetrics();
    void ownsAnExclusiveButtonGroup();

    void addTabGivesTheIndexes();
    void addedTabsStandInTheirOrder();
    void addedTabsHaveNeitherStretchNorAlignment();
    void addedTabsBelongToTheBar();
    void addedTabsAreShownWithTheBar();
    void theFirstTabIsTheCheckedOne();
    void aSecondTabOfTheFirstTitleIsNotChecked();
    void theIdOfATabIsItsIndex();
    void onlyTemporaryTabsAreTemporary();

    void hidingAndShowingATab();
    void disablingAndEnablingATab();
    void setCurrentChecksOneTab();
    void setCurrentWorksForHiddenAndDisabledTabs();
    void setCurrentEmitsNothing();
    void indexesOutOfRangeAreIgnored_data();
    void indexesOutOfRangeAreIgnored();
    void anEmptyBarIgnoresEveryIndex_data();
    void anEmptyBarIgnoresEveryIndex();

    void aClickTellsTheIndexAndChecksTheTab();
    void aClickOnTheCheckedTabTellsItAgain();
    void aClickOnADisabledTabTellsNothing();
    void aRightClickTellsNothing();
    void aPressThatIsReleasedElsewhereTellsNothing();
    void aDoubleClickTellsTwice();
    void aTabDeletedMeanwhileIsNotMissed();

    void tabsStandFourPixelsApart_data();
    void tabsStandFourPixelsApart();
    void temporaryTabsStandOnAPlate_data();
    void temporaryTabsStandOnAPlate();
    void onlyVisibleTemporaryTabsHaveAPlate();
    void platesFollowTheTabsThatAreShownAgain();
    void platesAreRepaintedWithTheirTabs();
};

void tst_RibbonTabBar::isAFrameInTheNamespace()
{
    QCOMPARE(QLatin1StringView(RibbonTabBar::staticMetaObject.className()),
             "VornFrame::RibbonTabBar"_L1);
    QCOMPARE(RibbonTabBar::staticMetaObject.superClass(), &QFrame::staticMetaObject);
}

void tst_RibbonTabBar::itsRecordStartsAsPromised()
{
    const RibbonTabBarPrivate d;
    const std::unique_ptr<QButtonGroup> group(d.buttonGroup);
    const std::unique_ptr<QHBoxLayout> layout(d.layout);
    QCOMPARE(d.temporaryColor, QColor(17, 113, 190, 255));
    QCOMPARE(d.secondColor, QColor(22, 81, 170, 255));
    QVERIFY(d.tabsByTitle.isEmpty());
    QVERIFY(group->exclusive());
    QVERIFY(!d.q_ptr);
}

void tst_RibbonTabBar::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<RibbonTabBar> bar = new RibbonTabBar(parent.get());
    QCOMPARE(bar->parent(), parent.get());
    parent.reset();
    QVERIFY(!bar);
}

void tst_RibbonTabBar::startsEmptyWithItsMetrics()
{
    const RibbonTabBar bar(nullptr);
    QCOMPARE(bar.count(), 0);
    QCOMPARE(bar.minimumHeight(), 28);
    QCOMPARE(bar.maximumHeight(), 28);
    QVERIFY(layoutOf(bar));
    QCOMPARE(layoutOf(bar)->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(layoutOf(bar)->contentsMargins(), QMargins(3, 3, 3, 0));
    QCOMPARE(layoutOf(bar)->spacing(), 4);
    QCOMPARE(layoutOf(bar)->count(), 0);
}

void tst_RibbonTabBar::ownsAnExclusiveButtonGroup()
{
    auto bar = std::make_unique<RibbonTabBar>(nullptr);
    const QPointer<QButtonGroup> group = groupOf(*bar);
    QVERIFY(group);
    QVERIFY(group->exclusive());
    bar.reset();
    QVERIFY(!group);
}

void tst_RibbonTabBar::addTabGivesTheIndexes()
{
    RibbonTabBar bar(nullptr);
    QCOMPARE(bar.addTab(u"Home"_s, false), 0);
    QCOMPARE(bar.addTab(u"View"_s, true), 1);
    QCOMPARE(bar.addTab(u"Home"_s, false), 2);
    QCOMPARE(bar.addTab(QString(), false), 3);
    QCOMPARE(bar.count(), 4);
}

void tst_RibbonTabBar::addedTabsStandInTheirOrder()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    QCOMPARE(bar.layout()->count(), 3);
    QCOMPARE(tabAt(bar, 0)->text(), u"Home"_s);
    QCOMPARE(tabAt(bar, 1)->text(), u"View"_s);
    QCOMPARE(tabAt(bar, 2)->text(), u"Help"_s);
}

void tst_RibbonTabBar::addedTabsHaveNeitherStretchNorAlignment()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s});
    QCOMPARE(layoutOf(bar)->stretch(0), 0);
    QCOMPARE(layoutOf(bar)->itemAt(0)->alignment(), Qt::Alignment());
}

void tst_RibbonTabBar::addedTabsBelongToTheBar()
{
    auto bar = std::make_unique<RibbonTabBar>(nullptr);
    addTabs(bar.get(), {u"Home"_s});
    const QPointer<RibbonTab> tab = tabAt(*bar, 0);
    QCOMPARE(tab->parent(), bar.get());
    bar.reset();
    QVERIFY(!tab);
}

void tst_RibbonTabBar::addedTabsAreShownWithTheBar()
{
    RibbonTabBar bar(nullptr);
    bar.addTab(u"Home"_s, false);
    bar.addTab(u"Picture"_s, true);
    QVERIFY(Input::show(&bar));
    QVERIFY(tabAt(bar, 0)->isVisible());
    QVERIFY(tabAt(bar, 1)->isVisible());
    bar.addTab(u"View"_s, false);
    QTRY_VERIFY(tabAt(bar, 2)->isVisible());
}

void tst_RibbonTabBar::theFirstTabIsTheCheckedOne()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s});
    QCOMPARE(checkedTabs(bar), QList<int>({0}));
    addTabs(&bar, {u"View"_s, u"Help"_s});
    QCOMPARE(checkedTabs(bar), QList<int>({0}));
    QCOMPARE(groupOf(bar)->checkedId(), 0);
}

void tst_RibbonTabBar::aSecondTabOfTheFirstTitleIsNotChecked()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s, u"Home"_s});
    QCOMPARE(checkedTabs(bar), QList<int>({0}));
}

void tst_RibbonTabBar::theIdOfATabIsItsIndex()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s, u"View"_s, u"View"_s, u"Help"_s});
    for (int i = 0; i < bar.count(); ++i) {
        QCOMPARE(groupOf(bar)->id(tabAt(bar, i)), i);
        QCOMPARE(groupOf(bar)->button(i), tabAt(bar, i));
    }
}

void tst_RibbonTabBar::onlyTemporaryTabsAreTemporary()
{
    RibbonTabBar bar(nullptr);
    bar.addTab(u"Home"_s, false);
    bar.addTab(u"Picture"_s, true);
    bar.addTab(u"View"_s, false);
    QVERIFY(!bar.isTemporary(0));
    QVERIFY(bar.isTemporary(1));
    QVERIFY(!bar.isTemporary(2));
    QVERIFY(tabAt(bar, 1)->isTemporary());
    QVERIFY(!tabAt(bar, 1)->isHidden());
}

void tst_RibbonTabBar::hidingAndShowingATab()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    QVERIFY(Input::show(&bar));

    bar.hideTab(1);
    QVERIFY(tabAt(bar, 0)->isVisible());
    QVERIFY(!tabAt(bar, 1)->isVisible());
    QVERIFY(tabAt(bar, 2)->isVisible());
    QCOMPARE(bar.count(), 3);

    bar.hideTab(1);
    QVERIFY(!tabAt(bar, 1)->isVisible());

    bar.showTab(1);
    QVERIFY(tabAt(bar, 1)->isVisible());
    QCOMPARE(checkedTabs(bar), QList<int>({0}));
}

void tst_RibbonTabBar::disablingAndEnablingATab()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    bar.setTabEnabled(1, false);
    QVERIFY(tabAt(bar, 0)->isEnabled());
    QVERIFY(!tabAt(bar, 1)->isEnabled());
    QVERIFY(tabAt(bar, 2)->isEnabled());
    bar.setTabEnabled(1, true);
    QVERIFY(tabAt(bar, 1)->isEnabled());
}

void tst_RibbonTabBar::setCurrentChecksOneTab()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    bar.setCurrent(2);
    QCOMPARE(checkedTabs(bar), QList<int>({2}));
    bar.setCurrent(2);
    QCOMPARE(checkedTabs(bar), QList<int>({2}));
    bar.setCurrent(0);
    QCOMPARE(checkedTabs(bar), QList<int>({0}));
}

void tst_RibbonTabBar::setCurrentWorksForHiddenAndDisabledTabs()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    bar.hideTab(1);
    bar.setTabEnabled(2, false);
    bar.setCurrent(1);
    QCOMPARE(checkedTabs(bar), QList<int>({1}));
    QVERIFY(tabAt(bar, 1)->isHidden());
    bar.setCurrent(2);
    QCOMPARE(checkedTabs(bar), QList<int>({2}));
    QVERIFY(!tabAt(bar, 2)->isEnabled());
}

void tst_RibbonTabBar::setCurrentEmitsNothing()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s, u"View"_s});
    const QSignalSpy spy(&bar, &RibbonTabBar::idClicked);
    bar.setCurrent(1);
    QCOMPARE(spy.size(), 0);
}

void tst_RibbonTabBar::indexesOutOfRangeAreIgnored_data()
{
    addIndexesOutOfRange(2);
}

void tst_RibbonTabBar::indexesOutOfRangeAreIgnored()
{
    QFETCH(const int, index);
    RibbonTabBar bar(nullptr);
    bar.addTab(u"Home"_s, true);
    bar.addTab(u"View"_s, true);
    bar.hideTab(1);

    bar.hideTab(index);
    bar.showTab(index);
    bar.setCurrent(index);
    bar.setTabEnabled(index, false);

    QVERIFY(!bar.isTemporary(index));
    QVERIFY(!tabAt(bar, 0)->isHidden());
    QVERIFY(tabAt(bar, 1)->isHidden());
    QVERIFY(tabAt(bar, 0)->isEnabled());
    QVERIFY(tabAt(bar, 1)->isEnabled());
    QCOMPARE(checkedTabs(bar), QList<int>({0}));
}

void tst_RibbonTabBar::anEmptyBarIgnoresEveryIndex_data()
{
    addIndexesOutOfRange(0);
}

void tst_RibbonTabBar::anEmptyBarIgnoresEveryIndex()
{
    QFETCH(const int, index);
    RibbonTabBar bar(nullptr);
    bar.hideTab(index);
    bar.showTab(index);
    bar.setCurrent(index);
    bar.setTabEnabled(index, true);
    QVERIFY(!bar.isTemporary(index));
    QCOMPARE(bar.count(), 0);
}

void tst_RibbonTabBar::aClickTellsTheIndexAndChecksTheTab()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    const QSignalSpy spy(&bar, &RibbonTabBar::idClicked);
    QVERIFY(Input::show(&bar));

    Input::click(tabAt(bar, 2));
    Input::click(tabAt(bar, 1));

    const QList<QVariantList> expected{{2}, {1}};
    QCOMPARE(QList<QVariantList>(spy), expected);
    QCOMPARE(checkedTabs(bar), QList<int>({1}));
}

void tst_RibbonTabBar::aClickOnTheCheckedTabTellsItAgain()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s, u"View"_s});
    const QSignalSpy spy(&bar, &RibbonTabBar::idClicked);
    QVERIFY(Input::show(&bar));
    Input::click(tabAt(bar, 0));
    QCOMPARE(QList<QVariantList>(spy), QList<QVariantList>({{0}}));
    QCOMPARE(checkedTabs(bar), QList<int>({0}));
}

void tst_RibbonTabBar::aClickOnADisabledTabTellsNothing()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s, u"View"_s});
    bar.setTabEnabled(1, false);
    const QSignalSpy spy(&bar, &RibbonTabBar::idClicked);
    QVERIFY(Input::show(&bar));
    Input::click(tabAt(bar, 1));
    QCOMPARE(spy.size(), 0);
    QCOMPARE(checkedTabs(bar), QList<int>({0}));
}

void tst_RibbonTabBar::aRightClickTellsNothing()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s, u"View"_s});
    const QSignalSpy spy(&bar, &RibbonTabBar::idClicked);
    QVERIFY(Input::show(&bar));
    Input::rightClick(tabAt(bar, 1));
    QCOMPARE(spy.size(), 0);
    QCOMPARE(checkedTabs(bar), QList<int>({0}));
}

void tst_RibbonTabBar::aPressThatIsReleasedElsewhereTellsNothing()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s, u"View"_s});
    const QSignalSpy spy(&bar, &RibbonTabBar::idClicked);
    QVERIFY(Input::show(&bar));
    Input::drag(&bar, tabAt(bar, 1)->geometry().center(), tabAt(bar, 0)->geometry().center());
    QCOMPARE(spy.size(), 0);
    QCOMPARE(checkedTabs(bar), QList<int>({0}));
}

void tst_RibbonTabBar::aDoubleClickTellsTwice()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s, u"View"_s});
    const QSignalSpy spy(&bar, &RibbonTabBar::idClicked);
    QVERIFY(Input::show(&bar));
    Input::doubleClick(tabAt(bar, 1));
    QCOMPARE(QList<QVariantList>(spy), QList<QVariantList>({{1}, {1}}));
}

void tst_RibbonTabBar::aTabDeletedMeanwhileIsNotMissed()
{
    RibbonTabBar bar(nullptr);
    addTabs(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    delete tabAt(bar, 1);
    QCOMPARE(bar.count(), 2);
    bar.hideTab(2);
    bar.setCurrent(2);
    bar.setTabEnabled(2, false);
    QVERIFY(!bar.isTemporary(2));
    QVERIFY(Input::show(&bar));
    Input::click(tabAt(bar, 0));
}

void tst_RibbonTabBar::tabsStandFourPixelsApart_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("firstLeft");
    QTest::addColumn<int>("secondLeft");

    QTest::newRow("left to right") << Qt::LeftToRight << 3 << 67;
    QTest::newRow("right to left") << Qt::RightToLeft << 67 << 3;
}

void tst_RibbonTabBar::tabsStandFourPixelsApart()
{
    QFETCH(const Qt::LayoutDirection, direction);
    RibbonTabBar bar(nullptr);
    bar.setLayoutDirection(direction);
    addTabs(&bar, {u"Home"_s, u"View"_s});
    tabAt(bar, 0)->setFixedWidth(60);
    tabAt(bar, 1)->setFixedWidth(60);
    QVERIFY(Input::show(&bar));
    QCOMPARE(bar.size(), QSize(3 + 60 + 4 + 60 + 3, 28));
    QTEST(tabAt(bar, 0)->x(), "firstLeft");
    QTEST(tabAt(bar, 1)->x(), "secondLeft");
}

void tst_RibbonTabBar::temporaryTabsStandOnAPlate_data()
{
    QTest::addColumn<int>("ratio");
    QTest::addColumn<Qt::LayoutDirection>("direction");

    QTest::newRow("left to right at 1x") << 1 << Qt::LeftToRight;
    QTest::newRow("left to right at 2x") << 2 << Qt::LeftToRight;
    QTest::newRow("right to left at 1x") << 1 << Qt::RightToLeft;
    QTest::newRow("right to left at 2x") << 2 << Qt::RightToLeft;
}

void tst_RibbonTabBar::temporaryTabsStandOnAPlate()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    RibbonTabBar bar(nullptr);
    bar.setLayoutDirection(direction);
    bar.setStyleSheet(
        u"VornFrame--RibbonTab { min-width: 60px; max-width: 60px; min-height: 25px;"_s
        u"border: none; background: transparent; }"_s);
    addTabs(&bar, {QString()});
    bar.addTab(QString(), true);
    addTabs(&bar, {QString()});
    QVERIFY(Input::show(&bar));

    const QRect tab = tabAt(bar, 1)->geometry();
    QCOMPARE(tab, QRect(67, 3, 60, 25));
    const QRect plate(65, 0, 64, 28);
    const QImage image = ImageChecks::rendered(&bar, ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, plate, PlateColor));
    VERIFY_IMAGE(ImageChecks::isFilled(image, bar.rect(), ImageChecks::Untouched, {plate}));
}

void tst_RibbonTabBar::onlyVisibleTemporaryTabsHaveAPlate()
{
    RibbonTabBar bar(nullptr);
    bar.setStyleSheet(u"VornFrame--RibbonTab { min-width: 60px; max-width: 60px; border: none;"_s
                      u"background: transparent; }"_s);
    bar.addTab(QString(), true);
    bar.addTab(QString(), false);
    bar.addTab(QString(), true);
    bar.hideTab(0);
    bar.setFixedWidth(194);
    QVERIFY(Input::show(&bar));

    QVERIFY(tabAt(bar, 2)->isVisible());
    const QRect tab = tabAt(bar, 2)->geometry();
    const QRect plate(QPoint(tab.left() - 2, tab.top() - 3), QPoint(tab.right() + 2, tab.bottom()));
    const QImage image = ImageChecks::rendered(&bar, 1);
    VERIFY_IMAGE(ImageChecks::isFilled(image, plate, PlateColor));
    VERIFY_IMAGE(ImageChecks::isFilled(image, bar.rect(), ImageChecks::Untouched, {plate}));
}

void tst_RibbonTabBar::platesFollowTheTabsThatAreShownAgain()
{
    RibbonTabBar bar(nullptr);
    bar.setStyleSheet(u"VornFrame--RibbonTab { border: none; background: transparent; }"_s);
    bar.addTab(u"Home"_s, false);
    bar.addTab(u"Picture"_s, true);
    bar.addTab(u"Table"_s, true);
    bar.hideTab(1);
    QVERIFY(Input::show(&bar));
    bar.showTab(1);
    QCoreApplication::processEvents();

    const QImage image = ImageChecks::rendered(&bar, 1);
    for (const int index : {1, 2}) {
        const QRect tab = tabAt(bar, index)->geometry();
        const QRect above(tab.left() - 2, tab.top() - 3, tab.width() + 4, 3);
        VERIFY_IMAGE(ImageChecks::isFilled(image, above, PlateColor));
    }
}

void tst_RibbonTabBar::platesAreRepaintedWithTheirTabs()
{
    RibbonTabBar bar(nullptr);
    bar.addTab(u"Home"_s, false);
    bar.addTab(u"Picture"_s, true);
    bar.setFixedWidth(300);
    QVERIFY(Input::show(&bar));
    const QRect plate = tabAt(bar, 1)->geometry().adjusted(-2, -3, 2, 0);

    PaintLog log(&bar);
    bar.hideTab(1);
    QTRY_COMPARE(log.painted.intersected(plate), QRegion(plate));
    log.painted = {};
    bar.showTab(1);
    QTRY_COMPARE(log.painted.intersected(plate), QRegion(plate));
}

QTEST_MAIN(tst_RibbonTabBar)

#include "tst_ribbontabbar.moc"
