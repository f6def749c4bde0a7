// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "PanelsFixture.h"

#include "support/Input.h"

#include "DockLayout.h"
#include "Documents.h"
#include "PanelsWindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>

using namespace Qt::StringLiterals;
using VornFrame::DockContainer;

/// The views around the centre: switching and minimizing them, and resetting all.
class tst_PanelsLayout final : public PanelsFixture
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithAllViewsAndTheBottomBarInTheStatusBar();
    void aViewIsSwitchedOffAndOn_data();
    void aViewIsSwitchedOffAndOn();
    void ofTwoInOneSlotEachIsSwitchedAlone();
    void switchingOffTheCurrentSlotShowsOneThatIsOn();
    void aSideWithoutViewsVanishesWithItsBar();
    void switchingOnAViewOfAMinimizedSideRestoresIt();
    void aSideIsMinimizedAndRestoredFromTheMenu_data();
    void aSideIsMinimizedAndRestoredFromTheMenu();
    void theMenuKnowsWhatTheBarButtonsDid();
    void goingToAViewBringsItUpFromAnywhere_data();
    void goingToAViewBringsItUpFromAnywhere();
    void aSectionIsSwitchedOffAndOn();
    void withoutASectionThePlaceholderComesBack();
    void openingAFileBringsItsSectionBack();
    void resettingBringsTheDefaultLayoutBack();
    void draggedSplittersAreFollowed();

private:
    VornFrame::DockPanelWidget *side(int area) const
    {
        return container()->panelWidget(DockContainer::DockArea(area));
    }
    QWidget *stack(int area) const { return side(area)->stackedWidget(); }
    QList<QAbstractButton *> buttons(int area) const;
    int extent(int area) const;
    void choose(const QString &name) const;
};

/// The buttons of a bar that can be seen.
QList<QAbstractButton *> tst_PanelsLayout::buttons(int area) const
{
    QList<QAbstractButton *> found = side(area)->panel()->findChildren<QAbstractButton *>();
    found.removeIf([](const QAbstractButton *button) { return !button->isVisible(); });
    return found;
}

int tst_PanelsLayout::extent(int area) const
{
    return area == DockContainer::Bottom ? stack(area)->height() : stack(area)->width();
}

/// Chooses an entry of the View menu with the keyboard.
void tst_PanelsLayout::choose(const QString &name) const
{
    const QList<QMenu *> menus = window()->findChildren<QMenu *>();
    for (QMenu *menu : menus) {
        if (!menu->actions().contains(action(name)))
            continue;
        menu->popup(window()->mapToGlobal(QPoint(50, 30)));
        menu->setActiveAction(action(name));
        QTest::keyClick(menu, Qt::Key_Return);
        menu->close(); // an entry that is disabled leaves it open
        // The platform of the tests leaves no window active when a popup closes.
        window()->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), window());
        return;
    }
    QFAIL("no menu has this entry");
}

void tst_PanelsLayout::startsWithAllViewsAndTheBottomBarInTheStatusBar()
{
    const QList<QWidget *> views = dockLayout()->views();
    for (const QWidget *view : views) {
        QVERIFY(dockLayout()->isShown(view));
        QVERIFY(action(u"show_"_s + view->objectName())->isChecked());
    }
    QVERIFY(window()->statusBar()->isAncestorOf(side(DockContainer::Bottom)->panel()));
    for (const int area : {0, 1, 2}) {
        QCOMPARE(extent(area), DockState().sides[std::size_t(area)].extent);
        QCOMPARE(side(area)->currentIndex(), 0);
        QVERIFY(!side(area)->isMinimized());
    }
    QVERIFY(view(u"objects"_s)->isVisible());
    QVERIFY(view(u"properties"_s)->isVisible());
    QCOMPARE(side(DockContainer::Left)->count(), 2);
}

void tst_PanelsLayout::aViewIsSwitchedOffAndOn_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("area");
    QTest::addColumn<int>("buttonsLeft");

    QTest::newRow("objects") << u"objects"_s << 0 << 2;
    QTest::newRow("properties") << u"properties"_s << 0 << 2;
    QTest::newRow("colours") << u"colors"_s << 0 << 1;
    QTest::newRow("outline") << u"outline"_s << 1 << 0;
    QTest::newRow("messages") << u"messages"_s << 2 << 1;
    QTest::newRow("scratch pad") << u"scratch"_s << 2 << 1;
}

void tst_PanelsLayout::aViewIsSwitchedOffAndOn()
{
    QFETCH(const QString, name);
    QFETCH(const int, area);
    const QString entry = u"show_"_s + name;
    const qsizetype before = buttons(area).size();
    const int size = extent(area);
    choose(entry);
    QVERIFY(!view(name)->isVisible());
    QVERIFY(!action(entry)->isChecked());
    QTEST(int(buttons(area).size()), "buttonsLeft");
    choose(entry);
    QVERIFY(view(name)->isVisible());
    QVERIFY(action(entry)->isChecked());
    QCOMPARE(buttons(area).size(), before);
    QCOMPARE(extent(area), size);
}

void tst_PanelsLayout::ofTwoInOneSlotEachIsSwitchedAlone()
{
    choose(u"show_objects"_s);
    QVERIFY(view(u"properties"_s)->isVisible());
    choose(u"show_properties"_s);
    // The slot is empty now; the other one takes the place.
    QVERIFY(view(u"colors"_s)->isVisible());
    choose(u"show_objects"_s);
    QVERIFY(view(u"objects"_s)->isVisible());
    QVERIFY(!view(u"properties"_s)->isVisible());
}

void tst_PanelsLayout::switchingOffTheCurrentSlotShowsOneThatIsOn()
{
    choose(u"show_objects"_s);
    choose(u"show_properties"_s);
    QCOMPARE(side(DockContainer::Left)->currentIndex(), 1);
    choose(u"show_colors"_s);
    choose(u"show_properties"_s);
    QCOMPARE(side(DockContainer::Left)->currentIndex(), 0);
    QVERIFY(view(u"properties"_s)->isVisible());
    QVERIFY(!view(u"colors"_s)->isVisible());
}

void tst_PanelsLayout::aSideWithoutViewsVanishesWithItsBar()
{
    choose(u"show_outline"_s);
    QVERIFY(!stack(DockContainer::Right)->isVisible());
    QVERIFY(!side(DockContainer::Right)->panel()->isVisible());
    QCoreApplication::processEvents();
    QCOMPARE(stack(DockContainer::Bottom)->mapTo(window(), QPoint()).x()
                 + stack(DockContainer::Bottom)->width(),
             window()->width());
    choose(u"show_outline"_s);
    QVERIFY(side(DockContainer::Right)->panel()->isVisible());
    QVERIFY(!side(DockContainer::Right)->isMinimized());
    QCOMPARE(extent(DockContainer::Right), 220);
}

void tst_PanelsLayout::switchingOnAViewOfAMinimizedSideRestoresIt()
{
    choose(u"show_colors"_s);
    choose(u"minimize_left"_s);
    QCOMPARE(extent(DockContainer::Left), 0);
    choose(u"show_colors"_s);
    QCOMPARE(extent(DockContainer::Left), 270);
    QVERIFY(view(u"colors"_s)->isVisible());
    QVERIFY(!side(DockContainer::Left)->isMinimized());
}

void tst_PanelsLayout::aSideIsMinimizedAndRestoredFromTheMenu_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<int>("area");

    QTest::newRow("left") << u"minimize_left"_s << 0;
    QTest::newRow("right") << u"minimize_right"_s << 1;
    QTest::newRow("bottom") << u"minimize_bottom"_s << 2;
}

void tst_PanelsLayout::aSideIsMinimizedAndRestoredFromTheMenu()
{
    QFETCH(const QString, entry);
    QFETCH(const int, area);
    const int size = extent(area);
    choose(entry);
    QCOMPARE(extent(area), 0);
    QVERIFY(action(entry)->isChecked());
    QVERIFY(side(area)->isMinimized());
    for (const QAbstractButton *button : buttons(area))
        QVERIFY(!button->isChecked());
    choose(entry);
    QCOMPARE(extent(area), size);
    QVERIFY(!action(entry)->isChecked());
    QVERIFY(buttons(area).constFirst()->isChecked());
}

void tst_PanelsLayout::theMenuKnowsWhatTheBarButtonsDid()
{
    Input::click(buttons(DockContainer::Bottom).constFirst());
    QCOMPARE(extent(DockContainer::Bottom), 0);
    // Checked when the menu opens, so that this restores.
    choose(u"minimize_bottom"_s);
    QCOMPARE(extent(DockContainer::Bottom), 180);
}

void tst_PanelsLayout::goingToAViewBringsItUpFromAnywhere_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("minimize");

    QTest::newRow("objects") << 1 << u"objects"_s << u"minimize_left"_s;
    QTest::newRow("properties") << 2 << u"properties"_s << u"minimize_left"_s;
    QTest::newRow("colours") << 3 << u"colors"_s << u"minimize_left"_s;
    QTest::newRow("outline") << 4 << u"outline"_s << u"minimize_right"_s;
    QTest::newRow("messages") << 5 << u"messages"_s << u"minimize_bottom"_s;
    QTest::newRow("scratch pad") << 6 << u"scratch"_s << u"minimize_bottom"_s;
}

void tst_PanelsLayout::goingToAViewBringsItUpFromAnywhere()
{
    QFETCH(const int, number);
    QFETCH(const QString, name);
    QFETCH(const QString, minimize);
    const auto go = [this, number, name] {
        QTest::keyClick(window(), Qt::Key(Qt::Key_0 + number), Qt::ControlModifier);
        const QWidget *focus = QApplication::focusWidget();
        return view(name)->isVisible() && focus != nullptr
               && (focus == view(name) || view(name)->isAncestorOf(focus));
    };
    QVERIFY(go());
    choose(minimize);
    QVERIFY(go());
    choose(u"show_"_s + name);
    QVERIFY(go());
    choose(u"show_"_s + name);
    choose(minimize);
    QVERIFY(go());
}

void tst_PanelsLayout::aSectionIsSwitchedOffAndOn()
{
    QVERIFY(!action(u"section_1"_s)->isEnabled());
    openTexts({u"a.txt"_s});
    window()->openFiles({createFile(u"b.md"_s, "b")});
    QVERIFY(action(u"section_1"_s)->isEnabled());
    QVERIFY(action(u"section_1"_s)->isChecked());
    QVERIFY(!action(u"section_2"_s)->isEnabled());
    choose(u"section_0"_s);
    QVERIFY(!content()->isSectionVisible(MarkdownSection));
    QCOMPARE(content()->currentSection(), int(TextSection));
    QCOMPARE(window()->windowTitle(), u"a.txt – Panels"_s);
    choose(u"section_0"_s);
    QVERIFY(content()->isSectionVisible(MarkdownSection));
    QCOMPARE(content()->currentSection(), int(MarkdownSection));
}

void tst_PanelsLayout::withoutASectionThePlaceholderComesBack()
{
    openTexts({u"a.txt"_s});
    choose(u"section_1"_s);
    QVERIFY(!content()->isSectionBarVisible());
    QVERIFY(!content()->pixmap().isNull());
    QCOMPARE(window()->windowTitle(), u"Panels"_s);
    QVERIFY(!action(u"closeTab"_s)->isEnabled());
    choose(u"section_1"_s);
    QVERIFY(content()->widget(TextSection, 0)->isVisible());
    QCOMPARE(window()->windowTitle(), u"a.txt – Panels"_s);
}

void tst_PanelsLayout::openingAFileBringsItsSectionBack()
{
    openTexts({u"a.txt"_s});
    choose(u"section_1"_s);
    openTexts({u"b.txt"_s});
    QVERIFY(content()->isSectionVisible(TextSection));
    QVERIFY(content()->widget(TextSection, 1)->isVisible());
    choose(u"section_1"_s);
    window()->openFiles({path(u"a.txt"_s)});
    QVERIFY(content()->widget(TextSection, 0)->isVisible());
}

void tst_PanelsLayout::resettingBringsTheDefaultLayoutBack()
{
    for (const QString &name :
         {u"show_objects"_s, u"show_outline"_s, u"show_messages"_s, u"minimize_left"_s}) {
        choose(name);
    }
    choose(u"resetLayout"_s);
    startsWithAllViewsAndTheBottomBarInTheStatusBar();
}

void tst_PanelsLayout::draggedSplittersAreFollowed()
{
    QWidget *left = stack(DockContainer::Left);
    QWidget *splitter = left->parentWidget();
    const QPoint edge(left->geometry().right() + 1, splitter->height() / 4);
    Input::drag(splitter, edge, edge + QPoint(40, 0));
    const int width = extent(DockContainer::Left);
    QCOMPARE_GT(width, 300);
    choose(u"minimize_left"_s);
    choose(u"minimize_left"_s);
    QCOMPARE(extent(DockContainer::Left), width);
    // To nothing.
    Input::drag(splitter, QPoint(width, edge.y()), QPoint(2, edge.y()));
    QCOMPARE(extent(DockContainer::Left), 0);
    QVERIFY(side(DockContainer::Left)->isMinimized());
}

QTEST_MAIN(tst_PanelsLayout)

#include "tst_panelslayout.moc"
