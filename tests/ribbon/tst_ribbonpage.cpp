// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>

#include "ribbon/RibbonPage_p.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

class CountedPrivate : public RibbonPagePrivate
{
    Q_DISABLE_COPY_MOVE(CountedPrivate)

public:
    explicit CountedPrivate(int *destroyed) : m_destroyed(destroyed) {}
    ~CountedPrivate() override { ++*m_destroyed; }

private:
    int *m_destroyed;
};

class DerivedPage : public RibbonPage
{
    Q_OBJECT

public:
    DerivedPage(CountedPrivate &d, QWidget *parent) : RibbonPage(d, parent) { d.init(); }
};

QHBoxLayout *layoutOf(const RibbonPage &page)
{
    return qobject_cast<QHBoxLayout *>(page.layout());
}

QString titleOf(const RibbonGroup *group)
{
    return group->findChild<QLabel *>(u"groupTitle"_s)->text();
}

} // namespace

class tst_RibbonPage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAWidgetInTheNamespace();
    void belongsToItsParent();
    void aSubclassHandsItsOwnPrivateObject();
    void startsEmptyWithItsMargins();

    void addedGroupsHaveTheirTitles();
    void addedGroupsStandInTheirOrder();
    void addedGroupsHaveNeitherStretchNorAlignment();
    void addedGroupsBelongToThePage();
    void addedGroupsAreShownWithThePage();

    void groupGivesTheGroupAtAnIndex();
    void groupGivesNothingOutOfRange_data();
    void groupGivesNothingOutOfRange();
    void indexOfFindsGroups();
    void indexOfDoesNotFindOthers();
    void aDeletedGroupKeepsTheIndexesOfTheOthers();
    void groupsMayBeDeletedAndAddedInTurn();

    void groupsArePackedToTheLeadingEdge_data();
    void groupsArePackedToTheLeadingEdge();
    void marginsFollowTheLayoutDirection();
    void groupsStandInTheMiddleOfAHighPage();
    void aHiddenGroupTakesNoPlace();
};

void tst_RibbonPage::isAWidgetInTheNamespace()
{
    QCOMPARE(QLatin1StringView(RibbonPage::staticMetaObject.className()),
             "VornFrame::RibbonPage"_L1);
    QCOMPARE(RibbonPage::staticMetaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(RibbonPage::staticMetaObject.methodCount(), QWidget::staticMetaObject.methodCount());
}

void tst_RibbonPage::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<RibbonPage> page = new RibbonPage(parent.get());
    QCOMPARE(page->parent(), parent.get());
    parent.reset();
    QVERIFY(!page);
    QVERIFY(!RibbonPage().parent());
}

void tst_RibbonPage::aSubclassHandsItsOwnPrivateObject()
{
    int destroyed = 0;
    QWidget parent;
    auto *d = new CountedPrivate(&destroyed);
    {
        DerivedPage page(*d, &parent);
        QCOMPARE(d->q_ptr, &page);
        QCOMPARE(page.parent(), &parent);
        QCOMPARE(page.layout(), d->layout);
        const RibbonGroup *group = page.addGroup(u"Clipboard"_s);
        QCOMPARE(d->groups.size(), 1);
        QCOMPARE(d->groups.at(0), group);
        QCOMPARE(destroyed, 0);
    }
    QCOMPARE(destroyed, 1);
}

void tst_RibbonPage::startsEmptyWithItsMargins()
{
    const RibbonPage page;
    QVERIFY(layoutOf(page));
    QCOMPARE(layoutOf(page)->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(layoutOf(page)->contentsMargins(), QMargins(3, 0, 0, 0));
    QCOMPARE(layoutOf(page)->spacing(), 0);
    QCOMPARE(layoutOf(page)->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(layoutOf(page)->count(), 0);
    QVERIFY(!page.group(0));
}

void tst_RibbonPage::addedGroupsHaveTheirTitles()
{
    RibbonPage page;
    QCOMPARE(titleOf(page.addGroup(u"Clipboard"_s)), u"Clipboard"_s);
    QCOMPARE(titleOf(page.addGroup(QString())), QString());
    QCOMPARE(titleOf(page.addGroup(u"Clipboard"_s)), u"Clipboard"_s);
}

void tst_RibbonPage::addedGroupsStandInTheirOrder()
{
    RibbonPage page;
    const RibbonGroup *first = page.addGroup(u"Clipboard"_s);
    const RibbonGroup *second = page.addGroup(u"Font"_s);
    QCOMPARE(page.layout()->count(), 2);
    QCOMPARE(page.layout()->itemAt(0)->widget(), first);
    QCOMPARE(page.layout()->itemAt(1)->widget(), second);
}

void tst_RibbonPage::addedGroupsHaveNeitherStretchNorAlignment()
{
    RibbonPage page;
    page.addGroup(u"Clipboard"_s);
    QCOMPARE(layoutOf(page)->stretch(0), 0);
    QCOMPARE(layoutOf(page)->itemAt(0)->alignment(), Qt::Alignment());
}

void tst_RibbonPage::addedGroupsBelongToThePage()
{
    auto page = std::make_unique<RibbonPage>();
    const QPointer<RibbonGroup> group = page->addGroup(u"Clipboard"_s);
    QCOMPARE(group->parent(), page.get());
    page.reset();
    QVERIFY(!group);
}

void tst_RibbonPage::addedGroupsAreShownWithThePage()
{
    RibbonPage page;
    const RibbonGroup *before = page.addGroup(u"Clipboard"_s);
    QVERIFY(Input::show(&page));
    QVERIFY(before->isVisible());
    const RibbonGroup *after = page.addGroup(u"Font"_s);
    QTRY_VERIFY(after->isVisible());
}

void tst_RibbonPage::groupGivesTheGroupAtAnIndex()
{
    RibbonPage page;
    const RibbonGroup *first = page.addGroup(u"Clipboard"_s);
    const RibbonGroup *second = page.addGroup(u"Font"_s);
    QCOMPARE(page.group(0), first);
    QCOMPARE(page.group(1), second);
}

void tst_RibbonPage::groupGivesNothingOutOfRange_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("just behind") << 2;
    QTest::newRow("far behind") << 1000;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("minus one") << -1;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void tst_RibbonPage::groupGivesNothingOutOfRange()
{
    QFETCH(const int, index);
    RibbonPage page;
    page.addGroup(u"Clipboard"_s);
    page.addGroup(u"Font"_s);
    QVERIFY(!page.group(index));
}

void tst_RibbonPage::indexOfFindsGroups()
{
    RibbonPage page;
    RibbonGroup *first = page.addGroup(u"Clipboard"_s);
    RibbonGroup *second = page.addGroup(u"Clipboard"_s);
    QCOMPARE(page.indexOf(first), 0);
    QCOMPARE(page.indexOf(second), 1);
}

void tst_RibbonPage::indexOfDoesNotFindOthers()
{
    RibbonPage page;
    page.addGroup(u"Clipboard"_s);
    RibbonPage otherPage;
    RibbonGroup loose(u"Font"_s, &page);
    QCOMPARE(page.indexOf(otherPage.addGroup(u"Clipboard"_s)), -1);
    QCOMPARE(page.indexOf(&loose), -1);
    QCOMPARE(page.indexOf(nullptr), -1);
}

void tst_RibbonPage::aDeletedGroupKeepsTheIndexesOfTheOthers()
{
    RibbonPage page;
    RibbonGroup *first = page.addGroup(u"Clipboard"_s);
    RibbonGroup *second = page.addGroup(u"Font"_s);
    delete first;
    QVERIFY(!page.group(0));
    QCOMPARE(page.group(1), second);
    QCOMPARE(page.indexOf(second), 1);
    QCOMPARE(page.indexOf(nullptr), -1);
    QCOMPARE(page.layout()->count(), 1);
}

void tst_RibbonPage::groupsMayBeDeletedAndAddedInTurn()
{
    RibbonPage page;
    delete page.addGroup(u"Clipboard"_s);
    page.resize(300, 95);
    QVERIFY(Input::show(&page));
    RibbonGroup *second = page.addGroup(u"Font"_s);
    QTRY_VERIFY(second->isVisible());
    delete second;
    const RibbonGroup *third = page.addGroup(u"View"_s);
    QCOMPARE(page.group(2), third);
    QTRY_VERIFY(third->isVisible());
}

void tst_RibbonPage::groupsArePackedToTheLeadingEdge_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<Qt::LayoutDirection>("direction");

    QTest::newRow("narrow") << 300 << Qt::LeftToRight;
    QTest::newRow("wide") << 1200 << Qt::LeftToRight;
    QTest::newRow("narrow, right to left") << 300 << Qt::RightToLeft;
    QTest::newRow("wide, right to left") << 1200 << Qt::RightToLeft;
}

void tst_RibbonPage::groupsArePackedToTheLeadingEdge()
{
    QFETCH(const int, width);
    QFETCH(const Qt::LayoutDirection, direction);
    RibbonPage page;
    page.setLayoutDirection(direction);
    const RibbonGroup *first = page.addGroup(u"Clipboard"_s);
    const RibbonGroup *second = page.addGroup(u"Font"_s);
    page.resize(width, 95);
    QVERIFY(Input::show(&page));

    QCOMPARE(page.width(), width);
    QCOMPARE(first->width(), first->sizeHint().width());
    QCOMPARE(second->width(), second->sizeHint().width());
    if (direction == Qt::LeftToRight) {
        QCOMPARE(first->x(), 3);
        QCOMPARE(second->x(), 3 + first->width());
    } else {
        QCOMPARE(first->x(), width - 3 - first->width());
        QCOMPARE(second->x(), width - 3 - first->width() - second->width());
    }
}

void tst_RibbonPage::marginsFollowTheLayoutDirection()
{
    RibbonPage page;
    page.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(layoutOf(page)->contentsMargins(), QMargins(0, 0, 3, 0));
    page.setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(layoutOf(page)->contentsMargins(), QMargins(3, 0, 0, 0));
}

void tst_RibbonPage::groupsStandInTheMiddleOfAHighPage()
{
    RibbonPage page;
    const RibbonGroup *group = page.addGroup(u"Clipboard"_s);
    page.resize(300, 195);
    QVERIFY(Input::show(&page));
    QCOMPARE(group->y(), 50);
    QCOMPARE(group->height(), 95);
}

void tst_RibbonPage::aHiddenGroupTakesNoPlace()
{
    RibbonPage page;
    RibbonGroup *first = page.addGroup(u"Clipboard"_s);
    const RibbonGroup *second = page.addGroup(u"Font"_s);
    page.resize(300, 95);
    QVERIFY(Input::show(&page));
    first->hide();
    QTRY_COMPARE(second->x(), 3);
    first->show();
    QTRY_COMPARE(second->x(), 3 + first->width());
}

QTEST_MAIN(tst_RibbonPage)

#include "tst_ribbonpage.moc"
