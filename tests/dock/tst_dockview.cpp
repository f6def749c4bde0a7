// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "core/ResourcePaths.h"
#include "core/StyleSheets.h"
#include "dock/DockTitle.h"
#include "dock/DockView.h"
#include "dock/DockView_p.h"
#include "support/ImageChecks.h"
#include "support/Input.h"
#include "support/PopupDriver.h"
#include "support/TestCase.h"

#include <QLabel>
#include <QMenu>
#include <QMetaMethod>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr QColor Line(191, 191, 191);

DockTitle *titleOf(const DockView &view)
{
    return qobject_cast<DockTitle *>(view.layout()->itemAt(0)->widget());
}

QWidgetList widgetsIn(const DockView &view)
{
    QWidgetList widgets;
    for (int i = 0; i < view.layout()->count(); ++i)
        widgets.append(view.layout()->itemAt(i)->widget());
    return widgets;
}

/// A docked widget that calls back from its destructor.
class Talkative : public QWidget
{
public:
    explicit Talkative(std::function<void(Talkative *)> lastWords)
        : m_lastWords(std::move(lastWords))
    {}
    ~Talkative() override { m_lastWords(this); }
    Q_DISABLE_COPY_MOVE(Talkative)

private:
    const std::function<void(Talkative *)> m_lastWords;
};

} // namespace

class tst_DockView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAFrameInTheNamespace();
    void declaresItsSignalsInTheirOrder();
    void itsRecordStartsAsPromised();
    void belongsToItsParent();
    void holdsItsTitleAloneAtFirst();
    void titleTextGoesToTheTitle();
    void menuIsThatOfTheTitle();
    void collapseButtonIsThatOfTheTitle();
    void titleHeightIsTheHeightNow();

    void aDockedWidgetStandsBelowTheTitle();
    void aDockedWidgetMayHaveAnyHeight();
    void aDockedWidgetFillsTheRest();
    void aDockedWidgetIsShownInAVisibleView();
    void aSecondWidgetDeletesTheFirst();
    void theSameWidgetAgainStays();
    void nothingEmptiesTheView();
    void aDeletedWidgetLeavesTheViewEmpty();
    void aWidgetThatMovesToAnotherViewIsNotDeleted();
    void aWidgetThatTheHostTookBackIsNotDeleted();
    void ownsTheDockedWidget();
    void theViewAnswersWhileItsWidgetGoes();

    void reportsWhatTheTitleReports();
    void collapsingHidesNothing();
    void theMenuEntryIsReportedOnce();

    void sheetDrawsALineAboveATabifiedView_data();
    void sheetDrawsALineAboveATabifiedView();
    void aHiddenViewIsPolishedWhenItIsShown();
};

void tst_DockView::isAFrameInTheNamespace()
{
    QCOMPARE(QLatin1StringView(DockView::staticMetaObject.className()), "VornFrame::DockView"_L1);
    QCOMPARE(DockView::staticMetaObject.superClass(), &QFrame::staticMetaObject);
    const DockView view(nullptr);
    QCOMPARE(view.frameShape(), QFrame::NoFrame);
    QVERIFY(view.objectName().isEmpty());
}

void tst_DockView::declaresItsSignalsInTheirOrder()
{
    const QMetaObject &type = DockView::staticMetaObject;
    QCOMPARE(type.methodCount() - type.methodOffset(), 2);
    const QMetaMethod second = type.method(type.methodOffset() + 1);
    QCOMPARE(type.method(type.methodOffset()).methodSignature(), QByteArray("signalMinimize()"));
    QCOMPARE(second.methodSignature(), QByteArray("signalCollapsed(bool)"));
    QCOMPARE(second.parameterNames(), QByteArrayList({"collapsed"}));
}

void tst_DockView::itsRecordStartsAsPromised()
{
    const DockViewPrivate d;
    const std::unique_ptr<DockTitle> title(d.title);
    QVERIFY(title);
    QVERIFY(!title->parent());
    QVERIFY(!d.widget);
    QVERIFY(!d.q_ptr);
}

void tst_DockView::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<DockView> view = new DockView(parent.get());
    QCOMPARE(view->parent(), parent.get());
    const QPointer<DockTitle> title = titleOf(*view);
    parent.reset();
    QVERIFY(!view);
    QVERIFY(!title);
}

void tst_DockView::holdsItsTitleAloneAtFirst()
{
    const DockView view(nullptr);
    const auto *layout = qobject_cast<QVBoxLayout *>(view.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), 1);
    QVERIFY(titleOf(view));
    QCOMPARE(titleOf(view)->parent(), &view);
    QVERIFY(!view.widget());
}

void tst_DockView::titleTextGoesToTheTitle()
{
    DockView view(nullptr);
    const auto *label = titleOf(view)->findChild<QLabel *>();
    QVERIFY(label->text().isEmpty());
    view.setTitle(u"Outline"_s);
    QCOMPARE(label->text(), u"Outline"_s);
}

void tst_DockView::menuIsThatOfTheTitle()
{
    const DockView view(nullptr);
    QVERIFY(view.menu());
    QCOMPARE(view.menu(), titleOf(view)->menu());
}

void tst_DockView::collapseButtonIsThatOfTheTitle()
{
    DockView view(nullptr);
    const auto *button = qobject_cast<QWidget *>(titleOf(view)->layout()->itemAt(0)->widget());
    QVERIFY(button->isHidden());
    view.setCollapseButtonVisible(true);
    QVERIFY(!button->isHidden());
    view.setCollapseButtonVisible(false);
    QVERIFY(button->isHidden());
}

void tst_DockView::titleHeightIsTheHeightNow()
{
    DockView view(nullptr);
    view.setWidget(new QWidget);
    view.resize(200, 300);
    titleOf(view)->setFixedHeight(31);
    QVERIFY(Input::show(&view));
    QCOMPARE(view.titleHeight(), 31);
    titleOf(view)->setFixedHeight(42);
    QTRY_COMPARE(view.titleHeight(), 42);
}

void tst_DockView::aDockedWidgetStandsBelowTheTitle()
{
    DockView view(nullptr);
    auto *widget = new QLabel;
    view.setWidget(widget);
    QCOMPARE(view.widget(), widget);
    QCOMPARE(widget->parent(), &view);
    QCOMPARE(widgetsIn(view), QWidgetList({titleOf(view), widget}));
}

void tst_DockView::aDockedWidgetMayHaveAnyHeight()
{
    DockView view(nullptr);
    auto *widget = new QWidget;
    widget->setMinimumSize(50, 400);
    view.setWidget(widget);
    QCOMPARE(widget->minimumSize(), QSize(50, 0));
}

void tst_DockView::aDockedWidgetFillsTheRest()
{
    DockView view(nullptr);
    auto *widget = new QWidget;
    view.setWidget(widget);
    StyleSheets::load(&view, ResourcePaths::DockSheet);
    view.resize(200, 300);
    QVERIFY(Input::show(&view));
    QCOMPARE(titleOf(view)->geometry(), QRect(0, 0, 200, 25));
    QCOMPARE(widget->geometry(), QRect(0, 25, 200, 275));
    QCOMPARE(view.titleHeight(), 25);
}

void tst_DockView::aDockedWidgetIsShownInAVisibleView()
{
    DockView view(nullptr);
    view.resize(200, 300);
    QVERIFY(Input::show(&view));
    auto *widget = new QWidget;
    view.setWidget(widget);
    QTRY_VERIFY(widget->isVisible());
}

void tst_DockView::aSecondWidgetDeletesTheFirst()
{
    DockView view(nullptr);
    const QPointer<QWidget> first = new QWidget;
    auto *second = new QWidget;
    second->setMinimumHeight(80);
    view.setWidget(first);
    view.setWidget(second);
    QVERIFY(!first);
    QCOMPARE(view.widget(), second);
    QCOMPARE(second->minimumHeight(), 0);
    QCOMPARE(widgetsIn(view), QWidgetList({titleOf(view), second}));
}

void tst_DockView::theSameWidgetAgainStays()
{
    DockView view(nullptr);
    const QPointer<QWidget> widget = new QWidget;
    view.setWidget(widget);
    view.setWidget(widget);
    QVERIFY(widget);
    QCOMPARE(view.widget(), widget.data());
    QCOMPARE(widgetsIn(view), QWidgetList({titleOf(view), widget}));
}

void tst_DockView::nothingEmptiesTheView()
{
    DockView view(nullptr);
    view.setWidget(nullptr);
    QVERIFY(!view.widget());
    const QPointer<QWidget> widget = new QWidget;
    view.setWidget(widget);
    view.setWidget(nullptr);
    QVERIFY(!widget);
    QVERIFY(!view.widget());
    QCOMPARE(widgetsIn(view), QWidgetList({titleOf(view)}));
}

void tst_DockView::aDeletedWidgetLeavesTheViewEmpty()
{
    DockView view(nullptr);
    auto *widget = new QWidget;
    view.setWidget(widget);
    delete widget;
    QVERIFY(!view.widget());
    QCOMPARE(widgetsIn(view), QWidgetList({titleOf(view)}));
    auto *next = new QWidget;
    view.setWidget(next);
    QCOMPARE(view.widget(), next);
}

void tst_DockView::aWidgetThatMovesToAnotherViewIsNotDeleted()
{
    DockView one(nullptr);
    DockView other(nullptr);
    const QPointer<QWidget> widget = new QWidget;
    one.setWidget(widget);
    other.setWidget(widget);
    QVERIFY(!one.widget());
    QCOMPARE(other.widget(), widget.data());
    one.setWidget(new QWidget);
    QVERIFY(widget);
    QCOMPARE(widgetsIn(other), QWidgetList({titleOf(other), widget}));
}

void tst_DockView::aWidgetThatTheHostTookBackIsNotDeleted()
{
    const auto widget = std::make_unique<QWidget>();
    const QPointer<QWidget> guard(widget.get());
    {
        DockView view(nullptr);
        view.setWidget(widget.get());
        widget->setParent(nullptr);
        QVERIFY(!view.widget());
        view.setWidget(new QWidget);
        QVERIFY(guard);
        widget->setParent(nullptr);
    }
    QVERIFY(guard);
}

void tst_DockView::ownsTheDockedWidget()
{
    const QPointer<QWidget> widget = new QWidget;
    {
        DockView view(nullptr);
        view.setWidget(widget);
    }
    QVERIFY(!widget);
}

void tst_DockView::theViewAnswersWhileItsWidgetGoes()
{
    int calls = 0;
    auto view = std::make_unique<DockView>(nullptr);
    DockView *asked = view.get();
    view->setWidget(new Talkative([&calls, asked](Talkative *going) {
        ++calls;
        QCOMPARE(asked->widget(), going);
        QVERIFY(asked->menu());
    }));
    view.reset();
    QCOMPARE(calls, 1);
}

void tst_DockView::reportsWhatTheTitleReports()
{
    const DockView view(nullptr);
    const QSignalSpy minimized(&view, &DockView::signalMinimize);
    const QSignalSpy collapsed(&view, &DockView::signalCollapsed);
    Q_EMIT titleOf(view)->signalMinimize();
    QCOMPARE(minimized.size(), 1);
    QCOMPARE(collapsed.size(), 0);
    Q_EMIT titleOf(view)->signalCollapsed(true);
    Q_EMIT titleOf(view)->signalCollapsed(false);
    QCOMPARE(minimized.size(), 1);
    QCOMPARE(collapsed.size(), 2);
    QCOMPARE(collapsed.at(0), QVariantList{true});
    QCOMPARE(collapsed.at(1), QVariantList{false});
}

void tst_DockView::collapsingHidesNothing()
{
    DockView view(nullptr);
    auto *widget = new QWidget;
    view.setWidget(widget);
    view.setCollapseButtonVisible(true);
    view.resize(200, 300);
    QVERIFY(Input::show(&view));
    const QSignalSpy collapsed(&view, &DockView::signalCollapsed);
    const QRect before = widget->geometry();
    Input::click(titleOf(view)->layout()->itemAt(0)->widget());
    QCOMPARE(collapsed.size(), 1);
    QVERIFY(widget->isVisible());
    QCOMPARE(widget->geometry(), before);
    QCOMPARE(view.size(), QSize(200, 300));
}

void tst_DockView::theMenuEntryIsReportedOnce()
{
    DockView view(nullptr);
    view.setWidget(new QWidget);
    view.resize(200, 300);
    QVERIFY(Input::show(&view));
    const QSignalSpy minimized(&view, &DockView::signalMinimize);
    PopupDriver driver([](QMenu *open) {
        Input::click(open, open->actionGeometry(open->actions().constFirst()).center());
    });
    Input::click(titleOf(view)->layout()->itemAt(2)->widget());
    QVERIFY(driver.hasRun());
    QCOMPARE(minimized.size(), 1);
}

void tst_DockView::sheetDrawsALineAboveATabifiedView_data()
{
    QTest::addColumn<QVariant>("tabified");
    QTest::addColumn<bool>("hasLine");
    QTest::addColumn<int>("ratio");
    for (const int ratio : {1, 2}) {
        QTest::addRow("alone, ratio %d", ratio) << QVariant() << false << ratio;
        QTest::addRow("tabified, ratio %d", ratio) << QVariant(true) << true << ratio;
        QTest::addRow("not tabified, ratio %d", ratio) << QVariant(false) << false << ratio;
    }
}

void tst_DockView::sheetDrawsALineAboveATabifiedView()
{
    QFETCH(const QVariant, tabified);
    QFETCH(const bool, hasLine);
    QFETCH(const int, ratio);
    QWidget window;
    StyleSheets::load(&window, ResourcePaths::DockSheet);
    window.resize(220, 320);
    auto *view = new DockView(&window);
    view->setProperty("tabified", tabified);
    view->setWidget(new QWidget);
    view->setGeometry(10, 10, 200, 300);
    QVERIFY(Input::show(&window));
    const int top = hasLine ? 1 : 0;
    QCOMPARE(titleOf(*view)->geometry(), QRect(0, top, 200, 25));
    QCOMPARE(view->widget()->geometry(), QRect(0, top + 25, 200, 275 - top));
    const QImage image = ImageChecks::rendered(view, ratio);
    VERIFY_IMAGE(ImageChecks::isFilled(image, QRect(0, 0, 200, 1), hasLine ? Line : Qt::white));
    // No other border.
    for (const QRect &edge : {QRect(0, 30, 1, 270), QRect(199, 30, 1, 270), QRect(0, 299, 200, 1)})
        VERIFY_IMAGE(ImageChecks::isFilled(image, edge, ImageChecks::Untouched));
}

void tst_DockView::aHiddenViewIsPolishedWhenItIsShown()
{
    QWidget window;
    StyleSheets::load(&window, ResourcePaths::DockSheet);
    window.resize(220, 320);
    auto *view = new DockView(&window);
    view->setWidget(new QWidget);
    QCoreApplication::sendPostedEvents(view, QEvent::PolishRequest);
    QVERIFY(!view->testAttribute(Qt::WA_WState_Polished));
    QVERIFY(Input::show(&window));
    QVERIFY(view->testAttribute(Qt::WA_WState_Polished));
    QCOMPARE(view->titleHeight(), 25);
}

QTEST_MAIN(tst_DockView)

#include "tst_dockview.moc"
