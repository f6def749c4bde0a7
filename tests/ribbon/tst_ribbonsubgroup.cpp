// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonSubgroup.h>

#include "ribbon/RibbonButton.h"
#include "ribbon/RibbonSubgroup_p.h"
#include "support/Input.h"
#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWidgetAction>

#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

class CountedPrivate : public RibbonSubgroupPrivate
{
    Q_DISABLE_COPY_MOVE(CountedPrivate)

public:
    explicit CountedPrivate(int *destroyed) : m_destroyed(destroyed) {}
    ~CountedPrivate() override { ++*m_destroyed; }

private:
    int *m_destroyed;
};

class DerivedSubgroup : public RibbonSubgroup
{
    Q_OBJECT

public:
    DerivedSubgroup(CountedPrivate &d, QWidget *parent) : RibbonSubgroup(d, parent) { d.init(); }
};

/// Creates a line edit of its own for each place that it is added to.
class FindAction : public QWidgetAction
{
    Q_OBJECT

public:
    using QWidgetAction::QWidgetAction;

protected:
    QWidget *createWidget(QWidget *parent) override { return new QLineEdit(parent); }
};

/// A window that a subgroup does not fill: there the subgroup has the size that it asks for.
struct SubgroupWindow
{
    SubgroupWindow()
    {
        auto *layout = new QHBoxLayout(&window);
        layout->setContentsMargins(10, 10, 10, 10);
        layout->addWidget(subgroup = new RibbonSubgroup, 0, Qt::AlignLeft | Qt::AlignTop);
        window.resize(400, 200);
    }

    QWidget window;
    QPointer<RibbonSubgroup> subgroup;
};

QVBoxLayout *columnOf(const RibbonSubgroup &subgroup)
{
    return qobject_cast<QVBoxLayout *>(subgroup.layout());
}

QWidget *itemAt(const RibbonSubgroup &subgroup, int index)
{
    QLayoutItem *item = subgroup.layout()->itemAt(index);
    return item ? item->widget() : nullptr;
}

RibbonButton *buttonAt(const RibbonSubgroup &subgroup, int index)
{
    return qobject_cast<RibbonButton *>(itemAt(subgroup, index));
}

/// A row of icon-only buttons in the column.
QHBoxLayout *rowAt(const RibbonSubgroup &subgroup, int index)
{
    QLayoutItem *item = subgroup.layout()->itemAt(index);
    return item ? qobject_cast<QHBoxLayout *>(item->layout()) : nullptr;
}

RibbonButton *buttonIn(const QHBoxLayout *row, int index)
{
    QLayoutItem *item = row->itemAt(index);
    return item ? qobject_cast<RibbonButton *>(item->widget()) : nullptr;
}

void addModes()
{
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");

    QTest::newRow("delayed") << QToolButton::DelayedPopup;
    QTest::newRow("split") << QToolButton::MenuButtonPopup;
    QTest::newRow("instant") << QToolButton::InstantPopup;
}

} // namespace

class tst_RibbonSubgroup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAWidgetInTheNamespace();
    void belongsToItsParent();
    void aSubclassHandsItsOwnPrivateObject();
    void startsEmptyWithItsMetrics();

    void anActionBecomesASmallButton();
    void aSeparatorBecomesASmallButtonToo();
    void anActionStaysTheCallers();
    void aTextMadeToAnActionBecomesASmallButton();
    void anActionAddedTwiceHasTwoButtons();
    void itemsHaveNeitherStretchNorAlignment();
    void itemsStandInTheOrderAdded();
    void itemsStandTwoPixelsApart();
    void aButtonKeepsItsWidthInAWideColumn();
    void aColumnHasNoLimit();
    void threeButtonsFitAGroup();
    void itemsAddedToAShownSubgroupAreShown();
    void nothingIsIgnored();

    void anAddedMenuGetsItsButton_data();
    void anAddedMenuGetsItsButton();
    void theModeOfAMenuHoldsForLaterButtons_data();
    void theModeOfAMenuHoldsForLaterButtons();
    void addingNoMenuKeepsTheMode();
    void theModeIsTheSubgroupsOwn();
    void aMenuStaysTheCallersWithoutAShadow();
    void aMenuOpensAndItsEntryIsTriggered();

    void anAddedWidgetIsEmbedded();
    void theSubgroupOwnsAnAddedWidget();
    void aWidgetActionMovesIntoTheSubgroup();
    void aDefaultWidgetInUseElsewhereIsNotEmbedded();

    void addedActionsBecomeARowOfIcons();
    void aRowHasItsMetrics();
    void aRowDoesNotEnterTheActions();
    void aRowIgnoresTheModeOfAMenu();
    void aRowSkipsNothings();
    void anEmptyListStillMakesARow();
    void rowsAndButtonsStandInOneColumn();
    void iconsOfARowStandOnePixelApart_data();
    void iconsOfARowStandOnePixelApart();
    void anIconOfARowTriggersItsAction();
    void anIconOfARowFollowsItsAction();
    void aMenuInARowStaysClosed();

    void aClickTriggersTheAction();
    void changesOfAnActionAddNothing();
    void aRemovedActionLeavesItsButton();
    void aDeletedActionLeavesItsButton();
    void aDeletedActionLeavesItsIcon();
    void anActionMayBeDeletedWhenTriggered();
    void theSubgroupMayBeDeletedWhenAnActionIsTriggered();
    void hidingAnActionHidesItsButton();
    void anActionHiddenFromTheStartHasAHiddenButton();
};

void tst_RibbonSubgroup::isAWidgetInTheNamespace()
{
    QCOMPARE(QLatin1StringView(RibbonSubgroup::staticMetaObject.className()),
             "VornFrame::RibbonSubgroup"_L1);
    QCOMPARE(RibbonSubgroup::staticMetaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(RibbonSubgroup::staticMetaObject.methodCount(),
             QWidget::staticMetaObject.methodCount());
}

void tst_RibbonSubgroup::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<RibbonSubgroup> subgroup = new RibbonSubgroup(parent.get());
    QCOMPARE(subgroup->parent(), parent.get());
    parent.reset();
    QVERIFY(!subgroup);
    QVERIFY(!RibbonSubgroup().parent());
}

void tst_RibbonSubgroup::aSubclassHandsItsOwnPrivateObject()
{
    int destroyed = 0;
    QWidget parent;
    auto *d = new CountedPrivate(&destroyed);
    QCOMPARE(d->popupMode, QToolButton::DelayedPopup);
    {
        DerivedSubgroup subgroup(*d, &parent);
        QCOMPARE(d->q_ptr, &subgroup);
        QCOMPARE(subgroup.parent(), &parent);
        QCOMPARE(subgroup.layout(), d->layout);
        QMenu menu;
        subgroup.addMenu(&menu, QToolButton::MenuButtonPopup);
        QCOMPARE(d->popupMode, QToolButton::MenuButtonPopup);
        QCOMPARE(destroyed, 0);
    }
    QCOMPARE(destroyed, 1);
}

void tst_RibbonSubgroup::startsEmptyWithItsMetrics()
{
    const RibbonSubgroup subgroup;
    const QVBoxLayout *column = columnOf(subgroup);
    QVERIFY(column);
    QCOMPARE(column->direction(), QBoxLayout::TopToBottom);
    QCOMPARE(column->alignment(), Qt::AlignCenter);
    QCOMPARE(column->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(column->spacing(), 2);
    QCOMPARE(column->count(), 0);
    QCOMPARE(subgroup.sizePolicy(), QSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum));
}

void tst_RibbonSubgroup::anActionBecomesASmallButton()
{
    RibbonSubgroup subgroup;
    QAction action(u"Bold"_s);
    action.setToolTip(u"Make it bold"_s);
    subgroup.addAction(&action);
    QCOMPARE(columnOf(subgroup)->count(), 1);
    const RibbonButton *button = buttonAt(subgroup, 0);
    QVERIFY(button);
    QCOMPARE(button->parent(), &subgroup);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(button->popupMode(), QToolButton::DelayedPopup);
    QCOMPARE(button->defaultAction(), &action);
    QCOMPARE(button->toolTip(), u"Make it bold"_s);
    QVERIFY(!button->isHidden());
}

void tst_RibbonSubgroup::aSeparatorBecomesASmallButtonToo()
{
    QAction separator;
    separator.setSeparator(true);
    RibbonGroup group(u"Font"_s);
    RibbonSubgroup *subgroup = group.addSubgroup();
    group.addAction(&separator);
    subgroup->addAction(&separator);
    const RibbonButton *button = buttonAt(*subgroup, 0);
    QVERIFY(button);
    QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(button->defaultAction(), &separator);
    QVERIFY(subgroup->findChildren<QFrame *>(u"separator"_s).isEmpty());
}

void tst_RibbonSubgroup::anActionStaysTheCallers()
{
    QObject owner;
    const QPointer<QAction> action = new QAction(u"Bold"_s, &owner);
    {
        RibbonSubgroup subgroup;
        subgroup.addAction(action);
        subgroup.addActions({action});
        QCOMPARE(action->parent(), &owner);
        QCOMPARE(subgroup.actions(), QList<QAction *>({action}));
    }
    QVERIFY(action);
}

void tst_RibbonSubgroup::aTextMadeToAnActionBecomesASmallButton()
{
    RibbonSubgroup subgroup;
    const QAction *action = subgroup.addAction(u"Bold"_s);
    QVERIFY(action);
    QVERIFY(buttonAt(subgroup, 0));
    QCOMPARE(buttonAt(subgroup, 0)->defaultAction(), action);
}

void tst_RibbonSubgroup::anActionAddedTwiceHasTwoButtons()
{
    RibbonSubgroup subgroup;
    QAction action(u"Bold"_s);
    subgroup.addAction(&action);
    subgroup.addAction(&action);
    QCOMPARE(columnOf(subgroup)->count(), 2);
    QCOMPARE(subgroup.actions(), QList<QAction *>({&action}));
}

void tst_RibbonSubgroup::itemsHaveNeitherStretchNorAlignment()
{
    RibbonSubgroup subgroup;
    QAction action(u"Bold"_s);
    subgroup.addAction(&action);
    subgroup.addWidget(new QLineEdit);
    subgroup.addActions({&action});
    QCOMPARE(columnOf(subgroup)->count(), 3);
    for (int i = 0; i < 3; ++i)
        QCOMPARE(columnOf(subgroup)->stretch(i), 0);
    QCOMPARE(columnOf(subgroup)->itemAt(0)->alignment(), Qt::Alignment());
    QCOMPARE(columnOf(subgroup)->itemAt(1)->alignment(), Qt::Alignment());
    QCOMPARE(rowAt(subgroup, 2)->stretch(0), 0);
    QCOMPARE(rowAt(subgroup, 2)->itemAt(0)->alignment(), Qt::Alignment());
}

void tst_RibbonSubgroup::itemsStandInTheOrderAdded()
{
    RibbonSubgroup subgroup;
    QAction first(u"Bold"_s);
    QAction last(u"Italic"_s);
    QMenu menu(u"Styles"_s);
    auto *edit = new QLineEdit;
    subgroup.addAction(&first);
    subgroup.addWidget(edit);
    subgroup.addMenu(&menu, QToolButton::InstantPopup);
    subgroup.insertAction(&first, &last); // there is no place before others
    QCOMPARE(columnOf(subgroup)->count(), 4);
    QCOMPARE(buttonAt(subgroup, 0)->defaultAction(), &first);
    QCOMPARE(itemAt(subgroup, 1), edit);
    QCOMPARE(buttonAt(subgroup, 2)->defaultAction(), menu.menuAction());
    QCOMPARE(buttonAt(subgroup, 3)->defaultAction(), &last);
}

void tst_RibbonSubgroup::itemsStandTwoPixelsApart()
{
    SubgroupWindow shown;
    QAction action(u"Bold"_s);
    for (int i = 0; i < 3; ++i)
        shown.subgroup->addAction(&action);
    QVERIFY(Input::show(&shown.window));
    const int width = buttonAt(*shown.subgroup, 0)->fontMetrics().horizontalAdvance(u"Bold"_s) + 34;
    QCOMPARE(shown.subgroup->size(), QSize(width, 22 + 2 + 22 + 2 + 22));
    QCOMPARE(itemAt(*shown.subgroup, 0)->geometry(), QRect(0, 0, width, 22));
    QCOMPARE(itemAt(*shown.subgroup, 1)->geometry(), QRect(0, 24, width, 22));
    QCOMPARE(itemAt(*shown.subgroup, 2)->geometry(), QRect(0, 48, width, 22));
}

void tst_RibbonSubgroup::aButtonKeepsItsWidthInAWideColumn()
{
    SubgroupWindow shown;
    auto *edit = new QLineEdit;
    edit->setMinimumWidth(180);
    QAction action(u"Bold"_s);
    shown.subgroup->addWidget(edit);
    shown.subgroup->addAction(&action);
    QVERIFY(Input::show(&shown.window));
    QCOMPARE(shown.subgroup->width(), qMax(180, edit->sizeHint().width()));
    QCOMPARE(edit->width(), shown.subgroup->width());
    const RibbonButton *button = buttonAt(*shown.subgroup, 1);
    QCOMPARE(button->width(), button->fontMetrics().horizontalAdvance(u"Bold"_s) + 34);
}

void tst_RibbonSubgroup::aColumnHasNoLimit()
{
    SubgroupWindow shown;
    QAction action(u"Bold"_s);
    for (int i = 0; i < 8; ++i)
        shown.subgroup->addAction(&action);
    shown.window.resize(400, 300);
    QVERIFY(Input::show(&shown.window));
    QCOMPARE(shown.subgroup->height(), 8 * 22 + 7 * 2);
    QVERIFY(itemAt(*shown.subgroup, 7)->isVisible());
}

void tst_RibbonSubgroup::threeButtonsFitAGroup()
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    auto *group = new RibbonGroup(u"Font"_s);
    layout->addWidget(group);
    RibbonSubgroup *subgroup = group->addSubgroup();
    QAction action(u"Bold"_s);
    for (int i = 0; i < 3; ++i)
        subgroup->addAction(&action);
    QVERIFY(Input::show(&window));
    QCOMPARE(subgroup->height(), 70);
    QVERIFY(group->rect().contains(subgroup->geometry()));
    const auto *title = group->findChild<QLabel *>(u"groupTitle"_s);
    QVERIFY(title->y() > subgroup->geometry().bottom());
}

void tst_RibbonSubgroup::itemsAddedToAShownSubgroupAreShown()
{
    SubgroupWindow shown;
    QAction action(u"Bold"_s);
    shown.subgroup->addAction(&action);
    QVERIFY(Input::show(&shown.window));
    shown.subgroup->addAction(&action);
    shown.subgroup->addWidget(new QLineEdit);
    shown.subgroup->addActions({&action});
    QTRY_VERIFY(itemAt(*shown.subgroup, 1)->isVisible());
    QTRY_VERIFY(itemAt(*shown.subgroup, 2)->isVisible());
    QTRY_VERIFY(buttonIn(rowAt(*shown.subgroup, 3), 0)->isVisible());
    QTRY_COMPARE(itemAt(*shown.subgroup, 1)->height(), 22);
}

void tst_RibbonSubgroup::nothingIsIgnored()
{
    RibbonSubgroup subgroup;
    subgroup.addAction(static_cast<QAction *>(nullptr));
    QVERIFY(!subgroup.addMenu(nullptr, QToolButton::InstantPopup));
    QVERIFY(!subgroup.addWidget(nullptr));
    QCOMPARE(columnOf(subgroup)->count(), 0);
    QVERIFY(subgroup.actions().isEmpty());
}

void tst_RibbonSubgroup::anAddedMenuGetsItsButton_data()
{
    addModes();
}

void tst_RibbonSubgroup::anAddedMenuGetsItsButton()
{
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    RibbonSubgroup subgroup;
    QMenu menu(u"Styles"_s);
    const QAction *action = subgroup.addMenu(&menu, mode);
    QCOMPARE(action, menu.menuAction());
    QVERIFY(subgroup.actions().contains(action));
    QCOMPARE(columnOf(subgroup)->count(), 1);
    const RibbonButton *button = buttonAt(subgroup, 0);
    QVERIFY(button);
    QCOMPARE(button->parent(), &subgroup);
    QCOMPARE(button->defaultAction(), action);
    QCOMPARE(button->popupMode(), mode);
    QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
}

void tst_RibbonSubgroup::theModeOfAMenuHoldsForLaterButtons_data()
{
    addModes();
}

void tst_RibbonSubgroup::theModeOfAMenuHoldsForLaterButtons()
{
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    RibbonSubgroup subgroup;
    QMenu first(u"Styles"_s);
    QMenu last(u"Colours"_s);
    QAction plain(u"Bold"_s);

    subgroup.addAction(&plain);
    subgroup.addMenu(&first, mode);
    subgroup.addAction(&plain);
    QCOMPARE(buttonAt(subgroup, 0)->popupMode(), QToolButton::DelayedPopup);
    QCOMPARE(buttonAt(subgroup, 2)->popupMode(), mode);

    subgroup.addMenu(&last, QToolButton::DelayedPopup);
    subgroup.addAction(&plain);
    QCOMPARE(buttonAt(subgroup, 3)->popupMode(), QToolButton::DelayedPopup);
    QCOMPARE(buttonAt(subgroup, 4)->popupMode(), QToolButton::DelayedPopup);
    QCOMPARE(buttonAt(subgroup, 2)->popupMode(), mode);
}

void tst_RibbonSubgroup::addingNoMenuKeepsTheMode()
{
    RibbonSubgroup subgroup;
    QAction plain(u"Bold"_s);
    subgroup.addMenu(nullptr, QToolButton::InstantPopup);
    subgroup.addAction(&plain);
    QCOMPARE(buttonAt(subgroup, 0)->popupMode(), QToolButton::DelayedPopup);
}

void tst_RibbonSubgroup::theModeIsTheSubgroupsOwn()
{
    RibbonGroup group(u"Font"_s);
    QMenu menu(u"Styles"_s);
    QAction plain(u"Bold"_s);
    group.addMenu(&menu, QToolButton::InstantPopup);
    RibbonSubgroup *first = group.addSubgroup();
    RibbonSubgroup *second = group.addSubgroup();
    first->addMenu(&menu, QToolButton::MenuButtonPopup);
    first->addAction(&plain);
    second->addAction(&plain);
    QCOMPARE(buttonAt(*first, 1)->popupMode(), QToolButton::MenuButtonPopup);
    QCOMPARE(buttonAt(*second, 0)->popupMode(), QToolButton::DelayedPopup);
}

void tst_RibbonSubgroup::aMenuStaysTheCallersWithoutAShadow()
{
    QMenu menu(u"Styles"_s);
    const Qt::WindowFlags before = menu.windowFlags();
    {
        RibbonSubgroup subgroup;
        subgroup.addMenu(&menu, QToolButton::InstantPopup);
        QCOMPARE(menu.windowFlags(), before | Qt::NoDropShadowWindowHint);
        QVERIFY(!menu.parent());
        QVERIFY(!menu.isVisible());
    }
    QVERIFY(menu.menuAction());
}

void tst_RibbonSubgroup::aMenuOpensAndItsEntryIsTriggered()
{
    SubgroupWindow shown;
    QMenu menu(u"Styles"_s);
    QAction *entry = menu.addAction(u"Heading"_s);
    shown.subgroup->addMenu(&menu, QToolButton::InstantPopup);
    const QSignalSpy triggered(entry, &QAction::triggered);
    QVERIFY(Input::show(&shown.window));

    PopupDriver driver([&](QMenu *open) {
        Input::release(buttonAt(*shown.subgroup, 0));
        Input::click(open, open->actionGeometry(entry).center());
    });
    Input::press(buttonAt(*shown.subgroup, 0));

    QVERIFY(driver.hasRun());
    QCOMPARE(triggered.size(), 1);
}

void tst_RibbonSubgroup::anAddedWidgetIsEmbedded()
{
    RibbonSubgroup subgroup;
    auto *edit = new QLineEdit;
    QAction *action = subgroup.addWidget(edit);
    const auto *widgetAction = qobject_cast<QWidgetAction *>(action);
    QVERIFY(widgetAction);
    QCOMPARE(action->parent(), &subgroup);
    QCOMPARE(widgetAction->defaultWidget(), edit);
    QVERIFY(subgroup.actions().contains(action));
    QCOMPARE(itemAt(subgroup, 0), edit);
    QCOMPARE(edit->parent(), &subgroup);
    QVERIFY(!edit->isHidden());
}

void tst_RibbonSubgroup::theSubgroupOwnsAnAddedWidget()
{
    auto subgroup = std::make_unique<RibbonSubgroup>();
    const QPointer<QLineEdit> edit = new QLineEdit;
    const QPointer<QAction> action = subgroup->addWidget(edit);
    subgroup.reset();
    QVERIFY(!edit);
    QVERIFY(!action);
}

void tst_RibbonSubgroup::aWidgetActionMovesIntoTheSubgroup()
{
    QObject owner;
    RibbonSubgroup subgroup;
    const QPointer<FindAction> action = new FindAction(&owner);
    subgroup.addAction(action);
    QCOMPARE(action->parent(), &subgroup);
    QVERIFY(qobject_cast<QLineEdit *>(itemAt(subgroup, 0)));
    QCOMPARE(itemAt(subgroup, 0)->parent(), &subgroup);
    QVERIFY(!itemAt(subgroup, 0)->isHidden());
}

void tst_RibbonSubgroup::aDefaultWidgetInUseElsewhereIsNotEmbedded()
{
    RibbonSubgroup one;
    RibbonSubgroup other;
    auto *edit = new QLineEdit;
    QAction *action = one.addWidget(edit);
    other.addAction(action);
    QCOMPARE(itemAt(one, 0), edit);
    QCOMPARE(columnOf(other)->count(), 0);
}

void tst_RibbonSubgroup::addedActionsBecomeARowOfIcons()
{
    RibbonSubgroup subgroup;
    QAction bold(u"Bold"_s);
    QAction italic(u"Italic"_s);
    subgroup.addActions({&bold, &italic});
    QCOMPARE(columnOf(subgroup)->count(), 1);
    const QHBoxLayout *row = rowAt(subgroup, 0);
    QVERIFY(row);
    QCOMPARE(row->count(), 2);
    QCOMPARE(buttonIn(row, 0)->defaultAction(), &bold);
    QCOMPARE(buttonIn(row, 1)->defaultAction(), &italic);
    for (int i = 0; i < 2; ++i) {
        const RibbonButton *button = buttonIn(row, i);
        QCOMPARE(button->parent(), &subgroup);
        QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonIconOnly);
        QCOMPARE(button->iconSize(), QSize(16, 16));
        QCOMPARE(button->popupMode(), QToolButton::DelayedPopup);
        QVERIFY(!button->isHidden());
    }
}

void tst_RibbonSubgroup::aRowHasItsMetrics()
{
    RibbonSubgroup subgroup;
    subgroup.addActions({});
    const QHBoxLayout *row = rowAt(subgroup, 0);
    QVERIFY(row);
    QCOMPARE(row->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(row->spacing(), 1);
    QCOMPARE(row->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(row->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
}

void tst_RibbonSubgroup::aRowDoesNotEnterTheActions()
{
    RibbonSubgroup subgroup;
    QAction bold(u"Bold"_s);
    QAction separator;
    separator.setSeparator(true);
    subgroup.addActions({&bold, &separator});
    QVERIFY(subgroup.actions().isEmpty());
    QCOMPARE(rowAt(subgroup, 0)->count(), 2);
}

void tst_RibbonSubgroup::aRowIgnoresTheModeOfAMenu()
{
    RibbonSubgroup subgroup;
    QMenu menu(u"Styles"_s);
    QAction bold(u"Bold"_s);
    subgroup.addMenu(&menu, QToolButton::InstantPopup);
    subgroup.addActions({&bold});
    QCOMPARE(buttonIn(rowAt(subgroup, 1), 0)->popupMode(), QToolButton::DelayedPopup);
}

void tst_RibbonSubgroup::aRowSkipsNothings()
{
    RibbonSubgroup subgroup;
    QAction bold(u"Bold"_s);
    subgroup.addActions({nullptr, &bold, nullptr});
    QCOMPARE(rowAt(subgroup, 0)->count(), 1);
    QCOMPARE(buttonIn(rowAt(subgroup, 0), 0)->defaultAction(), &bold);
}

void tst_RibbonSubgroup::anEmptyListStillMakesARow()
{
    RibbonSubgroup subgroup;
    subgroup.addActions({});
    QCOMPARE(columnOf(subgroup)->count(), 1);
    QVERIFY(rowAt(subgroup, 0));
    QCOMPARE(rowAt(subgroup, 0)->count(), 0);
}

void tst_RibbonSubgroup::rowsAndButtonsStandInOneColumn()
{
    SubgroupWindow shown;
    QAction action(u"Bold"_s);
    shown.subgroup->addAction(&action);
    shown.subgroup->addActions({&action, &action});
    shown.subgroup->addAction(&action);
    QVERIFY(Input::show(&shown.window));
    QCOMPARE(itemAt(*shown.subgroup, 0)->y(), 0);
    QCOMPARE(buttonIn(rowAt(*shown.subgroup, 1), 0)->geometry(), QRect(0, 24, 22, 22));
    QCOMPARE(itemAt(*shown.subgroup, 2)->y(), 48);
}

void tst_RibbonSubgroup::iconsOfARowStandOnePixelApart_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QList<int>>("places");

    QTest::newRow("left to right") << Qt::LeftToRight << QList<int>({0, 23, 46});
    QTest::newRow("right to left") << Qt::RightToLeft << QList<int>({46, 23, 0});
}

void tst_RibbonSubgroup::iconsOfARowStandOnePixelApart()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QList<int>, places);
    SubgroupWindow shown;
    shown.window.setLayoutDirection(direction);
    QAction action(u"Bold"_s);
    shown.subgroup->addActions({&action, &action, &action});
    QVERIFY(Input::show(&shown.window));
    QCOMPARE(shown.subgroup->size(), QSize(22 + 1 + 22 + 1 + 22, 22));
    for (int i = 0; i < 3; ++i)
        QCOMPARE(buttonIn(rowAt(*shown.subgroup, 0), i)->geometry(),
                 QRect(places.at(i), 0, 22, 22));
}

void tst_RibbonSubgroup::anIconOfARowTriggersItsAction()
{
    SubgroupWindow shown;
    QAction bold(u"Bold"_s);
    QAction italic(u"Italic"_s);
    shown.subgroup->addActions({&bold, &italic});
    const QSignalSpy boldTriggered(&bold, &QAction::triggered);
    const QSignalSpy italicTriggered(&italic, &QAction::triggered);
    QVERIFY(Input::show(&shown.window));
    Input::click(buttonIn(rowAt(*shown.subgroup, 0), 1));
    QCOMPARE(boldTriggered.size(), 0);
    QCOMPARE(italicTriggered.size(), 1);
}

void tst_RibbonSubgroup::anIconOfARowFollowsItsAction()
{
    SubgroupWindow shown;
    QAction bold(u"Bold"_s);
    QAction italic(u"Italic"_s);
    bold.setVisible(false);
    italic.setCheckable(true);
    shown.subgroup->addActions({&bold, &italic});
    QVERIFY(Input::show(&shown.window));
    const RibbonButton *boldButton = buttonIn(rowAt(*shown.subgroup, 0), 0);
    const RibbonButton *italicButton = buttonIn(rowAt(*shown.subgroup, 0), 1);
    QVERIFY(!boldButton->isVisible());
    QCOMPARE(italicButton->x(), 0);

    bold.setVisible(true);
    italic.setChecked(true);
    italic.setEnabled(false);
    QVERIFY(boldButton->isVisible());
    QVERIFY(italicButton->isChecked());
    QVERIFY(!italicButton->isEnabled());
    QTRY_COMPARE(italicButton->x(), 23);
}

void tst_RibbonSubgroup::aMenuInARowStaysClosed()
{
    SubgroupWindow shown;
    QMenu menu(u"Styles"_s);
    QAction action(u"Style"_s);
    action.setMenu(&menu);
    shown.subgroup->addActions({&action});
    const QSignalSpy triggered(&action, &QAction::triggered);
    QVERIFY(Input::show(&shown.window));
    const PopupBan ban;
    Input::click(buttonIn(rowAt(*shown.subgroup, 0), 0));
    QCOMPARE(triggered.size(), 1);
    QCOMPARE(buttonIn(rowAt(*shown.subgroup, 0), 0)->size(), QSize(22, 22));
}

void tst_RibbonSubgroup::aClickTriggersTheAction()
{
    SubgroupWindow shown;
    QAction action(u"Bold"_s);
    shown.subgroup->addAction(&action);
    const QSignalSpy triggered(&action, &QAction::triggered);
    QVERIFY(Input::show(&shown.window));
    Input::click(buttonAt(*shown.subgroup, 0));
    QCOMPARE(triggered.size(), 1);
}

void tst_RibbonSubgroup::changesOfAnActionAddNothing()
{
    RibbonSubgroup subgroup;
    QAction action(u"Bold"_s);
    subgroup.addAction(&action);
    action.setText(u"Very bold"_s);
    action.setEnabled(false);
    QCOMPARE(columnOf(subgroup)->count(), 1);
    QCOMPARE(buttonAt(subgroup, 0)->text(), u"Very bold"_s);
}

void tst_RibbonSubgroup::aRemovedActionLeavesItsButton()
{
    SubgroupWindow shown;
    QAction action(u"Bold"_s);
    shown.subgroup->addAction(&action);
    const QSignalSpy triggered(&action, &QAction::triggered);
    shown.subgroup->removeAction(&action);
    QCOMPARE(columnOf(*shown.subgroup)->count(), 1);
    QVERIFY(Input::show(&shown.window));
    Input::click(buttonAt(*shown.subgroup, 0));
    QCOMPARE(triggered.size(), 1);
}

void tst_RibbonSubgroup::aDeletedActionLeavesItsButton()
{
    SubgroupWindow shown;
    auto action = std::make_unique<QAction>(u"Bold"_s);
    shown.subgroup->addAction(action.get());
    QVERIFY(Input::show(&shown.window));
    action.reset();
    QCOMPARE(columnOf(*shown.subgroup)->count(), 1);
    Input::click(buttonAt(*shown.subgroup, 0));
    QVERIFY(!shown.window.grab().isNull());
}

void tst_RibbonSubgroup::aDeletedActionLeavesItsIcon()
{
    SubgroupWindow shown;
    auto action = std::make_unique<QAction>(u"Bold"_s);
    shown.subgroup->addActions({action.get()});
    QVERIFY(Input::show(&shown.window));
    action.reset();
    QCOMPARE(rowAt(*shown.subgroup, 0)->count(), 1);
    Input::click(buttonIn(rowAt(*shown.subgroup, 0), 0));
    QVERIFY(!shown.window.grab().isNull());
}

void tst_RibbonSubgroup::anActionMayBeDeletedWhenTriggered()
{
    SubgroupWindow shown;
    QPointer<QAction> action = new QAction(u"Bold"_s);
    shown.subgroup->addAction(action);
    connect(action, &QAction::triggered, this, [action] { delete action; });
    QVERIFY(Input::show(&shown.window));
    Input::click(buttonAt(*shown.subgroup, 0));
    QVERIFY(!action);
    Input::click(buttonAt(*shown.subgroup, 0));
    QVERIFY(!shown.window.grab().isNull());
}

void tst_RibbonSubgroup::theSubgroupMayBeDeletedWhenAnActionIsTriggered()
{
    SubgroupWindow shown;
    QAction action(u"Bold"_s);
    shown.subgroup->addAction(&action);
    connect(&action, &QAction::triggered, this, [&shown] { delete shown.subgroup; });
    QVERIFY(Input::show(&shown.window));
    Input::click(buttonAt(*shown.subgroup, 0));
    QVERIFY(!shown.subgroup);
}

void tst_RibbonSubgroup::hidingAnActionHidesItsButton()
{
    SubgroupWindow shown;
    QAction first(u"Bold"_s);
    QAction second(u"Italic"_s);
    shown.subgroup->addAction(&first);
    shown.subgroup->addAction(&second);
    QVERIFY(Input::show(&shown.window));
    first.setVisible(false);
    QVERIFY(!buttonAt(*shown.subgroup, 0)->isVisible());
    QTRY_COMPARE(buttonAt(*shown.subgroup, 1)->y(), 0);
    first.setVisible(true);
    QVERIFY(buttonAt(*shown.subgroup, 0)->isVisible());
    QTRY_COMPARE(buttonAt(*shown.subgroup, 1)->y(), 24);
}

void tst_RibbonSubgroup::anActionHiddenFromTheStartHasAHiddenButton()
{
    SubgroupWindow shown;
    QAction first(u"Bold"_s);
    QAction second(u"Italic"_s);
    first.setVisible(false);
    shown.subgroup->addAction(&first);
    shown.subgroup->addAction(&second);
    QVERIFY(Input::show(&shown.window));
    QVERIFY(!buttonAt(*shown.subgroup, 0)->isVisible());
    QCOMPARE(buttonAt(*shown.subgroup, 1)->y(), 0);
    first.setVisible(true);
    QVERIFY(buttonAt(*shown.subgroup, 0)->isVisible());
    QTRY_COMPARE(buttonAt(*shown.subgroup, 1)->y(), 24);
}

QTEST_MAIN(tst_RibbonSubgroup)

#include "tst_ribbonsubgroup.moc"
