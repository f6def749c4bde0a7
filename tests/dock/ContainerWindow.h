// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <VornFrame/DockContainer.h>
#include <VornFrame/DockContentWidget.h>
#include <VornFrame/DockPanelWidget.h>

#include "support/ImageChecks.h"
#include "support/Input.h"

#include <QAbstractButton>
#include <QIcon>
#include <QLayout>
#include <QMainWindow>
#include <QPixmap>
#include <QSplitter>
#include <QStatusBar>
#include <QStringList>
#include <QTabBar>
#include <QTabWidget>
#include <QtEndian>
#include <QTest>
#include <QVBoxLayout>

#include <array>
#include <limits>
#include <memory>
#include <utility>

/// A main window with a dock container as it is in use, and the parts that a person sees of it.
namespace ContainerWindows {

using namespace Qt::StringLiterals;
using VornFrame::DockContainer;
using VornFrame::DockContentWidget;
using VornFrame::DockPanelWidget;

constexpr std::array<DockContainer::DockArea, 3> Areas{DockContainer::Left, DockContainer::Right,
                                                       DockContainer::Bottom};

inline const char *nameOf(DockContainer::DockArea area)
{
    switch (area) {
    case DockContainer::Left:
        return "left";
    case DockContainer::Right:
        return "right";
    case DockContainer::Bottom:
        break;
    }
    return "bottom";
}

inline QIcon plainIcon(const QColor &color = Qt::darkGreen)
{
    QPixmap pixmap(24, 24);
    pixmap.fill(color);
    return {pixmap};
}

/// A widget that asks for a size and can do with none.
class Sized : public QWidget
{
public:
    explicit Sized(QSize hint) : m_hint(hint) {}

    QSize sizeHint() const override { return m_hint; }
    QSize minimumSizeHint() const override { return {0, 0}; }

private:
    QSize m_hint;
};

/// What a content widget reports, in order: "tab 0 1", "section -1", "visible 1", "close 4 0 1".
class TabLog : public QObject
{
public:
    explicit TabLog(DockContentWidget *content)
    {
        connect(content, &DockContentWidget::signalTabCloseRequested, this,
                [this](VornFrame::CloseMode mode, int section, int index) {
                    m_entries.append(u"close %1 %2 %3"_s.arg(mode).arg(section).arg(index));
                });
        connect(content, &DockContentWidget::signalCurrentSectionChanged, this,
                [this](int section) { m_entries.append(u"section %1"_s.arg(section)); });
        connect(content, &DockContentWidget::signalCurrentTabChanged, this,
                [this](int section, int index) {
                    m_entries.append(u"tab %1 %2"_s.arg(section).arg(index));
                });
        connect(content, &DockContentWidget::signalVisibleChanged, this,
                [this](bool visible) { m_entries.append(u"visible %1"_s.arg(int(visible))); });
    }

    const QStringList &entries() const { return m_entries; }
    /// The entries since the last call.
    QStringList take() { return std::exchange(m_entries, {}); }

private:
    QStringList m_entries;
};

inline QTabWidget *sectionArea(const QWidget *content)
{
    return content->findChild<QTabWidget *>(u"dockSectionWidget"_s);
}

/// The tab widget of one section.
inline QTabWidget *tabsOf(const QWidget *content, int section)
{
    const QWidget *page = sectionArea(content)->widget(section);
    return page ? page->findChild<QTabWidget *>(u"dockTabWidget"_s) : nullptr;
}

/// What a saved state remembers of the sides: left width, bottom height, right width.
using Remembered = std::array<qint32, 3>;

inline Remembered rememberedIn(const QByteArray &state)
{
    Remembered sizes{};
    qFromLittleEndian<qint32>(state.last(12).constData(), 3, sizes.data());
    return sizes;
}

inline QByteArray withRemembered(QByteArray state, const Remembered &sizes)
{
    state.chop(12);
    std::array<char, 12> bytes{};
    qToLittleEndian<qint32>(sizes.data(), 3, bytes.data());
    return state.append(bytes.data(), bytes.size());
}

class ContainerWindow : public QMainWindow
{
public:
    explicit ContainerWindow(Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        setLayoutDirection(direction);
        setCentralWidget(m_dock);
        resize(900, 600);
    }

    DockContainer *dock() const { return m_dock; }
    DockContentWidget *content() const { return m_dock->contentWidget(); }
    DockPanelWidget *side(DockContainer::DockArea area) const { return m_dock->panelWidget(area); }
    QWidget *stack(DockContainer::DockArea area) const { return side(area)->stackedWidget(); }
    QWidget *bar(DockContainer::DockArea area) const { return side(area)->panel(); }

    /// The button of a slot, on whose click the side shows or minimizes it.
    QAbstractButton *button(DockContainer::DockArea area, int index = 0) const
    {
        return bar(area)->findChildren<QAbstractButton *>().value(index);
    }

    QSplitter *hSplitter() const
    {
        return m_dock->findChild<QSplitter *>(QString(), Qt::FindDirectChildrenOnly);
    }
    QWidget *column() const { return hSplitter()->widget(1); }
    QSplitter *vSplitter() const
    {
        return column()->findChild<QSplitter *>(QString(), Qt::FindDirectChildrenOnly);
    }
    QStatusBar *dockStatusBar() const { return findChild<QStatusBar *>(u"dockStatusBar"_s); }

    /// The widths or heights of what a side shares its room with, itself included.
    QList<int> sizes(DockContainer::DockArea area) const
    {
        return (area == DockContainer::Bottom ? vSplitter() : hSplitter())->sizes();
    }
    /// Its place among these.
    static int indexOf(DockContainer::DockArea area)
    {
        return area == DockContainer::Left ? 0 : area == DockContainer::Right ? 2 : 1;
    }
    int sizeOf(DockContainer::DockArea area) const { return sizes(area).at(indexOf(area)); }

    QWidget *addView(DockContainer::DockArea area, QSize hint = {150, 120})
    {
        auto *view = new Sized(hint);
        const auto name = QString::fromLatin1(nameOf(area));
        side(area)->addView(view, plainIcon(), name);
        return view;
    }
    QWidget *addTab(int section = 0)
    {
        while (content()->sectionCount() <= section)
            content()->addSection(u"Section"_s);
        auto *page = new QWidget;
        content()->addTab(section, page, u"Tab"_s);
        return page;
    }

    /// A view on each side and a tab in the middle.
    void fill()
    {
        for (const DockContainer::DockArea area : Areas)
            addView(area);
        addTab();
    }

    /// Gives the sides their sizes as a person does who drags their edges.
    void dragTo(int leftWidth, int bottomHeight, int rightWidth)
    {
        dragEdge(DockContainer::Left, leftWidth);
        dragEdge(DockContainer::Right, rightWidth);
        dragEdge(DockContainer::Bottom, bottomHeight);
    }

    /// Drags the inner edge of a side until it has \a size, as far as that goes; with 0 well over the
    /// outer edge.
    void dragEdge(DockContainer::DockArea area, int size)
    {
        constexpr int Overshoot = 20;
        if (size == 0) {
            dragEdgeOnce(area, -Overshoot);
            return;
        }
        dragEdgeOnce(area, size);
        // The edge of a splitter with narrow handles runs ahead of the pointer by a bit.
        const int ahead = sizeOf(area) - size;
        if (ahead != 0 && qAbs(ahead) < Overshoot)
            dragEdgeOnce(area, size - ahead);
    }

    QRect areaOf(const QWidget *widget) const
    {
        return {widget->mapTo(this, QPoint()), widget->size()};
    }
    QImage image(int ratio) { return ImageChecks::rendered(this, ratio, true); }

private:
    void dragEdgeOnce(DockContainer::DockArea area, int size)
    {
        const QSplitter *splitter = area == DockContainer::Bottom ? vSplitter() : hSplitter();
        const QWidget *handle = splitter->handle(area == DockContainer::Right ? 2 : 1);
        // At an end, part of the handle lies outside.
        const QRect reachable = handle->geometry() & splitter->rect();
        const QPoint from = splitter->mapTo(m_dock, reachable.center());
        const int grow = size - sizeOf(area);
        QPoint way(0, -grow);
        if (area != DockContainer::Bottom) {
            const bool growsRight = (area == DockContainer::Left) != isRightToLeft();
            way = QPoint(growsRight ? grow : -grow, 0);
        }
        Input::drag(m_dock, from, from + way);
    }

    DockContainer *m_dock = new DockContainer;
};

/// A content widget in a window of its own, with as many tabs in its sections as is asked for.
class ContentWindow : public QWidget
{
public:
    explicit ContentWindow(const QList<int> &tabCounts = {})
    {
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins({});
        layout->addWidget(m_content);
        resize(700, 400);
        for (int section = 0; section < tabCounts.size(); ++section) {
            m_content->addSection(u"Section %1"_s.arg(section));
            for (int i = 0; i < tabCounts.at(section); ++i)
                addTab(section);
        }
    }

    DockContentWidget *content() const { return m_content; }
    QTabWidget *tabs(int section = 0) const { return tabsOf(m_content, section); }
    QTabBar *bar(int section = 0) const { return tabs(section)->tabBar(); }
    QTabBar *sectionBar() const { return sectionArea(m_content)->tabBar(); }

    int addTab(int section = 0) { return m_content->addTab(section, new QWidget, u"Document"_s); }
    void removeTab(int section, int index)
    {
        const std::unique_ptr<QWidget> removed(m_content->widget(section, index));
        m_content->removeTab(section, index);
    }
    /// Shows every section and then the first one again, so that its tab is the one reported last.
    void visitSections() const
    {
        for (int section = m_content->sectionCount() - 1; section >= 0; --section)
            m_content->setCurrentTab(section, m_content->currentTab(section));
    }
    QPoint onTab(int index, int section = 0) const { return bar(section)->tabRect(index).center(); }

private:
    DockContentWidget *m_content = new DockContentWidget;
};

/// Rows with every kind of index that is none in a list of \a count.
inline void addIndexesOutOfRange(int count)
{
    QTest::addColumn<int>("index");
    QTest::newRow("just behind") << count;
    QTest::newRow("far behind") << 1000;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
    QTest::newRow("minus one") << -1;
    QTest::newRow("minus two") << -2;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
}

inline void addAreas()
{
    QTest::addColumn<DockContainer::DockArea>("area");
    for (const DockContainer::DockArea area : Areas)
        QTest::newRow(nameOf(area)) << area;
}

inline void addDirections()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

} // namespace ContainerWindows
