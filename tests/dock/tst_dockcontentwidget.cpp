// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/ContainerWindow.h"
#include "dock/DockContentWidget_p.h"

#include "support/TestCase.h"

#include <QAction>
#include <QMetaMethod>
#include <QPointer>
#include <QTabBar>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;
using namespace ContainerWindows;
using namespace VornFrame;

namespace {

class CountedPrivate : public DockContentWidgetPrivate
{
    Q_DISABLE_COPY_MOVE(CountedPrivate)

public:
    explicit CountedPrivate(int *destroyed) : m_destroyed(destroyed) {}
    ~CountedPrivate() override
    {
        delete sectionWidget;
        ++*m_destroyed;
    }

private:
    int *m_destroyed;
};

class DerivedContent : public DockContentWidget
{
    Q_OBJECT

public:
    explicit DerivedContent(CountedPrivate &d) : DockContentWidget(d, nullptr) {}
};

/// Two sections: one with the tabs "a" and "b", one with none.
void fill(DockContentWidget *content)
{
    content->addSection(u"First"_s);
    content->addSection(u"Second"_s);
    content->addTab(0, new QWidget, u"a"_s);
    content->addTab(0, new QWidget, u"b"_s);
}

void addPlacesOutOfRange()
{
    constexpr int Largest = std::numeric_limits<int>::max();
    constexpr int Smallest = std::numeric_limits<int>::min();
    QTest::addColumn<int>("section");
    QTest::addColumn<int>("index");
    for (const int section : {2, 1000, Largest, -1, -2, Smallest})
        QTest::addRow("section %d", section) << section << 0;
    for (const int index : {2, 1000, Largest, -1, -2, Smallest})
        QTest::addRow("tab %d", index) << 0 << index;
    QTest::newRow("tab of an empty section") << 1 << 0;
    QTest::newRow("both behind") << 2 << 2;
    QTest::newRow("both negative") << -1 << -1;
}

} // namespace

class tst_DockContentWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isALabelInTheNamespace();
    void belongsToItsParent();
    void aSubclassHandsItsOwnPrivateObject();
    void closeModesCountFromZero();
    void declaresItsSignalsInOrder();
    void centresItsSectionAreaWithoutMargins();
    void isEmptyAtFirst();
    void closeActionsBelongToIt();

    void addingASectionGivesItsIndex();
    void addingASectionReportsTheFirstOnly();
    void aSectionHoldsItsTabWidgetInMargins();
    void aNewSectionIsNotListed();
    void sectionsHaveTheirTextAndState();
    void sectionSettersReachTheSectionBar();
    void sectionOutOfRangeIsIgnored_data() { addIndexesOutOfRange(2); }
    void sectionOutOfRangeIsIgnored();
    void sectionBarVisibilityIsThatOfTheWholeArea();

    void findsTheTabsOfItsWidgets();
    void findsNoOtherWidgets();
    void tabSettersReachTheTab();
    void tabDataMovesWithTheTab();
    void placeOutOfRangeGivesDefaults_data() { addPlacesOutOfRange(); }
    void placeOutOfRangeGivesDefaults();
    void placeOutOfRangeIsNotSet_data() { addPlacesOutOfRange(); }
    void placeOutOfRangeIsNotSet();
    void settersWithoutSectionsDoNothing();

    void tabRowsHaveAccessibleNames();
    void mirrorsItsTabs();
};

void tst_DockContentWidget::isALabelInTheNamespace()
{
    const DockContentWidget content;
    QCOMPARE(content.metaObject()->className(), "VornFrame::DockContentWidget");
    QCOMPARE(content.metaObject()->superClass(), &QLabel::staticMetaObject);
}

void tst_DockContentWidget::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<DockContentWidget> content = new DockContentWidget(parent.get());
    QCOMPARE(content->parent(), parent.get());
    parent.reset();
    QVERIFY(!content);
}

void tst_DockContentWidget::aSubclassHandsItsOwnPrivateObject()
{
    int destroyed = 0;
    {
        const DerivedContent content(*new CountedPrivate(&destroyed));
        QCOMPARE(content.layout(), nullptr);
    }
    QCOMPARE(destroyed, 1);
}

void tst_DockContentWidget::closeModesCountFromZero()
{
    QCOMPARE(int(CloseCurrent), 0);
    QCOMPARE(int(CloseAllLeft), 1);
    QCOMPARE(int(CloseAllRight), 2);
    QCOMPARE(int(CloseAllExceptCurrent), 3);
    QCOMPARE(int(CloseAll), 4);
}

void tst_DockContentWidget::declaresItsSignalsInOrder()
{
    const QMetaObject &meta = DockContentWidget::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            names.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    QCOMPARE(names,
             QStringList({u"signalTabCloseRequested(VornFrame::CloseMode,int,int)"_s,
                          u"signalCurrentSectionChanged(int)"_s,
                          u"signalCurrentTabChanged(int,int)"_s, u"signalVisibleChanged(bool)"_s}));
}

void tst_DockContentWidget::centresItsSectionAreaWithoutMargins()
{
    const DockContentWidget content;
    QCOMPARE(content.alignment(), Qt::AlignCenter);
    const auto *layout = qobject_cast<QVBoxLayout *>(content.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), 1);
    const QTabWidget *area = sectionArea(&content);
    QCOMPARE(layout->itemAt(0)->widget(), area);
    QCOMPARE(area->tabPosition(), QTabWidget::South);
    QCOMPARE(area->tabBar()->objectName(), u"dockSectionBar"_s);
    QVERIFY(area->isHidden());
}

void tst_DockContentWidget::isEmptyAtFirst()
{
    DockContentWidget content;
    QCOMPARE(content.sectionCount(), 0);
    QCOMPARE(content.currentSection(), -1);
    QVERIFY(!content.isSectionBarVisible());
    QVERIFY(content.pixmap().isNull());
    QVERIFY(!content.contains(&content));
}

void tst_DockContentWidget::closeActionsBelongToIt()
{
    auto content = std::make_unique<DockContentWidget>();
    const auto actions = content->findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly);
    QStringList texts;
    for (const QAction *action : actions)
        texts.append(action->text());
    QCOMPARE(texts, QStringList({u"Close Current"_s, u"Close All Left"_s, u"Close All Right"_s,
                                 u"Close All(Except Current)"_s, u"Close All"_s}));
    const QPointer<QAction> last = actions.last();
    content.reset();
    QVERIFY(!last);
}

void tst_DockContentWidget::addingASectionGivesItsIndex()
{
    DockContentWidget content;
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(content.addSection(u"S"_s), i);
        QCOMPARE(content.sectionCount(), i + 1);
        QCOMPARE(content.tabCount(i), 0);
        QCOMPARE(content.currentTab(i), -1);
        QCOMPARE(content.currentWidget(i), nullptr);
    }
    QCOMPARE(content.currentSection(), 0);
    QVERIFY(!content.isSectionBarVisible());
}

void tst_DockContentWidget::addingASectionReportsTheFirstOnly()
{
    DockContentWidget content;
    TabLog log(&content);
    content.addSection(u"First"_s);
    QCOMPARE(log.take(), QStringList({u"section 0"_s}));
    content.addSection(u"Second"_s);
    content.addSection({});
    QCOMPARE(log.take(), QStringList());
}

void tst_DockContentWidget::aSectionHoldsItsTabWidgetInMargins()
{
    DockContentWidget content;
    content.addSection(u"First"_s);
    content.addSection(u"Second"_s);
    for (const int section : {0, 1}) {
        const QWidget *page = sectionArea(&content)->widget(section);
        QCOMPARE(page->metaObject(), &QWidget::staticMetaObject);
        QVERIFY(qobject_cast<QHBoxLayout *>(page->layout()));
        QCOMPARE(page->layout()->contentsMargins(), QMargins(3, 3, 3, 3));
        QCOMPARE(page->layout()->count(), 1);
        const QTabWidget *tabs = tabsOf(&content, section);
        QCOMPARE(page->layout()->itemAt(0)->widget(), tabs);
        QCOMPARE(tabs->parentWidget(), page);
        QVERIFY(tabs->tabsClosable());
        QVERIFY(tabs->isMovable());
        QCOMPARE(tabs->tabPosition(), QTabWidget::North);
        QCOMPARE(tabs->tabBar()->objectName(), u"dockTabBar"_s);
        QCOMPARE(tabs->tabBar()->contextMenuPolicy(), Qt::CustomContextMenu);
    }
}

void tst_DockContentWidget::aNewSectionIsNotListed()
{
    DockContentWidget content;
    content.addSection(u"First"_s);
    content.addSection(u"Second"_s);
    QVERIFY(!content.isSectionVisible(0));
    QVERIFY(!content.isSectionVisible(1));
    content.addTab(1, new QWidget, u"a"_s);
    QVERIFY(!content.isSectionVisible(0));
    QVERIFY(content.isSectionVisible(1));
}

void tst_DockContentWidget::sectionsHaveTheirTextAndState()
{
    DockContentWidget content;
    content.addSection(u"First"_s);
    content.addSection(u"中文 & more"_s);
    content.addSection({});
    QCOMPARE(content.sectionText(0), u"First"_s);
    QCOMPARE(content.sectionText(1), u"中文 & more"_s);
    QCOMPARE(content.sectionText(2), QString());
    QVERIFY(content.isSectionEnbaled(0));
}

void tst_DockContentWidget::sectionSettersReachTheSectionBar()
{
    DockContentWidget content;
    fill(&content);
    const QTabWidget *area = sectionArea(&content);
    content.setSectionEnabled(1, false);
    QVERIFY(!content.isSectionEnbaled(1));
    QVERIFY(!area->isTabEnabled(1));
    content.setSectionEnabled(1, true);
    QVERIFY(content.isSectionEnbaled(1));
    content.setSectionVisible(1, true);
    QVERIFY(content.isSectionVisible(1));
    QVERIFY(area->isTabVisible(1));
    content.setSectionVisible(1, false);
    QVERIFY(!content.isSectionVisible(1));
    QVERIFY(content.isSectionVisible(0));
}

void tst_DockContentWidget::sectionOutOfRangeIsIgnored()
{
    QFETCH(const int, index);
    DockContentWidget content;
    fill(&content);
    TabLog log(&content);
    QVERIFY(!content.isSectionEnbaled(index));
    QVERIFY(!content.isSectionVisible(index));
    QCOMPARE(content.sectionText(index), QString());
    content.setSectionEnabled(index, false);
    content.setSectionVisible(index, true);
    content.setCurrentTab(index, 0);
    content.removeTab(index, 0);
    QWidget widget;
    QCOMPARE(content.addTab(index, &widget, u"c"_s), -1);
    QCOMPARE(widget.parent(), nullptr);
    QCOMPARE(content.tabCount(index), -1);
    QCOMPARE(content.currentTab(index), -1);
    QCOMPARE(content.currentWidget(index), nullptr);

    QVERIFY(content.isSectionEnbaled(0));
    QVERIFY(content.isSectionEnbaled(1));
    QVERIFY(content.isSectionVisible(0));
    QVERIFY(!content.isSectionVisible(1));
    QCOMPARE(content.currentSection(), 0);
    QCOMPARE(content.tabCount(0), 2);
    QCOMPARE(log.take(), QStringList());
}

void tst_DockContentWidget::sectionBarVisibilityIsThatOfTheWholeArea()
{
    DockContentWidget content;
    fill(&content);
    content.resize(400, 300);
    QVERIFY(!content.isSectionBarVisible()); // nothing of it can be seen yet
    QVERIFY(Input::show(&content));
    QVERIFY(content.isSectionBarVisible());
    content.setSectionBarVisible(false);
    QVERIFY(!content.isSectionBarVisible());
    QVERIFY(sectionArea(&content)->isHidden());
    content.setSectionBarVisible(true);
    QVERIFY(content.isSectionBarVisible());
    content.setSectionBarVisible(false);
    content.addTab(1, new QWidget, u"c"_s);
    QVERIFY(content.isSectionBarVisible());
}

void tst_DockContentWidget::findsTheTabsOfItsWidgets()
{
    DockContentWidget content;
    fill(&content);
    auto *widget = new QWidget;
    QVERIFY(!content.contains(widget));
    QCOMPARE(content.addTab(1, widget, u"c"_s), 0);
    QVERIFY(content.contains(widget));
    QCOMPARE(content.sectionOf(widget), 1);
    QCOMPARE(content.tabOf(widget), 0);
    QCOMPARE(content.widget(1, 0), widget);
    QCOMPARE(content.currentWidget(1), widget);
    QWidget *second = content.widget(0, 1);
    QCOMPARE(content.sectionOf(second), 0);
    QCOMPARE(content.tabOf(second), 1);
    QCOMPARE(content.currentWidget(0), content.widget(0, 0));
    content.setCurrentTab(0, 1);
    QCOMPARE(content.currentWidget(0), second);
    QCOMPARE(content.currentTab(0), 1);
    content.removeTab(0, 0);
    QCOMPARE(content.tabOf(second), 0);
}

void tst_DockContentWidget::findsNoOtherWidgets()
{
    DockContentWidget content;
    fill(&content);
    auto *inner = new QWidget(content.widget(0, 0));
    const QWidgetList others{nullptr, inner, &content, sectionArea(&content), tabsOf(&content, 0)};
    for (QWidget *widget : others) {
        QVERIFY(!content.contains(widget));
        QCOMPARE(content.sectionOf(widget), -1);
        QCOMPARE(content.tabOf(widget), -1);
    }
    const std::unique_ptr<QWidget> removed(content.widget(0, 0));
    content.removeTab(0, 0);
    QVERIFY(!content.contains(removed.get()));
}

void tst_DockContentWidget::tabSettersReachTheTab()
{
    DockContentWidget content;
    fill(&content);
    QTabBar *bar = tabsOf(&content, 0)->tabBar();
    QCOMPARE(content.tabText(0, 1), u"b"_s);
    content.setTabText(0, 1, u"renamed"_s);
    QCOMPARE(content.tabText(0, 1), u"renamed"_s);
    QCOMPARE(bar->tabText(1), u"renamed"_s);

    QCOMPARE(content.tabToolTip(0, 1), QString());
    content.setTabToolTip(0, 1, u"a path"_s);
    QCOMPARE(content.tabToolTip(0, 1), u"a path"_s);
    QCOMPARE(bar->tabToolTip(1), u"a path"_s);

    QVERIFY(!content.tabData(0, 1).isValid());
    content.setTabData(0, 1, 42);
    QCOMPARE(content.tabData(0, 1), QVariant(42));
    QCOMPARE(bar->tabData(1), QVariant(42));

    QVERIFY(content.isTabEnabled(0, 1));
    content.setTabEnabled(0, 1, false);
    QVERIFY(!content.isTabEnabled(0, 1));
    QVERIFY(!bar->isTabEnabled(1));

    QVERIFY(content.isTabVisible(0, 1));
    content.setTabVisible(0, 1, false);
    QVERIFY(!content.isTabVisible(0, 1));
    QVERIFY(!bar->isTabVisible(1));

    QCOMPARE(content.tabText(0, 0), u"a"_s);
    QCOMPARE(content.tabToolTip(0, 0), QString());
    QVERIFY(!content.tabData(0, 0).isValid());
    QVERIFY(content.isTabEnabled(0, 0));
    QVERIFY(content.isTabVisible(0, 0));
}

void tst_DockContentWidget::tabDataMovesWithTheTab()
{
    DockContentWidget content;
    fill(&content);
    content.setTabData(0, 0, u"of a"_s);
    tabsOf(&content, 0)->tabBar()->moveTab(0, 1);
    QCOMPARE(content.tabData(0, 1), QVariant(u"of a"_s));
    QVERIFY(!content.tabData(0, 0).isValid());
}

void tst_DockContentWidget::placeOutOfRangeGivesDefaults()
{
    QFETCH(const int, section);
    QFETCH(const int, index);
    DockContentWidget content;
    fill(&content);
    QCOMPARE(content.widget(section, index), nullptr);
    QVERIFY(!content.isTabEnabled(section, index));
    QVERIFY(!content.isTabVisible(section, index));
    QVERIFY(content.tabText(section, index).isEmpty());
    QVERIFY(content.tabToolTip(section, index).isEmpty());
    QVERIFY(!content.tabData(section, index).isValid());
}

void tst_DockContentWidget::placeOutOfRangeIsNotSet()
{
    QFETCH(const int, section);
    QFETCH(const int, index);
    DockContentWidget content;
    fill(&content);
    TabLog log(&content);
    content.setTabEnabled(section, index, false);
    content.setTabVisible(section, index, false);
    content.setTabText(section, index, u"wrong"_s);
    content.setTabToolTip(section, index, u"wrong"_s);
    content.setTabData(section, index, 1);
    content.removeTab(section, index);
    QCOMPARE(content.tabCount(0), 2);
    QCOMPARE(content.tabCount(1), 0);
    for (const int tab : {0, 1}) {
        QCOMPARE(content.tabText(0, tab), tab == 0 ? u"a"_s : u"b"_s);
        QCOMPARE(content.tabToolTip(0, tab), QString());
        QVERIFY(!content.tabData(0, tab).isValid());
        QVERIFY(content.isTabEnabled(0, tab));
        QVERIFY(content.isTabVisible(0, tab));
    }
    QCOMPARE(log.take(), QStringList());
}

void tst_DockContentWidget::settersWithoutSectionsDoNothing()
{
    DockContentWidget content;
    TabLog log(&content);
    content.setCurrentTab(0, 0);
    content.removeTab(0, 0);
    content.setTabText(0, 0, u"wrong"_s);
    content.setSectionVisible(0, true);
    QWidget widget;
    QCOMPARE(content.addTab(0, &widget, u"a"_s), -1);
    QCOMPARE(content.tabCount(0), -1);
    QCOMPARE(log.take(), QStringList());
}

void tst_DockContentWidget::tabRowsHaveAccessibleNames()
{
    DockContentWidget content;
    fill(&content);
    QVERIFY(!sectionArea(&content)->tabBar()->accessibleName().isEmpty());
    QCOMPARE(tabsOf(&content, 0)->tabBar()->accessibleName(), u"First"_s);
    QCOMPARE(tabsOf(&content, 1)->tabBar()->accessibleName(), u"Second"_s);
}

void tst_DockContentWidget::mirrorsItsTabs()
{
    const auto tabOn = [](Qt::LayoutDirection direction) {
        ContainerWindow window(direction);
        window.addTab();
        window.addTab();
        window.show();
        const QTabBar *bar = tabsOf(window.content(), 0)->tabBar();
        const QRect tab = bar->tabRect(0);
        return QRect(bar->mapTo(window.content(), tab.topLeft()), tab.size());
    };
    const QRect left = tabOn(Qt::LeftToRight);
    const QRect right = tabOn(Qt::RightToLeft);
    QCOMPARE(left.left(), 3);
    QVERIFY(right.left() > 400);
    QCOMPARE(right.top(), left.top());
}

QTEST_MAIN(tst_DockContentWidget)

#include "tst_dockcontentwidget.moc"
