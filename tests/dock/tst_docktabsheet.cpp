// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/SheetWindow.h"

#include "support/TestCase.h"

using namespace Qt::StringLiterals;
using namespace SheetWindows;
using namespace VornFrame;

class tst_DockTabSheet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void contentIsWhiteAboveItsLine_data() { addRatios(); }
    void contentIsWhiteAboveItsLine();
    void panesHaveTheirFrames_data() { addRatios(); }
    void panesHaveTheirFrames();
    void rowsAre26PxHigh_data() { addRatios(); }
    void rowsAre26PxHigh();
    void tabShowsItsState_data() { addStates({"normal", "selected", "hovered"}); }
    void tabShowsItsState();
    void firstTabHasALineAtItsStart_data() { addRatios(); }
    void firstTabHasALineAtItsStart();
    void onlyTabIsAsHighAsOneOfSeveral_data() { addRatios(); }
    void onlyTabIsAsHighAsOneOfSeveral();
    void sectionTabShowsItsState_data() { addStates({"normal", "selected", "hovered"}); }
    void sectionTabShowsItsState();
    void onlySectionTabIsAsHighAsOneOfSeveral_data() { addRatios(); }
    void onlySectionTabIsAsHighAsOneOfSeveral();
    void sectionTabHasRoomBesideItsText();
    void closeButtonShowsItsState_data() { addStates({"normal", "hovered", "pressed"}); }
    void closeButtonShowsItsState();
};

void tst_DockTabSheet::initTestCase()
{
    TestCase::initTestCase();
    setStrangePalette();
}

void tst_DockTabSheet::contentIsWhiteAboveItsLine()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    window.content()->setAutoHide(false);
    QVERIFY(window.showAlone());
    const QRect content = window.areaOf(window.content());
    const QRect line(content.bottomLeft(), QSize(content.width(), 1));
    const QImage image = window.image(ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, line, Frame));
    VERIFY_IMAGE(ImageChecks::isFilled(image, content, White, {line}));
}

void tst_DockTabSheet::panesHaveTheirFrames()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    window.addTabs(2);
    QVERIFY(window.showAlone());
    const QImage image = window.image(ratio);
    const QRect tabs = window.areaOf(tabsOf(window.content(), 0));
    const QRect page = window.areaOf(window.content()->widget(0, 0));
    // Left, right and bottom; the row of tabs covers a part of the top.
    QCOMPARE(page, tabs.adjusted(1, 26, -1, -1));
    VERIFY_IMAGE(ImageChecks::isFilled(image, {tabs.left(), page.top(), 1, page.height()}, Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, {tabs.right(), page.top(), 1, page.height()}, Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, {tabs.bottomLeft(), QSize(tabs.width(), 1)}, Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, page, White));
    const QRect row = window.areaOf(window.tabBar());
    const int beside = direction == Qt::LeftToRight ? row.right() + 1 : tabs.left();
    const int room = tabs.width() - row.width();
    VERIFY_IMAGE(ImageChecks::isFilled(image, {beside, page.top() - 1, room, 1}, Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, {beside, tabs.top(), room, 25}, Surface));
    // The margins of a section, and the line below it.
    const QRect area = window.areaOf(window.content());
    VERIFY_IMAGE(ImageChecks::isFilled(image, tabs.adjusted(-3, -3, 3, 3), Surface, {tabs}));
    const QRect sections = window.areaOf(window.sectionBar());
    const int besideSections = direction == Qt::LeftToRight ? sections.right() + 1 : area.left();
    VERIFY_IMAGE(ImageChecks::isFilled(
        image, {besideSections, tabs.bottom() + 4, area.width() - sections.width(), 1}, Line));
}

void tst_DockTabSheet::rowsAre26PxHigh()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    window.addTabs(2);
    QVERIFY(window.showAlone());
    QCOMPARE(window.tabBar()->height(), 26);
    QCOMPARE(window.sectionBar()->height(), 26);
    // What the tabs leave of their row is white.
    const QRect row = window.areaOf(window.tabBar());
    const QRect under(row.bottomLeft(), QSize(row.width(), 1));
    VERIFY_IMAGE(ImageChecks::isFilled(window.image(ratio), middleOf(under), White));
}

void tst_DockTabSheet::tabShowsItsState()
{
    QFETCH(const QString, state);
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    window.addTabs(3);
    QVERIFY(window.showAlone());
    const bool selected = state == "selected"_L1;
    if (selected)
        window.content()->setCurrentTab(0, 1);
    if (state == "hovered"_L1)
        Input::move(window.tabBar(), window.tabBar()->tabRect(1).center() + QPoint(0, 11));
    const QColor ground = selected ? White : state == "hovered"_L1 ? Surface : Bar;
    const QRect tab = window.areaOfTab(window.tabBar(), 1);
    QCOMPARE(tab.height(), 3 + 21 + 1);
    const QRect edge(tab.left(), tab.top(), tab.width(), 3);
    const QRect line(tab.left(), tab.bottom(), tab.width(), 1);
    const QRect end = window.endOf(tab);
    const QImage image = window.image(ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, middleOf(edge), selected ? TabAccent : TabEdge));
    VERIFY_IMAGE(ImageChecks::isFilled(image, middleOf(line), selected ? White : Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, end.adjusted(0, 4, 0, -2), Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, tab, ground,
                                       {edge, line, end, window.areaOf(window.closeButton(1))}));
    // Room for the text: more before it than behind the button.
    const QRect button = window.areaOf(window.closeButton(1));
    const int before = direction == Qt::LeftToRight ? button.left() - tab.left()
                                                    : tab.right() - button.right();
    QVERIFY(before >= 8);
}

void tst_DockTabSheet::firstTabHasALineAtItsStart()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    window.addTabs(2);
    QVERIFY(window.showAlone());
    const auto inner = [&window](int tab) {
        return window.startOf(window.areaOfTab(window.tabBar(), tab)).adjusted(0, 4, 0, -2);
    };
    const QImage image = window.image(ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, inner(0), Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, inner(1), Bar));
}

void tst_DockTabSheet::onlyTabIsAsHighAsOneOfSeveral()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    window.addTabs(1);
    QVERIFY(window.showAlone());
    const QRect tab = window.areaOfTab(window.tabBar(), 0);
    // Alone, it has to make up for the pixel that a selected tab stands over.
    QCOMPARE(tab.height(), 3 + 22 + 1 - 1);
    const QImage image = window.image(ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, window.startOf(tab).adjusted(0, 4, 0, -2), Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, window.endOf(tab).adjusted(0, 4, 0, -2), Line));
    // Nothing between it and its page.
    VERIFY_IMAGE(ImageChecks::isFilled(
        image, middleOf({tab.left(), tab.top() + 3, tab.width(), tab.height()}), White,
        {window.areaOf(window.closeButton(0))}));
}

void tst_DockTabSheet::sectionTabShowsItsState()
{
    QFETCH(const QString, state);
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    for (const int section : {0, 1, 2}) {
        window.content()->addSection({});
        window.addTabs(1, section);
    }
    QVERIFY(window.showAlone());
    const bool selected = state == "selected"_L1;
    window.content()->setCurrentTab(selected ? 1 : 0, 0);
    if (state == "hovered"_L1)
        Input::move(window.sectionBar(), window.sectionBar()->tabRect(1).center());
    const QColor ground = state == "normal"_L1 ? Bar : White;
    const QRect tab = window.areaOfTab(window.sectionBar(), 1);
    QCOMPARE(tab.height(), 1 + 21 + 2);
    // The selected one stands a pixel higher, over the line of the pane.
    const int shift = selected ? 1 : 0;
    const QRect line(tab.left(), tab.top() - shift, tab.width(), 1);
    const QRect edge(tab.left(), tab.bottom() - 1 - shift, tab.width(), 2);
    const QRect end = window.endOf(tab);
    const QImage image = window.image(ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, middleOf(edge), selected ? TabAccent : TabEdge));
    VERIFY_IMAGE(ImageChecks::isFilled(image, middleOf(line), selected ? Surface : Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, end.adjusted(0, 2, 0, -3), Line));
    VERIFY_IMAGE(ImageChecks::isFilled(image, middleOf(tab), ground, {line, edge}));
}

void tst_DockTabSheet::onlySectionTabIsAsHighAsOneOfSeveral()
{
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    window.content()->addSection({});
    window.addTabs(1);
    QVERIFY(window.showAlone());
    const QRect tab = window.areaOfTab(window.sectionBar(), 0);
    // A row whose only tab was hidden before tells the sheet too late that it is alone (Qt 6.4).
    QVERIFY(tab.height() == 1 + 22 + 2 - 1 || tab.height() == 1 + 21 + 2 - 1);
    const QRect edge(tab.left(), tab.bottom() - 1, tab.width(), 2);
    VERIFY_IMAGE(ImageChecks::isFilled(window.image(ratio), middleOf(edge), TabAccent));
}

void tst_DockTabSheet::sectionTabHasRoomBesideItsText()
{
    SheetWindow window(Qt::LeftToRight);
    const QString text(4, QChar(0x2588));
    window.content()->addSection(text);
    window.content()->addSection(text);
    window.addTabs(1, 0);
    window.addTabs(1, 1);
    QVERIFY(window.showAlone());
    const QTabBar *bar = window.sectionBar();
    const int textWidth = bar->fontMetrics().size(Qt::TextShowMnemonic, text).width();
    QVERIFY(bar->tabRect(1).width() >= textWidth + 2 * 16 + 1);
    const QRect tab = window.areaOfTab(bar, 1);
    const QImage image = window.image(1);
    VERIFY_IMAGE(ImageChecks::isFilled(image, {tab.left() + 1, tab.top() + 3, 14, 15}, Bar));
    VERIFY_IMAGE(ImageChecks::contains(image, tab, QApplication::palette().windowText().color()));
}

void tst_DockTabSheet::closeButtonShowsItsState()
{
    QFETCH(const QString, state);
    QFETCH(const int, ratio);
    QFETCH(const Qt::LayoutDirection, direction);
    SheetWindow window(direction);
    window.addTabs(2);
    QVERIFY(window.showAlone());
    QWidget *button = window.closeButton(0);
    if (state != "normal"_L1)
        Input::move(button);
    if (state == "pressed"_L1)
        Input::press(button);
    const QImage image = window.image(ratio);
    if (state == "pressed"_L1)
        Input::release(button);
    const QRect rect = window.areaOf(button);
    const QRect tab = window.areaOfTab(window.tabBar(), 0);
    QVERIFY(tab.contains(rect));
    const QRect painted = ImageChecks::paintedRect(image, rect, White);
    QVERIFY2(!painted.isEmpty(), "no close button is painted");
    if (state == "normal"_L1) {
        QVERIFY(painted.width() <= 16 && painted.height() <= 16);
        QVERIFY(!ImageChecks::contains(image, rect, CloseFrame).isEmpty());
        return;
    }
    VERIFY_IMAGE(ImageChecks::contains(image, rect, CloseGround));
    // The middle of each side, off the round corners.
    const QPoint centre = painted.center();
    for (const QPoint at :
         {QPoint(painted.left(), centre.y()), QPoint(painted.right(), centre.y()),
          QPoint(centre.x(), painted.top()), QPoint(centre.x(), painted.bottom())})
        QCOMPARE(ImageChecks::colorAt(image, at), CloseFrame);
    QCOMPARE(ImageChecks::colorAt(image, painted.topLeft()), White);
}

QTEST_MAIN(tst_DockTabSheet)

#include "tst_docktabsheet.moc"
