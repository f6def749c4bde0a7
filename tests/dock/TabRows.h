// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "core/ResourcePaths.h"
#include "core/StyleSheets.h"
#include "dock/DockTabWidget.h"
#include "support/Input.h"

#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>

/// The row of document tabs, beside the one that Qt makes with the same style sheet.
namespace TabRows {

using namespace Qt::StringLiterals;

/// Short and long ones in turn.
inline QString textOf(int index)
{
    return u"Tab "_s + QString(qsizetype(index % 7) * 2, u'x') + QString::number(index);
}

/// A tab widget as a section has one, in a window.
class TabWindow : public QWidget
{
public:
    explicit TabWindow(QTabWidget *tabs) : m_tabs(tabs)
    {
        VornFrame::StyleSheets::load(this, VornFrame::ResourcePaths::DockSheet);
        tabs->setObjectName(u"dockTabWidget"_s);
        tabs->setTabsClosable(true);
        tabs->setMovable(true);
        tabs->tabBar()->setObjectName(u"dockTabBar"_s);
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(tabs);
        resize(600, 300);
    }

    QTabWidget *tabs() const { return m_tabs; }
    QTabBar *bar() const { return m_tabs->tabBar(); }

    void addTabs(int count) const
    {
        for (int i = 0; i < count; ++i)
            m_tabs->addTab(new QWidget, textOf(m_tabs->count()));
    }
    void removeTab(int index) const
    {
        const QPointer<QWidget> page = m_tabs->widget(index);
        m_tabs->removeTab(index);
        delete page;
    }

    QWidget *closeButton(int index) const { return bar()->tabButton(index, QTabBar::RightSide); }
    /// One of the two that scroll the row.
    QToolButton *arrow(Qt::ArrowType direction) const
    {
        return bar()->findChild<QToolButton *>(direction == Qt::LeftArrow ? u"ScrollLeftButton"_s
                                                                          : u"ScrollRightButton"_s);
    }
    /// The tabs without a close button among the \a seen or among all.
    QList<int> bareTabs(bool seen) const
    {
        QList<int> bare;
        for (int i = 0; i < m_tabs->count(); ++i) {
            if (closeButton(i) == nullptr && (!seen || bar()->rect().intersects(bar()->tabRect(i))))
                bare.append(i);
        }
        return bare;
    }

private:
    QTabWidget *m_tabs;
};

/// Two such windows for the same things to be done to.
struct Pair
{
    TabWindow dock{new VornFrame::DockTabWidget(nullptr)};
    TabWindow plain{new QTabWidget};

    explicit Pair(int count)
    {
        for (const TabWindow *window : {&dock, &plain})
            window->addTabs(count);
    }

    void inBoth(const std::function<void(TabWindow &)> &act)
    {
        act(dock);
        act(plain);
    }
    /// Shows both and waits until all buttons are there.
    [[nodiscard]] bool show()
    {
        return Input::show(&plain) && Input::show(&dock)
               && QTest::qWaitFor([this] { return dock.bareTabs(false).isEmpty(); });
    }

    /// Where the row differs from Qt's; empty if it does not. With \a scrolled, the one may be
    /// scrolled farther than the other.
    QString difference(bool scrolled = false) const
    {
        const QTabBar *bar = dock.bar();
        const QTabBar *other = plain.bar();
        if (bar->count() != other->count() || bar->currentIndex() != other->currentIndex())
            return u"the tabs are others"_s;
        if (bar->geometry() != other->geometry())
            return u"the row lies at %1 and not at %2"_s.arg(textOf(bar->geometry()),
                                                             textOf(other->geometry()));
        const QPoint way = scrolled ? bar->tabRect(0).topLeft() - other->tabRect(0).topLeft()
                                    : QPoint();
        for (int i = 0; i < bar->count(); ++i) {
            if (bar->tabText(i) != other->tabText(i))
                return u"tab %1 is another one"_s.arg(i);
            if (bar->tabRect(i) != other->tabRect(i).translated(way))
                return u"tab %1 lies at %2 and not at %3"_s.arg(
                    QString::number(i), textOf(bar->tabRect(i)), textOf(other->tabRect(i)));
            for (const auto side : {QTabBar::LeftSide, QTabBar::RightSide}) {
                const QRect button = placeOf(bar->tabButton(i, side));
                const QRect expected = placeOf(other->tabButton(i, side));
                if (button != (expected.isNull() ? expected : expected.translated(way)))
                    return u"the button of tab %1 lies at %2 and not at %3"_s.arg(
                        QString::number(i), textOf(button), textOf(expected));
            }
        }
        return {};
    }

private:
    static QRect placeOf(const QWidget *button) { return button ? button->geometry() : QRect(); }
    static QString textOf(const QRect &rect)
    {
        return u"%1, %2, %3 x %4"_s.arg(rect.x())
            .arg(rect.y())
            .arg(rect.width())
            .arg(rect.height());
    }
};

} // namespace TabRows
