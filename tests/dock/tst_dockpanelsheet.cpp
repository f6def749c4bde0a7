// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/BarWindow.h"
#include "support/ImageChecks.h"
#include "support/Input.h"
#include "support/TestCase.h"

using namespace Qt::StringLiterals;
using namespace BarWindows;
using namespace VornFrame;

namespace {

constexpr QColor Ground(230, 230, 230);
constexpr QColor Line(191, 191, 191);

} // namespace

class tst_DockPanelSheet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void horizontalBarHasItsRealSizeWhenItIsShown();
    void horizontalBarFollowsEveryChangeOnAVisibleWindow();
    void sheetMakesASideBar35PxWide_data();
    void sheetMakesASideBar35PxWide();
    void sheetDrawsTheLinesOfASideBar_data();
    void sheetDrawsTheLinesOfASideBar();
    void sheetDrawsTheBottomBar_data();
    void sheetDrawsTheBottomBar();
    void rightToLeftBottomBarStartsAtItsRight();
};

void tst_DockPanelSheet::horizontalBarHasItsRealSizeWhenItIsShown()
{
    BarWindow window(u"bottom"_s);
    addButtons(window.bar(), 3);
    window.bar().addSeparator();
    window.bar().tabifyButton(1, u"more"_s, icon(Qt::blue));
    window.bar().setButtonVisible(0, false);
    QVERIFY(Input::show(&window));
    QTRY_COMPARE(window.bar().width(), 6 + 1 + 2 * 36 + 7 + 6);
    QCOMPARE(window.bar().height(), 57);
}

void tst_DockPanelSheet::horizontalBarFollowsEveryChangeOnAVisibleWindow()
{
    BarWindow window(u"bottom"_s);
    DockPanel &panel = window.bar();
    QVERIFY(Input::show(&window));
    int width = 6 + 1 + 6; // the two margins and the line
    QTRY_COMPARE(panel.width(), width);
    for (int i = 0; i < 3; ++i) {
        panel.addButton(u"button"_s, icon(Qt::red));
        width += 6 + 30;
        QTRY_COMPARE(panel.width(), width);
        QCOMPARE(panel.height(), 30);
    }
    panel.tabifyButton(1, u"more"_s, icon(Qt::blue));
    QTRY_COMPARE(panel.height(), 57);
    QCOMPARE(panel.width(), width);
    panel.addSeparator();
    width += 6 + 1;
    QTRY_COMPARE(panel.width(), width);
    panel.setButtonVisible(1, false);
    QTRY_COMPARE(panel.width(), width - 36);
    QTRY_COMPARE(panel.height(), 30);
    panel.setButtonVisible(1, true);
    QTRY_COMPARE(panel.width(), width);
    QTRY_COMPARE(panel.height(), 57);
}

void tst_DockPanelSheet::sheetMakesASideBar35PxWide_data()
{
    QTest::addColumn<QString>("direction");
    QTest::newRow("left") << u"left"_s;
    QTest::newRow("right") << u"right"_s;
}

void tst_DockPanelSheet::sheetMakesASideBar35PxWide()
{
    QFETCH(const QString, direction);
    BarWindow window(direction);
    addButtons(window.bar(), 2);
    QVERIFY(Input::show(&window));
    QCOMPARE(window.bar().width(), 35);
    QCOMPARE(window.bar().minimumWidth(), 35);
    QCOMPARE(window.bar().maximumWidth(), 35);
    QCOMPARE(window.bar().height(), 600);
}

void tst_DockPanelSheet::sheetDrawsTheLinesOfASideBar_data()
{
    QTest::addColumn<QString>("direction");
    QTest::addColumn<Qt::LayoutDirection>("layoutDirection");
    QTest::addColumn<int>("lineAt");
    QTest::addColumn<int>("ratio");
    for (const int ratio : {1, 2}) {
        QTest::addRow("left, ratio %d", ratio) << u"left"_s << Qt::LeftToRight << 34 << ratio;
        QTest::addRow("right, ratio %d", ratio) << u"right"_s << Qt::LeftToRight << 0 << ratio;
        QTest::addRow("left, right to left, ratio %d", ratio)
            << u"left"_s << Qt::RightToLeft << 0 << ratio;
        QTest::addRow("right, right to left, ratio %d", ratio)
            << u"right"_s << Qt::RightToLeft << 34 << ratio;
    }
}

void tst_DockPanelSheet::sheetDrawsTheLinesOfASideBar()
{
    QFETCH(const QString, direction);
    QFETCH(const Qt::LayoutDirection, layoutDirection);
    QFETCH(const int, lineAt);
    QFETCH(const int, ratio);
    BarWindow window(direction, layoutDirection);
    DockPanel &panel = window.bar();
    addButtons(panel, 1);
    panel.addSeparator();
    QVERIFY(Input::show(&window));
    const QRect border(lineAt, 0, 1, 600);
    const QRect button = buttonOf(panel, 0)->geometry();
    const QRect line = itemOf(panel, 1)->geometry();
    QCOMPARE(button.y(), 6);
    QCOMPARE(line.y(), button.bottom() + 1 + 6);
    QCOMPARE(line.height(), 1);
    const QImage image = ImageChecks::rendered(&panel, ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, border, Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, line, Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, panel.rect(), Ground, {border, line, button}));
}

void tst_DockPanelSheet::sheetDrawsTheBottomBar_data()
{
    QTest::addColumn<int>("ratio");
    QTest::newRow("ratio 1") << 1;
    QTest::newRow("ratio 2") << 2;
}

void tst_DockPanelSheet::sheetDrawsTheBottomBar()
{
    QFETCH(const int, ratio);
    BarWindow window(u"bottom"_s);
    DockPanel &panel = window.bar();
    addButtons(panel, 1);
    QVERIFY(Input::show(&window));
    QTRY_COMPARE(panel.width(), 6 + 1 + 6 + 30 + 6);
    const QRect line = itemOf(panel, 0)->geometry();
    const QRect button = buttonOf(panel, 0)->geometry();
    QCOMPARE(line.x(), 6);
    QCOMPARE(line.width(), 1);
    QCOMPARE(button.x(), 6 + 1 + 6);
    QCOMPARE(button.center().y(), panel.rect().center().y());
    const QImage image = ImageChecks::rendered(&panel, ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, line, Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, panel.rect(), Ground, {line, button}));
}

void tst_DockPanelSheet::rightToLeftBottomBarStartsAtItsRight()
{
    BarWindow window(u"bottom"_s, Qt::RightToLeft);
    DockPanel &panel = window.bar();
    addButtons(panel, 2);
    QVERIFY(Input::show(&window));
    const int width = 6 + 1 + 2 * 36 + 6;
    QTRY_COMPARE(panel.width(), width);
    QCOMPARE(panel.geometry().right(), 599);
    QCOMPARE(itemOf(panel, 0)->geometry().right(), width - 1 - 6);
    QCOMPARE(buttonOf(panel, 0)->geometry().right(), width - 1 - 6 - 1 - 6);
    QCOMPARE(buttonOf(panel, 1)->geometry().left(), 6);
}

QTEST_MAIN(tst_DockPanelSheet)

#include "tst_dockpanelsheet.moc"
