// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/RibbonGalleryLayout.h"
#include "gallery/RibbonGalleryLayout_p.h"

#include "support/Input.h"
#include "support/TestCase.h"

#include <QVBoxLayout>

#include <limits>
#include <memory>

using namespace VornFrame;

namespace {

constexpr QSize TileSize(90, 60);
constexpr int TileCount = 7;

/// An item that counts how many of its kind there are.
class Block : public QLayoutItem
{
public:
    explicit Block(QSize hint = TileSize, QSize minimum = {}) : m_hint(hint), m_minimum(minimum)
    {
        ++aliveCount;
    }
    ~Block() override { --aliveCount; }

    static int count() { return aliveCount; }

    QSize sizeHint() const override { return m_hint; }
    QSize minimumSize() const override { return m_minimum; }
    QSize maximumSize() const override { return m_hint; }
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal | Qt::Vertical; }
    void setGeometry(const QRect &rect) override { m_geometry = rect; }
    QRect geometry() const override { return m_geometry; }
    bool isEmpty() const override { return false; }

private:
    Q_DISABLE_COPY_MOVE(Block)

    static inline int aliveCount = 0;

    QSize m_hint;
    QSize m_minimum;
    QRect m_geometry{-1, -1, 0, 0};
};

QList<QRect> placesOf(const RibbonGalleryLayout &layout)
{
    QList<QRect> places;
    for (int i = 0; i < layout.count(); ++i)
        places.append(layout.itemAt(i)->geometry());
    return places;
}

void addBlocks(RibbonGalleryLayout &layout, const QList<QSize> &sizes)
{
    for (const QSize size : sizes)
        layout.addItem(new Block(size));
}

QWidget *addTile(RibbonGalleryLayout &layout, QWidget *parent)
{
    auto *tile = new QWidget(parent);
    tile->setFixedSize(TileSize);
    layout.addWidget(tile);
    return tile;
}

} // namespace

class tst_RibbonGalleryLayout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasNoMetaObjectOfItsOwn();
    void itsRecordStartsEmpty();
    void marginIsThatOfAllSides();
    void addedItemsAreCountedAndFoundInOrder();
    void nullIsNoItem();
    void indexesOutsideGiveNull_data();
    void indexesOutsideGiveNull();
    void takenItemIsTheCallers();
    void layoutDeletesItsItems();
    void deletedWidgetLeavesTheLayout();
    void expandsInNoDirection();
    void heightDependsOnTheWidth();
    void minimumIsTheLargestItemAndTheMargins();
    void emptyLayoutNeedsItsMargins();

    void tilesWrapWhereTheNextOnePassesTheEdge_data();
    void tilesWrapWhereTheNextOnePassesTheEdge();
    void lookingForTheHeightMovesNothing();
    void itemsOfAllSizesArePlaced_data();
    void itemsOfAllSizesArePlaced();
    void spacingBehindTheLastOneNeedsNoRoom();
    void tooWideItemHasARowOfItsOwn();
    void rowWithoutHeightIsNotLeft();
    void noItemsNeedNoRow();
    void hiddenItemsTakeNoRoom();
    void itemsThatAreShownAgainTakeTheirPlace();

    void parentPlacesItsTiles();
    void parentNeedsTheHeightOfItsRows();
    void directionOfTheParentCounts();
    void rowsFollowTheWidthOfTheParent();
    void removedTilesLeaveNoGap();
};

void tst_RibbonGalleryLayout::hasNoMetaObjectOfItsOwn()
{
    const RibbonGalleryLayout layout(nullptr, 0, 0, 0);
    QCOMPARE(layout.metaObject(), &QLayout::staticMetaObject);
}

void tst_RibbonGalleryLayout::itsRecordStartsEmpty()
{
    const RibbonGalleryLayoutPrivate d;
    QVERIFY(d.items.isEmpty());
    QVERIFY(!d.q_ptr);
}

void tst_RibbonGalleryLayout::marginIsThatOfAllSides()
{
    QWidget parent;
    const RibbonGalleryLayout layout(&parent, 7, 0, 0);
    QCOMPARE(layout.contentsMargins(), QMargins(7, 7, 7, 7));
    QCOMPARE(parent.layout(), &layout);
}

void tst_RibbonGalleryLayout::addedItemsAreCountedAndFoundInOrder()
{
    RibbonGalleryLayout layout(nullptr, 0, 0, 0);
    QCOMPARE(layout.count(), 0);
    QList<QLayoutItem *> items;
    for (int i = 0; i < 3; ++i) {
        items.append(new Block);
        layout.addItem(items.at(i));
        QCOMPARE(layout.count(), i + 1);
    }
    for (int i = 0; i < 3; ++i)
        QCOMPARE(layout.itemAt(i), items.at(i));
}

void tst_RibbonGalleryLayout::nullIsNoItem()
{
    RibbonGalleryLayout layout(nullptr, 4, 0, 0);
    layout.addItem(nullptr);
    QCOMPARE(layout.count(), 0);
    layout.addItem(new Block);
    layout.addItem(nullptr);
    QCOMPARE(layout.count(), 1);
    layout.setGeometry(QRect(0, 0, 200, 100));
    QCOMPARE(layout.itemAt(0)->geometry(), QRect(4, 4, 90, 60));
}

void tst_RibbonGalleryLayout::indexesOutsideGiveNull_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    QTest::newRow("below") << 2 << -1;
    QTest::newRow("far below") << 2 << std::numeric_limits<int>::min();
    QTest::newRow("behind") << 2 << 2;
    QTest::newRow("far behind") << 2 << std::numeric_limits<int>::max();
    QTest::newRow("first of none") << 0 << 0;
    QTest::newRow("below none") << 0 << -1;
}

void tst_RibbonGalleryLayout::indexesOutsideGiveNull()
{
    QFETCH(const int, count);
    QFETCH(const int, index);
    RibbonGalleryLayout layout(nullptr, 0, 0, 0);
    for (int i = 0; i < count; ++i)
        layout.addItem(new Block);
    QCOMPARE(layout.itemAt(index), nullptr);
    QCOMPARE(layout.takeAt(index), nullptr);
    QCOMPARE(layout.count(), count);
}

void tst_RibbonGalleryLayout::takenItemIsTheCallers()
{
    RibbonGalleryLayout layout(nullptr, 0, 0, 0);
    layout.addItem(new Block);
    auto *second = new Block;
    layout.addItem(second);
    auto *third = new Block;
    layout.addItem(third);
    const std::unique_ptr<QLayoutItem> taken(layout.takeAt(1));
    QCOMPARE(taken.get(), second);
    QCOMPARE(layout.count(), 2);
    QCOMPARE(layout.itemAt(1), third);
    QCOMPARE(Block::count(), 3);
}

void tst_RibbonGalleryLayout::layoutDeletesItsItems()
{
    auto layout = std::make_unique<RibbonGalleryLayout>(nullptr, 0, 0, 0);
    addBlocks(*layout, {TileSize, TileSize, TileSize});
    QCOMPARE(Block::count(), 3);
    layout.reset();
    QCOMPARE(Block::count(), 0);
}

void tst_RibbonGalleryLayout::deletedWidgetLeavesTheLayout()
{
    QWidget parent;
    RibbonGalleryLayout layout(&parent, 0, 0, 0);
    const std::unique_ptr<QWidget> first(addTile(layout, &parent));
    std::unique_ptr<QWidget> second(addTile(layout, &parent));
    second.reset();
    QCOMPARE(layout.count(), 1);
    QCOMPARE(layout.itemAt(0)->widget(), first.get());
}

void tst_RibbonGalleryLayout::expandsInNoDirection()
{
    RibbonGalleryLayout layout(nullptr, 0, 0, 0);
    layout.addItem(new Block);
    QCOMPARE(layout.expandingDirections(), Qt::Orientations());
}

void tst_RibbonGalleryLayout::heightDependsOnTheWidth()
{
    const RibbonGalleryLayout layout(nullptr, 0, 0, 0);
    QVERIFY(layout.hasHeightForWidth());
}

void tst_RibbonGalleryLayout::minimumIsTheLargestItemAndTheMargins()
{
    RibbonGalleryLayout layout(nullptr, 0, 50, 50);
    layout.addItem(new Block(TileSize, QSize(10, 40)));
    layout.addItem(new Block(TileSize, QSize(30, 5)));
    layout.setContentsMargins(1, 2, 4, 8);
    QCOMPARE(layout.minimumSize(), QSize(30 + 1 + 4, 40 + 2 + 8));
    QCOMPARE(layout.sizeHint(), layout.minimumSize());
}

void tst_RibbonGalleryLayout::emptyLayoutNeedsItsMargins()
{
    RibbonGalleryLayout layout(nullptr, 0, 0, 0);
    layout.setContentsMargins(1, 2, 4, 8);
    QCOMPARE(layout.minimumSize(), QSize(5, 10));
    QCOMPARE(layout.sizeHint(), QSize(5, 10));
}

void tst_RibbonGalleryLayout::tilesWrapWhereTheNextOnePassesTheEdge_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("height");
    // Margins of 3 px at the sides and 5 px above and below; rows of 60 px. Tiles that reach the
    // edge exactly do not fit: one pixel has to be free behind them.
    QTest::newRow("nothing") << 0 << 1 << 430;
    QTest::newRow("less than a tile") << 50 << 1 << 430;
    QTest::newRow("exactly one") << 96 << 1 << 430;
    QTest::newRow("exactly two") << 186 << 1 << 430;
    QTest::newRow("two") << 187 << 2 << 250;
    QTest::newRow("exactly three") << 276 << 2 << 250;
    QTest::newRow("three") << 277 << 3 << 190;
    QTest::newRow("exactly four") << 366 << 3 << 190;
    QTest::newRow("four") << 367 << 4 << 130;
    QTest::newRow("exactly five") << 456 << 4 << 130;
    QTest::newRow("five") << 457 << 5 << 130;
    QTest::newRow("six") << 547 << 6 << 130;
    QTest::newRow("exactly all") << 636 << 6 << 130;
    QTest::newRow("all") << 637 << 7 << 70;
    QTest::newRow("more than all") << 2000 << 7 << 70;
}

void tst_RibbonGalleryLayout::tilesWrapWhereTheNextOnePassesTheEdge()
{
    QFETCH(const int, width);
    QFETCH(const int, columns);
    QFETCH(const int, height);
    RibbonGalleryLayout layout(nullptr, 0, 0, 0);
    layout.setContentsMargins(3, 5, 3, 5);
    addBlocks(layout, QList<QSize>(TileCount, TileSize));
    QCOMPARE(layout.heightForWidth(width), height);
    layout.setGeometry(QRect(20, 40, width, 1000));
    QCOMPARE(layout.geometry(), QRect(20, 40, width, 1000));
    QList<QRect> places;
    for (int i = 0; i < TileCount; ++i)
        places.append(QRect(QPoint(23 + 90 * (i % columns), 45 + 60 * (i / columns)), TileSize));
    QCOMPARE(placesOf(layout), places);
}

void tst_RibbonGalleryLayout::lookingForTheHeightMovesNothing()
{
    RibbonGalleryLayout layout(nullptr, 0, 0, 0);
    addBlocks(layout, {TileSize, TileSize});
    layout.setGeometry(QRect(0, 0, 300, 100));
    const QList<QRect> places = placesOf(layout);
    QCOMPARE(layout.heightForWidth(100), 120);
    QCOMPARE(placesOf(layout), places);
    QCOMPARE(layout.geometry(), QRect(0, 0, 300, 100));
}

void tst_RibbonGalleryLayout::itemsOfAllSizesArePlaced_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QList<QRect>>("places");
    // From (12, 23), 100 px wide.
    QTest::newRow("left to right") << Qt::LeftToRight
                                   << QList<QRect>{{12, 23, 30, 20},
                                                   {46, 23, 50, 10},
                                                   {12, 49, 40, 30},
                                                   {12, 85, 120, 15},
                                                   {12, 106, 20, 20}};
    QTest::newRow("right to left") << Qt::RightToLeft
                                   << QList<QRect>{{82, 23, 30, 20},
                                                   {28, 23, 50, 10},
                                                   {72, 49, 40, 30},
                                                   {-8, 85, 120, 15},
                                                   {92, 106, 20, 20}};
}

void tst_RibbonGalleryLayout::itemsOfAllSizesArePlaced()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QList<QRect>, places);
    QWidget parent;
    parent.setLayoutDirection(direction);
    RibbonGalleryLayout layout(&parent, 0, 4, 6);
    layout.setContentsMargins(2, 3, 5, 7);
    addBlocks(layout, {{30, 20}, {50, 10}, {40, 30}, {120, 15}, {20, 20}});
    layout.setGeometry(QRect(10, 20, 107, 500));
    QCOMPARE(placesOf(layout), places);
    QCOMPARE(layout.heightForWidth(107), 113);
}

void tst_RibbonGalleryLayout::spacingBehindTheLastOneNeedsNoRoom()
{
    RibbonGalleryLayout layout(nullptr, 0, 10, 20);
    addBlocks(layout, {TileSize, TileSize, TileSize});
    QCOMPARE(layout.heightForWidth(191), 140);
    QCOMPARE(layout.heightForWidth(190), 220);
    layout.setGeometry(QRect(0, 0, 191, 200));
    const QList<QRect> places{{0, 0, 90, 60}, {100, 0, 90, 60}, {0, 80, 90, 60}};
    QCOMPARE(placesOf(layout), places);
}

void tst_RibbonGalleryLayout::tooWideItemHasARowOfItsOwn()
{
    RibbonGalleryLayout layout(nullptr, 0, 0, 0);
    addBlocks(layout, {{150, 10}, {20, 10}, {150, 10}, {150, 10}});
    layout.setGeometry(QRect(0, 0, 100, 100));
    const QList<QRect> places{{0, 0, 150, 10}, {0, 10, 20, 10}, {0, 20, 150, 10}, {0, 30, 150, 10}};
    QCOMPARE(placesOf(layout), places);
}

void tst_RibbonGalleryLayout::rowWithoutHeightIsNotLeft()
{
    RibbonGalleryLayout layout(nullptr, 0, 0, 0);
    addBlocks(layout, {{60, 0}, {60, 20}, {60, 20}});
    layout.setGeometry(QRect(0, 0, 100, 100));
    const QList<QRect> places{{0, 0, 60, 0}, {60, 0, 60, 20}, {0, 20, 60, 20}};
    QCOMPARE(placesOf(layout), places);
}

void tst_RibbonGalleryLayout::noItemsNeedNoRow()
{
    RibbonGalleryLayout layout(nullptr, 0, 9, 9);
    layout.setContentsMargins(1, 2, 4, 8);
    QCOMPARE(layout.heightForWidth(100), 10);
    layout.setGeometry(QRect(0, 0, 100, 100));
}

void tst_RibbonGalleryLayout::hiddenItemsTakeNoRoom()
{
    QWidget parent;
    RibbonGalleryLayout layout(&parent, 0, 0, 0);
    const QWidget *first = addTile(layout, &parent);
    QWidget *second = addTile(layout, &parent);
    const QWidget *third = addTile(layout, &parent);
    const QRect before = second->geometry();
    second->hide();
    layout.setGeometry(QRect(0, 0, 185, 200));
    QCOMPARE(first->geometry(), QRect(0, 0, 90, 60));
    QCOMPARE(third->geometry(), QRect(90, 0, 90, 60));
    QCOMPARE(second->geometry(), before);
    QCOMPARE(layout.heightForWidth(185), 60);
    QCOMPARE(layout.count(), 3);
    for (QWidget *tile : parent.findChildren<QWidget *>())
        tile->hide();
    QCOMPARE(layout.heightForWidth(185), 0);
    QCOMPARE(layout.minimumSize(), QSize(0, 0));
}

void tst_RibbonGalleryLayout::itemsThatAreShownAgainTakeTheirPlace()
{
    QWidget parent;
    RibbonGalleryLayout layout(&parent, 0, 0, 0);
    addTile(layout, &parent);
    QWidget *second = addTile(layout, &parent);
    const QWidget *third = addTile(layout, &parent);
    second->hide();
    second->show();
    layout.setGeometry(QRect(0, 0, 185, 200));
    QCOMPARE(second->geometry(), QRect(90, 0, 90, 60));
    QCOMPARE(third->geometry(), QRect(0, 60, 90, 60));
}

void tst_RibbonGalleryLayout::parentPlacesItsTiles()
{
    QWidget parent;
    parent.resize(187, 250);
    auto *layout = new RibbonGalleryLayout(&parent, 3, 0, 0);
    addTile(*layout, &parent);
    QVERIFY(Input::show(&parent));
    const QWidget *second = addTile(*layout, &parent);
    const QWidget *third = addTile(*layout, &parent);
    QTRY_COMPARE(third->geometry(), QRect(3, 63, 90, 60));
    QCOMPARE(second->geometry(), QRect(93, 3, 90, 60));
    QVERIFY(third->isVisible());
}

void tst_RibbonGalleryLayout::parentNeedsTheHeightOfItsRows()
{
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    column->setContentsMargins({});
    auto *parent = new QWidget;
    column->addWidget(parent);
    column->addStretch();
    auto *layout = new RibbonGalleryLayout(parent, 3, 0, 0);
    for (int i = 0; i < 3; ++i)
        addTile(*layout, parent);
    window.resize(187, 300);
    QVERIFY(Input::show(&window));
    QCOMPARE(parent->height(), 126);
    QCOMPARE(parent->minimumSizeHint(), QSize(96, 66));
    window.resize(300, 300);
    QTRY_COMPARE(parent->height(), 66);
}

void tst_RibbonGalleryLayout::directionOfTheParentCounts()
{
    QWidget parent;
    parent.setLayoutDirection(Qt::RightToLeft);
    parent.resize(190, 200);
    auto *layout = new RibbonGalleryLayout(&parent, 0, 0, 0);
    for (int i = 0; i < 3; ++i)
        addTile(*layout, &parent);
    QVERIFY(Input::show(&parent));
    QList<QRect> places{{100, 0, 90, 60}, {10, 0, 90, 60}, {100, 60, 90, 60}};
    QCOMPARE(placesOf(*layout), places);
    parent.setLayoutDirection(Qt::LeftToRight);
    places = {{0, 0, 90, 60}, {90, 0, 90, 60}, {0, 60, 90, 60}};
    QTRY_COMPARE(placesOf(*layout), places);
}

void tst_RibbonGalleryLayout::rowsFollowTheWidthOfTheParent()
{
    QWidget parent;
    parent.resize(187, 200);
    auto *layout = new RibbonGalleryLayout(&parent, 3, 0, 0);
    addTile(*layout, &parent);
    const QWidget *second = addTile(*layout, &parent);
    QVERIFY(Input::show(&parent));
    QCOMPARE(second->geometry(), QRect(93, 3, 90, 60));
    parent.resize(186, 200);
    QTRY_COMPARE(second->geometry(), QRect(3, 63, 90, 60));
}

void tst_RibbonGalleryLayout::removedTilesLeaveNoGap()
{
    QWidget parent;
    parent.resize(300, 200);
    auto *layout = new RibbonGalleryLayout(&parent, 0, 0, 0);
    QWidget *first = addTile(*layout, &parent);
    const QWidget *second = addTile(*layout, &parent);
    QVERIFY(Input::show(&parent));
    layout->removeWidget(first);
    first->hide();
    QTRY_COMPARE(second->geometry(), QRect(0, 0, 90, 60));
}

QTEST_MAIN(tst_RibbonGalleryLayout)
#include "tst_ribbongallerylayout.moc"
