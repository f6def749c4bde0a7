// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/DockPanelWidget_p.h"
#include "dock/SideWindow.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <QLabel>
#include <QMenu>
#include <QMetaMethod>
#include <QPointer>
#include <QSignalSpy>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using namespace SideWindows;
using namespace VornFrame;

namespace {

class CountedPrivate : public DockPanelWidgetPrivate
{
    Q_DISABLE_COPY_MOVE(CountedPrivate)

public:
    CountedPrivate(DockPanelWidget::DockPanelDirection direction, int *destroyed)
        : DockPanelWidgetPrivate(direction), m_destroyed(destroyed)
    {}
    ~CountedPrivate() override { ++*m_destroyed; }

private:
    int *m_destroyed;
};

class DerivedSide : public DockPanelWidget
{
    Q_OBJECT

public:
    DerivedSide(CountedPrivate &d, QWidget *parent) : DockPanelWidget(d, parent) { d.init(); }
};

void addDirections()
{
    QTest::addColumn<DockPanelWidget::DockPanelDirection>("direction");
    QTest::addColumn<QString>("name");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::newRow("left") << DockPanelWidget::Left << u"left"_s << Qt::Vertical;
    QTest::newRow("right") << DockPanelWidget::Right << u"right"_s << Qt::Vertical;
    QTest::newRow("bottom") << DockPanelWidget::Bottom << u"bottom"_s << Qt::Horizontal;
}

/// For a side with three slots.
void addWrongIndexes()
{
    QTest::addColumn<int>("index");
    QTest::newRow("minus one") << -1;
    QTest::newRow("smallest number") << std::numeric_limits<int>::min();
    QTest::newRow("one too many") << 3;
    QTest::newRow("largest number") << std::numeric_limits<int>::max();
}

} // namespace

class tst_DockPanelWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAnObjectInTheNamespace();
    void declaresItsSignalsInTheirOrder();
    void directionsHaveTheirNumbers();
    void itsRecordStartsAsPromised_data() { addDirections(); }
    void itsRecordStartsAsPromised();
    void aSubclassHandsItsOwnPrivateObject();
    void belongsToItsParent();
    void barAndStackStartWithoutParent_data() { addDirections(); }
    void barAndStackStartWithoutParent();
    void anyOtherDirectionIsRight_data();
    void anyOtherDirectionIsRight();
    void stackReportsItsCurrentPage();

    void addedViewGetsASlotAndAButton_data() { addDirections(); }
    void addedViewGetsASlotAndAButton();
    void addedViewMayHaveAnyHeight();
    void addedViewsAreNumberedInTheirOrder();
    void theFirstSlotIsCurrentAndItsButtonChecked();
    void separatorsTakeNoIndex();
    void twelveViewsOnASide();

    void tabifiedViewSharesTheSlot_data() { addDirections(); }
    void tabifiedViewSharesTheSlot();
    void onlyTheSecondViewOfASideIsTabified();
    void aThirdViewIsRefused_data() { addDirections(); }
    void aThirdViewIsRefused();
    void tabifyingAWrongSlotChangesNothing_data() { addWrongIndexes(); }
    void tabifyingAWrongSlotChangesNothing();
    void viewsAreRememberedInTheOrderTheyWereMade();

    void menuIsThatOfTheViewsTitle();
    void menuOfAnythingElseIsNull();
};

void tst_DockPanelWidget::isAnObjectInTheNamespace()
{
    QCOMPARE(QLatin1StringView(DockPanelWidget::staticMetaObject.className()),
             "VornFrame::DockPanelWidget"_L1);
    QCOMPARE(DockPanelWidget::staticMetaObject.superClass(), &QObject::staticMetaObject);
}

void tst_DockPanelWidget::declaresItsSignalsInTheirOrder()
{
    const QMetaObject &type = DockPanelWidget::staticMetaObject;
    const QMetaMethod first = type.method(type.methodOffset());
    const QMetaMethod second = type.method(type.methodOffset() + 1);
    QCOMPARE(type.methodCount() - type.methodOffset(), 2);
    QCOMPARE(first.methodType(), QMetaMethod::Signal);
    QCOMPARE(first.methodSignature(), QByteArray("signalMinimized(bool)"));
    QCOMPARE(first.parameterNames(), QByteArrayList({"minimized"}));
    QCOMPARE(second.methodType(), QMetaMethod::Signal);
    QCOMPARE(second.methodSignature(), QByteArray("signalCurrentIndexChanged(int)"));
}

void tst_DockPanelWidget::directionsHaveTheirNumbers()
{
    QCOMPARE(int(DockPanelWidget::Left), 0);
    QCOMPARE(int(DockPanelWidget::Right), 1);
    QCOMPARE(int(DockPanelWidget::Bottom), 2);
}

void tst_DockPanelWidget::itsRecordStartsAsPromised()
{
    QFETCH(const DockPanelWidget::DockPanelDirection, direction);
    QFETCH(const Qt::Orientation, orientation);
    const DockPanelWidgetPrivate d(direction);
    QVERIFY(d.panel);
    QVERIFY(!d.panel->parent());
    QCOMPARE(d.panel->orientation(), orientation);
    QVERIFY(d.stack);
    QVERIFY(!d.stack->parent());
    QVERIFY(!d.minimized);
    QVERIFY(d.views.isEmpty());
    QVERIFY(!d.q_ptr);
}

void tst_DockPanelWidget::aSubclassHandsItsOwnPrivateObject()
{
    int destroyed = 0;
    QWidget parent;
    auto *d = new CountedPrivate(DockPanelWidget::Bottom, &destroyed);
    {
        const DerivedSide side(*d, &parent);
        QCOMPARE(d->q_ptr, &side);
        QCOMPARE(side.parent(), &parent);
        QCOMPARE(side.panel(), d->panel);
        QCOMPARE(side.stackedWidget(), d->stack);
        QCOMPARE(destroyed, 0);
    }
    QCOMPARE(destroyed, 1);
}

void tst_DockPanelWidget::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<DockPanelWidget> side = new DockPanelWidget(DockPanelWidget::Left, parent.get());
    QCOMPARE(side->parent(), parent.get());
    parent.reset();
    QVERIFY(!side);
    QVERIFY(!DockPanelWidget(DockPanelWidget::Left).parent());
}

void tst_DockPanelWidget::barAndStackStartWithoutParent()
{
    QFETCH(const DockPanelWidget::DockPanelDirection, direction);
    QFETCH(const QString, name);
    QFETCH(const Qt::Orientation, orientation);
    QWidget parent;
    const DockPanelWidget side(direction, &parent);
    QVERIFY(barOf(side));
    QVERIFY(!side.panel()->parent());
    QCOMPARE(barOf(side)->orientation(), orientation);
    QCOMPARE(side.panel()->property("direction"), QVariant(name));
    QVERIFY(stackOf(side));
    QVERIFY(!side.stackedWidget()->parent());
    QCOMPARE(side.stackedWidget()->property("direction"), QVariant(name));
    QCOMPARE(side.count(), 0);
    QCOMPARE(side.currentIndex(), -1);
    QVERIFY(!side.isMinimized());
}

void tst_DockPanelWidget::anyOtherDirectionIsRight_data()
{
    QTest::addColumn<int>("direction");
    QTest::newRow("-1") << -1;
    QTest::newRow("3") << 3;
    QTest::newRow("100") << 100;
}

void tst_DockPanelWidget::anyOtherDirectionIsRight()
{
    QFETCH(const int, direction);
    const DockPanelWidget side(static_cast<DockPanelWidget::DockPanelDirection>(direction));
    QCOMPARE(barOf(side)->orientation(), Qt::Vertical);
    QCOMPARE(side.panel()->property("direction"), QVariant(u"right"_s));
    QCOMPARE(side.stackedWidget()->property("direction"), QVariant(u"right"_s));
}

void tst_DockPanelWidget::stackReportsItsCurrentPage()
{
    DockPanelWidget side(DockPanelWidget::Left);
    QSignalSpy spy(&side, &DockPanelWidget::signalCurrentIndexChanged);
    addViews(side, 3);
    QCOMPARE(spy.size(), 1); // the first page is current at once
    QCOMPARE(spy.takeFirst(), QVariantList{0});
    stackOf(side)->setCurrentIndex(2);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.takeFirst(), QVariantList{2});
    side.setCurrentIndex(1);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.takeFirst(), QVariantList{1});
    side.setCurrentIndex(1);
    QCOMPARE(spy.size(), 0);
}

void tst_DockPanelWidget::addedViewGetsASlotAndAButton()
{
    QFETCH(const DockPanelWidget::DockPanelDirection, direction);
    QFETCH(const Qt::Orientation, orientation);
    DockPanelWidget side(direction);
    const QIcon given = icon(Qt::blue);
    auto *widget = new QLabel;
    QCOMPARE(side.addView(widget, given, u"Outline"_s), 0);
    QCOMPARE(side.count(), 1);

    const DockButton *button = buttonOf(side, 0);
    QVERIFY(button);
    QCOMPARE(button->size(), QSize(30, 30));
    QCOMPARE(button->icons().constFirst().cacheKey(), given.cacheKey());
    QCOMPARE(button->toolTips(), QStringList({u"Outline"_s}));

    const QSplitter *page = pageOf(side, 0);
    QVERIFY(page);
    QCOMPARE(page->orientation(), orientation);
    QCOMPARE(page->handleWidth(), 0);
    QCOMPARE(page->count(), 1);
    QVERIFY(!page->isCollapsible(0));

    const DockView *view = viewOf(side, 0);
    QVERIFY(view);
    QCOMPARE(view->widget(), widget);
    QCOMPARE(titleOf(view)->findChild<QLabel *>()->text(), u"Outline"_s);
    QVERIFY(!view->property("tabified").isValid());
    QVERIFY(collapseButtonOf(view)->isHidden());
}

void tst_DockPanelWidget::addedViewMayHaveAnyHeight()
{
    DockPanelWidget side(DockPanelWidget::Left);
    auto *first = new QWidget;
    auto *second = new QWidget;
    first->setMinimumHeight(500);
    second->setMinimumHeight(500);
    side.addView(first, icon(), u"0"_s);
    side.tabifyView(0, second, icon(), u"1"_s);
    QCOMPARE(first->minimumHeight(), 0);
    QCOMPARE(second->minimumHeight(), 0);
}

void tst_DockPanelWidget::addedViewsAreNumberedInTheirOrder()
{
    DockPanelWidget side(DockPanelWidget::Left);
    for (int i = 0; i < 4; ++i) {
        auto *widget = new QWidget;
        QCOMPARE(side.addView(widget, icon(), QString::number(i)), i);
        QCOMPARE(viewOf(side, i)->widget(), widget);
        QCOMPARE(buttonOf(side, i)->toolTips(), QStringList({QString::number(i)}));
    }
    QCOMPARE(side.count(), 4);
}

void tst_DockPanelWidget::theFirstSlotIsCurrentAndItsButtonChecked()
{
    DockPanelWidget side(DockPanelWidget::Left);
    const QSignalSpy minimized(&side, &DockPanelWidget::signalMinimized);
    addViews(side, 3);
    QCOMPARE(side.currentIndex(), 0);
    QCOMPARE(checkedButtons(side), QList<int>({0}));
    QCOMPARE(minimized.size(), 0);
}

void tst_DockPanelWidget::separatorsTakeNoIndex()
{
    DockPanelWidget side(DockPanelWidget::Left);
    side.addSeparator();
    addViews(side, 1);
    side.addSeparator();
    QCOMPARE(side.addView(new QWidget, icon(), u"1"_s), 1);
    QCOMPARE(side.count(), 2);
    QCOMPARE(side.panel()->layout()->count(), 4);
    QCOMPARE(qobject_cast<QFrame *>(side.panel()->layout()->itemAt(2)->widget())->frameShape(),
             QFrame::HLine);
    QCOMPARE(side.panel()->layout()->itemAt(3)->widget(), buttonOf(side, 1));
}

void tst_DockPanelWidget::twelveViewsOnASide()
{
    SideWindow window;
    DockPanelWidget &side = window.side();
    addViews(side, 12);
    QVERIFY(Input::show(&window));
    for (int i = 11; i >= 0; --i) {
        Input::click(buttonOf(side, i));
        QCOMPARE(side.currentIndex(), i);
        QCOMPARE(checkedButtons(side), QList<int>({i}));
        for (int other = 0; other < 12; ++other)
            QCOMPARE(side.isViewVisible(other), other == i);
    }
}

void tst_DockPanelWidget::tabifiedViewSharesTheSlot()
{
    QFETCH(const DockPanelWidget::DockPanelDirection, direction);
    QFETCH(const Qt::Orientation, orientation);
    DockPanelWidget side(direction);
    addViews(side, 2);
    const QIcon given = icon(Qt::blue);
    auto *widget = new QWidget;
    QCOMPARE(side.tabifyView(1, widget, given, u"Layers"_s), 1);
    QCOMPARE(side.count(), 2);

    const DockButton *button = buttonOf(side, 1);
    QCOMPARE(button->size(), QSize(30, 57));
    QCOMPARE(button->iconSize(), QSize(24, 51));
    QCOMPARE(button->icons().size(), 2);
    QCOMPARE(button->icons().at(1).cacheKey(), given.cacheKey());
    QCOMPARE(button->toolTips(), QStringList({u"1"_s, u"Layers"_s}));

    const QSplitter *page = pageOf(side, 1);
    QCOMPARE(page->count(), 2);
    QCOMPARE(page->orientation(), orientation);
    QCOMPARE(page->handleWidth(), 0);
    QVERIFY(!page->isCollapsible(0));
    QVERIFY(!page->isCollapsible(1));
    const DockView *added = viewOf(side, 1, 1);
    QCOMPARE(added->widget(), widget);
    QCOMPARE(titleOf(added)->findChild<QLabel *>()->text(), u"Layers"_s);
    const bool isUpright = orientation == Qt::Vertical;
    QCOMPARE(added->property("tabified"), isUpright ? QVariant(true) : QVariant());
    for (const int position : {0, 1})
        QVERIFY(collapseButtonOf(viewOf(side, 1, position))->isHidden());
}

void tst_DockPanelWidget::onlyTheSecondViewOfASideIsTabified()
{
    DockPanelWidget side(DockPanelWidget::Right);
    addViews(side, 2);
    side.tabifyView(0, new QWidget, icon(), u"more"_s);
    QVERIFY(!viewOf(side, 0, 0)->property("tabified").isValid());
    QVERIFY(!viewOf(side, 1, 0)->property("tabified").isValid());
    QCOMPARE(viewOf(side, 0, 1)->property("tabified"), QVariant(true));
}

void tst_DockPanelWidget::aThirdViewIsRefused()
{
    QFETCH(const DockPanelWidget::DockPanelDirection, direction);
    DockPanelWidget side(direction);
    addViews(side, 1);
    QCOMPARE(side.tabifyView(0, new QWidget, icon(), u"second"_s), 1);
    QWidget third;
    third.setMinimumHeight(50);
    QCOMPARE(side.tabifyView(0, &third, icon(), u"third"_s), -1);
    QCOMPARE(pageOf(side, 0)->count(), 2);
    QCOMPARE(buttonOf(side, 0)->size(), QSize(30, 57));
    QCOMPARE(buttonOf(side, 0)->icons().size(), 2);
    QCOMPARE(buttonOf(side, 0)->toolTips(), QStringList({u"0"_s, u"second"_s}));
    QVERIFY(!third.parent());
    QCOMPARE(third.minimumHeight(), 50);
    QVERIFY(!side.menu(&third));
}

void tst_DockPanelWidget::tabifyingAWrongSlotChangesNothing()
{
    QFETCH(const int, index);
    DockPanelWidget side(DockPanelWidget::Left);
    addViews(side, 3);
    QWidget view;
    QCOMPARE(side.tabifyView(index, &view, icon(), u"second"_s), -1);
    QCOMPARE(side.count(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(pageOf(side, i)->count(), 1);
        QCOMPARE(buttonOf(side, i)->size(), QSize(30, 30));
        QCOMPARE(buttonOf(side, i)->icons().size(), 1);
    }
    QVERIFY(!view.parent());
    QVERIFY(!side.menu(&view));
}

void tst_DockPanelWidget::viewsAreRememberedInTheOrderTheyWereMade()
{
    int destroyed = 0;
    auto *d = new CountedPrivate(DockPanelWidget::Left, &destroyed);
    DerivedSide side(*d, nullptr);
    addViews(side, 2);
    side.tabifyView(0, new QWidget, icon(), u"second"_s);
    addViews(side, 1);
    QCOMPARE(d->views.size(), 4);
    QCOMPARE(d->views.at(0), viewOf(side, 0));
    QCOMPARE(d->views.at(1), viewOf(side, 1));
    QCOMPARE(d->views.at(2), viewOf(side, 0, 1));
    QCOMPARE(d->views.at(3), viewOf(side, 2));
}

void tst_DockPanelWidget::menuIsThatOfTheViewsTitle()
{
    DockPanelWidget side(DockPanelWidget::Bottom);
    auto *first = new QWidget;
    auto *second = new QWidget;
    auto *tabified = new QWidget;
    side.addView(first, icon(), u"0"_s);
    side.addView(second, icon(), u"1"_s);
    side.tabifyView(0, tabified, icon(), u"2"_s);
    QVERIFY(side.menu(first));
    QCOMPARE(side.menu(first), titleOf(viewOf(side, 0))->menu());
    QCOMPARE(side.menu(second), titleOf(viewOf(side, 1))->menu());
    QCOMPARE(side.menu(tabified), titleOf(viewOf(side, 0, 1))->menu());
    QCOMPARE(side.menu(first)->actions().constFirst()->text(), u"minimize to bar"_s);
}

void tst_DockPanelWidget::menuOfAnythingElseIsNull()
{
    DockPanelWidget side(DockPanelWidget::Left);
    QWidget other;
    QVERIFY(!side.menu(nullptr));
    QVERIFY(!side.menu(&other));
    addViews(side, 2);
    QVERIFY(!side.menu(nullptr));
    QVERIFY(!side.menu(&other));
    QVERIFY(!side.menu(viewOf(side, 0)));
    QVERIFY(!side.menu(side.panel()));
    delete viewOf(side, 0)->widget();
    QVERIFY(!side.menu(nullptr)); // nor that of an empty slot
    DockPanelWidget neighbour(DockPanelWidget::Right);
    addViews(neighbour, 1);
    QVERIFY(!side.menu(viewOf(neighbour, 0)->widget()));
}

QTEST_MAIN(tst_DockPanelWidget)

#include "tst_dockpanelwidget.moc"
