// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonCorner.h>

#include "ribbon/RibbonCorner_p.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

class CountedPrivate : public RibbonCornerPrivate
{
    Q_DISABLE_COPY_MOVE(CountedPrivate)

public:
    explicit CountedPrivate(int *destroyed) : m_destroyed(destroyed) {}
    ~CountedPrivate() override { ++*m_destroyed; }

private:
    int *m_destroyed;
};

class DerivedCorner : public RibbonCorner
{
    Q_OBJECT

public:
    DerivedCorner(CountedPrivate &d, QWidget *parent) : RibbonCorner(d, parent) { d.init(); }
};

QHBoxLayout *layoutOf(const RibbonCorner &corner)
{
    return qobject_cast<QHBoxLayout *>(corner.layout());
}

QWidgetList widgetsIn(const RibbonCorner &corner)
{
    QWidgetList widgets;
    for (int i = 0; i < corner.layout()->count(); ++i)
        widgets.append(corner.layout()->itemAt(i)->widget());
    return widgets;
}

QWidget *fixedWidget(QSize size)
{
    auto *widget = new QWidget;
    widget->setFixedSize(size);
    return widget;
}

} // namespace

class tst_RibbonCorner : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAFrameInTheNamespace();
    void belongsToItsParent();
    void aSubclassHandsItsOwnPrivateObject();
    void startsEmptyWithItsMargins();
    void addedWidgetsStandInTheirOrder();
    void addedWidgetsHaveNeitherStretchNorAlignment();
    void addedWidgetsBelongToTheCorner();
    void addedWidgetsAreRemembered();
    void addedWidgetsAreShownWithTheCorner();
    void addedWidgetsStandTwoPixelsApart_data();
    void addedWidgetsStandTwoPixelsApart();
    void marginsFollowTheLayoutDirection();
    void takesNoMoreRoomThanItsWidgets();
    void addedWidgetsWork();
    void nothingIsIgnored();
    void aWidgetAddedAgainMovesToTheEnd();
    void aDeletedWidgetLeavesItsPlace();
    void aHiddenWidgetTakesNoPlace();
    void aWidgetMayMoveToAnotherCorner();
};

void tst_RibbonCorner::isAFrameInTheNamespace()
{
    QCOMPARE(QLatin1StringView(RibbonCorner::staticMetaObject.className()),
             "VornFrame::RibbonCorner"_L1);
    QCOMPARE(RibbonCorner::staticMetaObject.superClass(), &QFrame::staticMetaObject);
    const RibbonCorner corner;
    QCOMPARE(corner.frameShape(), QFrame::NoFrame);
}

void tst_RibbonCorner::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<RibbonCorner> corner = new RibbonCorner(parent.get());
    QCOMPARE(corner->parent(), parent.get());
    parent.reset();
    QVERIFY(!corner);
    QVERIFY(!RibbonCorner().parent());
}

void tst_RibbonCorner::aSubclassHandsItsOwnPrivateObject()
{
    int destroyed = 0;
    QWidget parent;
    auto *d = new CountedPrivate(&destroyed);
    {
        const DerivedCorner corner(*d, &parent);
        QCOMPARE(d->q_ptr, &corner);
        QCOMPARE(corner.parent(), &parent);
        QCOMPARE(corner.layout(), d->layout);
        QCOMPARE(destroyed, 0);
    }
    QCOMPARE(destroyed, 1);
}

void tst_RibbonCorner::startsEmptyWithItsMargins()
{
    const RibbonCorner corner;
    QVERIFY(layoutOf(corner));
    QCOMPARE(layoutOf(corner)->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(layoutOf(corner)->contentsMargins(), QMargins(0, 0, 5, 0));
    QCOMPARE(layoutOf(corner)->spacing(), 2);
    QCOMPARE(layoutOf(corner)->count(), 0);
    QCOMPARE(corner.sizeHint().height(), 0);
}

void tst_RibbonCorner::addedWidgetsStandInTheirOrder()
{
    RibbonCorner corner;
    const QWidgetList widgets{new QLabel, new QPushButton, new QWidget};
    for (QWidget *widget : widgets)
        corner.addWidget(widget);
    QCOMPARE(widgetsIn(corner), widgets);
}

void tst_RibbonCorner::addedWidgetsHaveNeitherStretchNorAlignment()
{
    RibbonCorner corner;
    corner.addWidget(new QLabel);
    QCOMPARE(layoutOf(corner)->stretch(0), 0);
    QCOMPARE(layoutOf(corner)->itemAt(0)->alignment(), Qt::Alignment());
}

void tst_RibbonCorner::addedWidgetsBelongToTheCorner()
{
    auto corner = std::make_unique<RibbonCorner>();
    const QPointer<QLabel> label = new QLabel;
    corner->addWidget(label);
    QCOMPARE(label->parent(), corner.get());
    corner.reset();
    QVERIFY(!label);
}

void tst_RibbonCorner::addedWidgetsAreRemembered()
{
    int destroyed = 0;
    auto *d = new CountedPrivate(&destroyed);
    DerivedCorner corner(*d, nullptr);
    QVERIFY(d->widgets.isEmpty());
    auto *first = new QLabel;
    auto *second = new QLabel;
    corner.addWidget(first);
    corner.addWidget(second);
    corner.addWidget(nullptr);
    QCOMPARE(d->widgets.size(), 2);
    QCOMPARE(d->widgets.at(0), first);
    QCOMPARE(d->widgets.at(1), second);
    delete first;
    QVERIFY(!d->widgets.at(0));
}

void tst_RibbonCorner::addedWidgetsAreShownWithTheCorner()
{
    RibbonCorner corner;
    auto *before = new QLabel;
    corner.addWidget(before);
    QVERIFY(Input::show(&corner));
    QVERIFY(before->isVisible());
    auto *after = new QLabel;
    corner.addWidget(after);
    QTRY_VERIFY(after->isVisible());
}

void tst_RibbonCorner::addedWidgetsStandTwoPixelsApart_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("first");
    QTest::addColumn<QRect>("second");

    QTest::newRow("left to right")
        << Qt::LeftToRight << QRect(0, 0, 30, 20) << QRect(32, 0, 40, 20);
    QTest::newRow("right to left")
        << Qt::RightToLeft << QRect(47, 0, 30, 20) << QRect(5, 0, 40, 20);
}

void tst_RibbonCorner::addedWidgetsStandTwoPixelsApart()
{
    QFETCH(const Qt::LayoutDirection, direction);
    RibbonCorner corner;
    corner.setLayoutDirection(direction);
    QWidget *first = fixedWidget(QSize(30, 20));
    QWidget *second = fixedWidget(QSize(40, 20));
    corner.addWidget(first);
    corner.addWidget(second);
    QVERIFY(Input::show(&corner));
    QCOMPARE(corner.size(), QSize(30 + 2 + 40 + 5, 20));
    QTEST(first->geometry(), "first");
    QTEST(second->geometry(), "second");
}

void tst_RibbonCorner::marginsFollowTheLayoutDirection()
{
    RibbonCorner corner;
    corner.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(layoutOf(corner)->contentsMargins(), QMargins(5, 0, 0, 0));
    corner.setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(layoutOf(corner)->contentsMargins(), QMargins(0, 0, 5, 0));
}

void tst_RibbonCorner::takesNoMoreRoomThanItsWidgets()
{
    QWidget window;
    auto *row = new QHBoxLayout(&window);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    auto *corner = new RibbonCorner;
    row->addStretch();
    row->addWidget(corner);
    auto *edit = new QLineEdit;
    corner->addWidget(edit);
    window.resize(600, 40);
    QVERIFY(Input::show(&window));
    QCOMPARE(corner->width(), edit->sizeHint().width() + 5);
    QCOMPARE(corner->geometry().right(), 599);
    QCOMPARE(corner->height(), 40);
}

void tst_RibbonCorner::addedWidgetsWork()
{
    RibbonCorner corner;
    auto *button = new QPushButton(u"Help"_s);
    corner.addWidget(button);
    const QSignalSpy spy(button, &QPushButton::clicked);
    QVERIFY(Input::show(&corner));
    Input::click(button);
    QCOMPARE(spy.size(), 1);
}

void tst_RibbonCorner::nothingIsIgnored()
{
    RibbonCorner corner;
    corner.addWidget(nullptr);
    QCOMPARE(corner.layout()->count(), 0);
}

void tst_RibbonCorner::aWidgetAddedAgainMovesToTheEnd()
{
    RibbonCorner corner;
    auto *first = new QLabel;
    auto *second = new QLabel;
    corner.addWidget(first);
    corner.addWidget(second);
    corner.addWidget(first);
    QCOMPARE(widgetsIn(corner), QWidgetList({second, first}));
}

void tst_RibbonCorner::aDeletedWidgetLeavesItsPlace()
{
    RibbonCorner corner;
    auto *first = new QLabel;
    auto *second = new QLabel;
    corner.addWidget(first);
    corner.addWidget(second);
    delete first;
    QCOMPARE(widgetsIn(corner), QWidgetList({second}));
    auto *third = new QLabel;
    corner.addWidget(third);
    QCOMPARE(widgetsIn(corner), QWidgetList({second, third}));
}

void tst_RibbonCorner::aHiddenWidgetTakesNoPlace()
{
    RibbonCorner corner;
    QWidget *first = fixedWidget(QSize(30, 20));
    QWidget *second = fixedWidget(QSize(40, 20));
    corner.addWidget(first);
    corner.addWidget(second);
    first->hide();
    QVERIFY(Input::show(&corner));
    QCOMPARE(second->geometry(), QRect(0, 0, 40, 20));
}

void tst_RibbonCorner::aWidgetMayMoveToAnotherCorner()
{
    RibbonCorner one;
    RibbonCorner other;
    auto *label = new QLabel;
    one.addWidget(label);
    other.addWidget(label);
    QCOMPARE(label->parent(), &other);
    QCOMPARE(one.layout()->count(), 0);
    QCOMPARE(widgetsIn(other), QWidgetList({label}));
}

QTEST_MAIN(tst_RibbonCorner)

#include "tst_ribboncorner.moc"
