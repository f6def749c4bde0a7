// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/SheetWindow.h"

#include "support/TestCase.h"

#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace SheetWindows;
using namespace VornFrame;

class tst_DockSheet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void containerHasALineAtItsTopOnly_data() { addRatios(); }
    void containerHasALineAtItsTopOnly();
    void sidesHaveALineTowardsTheColumn_data() { addRatios(); }
    void sidesHaveALineTowardsTheColumn();
    void sideBarsHaveTheirGroundAndLine_data() { addRatios(); }
    void sideBarsHaveTheirGroundAndLine();
    void linesOfTheBarsAreThin_data() { addRatios(); }
    void linesOfTheBarsAreThin();
    void statusBarHasItsGroundAndLine_data() { addRatios(); }
    void statusBarHasItsGroundAndLine();
    void bottomBarHasItsGroundInTheColumnToo_data() { addRatios(); }
    void bottomBarHasItsGroundInTheColumnToo();
    void barButtonShowsItsState_data();
    void barButtonShowsItsState();

    void titleHasItsGroundAndLine_data() { addRatios(); }
    void titleHasItsGroundAndLine();
    void titleButtonShowsThePointer_data() { addStates({"normal", "hovered", "pressed"}); }
    void titleButtonShowsThePointer();
    void secondViewHasALineAtItsTop_data() { addRatios(); }
    void secondViewHasALineAtItsTop();
};

void tst_DockSheet::initTestCase()
{
    TestCase::initTestCase();
    setStrangePalette();
}

void tst_DockSheet::containerHasALineAtItsTopOnly()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    QVERIFY(window.showAlone());
    const QRect dock = window.areaOf(window.dock());
    const QImage image = window.image(ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, {dock.topLeft(), QSize(dock.width(), 1)}, Frame));
    QCOMPARE(window.dock()->contentsRect(), window.dock()->rect().adjusted(0, 1, 0, 0));
}

void tst_DockSheet::sidesHaveALineTowardsTheColumn()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    QVERIFY(window.showAlone());
    const QImage image = window.image(ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(
        image, window.endOf(window.areaOf(window.stack(DockContainer::Left))), Line));
    VERIFY_IMAGE(ImageChecks::isFilled(
        image, window.startOf(window.areaOf(window.stack(DockContainer::Right))), Line));
    // No other line: the view fills the rest.
    QCOMPARE(window.stack(DockContainer::Left)->contentsRect().width(),
             window.stack(DockContainer::Left)->width() - 1);
    QCOMPARE(window.stack(DockContainer::Left)->contentsRect().height(),
             window.stack(DockContainer::Left)->height());
    QCOMPARE(window.stack(DockContainer::Bottom)->contentsRect(),
             window.stack(DockContainer::Bottom)->rect());
}

void tst_DockSheet::sideBarsHaveTheirGroundAndLine()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    QVERIFY(window.showAlone());
    const QImage image = window.image(ratio);
    for (const DockContainer::DockArea area : {DockContainer::Left, DockContainer::Right}) {
        const QRect bar = window.areaOf(window.bar(area));
        const QRect line = area == DockContainer::Left ? window.endOf(bar) : window.startOf(bar);
        QCOMPARE(bar.width(), 35);
        VERIFY_IMAGE(ImageChecks::isFilled(image, line, Line));
        VERIFY_IMAGE(
            ImageChecks::isFilled(image, bar, Bar, {line, window.areaOf(window.button(area))}));
    }
}

void tst_DockSheet::linesOfTheBarsAreThin()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    for (const DockContainer::DockArea area : Areas)
        window.side(area)->addSeparator();
    QVERIFY(window.showAlone());
    const QImage image = window.image(ratio);
    for (const DockContainer::DockArea area : Areas) {
        const auto lines = window.bar(area)->findChildren<QFrame *>(QString(),
                                                                    Qt::FindDirectChildrenOnly);
        // The bottom bar starts with one.
        QCOMPARE(lines.size(), area == DockContainer::Bottom ? 2 : 1);
        for (const QFrame *line : lines) {
            QCOMPARE(area == DockContainer::Bottom ? line->width() : line->height(), 1);
            VERIFY_IMAGE(ImageChecks::isFilled(image, window.areaOf(line), Line));
        }
    }
}

void tst_DockSheet::statusBarHasItsGroundAndLine()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    window.dockStatusBar()->setSizeGripEnabled(false);
    QVERIFY(window.showAlone());
    const QImage image = window.image(ratio);
    const QRect status = window.areaOf(window.dockStatusBar());
    const QRect line(status.topLeft(), QSize(status.width(), 1));
    VERIFY_IMAGE(ImageChecks::isFilled(image, line, Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, status, Bar,
                                       {line, window.areaOf(window.bar(DockContainer::Bottom))}));
    VERIFY_IMAGE(
        ImageChecks::contains(image, window.areaOf(window.bar(DockContainer::Bottom)), Bar));
}

void tst_DockSheet::bottomBarHasItsGroundInTheColumnToo()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    ContainerWindow window(direction);
    window.fill();
    QVERIFY(Input::show(&window));
    Input::move(window.content());
    const QRect bar = window.areaOf(window.bar(DockContainer::Bottom));
    const auto lines = window.bar(DockContainer::Bottom)
                           ->findChildren<QFrame *>(QString(), Qt::FindDirectChildrenOnly);
    VERIFY_IMAGE(ImageChecks::isFilled(
        window.image(ratio), bar, Bar,
        {window.areaOf(lines.at(0)), window.areaOf(window.button(DockContainer::Bottom))}));
}

void tst_DockSheet::barButtonShowsItsState_data()
{
    QTest::addColumn<DockContainer::DockArea>("area");
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("ratio");
    for (const int ratio : {1, 2}) {
        for (const DockContainer::DockArea area : Areas) {
            for (const char *state : {"normal", "hovered", "pressed", "checked"})
                QTest::addRow("%s, %s, ratio %d", nameOf(area), state, ratio)
                    << area << QString::fromLatin1(state) << ratio;
        }
    }
}

void tst_DockSheet::barButtonShowsItsState()
{
    QFETCH(const DockContainer::DockArea, area);
    QFETCH(const QString, state);
    QFETCH(const int, ratio);
    SheetWindow window(Qt::LeftToRight);
    window.addView(area);
    QVERIFY(window.showAlone());
    QAbstractButton *button = window.button(area, 1);
    if (state == "hovered"_L1)
        Input::move(button);
    button->setDown(state == "pressed"_L1);
    button->setChecked(state == "checked"_L1);
    const QRect rect = window.areaOf(button);
    QCOMPARE(rect.size(), QSize(30, 30));
    const QRect icon = rect.marginsRemoved({3, 3, 3, 3});
    const QImage image = window.image(ratio);
    if (state == "normal"_L1) {
        VERIFY_IMAGE(ImageChecks::isFilled(image, rect, Bar, {icon}));
        return;
    }
    const QRect inside = rect.marginsRemoved(Border);
    const auto corners = [](const QRect &of) {
        constexpr QSize Size(4, 4);
        return QList<QRect>{{of.topLeft(), Size},
                            {of.topRight() - QPoint(3, 0), Size},
                            {of.bottomLeft() - QPoint(0, 3), Size},
                            {of.bottomRight() - QPoint(3, 3), Size}};
    };
    VERIFY_IMAGE(ImageChecks::isFilled(image, rect, ButtonFrame, corners(rect) + QList{inside}));
    VERIFY_IMAGE(ImageChecks::isFilled(image, inside, White, corners(rect) + QList{icon}));
    // Round corners, of which only a breath is left.
    QVERIFY(ImageChecks::colorAt(image, rect.topLeft()).red() > 200);
}

void tst_DockSheet::titleHasItsGroundAndLine()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    for (const DockContainer::DockArea area : Areas)
        window.side(area)->addView(new QWidget, plainIcon(), {});
    QVERIFY(window.showAlone());
    for (const DockContainer::DockArea area : Areas) {
        window.side(area)->setCurrentIndex(1);
        const QWidget *button = nullptr;
        for (const QPushButton *candidate : window.stack(area)->findChildren<QPushButton *>()) {
            if (candidate->isVisible())
                button = candidate;
        }
        QVERIFY(button);
        const QRect title = window.areaOf(button->parentWidget());
        const QRect line(title.bottomLeft(), QSize(title.width(), 1));
        // From right to left, a splitter may cut off a pixel at its end.
        const QRect shown = title & window.areaOf(window.stack(area))
                            & window.areaOf(window.hSplitter());
        QCOMPARE(title.height(), 24 + 1);
        QCOMPARE(button->size(), QSize(22, 22));
        const QImage image = window.image(ratio);
        VERIFY_IMAGE(ImageChecks::isFilled(image, line & shown, Line));
        VERIFY_IMAGE(ImageChecks::isFilled(image, shown, White, {line, window.areaOf(button)}));
    }
}

void tst_DockSheet::titleButtonShowsThePointer()
{
    QFETCH(const QString, state);
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    QVERIFY(window.showAlone());
    QPushButton *button = nullptr;
    for (QPushButton *candidate :
         window.stack(DockContainer::Bottom)->findChildren<QPushButton *>()) {
        if (candidate->isVisible())
            button = candidate;
    }
    QVERIFY(button);
    if (state == "hovered"_L1)
        Input::move(button);
    button->setDown(state == "pressed"_L1);
    const QRect rect = window.areaOf(button);
    const QRect top(rect.left() + 5, rect.top(), rect.width() - 10, 1);
    VERIFY_IMAGE(
        ImageChecks::isFilled(window.image(ratio), top, state == "normal"_L1 ? White : Frame));
}

void tst_DockSheet::secondViewHasALineAtItsTop()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    for (const DockContainer::DockArea area : Areas)
        window.side(area)->tabifyView(0, new QWidget, plainIcon(), u"second"_s);
    QVERIFY(window.showAlone());
    const QImage image = window.image(ratio);
    for (const DockContainer::DockArea area : Areas) {
        const auto *page = window.stack(area)->findChild<QSplitter *>();
        const QRect second = window.areaOf(page->widget(1)) & window.areaOf(window.stack(area));
        const QRect top(second.topLeft(), QSize(second.width(), 1));
        VERIFY_IMAGE(ImageChecks::isFilled(image, middleOf(top),
                                           area == DockContainer::Bottom ? White : Line));
    }
}

QTEST_MAIN(tst_DockSheet)

#include "tst_docksheet.moc"
