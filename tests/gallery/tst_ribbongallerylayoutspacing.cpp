// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "gallery/RibbonGalleryLayout.h"

#include "support/TestCase.h"

#include <QApplication>
#include <QGridLayout>
#include <QProxyStyle>
#include <QVBoxLayout>

using namespace VornFrame;

namespace {

constexpr QSize TileSize(90, 60);

/// A style whose spacings nothing else has; those between buttons are -1 where \a metrics are given.
class SpacingStyle : public QProxyStyle
{
public:
    SpacingStyle(QSize metrics, QSize betweenButtons)
        : m_metrics(metrics), m_betweenButtons(betweenButtons)
    {}

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        switch (metric) {
        case PM_LayoutHorizontalSpacing:
            return m_metrics.width();
        case PM_LayoutVerticalSpacing:
            return m_metrics.height();
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

    int layoutSpacing(QSizePolicy::ControlType first, QSizePolicy::ControlType second,
                      Qt::Orientation orientation, const QStyleOption * /*option*/,
                      const QWidget * /*widget*/) const override
    {
        if (first != QSizePolicy::PushButton || second != QSizePolicy::PushButton)
            return 99;
        return orientation == Qt::Horizontal ? m_betweenButtons.width() : m_betweenButtons.height();
    }

private:
    QSize m_metrics;
    QSize m_betweenButtons;
};

constexpr QSize NoSpacing(-1, -1);

QList<QRect> placesOf(const RibbonGalleryLayout &layout)
{
    QList<QRect> places;
    for (int i = 0; i < layout.count(); ++i)
        places.append(layout.itemAt(i)->geometry());
    return places;
}

void addTile(RibbonGalleryLayout &layout, QWidget *parent, QStyle *style)
{
    auto *tile = new QWidget(parent);
    tile->setFixedSize(TileSize);
    tile->setStyle(style);
    layout.addWidget(tile);
}

} // namespace

class tst_RibbonGalleryLayoutSpacing : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ownSpacingNeedsNoParent();
    void parentWidgetIsAskedForItsStyle();
    void parentLayoutIsAskedForItsSpacing();
    void withoutParentThereIsNoSpacing();
    void horizontalAndVerticalSpacingAreAskedForApart();
    void itemsDecideWhereThereIsNoSpacing_data();
    void itemsDecideWhereThereIsNoSpacing();
    void eachItemDecidesOnTheSpacingBehindIt();
    void itemsWithoutWidgetAskTheApplication();
};

void tst_RibbonGalleryLayoutSpacing::ownSpacingNeedsNoParent()
{
    SpacingStyle style(QSize(7, 9), QSize(3, 4));
    QWidget parent;
    parent.setStyle(&style);
    const RibbonGalleryLayout layout(&parent, 0, 0, 12);
    QCOMPARE(layout.horizontalSpacing(), 0);
    QCOMPARE(layout.verticalSpacing(), 12);
}

void tst_RibbonGalleryLayoutSpacing::parentWidgetIsAskedForItsStyle()
{
    SpacingStyle style(QSize(7, 9), QSize(3, 4));
    QWidget parent;
    parent.setStyle(&style);
    RibbonGalleryLayout layout(&parent, 0, -1, -1);
    QCOMPARE(layout.horizontalSpacing(), 7);
    QCOMPARE(layout.verticalSpacing(), 9);
    for (int i = 0; i < 3; ++i)
        addTile(layout, &parent, &style);
    layout.setGeometry(QRect(0, 0, 190, 200));
    const QList<QRect> places{{0, 0, 90, 60}, {97, 0, 90, 60}, {0, 69, 90, 60}};
    QCOMPARE(placesOf(layout), places);
}

void tst_RibbonGalleryLayoutSpacing::parentLayoutIsAskedForItsSpacing()
{
    QWidget window;
    auto *outer = new QVBoxLayout(&window);
    outer->setSpacing(11);
    auto *layout = new RibbonGalleryLayout(nullptr, 0, -5, -1);
    outer->addLayout(layout);
    QCOMPARE(layout->parent(), outer);
    QCOMPARE(layout->horizontalSpacing(), 11);
    QCOMPARE(layout->verticalSpacing(), 11);
    outer->setSpacing(2);
    QCOMPARE(layout->horizontalSpacing(), 2);
    for (int i = 0; i < 3; ++i)
        addTile(*layout, &window, window.style());
    layout->setGeometry(QRect(0, 0, 190, 200));
    const QList<QRect> places{{0, 0, 90, 60}, {92, 0, 90, 60}, {0, 62, 90, 60}};
    QCOMPARE(placesOf(*layout), places);
}

void tst_RibbonGalleryLayoutSpacing::withoutParentThereIsNoSpacing()
{
    const RibbonGalleryLayout layout(nullptr, 0, -1, -7);
    QCOMPARE(layout.horizontalSpacing(), -1);
    QCOMPARE(layout.verticalSpacing(), -1);
}

void tst_RibbonGalleryLayoutSpacing::horizontalAndVerticalSpacingAreAskedForApart()
{
    SpacingStyle style(QSize(7, 9), QSize(3, 4));
    QWidget parent;
    parent.setStyle(&style);
    const RibbonGalleryLayout layout(&parent, 0, 5, -1);
    QCOMPARE(layout.horizontalSpacing(), 5);
    QCOMPARE(layout.verticalSpacing(), 9);
}

void tst_RibbonGalleryLayoutSpacing::itemsDecideWhereThereIsNoSpacing_data()
{
    QTest::addColumn<bool>("inLayout");
    QTest::newRow("style without spacing") << false;
    QTest::newRow("layout with two spacings") << true;
}

void tst_RibbonGalleryLayoutSpacing::itemsDecideWhereThereIsNoSpacing()
{
    QFETCH(const bool, inLayout);
    SpacingStyle parentStyle(NoSpacing, NoSpacing);
    SpacingStyle style(NoSpacing, QSize(3, 4));
    QWidget parent;
    parent.setStyle(&parentStyle);
    auto *layout = new RibbonGalleryLayout(inLayout ? nullptr : &parent, 0, -1, -1);
    if (inLayout) {
        auto *outer = new QGridLayout(&parent);
        outer->setHorizontalSpacing(20);
        outer->setVerticalSpacing(30);
        outer->addLayout(layout, 0, 0);
    }
    QCOMPARE(layout->horizontalSpacing(), -1);
    QCOMPARE(layout->verticalSpacing(), -1);
    for (int i = 0; i < 3; ++i)
        addTile(*layout, &parent, &style);
    layout->setGeometry(QRect(0, 0, 190, 200));
    const QList<QRect> places{{0, 0, 90, 60}, {93, 0, 90, 60}, {0, 64, 90, 60}};
    QCOMPARE(placesOf(*layout), places);
    QCOMPARE(layout->heightForWidth(190), 124);
}

void tst_RibbonGalleryLayoutSpacing::eachItemDecidesOnTheSpacingBehindIt()
{
    SpacingStyle parentStyle(NoSpacing, NoSpacing);
    SpacingStyle narrow(NoSpacing, QSize(1, 2));
    SpacingStyle wide(NoSpacing, QSize(10, 20));
    QWidget parent;
    parent.setStyle(&parentStyle);
    RibbonGalleryLayout layout(&parent, 0, -1, -1);
    addTile(layout, &parent, &narrow);
    addTile(layout, &parent, &wide);
    addTile(layout, &parent, &narrow);
    addTile(layout, &parent, &wide);
    addTile(layout, &parent, &narrow);
    layout.setGeometry(QRect(0, 0, 283, 300));
    // Between rows, the first item of the new one decides.
    const QList<QRect> places{
        {0, 0, 90, 60}, {91, 0, 90, 60}, {191, 0, 90, 60}, {0, 80, 90, 60}, {100, 80, 90, 60}};
    QCOMPARE(placesOf(layout), places);
}

void tst_RibbonGalleryLayoutSpacing::itemsWithoutWidgetAskTheApplication()
{
    RibbonGalleryLayout layout(nullptr, 0, -1, 0);
    for (int i = 0; i < 2; ++i)
        layout.addItem(new QSpacerItem(90, 60));
    layout.setGeometry(QRect(0, 0, 300, 100));
    const int spacing = QApplication::style()->layoutSpacing(
        QSizePolicy::PushButton, QSizePolicy::PushButton, Qt::Horizontal);
    QCOMPARE(layout.itemAt(1)->geometry(), QRect(90 + spacing, 0, 90, 60));
}

QTEST_MAIN(tst_RibbonGalleryLayoutSpacing)
#include "tst_ribbongallerylayoutspacing.moc"
