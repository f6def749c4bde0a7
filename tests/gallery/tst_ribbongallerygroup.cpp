// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/PopupParts.h"

#include "support/ImageChecks.h"
#include "support/TestCase.h"

#include <QMetaEnum>
#include <QPointer>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using namespace PopupParts;
using namespace VornFrame;

namespace {

QIcon plainIcon(const QColor &color = Qt::red)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
}

/// A group in a window that gives it the height that it asks for.
struct GroupWindow
{
    explicit GroupWindow(Qt::LayoutDirection direction = Qt::LeftToRight,
                         const QIcon &icon = QIcon(), const QString &title = u"Shapes"_s)
        : group(new RibbonGalleryGroup(icon, title, &window))
    {
        window.setLayoutDirection(direction);
        auto *layout = new QVBoxLayout(&window);
        layout->setContentsMargins({});
        layout->addWidget(group);
        layout->addStretch();
        window.resize(400, 300);
    }

    RibbonGalleryItem *add(QAction *action, bool collectEnabled = true) const
    {
        return group->item(group->addItem(action, IconSize, TileSize, collectEnabled));
    }
    QRect areaOf(const QWidget *widget) const
    {
        return {widget->mapTo(&window, QPoint()), widget->size()};
    }

    QWidget window;
    RibbonGalleryGroup *group;
};

/// Three tiles: "a", "b", "c".
struct FilledGroup : GroupWindow
{
    explicit FilledGroup(Qt::LayoutDirection direction = Qt::LeftToRight) : GroupWindow(direction)
    {
        for (QAction *action : {&a, &b, &c})
            add(action);
    }

    QAction a{u"a"_s};
    QAction b{u"b"_s};
    QAction c{u"c"_s};
};

void addBadIndexes()
{
    QTest::addColumn<int>("index");

    QTest::newRow("just below") << -1;
    QTest::newRow("just above") << 3;
    QTest::newRow("far below") << std::numeric_limits<int>::min();
    QTest::newRow("far above") << std::numeric_limits<int>::max();
}

} // namespace

class tst_RibbonGalleryGroup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAFrameInTheNamespace();
    void belongsToItsParent();
    void positionsHaveTheirValues();

    void theTitleStandsAboveTheTiles();
    void theTitleRowHoldsItsPartsInOrder();
    void theTilesHaveAFlowLayout();
    void anIconIsShownInItsSize();
    void anIconIsCrispOnAnyScreen();
    void noIconTakesNoRoom();
    void theTitleIsPlainText_data();
    void theTitleIsPlainText();
    void moveButtonsHaveTheirIconsAndNames();

    void positionDecidesOnTheButtons_data();
    void positionDecidesOnTheButtons();
    void moveButtonsAskForTheirPosition();
    void theGroupMayBeDeletedWhenItIsMoved();
    void collectingATileEmitsNothingOfTheGroup();

    void addedItemsGetTheirValuesAndIndex();
    void anActionMayBeAddedTwice();
    void onlyTilesThatMayBeCollectedHaveAStar();
    void badIndexIsNoItem_data() { addBadIndexes(); }
    void badIndexIsNoItem();
    void anEmptyGroupHasNoItem();
    void aTileIsCollectedByItsIndex();
    void theFirstTileOfAnActionIsCollected();
    void anActionWithoutATileIsNotCollected();
    void theFirstTileOfAnActionIsRemoved();
    void aRemovedTileIsDestroyedLater();
    void aTileOfAnotherGroupIsNotRemoved();
    void aTileIsShownAndHidden();
    void updateLayoutPlacesTheTiles();
    void tilesFlowInRows();
    void aHiddenTileLeavesItsPlaceToTheNext();

    void aDeletedActionLeavesTheOthers();
    void aTriggeredActionMayDeleteItself();

    void rightToLeftMirrorsTheGroup();
};

void tst_RibbonGalleryGroup::isAFrameInTheNamespace()
{
    const QMetaObject &meta = RibbonGalleryGroup::staticMetaObject;
    QCOMPARE(QLatin1StringView(meta.className()), "VornFrame::RibbonGalleryGroup"_L1);
    QCOMPARE(meta.superClass(), &QFrame::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(),
             "signalCollect(VornFrame::RibbonGalleryItem*,bool)");
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(),
             "signalPositionChange(VornFrame::RibbonGalleryGroup::Position)");
}

void tst_RibbonGalleryGroup::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<RibbonGalleryGroup> group = new RibbonGalleryGroup({}, u"Shapes"_s,
                                                                      parent.get());
    QCOMPARE(group->parent(), parent.get());
    parent.reset();
    QVERIFY(!group);
}

void tst_RibbonGalleryGroup::positionsHaveTheirValues()
{
    QCOMPARE(int(RibbonGalleryGroup::Fixed), 0);
    QCOMPARE(int(RibbonGalleryGroup::Top), 1);
    QCOMPARE(int(RibbonGalleryGroup::Middle), 2);
    QCOMPARE(int(RibbonGalleryGroup::Bottom), 3);
    QCOMPARE(QMetaEnum::fromType<RibbonGalleryGroup::Position>().keyCount(), 4);
}

void tst_RibbonGalleryGroup::theTitleStandsAboveTheTiles()
{
    const RibbonGalleryGroup group({}, u"Shapes"_s, nullptr);
    const auto *column = qobject_cast<QVBoxLayout *>(group.layout());
    QVERIFY(column);
    QCOMPARE(column->direction(), QBoxLayout::TopToBottom);
    QCOMPARE(column->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->count(), 2);
    QVERIFY(titleFrame(&group));
    QVERIFY(itemsFrame(&group));
    QCOMPARE(column->itemAt(0)->widget(), titleFrame(&group));
    QCOMPARE(column->itemAt(1)->widget(), itemsFrame(&group));
}

void tst_RibbonGalleryGroup::theTitleRowHoldsItsPartsInOrder()
{
    const RibbonGalleryGroup group({}, u"Shapes"_s, nullptr);
    const auto *row = qobject_cast<QHBoxLayout *>(titleFrame(&group)->layout());
    QVERIFY(row);
    QCOMPARE(row->spacing(), 0);
    QCOMPARE(row->contentsMargins(), QMargins(4, 0, 4, 0));
    QCOMPARE(row->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(row->count(), 5);
    QVERIFY(iconLabel(&group));
    QVERIFY(titleLabel(&group));
    QVERIFY(row->itemAt(2)->spacerItem());
    QVERIFY(toTop(&group));
    QVERIFY(toBottom(&group));
    for (int i = 0; i < row->count(); ++i)
        QCOMPARE(row->stretch(i), i == 2 ? 1 : 0);
}

void tst_RibbonGalleryGroup::theTilesHaveAFlowLayout()
{
    const RibbonGalleryGroup group({}, u"Shapes"_s, nullptr);
    const auto *layout = dynamic_cast<RibbonGalleryLayout *>(itemsFrame(&group)->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(3, 5, 3, 5));
    QCOMPARE(layout->horizontalSpacing(), 0);
    QCOMPARE(layout->verticalSpacing(), 0);
    QCOMPARE(layout->count(), 0);
}

void tst_RibbonGalleryGroup::anIconIsShownInItsSize()
{
    QPixmap large(64, 64);
    large.fill(Qt::blue);
    const RibbonGalleryGroup group{QIcon(large), u"Shapes"_s, nullptr};
    QVERIFY(!iconLabel(&group)->isHidden());
    const QPixmap shown = iconLabel(&group)->pixmap();
    QCOMPARE(shown.deviceIndependentSize(), QSizeF(16, 16));
    QCOMPARE(shown.toImage().pixelColor(8, 8), QColor(Qt::blue));
}

void tst_RibbonGalleryGroup::anIconIsCrispOnAnyScreen()
{
    const RibbonGalleryGroup group{QIcon(u":/res/collected.svg"_s), u"Shapes"_s, nullptr};
    QCOMPARE(iconLabel(&group)->pixmap().size(), QSize(16, 16) * qRound(qApp->devicePixelRatio()));
}

void tst_RibbonGalleryGroup::noIconTakesNoRoom()
{
    GroupWindow without;
    QVERIFY(iconLabel(without.group)->isHidden());
    QVERIFY(Input::show(&without.window));
    QCOMPARE(without.areaOf(titleLabel(without.group)).left(), 4);
    GroupWindow with(Qt::LeftToRight, plainIcon());
    QVERIFY(Input::show(&with.window));
    QCOMPARE(with.areaOf(iconLabel(with.group)).left(), 4);
    QVERIFY(with.areaOf(titleLabel(with.group)).left() >= 4 + 16);
}

void tst_RibbonGalleryGroup::theTitleIsPlainText_data()
{
    QTest::addColumn<QString>("title");

    QTest::newRow("words") << u"Quick styles"_s;
    QTest::newRow("none") << QString();
    QTest::newRow("markup") << u"<b>Bold</b>"_s;
    QTest::newRow("ampersand") << u"Lines & Curves"_s;
}

void tst_RibbonGalleryGroup::theTitleIsPlainText()
{
    QFETCH(const QString, title);
    const RibbonGalleryGroup group({}, title, nullptr);
    QCOMPARE(group.title(), title);
    QCOMPARE(titleLabel(&group)->text(), title);
    QCOMPARE(titleLabel(&group)->textFormat(), Qt::PlainText);
}

void tst_RibbonGalleryGroup::moveButtonsHaveTheirIconsAndNames()
{
    const RibbonGalleryGroup group({}, u"Shapes"_s, nullptr);
    const auto picture = [](const QIcon &icon) { return icon.pixmap(QSize(16, 16), 1).toImage(); };
    QCOMPARE(picture(toTop(&group)->icon()), picture(QIcon(u":/res/toTop.svg"_s)));
    QCOMPARE(picture(toBottom(&group)->icon()), picture(QIcon(u":/res/toBottom.svg"_s)));
    QVERIFY(picture(toTop(&group)->icon()) != picture(toBottom(&group)->icon()));
    for (const QPushButton *button : {toTop(&group), toBottom(&group)}) {
        QCOMPARE(button->iconSize(), QSize(16, 16));
        QVERIFY(!button->accessibleName().isEmpty());
        QVERIFY(!button->autoDefault());
    }
    QVERIFY(toTop(&group)->accessibleName() != toBottom(&group)->accessibleName());
}

void tst_RibbonGalleryGroup::positionDecidesOnTheButtons_data()
{
    QTest::addColumn<RibbonGalleryGroup::Position>("position");
    QTest::addColumn<bool>("hasToTop");
    QTest::addColumn<bool>("hasToBottom");

    QTest::newRow("fixed") << RibbonGalleryGroup::Fixed << false << false;
    QTest::newRow("top") << RibbonGalleryGroup::Top << false << true;
    QTest::newRow("middle") << RibbonGalleryGroup::Middle << true << true;
    QTest::newRow("bottom") << RibbonGalleryGroup::Bottom << true << false;
}

void tst_RibbonGalleryGroup::positionDecidesOnTheButtons()
{
    QFETCH(const RibbonGalleryGroup::Position, position);
    QFETCH(const bool, hasToTop);
    QFETCH(const bool, hasToBottom);
    GroupWindow shown;
    QVERIFY(Input::show(&shown.window));
    // From every other position too.
    for (const RibbonGalleryGroup::Position former :
         {RibbonGalleryGroup::Fixed, RibbonGalleryGroup::Middle, position}) {
        shown.group->setPosition(former);
        shown.group->setPosition(position);
        QCOMPARE(toTop(shown.group)->isVisible(), hasToTop);
        QCOMPARE(toBottom(shown.group)->isVisible(), hasToBottom);
    }
}

void tst_RibbonGalleryGroup::moveButtonsAskForTheirPosition()
{
    GroupWindow shown;
    shown.group->setPosition(RibbonGalleryGroup::Middle);
    QList<RibbonGalleryGroup::Position> log;
    connect(shown.group, &RibbonGalleryGroup::signalPositionChange, this,
            [&log](RibbonGalleryGroup::Position position) { log.append(position); });
    QVERIFY(Input::show(&shown.window));
    Input::click(toBottom(shown.group));
    QCOMPARE(log, QList{RibbonGalleryGroup::Bottom});
    Input::click(toTop(shown.group));
    QCOMPARE(log, QList({RibbonGalleryGroup::Bottom, RibbonGalleryGroup::Top}));
    // The group only asks.
    QVERIFY(toTop(shown.group)->isVisible());
    QVERIFY(toBottom(shown.group)->isVisible());
}

void tst_RibbonGalleryGroup::theGroupMayBeDeletedWhenItIsMoved()
{
    GroupWindow shown;
    const QPointer<RibbonGalleryGroup> group = shown.group;
    group->setPosition(RibbonGalleryGroup::Middle);
    connect(group, &RibbonGalleryGroup::signalPositionChange, this, [group] { delete group; });
    QVERIFY(Input::show(&shown.window));
    Input::click(toTop(group));
    QVERIFY(!group);
}

void tst_RibbonGalleryGroup::collectingATileEmitsNothingOfTheGroup()
{
    FilledGroup shown;
    const QSignalSpy collected(shown.group, &RibbonGalleryGroup::signalCollect);
    shown.group->setItemCollected(0, true);
    QVERIFY(Input::show(&shown.window));
    Input::move(shown.group->item(1));
    Input::click(starOf(shown.group->item(1)));
    QVERIFY(shown.group->isItemCollected(1));
    shown.group->removeItem(&shown.a);
    QCOMPARE(collected.size(), 0);
}

void tst_RibbonGalleryGroup::addedItemsGetTheirValuesAndIndex()
{
    RibbonGalleryGroup group({}, u"Shapes"_s, nullptr);
    QAction first(u"first"_s);
    QAction second(u"second"_s);
    QCOMPARE(group.addItem(&first, QSize(32, 20), QSize(70, 50), false), 0);
    QCOMPARE(group.addItem(&second, QSize(16, 16), QSize(40, 44), true), 1);
    QCOMPARE(group.count(), 2);
    QCOMPARE(group.item(0)->defaultAction(), &first);
    QCOMPARE(group.item(0)->iconSize(), QSize(32, 20));
    QCOMPARE(group.item(0)->minimumSize(), QSize(70, 50));
    QCOMPARE(group.item(0)->maximumSize(), QSize(70, 50));
    QCOMPARE(group.item(1)->defaultAction(), &second);
    QCOMPARE(group.item(1)->iconSize(), QSize(16, 16));
    QCOMPARE(group.item(1)->minimumSize(), QSize(40, 44));
    QCOMPARE(group.item(1)->maximumSize(), QSize(40, 44));
    const QLayout *layout = itemsFrame(&group)->layout();
    QCOMPARE(layout->count(), 2);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(layout->itemAt(i)->widget(), group.item(i));
        QCOMPARE(group.item(i)->parent(), itemsFrame(&group));
        QVERIFY(!group.isItemCollected(i));
    }
}

void tst_RibbonGalleryGroup::anActionMayBeAddedTwice()
{
    RibbonGalleryGroup group({}, u"Shapes"_s, nullptr);
    QAction action(u"same"_s);
    QCOMPARE(group.addItem(&action, IconSize, TileSize, false), 0);
    QCOMPARE(group.addItem(&action, IconSize, TileSize, false), 1);
    QVERIFY(group.item(0) != group.item(1));
    QCOMPARE(texts(&group), QStringList({u"same"_s, u"same"_s}));
}

void tst_RibbonGalleryGroup::onlyTilesThatMayBeCollectedHaveAStar()
{
    GroupWindow shown;
    QAction with(u"with"_s);
    QAction without(u"without"_s);
    const RibbonGalleryItem *starred = shown.add(&with, true);
    const RibbonGalleryItem *plain = shown.add(&without, false);
    QVERIFY(Input::show(&shown.window));
    Input::move(shown.group->item(0));
    QVERIFY(starOf(starred)->isVisible());
    Input::move(shown.group->item(1));
    QVERIFY(!starOf(plain)->isVisible());
}

void tst_RibbonGalleryGroup::badIndexIsNoItem()
{
    QFETCH(const int, index);
    FilledGroup shown;
    QSignalSpy collected(shown.group->item(0), &RibbonGalleryItem::signalCollected);
    QVERIFY(!shown.group->item(index));
    QVERIFY(!shown.group->isItemCollected(index));
    QVERIFY(!shown.group->setItemCollected(index, true));
    QVERIFY(!shown.group->isItemCollected(index));
    shown.group->setItemVisible(index, false);
    QCOMPARE(shownTexts(shown.group), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    QCOMPARE(collected.size(), 0);
}

void tst_RibbonGalleryGroup::anEmptyGroupHasNoItem()
{
    RibbonGalleryGroup group({}, u"Shapes"_s, nullptr);
    QCOMPARE(group.count(), 0);
    QVERIFY(!group.item(0));
    QVERIFY(!group.isItemCollected(0));
    QVERIFY(!group.setItemCollected(0, true));
}

void tst_RibbonGalleryGroup::aTileIsCollectedByItsIndex()
{
    FilledGroup shown;
    QList<bool> log;
    connect(shown.group->item(1), &RibbonGalleryItem::signalCollected, this,
            [&log](bool collected) { log.append(collected); });
    QVERIFY(shown.group->setItemCollected(1, true));
    QVERIFY(shown.group->isItemCollected(1));
    QVERIFY(shown.group->item(1)->isCollected());
    QVERIFY(!shown.group->isItemCollected(0));
    QVERIFY(!shown.group->isItemCollected(2));
    // Told also when nothing changes.
    QVERIFY(shown.group->setItemCollected(1, true));
    QVERIFY(shown.group->setItemCollected(1, false));
    QVERIFY(!shown.group->isItemCollected(1));
    QVERIFY(shown.group->setItemCollected(1, false));
    QCOMPARE(log, QList({true, true, false, false}));
}

void tst_RibbonGalleryGroup::theFirstTileOfAnActionIsCollected()
{
    FilledGroup shown;
    shown.add(&shown.b);
    QVERIFY(shown.group->setItemCollected(&shown.b, true));
    QVERIFY(shown.group->isItemCollected(1));
    QVERIFY(!shown.group->isItemCollected(3));
    QVERIFY(shown.group->setItemCollected(&shown.b, false));
    QVERIFY(!shown.group->isItemCollected(1));
}

void tst_RibbonGalleryGroup::anActionWithoutATileIsNotCollected()
{
    FilledGroup shown;
    const QAction other(u"a"_s); // the text does not count
    QVERIFY(!shown.group->setItemCollected(&other, true));
    QVERIFY(!shown.group->removeItem(&other));
    QVERIFY(!shown.group->setItemCollected(static_cast<QAction *>(nullptr), true));
    QVERIFY(!shown.group->removeItem(static_cast<QAction *>(nullptr)));
    QCOMPARE(shown.group->count(), 3);
    QVERIFY(!shown.group->isItemCollected(0));
}

void tst_RibbonGalleryGroup::theFirstTileOfAnActionIsRemoved()
{
    FilledGroup shown;
    const RibbonGalleryItem *second = shown.add(&shown.a);
    QVERIFY(shown.group->removeItem(&shown.a));
    QCOMPARE(texts(shown.group), QStringList({u"b"_s, u"c"_s, u"a"_s}));
    QCOMPARE(shown.group->item(2), second);
    QCOMPARE(itemsFrame(shown.group)->layout()->count(), 3);
    QCOMPARE(itemsFrame(shown.group)->layout()->itemAt(0)->widget(), shown.group->item(0));
    QVERIFY(shown.group->removeItem(&shown.a));
    QVERIFY(!shown.group->removeItem(&shown.a));
    QCOMPARE(texts(shown.group), QStringList({u"b"_s, u"c"_s}));
}

void tst_RibbonGalleryGroup::aRemovedTileIsDestroyedLater()
{
    FilledGroup shown;
    QVERIFY(Input::show(&shown.window));
    const QPointer<RibbonGalleryItem> tile = shown.group->item(1);
    QVERIFY(shown.group->removeItem(&shown.b));
    QVERIFY(tile);
    QVERIFY(tile->isHidden());
    QTRY_VERIFY(!tile);
    QTRY_COMPARE(shown.group->item(1)->x(), 3 + TileSize.width());
}

void tst_RibbonGalleryGroup::aTileOfAnotherGroupIsNotRemoved()
{
    const FilledGroup one;
    const FilledGroup other;
    QVERIFY(!one.group->removeItem(other.group->item(0)));
    QVERIFY(!one.group->removeItem(static_cast<RibbonGalleryItem *>(nullptr)));
    QCOMPARE(one.group->count(), 3);
    QCOMPARE(other.group->count(), 3);
}

void tst_RibbonGalleryGroup::aTileIsShownAndHidden()
{
    FilledGroup shown;
    QVERIFY(Input::show(&shown.window));
    shown.group->setItemVisible(1, false);
    QCOMPARE(shownTexts(shown.group), QStringList({u"a"_s, u"c"_s}));
    QVERIFY(!shown.group->item(1)->isVisible());
    QCOMPARE(shown.group->count(), 3);
    shown.group->setItemVisible(1, true);
    QVERIFY(shown.group->item(1)->isVisible());
}

void tst_RibbonGalleryGroup::updateLayoutPlacesTheTiles()
{
    FilledGroup shown;
    QVERIFY(Input::show(&shown.window));
    RibbonGalleryItem *tile = shown.group->item(0);
    settle(&shown.window);
    QCOMPARE(tile->pos(), QPoint(3, 5));
    tile->move(50, 50);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(tile->pos(), QPoint(50, 50));
    shown.group->updateLayout();
    QTRY_COMPARE(tile->pos(), QPoint(3, 5));
}

void tst_RibbonGalleryGroup::tilesFlowInRows()
{
    FilledGroup shown;
    shown.window.resize(3 + 2 * 90 + 1 + 3, 300);
    QVERIFY(Input::show(&shown.window));
    QCOMPARE(shown.group->item(0)->geometry(), QRect(QPoint(3, 5), TileSize));
    QCOMPARE(shown.group->item(1)->geometry(), QRect(QPoint(93, 5), TileSize));
    QCOMPARE(shown.group->item(2)->geometry(), QRect(QPoint(3, 65), TileSize));
    QCOMPARE(itemsFrame(shown.group)->height(), 5 + 2 * 60 + 5);
}

void tst_RibbonGalleryGroup::aHiddenTileLeavesItsPlaceToTheNext()
{
    FilledGroup shown;
    QVERIFY(Input::show(&shown.window));
    shown.group->setItemVisible(0, false);
    QTRY_COMPARE(shown.group->item(1)->pos(), QPoint(3, 5));
    QCOMPARE(shown.group->item(2)->pos(), QPoint(93, 5));
    shown.group->setItemVisible(0, true);
    QTRY_COMPARE(shown.group->item(1)->pos(), QPoint(93, 5));
}

void tst_RibbonGalleryGroup::aDeletedActionLeavesTheOthers()
{
    FilledGroup shown;
    auto action = std::make_unique<QAction>(u"host's"_s);
    const RibbonGalleryItem *tile = shown.add(action.get());
    QVERIFY(Input::show(&shown.window));
    action.reset();
    QVERIFY(!tile->defaultAction());
    QVERIFY(shown.group->setItemCollected(&shown.c, true));
    QVERIFY(shown.group->removeItem(&shown.a));
    QVERIFY(!shown.window.grab().isNull());
}

void tst_RibbonGalleryGroup::aTriggeredActionMayDeleteItself()
{
    GroupWindow shown;
    QPointer<QAction> action = new QAction(u"once"_s);
    RibbonGalleryItem *tile = shown.add(action);
    connect(action, &QAction::triggered, this, [action] { delete action; });
    QVERIFY(Input::show(&shown.window));
    Input::click(tile);
    QVERIFY(!action);
    QVERIFY(!shown.window.grab().isNull());
}

void tst_RibbonGalleryGroup::rightToLeftMirrorsTheGroup()
{
    GroupWindow shown(Qt::RightToLeft, plainIcon());
    shown.group->setPosition(RibbonGalleryGroup::Middle);
    QAction a(u"a"_s);
    QAction b(u"b"_s);
    shown.add(&a);
    shown.add(&b);
    QVERIFY(Input::show(&shown.window));
    QCOMPARE(shown.areaOf(iconLabel(shown.group)).right(), 400 - 4 - 1);
    QVERIFY(shown.areaOf(titleLabel(shown.group)).right()
            < shown.areaOf(iconLabel(shown.group)).left());
    QCOMPARE(shown.areaOf(toBottom(shown.group)).left(), 4);
    QCOMPARE(shown.areaOf(toTop(shown.group)).left(),
             shown.areaOf(toBottom(shown.group)).right() + 1);
    QCOMPARE(shown.group->item(0)->geometry(), QRect(QPoint(400 - 3 - 90, 5), TileSize));
    QCOMPARE(shown.group->item(1)->geometry(), QRect(QPoint(400 - 3 - 180, 5), TileSize));
    // The icon keeps to the beginning of the line, as it does from left to right.
    QCOMPARE(ImageChecks::paintedRect(ImageChecks::rendered(iconLabel(shown.group), 1),
                                      iconLabel(shown.group)->rect())
                 .right(),
             iconLabel(shown.group)->width() - 1);
}

QTEST_MAIN(tst_RibbonGalleryGroup)

#include "tst_ribbongallerygroup.moc"
