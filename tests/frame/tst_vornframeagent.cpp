// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <VornFrame/RibbonBar.h>
#include <VornFrame/VornFrameAgent.h>

#include "LookRestorer.h"

#include "frame/VornFrameAgent_p.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleHints>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

/// A dialog whose agent was asked to dress it, and the content that it was given.
struct DressedDialog
{
    explicit DressedDialog(const QString &sheet = {})
    {
        dialog->setStyleSheet(sheet);
        agent->setup(dialog.get(), content);
    }

    QBoxLayout *layout() const { return qobject_cast<QBoxLayout *>(dialog->layout()); }
    QFrame *rule() const { return qobject_cast<QFrame *>(layout()->itemAt(1)->widget()); }

    LookRestorer restorer;
    std::unique_ptr<QDialog> dialog = std::make_unique<QDialog>();
    QLabel *content = new QLabel(u"content"_s);
    std::unique_ptr<VornFrameAgent> agent = std::make_unique<VornFrameAgent>();
};

class CountedPrivate : public VornFrameAgentPrivate
{
    Q_DISABLE_COPY_MOVE(CountedPrivate)

public:
    explicit CountedPrivate(int *destroyed) : m_destroyed(destroyed) {}
    ~CountedPrivate() override { ++*m_destroyed; }

private:
    int *m_destroyed;
};

class DerivedAgent : public VornFrameAgent
{
    Q_OBJECT

public:
    DerivedAgent(CountedPrivate &d, QObject *parent) : VornFrameAgent(d, parent) {}
};

} // namespace

class tst_VornFrameAgent : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void standsAtGlobalScope();
    void hasARibbonBarFromTheStart();
    void diesWithItsParent();
    void leavesARibbonBarThatWasNeverPlacedToTheCaller();
    void twoAgentsHaveTwoRibbonBars();
    void aSubclassHandsItsOwnPrivateObject();

    void turnsADarkLookIntoALightOne_data();
    void turnsADarkLookIntoALightOne();
    void keepsALightPalette();

    void stacksRibbonBarLineAndContent();
    void stacksThemWithoutMarginsAndSpacing();
    void theLineIsOnePixelHigh();
    void theLineHasExactlyItsSheet();
    void theDialogOwnsWhatWasPlaced();
    void fillsTheDialogWhenShown();
    void createsNoAddressBarAndNoDockContainer();
    void theApplicationsSheetIsTheDialogsAndTheGlobalOne_data();
    void theApplicationsSheetIsTheDialogsAndTheGlobalOne();
    void anEarlierSheetOfTheApplicationIsLost();
    void pagesAddedBeforeAndAfterTheSetupAreShown();

    void aSecondSetupIsIgnored();
    void aSecondSetupOfTheSameDialogIsIgnored();
    void eachAgentSetsUpItsOwnDialog();
    void anEmptyDialogPointerCountsAsTheSetup();
    void anEmptyContentLeavesItsPlaceEmpty();
    void aLayoutThatTheDialogHadIsReplaced();
    void contentThatIsInTheDialogAlreadyIsPlaced();

    void widgetsStayWhenTheAgentGoesFirst();
    void theRibbonBarIsNullWhenTheDialogGoesFirst();
    void aRibbonBarDeletedBeforeTheSetupIsLeftOut();
    void anAgentOwnedByItsDialogGoesWithIt();
    void deletingTheAgentOnAPageChangeIsHarmless();
};

void tst_VornFrameAgent::standsAtGlobalScope()
{
    QCOMPARE(QLatin1StringView(VornFrameAgent::staticMetaObject.className()), "VornFrameAgent"_L1);
    QVERIFY(VornFrameAgent::staticMetaObject.inherits(&QObject::staticMetaObject));
    // Neither signals nor slots: nothing but what every object has.
    QCOMPARE(VornFrameAgent::staticMetaObject.methodCount(),
             QObject::staticMetaObject.methodCount());
}

void tst_VornFrameAgent::hasARibbonBarFromTheStart()
{
    const LookRestorer restorer;
    const VornFrameAgent agent;
    const std::unique_ptr<RibbonBar> bar(agent.ribbonBar());
    QVERIFY(bar);
    QVERIFY(!bar->parent());
    QVERIFY(!bar->isVisible());
    QCOMPARE(bar->count(), 0);
    QVERIFY(!agent.addressBar());
    QVERIFY(!agent.dockContainer());
    QVERIFY(!agent.parent());
}

void tst_VornFrameAgent::diesWithItsParent()
{
    const LookRestorer restorer;
    auto parent = std::make_unique<QObject>();
    const QPointer<VornFrameAgent> agent = new VornFrameAgent(parent.get());
    const std::unique_ptr<RibbonBar> bar(agent->ribbonBar());
    QCOMPARE(agent->parent(), parent.get());
    parent.reset();
    QVERIFY(!agent);
}

void tst_VornFrameAgent::leavesARibbonBarThatWasNeverPlacedToTheCaller()
{
    const LookRestorer restorer;
    auto agent = std::make_unique<VornFrameAgent>();
    const QPointer<RibbonBar> bar = agent->ribbonBar();
    agent.reset();
    QVERIFY(bar);
    delete bar;
}

void tst_VornFrameAgent::twoAgentsHaveTwoRibbonBars()
{
    const LookRestorer restorer;
    const VornFrameAgent first;
    const VornFrameAgent second;
    const std::unique_ptr<RibbonBar> firstBar(first.ribbonBar());
    const std::unique_ptr<RibbonBar> secondBar(second.ribbonBar());
    QVERIFY(firstBar != secondBar);
}

void tst_VornFrameAgent::aSubclassHandsItsOwnPrivateObject()
{
    const LookRestorer restorer;
    int destroyed = 0;
    QObject parent;
    auto *d = new CountedPrivate(&destroyed);
    {
        const DerivedAgent agent(*d, &parent);
        const std::unique_ptr<RibbonBar> bar(d->ribbonBar);
        QCOMPARE(d->q_ptr, &agent);
        QCOMPARE(agent.parent(), &parent);
        QCOMPARE(agent.ribbonBar(), bar.get());
        QCOMPARE(destroyed, 0);
    }
    QCOMPARE(destroyed, 1);
}

void tst_VornFrameAgent::turnsADarkLookIntoALightOne_data()
{
    QTest::addColumn<bool>("derived");

    QTest::newRow("agent") << false;
    QTest::newRow("subclass") << true;
}

void tst_VornFrameAgent::turnsADarkLookIntoALightOne()
{
    QFETCH(const bool, derived);
    const LookRestorer restorer;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QStyleHints *hints = QGuiApplication::styleHints();
    const auto unset = qScopeGuard([hints] { hints->unsetColorScheme(); });
    hints->setColorScheme(Qt::ColorScheme::Dark);
    if (hints->colorScheme() != Qt::ColorScheme::Dark)
        QSKIP("this platform has no colour scheme that can be set");
#else
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    QVERIFY(QApplication::palette().color(QPalette::Window).lightness() < 128);
#endif

    int destroyed = 0;
    const std::unique_ptr<VornFrameAgent> agent(
        derived ? new DerivedAgent(*new CountedPrivate(&destroyed), nullptr) : new VornFrameAgent);
    const std::unique_ptr<RibbonBar> bar(agent->ribbonBar());

#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QCOMPARE(hints->colorScheme(), Qt::ColorScheme::Light);
#else
    const QPalette palette = QApplication::palette();
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(u"Fusion"_s));
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button, QPalette::Dark,
                            QPalette::Highlight, QPalette::Link, QPalette::ToolTipBase})
        QCOMPARE(palette.color(role), fusion->standardPalette().color(role));
    QVERIFY(palette.color(QPalette::Window).lightness() > 200);
    QVERIFY(palette.color(QPalette::Base).lightness() > 200);
    QVERIFY(palette.color(QPalette::WindowText).lightness() < 60);
    QVERIFY(palette.color(QPalette::Text).lightness() < 60);
#endif
}

void tst_VornFrameAgent::keepsALightPalette()
{
    const LookRestorer restorer;
    QApplication::setPalette(QPalette(QColor(250, 240, 200), QColor(255, 250, 230)));
    const QPalette own = QApplication::palette();
    const VornFrameAgent agent;
    const std::unique_ptr<RibbonBar> bar(agent.ribbonBar());
    QCOMPARE(QApplication::palette(), own);
}

void tst_VornFrameAgent::stacksRibbonBarLineAndContent()
{
    const DressedDialog dressed;
    QBoxLayout *layout = dressed.layout();
    QVERIFY(layout);
    QCOMPARE(layout->direction(), QBoxLayout::TopToBottom);
    QCOMPARE(layout->count(), 3);
    QCOMPARE(layout->itemAt(0)->widget(), dressed.agent->ribbonBar());
    QVERIFY(dressed.rule());
    QCOMPARE(layout->itemAt(2)->widget(), dressed.content);
    for (int i = 0; i < layout->count(); ++i) {
        QCOMPARE(layout->stretch(i), 0);
        QCOMPARE(layout->itemAt(i)->alignment(), Qt::Alignment());
    }
}

void tst_VornFrameAgent::stacksThemWithoutMarginsAndSpacing()
{
    const DressedDialog dressed;
    QCOMPARE(dressed.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(dressed.layout()->spacing(), 0);
}

void tst_VornFrameAgent::theLineIsOnePixelHigh()
{
    const DressedDialog dressed;
    QCOMPARE(dressed.rule()->frameShape(), QFrame::HLine);
    QCOMPARE(dressed.rule()->minimumHeight(), 1);
    QCOMPARE(dressed.rule()->maximumHeight(), 1);
}

void tst_VornFrameAgent::theLineHasExactlyItsSheet()
{
    const DressedDialog dressed;
    QCOMPARE(dressed.rule()->styleSheet(), u"border:none; background-color: rgb(125, 125, 125;)"_s);
}

void tst_VornFrameAgent::theDialogOwnsWhatWasPlaced()
{
    const DressedDialog dressed;
    QCOMPARE(dressed.agent->ribbonBar()->parent(), dressed.dialog.get());
    QCOMPARE(dressed.rule()->parent(), dressed.dialog.get());
    QCOMPARE(dressed.content->parent(), dressed.dialog.get());
}

void tst_VornFrameAgent::fillsTheDialogWhenShown()
{
    const DressedDialog dressed;
    dressed.dialog->resize(640, 400);
    QVERIFY(Input::show(dressed.dialog.get()));
    QCOMPARE(dressed.agent->ribbonBar()->geometry(), QRect(0, 0, 640, 123));
    QCOMPARE(dressed.rule()->geometry(), QRect(0, 123, 640, 1));
    QCOMPARE(dressed.content->geometry(), QRect(0, 124, 640, 276));
}

void tst_VornFrameAgent::createsNoAddressBarAndNoDockContainer()
{
    const DressedDialog dressed;
    QVERIFY(!dressed.agent->addressBar());
    QVERIFY(!dressed.agent->dockContainer());
    QCOMPARE(dressed.dialog->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).size(),
             3);
}

void tst_VornFrameAgent::theApplicationsSheetIsTheDialogsAndTheGlobalOne_data()
{
    QTest::addColumn<QString>("own");

    QTest::newRow("dialog without a sheet") << QString();
    QTest::newRow("dialog with a sheet") << u"QLabel { color: rgb(1, 2, 3); }"_s;
}

void tst_VornFrameAgent::theApplicationsSheetIsTheDialogsAndTheGlobalOne()
{
    QFETCH(const QString, own);
    const DressedDialog dressed(own);
    QVERIFY(!globalSheet().isEmpty());
    QCOMPARE(qApp->styleSheet(), own + globalSheet());
    QCOMPARE(dressed.dialog->styleSheet(), own);
}

void tst_VornFrameAgent::anEarlierSheetOfTheApplicationIsLost()
{
    const LookRestorer restorer;
    qApp->setStyleSheet(u"QLabel { color: red; }"_s);
    const DressedDialog dressed(u"QLabel { color: blue; }"_s);
    QCOMPARE(qApp->styleSheet(), u"QLabel { color: blue; }"_s + globalSheet());
}

void tst_VornFrameAgent::pagesAddedBeforeAndAfterTheSetupAreShown()
{
    const LookRestorer restorer;
    QDialog dialog;
    VornFrameAgent agent;
    RibbonBar *bar = agent.ribbonBar();
    RibbonPage *before = bar->addPage(u"Before"_s);
    agent.setup(&dialog, new QLabel);
    RibbonPage *after = bar->addPage(u"After"_s);
    QCOMPARE(agent.ribbonBar(), bar);
    QCOMPARE(bar->indexOf(before), 0);
    QCOMPARE(bar->indexOf(after), 1);
}

void tst_VornFrameAgent::aSecondSetupIsIgnored()
{
    const DressedDialog dressed;
    const QString sheet = qApp->styleSheet();
    QDialog second;
    second.setStyleSheet(u"QLabel { color: red; }"_s);
    const std::unique_ptr<QLabel> content = std::make_unique<QLabel>();

    dressed.agent->setup(&second, content.get());

    QVERIFY(!second.layout());
    QVERIFY(!content->parent());
    QCOMPARE(qApp->styleSheet(), sheet);
    QCOMPARE(dressed.agent->ribbonBar()->parent(), dressed.dialog.get());
    QCOMPARE(dressed.layout()->count(), 3);
}

void tst_VornFrameAgent::aSecondSetupOfTheSameDialogIsIgnored()
{
    const DressedDialog dressed;
    const QLayout *layout = dressed.layout();
    const QFrame *rule = dressed.rule();
    qApp->setStyleSheet(u"QLabel { color: red; }"_s);

    dressed.agent->setup(dressed.dialog.get(), dressed.content);

    QCOMPARE(dressed.dialog->layout(), layout);
    QCOMPARE(dressed.rule(), rule);
    QCOMPARE(dressed.layout()->count(), 3);
    QCOMPARE(qApp->styleSheet(), u"QLabel { color: red; }"_s);
}

void tst_VornFrameAgent::eachAgentSetsUpItsOwnDialog()
{
    const DressedDialog first(u"QLabel { color: red; }"_s);
    const DressedDialog second(u"QLabel { color: blue; }"_s);
    QCOMPARE(first.layout()->itemAt(0)->widget(), first.agent->ribbonBar());
    QCOMPARE(second.layout()->itemAt(0)->widget(), second.agent->ribbonBar());
    QCOMPARE(qApp->styleSheet(), u"QLabel { color: blue; }"_s + globalSheet());
}

void tst_VornFrameAgent::anEmptyDialogPointerCountsAsTheSetup()
{
    const LookRestorer restorer;
    QDialog dialog;
    VornFrameAgent agent;
    const std::unique_ptr<RibbonBar> bar(agent.ribbonBar());
    const auto content = std::make_unique<QLabel>();

    agent.setup(nullptr, content.get());
    agent.setup(&dialog, content.get());

    QVERIFY(!content->parent());
    QVERIFY(!bar->parent());
    QVERIFY(!dialog.layout());
    QCOMPARE(qApp->styleSheet(), QString());
}

void tst_VornFrameAgent::anEmptyContentLeavesItsPlaceEmpty()
{
    const LookRestorer restorer;
    QDialog dialog;
    VornFrameAgent agent;
    agent.setup(&dialog, nullptr);
    QCOMPARE(dialog.layout()->count(), 2);
    QCOMPARE(dialog.layout()->itemAt(0)->widget(), agent.ribbonBar());
    QCOMPARE(qApp->styleSheet(), globalSheet());
}

void tst_VornFrameAgent::aLayoutThatTheDialogHadIsReplaced()
{
    const LookRestorer restorer;
    QDialog dialog;
    const QPointer<QGridLayout> former = new QGridLayout(&dialog);
    const QPointer<QLabel> label = new QLabel;
    former->addWidget(label);
    VornFrameAgent agent;

    agent.setup(&dialog, new QLabel);

    QVERIFY(!former);
    QVERIFY(qobject_cast<QVBoxLayout *>(dialog.layout()));
    QCOMPARE(dialog.layout()->count(), 3);
    QVERIFY(label); // it is a child of the dialog, not of the layout
}

void tst_VornFrameAgent::contentThatIsInTheDialogAlreadyIsPlaced()
{
    const LookRestorer restorer;
    QDialog dialog;
    auto *former = new QGridLayout(&dialog);
    auto *content = new QLabel;
    former->addWidget(content);
    VornFrameAgent agent;

    agent.setup(&dialog, content);

    QCOMPARE(dialog.layout()->count(), 3);
    QCOMPARE(dialog.layout()->itemAt(2)->widget(), content);
}

void tst_VornFrameAgent::widgetsStayWhenTheAgentGoesFirst()
{
    DressedDialog dressed;
    const QPointer<RibbonBar> bar = dressed.agent->ribbonBar();
    dressed.agent.reset();
    QVERIFY(bar);
    QCOMPARE(dressed.layout()->count(), 3);
    QCOMPARE(qApp->styleSheet(), globalSheet());
    dressed.dialog.reset();
    QVERIFY(!bar);
}

void tst_VornFrameAgent::theRibbonBarIsNullWhenTheDialogGoesFirst()
{
    DressedDialog dressed;
    dressed.dialog.reset();
    QVERIFY(!dressed.agent->ribbonBar());
    dressed.agent->setup(nullptr, nullptr);
}

void tst_VornFrameAgent::aRibbonBarDeletedBeforeTheSetupIsLeftOut()
{
    const LookRestorer restorer;
    QDialog dialog;
    auto *content = new QLabel;
    VornFrameAgent agent;
    delete agent.ribbonBar();
    agent.setup(&dialog, content);
    QCOMPARE(dialog.layout()->count(), 2);
    QCOMPARE(dialog.layout()->itemAt(1)->widget(), content);
}

void tst_VornFrameAgent::anAgentOwnedByItsDialogGoesWithIt()
{
    const LookRestorer restorer;
    auto dialog = std::make_unique<QDialog>();
    const QPointer<VornFrameAgent> agent = new VornFrameAgent(dialog.get());
    agent->setup(dialog.get(), new QLabel);
    const QPointer<RibbonBar> bar = agent->ribbonBar();
    dialog.reset();
    QVERIFY(!agent);
    QVERIFY(!bar);
}

void tst_VornFrameAgent::deletingTheAgentOnAPageChangeIsHarmless()
{
    DressedDialog dressed;
    RibbonBar *bar = dressed.agent->ribbonBar();
    bar->addPage(u"First"_s);
    bar->addPage(u"Second"_s);
    auto *agent = &dressed.agent;
    connect(bar, &RibbonBar::signalCurrentPageChanged, this, [agent] { agent->reset(); });
    QVERIFY(Input::show(dressed.dialog.get()));
    Input::click(bar->findChildren<QPushButton *>().at(1));
    QVERIFY(!dressed.agent);
    QCOMPARE(bar->currentPage(), bar->page(1));
}

QTEST_MAIN(tst_VornFrameAgent)

#include "tst_vornframeagent.moc"
