// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonSubgroup.h>

#include "ribbon/RibbonButton.h"
#include "ribbon/RibbonGroup_p.h"
#include "support/Input.h"
#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QAction>
#include <QActionEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QWidgetAction>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

class CountedPrivate : public RibbonGroupPrivate
{
    Q_DISABLE_COPY_MOVE(CountedPrivate)

public:
    explicit CountedPrivate(int *destroyed) : m_destroyed(destroyed) {}
    ~CountedPrivate() override { ++*m_destroyed; }

private:
    int *m_destroyed;
};

class DerivedGroup : public RibbonGroup
{
    Q_OBJECT

public:
    DerivedGroup(CountedPrivate &d, const QString &title, QWidget *parent) : RibbonGroup(d, parent)
    {
        d.init(title);
    }
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

QHBoxLayout *mainLayoutOf(const RibbonGroup &group)
{
    return qobject_cast<QHBoxLayout *>(group.layout());
}

QVBoxLayout *columnOf(const RibbonGroup &group)
{
    return qobject_cast<QVBoxLayout *>(mainLayoutOf(group)->itemAt(0)->layout());
}

QHBoxLayout *rowOf(const RibbonGroup &group)
{
    return qobject_cast<QHBoxLayout *>(columnOf(group)->itemAt(0)->layout());
}

QLabel *titleLabelOf(const RibbonGroup &group)
{
    return qobject_cast<QLabel *>(columnOf(group)->itemAt(1)->widget());
}

QWidget *itemAt(const RibbonGroup &group, int index)
{
    QLayoutItem *item = rowOf(group)->itemAt(index);
    return item ? item->widget() : nullptr;
}

RibbonButton *buttonAt(const RibbonGroup &group, int index)
{
    return qobject_cast<RibbonButton *>(itemAt(group, index));
}

QFrame *separatorAt(const RibbonGroup &group, int index)
{
    return qobject_cast<QFrame *>(itemAt(group, index));
}

/// A window that a group does not fill: there the group has the size that it asks for.
struct GroupWindow
{
    explicit GroupWindow(const QString &title = {})
    {
        auto *layout = new QHBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(group = new RibbonGroup(title), 0, Qt::AlignLeft | Qt::AlignTop);
        window.resize(400, 200);
    }

    QWidget window;
    QPointer<RibbonGroup> group;
};

void addModes()
{
    QTest::addColumn<QToolButton::ToolButtonPopupMode>("mode");

    QTest::newRow("delayed") << QToolButton::DelayedPopup;
    QTest::newRow("split") << QToolButton::MenuButtonPopup;
    QTest::newRow("instant") << QToolButton::InstantPopup;
}

} // namespace

class tst_RibbonGroup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAWidgetInTheNamespace();
    void belongsToItsParent();
    void aSubclassHandsItsOwnPrivateObject();
    void hasItsHeightAndPolicy();
    void endsWithAVerticalLine();
    void theTitleStandsUnderTheItems();
    void theTitleHasItsNameHeightAndAlignment();
    void theTitlesOfAllGroupsAreInLine();
    void marginsFollowTheLayoutDirection();
    void anEmptyGroupIsAsHighAsAnyAndShowsItsTitle();
    void isNeverWiderThanItsItems();

    void anActionBecomesALargeButton();
    void anActionStaysTheCallers();
    void aTextMadeToAnActionBecomesALargeButton();
    void severalActionsBecomeSeveralButtons();
    void anActionAddedTwiceHasTwoButtons();
    void itemsHaveNeitherStretchNorAlignment();
    void itemsStandInTheOrderAdded();
    void itemsStandFourPixelsApart_data();
    void itemsStandFourPixelsApart();
    void itemsAddedToAShownGroupAreShown();
    void nothingIsIgnored();

    void aSeparatorBecomesALine();
    void theGroupOwnsTheActionsOfItsSeparators();
    void aSeparatorOfTheCallerBecomesALineToo();

    void anAddedMenuGetsItsButton_data();
    void anAddedMenuGetsItsButton();
    void theModeOfAMenuHoldsForLaterButtons_data();
    void theModeOfAMenuHoldsForLaterButtons();
    void theModeOfAMenuLeavesEarlierButtonsAlone();
    void addingNoMenuKeepsTheMode();
    void aMenuStaysTheCallersWithoutAShadow();
    void aMenuOpensAndItsEntryIsTriggered();

    void anAddedWidgetIsEmbedded();
    void theGroupOwnsAnAddedWidget();
    void aWidgetActionMovesIntoTheGroup();
    void aWidgetActionOfTwoGroupsHasAWidgetInEach();
    void aDefaultWidgetInUseElsewhereIsNotEmbedded();
    void anEmbeddedWidgetWorks();

    void subgroupsStandInTheRow();
    void subgroupGivesNothingOutOfRange_data();
    void subgroupGivesNothingOutOfRange();
    void indexOfSubgroupFindsSubgroupsOnly();
    void aDeletedSubgroupKeepsTheIndexesOfTheOthers();

    void aClickTriggersTheAction();
    void aShortcutTriggersTheActionOnce();
    void changesOfAnActionAddNothing();
    void aRemovedActionLeavesItsButton();
    void aDeletedActionLeavesItsButton();
    void anActionMayBeDeletedWhenTriggered();
    void theGroupMayBeDeletedWhenAnActionIsTriggered();
    void aDeletedMenuLeavesItsButton();
    void aMenuMayBeDeletedWhileItIsOpen();
    void hidingAnActionHidesItsButton();
    void anActionHiddenFromTheStartHasAHiddenButton();
    void aDisabledActionHasADisabledButton();
    void aCheckableActionTogglesWithItsButton();
    void actionsOutliveTheGroup();
};

void tst_RibbonGroup::isAWidgetInTheNamespace()
{
    QCOMPARE(QLatin1StringView(RibbonGroup::staticMetaObject.className()),
             "VornFrame::RibbonGroup"_L1);
    QCOMPARE(RibbonGroup::staticMetaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(RibbonGroup::staticMetaObject.methodCount(), QWidget::staticMetaObject.methodCount());
}

void tst_RibbonGroup::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<RibbonGroup> group = new RibbonGroup(u"Font"_s, parent.get());
    QCOMPARE(group->parent(), parent.get());
    parent.reset();
    QVERIFY(!group);
    QVERIFY(!RibbonGroup(u"Font"_s).parent());
}

void tst_RibbonGroup::aSubclassHandsItsOwnPrivateObject()
{
    int destroyed = 0;
    QWidget parent;
    auto *d = new CountedPrivate(&destroyed);
    QCOMPARE(d->popupMode, QToolButton::DelayedPopup);
    {
        DerivedGroup group(*d, u"Font"_s, &parent);
        QCOMPARE(d->q_ptr, &group);
        QCOMPARE(group.parent(), &parent);
        QCOMPARE(d->titleLabel, titleLabelOf(group));
        QCOMPARE(d->titleLabel->text(), u"Font"_s);
        QCOMPARE(d->actionsLayout, rowOf(group));
        const RibbonSubgroup *subgroup = group.addSubgroup();
        QCOMPARE(d->subgroups.size(), 1);
        QCOMPARE(d->subgroups.at(0), subgroup);
        QMenu menu;
        group.addMenu(&menu, QToolButton::InstantPopup);
        QCOMPARE(d->popupMode, QToolButton::InstantPopup);
        QCOMPARE(destroyed, 0);
    }
    QCOMPARE(destroyed, 1);
}

void tst_RibbonGroup::hasItsHeightAndPolicy()
{
    const RibbonGroup group(u"Font"_s);
    QCOMPARE(group.minimumHeight(), 95);
    QCOMPARE(group.maximumHeight(), 95);
    QCOMPARE(group.sizePolicy(), QSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum));
}

void tst_RibbonGroup::endsWithAVerticalLine()
{
    const RibbonGroup group(u"Font"_s);
    const QHBoxLayout *layout = mainLayoutOf(group);
    QVERIFY(layout);
    QCOMPARE(layout->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 1, 3, 1));
    QCOMPARE(layout->spacing(), 3);
    QCOMPARE(layout->count(), 2);
    QVERIFY(columnOf(group));
    const auto *line = qobject_cast<QFrame *>(layout->itemAt(1)->widget());
    QVERIFY(line);
    QCOMPARE(line->objectName(), u"separator"_s);
    QCOMPARE(line->frameShape(), QFrame::VLine);
    QCOMPARE(line->minimumSize(), QSize(1, 80));
    QCOMPARE(line->maximumSize(), QSize(1, 80));
    QCOMPARE(line->parent(), &group);
}

void tst_RibbonGroup::theTitleStandsUnderTheItems()
{
    const RibbonGroup group(u"Font"_s);
    const QVBoxLayout *column = columnOf(group);
    QCOMPARE(column->direction(), QBoxLayout::TopToBottom);
    QCOMPARE(column->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->count(), 2);
    QVERIFY(rowOf(group));
    QCOMPARE(rowOf(group)->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(rowOf(group)->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(rowOf(group)->spacing(), 4);
    QCOMPARE(rowOf(group)->count(), 0);
    QVERIFY(titleLabelOf(group));
}

void tst_RibbonGroup::theTitleHasItsNameHeightAndAlignment()
{
    const RibbonGroup group(u"Font & Co"_s);
    const QLabel *label = titleLabelOf(group);
    QCOMPARE(label->text(), u"Font & Co"_s);
    QCOMPARE(label->objectName(), u"groupTitle"_s);
    QCOMPARE(label->alignment(), Qt::AlignCenter);
    QCOMPARE(label->minimumHeight(), 12);
    QCOMPARE(label->maximumHeight(), 12);
    QCOMPARE(label->parent(), &group);
    QVERIFY(label->fontMetrics().height() <= 12);
}

void tst_RibbonGroup::theTitlesOfAllGroupsAreInLine()
{
    QAction action(u"Bold"_s);
    RibbonGroup empty(u"Empty"_s);
    RibbonGroup large(u"Large"_s);
    large.addAction(&action);
    RibbonGroup small(u"Small"_s);
    small.addSubgroup()->addAction(&action);
    RibbonGroup lines(u"Lines"_s);
    lines.addSeparator();
    for (RibbonGroup *group : {&empty, &large, &small, &lines}) {
        QVERIFY(Input::show(group));
        QCOMPARE(titleLabelOf(*group)->y(), 95 - 1 - 12);
    }
    // The items are in the middle of what is left.
    QCOMPARE(itemAt(large, 0)->y(), 1 + (81 - 72) / 2);
    QCOMPARE(itemAt(small, 0)->y(), 1 + (81 - 22) / 2);
}

void tst_RibbonGroup::marginsFollowTheLayoutDirection()
{
    RibbonGroup group(u"Font"_s);
    group.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(mainLayoutOf(group)->contentsMargins(), QMargins(3, 1, 0, 1));
    group.setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(mainLayoutOf(group)->contentsMargins(), QMargins(0, 1, 3, 1));
}

void tst_RibbonGroup::anEmptyGroupIsAsHighAsAnyAndShowsItsTitle()
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *group = new RibbonGroup(u"Font"_s);
    layout->addWidget(group);
    window.resize(300, 200);
    QVERIFY(Input::show(&window));
    const int titleWidth = titleLabelOf(*group)->sizeHint().width();
    QCOMPARE(group->size(), QSize(titleWidth + 3 + 1 + 3, 95));
    QVERIFY(titleLabelOf(*group)->isVisible());
    QCOMPARE(titleLabelOf(*group)->width(), titleWidth);
    const QWidget *line = mainLayoutOf(*group)->itemAt(1)->widget();
    QVERIFY(line->isVisible());
    QCOMPARE(line->geometry(), QRect(titleWidth + 3, 7, 1, 80));
}

void tst_RibbonGroup::isNeverWiderThanItsItems()
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *group = new RibbonGroup(QString());
    layout->addWidget(group);
    QAction action(u"A"_s);
    group->addAction(&action);
    group->addAction(&action);
    window.resize(500, 200);
    QVERIFY(Input::show(&window));
    QCOMPARE(group->size(), QSize(36 + 4 + 36 + 3 + 1 + 3, 95));
    QCOMPARE(buttonAt(*group, 0)->size(), QSize(36, 72));
    QVERIFY(titleLabelOf(*group)->y() > buttonAt(*group, 0)->geometry().bottom());
    QCOMPARE(titleLabelOf(*group)->width(), 36 + 4 + 36);
}

void tst_RibbonGroup::anActionBecomesALargeButton()
{
    RibbonGroup group(u"Font"_s);
    QAction action(u"Bold"_s);
    action.setToolTip(u"Make it bold"_s);
    group.addAction(&action);
    QCOMPARE(rowOf(group)->count(), 1);
    const RibbonButton *button = buttonAt(group, 0);
    QVERIFY(button);
    QCOMPARE(button->parent(), &group);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(button->popupMode(), QToolButton::DelayedPopup);
    QCOMPARE(button->defaultAction(), &action);
    QCOMPARE(button->text(), u"Bold"_s);
    QCOMPARE(button->toolTip(), u"Make it bold"_s);
    QVERIFY(!button->isHidden());
}

void tst_RibbonGroup::anActionStaysTheCallers()
{
    QObject owner;
    const QPointer<QAction> action = new QAction(u"Bold"_s, &owner);
    {
        RibbonGroup group(u"Font"_s);
        group.addAction(action);
        QCOMPARE(action->parent(), &owner);
        QCOMPARE(group.actions(), QList<QAction *>({action}));
    }
    QVERIFY(action);
}

void tst_RibbonGroup::aTextMadeToAnActionBecomesALargeButton()
{
    RibbonGroup group(u"Font"_s);
    const QAction *action = group.addAction(u"Bold"_s);
    QVERIFY(action);
    QVERIFY(buttonAt(group, 0));
    QCOMPARE(buttonAt(group, 0)->defaultAction(), action);
}

void tst_RibbonGroup::severalActionsBecomeSeveralButtons()
{
    RibbonGroup group(u"Font"_s);
    QAction bold(u"Bold"_s);
    QAction italic(u"Italic"_s);
    group.addActions({&bold, &italic});
    QCOMPARE(rowOf(group)->count(), 2);
    QCOMPARE(buttonAt(group, 0)->defaultAction(), &bold);
    QCOMPARE(buttonAt(group, 1)->defaultAction(), &italic);
    QCOMPARE(buttonAt(group, 1)->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
}

void tst_RibbonGroup::anActionAddedTwiceHasTwoButtons()
{
    RibbonGroup group(u"Font"_s);
    QAction action(u"Bold"_s);
    group.addAction(&action);
    group.addAction(&action);
    QCOMPARE(rowOf(group)->count(), 2);
    QCOMPARE(buttonAt(group, 0)->defaultAction(), &action);
    QCOMPARE(buttonAt(group, 1)->defaultAction(), &action);
    QCOMPARE(group.actions(), QList<QAction *>({&action}));
}

void tst_RibbonGroup::itemsHaveNeitherStretchNorAlignment()
{
    RibbonGroup group(u"Font"_s);
    QAction action(u"Bold"_s);
    group.addAction(&action);
    group.addSeparator();
    group.addWidget(new QLineEdit);
    group.addSubgroup();
    QCOMPARE(rowOf(group)->count(), 4);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(rowOf(group)->stretch(i), 0);
        QCOMPARE(rowOf(group)->itemAt(i)->alignment(), Qt::Alignment());
    }
}

void tst_RibbonGroup::itemsStandInTheOrderAdded()
{
    RibbonGroup group(u"Font"_s);
    QAction first(u"Bold"_s);
    QAction last(u"Italic"_s);
    QMenu menu(u"Styles"_s);
    auto *edit = new QLineEdit;
    group.addAction(&first);
    group.addSeparator();
    const RibbonSubgroup *subgroup = group.addSubgroup();
    group.addWidget(edit);
    group.addMenu(&menu, QToolButton::InstantPopup);
    group.insertAction(&first, &last); // there is no place before others
    QCOMPARE(rowOf(group)->count(), 6);
    QCOMPARE(buttonAt(group, 0)->defaultAction(), &first);
    QCOMPARE(separatorAt(group, 1)->objectName(), u"separator"_s);
    QCOMPARE(itemAt(group, 2), subgroup);
    QCOMPARE(itemAt(group, 3), edit);
    QCOMPARE(buttonAt(group, 4)->defaultAction(), menu.menuAction());
    QCOMPARE(buttonAt(group, 5)->defaultAction(), &last);
}

void tst_RibbonGroup::itemsStandFourPixelsApart_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QList<int>>(
        "places"); // of the left edges of button, line, button and end line

    QTest::newRow("left to right") << Qt::LeftToRight << QList<int>({0, 40, 45, 84});
    QTest::newRow("right to left") << Qt::RightToLeft << QList<int>({52, 47, 7, 3});
}

void tst_RibbonGroup::itemsStandFourPixelsApart()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QList<int>, places);
    RibbonGroup group(QString{});
    group.setLayoutDirection(direction);
    QAction action(u"A"_s);
    group.addAction(&action);
    group.addSeparator();
    group.addAction(&action);
    QVERIFY(Input::show(&group));
    QCOMPARE(group.size(), QSize(36 + 4 + 1 + 4 + 36 + 3 + 1 + 3, 95));
    QCOMPARE(itemAt(group, 0)->x(), places.at(0));
    QCOMPARE(itemAt(group, 1)->geometry(), QRect(places.at(1), 1, 1, 80));
    QCOMPARE(itemAt(group, 2)->x(), places.at(2));
    QCOMPARE(mainLayoutOf(group)->itemAt(1)->widget()->x(), places.at(3));
}

void tst_RibbonGroup::itemsAddedToAShownGroupAreShown()
{
    RibbonGroup group(u"Font"_s);
    QVERIFY(Input::show(&group));
    QAction action(u"Bold"_s);
    group.addAction(&action);
    group.addSeparator();
    group.addWidget(new QLineEdit);
    group.addSubgroup()->addAction(&action);
    for (int i = 0; i < 4; ++i)
        QTRY_VERIFY(itemAt(group, i)->isVisible());
    QTRY_COMPARE(buttonAt(group, 0)->height(), 72);
}

void tst_RibbonGroup::nothingIsIgnored()
{
    RibbonGroup group(u"Font"_s);
    group.addAction(static_cast<QAction *>(nullptr));
    QVERIFY(!group.addMenu(nullptr, QToolButton::InstantPopup));
    QVERIFY(!group.addWidget(nullptr));
    QCOMPARE(rowOf(group)->count(), 0);
    QVERIFY(group.actions().isEmpty());
}

void tst_RibbonGroup::aSeparatorBecomesALine()
{
    RibbonGroup group(u"Font"_s);
    const QAction *action = group.addSeparator();
    QVERIFY(action->isSeparator());
    QVERIFY(group.actions().contains(action));
    QCOMPARE(rowOf(group)->count(), 1);
    const QFrame *line = separatorAt(group, 0);
    QVERIFY(line);
    QCOMPARE(line->objectName(), u"separator"_s);
    QCOMPARE(line->frameShape(), QFrame::VLine);
    QCOMPARE(line->minimumSize(), QSize(1, 80));
    QCOMPARE(line->maximumSize(), QSize(1, 80));
    QCOMPARE(line->parent(), &group);
}

void tst_RibbonGroup::theGroupOwnsTheActionsOfItsSeparators()
{
    auto group = std::make_unique<RibbonGroup>(u"Font"_s);
    const QPointer<QAction> action = group->addSeparator();
    QVERIFY(action);
    group.reset();
    QVERIFY(!action);
}

void tst_RibbonGroup::aSeparatorOfTheCallerBecomesALineToo()
{
    RibbonGroup group(u"Font"_s);
    QAction action;
    action.setSeparator(true);
    group.addAction(&action);
    QVERIFY(!buttonAt(group, 0));
    QCOMPARE(separatorAt(group, 0)->objectName(), u"separator"_s);
}

void tst_RibbonGroup::anAddedMenuGetsItsButton_data()
{
    addModes();
}

void tst_RibbonGroup::anAddedMenuGetsItsButton()
{
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    RibbonGroup group(u"Font"_s);
    QMenu menu(u"Styles"_s);
    const QAction *action = group.addMenu(&menu, mode);
    QCOMPARE(action, menu.menuAction());
    QVERIFY(group.actions().contains(action));
    QCOMPARE(rowOf(group)->count(), 1);
    const RibbonButton *button = buttonAt(group, 0);
    QVERIFY(button);
    QCOMPARE(button->parent(), &group);
    QCOMPARE(button->defaultAction(), action);
    QCOMPARE(button->popupMode(), mode);
    QCOMPARE(button->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
}

void tst_RibbonGroup::theModeOfAMenuHoldsForLaterButtons_data()
{
    addModes();
}

void tst_RibbonGroup::theModeOfAMenuHoldsForLaterButtons()
{
    QFETCH(const QToolButton::ToolButtonPopupMode, mode);
    RibbonGroup group(u"Font"_s);
    QMenu first(u"Styles"_s);
    QMenu last(u"Colours"_s);
    QAction plain(u"Bold"_s);
    QAction withMenu(u"Size"_s);
    withMenu.setMenu(&first);

    group.addMenu(&first, mode);
    group.addAction(&plain);
    group.addAction(&withMenu);
    QCOMPARE(buttonAt(group, 1)->popupMode(), mode);
    QCOMPARE(buttonAt(group, 2)->popupMode(), mode);

    group.addMenu(&last, QToolButton::DelayedPopup);
    group.addAction(&plain);
    QCOMPARE(buttonAt(group, 3)->popupMode(), QToolButton::DelayedPopup);
    QCOMPARE(buttonAt(group, 4)->popupMode(), QToolButton::DelayedPopup);
    QCOMPARE(buttonAt(group, 1)->popupMode(), mode);
}

void tst_RibbonGroup::theModeOfAMenuLeavesEarlierButtonsAlone()
{
    RibbonGroup group(u"Font"_s);
    QAction plain(u"Bold"_s);
    QMenu menu(u"Styles"_s);
    QAction withMenu(u"Size"_s);
    withMenu.setMenu(&menu);
    group.addAction(&plain);
    group.addAction(&withMenu);
    group.addMenu(&menu, QToolButton::InstantPopup);
    QCOMPARE(buttonAt(group, 0)->popupMode(), QToolButton::DelayedPopup);
    QCOMPARE(buttonAt(group, 1)->popupMode(), QToolButton::DelayedPopup);
}

void tst_RibbonGroup::addingNoMenuKeepsTheMode()
{
    RibbonGroup group(u"Font"_s);
    QAction plain(u"Bold"_s);
    group.addMenu(nullptr, QToolButton::InstantPopup);
    group.addAction(&plain);
    QCOMPARE(buttonAt(group, 0)->popupMode(), QToolButton::DelayedPopup);
}

void tst_RibbonGroup::aMenuStaysTheCallersWithoutAShadow()
{
    const auto menu = std::make_unique<QMenu>(u"Styles"_s);
    const Qt::WindowFlags before = menu->windowFlags();
    QVERIFY(!before.testFlag(Qt::NoDropShadowWindowHint));
    {
        RibbonGroup group(u"Font"_s);
        group.addMenu(menu.get(), QToolButton::InstantPopup);
        QCOMPARE(menu->windowFlags(), before | Qt::NoDropShadowWindowHint);
        QVERIFY(!menu->parent());
        QVERIFY(!menu->isVisible());
    }
    QVERIFY(!menu->menuAction()->parent() || menu->menuAction()->parent() == menu.get());
}

void tst_RibbonGroup::aMenuOpensAndItsEntryIsTriggered()
{
    RibbonGroup group(u"Font"_s);
    QMenu menu(u"Styles"_s);
    menu.addAction(u"Heading"_s);
    QAction *entry = menu.addAction(u"Quotation"_s);
    group.addMenu(&menu, QToolButton::InstantPopup);
    const QSignalSpy triggered(entry, &QAction::triggered);
    QVERIFY(Input::show(&group));

    PopupDriver driver([&](QMenu *open) {
        QCOMPARE(open, &menu);
        Input::release(buttonAt(group, 0));
        QVERIFY(open->isVisible());
        Input::click(open, open->actionGeometry(entry).center());
    });
    Input::press(buttonAt(group, 0));

    QVERIFY(driver.hasRun());
    QCOMPARE(triggered.size(), 1);
    QVERIFY(!menu.isVisible());
    QVERIFY(!buttonAt(group, 0)->isDown());
}

void tst_RibbonGroup::anAddedWidgetIsEmbedded()
{
    RibbonGroup group(u"Font"_s);
    auto *edit = new QLineEdit;
    QAction *action = group.addWidget(edit);
    const auto *widgetAction = qobject_cast<QWidgetAction *>(action);
    QVERIFY(widgetAction);
    QCOMPARE(action->parent(), &group);
    QCOMPARE(widgetAction->defaultWidget(), edit);
    QVERIFY(group.actions().contains(action));
    QCOMPARE(rowOf(group)->count(), 1);
    QCOMPARE(itemAt(group, 0), edit);
    QCOMPARE(edit->parent(), &group);
    QVERIFY(!edit->isHidden());
    QVERIFY(Input::show(&group));
    QVERIFY(edit->isVisible());
}

void tst_RibbonGroup::theGroupOwnsAnAddedWidget()
{
    auto group = std::make_unique<RibbonGroup>(u"Font"_s);
    const QPointer<QLineEdit> edit = new QLineEdit;
    const QPointer<QAction> action = group->addWidget(edit);
    group.reset();
    QVERIFY(!edit);
    QVERIFY(!action);
}

void tst_RibbonGroup::aWidgetActionMovesIntoTheGroup()
{
    QObject owner;
    RibbonGroup group(u"Font"_s);
    const QPointer<FindAction> action = new FindAction(&owner);
    group.addAction(action);
    QCOMPARE(action->parent(), &group);
    const auto *edit = qobject_cast<QLineEdit *>(itemAt(group, 0));
    QVERIFY(edit);
    QCOMPARE(edit->parent(), &group);
    QVERIFY(!edit->isHidden());
    delete action;
    QCOMPARE(rowOf(group)->count(), 0);
}

void tst_RibbonGroup::aWidgetActionOfTwoGroupsHasAWidgetInEach()
{
    RibbonGroup one(u"Font"_s);
    RibbonGroup other(u"Style"_s);
    auto *action = new FindAction(nullptr);
    one.addAction(action);
    other.addAction(action);
    QVERIFY(qobject_cast<QLineEdit *>(itemAt(one, 0)));
    QVERIFY(qobject_cast<QLineEdit *>(itemAt(other, 0)));
    QVERIFY(itemAt(one, 0) != itemAt(other, 0));
    QCOMPARE(action->parent(), &other);
}

void tst_RibbonGroup::aDefaultWidgetInUseElsewhereIsNotEmbedded()
{
    RibbonGroup one(u"Font"_s);
    RibbonGroup other(u"Style"_s);
    auto *edit = new QLineEdit;
    QAction *action = one.addWidget(edit);
    other.addAction(action);
    QCOMPARE(itemAt(one, 0), edit);
    QCOMPARE(rowOf(other)->count(), 0);
}

void tst_RibbonGroup::anEmbeddedWidgetWorks()
{
    RibbonGroup group(u"Font"_s);
    auto *edit = new QLineEdit;
    group.addWidget(edit);
    QVERIFY(Input::show(&group));
    Input::click(edit);
    QVERIFY(edit->hasFocus());
    QTest::keyClicks(edit, u"Serif"_s);
    QCOMPARE(edit->text(), u"Serif"_s);
}

void tst_RibbonGroup::subgroupsStandInTheRow()
{
    RibbonGroup group(u"Font"_s);
    RibbonSubgroup *first = group.addSubgroup();
    RibbonSubgroup *second = group.addSubgroup();
    QCOMPARE(first->parent(), &group);
    QCOMPARE(rowOf(group)->count(), 2);
    QCOMPARE(itemAt(group, 0), first);
    QCOMPARE(itemAt(group, 1), second);
    QVERIFY(group.actions().isEmpty());
    QCOMPARE(group.subgroup(0), first);
    QCOMPARE(group.subgroup(1), second);
    QCOMPARE(group.indexOfSubgroup(first), 0);
    QCOMPARE(group.indexOfSubgroup(second), 1);
}

void tst_RibbonGroup::subgroupGivesNothingOutOfRange_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("just behind") << 2;
    QTest::newRow("far behind") << 1000;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("minus one") << -1;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

void tst_RibbonGroup::subgroupGivesNothingOutOfRange()
{
    QFETCH(const int, index);
    RibbonGroup group(u"Font"_s);
    group.addSubgroup();
    group.addSubgroup();
    QVERIFY(!group.subgroup(index));
}

void tst_RibbonGroup::indexOfSubgroupFindsSubgroupsOnly()
{
    RibbonGroup group(u"Font"_s);
    group.addSubgroup();
    RibbonGroup other(u"Style"_s);
    RibbonSubgroup loose(&group);
    QCOMPARE(group.indexOfSubgroup(other.addSubgroup()), -1);
    QCOMPARE(group.indexOfSubgroup(&loose), -1);
    QCOMPARE(group.indexOfSubgroup(nullptr), -1);
}

void tst_RibbonGroup::aDeletedSubgroupKeepsTheIndexesOfTheOthers()
{
    RibbonGroup group(u"Font"_s);
    RibbonSubgroup *first = group.addSubgroup();
    RibbonSubgroup *second = group.addSubgroup();
    delete first;
    QVERIFY(!group.subgroup(0));
    QCOMPARE(group.subgroup(1), second);
    QCOMPARE(group.indexOfSubgroup(second), 1);
    QCOMPARE(group.indexOfSubgroup(nullptr), -1);
    QCOMPARE(rowOf(group)->count(), 1);
    const RibbonSubgroup *third = group.addSubgroup();
    QCOMPARE(group.subgroup(2), third);
}

void tst_RibbonGroup::aClickTriggersTheAction()
{
    RibbonGroup group(u"Font"_s);
    QAction action(u"Bold"_s);
    group.addAction(&action);
    const QSignalSpy triggered(&action, &QAction::triggered);
    QVERIFY(Input::show(&group));
    Input::click(buttonAt(group, 0));
    QCOMPARE(triggered.size(), 1);
}

void tst_RibbonGroup::aShortcutTriggersTheActionOnce()
{
    RibbonGroup group(u"Font"_s);
    QAction action(u"Bold"_s);
    action.setShortcut(Qt::CTRL | Qt::Key_B);
    group.addAction(&action);
    const QSignalSpy triggered(&action, &QAction::triggered);
    QVERIFY(Input::show(&group));
    QTest::keyClick(&group, Qt::Key_B, Qt::ControlModifier);
    QCOMPARE(triggered.size(), 1);
}

void tst_RibbonGroup::changesOfAnActionAddNothing()
{
    RibbonGroup group(u"Font"_s);
    QAction action(u"Bold"_s);
    group.addAction(&action);
    const QAction *separator = group.addSeparator();
    action.setText(u"Very bold"_s);
    action.setEnabled(false);
    action.setSeparator(true);
    QVERIFY(separator);
    QCOMPARE(rowOf(group)->count(), 2);
    QVERIFY(buttonAt(group, 0));
    QCOMPARE(buttonAt(group, 0)->text(), u"Very bold"_s);
}

void tst_RibbonGroup::aRemovedActionLeavesItsButton()
{
    RibbonGroup group(u"Font"_s);
    QAction action(u"Bold"_s);
    group.addAction(&action);
    const QPointer<QAction> separator = group.addSeparator();
    const QSignalSpy triggered(&action, &QAction::triggered);
    group.removeAction(&action);
    group.removeAction(separator);
    QVERIFY(group.actions().isEmpty());
    QCOMPARE(rowOf(group)->count(), 2);
    QVERIFY(Input::show(&group));
    QVERIFY(itemAt(group, 1)->isVisible());
    Input::click(buttonAt(group, 0));
    QCOMPARE(triggered.size(), 1);

    group.addAction(&action);
    QCOMPARE(rowOf(group)->count(), 3);
}

void tst_RibbonGroup::aDeletedActionLeavesItsButton()
{
    RibbonGroup group(u"Font"_s);
    auto action = std::make_unique<QAction>(u"Bold"_s);
    group.addAction(action.get());
    QVERIFY(Input::show(&group));
    action.reset();
    QCOMPARE(rowOf(group)->count(), 1);
    QVERIFY(buttonAt(group, 0)->isVisible());
    QVERIFY(!buttonAt(group, 0)->defaultAction());
    Input::click(buttonAt(group, 0));
    QVERIFY(!group.grab().isNull());
}

void tst_RibbonGroup::anActionMayBeDeletedWhenTriggered()
{
    RibbonGroup group(u"Font"_s);
    QPointer<QAction> action = new QAction(u"Bold"_s);
    group.addAction(action);
    connect(action, &QAction::triggered, this, [action] { delete action; });
    QVERIFY(Input::show(&group));
    Input::click(buttonAt(group, 0));
    QVERIFY(!action);
    QVERIFY(buttonAt(group, 0));
    Input::click(buttonAt(group, 0));
    QVERIFY(!group.grab().isNull());
}

void tst_RibbonGroup::theGroupMayBeDeletedWhenAnActionIsTriggered()
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    QPointer<RibbonGroup> group = new RibbonGroup(u"Font"_s);
    layout->addWidget(group);
    QAction action(u"Bold"_s);
    group->addAction(&action);
    connect(&action, &QAction::triggered, this, [group] { delete group; });
    QVERIFY(Input::show(&window));
    Input::click(buttonAt(*group, 0));
    QVERIFY(!group);
}

void tst_RibbonGroup::aDeletedMenuLeavesItsButton()
{
    RibbonGroup group(u"Font"_s);
    auto menu = std::make_unique<QMenu>(u"Styles"_s);
    group.addMenu(menu.get(), QToolButton::InstantPopup);
    QVERIFY(Input::show(&group));
    menu.reset();
    QCOMPARE(rowOf(group)->count(), 1);
    const PopupBan ban;
    Input::click(buttonAt(group, 0));
    QVERIFY(!group.grab().isNull());
}

void tst_RibbonGroup::aMenuMayBeDeletedWhileItIsOpen()
{
    RibbonGroup group(u"Font"_s);
    QPointer<QMenu> menu = new QMenu(u"Styles"_s);
    menu->addAction(u"Heading"_s);
    group.addMenu(menu, QToolButton::InstantPopup);
    QVERIFY(Input::show(&group));
    // Qt's tool button disconnects from the menu afterwards, whether it is still there or not.
    QTest::ignoreMessage(QtWarningMsg, "QObject::disconnect: Unexpected nullptr parameter");
    QTest::ignoreMessage(QtWarningMsg, "QObject::disconnect: Unexpected nullptr parameter");
    PopupDriver driver([](QMenu *open) { delete open; });
    Input::press(buttonAt(group, 0));
    Input::release(buttonAt(group, 0));
    QVERIFY(driver.hasRun());
    QVERIFY(!menu);
    QVERIFY(!buttonAt(group, 0)->isDown());
    QVERIFY(!group.grab().isNull());
}

void tst_RibbonGroup::hidingAnActionHidesItsButton()
{
    GroupWindow shown;
    RibbonGroup &group = *shown.group;
    QAction first(u"A"_s);
    QAction second(u"B"_s);
    group.addAction(&first);
    group.addAction(&second);
    QVERIFY(Input::show(&shown.window));
    first.setVisible(false);
    QVERIFY(!buttonAt(group, 0)->isVisible());
    QTRY_COMPARE(buttonAt(group, 1)->x(), 0);
    first.setVisible(true);
    QVERIFY(buttonAt(group, 0)->isVisible());
    QTRY_COMPARE(buttonAt(group, 1)->x(), 40);
}

void tst_RibbonGroup::anActionHiddenFromTheStartHasAHiddenButton()
{
    GroupWindow shown;
    RibbonGroup &group = *shown.group;
    QAction first(u"A"_s);
    QAction second(u"B"_s);
    first.setVisible(false);
    group.addAction(&first);
    group.addAction(&second);
    QVERIFY(Input::show(&shown.window));
    QVERIFY(!buttonAt(group, 0)->isVisible());
    QCOMPARE(buttonAt(group, 1)->x(), 0);
    first.setVisible(true);
    QVERIFY(buttonAt(group, 0)->isVisible());
    QTRY_COMPARE(buttonAt(group, 1)->x(), 40);
    QCOMPARE(buttonAt(group, 0)->size(), QSize(36, 72));
}

void tst_RibbonGroup::aDisabledActionHasADisabledButton()
{
    RibbonGroup group(u"Font"_s);
    QAction action(u"Bold"_s);
    action.setEnabled(false);
    group.addAction(&action);
    const QSignalSpy triggered(&action, &QAction::triggered);
    QVERIFY(Input::show(&group));
    QVERIFY(!buttonAt(group, 0)->isEnabled());
    Input::click(buttonAt(group, 0));
    QCOMPARE(triggered.size(), 0);
    action.setEnabled(true);
    QVERIFY(buttonAt(group, 0)->isEnabled());
    Input::click(buttonAt(group, 0));
    QCOMPARE(triggered.size(), 1);
}

void tst_RibbonGroup::aCheckableActionTogglesWithItsButton()
{
    RibbonGroup group(u"Font"_s);
    QAction action(u"Bold"_s);
    action.setCheckable(true);
    group.addAction(&action);
    const QSignalSpy toggled(&action, &QAction::toggled);
    QVERIFY(Input::show(&group));
    Input::click(buttonAt(group, 0));
    QVERIFY(action.isChecked());
    QVERIFY(buttonAt(group, 0)->isChecked());
    Input::click(buttonAt(group, 0));
    QVERIFY(!action.isChecked());
    QVERIFY(!buttonAt(group, 0)->isChecked());
    action.setChecked(true);
    QVERIFY(buttonAt(group, 0)->isChecked());
    QCOMPARE(QList<QVariantList>(toggled), QList<QVariantList>({{true}, {false}, {true}}));
}

void tst_RibbonGroup::actionsOutliveTheGroup()
{
    QAction action(u"Bold"_s);
    QMenu menu(u"Styles"_s);
    menu.addAction(u"Title"_s); // newer versions of Qt do not open empty menus
    {
        RibbonGroup group(u"Font"_s);
        group.addAction(&action);
        group.addMenu(&menu, QToolButton::InstantPopup);
        QVERIFY(Input::show(&group));
    }
    action.setVisible(false);
    action.setText(u"Very bold"_s);
    action.trigger();
    PopupDriver driver([](QMenu *open) { open->close(); });
    menu.popup(QPoint(50, 50));
    QTRY_VERIFY(driver.hasRun());
}

QTEST_MAIN(tst_RibbonGroup)

#include "tst_ribbongroup.moc"
