// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>

#include "ribbon/RibbonStackedWidget.h"
#include "ribbon/RibbonStackedWidget_p.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

void addIndexesOutOfRange(int count)
{
    QTest::addColumn<int>("index");

    QTest::newRow("just behind") << count;
    QTest::newRow("far behind") << 1000;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("minus one") << -1;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

} // namespace

class tst_RibbonStackedWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAStackedWidgetInTheNamespace();
    void itsRecordStartsAsPromised();
    void belongsToItsParent();
    void startsEmptyWithItsHeight();

    void addingAPageGivesItsIndex();
    void addingAPageTakesItOver();
    void addingAPageLeavesTheCurrentOne();
    void creatingAPageGivesIt();
    void creatingAPageMakesTheFirstOneCurrent();
    void createdPagesAreEmpty();

    void pageGivesThePageAtAnIndex();
    void pageGivesNothingForOtherWidgets();
    void indexesOutOfRangeAreIgnored_data();
    void indexesOutOfRangeAreIgnored();
    void hidingAndShowingTheCurrentPage();
    void hidingAndShowingAnotherPage();
    void pagesCountByTheirTitles();
    void aPageThatIsDeletedLeavesItsPlace();

    void aPageShownBehindTheCurrentOneIsNotSeen_data();
    void aPageShownBehindTheCurrentOneIsNotSeen();
    void tabDoesNotLeadIntoAPageShownBehind();
    void clicksDoNotReachAPageShownBehind_data();
    void clicksDoNotReachAPageShownBehind();
    void aHiddenPageIsShownWhenItBecomesCurrent();
    void aPageChosenInAHiddenStackIsPolishedWhenItIsSeen();
    void aHiddenStackIsDrawnAsItWillBeSeen();
    void aPageShownBehindWorksWhenItBecomesCurrent_data();
    void aPageShownBehindWorksWhenItBecomesCurrent();
    void aPageShownBehindComesForwardWhenTheCurrentOneIsDeleted();
    void aPageShownBehindMayBeDeleted();
    void aPageShownBehindMayMoveToAnotherStack();
    void aPageShownBehindFollowsTheSizeOfTheStack();

    void asksForTheSizeOfThePagesSeen();
    void pagesThatWereNotSeenDoNotCount();
    void aDeletedPageDoesNotCount();
};

void tst_RibbonStackedWidget::isAStackedWidgetInTheNamespace()
{
    QCOMPARE(QLatin1StringView(RibbonStackedWidget::staticMetaObject.className()),
             "VornFrame::RibbonStackedWidget"_L1);
    QCOMPARE(RibbonStackedWidget::staticMetaObject.superClass(), &QStackedWidget::staticMetaObject);
}

void tst_RibbonStackedWidget::itsRecordStartsAsPromised()
{
    const RibbonStackedWidgetPrivate d;
    QVERIFY(d.pagesByTitle.isEmpty());
    QVERIFY(!d.q_ptr);
}

void tst_RibbonStackedWidget::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<RibbonStackedWidget> stack = new RibbonStackedWidget(parent.get());
    QCOMPARE(stack->parent(), parent.get());
    parent.reset();
    QVERIFY(!stack);
}

void tst_RibbonStackedWidget::startsEmptyWithItsHeight()
{
    const RibbonStackedWidget stack(nullptr);
    QCOMPARE(stack.count(), 0);
    QCOMPARE(stack.currentIndex(), -1);
    QCOMPARE(stack.minimumHeight(), 95);
    QCOMPARE(stack.maximumHeight(), 95);
}

void tst_RibbonStackedWidget::addingAPageGivesItsIndex()
{
    RibbonStackedWidget stack(nullptr);
    QCOMPARE(stack.addPage(u"Home"_s, new RibbonPage), 0);
    QCOMPARE(stack.addPage(u"View"_s, new RibbonPage), 1);
    QCOMPARE(stack.addPage(u"Home"_s, new RibbonPage), 2);
    QCOMPARE(stack.count(), 3);
}

void tst_RibbonStackedWidget::addingAPageTakesItOver()
{
    auto stack = std::make_unique<RibbonStackedWidget>(nullptr);
    const QPointer<RibbonPage> page = new RibbonPage;
    stack->addPage(u"Home"_s, page);
    QCOMPARE(page->parent(), stack.get());
    stack.reset();
    QVERIFY(!page);
}

void tst_RibbonStackedWidget::addingAPageLeavesTheCurrentOne()
{
    RibbonStackedWidget stack(nullptr);
    stack.addPage(u"Home"_s, new RibbonPage);
    QCOMPARE(stack.currentIndex(), 0);
    stack.addPage(u"View"_s, new RibbonPage);
    QCOMPARE(stack.currentIndex(), 0);
    stack.setCurrentIndex(1);
    stack.addPage(u"Help"_s, new RibbonPage);
    QCOMPARE(stack.currentIndex(), 1);
}

void tst_RibbonStackedWidget::creatingAPageGivesIt()
{
    RibbonStackedWidget stack(nullptr);
    const RibbonPage *first = stack.addPage(u"Home"_s);
    const RibbonPage *second = stack.addPage(u"View"_s);
    QCOMPARE(stack.widget(0), first);
    QCOMPARE(stack.widget(1), second);
    QCOMPARE(first->parent(), &stack);
}

void tst_RibbonStackedWidget::creatingAPageMakesTheFirstOneCurrent()
{
    RibbonStackedWidget stack(nullptr);
    stack.addPage(u"Home"_s);
    stack.addPage(u"View"_s);
    stack.setCurrentIndex(1);
    stack.addPage(u"Help"_s);
    QCOMPARE(stack.currentIndex(), 0);
}

void tst_RibbonStackedWidget::createdPagesAreEmpty()
{
    RibbonStackedWidget stack(nullptr);
    QVERIFY(!stack.addPage(u"Home"_s)->group(0));
}

void tst_RibbonStackedWidget::pageGivesThePageAtAnIndex()
{
    RibbonStackedWidget stack(nullptr);
    const RibbonPage *first = stack.addPage(u"Home"_s);
    const RibbonPage *second = stack.addPage(u"View"_s);
    QCOMPARE(stack.page(0), first);
    QCOMPARE(stack.page(1), second);
}

void tst_RibbonStackedWidget::pageGivesNothingForOtherWidgets()
{
    RibbonStackedWidget stack(nullptr);
    stack.addWidget(new QLabel);
    stack.addPage(u"Home"_s);
    QVERIFY(!stack.page(0));
    QVERIFY(stack.page(1));
}

void tst_RibbonStackedWidget::indexesOutOfRangeAreIgnored_data()
{
    addIndexesOutOfRange(2);
}

void tst_RibbonStackedWidget::indexesOutOfRangeAreIgnored()
{
    QFETCH(const int, index);
    RibbonStackedWidget stack(nullptr);
    const RibbonPage *first = stack.addPage(u"Home"_s);
    const RibbonPage *second = stack.addPage(u"View"_s);
    stack.hidePage(index);
    stack.showPage(index);
    QVERIFY(!stack.page(index));
    QVERIFY(!first->isHidden());
    QVERIFY(second->isHidden());
}

void tst_RibbonStackedWidget::hidingAndShowingTheCurrentPage()
{
    RibbonStackedWidget stack(nullptr);
    const RibbonPage *first = stack.addPage(u"Home"_s);
    stack.addPage(u"View"_s);
    QVERIFY(Input::show(&stack));

    stack.hidePage(0);
    QVERIFY(!first->isVisible());
    QCOMPARE(stack.currentIndex(), 0);

    stack.showPage(0);
    QVERIFY(first->isVisible());
    QCOMPARE(stack.currentIndex(), 0);
}

void tst_RibbonStackedWidget::hidingAndShowingAnotherPage()
{
    RibbonStackedWidget stack(nullptr);
    const RibbonPage *first = stack.addPage(u"Home"_s);
    const RibbonPage *second = stack.addPage(u"View"_s);
    const QSignalSpy changes(&stack, &QStackedWidget::currentChanged);
    QVERIFY(Input::show(&stack));

    stack.showPage(1);
    QVERIFY(!second->isHidden());
    QVERIFY(first->isVisible());
    stack.hidePage(1);
    QVERIFY(second->isHidden());
    QVERIFY(first->isVisible());
    QCOMPARE(stack.currentIndex(), 0);
    QCOMPARE(changes.size(), 0);
}

void tst_RibbonStackedWidget::pagesCountByTheirTitles()
{
    RibbonStackedWidget stack(nullptr);
    const RibbonPage *first = stack.addPage(u"Home"_s);
    const RibbonPage *second = stack.addPage(u"View"_s);
    const RibbonPage *third = stack.addPage(u"Home"_s);

    stack.showPage(1);
    stack.showPage(2);
    QVERIFY(!second->isHidden());
    QVERIFY(third->isHidden());

    stack.setCurrentIndex(2);
    stack.hidePage(2);
    QVERIFY(!third->isHidden());

    stack.addPage(u"Help"_s);
    stack.hidePage(2);
    QVERIFY(third->isHidden());
    QVERIFY(!first->isHidden());
}

void tst_RibbonStackedWidget::aPageThatIsDeletedLeavesItsPlace()
{
    RibbonStackedWidget stack(nullptr);
    delete stack.addPage(u"Home"_s);
    QCOMPARE(stack.count(), 0);
    stack.hidePage(0);
    stack.showPage(0);
    QVERIFY(!stack.page(0));

    const RibbonPage *page = stack.addPage(u"View"_s);
    QCOMPARE(stack.page(0), page);
    stack.hidePage(0);
    QVERIFY(page->isHidden());
}

void tst_RibbonStackedWidget::aPageShownBehindTheCurrentOneIsNotSeen_data()
{
    QTest::addColumn<bool>("wasCurrent");

    QTest::newRow("page that was never current") << false;
    QTest::newRow("page that was current before") << true;
}

void tst_RibbonStackedWidget::aPageShownBehindTheCurrentOneIsNotSeen()
{
    QFETCH(const bool, wasCurrent);
    RibbonStackedWidget stack(nullptr);
    stack.addPage(u"Home"_s)->addGroup(u"Clipboard"_s);
    RibbonGroup *behind = stack.addPage(u"View"_s)->addGroup(u"Windows of this program"_s);
    auto *label = new QLabel;
    label->setStyleSheet(u"background-color: red;"_s);
    label->setFixedSize(90, 60);
    behind->addWidget(label);
    stack.resize(400, 95);
    QVERIFY(Input::show(&stack));
    if (wasCurrent) {
        stack.setCurrentIndex(1);
        stack.setCurrentIndex(0);
    }
    const QImage before = stack.grab().toImage();

    stack.showPage(1);
    QCoreApplication::processEvents();

    QCOMPARE(stack.grab().toImage(), before);
}

void tst_RibbonStackedWidget::tabDoesNotLeadIntoAPageShownBehind()
{
    RibbonStackedWidget stack(nullptr);
    auto *first = new QLineEdit;
    auto *second = new QLineEdit;
    auto *behind = new QLineEdit;
    RibbonGroup *group = stack.addPage(u"Home"_s)->addGroup(u"Find"_s);
    group->addWidget(first);
    group->addWidget(second);
    stack.addPage(u"View"_s)->addGroup(u"Zoom"_s)->addWidget(behind);
    QVERIFY(Input::show(&stack));
    stack.showPage(1);

    first->setFocus();
    QVERIFY(first->hasFocus());
    QTest::keyClick(first, Qt::Key_Tab);
    QVERIFY(second->hasFocus());
    QTest::keyClick(second, Qt::Key_Tab);
    QVERIFY(first->hasFocus());
    QVERIFY(!behind->hasFocus());
}

void tst_RibbonStackedWidget::clicksDoNotReachAPageShownBehind_data()
{
    aPageShownBehindTheCurrentOneIsNotSeen_data();
}

void tst_RibbonStackedWidget::clicksDoNotReachAPageShownBehind()
{
    QFETCH(const bool, wasCurrent);
    RibbonStackedWidget stack(nullptr);
    stack.addPage(u"Home"_s);
    auto *button = new QPushButton(u"Zoom"_s);
    stack.addPage(u"View"_s)->addGroup(u"Zoom"_s)->addWidget(button);
    const QSignalSpy clicked(button, &QPushButton::clicked);
    stack.resize(400, 95);
    QVERIFY(Input::show(&stack));
    if (wasCurrent) {
        stack.setCurrentIndex(1);
        stack.setCurrentIndex(0);
    }
    stack.showPage(1);
    for (int x = 1; x < 400; x += 20)
        Input::click(&stack, QPoint(x, 40));
    QCOMPARE(clicked.size(), 0);
}

void tst_RibbonStackedWidget::aHiddenPageIsShownWhenItBecomesCurrent()
{
    RibbonStackedWidget stack(nullptr);
    const RibbonPage *first = stack.addPage(u"Home"_s);
    const RibbonPage *second = stack.addPage(u"View"_s);
    QVERIFY(Input::show(&stack));
    stack.hidePage(1);
    stack.setCurrentIndex(1);
    QVERIFY(second->isVisible());
    QVERIFY(!first->isVisible());
    QCOMPARE(second->size(), stack.size());
}

void tst_RibbonStackedWidget::aPageChosenInAHiddenStackIsPolishedWhenItIsSeen()
{
    RibbonStackedWidget stack(nullptr);
    stack.addPage(u"Home"_s);
    RibbonPage *page = stack.addPage(u"View"_s);
    RibbonGroup *group = page->addGroup(u"Group"_s);
    group->addAction(new QAction(u"Action"_s, page));
    const auto *button = group->findChild<QToolButton *>();
    stack.showPage(1);
    stack.setCurrentPage(1);
    QVERIFY(!page->isHidden());
    QVERIFY(!button->testAttribute(Qt::WA_WState_Polished));
    QVERIFY(Input::show(&stack));
    QVERIFY(button->testAttribute(Qt::WA_WState_Polished));
    QVERIFY(group->width() >= button->sizeHint().width());
    QVERIFY(group->rect().contains(QRect(button->mapTo(group, QPoint()), button->size())));
}

void tst_RibbonStackedWidget::aHiddenStackIsDrawnAsItWillBeSeen()
{
    RibbonStackedWidget stack(nullptr);
    for (const auto &title : {u"Home"_s, u"View"_s}) {
        RibbonPage *page = stack.addPage(title);
        for (const auto &name : {u"First"_s, u"Second"_s})
            page->addGroup(name)->addAction(new QAction(title + name, page));
        page->setEnabled(false); // the same below the pointer, wherever that is
    }
    stack.resize(400, stack.height());
    // Never shown, and then hidden again, with another size.
    for (const int index : {1, 0}) {
        stack.showPage(index);
        stack.setCurrentPage(index);
        const QImage hidden = stack.grab().toImage();
        QVERIFY(Input::show(&stack));
        QCOMPARE(stack.grab().toImage(), hidden);
        const QList<RibbonGroup *> groups = stack.page(index)->findChildren<RibbonGroup *>();
        QCOMPARE(groups.at(1)->x(), groups.at(0)->geometry().right() + 1);
        stack.hide();
        stack.resize(600, stack.height());
    }
}

void tst_RibbonStackedWidget::aPageShownBehindWorksWhenItBecomesCurrent_data()
{
    using Function = void (*)(RibbonStackedWidget *);
    QTest::addColumn<Function>("beforehand");

    QTest::newRow("shown") << Function([](RibbonStackedWidget *stack) { stack->showPage(1); });
    QTest::newRow("shown twice") << Function([](RibbonStackedWidget *stack) {
        stack->showPage(1);
        stack->showPage(1);
    });
    QTest::newRow("shown and hidden") << Function([](RibbonStackedWidget *stack) {
        stack->showPage(1);
        stack->hidePage(1);
    });
    QTest::newRow("current, left and shown") << Function([](RibbonStackedWidget *stack) {
        stack->setCurrentIndex(1);
        stack->setCurrentIndex(0);
        stack->showPage(1);
    });
}

void tst_RibbonStackedWidget::aPageShownBehindWorksWhenItBecomesCurrent()
{
    using Function = void (*)(RibbonStackedWidget *);
    QFETCH(const Function, beforehand);
    RibbonStackedWidget stack(nullptr);
    stack.addPage(u"Home"_s);
    RibbonPage *page = stack.addPage(u"View"_s);
    auto *edit = new QLineEdit;
    edit->setFocusPolicy(Qt::WheelFocus);
    auto *button = new QPushButton(u"Zoom"_s);
    button->setFocusPolicy(Qt::TabFocus);
    auto *label = new QLabel(u"Zoom"_s);
    RibbonGroup *group = page->addGroup(u"Zoom"_s);
    group->addWidget(edit);
    group->addWidget(button);
    group->addWidget(label);
    const QSignalSpy clicked(button, &QPushButton::clicked);
    stack.resize(400, 95);
    QVERIFY(Input::show(&stack));

    beforehand(&stack);
    stack.setCurrentIndex(1);
    QCoreApplication::processEvents();

    QCOMPARE(page->geometry(), QRect(0, 0, 400, 95));
    QCOMPARE(edit->focusPolicy(), Qt::WheelFocus);
    QCOMPARE(button->focusPolicy(), Qt::TabFocus);
    QCOMPARE(label->focusPolicy(), Qt::NoFocus);
    for (const QWidget *widget : {static_cast<QWidget *>(edit), static_cast<QWidget *>(label)})
        QVERIFY(widget->dynamicPropertyNames().isEmpty());
    Input::click(edit);
    QVERIFY(edit->hasFocus());
    QTest::keyClick(edit, Qt::Key_Tab);
    QVERIFY(button->hasFocus());
    Input::click(button);
    QCOMPARE(clicked.size(), 1);
}

void tst_RibbonStackedWidget::aPageShownBehindComesForwardWhenTheCurrentOneIsDeleted()
{
    RibbonStackedWidget stack(nullptr);
    const RibbonPage *first = stack.addPage(u"Home"_s);
    const RibbonPage *second = stack.addPage(u"View"_s);
    auto *edit = new QLineEdit;
    stack.page(1)->addGroup(u"Zoom"_s)->addWidget(edit);
    stack.resize(400, 95);
    QVERIFY(Input::show(&stack));
    stack.showPage(1);
    delete first;
    QCOMPARE(stack.currentWidget(), second);
    QVERIFY(second->isVisible());
    QCOMPARE(second->geometry(), QRect(0, 0, 400, 95));
    Input::click(edit);
    QVERIFY(edit->hasFocus());
}

void tst_RibbonStackedWidget::aPageShownBehindMayBeDeleted()
{
    RibbonStackedWidget stack(nullptr);
    stack.addPage(u"Home"_s);
    stack.addPage(u"View"_s);
    stack.resize(400, 95);
    QVERIFY(Input::show(&stack));
    stack.showPage(1);
    delete stack.page(1);
    const RibbonPage *page = stack.addPage(u"Help"_s);
    stack.setCurrentIndex(1);
    QVERIFY(page->isVisible());
    QCOMPARE(page->geometry(), QRect(0, 0, 400, 95));
}

void tst_RibbonStackedWidget::aPageShownBehindMayMoveToAnotherStack()
{
    RibbonStackedWidget one(nullptr);
    one.addPage(u"Home"_s);
    RibbonPage *page = one.addPage(u"View"_s);
    auto *edit = new QLineEdit;
    page->addGroup(u"Zoom"_s)->addWidget(edit);
    one.resize(400, 95);
    QVERIFY(Input::show(&one));
    one.showPage(1);
    RibbonStackedWidget other(nullptr);
    other.resize(300, 95);
    other.addPage(u"View"_s, page);
    QVERIFY(Input::show(&other));
    QCOMPARE(page->geometry(), QRect(0, 0, 300, 95));
    Input::click(edit);
    QVERIFY(edit->hasFocus());
}

void tst_RibbonStackedWidget::aPageShownBehindFollowsTheSizeOfTheStack()
{
    RibbonStackedWidget stack(nullptr);
    stack.addPage(u"Home"_s);
    const RibbonPage *page = stack.addPage(u"View"_s);
    stack.resize(400, 95);
    QVERIFY(Input::show(&stack));
    stack.showPage(1);
    stack.resize(600, 95);
    QCOMPARE(stack.width(), 600);
    QVERIFY(!stack.rect().intersects(page->geometry()));
    stack.setCurrentIndex(1);
    QCOMPARE(page->geometry(), QRect(0, 0, 600, 95));
}

void tst_RibbonStackedWidget::asksForTheSizeOfThePagesSeen()
{
    RibbonStackedWidget stack(nullptr);
    RibbonPage *narrow = stack.addPage(u"Home"_s);
    narrow->addGroup(u"Zoom"_s);
    RibbonPage *wide = stack.addPage(u"View"_s);
    wide->addGroup(u"All the windows of this program"_s);
    const int narrowWidth = narrow->sizeHint().width();
    const int wideWidth = wide->sizeHint().width();
    QVERIFY(narrowWidth < wideWidth);

    QCOMPARE(stack.sizeHint().width(), narrowWidth);
    QCOMPARE(stack.minimumSizeHint().width(), narrow->minimumSizeHint().width());
    QVERIFY(Input::show(&stack));
    stack.setCurrentIndex(1);
    QCOMPARE(stack.sizeHint().width(), wideWidth);
    QCOMPARE(stack.minimumSizeHint().width(), wide->minimumSizeHint().width());
    stack.setCurrentIndex(0);
    QCOMPARE(stack.sizeHint().width(), wideWidth);
    QCOMPARE(stack.minimumSizeHint().width(), wide->minimumSizeHint().width());
}

void tst_RibbonStackedWidget::pagesThatWereNotSeenDoNotCount()
{
    RibbonStackedWidget stack(nullptr);
    QCOMPARE(stack.sizeHint(), QSize(0, 0));
    QCOMPARE(stack.minimumSizeHint(), QSize(0, 0));
    RibbonPage *narrow = stack.addPage(u"Home"_s);
    narrow->addGroup(u"Zoom"_s);
    RibbonPage *wide = stack.addPage(u"View"_s);
    wide->addGroup(u"All the windows of this program"_s);
    // Current, but nobody saw it.
    stack.setCurrentIndex(1);
    QCOMPARE(stack.sizeHint().width(), wide->sizeHint().width());
    stack.setCurrentIndex(0);
    QCOMPARE(stack.sizeHint().width(), narrow->sizeHint().width());
    QVERIFY(Input::show(&stack));
    stack.showPage(1);
    QCOMPARE(stack.sizeHint().width(), narrow->sizeHint().width());
}

void tst_RibbonStackedWidget::aDeletedPageDoesNotCount()
{
    RibbonStackedWidget stack(nullptr);
    RibbonPage *narrow = stack.addPage(u"Home"_s);
    narrow->addGroup(u"Zoom"_s);
    stack.addPage(u"View"_s)->addGroup(u"All the windows of this program"_s);
    QVERIFY(Input::show(&stack));
    stack.setCurrentIndex(1);
    delete stack.page(1);
    QCOMPARE(stack.currentWidget(), narrow);
    QCOMPARE(stack.sizeHint().width(), narrow->sizeHint().width());
}

QTEST_MAIN(tst_RibbonStackedWidget)

#include "tst_ribbonstackedwidget.moc"
