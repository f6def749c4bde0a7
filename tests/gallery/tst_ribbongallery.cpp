// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/GalleryParts.h"
#include "gallery/RibbonGallery_p.h"

#include "support/TestCase.h"

#include <QAccessible>
#include <QIcon>
#include <QMetaMethod>
#include <QPointer>
#include <QSignalSpy>
#include <QWidgetAction>

#include <memory>
#include <type_traits>

using namespace Qt::StringLiterals;
using namespace GalleryParts;
using namespace VornFrame;

namespace {

/// A gallery with a record of its own.
class OtherGallery : public RibbonGallery
{
public:
    OtherGallery() : OtherGallery(new RibbonGalleryPrivate) {}

    bool wasEmpty() const { return m_wasEmpty; }

private:
    explicit OtherGallery(RibbonGalleryPrivate *d)
        : RibbonGallery(*d, nullptr), m_wasEmpty(children().isEmpty())
    {
        d->init();
    }

    bool m_wasEmpty;
};

QString nameOf(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

} // namespace

class tst_RibbonGallery : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAWidgetInTheNamespace();
    void declaresOneSignal();
    void itsRecordStartsAsPromised();
    void belongsToItsParent();
    void subclassesMayBringTheirRecord();
    void frameAndButtonStandInARow();
    void frameHoldsTheStrip();
    void buttonHasItsPictureAndNoFocus();
    void menuHoldsThePopup();
    void buttonAndTilesHaveNames();

    void groupsAreCounted();
    void sameNameTwiceMakesTwoGroups();
    void itemsOfOneNameComeIntoOneGroup();
    void itemsByNameComeIntoTheFirstGroupOfThatName();
    void groupsAreFoundByTheirExactName_data();
    void groupsAreFoundByTheirExactName();
    void indexOfAnItemIsThatInItsGroup();
    void invalidGroupsAndActionsGiveMinusOne_data();
    void invalidGroupsAndActionsGiveMinusOne();
    void nullActionByNameStillMakesTheGroup();

    void triggeredActionIsReported();
    void actionOfNoGroupIsReportedToo_data();
    void actionOfNoGroupIsReportedToo();
    void actionAddedTwiceIsReportedTwice();
    void checkableActionIsReportedEachTime();
    void otherActionsAreNotReported();

    void sizesHoldForItemsAddedAfterwards();
    void sizesOutOfRangeAreBounded_data();
    void sizesOutOfRangeAreBounded();
    void favouritesTakeTheSizesOfTheirMoment();

    void nothingCanBeCollectedAtFirst();
    void collectedItemsAreFavourites();
    void onlyExistingItemsCanBeCollected_data();
    void onlyExistingItemsCanBeCollected();
    void itemsAddedBeforehandTakeNoPart();
    void itemsAddedAfterForbiddingTakeNoPart();
    void forbiddingKeepsTheFavourites();

    void stateIsEmptyButForNoDisplayCount_data();
    void stateIsEmptyButForNoDisplayCount();
    void restoringChangesNothing_data();
    void restoringChangesNothing();
};

void tst_RibbonGallery::isAWidgetInTheNamespace()
{
    QCOMPARE(QLatin1StringView(RibbonGallery::staticMetaObject.className()),
             "VornFrame::RibbonGallery"_L1);
    QCOMPARE(RibbonGallery::staticMetaObject.superClass(), &QWidget::staticMetaObject);
    QVERIFY(std::has_virtual_destructor_v<RibbonGallery>);
}

void tst_RibbonGallery::declaresOneSignal()
{
    const QMetaObject &type = RibbonGallery::staticMetaObject;
    QCOMPARE(type.methodCount() - type.methodOffset(), 1);
    const QMetaMethod signal = type.method(type.methodOffset());
    QCOMPARE(signal.methodType(), QMetaMethod::Signal);
    QCOMPARE(signal.methodSignature(), QByteArray("signalTriggered(QAction*)"));
    QCOMPARE(signal.parameterNames(), QByteArrayList({"action"}));
}

void tst_RibbonGallery::itsRecordStartsAsPromised()
{
    const RibbonGalleryPrivate d;
    const std::unique_ptr<QLayout> layout(d.itemsLayout);
    const std::unique_ptr<QPushButton> button(d.popupButton);
    QVERIFY(layout && !layout->parent());
    QVERIFY(button && !button->parent());
    QCOMPARE(d.popupMenu->parent(), button.get());
    QVERIFY(!d.popup);
    QVERIFY(d.displayedActions.isEmpty());
    QVERIFY(d.items.isEmpty());
    QCOMPARE(d.iconSize, QSize(24, 24));
    QCOMPARE(d.actionSize, QSize(90, 60));
    QVERIFY(!d.collectEnabled);
    QCOMPARE(d.displayCount, 6);
    QVERIFY(!d.q_ptr);
}

void tst_RibbonGallery::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<RibbonGallery> gallery = new RibbonGallery(parent.get());
    const QPointer<RibbonGalleryPopup> popup = popupOf(gallery);
    QCOMPARE(gallery->parent(), parent.get());
    parent.reset();
    QVERIFY(!gallery);
    QVERIFY(!popup);
}

void tst_RibbonGallery::subclassesMayBringTheirRecord()
{
    QAction action(u"Item"_s);
    OtherGallery gallery;
    QVERIFY(gallery.wasEmpty());
    QCOMPARE(gallery.addItem(u"Styles"_s, &action), 0);
}

void tst_RibbonGallery::frameAndButtonStandInARow()
{
    const RibbonGallery gallery;
    const auto *row = qobject_cast<QHBoxLayout *>(gallery.layout());
    QVERIFY(row);
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->spacing(), 0);
    QCOMPARE(row->count(), 2);
    QCOMPARE(row->itemAt(0)->widget(), frameOf(&gallery));
    QCOMPARE(row->itemAt(1)->widget(), buttonOf(&gallery));
    QCOMPARE(frameOf(&gallery)->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(buttonOf(&gallery)->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
}

void tst_RibbonGallery::frameHoldsTheStrip()
{
    const RibbonGallery gallery;
    const auto *strip = qobject_cast<QHBoxLayout *>(frameOf(&gallery)->layout());
    QVERIFY(strip);
    QCOMPARE(strip->contentsMargins(), QMargins(5, 0, 5, 0));
    QCOMPARE(strip->spacing(), 0);
    QCOMPARE(strip->alignment(), Qt::AlignLeft);
    QCOMPARE(strip->count(), 0);
}

void tst_RibbonGallery::buttonHasItsPictureAndNoFocus()
{
    const RibbonGallery gallery;
    const QPushButton *button = buttonOf(&gallery);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QCOMPARE(button->iconSize(), QSize(17, 17));
    const QIcon expected(u":/res/downArrowNormal.svg"_s);
    QCOMPARE(button->icon().pixmap(QSize(17, 17), 1).toImage(),
             expected.pixmap(QSize(17, 17), 1).toImage());
    QVERIFY(!button->autoDefault());
}

void tst_RibbonGallery::menuHoldsThePopup()
{
    const RibbonGallery gallery;
    const QList<QAction *> actions = menuOf(&gallery)->actions();
    QCOMPARE(actions.size(), 1);
    const auto *action = qobject_cast<QWidgetAction *>(actions.at(0));
    QVERIFY(action);
    QCOMPARE(action->defaultWidget(), popupOf(&gallery));
    QCOMPARE(popupOf(&gallery)->parentWidget(), menuOf(&gallery));
}

void tst_RibbonGallery::buttonAndTilesHaveNames()
{
    GalleryWindow window;
    window.addGroup(u"Styles"_s, {u"Heading"_s});
    QVERIFY(window.showAlone());
    QCOMPARE(nameOf(buttonOf(window.gallery())), u"Show all items"_s);
    QCOMPARE(nameOf(tilesOf(window.gallery()).at(0)), u"Heading"_s);
    QCOMPARE(nameOf(popupOf(window.gallery())), u"Gallery"_s);
}

void tst_RibbonGallery::groupsAreCounted()
{
    RibbonGallery gallery;
    QVERIFY(groupsOf(&gallery).isEmpty());
    QCOMPARE(gallery.addGroup(u"First"_s), 0);
    QCOMPARE(gallery.addGroup(u"Second"_s), 1);
    QCOMPARE(gallery.addGroup(QString()), 2);
    QCOMPARE(groupsOf(&gallery).size(), 3);
    QCOMPARE(groupsOf(&gallery).at(1)->title(), u"Second"_s);
}

void tst_RibbonGallery::sameNameTwiceMakesTwoGroups()
{
    RibbonGallery gallery;
    QCOMPARE(gallery.addGroup(u"Styles"_s), 0);
    QCOMPARE(gallery.addGroup(u"Styles"_s), 1);
    QCOMPARE(groupsOf(&gallery).size(), 2);
}

void tst_RibbonGallery::itemsOfOneNameComeIntoOneGroup()
{
    QAction first(u"First"_s);
    QAction second(u"Second"_s);
    RibbonGallery gallery;
    QCOMPARE(gallery.addItem(u"Styles"_s, &first), 0);
    QCOMPARE(gallery.addItem(u"Styles"_s, &second), 1);
    QCOMPARE(groupsOf(&gallery).size(), 1);
    QCOMPARE(groupsOf(&gallery).at(0)->title(), u"Styles"_s);
    QCOMPARE(textsOf(groupsOf(&gallery).at(0)), QStringList({u"First"_s, u"Second"_s}));
}

void tst_RibbonGallery::itemsByNameComeIntoTheFirstGroupOfThatName()
{
    QAction action(u"Item"_s);
    RibbonGallery gallery;
    for (const QString &name : {u"Other"_s, u"Styles"_s, u"Styles"_s})
        gallery.addGroup(name);
    gallery.addItem(u"Styles"_s, &action);
    QCOMPARE(groupsOf(&gallery).at(1)->count(), 1);
    QCOMPARE(groupsOf(&gallery).at(2)->count(), 0);
}

void tst_RibbonGallery::groupsAreFoundByTheirExactName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("other case") << u"styles"_s;
    QTest::newRow("beginning") << u"Style"_s;
    QTest::newRow("more") << u"Styles "_s;
    QTest::newRow("empty") << QString();
    QTest::newRow("favourites") << u"collected"_s;
}

void tst_RibbonGallery::groupsAreFoundByTheirExactName()
{
    QFETCH(const QString, name);
    QAction action(u"Item"_s);
    RibbonGallery gallery;
    gallery.addGroup(u"Styles"_s);
    QCOMPARE(gallery.addItem(name, &action), 0);
    const auto groups = popupOf(&gallery)->findChildren<RibbonGalleryGroup *>();
    QCOMPARE(groups.size(), 3);
    QCOMPARE(groups.constLast()->title(), name);
    QCOMPARE(groups.constLast()->count(), 1);
}

void tst_RibbonGallery::indexOfAnItemIsThatInItsGroup()
{
    QAction action(u"Item"_s);
    RibbonGallery gallery;
    gallery.addGroup(u"First"_s);
    gallery.addGroup(u"Second"_s);
    QCOMPARE(gallery.addItem(0, &action), 0);
    QCOMPARE(gallery.addItem(0, &action), 1);
    QCOMPARE(gallery.addItem(1, &action), 0);
    QCOMPARE(gallery.addItem(u"First"_s, &action), 2);
}

void tst_RibbonGallery::invalidGroupsAndActionsGiveMinusOne_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<bool>("hasAction");
    QTest::newRow("negative group") << -1 << true;
    QTest::newRow("group behind") << 2 << true;
    QTest::newRow("group far behind") << 5 << true;
    QTest::newRow("null action") << 0 << false;
    QTest::newRow("null action, no group") << 5 << false;
}

void tst_RibbonGallery::invalidGroupsAndActionsGiveMinusOne()
{
    QFETCH(const int, group);
    QFETCH(const bool, hasAction);
    QAction action(u"Item"_s);
    RibbonGallery gallery;
    gallery.addGroup(u"First"_s);
    gallery.addGroup(u"Second"_s);
    QCOMPARE(gallery.addItem(group, hasAction ? &action : nullptr), -1);
    QCOMPARE(groupsOf(&gallery).at(0)->count(), 0);
    QCOMPARE(groupsOf(&gallery).at(1)->count(), 0);
    QCOMPARE(groupsOf(&gallery).size(), 2);
}

void tst_RibbonGallery::nullActionByNameStillMakesTheGroup()
{
    RibbonGallery gallery;
    QCOMPARE(gallery.addItem(u"Styles"_s, nullptr), -1);
    QCOMPARE(groupsOf(&gallery).size(), 1);
    QCOMPARE(groupsOf(&gallery).at(0)->count(), 0);
}

void tst_RibbonGallery::triggeredActionIsReported()
{
    QAction action(u"Item"_s);
    RibbonGallery gallery;
    gallery.addItem(u"Styles"_s, &action);
    const QSignalSpy spy(&gallery, &RibbonGallery::signalTriggered);
    action.trigger();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).value<QAction *>(), &action);
}

void tst_RibbonGallery::actionOfNoGroupIsReportedToo_data()
{
    QTest::addColumn<int>("group");
    QTest::newRow("behind") << 5;
    QTest::newRow("negative") << -1;
}

void tst_RibbonGallery::actionOfNoGroupIsReportedToo()
{
    QFETCH(const int, group);
    QAction action(u"Item"_s);
    RibbonGallery gallery;
    gallery.addGroup(u"First"_s);
    gallery.addGroup(u"Second"_s);
    const QSignalSpy spy(&gallery, &RibbonGallery::signalTriggered);
    QCOMPARE(gallery.addItem(group, &action), -1);
    action.trigger();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).value<QAction *>(), &action);
}

void tst_RibbonGallery::actionAddedTwiceIsReportedTwice()
{
    QAction action(u"Item"_s);
    RibbonGallery gallery;
    gallery.addItem(u"First"_s, &action);
    gallery.addItem(u"Second"_s, &action);
    const QSignalSpy spy(&gallery, &RibbonGallery::signalTriggered);
    action.trigger();
    QCOMPARE(spy.size(), 2);
    gallery.addItem(9, &action);
    action.trigger();
    QCOMPARE(spy.size(), 5);
}

void tst_RibbonGallery::checkableActionIsReportedEachTime()
{
    QAction action(u"Item"_s);
    action.setCheckable(true);
    RibbonGallery gallery;
    gallery.addItem(u"Styles"_s, &action);
    const QSignalSpy spy(&gallery, &RibbonGallery::signalTriggered);
    action.trigger();
    action.trigger();
    QCOMPARE(spy.size(), 2);
    action.setChecked(true);
    QCOMPARE(spy.size(), 2);
}

void tst_RibbonGallery::otherActionsAreNotReported()
{
    QAction action(u"Item"_s);
    QAction other(u"Other"_s);
    QAction disabled(u"Disabled"_s);
    disabled.setEnabled(false);
    RibbonGallery gallery;
    gallery.addItem(u"Styles"_s, &action);
    gallery.addItem(u"Styles"_s, &disabled);
    const QSignalSpy spy(&gallery, &RibbonGallery::signalTriggered);
    other.trigger();
    disabled.trigger();
    QCOMPARE(spy.size(), 0);
}

void tst_RibbonGallery::sizesHoldForItemsAddedAfterwards()
{
    GalleryWindow window;
    window.addGroup(u"Styles"_s, {u"Before"_s});
    window.gallery()->setIconSize(QSize(32, 16));
    window.gallery()->setActionSize(QSize(70, 50));
    window.addItem(0, u"After"_s);
    const RibbonGalleryGroup *group = groupsOf(window.gallery()).at(0);
    QCOMPARE(group->item(0)->iconSize(), QSize(24, 24));
    QCOMPARE(group->item(1)->iconSize(), QSize(32, 16));
    for (const int i : {0, 1}) {
        QCOMPARE(group->item(i)->minimumSize(), i == 0 ? QSize(90, 60) : QSize(70, 50));
        QCOMPARE(group->item(i)->maximumSize(), group->item(i)->minimumSize());
    }
}

void tst_RibbonGallery::sizesOutOfRangeAreBounded_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("bounded");
    QTest::newRow("negative") << QSize(-5, 10) << QSize(0, 10);
    QTest::newRow("invalid") << QSize() << QSize(0, 0);
    QTest::newRow("too large") << QSize(10, 1 << 30) << QSize(10, QWIDGETSIZE_MAX);
}

void tst_RibbonGallery::sizesOutOfRangeAreBounded()
{
    QFETCH(const QSize, size);
    QFETCH(const QSize, bounded);
    QAction action(u"Item"_s);
    RibbonGallery gallery;
    gallery.setActionSize(size);
    gallery.addItem(u"Styles"_s, &action);
    QCOMPARE(groupsOf(&gallery).at(0)->item(0)->maximumSize(), bounded);
}

void tst_RibbonGallery::favouritesTakeTheSizesOfTheirMoment()
{
    GalleryWindow window;
    RibbonGallery *gallery = window.gallery();
    gallery->setCollectEnabled(true);
    window.addGroup(u"Styles"_s, {u"First"_s, u"Second"_s});
    gallery->setIconSize(QSize(16, 16));
    gallery->setActionSize(QSize(50, 40));
    QVERIFY(gallery->setItemCollected(0, 0, true));
    gallery->setIconSize(QSize(8, 8));
    gallery->setActionSize(QSize(30, 20));
    QVERIFY(gallery->setItemCollected(0, 1, true));

    const RibbonGalleryGroup *favourites = favouritesOf(gallery);
    QCOMPARE(favourites->item(0)->iconSize(), QSize(16, 16));
    QCOMPARE(favourites->item(0)->minimumSize(), QSize(50, 40));
    QCOMPARE(favourites->item(1)->iconSize(), QSize(8, 8));
    QCOMPARE(favourites->item(1)->minimumSize(), QSize(30, 20));
    for (const int i : {0, 1}) {
        QCOMPARE(groupsOf(gallery).at(0)->item(i)->iconSize(), QSize(24, 24));
        QCOMPARE(groupsOf(gallery).at(0)->item(i)->minimumSize(), QSize(90, 60));
    }
}

void tst_RibbonGallery::nothingCanBeCollectedAtFirst()
{
    GalleryWindow window;
    window.addGroup(u"Styles"_s, {u"First"_s});
    QVERIFY(!window.gallery()->setItemCollected(0, 0, true));
    QVERIFY(!window.gallery()->setItemCollected(0, 0, false));
    QVERIFY(!groupsOf(window.gallery()).at(0)->isItemCollected(0));
    QCOMPARE(favouritesOf(window.gallery())->count(), 0);
}

void tst_RibbonGallery::collectedItemsAreFavourites()
{
    GalleryWindow window;
    window.gallery()->setCollectEnabled(true);
    window.addGroup(u"Styles"_s, {u"First"_s, u"Second"_s});
    QVERIFY(window.gallery()->setItemCollected(0, 1, true));
    QCOMPARE(textsOf(favouritesOf(window.gallery())), QStringList{u"Second"_s});
    QVERIFY(groupsOf(window.gallery()).at(0)->isItemCollected(1));
    QVERIFY(window.gallery()->setItemCollected(0, 1, false));
    QCOMPARE(favouritesOf(window.gallery())->count(), 0);
    QVERIFY(!groupsOf(window.gallery()).at(0)->isItemCollected(1));
}

void tst_RibbonGallery::onlyExistingItemsCanBeCollected_data()
{
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("item");
    QTest::addColumn<bool>("result");
    QTest::newRow("first") << 0 << 0 << true;
    QTest::newRow("last") << 1 << 1 << true;
    QTest::newRow("negative group") << -1 << 0 << false;
    QTest::newRow("group behind") << 2 << 0 << false;
    QTest::newRow("negative item") << 0 << -1 << false;
    QTest::newRow("item behind") << 1 << 2 << false;
}

void tst_RibbonGallery::onlyExistingItemsCanBeCollected()
{
    QFETCH(const int, group);
    QFETCH(const int, item);
    QFETCH(const bool, result);
    GalleryWindow window;
    window.gallery()->setCollectEnabled(true);
    window.addGroup(u"First"_s, 1);
    window.addGroup(u"Second"_s, 2);
    QCOMPARE(window.gallery()->setItemCollected(group, item, true), result);
    QCOMPARE(favouritesOf(window.gallery())->count(), result ? 1 : 0);
    QCOMPARE(window.gallery()->setItemCollected(group, item, false), result);
    QCOMPARE(favouritesOf(window.gallery())->count(), 0);
}

void tst_RibbonGallery::itemsAddedBeforehandTakeNoPart()
{
    GalleryWindow window;
    window.addGroup(u"Styles"_s, {u"Before"_s});
    window.gallery()->setCollectEnabled(true);
    window.addItem(0, u"After"_s);
    QVERIFY(window.gallery()->setItemCollected(0, 0, true));
    QCOMPARE(favouritesOf(window.gallery())->count(), 0);
    QVERIFY(window.gallery()->setItemCollected(0, 1, true));
    QCOMPARE(favouritesOf(window.gallery())->count(), 1);
}

void tst_RibbonGallery::itemsAddedAfterForbiddingTakeNoPart()
{
    GalleryWindow window;
    window.gallery()->setCollectEnabled(true);
    window.gallery()->setCollectEnabled(false);
    window.addGroup(u"Styles"_s, {u"First"_s});
    window.gallery()->setCollectEnabled(true);
    QVERIFY(window.gallery()->setItemCollected(0, 0, true));
    QCOMPARE(favouritesOf(window.gallery())->count(), 0);
}

void tst_RibbonGallery::forbiddingKeepsTheFavourites()
{
    GalleryWindow window;
    window.gallery()->setCollectEnabled(true);
    window.addGroup(u"Styles"_s, {u"First"_s});
    QVERIFY(window.gallery()->setItemCollected(0, 0, true));
    window.gallery()->setCollectEnabled(false);
    QVERIFY(!window.gallery()->setItemCollected(0, 0, false));
    QCOMPARE(favouritesOf(window.gallery())->count(), 1);
}

void tst_RibbonGallery::stateIsEmptyButForNoDisplayCount_data()
{
    QTest::addColumn<QList<int>>("counts");
    QTest::addColumn<QByteArray>("state");
    QTest::newRow("fresh") << QList<int>() << QByteArray();
    QTest::newRow("0") << QList<int>{0} << QByteArray("AAAA");
    QTest::newRow("1") << QList<int>{1} << QByteArray();
    QTest::newRow("negative") << QList<int>{-1} << QByteArray();
    QTest::newRow("0, then 6") << QList<int>{0, 6} << QByteArray();
}

void tst_RibbonGallery::stateIsEmptyButForNoDisplayCount()
{
    QFETCH(const QList<int>, counts);
    QFETCH(const QByteArray, state);
    GalleryWindow window;
    for (const int count : counts)
        window.gallery()->setDispalyCount(count);
    QCOMPARE(window.gallery()->saveState(), state);
    window.gallery()->setCollectEnabled(true);
    window.addGroup(u"Styles"_s, {u"First"_s});
    window.gallery()->setItemCollected(0, 0, true);
    QCOMPARE(window.gallery()->saveState(), state);
}

void tst_RibbonGallery::restoringChangesNothing_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("state of no display count") << QByteArray("AAAA");
    QTest::newRow("zeros") << QByteArray(4, '\0');
    QTest::newRow("anything") << QByteArray(1000, 'x');
}

void tst_RibbonGallery::restoringChangesNothing()
{
    QFETCH(const QByteArray, state);
    GalleryWindow window;
    RibbonGallery *gallery = window.gallery();
    gallery->setCollectEnabled(true);
    window.addGroup(u"Styles"_s, {u"First"_s, u"Second"_s});
    gallery->setItemCollected(0, 1, true);
    gallery->restoreState(state);
    QCOMPARE(gallery->saveState(), QByteArray());
    QCOMPARE(textsOf(favouritesOf(gallery)), QStringList{u"Second"_s});
    QCOMPARE(textsOf(groupsOf(gallery).at(0)), QStringList({u"First"_s, u"Second"_s}));
    QVERIFY(window.showAlone());
    QCOMPARE(stripOf(gallery).mid(0, 2), QStringList({u"Second"_s, u"First"_s}));
    QCOMPARE(tilesOf(gallery).size(), 6);
}

QTEST_MAIN(tst_RibbonGallery)
#include "tst_ribbongallery.moc"
