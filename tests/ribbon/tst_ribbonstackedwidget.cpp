// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>

#include "ribbon/RibbonStackedWidget.h"
#include "ribbon/RibbonStackedWidget_p.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

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

QTEST_MAIN(tst_RibbonStackedWidget)

#include "tst_ribbonstackedwidget.moc"
