// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonCorner.h>

#include "ribbon/RibbonTabBar.h"
#include "ribbon/RibbonWindow.h"

#include "support/StrangePalette.h"
#include "support/TestCase.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace RibbonWindows;
using namespace VornFrame;

namespace {

constexpr QColor RibbonBlue(0, 64, 115);
constexpr QColor Plate(17, 113, 190);
constexpr QColor Accent(38, 140, 221);
constexpr QColor Surface(245, 245, 245);
constexpr QColor Frame(125, 125, 125);
constexpr QColor Line(191, 191, 191);
constexpr QColor White(255, 255, 255);

constexpr QMargins Border(1, 1, 1, 1);

/// An image may come by another way through the style than through a pixmap.
constexpr int ImageTolerance = 4;

void addRatios()
{
    QTest::addColumn<int>("ratio");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const int ratio : {1, 2}) {
        QTest::addRow("ratio %d, left to right", ratio) << ratio << Qt::LeftToRight;
        QTest::addRow("ratio %d, right to left", ratio) << ratio << Qt::RightToLeft;
    }
}

} // namespace

class tst_RibbonSheet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void barAndPageStackHaveTheirColors_data() { addRatios(); }
    void barAndPageStackHaveTheirColors();
    void everythingInTheBarHasTheFontOfTheSheet();
    void tabShowsItsState_data();
    void tabShowsItsState();
    void tabIsAtLeast100PxWideAnd25PxHigh();
    void tabHasRoundCornersAtItsTop_data() { addRatios(); }
    void tabHasRoundCornersAtItsTop();
    void plateStandsBehindVisibleTemporaryTabs_data() { addRatios(); }
    void plateStandsBehindVisibleTemporaryTabs();
    void plateEndsWithItsTab_data() { addRatios(); }
    void plateEndsWithItsTab();
    void tabIsPaintedOnItsPlate();
    void groupTitleAndLinesHaveTheirColors_data() { addRatios(); }
    void groupTitleAndLinesHaveTheirColors();
    void lineEditShowsTheFocus_data() { addRatios(); }
    void lineEditShowsTheFocus();
    void spinBoxShowsTheFocus_data() { addRatios(); }
    void spinBoxShowsTheFocus();
    void spinButtonShowsItsState_data();
    void spinButtonShowsItsState();
    void spinButtonHasItsArrow_data();
    void spinButtonHasItsArrow();
    void comboBoxShowsThePointer_data() { addRatios(); }
    void comboBoxShowsThePointer();
    void comboBoxHasItsArrow();
    void comboBoxKeepsItsTextOffTheFrame();
    void comboBoxListShowsItsItems_data();
    void comboBoxListShowsItsItems();
    void comboBoxListHasNoFocusFrame();
    void indicatorIsItsImage_data();
    void indicatorIsItsImage();
};

void tst_RibbonSheet::initTestCase()
{
    TestCase::initTestCase();
    QApplication::setPalette(strangePalette());
}

void tst_RibbonSheet::barAndPageStackHaveTheirColors()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    RibbonWindow window(direction);
    window.bar()->addPage(u"Page"_s);
    auto *label = new QLabel;
    label->setFixedSize(40, 10);
    window.bar()->corner()->addWidget(label);
    QVERIFY(window.showAlone());

    const QImage image = window.image(ratio);
    const QRect band(0, 0, window.width(), 28);
    VERIFY_IMAGE(
        ImageChecks::isFilled(image, band, RibbonBlue, {window.areaOf(window.tabs().at(0))}));
    VERIFY_IMAGE(ImageChecks::isFilled(image, {0, 28, window.width(), 95}, Surface));
    QVERIFY(ImageChecks::colorAt(image, {0, 28 + 95}) != Surface);
}

void tst_RibbonSheet::everythingInTheBarHasTheFontOfTheSheet()
{
    RibbonWindow window;
    QWidget *edit = embed<QLineEdit>(window);
    QVERIFY(window.showAlone());
    const auto *title = window.findChild<QLabel *>(u"groupTitle"_s);
    for (const QWidget *widget :
         {edit, static_cast<QWidget *>(window.tabs().at(0)), static_cast<QWidget *>(window.bar())})
        QCOMPARE(widget->font().family(), u"微软雅黑"_s);
    QCOMPARE(title->font().family(), u"微软雅黑"_s);
    QVERIFY(window.font().family() != u"微软雅黑"_s);
}

void tst_RibbonSheet::tabShowsItsState_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QColor>("background");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<int>("ratio");
    const QColor disabledText(173, 181, 189);
    const QColor disabledBackground(248, 249, 250);
    for (const int ratio : {1, 2}) {
        const auto addRow = [ratio](const char *state, const QColor &background,
                                    const QColor &text) {
            QTest::addRow("%s, ratio %d", state, ratio)
                << QString::fromLatin1(state) << background << text << ratio;
        };
        addRow("normal", RibbonBlue, White);
        addRow("hovered", Accent, White);
        addRow("pressed", Accent, White);
        addRow("checked", Surface, Qt::black);
        addRow("checked hovered", Surface, Qt::black);
        addRow("disabled", disabledBackground, disabledText);
        addRow("checked disabled", disabledBackground, disabledText);
    }
}

void tst_RibbonSheet::tabShowsItsState()
{
    QFETCH(const QString, state);
    QFETCH(const QColor, background);
    QFETCH(const QColor, text);
    QFETCH(const int, ratio);
    RibbonWindow window;
    window.bar()->addPage(u"First"_s);
    window.bar()->addPage(blocks());
    QVERIFY(window.showAlone());
    if (state.contains("checked"_L1))
        window.bar()->setCurrentIndex(1);
    window.bar()->setPageEnabled(1, !state.contains("disabled"_L1));
    RibbonTab *tab = window.tabs().at(1);
    if (state.contains("hovered"_L1))
        Input::move(tab);
    tab->setDown(state.contains("pressed"_L1));

    const QImage image = window.image(ratio);
    const QRect area = window.areaOf(tab);
    const int textWidth = tab->fontMetrics().horizontalAdvance(blocks());
    const QRect middle(area.center().x() - textWidth / 2 - 2, area.top(), textWidth + 4,
                       area.height());
    const QRect corners(area.topLeft(), QSize(area.width(), 2));
    VERIFY_IMAGE(ImageChecks::isFilled(image, area, background, {middle, corners}));
    VERIFY_IMAGE(ImageChecks::contains(image, middle, background));
    VERIFY_IMAGE(ImageChecks::contains(image, middle, text));
}

void tst_RibbonSheet::tabIsAtLeast100PxWideAnd25PxHigh()
{
    const QString longTitle(30, u'M');
    RibbonWindow window;
    window.bar()->addPage(u"A"_s);
    window.bar()->addPage(longTitle);
    QVERIFY(window.showAlone());
    QCOMPARE(window.areaOf(window.tabs().at(0)), QRect(3, 3, 100, 25));
    const RibbonTab *longTab = window.tabs().at(1);
    QCOMPARE(longTab->font().pixelSize(), 12);
    QCOMPARE(longTab->size(), QSize(20 + longTab->fontMetrics().horizontalAdvance(longTitle), 25));
}

void tst_RibbonSheet::tabHasRoundCornersAtItsTop()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    RibbonWindow window(direction);
    window.bar()->addPage({});
    QVERIFY(window.showAlone());
    const QRect area = window.areaOf(window.tabs().at(0));
    const QRect left(area.topLeft(), QSize(2, 2));
    const QRect right(area.topRight() - QPoint(1, 0), QSize(2, 2));
    const QImage image = window.image(ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, area, Surface, {left, right}));
    constexpr QSize Pixel(1, 1);
    for (const QPoint outer : {left.topLeft(), right.topRight()})
        QVERIFY(!ImageChecks::isFilled(image, {outer, Pixel}, Surface).isEmpty());
    for (const QPoint inner : {left.bottomRight(), right.bottomLeft()})
        VERIFY_IMAGE(ImageChecks::isFilled(image, {inner, Pixel}, Surface));
}

void tst_RibbonSheet::plateStandsBehindVisibleTemporaryTabs()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    RibbonWindow window(direction);
    RibbonBar *bar = window.bar();
    bar->addPage(u"Checked"_s);
    bar->addPage({}, true);
    bar->addPage({}, true);
    bar->addPage(u"Hidden"_s, true);
    bar->addPage({}, false);
    bar->showPage(1);
    bar->showPage(2);
    QVERIFY(window.showAlone());

    const QList<RibbonTab *> tabs = window.tabs();
    const QImage image = window.image(ratio);
    const QRect first = window.areaOf(tabs.at(1)).adjusted(-2, -3, 2, 0);
    const QRect second = window.areaOf(tabs.at(2)).adjusted(-2, -3, 2, 0);
    QCOMPARE(first.top(), 0);
    VERIFY_IMAGE(ImageChecks::isFilled(image, first, Plate));
    VERIFY_IMAGE(ImageChecks::isFilled(image, second, Plate));
    VERIFY_IMAGE(ImageChecks::isFilled(image, {0, 0, window.width(), 28}, RibbonBlue,
                                       {first, second, window.areaOf(tabs.at(0))}));
    VERIFY_IMAGE(ImageChecks::isFilled(image, {0, 28, window.width(), 1}, Surface));
}

void tst_RibbonSheet::plateEndsWithItsTab()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    // Higher than in a ribbon bar, so that there is room below the tabs.
    QWidget window;
    window.setLayoutDirection(direction);
    auto *bar = new RibbonTabBar(&window);
    bar->setFixedSize(300, 80);
    bar->addTab(u"Page"_s, false);
    bar->addTab(u"Temporary"_s, true);
    window.resize(bar->size());
    QVERIFY(Input::show(&window));
    const auto tabs = bar->findChildren<RibbonTab *>();
    const QRect tab = tabs.at(1)->geometry();
    QVERIFY(tab.bottom() < 70);
    const QRect plate = tab.adjusted(-2, -3, 2, 0);
    const QImage image = ImageChecks::rendered(bar, ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, plate, Plate, {tab}));
    VERIFY_IMAGE(ImageChecks::isFilled(image, bar->rect(), ImageChecks::Untouched,
                                       {plate, tabs.at(0)->geometry()}));
}

void tst_RibbonSheet::tabIsPaintedOnItsPlate()
{
    RibbonWindow window;
    window.bar()->addPage(u"Page"_s);
    window.bar()->addPage({}, true);
    window.bar()->showPage(1);
    window.bar()->setCurrentIndex(1);
    QVERIFY(window.showAlone());
    const QRect tab = window.areaOf(window.tabs().at(1));
    const QImage image = window.image(1);
    VERIFY_IMAGE(ImageChecks::isFilled(image, tab.adjusted(0, 2, 0, 0), Surface));
    VERIFY_IMAGE(ImageChecks::isFilled(image, tab.adjusted(-2, -3, 2, 0), Plate, {tab}));
}

void tst_RibbonSheet::groupTitleAndLinesHaveTheirColors()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    const QColor titleColor(97, 97, 97);
    RibbonWindow window(direction);
    RibbonGroup *group = window.bar()->addPage(u"Page"_s)->addGroup(blocks());
    group->addSeparator();
    QVERIFY(window.showAlone());

    const QImage image = window.image(ratio);
    VERIFY_IMAGE(ImageChecks::contains(
        image, window.areaOf(group->findChild<QLabel *>(u"groupTitle"_s)), titleColor));
    const auto lines = group->findChildren<QFrame *>(u"separator"_s);
    QCOMPARE(lines.size(), 2);
    for (const QFrame *line : lines) {
        const QRect area = window.areaOf(line);
        QCOMPARE(area.size(), QSize(1, 80));
        QCOMPARE(ImageChecks::paintedRect(image, area.adjusted(-1, 0, 1, 0), Surface), area);
        // The frame draws its line one device pixel wide at any ratio.
        for (int y = area.top(); y <= area.bottom(); ++y)
            VERIFY_IMAGE(ImageChecks::contains(image, {area.left(), y, 1, 1}, Line));
    }
}

void tst_RibbonSheet::lineEditShowsTheFocus()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    RibbonWindow window(direction);
    auto *edit = embed<QLineEdit>(window);
    auto *other = embed<QLineEdit>(window);
    QVERIFY(window.showAlone());
    const QRect area = window.areaOf(edit);
    const QRect inside = area.marginsRemoved(Border);

    other->setFocus();
    QImage image = window.image(ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, area, Frame, {inside}));
    VERIFY_IMAGE(ImageChecks::isFilled(image, inside, White));
    edit->setFocus();
    image = window.image(ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, area, Accent, {inside}));
    VERIFY_IMAGE(ImageChecks::contains(image, inside, White));
}

void tst_RibbonSheet::spinBoxShowsTheFocus()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    RibbonWindow window(direction);
    auto *spin = embed<QSpinBox>(window);
    auto *other = embed<QSpinBox>(window);
    QVERIFY(window.showAlone());
    const QRect area = window.areaOf(spin);

    other->setFocus();
    VERIFY_IMAGE(
        ImageChecks::isFilled(window.image(ratio), area, Frame, {area.marginsRemoved(Border)}));
    spin->setFocus();
    VERIFY_IMAGE(
        ImageChecks::isFilled(window.image(ratio), area, Accent, {area.marginsRemoved(Border)}));
}

void tst_RibbonSheet::spinButtonShowsItsState_data()
{
    QTest::addColumn<QStyle::SubControl>("control");
    QTest::addColumn<QString>("state");
    QTest::addColumn<QColor>("border");
    QTest::addColumn<QColor>("background");
    QTest::addColumn<int>("ratio");
    for (const int ratio : {1, 2}) {
        for (const QStyle::SubControl control : {QStyle::SC_SpinBoxUp, QStyle::SC_SpinBoxDown}) {
            const char *name = control == QStyle::SC_SpinBoxUp ? "up" : "down";
            QTest::addRow("%s, normal, ratio %d", name, ratio)
                << control << u"normal"_s << Frame << QColor(235, 235, 235) << ratio;
            QTest::addRow("%s, hovered, ratio %d", name, ratio)
                << control << u"hovered"_s << Accent << White << ratio;
            QTest::addRow("%s, pressed, ratio %d", name, ratio)
                << control << u"pressed"_s << Accent << QColor(215, 215, 215) << ratio;
        }
    }
}

void tst_RibbonSheet::spinButtonShowsItsState()
{
    QFETCH(const QStyle::SubControl, control);
    QFETCH(const QString, state);
    QFETCH(const QColor, border);
    QFETCH(const QColor, background);
    QFETCH(const int, ratio);
    RibbonWindow window;
    auto *spin = embed<QSpinBox>(window);
    spin->setValue(50);
    spin->setFixedSize(100, 40);
    QVERIFY(window.showAlone());
    const QRect button = spinButton(spin, control);
    if (state != "normal"_L1)
        Input::move(spin, button.center());
    if (state == "pressed"_L1)
        Input::press(spin, button.center());
    const QImage image = window.image(ratio);
    if (state == "pressed"_L1)
        Input::release(spin, button.center());

    QCOMPARE(button.width(), 1 + 20);
    QCOMPARE(button.right(), spin->width() - 2);
    const QRect area = button.translated(window.areaOf(spin).topLeft());
    const bool isUp = control == QStyle::SC_SpinBoxUp;
    const QRect inside = area.adjusted(1, 0, 0, isUp ? -1 : 0);
    const QRect arrow(inside.center() - QPoint(6, 6), QSize(13, 13));
    VERIFY_IMAGE(ImageChecks::isFilled(image, area, border, {inside}));
    VERIFY_IMAGE(ImageChecks::isFilled(image, inside, background, {arrow}));
}

void tst_RibbonSheet::spinButtonHasItsArrow_data()
{
    QTest::addColumn<QStyle::SubControl>("control");
    QTest::addColumn<QString>("path");
    QTest::newRow("up") << QStyle::SC_SpinBoxUp << u":/res/spinUp.svg"_s;
    QTest::newRow("down") << QStyle::SC_SpinBoxDown << u":/res/spinDown.svg"_s;
}

void tst_RibbonSheet::spinButtonHasItsArrow()
{
    QFETCH(const QStyle::SubControl, control);
    QFETCH(const QString, path);
    RibbonWindow window;
    auto *spin = embed<QSpinBox>(window);
    spin->setValue(50);
    spin->setFixedSize(100, 40);
    QVERIFY(window.showAlone());
    const bool isUp = control == QStyle::SC_SpinBoxUp;
    const QRect inside = spinButton(spin, control)
                             .translated(window.areaOf(spin).topLeft())
                             .adjusted(1, 0, 0, isUp ? -1 : 0);
    const QImage image = window.image(1);
    const QImage expected = imageInMiddle(image, inside, QColor(235, 235, 235), path);
    VERIFY_IMAGE(ImageChecks::isSame(image, expected, inside, ImageTolerance));
}

void tst_RibbonSheet::comboBoxShowsThePointer()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    RibbonWindow window(direction);
    auto *combo = embed<QComboBox>(window);
    combo->setMinimumWidth(80);
    QVERIFY(window.showAlone());
    const QRect area = window.areaOf(combo);
    const QRect arrow = comboPart(combo, QStyle::SC_ComboBoxArrow).translated(area.topLeft());
    const QRect inside = area.marginsRemoved(Border);

    QImage image = window.image(ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, area, Frame, {inside}));
    VERIFY_IMAGE(ImageChecks::isFilled(image, inside, Surface, {arrow}));
    VERIFY_IMAGE(ImageChecks::contains(image, arrow, Surface));
    Input::move(combo);
    image = window.image(ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, area, Frame, {inside}));
    VERIFY_IMAGE(ImageChecks::isFilled(image, inside, White, {arrow}));
    VERIFY_IMAGE(ImageChecks::contains(image, arrow, White));
}

void tst_RibbonSheet::comboBoxHasItsArrow()
{
    RibbonWindow window;
    auto *combo = embed<QComboBox>(window);
    QVERIFY(window.showAlone());
    const QRect area = comboPart(combo, QStyle::SC_ComboBoxArrow)
                           .translated(window.areaOf(combo).topLeft());
    const QImage image = window.image(1);
    VERIFY_IMAGE(ImageChecks::isSame(
        image, imageInMiddle(image, area, Surface, u":/res/arrow.svg"_s), area, ImageTolerance));
    QCOMPARE(ImageChecks::paintedRect(image, area, Surface).size(), QSize(8, 4));
}

void tst_RibbonSheet::comboBoxKeepsItsTextOffTheFrame()
{
    RibbonWindow window;
    auto *combo = embed<QComboBox>(window);
    QVERIFY(window.showAlone());
    QCOMPARE(comboPart(combo, QStyle::SC_ComboBoxEditField).left(), 1 + 2);
}

void tst_RibbonSheet::comboBoxListShowsItsItems_data()
{
    QTest::addColumn<int>("ratio");
    QTest::newRow("ratio 1") << 1;
    QTest::newRow("ratio 2") << 2;
}

void tst_RibbonSheet::comboBoxListShowsItsItems()
{
    QFETCH(const int, ratio);
    RibbonWindow window;
    OpenList list(window);
    QVERIFY(window.showAlone());
    QVERIFY(list.open());

    QImage image = ImageChecks::rendered(list.view(), ratio, true);
    const QRect whole = list.view()->rect();
    VERIFY_IMAGE(ImageChecks::isFilled(image, whole, Frame, {whole.marginsRemoved(Border)}));
    QCOMPARE(list.item(NormalItem).height(), 1 + 22 + 1);
    VERIFY_IMAGE(ImageChecks::isFilled(image, list.item(HoveredItem), White));
    VERIFY_IMAGE(
        ImageChecks::isFilled(image, list.item(SelectedItem).marginsRemoved(Border), Line));
    VERIFY_IMAGE(ImageChecks::contains(image, list.item(NormalItem), Qt::black));
    VERIFY_IMAGE(ImageChecks::contains(image, list.item(NormalItem), White));

    const QPoint inViewport = list.item(HoveredItem).center()
                              - list.view()->viewport()->geometry().topLeft();
    Input::move(list.view()->viewport(), inViewport);
    image = ImageChecks::rendered(list.view(), ratio, true);
    const QRect hovered = list.item(HoveredItem);
    VERIFY_IMAGE(ImageChecks::isFilled(image, hovered, QColor(38, 149, 221),
                                       {hovered.marginsRemoved(Border)}));
    VERIFY_IMAGE(
        ImageChecks::isFilled(image, hovered.marginsRemoved(Border), QColor(180, 222, 255)));
    // The pointer takes the selection along.
    VERIFY_IMAGE(ImageChecks::isFilled(image, list.item(SelectedItem), White));

    const QRect last = list.item(SelectedItem + 1);
    list.view()->window()->resize(list.view()->window()->size() + QSize(0, 20));
    image = ImageChecks::rendered(list.view(), ratio, true);
    VERIFY_IMAGE(
        ImageChecks::isFilled(image, {last.left(), last.bottom() + 1, last.width(), 18}, White));
}

void tst_RibbonSheet::comboBoxListHasNoFocusFrame()
{
    RibbonWindow window;
    OpenList list(window);
    QVERIFY(window.showAlone());
    QVERIFY(list.open());
    QTest::keyClick(list.view(), Qt::Key_Down);
    const QImage image = ImageChecks::rendered(list.view(), 1, true);
    VERIFY_IMAGE(ImageChecks::isFilled(image, list.item(SelectedItem), White));
    VERIFY_IMAGE(
        ImageChecks::isFilled(image, list.item(SelectedItem + 1).marginsRemoved(Border), Line));
}

void tst_RibbonSheet::indicatorIsItsImage_data()
{
    QTest::addColumn<bool>("radio");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QString>("path");
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        const char *name = direction == Qt::LeftToRight ? "left to right" : "right to left";
        QTest::addRow("radio button, %s", name)
            << true << false << direction << u":/res/radioUnchecked.svg"_s;
        QTest::addRow("checked radio button, %s", name)
            << true << true << direction << u":/res/radioChecked.svg"_s;
        QTest::addRow("check box, %s", name)
            << false << false << direction << u":/res/boxUnchecked.svg"_s;
        QTest::addRow("checked check box, %s", name)
            << false << true << direction << u":/res/boxChecked.svg"_s;
    }
}

void tst_RibbonSheet::indicatorIsItsImage()
{
    QFETCH(const bool, radio);
    QFETCH(const bool, checked);
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QString, path);
    RibbonWindow window(direction);
    QAbstractButton *button = nullptr;
    if (radio)
        button = embed<QRadioButton>(window);
    else
        button = embed<QCheckBox>(window);
    button->setText(u"Text"_s);
    button->setChecked(checked);
    QVERIFY(window.showAlone());

    const QRect area = indicator(button).translated(window.areaOf(button).topLeft());
    QCOMPARE(area.size(), QSize(16, 16));
    const QImage image = window.image(1);
    VERIFY_IMAGE(ImageChecks::isSame(image, imageInMiddle(image, area, Surface, path), area,
                                     ImageTolerance));
}

QTEST_MAIN(tst_RibbonSheet)
#include "tst_ribbonsheet.moc"
