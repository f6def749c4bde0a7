// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonCorner.h>
#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>
#include <VornFrame/RibbonSubgroup.h>

#include "ribbon/RibbonBar_p.h"
#include "ribbon/RibbonTab.h"
#include "support/Input.h"
#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QAction>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

class CountedPrivate : public RibbonBarPrivate
{
    Q_DISABLE_COPY_MOVE(CountedPrivate)

public:
    explicit CountedPrivate(int *destroyed) : m_destroyed(destroyed) {}
    ~CountedPrivate() override { ++*m_destroyed; }

private:
    int *m_destroyed;
};

class DerivedBar : public RibbonBar
{
    Q_OBJECT

public:
    DerivedBar(CountedPrivate &d, QWidget *parent) : RibbonBar(d, parent)
    {
        heightBeforeInit = minimumHeight();
        d.init();
    }

    int heightBeforeInit = -1;
};

class FontChangeCounter : public QObject
{
    Q_OBJECT

public:
    explicit FontChangeCounter(QObject *watched) { watched->installEventFilter(this); }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::FontChange)
            ++count;
        return false;
    }

    int count = 0;
};

RibbonTabBar *tabBarOf(const RibbonBar &bar)
{
    return bar.findChild<RibbonTabBar *>(QString(), Qt::FindDirectChildrenOnly);
}

RibbonStackedWidget *stackOf(const RibbonBar &bar)
{
    return bar.findChild<RibbonStackedWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

RibbonTab *tabAt(const RibbonBar &bar, int index)
{
    return qobject_cast<RibbonTab *>(tabBarOf(bar)->layout()->itemAt(index)->widget());
}

QList<int> checkedTabs(const RibbonBar &bar)
{
    QList<int> checked;
    for (int i = 0; i < tabBarOf(bar)->count(); ++i) {
        if (tabAt(bar, i)->isChecked())
            checked.append(i);
    }
    return checked;
}

void addPages(RibbonBar *bar, const QStringList &titles)
{
    for (const QString &title : titles)
        bar->addPage(title);
}

void addIndexesOutOfRange(int count)
{
    QTest::addColumn<int>("index");

    QTest::newRow("just behind") << count;
    QTest::newRow("far behind") << 1000;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("minus one") << -1;
    QTest::newRow("minus two") << -2;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

} // namespace

class tst_RibbonBar : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAFrameInTheNamespace();
    void belongsToItsParent();
    void aSubclassHandsItsOwnPrivateObject();
    void hasItsNameHeightAndSheet();
    void stacksTheTabRowOnThePages();
    void theTabRowHoldsTabsSpaceAndCorner();
    void fillsAWindowAcrossTheTop_data();
    void fillsAWindowAcrossTheTop();
    void anEmptyBarGivesNeutralValues();

    void addingAPageGivesItsIndexAndTab();
    void addingAPageTakesItOver();
    void addingAPageLeavesTheCurrentOne();
    void addingATemporaryPageHidesNothing();
    void addingNothingIsIgnored();
    void addingAPageAgainGivesItsIndex();
    void aPageMayMoveToAnotherBar();
    void creatingAPageGivesIt();
    void creatingAPageShowsTheFirstOne();
    void creatingATemporaryPageHidesItsTabOnly();
    void theTabOfTheFirstPageIsChecked();

    void lookingUpPages();
    void pageGivesNothingOutOfRange_data();
    void pageGivesNothingOutOfRange();

    void setCurrentIndexChecksTheTabAndShowsThePage();
    void setCurrentPageDoesTheSame();
    void aHiddenOrDisabledPageCanBecomeCurrent();
    void settingTheCurrentPageEmitsNothing();
    void unknownPagesCannotBecomeCurrent();

    void hidingAPageHidesItsTab_data();
    void hidingAPageHidesItsTab();
    void hidingTheCurrentTabKeepsItsPage();
    void disablingAPageDisablesItsTabOnly();
    void indexesOutOfRangeAreIgnored_data();
    void indexesOutOfRangeAreIgnored();
    void hideTemporaryPagesHidesAllOfThem();
    void hideTemporaryPagesLeavesABarWithoutThemAlone();
    void temporaryPagesCanBeShownAgain();
    void theLastPageOfATitleUsedTwiceCannotBeHidden();

    void aClickShowsThePageBeforeItIsTold();
    void aClickOnTheCurrentTabTellsItAgain();
    void aClickOnADisabledTabDoesNothing();
    void clicksSwitchBetweenPages();
    void aRightClickAsksTheApplicationForAMenu();

    void pagesDeletedByTheHostAreNotMissed();
    void aTabWhosePageIsGoneCannotBecomeCurrent();
    void thePageMayBeDeletedWhenItIsShown();
    void theBarMayBeDeletedWhenAPageIsShown();
    void pagesMayBeAddedWhenAPageIsShown();
    void theCornerIsAlwaysTheSame();
    void aDeletedCornerIsNotMissed();

    void theSheetStaysWhenTheBarIsPlaced_data();
    void theSheetStaysWhenTheBarIsPlaced();
    void aFilledBarStaysUnseenUntilItIsShown();
    void pagesLookTheSameWheneverTheyAreShown();
    void hiddenPagesAreNotPolishedBeforeTheyAreSeen();
    void placingAFilledBarLeavesItsHiddenPagesAlone();
    void aPageShownBehindMayMoveToAnotherBar();
    void theMnemonicOfATitleClicksItsTab();

    void tabsAreAtLeastAHundredPixelsWide();
    void everythingIsMirroredFromRightToLeft();
    void manyPagesKeepTheirNumbers();
};

void tst_RibbonBar::isAFrameInTheNamespace()
{
    QCOMPARE(QLatin1StringView(RibbonBar::staticMetaObject.className()), "VornFrame::RibbonBar"_L1);
    QCOMPARE(RibbonBar::staticMetaObject.superClass(), &QFrame::staticMetaObject);
    const int index = RibbonBar::staticMetaObject.indexOfSignal("signalCurrentPageChanged(int)");
    QVERIFY(index >= RibbonBar::staticMetaObject.methodOffset());
    QCOMPARE(RibbonBar::staticMetaObject.methodCount(), QFrame::staticMetaObject.methodCount() + 1);
}

void tst_RibbonBar::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<RibbonBar> bar = new RibbonBar(parent.get());
    QCOMPARE(bar->parent(), parent.get());
    parent.reset();
    QVERIFY(!bar);
    QVERIFY(!RibbonBar().parent());
}

void tst_RibbonBar::aSubclassHandsItsOwnPrivateObject()
{
    int destroyed = 0;
    QWidget parent;
    auto *d = new CountedPrivate(&destroyed);
    {
        DerivedBar bar(*d, &parent);
        QCOMPARE(d->q_ptr, &bar);
        QCOMPARE(bar.parent(), &parent);
        QCOMPARE(bar.heightBeforeInit, 0);
        QCOMPARE(bar.minimumHeight(), 123);
        QCOMPARE(tabBarOf(bar), d->tabBar);
        QCOMPARE(bar.corner(), d->corner);
        QCOMPARE(stackOf(bar), d->stack);
        bar.addPage(u"Home"_s);
        QCOMPARE(d->stack->count(), 1);
        QCOMPARE(destroyed, 0);
    }
    QCOMPARE(destroyed, 1);
}

void tst_RibbonBar::hasItsNameHeightAndSheet()
{
    const RibbonBar bar;
    QCOMPARE(bar.objectName(), u"RibbonBar"_s);
    QCOMPARE(bar.minimumHeight(), 123);
    QCOMPARE(bar.maximumHeight(), 123);
    QCOMPARE(bar.contextMenuPolicy(), Qt::CustomContextMenu);
    QFile sheet(u":/res/ribbonLight.css"_s);
    QVERIFY(sheet.open(QIODevice::ReadOnly));
    QCOMPARE(bar.styleSheet(), QString::fromUtf8(sheet.readAll()));
    QVERIFY(!bar.styleSheet().isEmpty());
}

void tst_RibbonBar::stacksTheTabRowOnThePages()
{
    const RibbonBar bar;
    const auto *layout = qobject_cast<QVBoxLayout *>(bar.layout());
    QVERIFY(layout);
    QCOMPARE(layout->direction(), QBoxLayout::TopToBottom);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), 2);
    QVERIFY(qobject_cast<QHBoxLayout *>(layout->itemAt(0)->layout()));
    QVERIFY(stackOf(bar));
    QCOMPARE(layout->itemAt(1)->widget(), stackOf(bar));
}

void tst_RibbonBar::theTabRowHoldsTabsSpaceAndCorner()
{
    const RibbonBar bar;
    const auto *row = qobject_cast<QHBoxLayout *>(bar.layout()->itemAt(0)->layout());
    QVERIFY(row);
    QCOMPARE(row->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(row->count(), 3);
    QVERIFY(tabBarOf(bar));
    QCOMPARE(row->itemAt(0)->widget(), tabBarOf(bar));
    const QSpacerItem *space = row->itemAt(1)->spacerItem();
    QVERIFY(space);
    QCOMPARE(space->sizeHint(), QSize(0, 0));
    QCOMPARE(space->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(space->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    QVERIFY(bar.corner());
    QCOMPARE(row->itemAt(2)->widget(), bar.corner());
    QCOMPARE(bar.corner()->parent(), &bar);
}

void tst_RibbonBar::fillsAWindowAcrossTheTop_data()
{
    QTest::addColumn<int>("width");

    QTest::newRow("narrow") << 400;
    QTest::newRow("wide") << 1400;
}

void tst_RibbonBar::fillsAWindowAcrossTheTop()
{
    QFETCH(const int, width);
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *bar = new RibbonBar;
    layout->addWidget(bar);
    auto *label = new QLabel;
    label->setFixedSize(50, 20);
    bar->corner()->addWidget(label);
    addPages(bar, {u"Home"_s, u"View"_s});
    window.resize(width, 123);
    QVERIFY(Input::show(&window));

    QCOMPARE(bar->geometry(), QRect(0, 0, width, 123));
    QCOMPARE(tabBarOf(*bar)->geometry(), QRect(0, 0, 3 + 100 + 4 + 100 + 3, 28));
    QCOMPARE(bar->corner()->geometry(), QRect(width - 55, 0, 55, 28));
    QCOMPARE(stackOf(*bar)->geometry(), QRect(0, 28, width, 95));
    QCOMPARE(bar->page(0)->size(), QSize(width, 95));
}

void tst_RibbonBar::anEmptyBarGivesNeutralValues()
{
    const RibbonBar bar;
    QCOMPARE(bar.count(), 0);
    QVERIFY(!bar.currentPage());
    QVERIFY(!bar.page(0));
    QVERIFY(!bar.contains(nullptr));
    QCOMPARE(bar.indexOf(nullptr), -1);
}

void tst_RibbonBar::addingAPageGivesItsIndexAndTab()
{
    RibbonBar bar;
    auto *first = new RibbonPage;
    auto *second = new RibbonPage;
    QCOMPARE(bar.addPage(u"Home"_s, first), 0);
    QCOMPARE(bar.addPage(u"Picture"_s, second, true), 1);
    QCOMPARE(bar.count(), 2);
    QCOMPARE(tabBarOf(bar)->count(), 2);
    QCOMPARE(tabAt(bar, 0)->text(), u"Home"_s);
    QCOMPARE(tabAt(bar, 1)->text(), u"Picture"_s);
    QVERIFY(!tabAt(bar, 0)->isTemporary());
    QVERIFY(tabAt(bar, 1)->isTemporary());
    QCOMPARE(bar.page(0), first);
    QCOMPARE(bar.page(1), second);
}

void tst_RibbonBar::addingAPageTakesItOver()
{
    auto bar = std::make_unique<RibbonBar>();
    const QPointer<RibbonPage> given = new RibbonPage;
    bar->addPage(u"Home"_s, given);
    const QPointer<RibbonPage> created = bar->addPage(u"View"_s);
    QCOMPARE(given->parent(), stackOf(*bar));
    QCOMPARE(created->parent(), stackOf(*bar));
    bar.reset();
    QVERIFY(!given);
    QVERIFY(!created);
}

void tst_RibbonBar::addingAPageLeavesTheCurrentOne()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s});
    bar.setCurrentIndex(1);
    bar.addPage(u"Help"_s, new RibbonPage);
    QCOMPARE(bar.currentPage(), bar.page(1));
    QCOMPARE(checkedTabs(bar), QList<int>({1}));
}

void tst_RibbonBar::addingATemporaryPageHidesNothing()
{
    RibbonBar bar;
    auto *page = new RibbonPage;
    bar.addPage(u"Picture"_s, page, true);
    QVERIFY(!tabAt(bar, 0)->isHidden());
    QVERIFY(!page->isHidden());
    QVERIFY(Input::show(&bar));
    QVERIFY(tabAt(bar, 0)->isVisible());
    QVERIFY(page->isVisible());
}

void tst_RibbonBar::addingNothingIsIgnored()
{
    RibbonBar bar;
    QCOMPARE(bar.addPage(u"Home"_s, nullptr), -1);
    QCOMPARE(bar.count(), 0);
    QCOMPARE(tabBarOf(bar)->count(), 0);
}

void tst_RibbonBar::addingAPageAgainGivesItsIndex()
{
    RibbonBar bar;
    bar.addPage(u"Home"_s);
    auto *page = new RibbonPage;
    QCOMPARE(bar.addPage(u"View"_s, page), 1);
    QCOMPARE(bar.addPage(u"Again"_s, page, true), 1);
    QCOMPARE(bar.count(), 2);
    QCOMPARE(tabBarOf(bar)->count(), 2);
    QCOMPARE(tabAt(bar, 1)->text(), u"View"_s);
    QVERIFY(!tabAt(bar, 1)->isTemporary());
}

void tst_RibbonBar::aPageMayMoveToAnotherBar()
{
    RibbonBar one;
    RibbonBar other;
    auto *page = new RibbonPage;
    one.addPage(u"Home"_s, page);
    QCOMPARE(other.addPage(u"Home"_s, page), 0);
    QVERIFY(!one.contains(page));
    QCOMPARE(one.count(), 0);
    QVERIFY(other.contains(page));
    QCOMPARE(page->parent(), stackOf(other));
}

void tst_RibbonBar::creatingAPageGivesIt()
{
    RibbonBar bar;
    RibbonPage *first = bar.addPage(u"Home"_s);
    RibbonPage *second = bar.addPage(u"View"_s);
    QVERIFY(first);
    QVERIFY(first != second);
    QVERIFY(!first->group(0));
    QCOMPARE(bar.page(0), first);
    QCOMPARE(bar.page(1), second);
    QCOMPARE(tabAt(bar, 1)->text(), u"View"_s);
    QVERIFY(!tabAt(bar, 1)->isTemporary());
    QVERIFY(!tabAt(bar, 1)->isHidden());
}

void tst_RibbonBar::creatingAPageShowsTheFirstOne()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s});
    bar.setCurrentIndex(1);
    bar.addPage(u"Help"_s);
    QCOMPARE(bar.currentPage(), bar.page(0));
    QCOMPARE(checkedTabs(bar), QList<int>({1}));
}

void tst_RibbonBar::creatingATemporaryPageHidesItsTabOnly()
{
    RibbonBar bar;
    const RibbonPage *first = bar.addPage(u"Picture"_s, true);
    QVERIFY(tabAt(bar, 0)->isHidden());
    QVERIFY(tabAt(bar, 0)->isTemporary());
    QVERIFY(!first->isHidden());

    bar.addPage(u"Home"_s);
    bar.addPage(u"Table"_s, true);
    QVERIFY(!tabAt(bar, 1)->isHidden());
    QVERIFY(tabAt(bar, 2)->isHidden());
    QVERIFY(Input::show(&bar));
    QVERIFY(!tabAt(bar, 0)->isVisible());
    QVERIFY(first->isVisible());
    QVERIFY(!tabAt(bar, 2)->isVisible());
}

void tst_RibbonBar::theTabOfTheFirstPageIsChecked()
{
    RibbonBar created;
    created.addPage(u"Home"_s);
    created.addPage(u"View"_s);
    QCOMPARE(checkedTabs(created), QList<int>({0}));
    RibbonBar given;
    given.addPage(u"Home"_s, new RibbonPage);
    given.addPage(u"Home"_s, new RibbonPage);
    QCOMPARE(checkedTabs(given), QList<int>({0}));
    RibbonBar temporary;
    temporary.addPage(u"Picture"_s, true);
    temporary.addPage(u"Home"_s);
    QCOMPARE(checkedTabs(temporary), QList<int>({0}));
}

void tst_RibbonBar::lookingUpPages()
{
    RibbonBar bar;
    RibbonPage *first = bar.addPage(u"Home"_s);
    RibbonPage *second = bar.addPage(u"Home"_s);
    RibbonPage loose(&bar);
    QVERIFY(bar.contains(first));
    QVERIFY(bar.contains(second));
    QVERIFY(!bar.contains(&loose));
    QVERIFY(!bar.contains(nullptr));
    QCOMPARE(bar.indexOf(first), 0);
    QCOMPARE(bar.indexOf(second), 1);
    QCOMPARE(bar.indexOf(&loose), -1);
    QCOMPARE(bar.indexOf(nullptr), -1);
    QCOMPARE(bar.currentPage(), first);
}

void tst_RibbonBar::pageGivesNothingOutOfRange_data()
{
    addIndexesOutOfRange(2);
}

void tst_RibbonBar::pageGivesNothingOutOfRange()
{
    QFETCH(const int, index);
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s});
    QVERIFY(!bar.page(index));
}

void tst_RibbonBar::setCurrentIndexChecksTheTabAndShowsThePage()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    QVERIFY(Input::show(&bar));
    for (const int index : {2, 1, 1, 0}) {
        bar.setCurrentIndex(index);
        QCOMPARE(checkedTabs(bar), QList<int>({index}));
        QCOMPARE(bar.currentPage(), bar.page(index));
        for (int i = 0; i < bar.count(); ++i)
            QCOMPARE(bar.page(i)->isVisible(), i == index);
    }
}

void tst_RibbonBar::setCurrentPageDoesTheSame()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    bar.setCurrentPage(bar.page(2));
    QCOMPARE(checkedTabs(bar), QList<int>({2}));
    QCOMPARE(bar.currentPage(), bar.page(2));
}

void tst_RibbonBar::aHiddenOrDisabledPageCanBecomeCurrent()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    QVERIFY(Input::show(&bar));
    bar.hidePage(1);
    bar.setPageEnabled(2, false);

    bar.setCurrentIndex(1);
    QCOMPARE(checkedTabs(bar), QList<int>({1}));
    QVERIFY(!tabAt(bar, 1)->isVisible());
    QVERIFY(bar.page(1)->isVisible());

    bar.setCurrentIndex(2);
    QCOMPARE(checkedTabs(bar), QList<int>({2}));
    QVERIFY(bar.page(2)->isVisible());
    QVERIFY(bar.page(2)->isEnabled());
}

void tst_RibbonBar::settingTheCurrentPageEmitsNothing()
{
    RibbonBar bar;
    const QSignalSpy spy(&bar, &RibbonBar::signalCurrentPageChanged);
    addPages(&bar, {u"Home"_s, u"View"_s});
    bar.addPage(u"Help"_s, new RibbonPage);
    bar.setCurrentIndex(1);
    bar.setCurrentPage(bar.page(2));
    bar.hidePage(2);
    bar.showPage(2);
    bar.setPageEnabled(2, false);
    bar.hideTemporaryPages();
    QCOMPARE(spy.size(), 0);
}

void tst_RibbonBar::unknownPagesCannotBecomeCurrent()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s});
    bar.setCurrentIndex(1);
    RibbonPage loose;
    bar.setCurrentPage(&loose);
    bar.setCurrentPage(nullptr);
    QCOMPARE(checkedTabs(bar), QList<int>({1}));
    QCOMPARE(bar.currentPage(), bar.page(1));
}

void tst_RibbonBar::hidingAPageHidesItsTab_data()
{
    using Function = void (*)(RibbonBar *, int);
    QTest::addColumn<Function>("hide");
    QTest::addColumn<Function>("show");

    QTest::newRow("hidePage and showPage")
        << Function([](RibbonBar *bar, int index) { bar->hidePage(index); })
        << Function([](RibbonBar *bar, int index) { bar->showPage(index); });
    QTest::newRow("setPageHidden")
        << Function([](RibbonBar *bar, int index) { bar->setPageHidden(index, true); })
        << Function([](RibbonBar *bar, int index) { bar->setPageHidden(index, false); });
    QTest::newRow("setPageVisible")
        << Function([](RibbonBar *bar, int index) { bar->setPageVisible(index, false); })
        << Function([](RibbonBar *bar, int index) { bar->setPageVisible(index, true); });
}

void tst_RibbonBar::hidingAPageHidesItsTab()
{
    using Function = void (*)(RibbonBar *, int);
    QFETCH(const Function, hide);
    QFETCH(const Function, show);
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    bar.setCurrentIndex(1);
    QVERIFY(Input::show(&bar));

    hide(&bar, 1);
    QVERIFY(!tabAt(bar, 1)->isVisible());
    QVERIFY(!bar.page(1)->isVisible());
    QVERIFY(tabAt(bar, 0)->isVisible());
    QVERIFY(tabAt(bar, 2)->isVisible());

    show(&bar, 1);
    QVERIFY(tabAt(bar, 1)->isVisible());
    QVERIFY(bar.page(1)->isVisible());
    QCOMPARE(bar.count(), 3);
}

void tst_RibbonBar::hidingTheCurrentTabKeepsItsPage()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s});
    bar.setCurrentIndex(1);
    const QSignalSpy spy(&bar, &RibbonBar::signalCurrentPageChanged);
    QVERIFY(Input::show(&bar));
    bar.hidePage(1);
    QCOMPARE(bar.currentPage(), bar.page(1));
    QCOMPARE(checkedTabs(bar), QList<int>({1}));
    QCOMPARE(spy.size(), 0);
}

void tst_RibbonBar::disablingAPageDisablesItsTabOnly()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s});
    bar.setPageEnabled(1, false);
    QVERIFY(tabAt(bar, 0)->isEnabled());
    QVERIFY(!tabAt(bar, 1)->isEnabled());
    QVERIFY(!tabAt(bar, 1)->isHidden());
    QVERIFY(bar.page(1)->isEnabled());
    bar.setPageEnabled(1, true);
    QVERIFY(tabAt(bar, 1)->isEnabled());
}

void tst_RibbonBar::indexesOutOfRangeAreIgnored_data()
{
    addIndexesOutOfRange(2);
}

void tst_RibbonBar::indexesOutOfRangeAreIgnored()
{
    QFETCH(const int, index);
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s});
    bar.setCurrentIndex(1);

    bar.setCurrentIndex(index);
    bar.hidePage(index);
    bar.showPage(index);
    bar.setPageHidden(index, true);
    bar.setPageHidden(index, false);
    bar.setPageVisible(index, false);
    bar.setPageVisible(index, true);
    bar.setPageEnabled(index, false);

    QCOMPARE(bar.count(), 2);
    QCOMPARE(checkedTabs(bar), QList<int>({1}));
    QCOMPARE(bar.currentPage(), bar.page(1));
    for (int i = 0; i < 2; ++i) {
        QVERIFY(!tabAt(bar, i)->isHidden());
        QVERIFY(tabAt(bar, i)->isEnabled());
    }
    QVERIFY(!bar.page(1)->isHidden());
}

void tst_RibbonBar::hideTemporaryPagesHidesAllOfThem()
{
    RibbonBar bar;
    bar.addPage(u"Home"_s);
    bar.addPage(u"Picture"_s, new RibbonPage, true);
    bar.addPage(u"View"_s);
    bar.addPage(u"Table"_s, new RibbonPage, true);
    bar.setCurrentIndex(3);
    QVERIFY(Input::show(&bar));

    bar.hideTemporaryPages();

    QVERIFY(tabAt(bar, 0)->isVisible());
    QVERIFY(!tabAt(bar, 1)->isVisible());
    QVERIFY(tabAt(bar, 2)->isVisible());
    QVERIFY(!tabAt(bar, 3)->isVisible());
    QVERIFY(!bar.page(3)->isVisible());
    QCOMPARE(bar.currentPage(), bar.page(3));

    bar.hideTemporaryPages();
    QVERIFY(!tabAt(bar, 1)->isVisible());
}

void tst_RibbonBar::hideTemporaryPagesLeavesABarWithoutThemAlone()
{
    RibbonBar bar;
    bar.hideTemporaryPages();
    addPages(&bar, {u"Home"_s, u"View"_s});
    bar.hideTemporaryPages();
    QVERIFY(!tabAt(bar, 0)->isHidden());
    QVERIFY(!tabAt(bar, 1)->isHidden());
    QVERIFY(!bar.page(0)->isHidden());
}

void tst_RibbonBar::temporaryPagesCanBeShownAgain()
{
    RibbonBar bar;
    bar.addPage(u"Home"_s);
    RibbonPage *picture = bar.addPage(u"Picture"_s, true);
    QVERIFY(Input::show(&bar));
    bar.setPageVisible(bar.indexOf(picture), true);
    QVERIFY(tabAt(bar, 1)->isVisible());
    bar.setCurrentPage(picture);
    QVERIFY(picture->isVisible());
    bar.hideTemporaryPages();
    QVERIFY(!tabAt(bar, 1)->isVisible());
    QVERIFY(!picture->isVisible());
    bar.setCurrentIndex(0);
    QVERIFY(bar.page(0)->isVisible());
}

void tst_RibbonBar::theLastPageOfATitleUsedTwiceCannotBeHidden()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s, u"Home"_s});
    bar.setCurrentIndex(2);
    QVERIFY(Input::show(&bar));

    bar.hidePage(2);
    QVERIFY(!tabAt(bar, 2)->isVisible());
    QVERIFY(bar.page(2)->isVisible());
    bar.showPage(2);
    QVERIFY(tabAt(bar, 2)->isVisible());

    bar.setCurrentIndex(1);
    bar.hidePage(1);
    QVERIFY(!bar.page(1)->isVisible());
}

void tst_RibbonBar::aClickShowsThePageBeforeItIsTold()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    QStringList log;
    connect(stackOf(bar), &QStackedWidget::currentChanged, this,
            [&log](int index) { log.append(u"stack %1"_s.arg(index)); });
    connect(&bar, &RibbonBar::signalCurrentPageChanged, this, [&log, &bar](int index) {
        log.append(u"bar %1, page %2"_s.arg(index).arg(bar.indexOf(bar.currentPage())));
    });
    QVERIFY(Input::show(&bar));

    Input::click(tabAt(bar, 2));
    Input::click(tabAt(bar, 1));

    QCOMPARE(log,
             QStringList({u"stack 2"_s, u"bar 2, page 2"_s, u"stack 1"_s, u"bar 1, page 1"_s}));
    QCOMPARE(checkedTabs(bar), QList<int>({1}));
    QVERIFY(bar.page(1)->isVisible());
}

void tst_RibbonBar::aClickOnTheCurrentTabTellsItAgain()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s});
    const QSignalSpy spy(&bar, &RibbonBar::signalCurrentPageChanged);
    QVERIFY(Input::show(&bar));
    Input::click(tabAt(bar, 0));
    QCOMPARE(QList<QVariantList>(spy), QList<QVariantList>({{0}}));
}

void tst_RibbonBar::aClickOnADisabledTabDoesNothing()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s});
    bar.setPageEnabled(1, false);
    const QSignalSpy spy(&bar, &RibbonBar::signalCurrentPageChanged);
    QVERIFY(Input::show(&bar));
    Input::click(tabAt(bar, 1));
    QCOMPARE(spy.size(), 0);
    QCOMPARE(bar.currentPage(), bar.page(0));
    QCOMPARE(checkedTabs(bar), QList<int>({0}));
}

void tst_RibbonBar::clicksSwitchBetweenPages()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    bar.hidePage(1);
    const QSignalSpy spy(&bar, &RibbonBar::signalCurrentPageChanged);
    QVERIFY(Input::show(&bar));
    Input::click(tabAt(bar, 2));
    bar.setCurrentIndex(0);
    bar.showPage(1);
    QCoreApplication::processEvents();
    Input::click(tabAt(bar, 1));
    QCOMPARE(QList<QVariantList>(spy), QList<QVariantList>({{2}, {1}}));
    QVERIFY(bar.page(1)->isVisible());
    QVERIFY(!bar.page(0)->isVisible());
    QVERIFY(!bar.page(2)->isVisible());
}

void tst_RibbonBar::aRightClickAsksTheApplicationForAMenu()
{
    QWidget window;
    auto *bar = new RibbonBar(&window);
    bar->addPage(u"Home"_s);
    window.resize(600, 200);
    const QSignalSpy asked(bar, &QWidget::customContextMenuRequested);
    const QSignalSpy changed(bar, &RibbonBar::signalCurrentPageChanged);
    QVERIFY(Input::show(&window));
    bar->resize(600, 123);
    const PopupBan ban;
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(400, 10),
                            bar->mapToGlobal(QPoint(400, 10)));
    QCoreApplication::sendEvent(bar, &event);
    QCOMPARE(QList<QVariantList>(asked), QList<QVariantList>({{QPoint(400, 10)}}));
    QCOMPARE(changed.size(), 0);
}

void tst_RibbonBar::pagesDeletedByTheHostAreNotMissed()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    QVERIFY(Input::show(&bar));
    delete bar.page(1);
    QCOMPARE(bar.count(), 2);
    delete bar.page(0);
    QCOMPARE(bar.count(), 1);
    QVERIFY(bar.currentPage());

    for (int i = -1; i < 4; ++i) {
        bar.hidePage(i);
        bar.showPage(i);
        bar.setPageEnabled(i, true);
        bar.setCurrentIndex(i);
    }
    bar.hideTemporaryPages();
    for (int i = 0; i < 3; ++i)
        Input::click(tabAt(bar, i));

    delete bar.currentPage();
    QCOMPARE(bar.count(), 0);
    QVERIFY(!bar.currentPage());
    Input::click(tabAt(bar, 0));
}

void tst_RibbonBar::aTabWhosePageIsGoneCannotBecomeCurrent()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    delete bar.page(2);
    bar.setCurrentIndex(2);
    QCOMPARE(checkedTabs(bar), QList<int>({0}));
    QCOMPARE(bar.currentPage(), bar.page(0));
}

void tst_RibbonBar::thePageMayBeDeletedWhenItIsShown()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s, u"Help"_s});
    connect(&bar, &RibbonBar::signalCurrentPageChanged, this, [&bar] { delete bar.currentPage(); });
    QVERIFY(Input::show(&bar));
    Input::click(tabAt(bar, 2));
    QCOMPARE(bar.count(), 2);
    QVERIFY(bar.currentPage());
}

void tst_RibbonBar::theBarMayBeDeletedWhenAPageIsShown()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    QPointer<RibbonBar> bar = new RibbonBar;
    layout->addWidget(bar);
    addPages(bar, {u"Home"_s, u"View"_s});
    connect(bar, &RibbonBar::signalCurrentPageChanged, this, [bar] { delete bar; });
    QVERIFY(Input::show(&window));
    Input::click(tabAt(*bar, 1));
    QVERIFY(!bar);
}

void tst_RibbonBar::pagesMayBeAddedWhenAPageIsShown()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s});
    connect(&bar, &RibbonBar::signalCurrentPageChanged, this,
            [&bar] { bar.addPage(u"More"_s, new RibbonPage); });
    QVERIFY(Input::show(&bar));
    Input::click(tabAt(bar, 1));
    QCOMPARE(bar.count(), 3);
    QCOMPARE(bar.currentPage(), bar.page(1));
    QTRY_VERIFY(tabAt(bar, 2)->isVisible());
}

void tst_RibbonBar::theCornerIsAlwaysTheSame()
{
    const RibbonBar bar;
    RibbonCorner *corner = bar.corner();
    QVERIFY(corner);
    QCOMPARE(bar.corner(), corner);
    QCOMPARE(corner->layout()->count(), 0);
    auto *label = new QLabel(u"Help"_s);
    bar.corner()->addWidget(label);
    QCOMPARE(label->parent(), corner);
}

void tst_RibbonBar::aDeletedCornerIsNotMissed()
{
    RibbonBar bar;
    delete bar.corner();
    addPages(&bar, {u"Home"_s, u"View"_s});
    QVERIFY(Input::show(&bar));
    Input::click(tabAt(bar, 1));
    QCOMPARE(bar.currentPage(), bar.page(1));
}

void tst_RibbonBar::theSheetStaysWhenTheBarIsPlaced_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<bool>("filledBefore");

    const QString own = u"QLabel { color: red; }"_s;
    QTest::newRow("the bar's sheet, filled before") << RibbonBar().styleSheet() << true;
    QTest::newRow("the bar's sheet, filled after") << RibbonBar().styleSheet() << false;
    QTest::newRow("the application's sheet, filled before") << own << true;
    QTest::newRow("the application's sheet, filled after") << own << false;
    QTest::newRow("no sheet, filled before") << QString() << true;
}

void tst_RibbonBar::theSheetStaysWhenTheBarIsPlaced()
{
    QFETCH(const QString, sheet);
    QFETCH(const bool, filledBefore);
    QWidget first;
    QWidget second;
    auto *bar = new RibbonBar;
    bar->setStyleSheet(sheet);
    if (filledBefore)
        addPages(bar, {u"Home"_s, u"View"_s});
    bar->setWindowFlag(Qt::Tool);
    QCOMPARE(bar->styleSheet(), sheet);
    bar->setParent(&first);
    QCOMPARE(bar->styleSheet(), sheet);
    if (!filledBefore)
        addPages(bar, {u"Home"_s, u"View"_s});
    first.resize(600, 200);
    QVERIFY(Input::show(&first));
    QCOMPARE(bar->styleSheet(), sheet);
    bar->setParent(&second);
    QCOMPARE(bar->styleSheet(), sheet);
    bar->setParent(nullptr);
    QCOMPARE(bar->styleSheet(), sheet);
    bar->setParent(&second);
    QCOMPARE(bar->styleSheet(), sheet);
}

void tst_RibbonBar::aFilledBarStaysUnseenUntilItIsShown()
{
    RibbonBar bar;
    addPages(&bar, {u"Home"_s, u"View"_s});
    QCoreApplication::processEvents();
    QVERIFY(!bar.isVisible());
    QVERIFY(Input::show(&bar));
    QVERIFY(bar.page(0)->isVisible());
}

void tst_RibbonBar::pagesLookTheSameWheneverTheyAreShown()
{
    QAction action(u"Paste"_s);
    const auto fill = [&action](RibbonBar *bar) {
        for (const auto &title : {u"Home"_s, u"View"_s}) {
            RibbonGroup *group = bar->addPage(title)->addGroup(u"Clipboard"_s);
            group->addAction(&action);
            group->addSeparator();
            group->addSubgroup()->addAction(&action);
            auto *edit = new QLineEdit;
            edit->setFocusPolicy(Qt::NoFocus); // a focused one looks different
            group->addWidget(edit);
        }
    };
    // One bar is filled before it has its window, one afterwards, and one shows the other page.
    QList<QImage> images;
    for (int way = 0; way < 3; ++way) {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        auto *bar = new RibbonBar;
        if (way == 0)
            fill(bar);
        layout->addWidget(bar);
        window.resize(600, 123);
        if (way == 1)
            QVERIFY(Input::show(&window));
        if (way > 0)
            fill(bar);
        if (way != 1)
            QVERIFY(Input::show(&window));
        if (way == 2)
            bar->setCurrentIndex(1);
        QCoreApplication::processEvents();
        images.append(stackOf(*bar)->grab().toImage());
    }
    QCOMPARE(images.at(1), images.at(0));
    QCOMPARE(images.at(2), images.at(0));
}

void tst_RibbonBar::hiddenPagesAreNotPolishedBeforeTheyAreSeen()
{
    QAction action(u"Paste"_s);
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *bar = new RibbonBar;
    addPages(bar, {u"Home"_s, u"View"_s});
    RibbonGroup *group = bar->page(1)->addGroup(u"Clipboard"_s);
    group->addAction(&action);
    group->addSeparator();
    group->addSubgroup()->addAction(&action);
    layout->addWidget(bar);
    QVERIFY(Input::show(&window));
    QCoreApplication::processEvents();

    const QList<QWidget *> widgets = group->findChildren<QWidget *>();
    QVERIFY(widgets.size() >= 6);
    const auto isPolished = [](const QWidget *widget) {
        return widget->testAttribute(Qt::WA_WState_Polished);
    };
    QCOMPARE(std::count_if(widgets.begin(), widgets.end(), isPolished), 0);
    QVERIFY(!isPolished(group));
    bar->setCurrentIndex(1);
    QCOMPARE(std::count_if(widgets.begin(), widgets.end(), isPolished), widgets.size());
    QCOMPARE(group->findChild<QLabel *>(u"groupTitle"_s)->palette().color(QPalette::WindowText),
             QColor(97, 97, 97));
}

void tst_RibbonBar::placingAFilledBarLeavesItsHiddenPagesAlone()
{
    QAction action(u"Paste"_s);
    for (const bool given : {false, true}) {
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *bar = new RibbonBar;
        for (const auto &title : {u"Home"_s, u"View"_s}) {
            if (given)
                bar->addPage(title, new RibbonPage);
            else
                bar->addPage(title);
        }
        RibbonGroup *group = bar->page(1)->addGroup(u"Clipboard"_s);
        group->addAction(&action);
        // What the style sheet says about the font comes with polishing.
        const FontChangeCounter ofGroup(group);
        const FontChangeCounter ofButton(group->findChild<QToolButton *>());
        layout->addWidget(bar);
        QCOMPARE(ofGroup.count, 0);
        QCOMPARE(ofButton.count, 0);
    }
}

void tst_RibbonBar::aPageShownBehindMayMoveToAnotherBar()
{
    RibbonBar one;
    addPages(&one, {u"Home"_s, u"View"_s});
    auto *edit = new QLineEdit;
    RibbonPage *page = one.page(1);
    page->addGroup(u"Find"_s)->addWidget(edit);
    QVERIFY(Input::show(&one));
    one.showPage(1);
    RibbonBar other;
    other.addPage(u"View"_s, page);
    other.resize(600, 123);
    QVERIFY(Input::show(&other));
    Input::click(edit);
    QVERIFY(edit->hasFocus());
}

void tst_RibbonBar::theMnemonicOfATitleClicksItsTab()
{
    RibbonBar bar;
    addPages(&bar, {u"&Home"_s, u"&View"_s});
    const QSignalSpy spy(&bar, &RibbonBar::signalCurrentPageChanged);
    QVERIFY(Input::show(&bar));
    QTest::keyClick(&bar, Qt::Key_V, Qt::AltModifier);
    QTRY_COMPARE(QList<QVariantList>(spy), QList<QVariantList>({{1}}));
    QCOMPARE(bar.currentPage(), bar.page(1));
}

void tst_RibbonBar::tabsAreAtLeastAHundredPixelsWide()
{
    RibbonBar bar;
    const QString longTitle = u"All that can be done with a picture"_s;
    addPages(&bar, {u"A"_s, longTitle, QString()});
    bar.resize(900, 123);
    QVERIFY(Input::show(&bar));
    const RibbonTab *longTab = tabAt(bar, 1);
    QCOMPARE(longTab->font().pixelSize(), 12);
    const int longWidth = 20 + longTab->fontMetrics().horizontalAdvance(longTitle);
    QVERIFY(longWidth > 100);
    QCOMPARE(tabAt(bar, 0)->geometry(), QRect(3, 3, 100, 25));
    QCOMPARE(longTab->geometry(), QRect(107, 3, longWidth, 25));
    QCOMPARE(tabAt(bar, 2)->geometry(), QRect(111 + longWidth, 3, 100, 25));
}

void tst_RibbonBar::everythingIsMirroredFromRightToLeft()
{
    RibbonBar bar;
    bar.setLayoutDirection(Qt::RightToLeft);
    addPages(&bar, {u"Home"_s, u"View"_s});
    const RibbonGroup *first = bar.page(0)->addGroup(u"Clipboard"_s);
    const RibbonGroup *second = bar.page(0)->addGroup(u"Font"_s);
    auto *label = new QLabel;
    label->setFixedSize(50, 20);
    bar.corner()->addWidget(label);
    bar.resize(600, 123);
    QVERIFY(Input::show(&bar));

    QCOMPARE(tabBarOf(bar)->geometry(), QRect(390, 0, 210, 28));
    QCOMPARE(tabAt(bar, 0)->geometry(), QRect(107, 3, 100, 25));
    QCOMPARE(tabAt(bar, 1)->geometry(), QRect(3, 3, 100, 25));
    QCOMPARE(bar.corner()->geometry(), QRect(0, 0, 55, 28));
    QCOMPARE(first->geometry().right(), 600 - 3 - 1);
    QCOMPARE(label->x(), 5);
    QCOMPARE(second->geometry().right(), first->x() - 1);
}

void tst_RibbonBar::manyPagesKeepTheirNumbers()
{
    constexpr int Count = 60;
    RibbonBar bar;
    for (int i = 0; i < Count; ++i)
        QCOMPARE(bar.addPage(u"Page %1"_s.arg(i), new RibbonPage, i % 3 == 0), i);
    QVERIFY(Input::show(&bar));
    bar.hideTemporaryPages();
    for (int i = 0; i < Count; ++i) {
        QCOMPARE(tabAt(bar, i)->isVisible(), i % 3 != 0);
        bar.setCurrentIndex(i);
        QCOMPARE(checkedTabs(bar), QList<int>({i}));
        QCOMPARE(bar.indexOf(bar.currentPage()), i);
    }
}

QTEST_MAIN(tst_RibbonBar)

#include "tst_ribbonbar.moc"
