// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "dock/ContainerWindow.h"

#include "core/StyleSheets.h"

#include <QApplication>
#include <QColor>
#include <QPalette>

#include <initializer_list>

/// A window with the sheets of the library, and the colours that these name.
namespace SheetWindows {

using namespace ContainerWindows;

inline constexpr QColor Frame(125, 125, 125);
inline constexpr QColor Line(191, 191, 191);
inline constexpr QColor Bar(230, 230, 230);
inline constexpr QColor Surface(245, 245, 245);
inline constexpr QColor White(255, 255, 255);
inline constexpr QColor ButtonFrame(97, 97, 97);
inline constexpr QColor TabEdge(156, 156, 156);
inline constexpr QColor TabAccent(0, 75, 135);
inline constexpr QColor CloseFrame(144, 38, 36);
inline constexpr QColor CloseGround(243, 144, 141);

inline constexpr QMargins Border(1, 1, 1, 1);

inline void addRatios()
{
    QTest::addColumn<int>("ratio");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const int ratio : {1, 2}) {
        QTest::addRow("ratio %d, left to right", ratio) << ratio << Qt::LeftToRight;
        QTest::addRow("ratio %d, right to left", ratio) << ratio << Qt::RightToLeft;
    }
}

inline void addStates(std::initializer_list<const char *> states)
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("ratio");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const int ratio : {1, 2}) {
        for (const char *state : states) {
            QTest::addRow("%s, ratio %d", state, ratio)
                << QString::fromLatin1(state) << ratio << Qt::LeftToRight;
            QTest::addRow("%s, ratio %d, right to left", state, ratio)
                << QString::fromLatin1(state) << ratio << Qt::RightToLeft;
        }
    }
}

/// A window as the frame agent makes it, with tabs whose text paints nothing.
class SheetWindow : public ContainerWindow
{
public:
    explicit SheetWindow(Qt::LayoutDirection direction) : ContainerWindow(direction)
    {
        for (const DockContainer::DockArea area : Areas)
            addView(area);
        VornFrame::StyleSheets::installGlobalSheet(this);
        dock()->setupMainWindow(this);
    }
    ~SheetWindow() override
    {
        hide();
        qApp->setStyleSheet({});
    }

    /// Shows the window, with the pointer where nothing answers it.
    [[nodiscard]] bool showAlone()
    {
        if (!Input::show(this))
            return false;
        Input::move(stack(DockContainer::Bottom));
        return true;
    }
    void addTabs(int count, int section = 0)
    {
        for (int i = 0; i < count; ++i) {
            addTab(section);
            content()->setTabText(section, content()->tabCount(section) - 1, QString(10, u' '));
        }
    }

    QTabBar *tabBar(int section = 0) const { return tabsOf(content(), section)->tabBar(); }
    QTabBar *sectionBar() const { return sectionArea(content())->tabBar(); }
    QRect areaOfTab(const QTabBar *bar, int index) const
    {
        return bar->tabRect(index).translated(bar->mapTo(this, QPoint()));
    }
    QWidget *closeButton(int index) const
    {
        QWidget *button = tabBar()->tabButton(index, QTabBar::RightSide);
        return button ? button : tabBar()->tabButton(index, QTabBar::LeftSide);
    }

    /// The line of \a rect at its edge towards the end of a text line, or towards the start.
    QRect endOf(const QRect &rect) const { return edge(rect, !isRightToLeft()); }
    QRect startOf(const QRect &rect) const { return edge(rect, isRightToLeft()); }

private:
    static QRect edge(const QRect &rect, bool right)
    {
        return {right ? rect.right() : rect.left(), rect.top(), 1, rect.height()};
    }
};

/// Without the corners, where two borders of different width meet.
inline QRect middleOf(const QRect &rect)
{
    return rect.adjusted(2, 0, -2, 0);
}

/// Colours that the sheets do not name.
inline void setStrangePalette()
{
    QPalette palette(QColor(200, 230, 200), QColor(200, 200, 230));
    palette.setColor(QPalette::Base, QColor(230, 230, 200));
    QApplication::setPalette(palette);
}

} // namespace SheetWindows
