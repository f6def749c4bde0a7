// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "dock/BarWindow.h"
#include "dock/DockPanel_p.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <QDialog>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QSignalSpy>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using namespace BarWindows;
using namespace VornFrame;

namespace {

QList<bool> checkedStates(const DockPanel &panel)
{
    QList<bool> states;
    for (int i = 0; i < buttonCountOf(panel); ++i)
        states.append(buttonOf(panel, i)->isChecked());
    return states;
}

void addOrientations()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::newRow("vertical") << Qt::Vertical;
    QTest::newRow("horizontal") << Qt::Horizontal;
}

void addWrongIndexes()
{
    QTest::addColumn<int>("index");
    QTest::newRow("minus one") << -1;
    QTest::newRow("smallest number") << std::numeric_limits<int>::min();
    QTest::newRow("one too many") << 3;
    QTest::newRow("largest number") << std::numeric_limits<int>::max();
}

} // namespace

class tst_DockPanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAFrameInTheNamespace();
    void declaresItsSignal();
    void itsRecordStartsAsPromised_data() { addOrientations(); }
    void itsRecordStartsAsPromised();
    void belongsToItsParent();
    void buttonsAreNotExclusive();
    void verticalBarGrowsFromItsTop();
    void horizontalBarGrowsFromItsLeft();

    void addedButtonIsSquareWithItsIconAndText_data() { addOrientations(); }
    void addedButtonIsSquareWithItsIconAndText();
    void addedButtonsAreNumberedInTheirOrder_data() { addOrientations(); }
    void addedButtonsAreNumberedInTheirOrder();
    void onlyTheVeryFirstButtonIsChecked();
    void separatorsTakeNoIndex_data() { addOrientations(); }
    void separatorsTakeNoIndex();
    void tabifiedButtonGrowsInHeight_data() { addOrientations(); }
    void tabifiedButtonGrowsInHeight();

    void clickChecksOneButtonAlone_data() { addOrientations(); }
    void clickChecksOneButtonAlone();
    void clickOnTheCheckedButtonLeavesNone();
    void onlyAPersonIsReported();
    void everyOneOfTwelveButtonsAnswers();
    void setCurrentIndexChecksOneButtonAlone();
    void setButtonCheckedLeavesTheOthers();
    void hiddenButtonsTakeNoRoom();
    void wrongIndexesAreIgnored_data() { addWrongIndexes(); }
    void wrongIndexesAreIgnored();
    void anEmptyBarIgnoresEverything();
    void aDeletedButtonDoesNoHarm();
    void returnInADialogClicksNoButton();

    void horizontalBarIsAsWideAsItsLayoutAsks();
    void verticalBarHasNoFixedWidthOfItsOwn();
};

void tst_DockPanel::isAFrameInTheNamespace()
{
    QCOMPARE(QLatin1StringView(DockPanel::staticMetaObject.className()), "VornFrame::DockPanel"_L1);
    QCOMPARE(DockPanel::staticMetaObject.superClass(), &QFrame::staticMetaObject);
}

void tst_DockPanel::declaresItsSignal()
{
    const QMetaObject &type = DockPanel::staticMetaObject;
    QCOMPARE(type.methodCount() - type.methodOffset(), 1);
    const QMetaMethod method = type.method(type.methodOffset());
    QCOMPARE(method.methodType(), QMetaMethod::Signal);
    QCOMPARE(method.methodSignature(), QByteArray("signalCurrentChanged(int)"));
    QCOMPARE(method.parameterNames(), QByteArrayList({"index"}));
}

void tst_DockPanel::itsRecordStartsAsPromised()
{
    QFETCH(const Qt::Orientation, orientation);
    const DockPanelPrivate d(orientation);
    QCOMPARE(d.iconSize, QSize(24, 24));
    QCOMPARE(d.spacing, 3);
    QCOMPARE(d.buttonMargin, 3);
    QCOMPARE(d.orientation, orientation);
    QVERIFY(d.viewCounts.isEmpty());
    QVERIFY(!d.q_ptr);
    QCOMPARE(DockPanel(orientation, nullptr).orientation(), orientation);
}

void tst_DockPanel::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<DockPanel> panel = new DockPanel(Qt::Vertical, parent.get());
    QCOMPARE(panel->parent(), parent.get());
    parent.reset();
    QVERIFY(!panel);
}

void tst_DockPanel::buttonsAreNotExclusive()
{
    const DockPanel panel(Qt::Vertical, nullptr);
    QVERIFY(groupOf(panel));
    QVERIFY(!groupOf(panel)->exclusive());
    QVERIFY(groupOf(panel)->buttons().isEmpty());
}

void tst_DockPanel::verticalBarGrowsFromItsTop()
{
    const DockPanel panel(Qt::Vertical, nullptr);
    QCOMPARE(panel.property("orientation"), QVariant(u"vertical"_s));
    const auto *layout = qobject_cast<QVBoxLayout *>(panel.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 6, 0, 6));
    QCOMPARE(layout->spacing(), 6);
    QCOMPARE(layout->alignment(), Qt::AlignTop | Qt::AlignHCenter);
    QCOMPARE(layout->count(), 0);
    QCOMPARE(panel.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(panel.sizePolicy().horizontalPolicy(), QFrame().sizePolicy().horizontalPolicy());
}

void tst_DockPanel::horizontalBarGrowsFromItsLeft()
{
    const DockPanel panel(Qt::Horizontal, nullptr);
    QCOMPARE(panel.property("orientation"), QVariant(u"horizontal"_s));
    const auto *layout = qobject_cast<QHBoxLayout *>(panel.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(6, 0, 6, 0));
    QCOMPARE(layout->spacing(), 6);
    QCOMPARE(layout->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(panel.sizePolicy().verticalPolicy(), QFrame().sizePolicy().verticalPolicy());
    // It begins with a line.
    QCOMPARE(layout->count(), 1);
    const auto *line = qobject_cast<QFrame *>(itemOf(panel, 0));
    QVERIFY(line);
    QCOMPARE(line->frameShape(), QFrame::VLine);
    QCOMPARE(panel.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(panel.minimumWidth(), panel.maximumWidth());
}

void tst_DockPanel::addedButtonIsSquareWithItsIconAndText()
{
    QFETCH(const Qt::Orientation, orientation);
    DockPanel panel(orientation, nullptr);
    const QIcon given = icon(Qt::red);
    QCOMPARE(panel.addButton(u"Outline"_s, given), 0);
    const DockButton *button = buttonOf(panel, 0);
    QVERIFY(button);
    QCOMPARE(button->minimumSize(), QSize(30, 30));
    QCOMPARE(button->maximumSize(), QSize(30, 30));
    QCOMPARE(button->iconSize(), QSize(24, 24));
    QCOMPARE(button->icons().size(), 1);
    QCOMPARE(button->icons().constFirst().cacheKey(), given.cacheKey());
    QCOMPARE(button->toolTips(), QStringList({u"Outline"_s}));
    QCOMPARE(button->accessibleName(), u"Outline"_s);
    QVERIFY(!button->isHidden());
}

void tst_DockPanel::addedButtonsAreNumberedInTheirOrder()
{
    QFETCH(const Qt::Orientation, orientation);
    DockPanel panel(orientation, nullptr);
    const int linesBefore = panel.layout()->count();
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(panel.addButton(QString::number(i), icon(Qt::red)), i);
        QCOMPARE(buttonOf(panel, i)->toolTips(), QStringList({QString::number(i)}));
        QCOMPARE(itemOf(panel, linesBefore + i), buttonOf(panel, i));
    }
    QCOMPARE(panel.layout()->count(), linesBefore + 4);
}

void tst_DockPanel::onlyTheVeryFirstButtonIsChecked()
{
    DockPanel panel(Qt::Vertical, nullptr);
    QCOMPARE(panel.checkedId(), -1);
    const QSignalSpy spy(&panel, &DockPanel::signalCurrentChanged);
    addButtons(panel, 3);
    QCOMPARE(checkedStates(panel), QList<bool>({true, false, false}));
    QCOMPARE(panel.checkedId(), 0);
    panel.setButtonChecked(0, false);
    addButtons(panel, 1);
    QCOMPARE(checkedStates(panel), QList<bool>({false, false, false, false}));
    QCOMPARE(panel.checkedId(), -1);
    QCOMPARE(spy.size(), 0);
}

void tst_DockPanel::separatorsTakeNoIndex()
{
    QFETCH(const Qt::Orientation, orientation);
    DockPanel panel(orientation, nullptr);
    const int linesBefore = panel.layout()->count();
    panel.addSeparator();
    QCOMPARE(panel.addButton(u"0"_s, icon(Qt::red)), 0);
    panel.addSeparator();
    QCOMPARE(panel.addButton(u"1"_s, icon(Qt::red)), 1);
    QCOMPARE(panel.layout()->count(), linesBefore + 4);
    for (const int place : {0, 2}) {
        const auto *line = qobject_cast<QFrame *>(itemOf(panel, linesBefore + place));
        QVERIFY(line);
        QCOMPARE(line->frameShape(), orientation == Qt::Horizontal ? QFrame::VLine : QFrame::HLine);
        QVERIFY(!line->isHidden());
    }
    QCOMPARE(itemOf(panel, linesBefore + 3), buttonOf(panel, 1));
    QCOMPARE(buttonCountOf(panel), 2);
}

void tst_DockPanel::tabifiedButtonGrowsInHeight()
{
    QFETCH(const Qt::Orientation, orientation);
    DockPanel panel(orientation, nullptr);
    addButtons(panel, 2);
    const QIcon second = icon(Qt::blue);
    panel.tabifyButton(1, u"Layers"_s, second);
    const DockButton *button = buttonOf(panel, 1);
    QCOMPARE(button->minimumSize(), QSize(30, 57));
    QCOMPARE(button->maximumSize(), QSize(30, 57));
    QCOMPARE(button->iconSize(), QSize(24, 51));
    QCOMPARE(button->icons().size(), 2);
    QCOMPARE(button->icons().at(1).cacheKey(), second.cacheKey());
    QCOMPARE(button->toolTips(), QStringList({u"1"_s, u"Layers"_s}));
    QCOMPARE(button->accessibleName(), u"1, Layers"_s);
    panel.tabifyButton(1, u"More"_s, icon(Qt::green));
    QCOMPARE(button->minimumSize(), QSize(30, 84));
    QCOMPARE(button->iconSize(), QSize(24, 78));
    QCOMPARE(button->toolTips(), QStringList({u"1"_s, u"Layers"_s, u"More"_s}));
    // The neighbour has nothing of it.
    QCOMPARE(buttonOf(panel, 0)->minimumSize(), QSize(30, 30));
    QCOMPARE(buttonOf(panel, 0)->icons().size(), 1);
    QCOMPARE(buttonCountOf(panel), 2);
}

void tst_DockPanel::clickChecksOneButtonAlone()
{
    QFETCH(const Qt::Orientation, orientation);
    BarWindow window(orientation == Qt::Horizontal ? u"bottom"_s : u"left"_s);
    DockPanel &panel = window.bar();
    addButtons(panel, 3);
    QVERIFY(Input::show(&window));
    QSignalSpy spy(&panel, &DockPanel::signalCurrentChanged);
    QList<bool> statesMeanwhile;
    connect(&panel, &DockPanel::signalCurrentChanged, &panel,
            [&] { statesMeanwhile = checkedStates(panel); });
    Input::click(buttonOf(panel, 2));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.takeFirst(), QVariantList{2});
    QCOMPARE(statesMeanwhile, QList<bool>({false, false, true}));
    QCOMPARE(checkedStates(panel), QList<bool>({false, false, true}));
    QCOMPARE(panel.checkedId(), 2);
    Input::click(buttonOf(panel, 1));
    QCOMPARE(spy.takeFirst(), QVariantList{1});
    QCOMPARE(checkedStates(panel), QList<bool>({false, true, false}));
}

void tst_DockPanel::clickOnTheCheckedButtonLeavesNone()
{
    BarWindow window(u"left"_s);
    DockPanel &panel = window.bar();
    addButtons(panel, 2);
    QVERIFY(Input::show(&window));
    QSignalSpy spy(&panel, &DockPanel::signalCurrentChanged);
    Input::click(buttonOf(panel, 0));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.takeFirst(), QVariantList{-1});
    QCOMPARE(checkedStates(panel), QList<bool>({false, false}));
    QCOMPARE(panel.checkedId(), -1);
    Input::click(buttonOf(panel, 0));
    QCOMPARE(spy.takeFirst(), QVariantList{0});
}

void tst_DockPanel::onlyAPersonIsReported()
{
    DockPanel panel(Qt::Vertical, nullptr);
    const QSignalSpy spy(&panel, &DockPanel::signalCurrentChanged);
    addButtons(panel, 3);
    panel.setCurrentIndex(2);
    panel.setButtonChecked(2, false);
    panel.setButtonChecked(1, true);
    panel.setButtonVisible(1, false);
    panel.tabifyButton(0, u"more"_s, icon(Qt::blue));
    QCOMPARE(spy.size(), 0);
}

void tst_DockPanel::everyOneOfTwelveButtonsAnswers()
{
    BarWindow window(u"right"_s);
    DockPanel &panel = window.bar();
    addButtons(panel, 12);
    QVERIFY(Input::show(&window));
    QSignalSpy spy(&panel, &DockPanel::signalCurrentChanged);
    for (int i = 11; i >= 0; --i) {
        QCOMPARE(buttonOf(panel, i)->y(), 6 + i * (30 + 6));
        QCOMPARE(buttonOf(panel, i)->size(), QSize(30, 30));
        Input::click(buttonOf(panel, i));
        QCOMPARE(spy.takeFirst(), QVariantList{i});
        QCOMPARE(checkedStates(panel).count(true), 1);
    }
}

void tst_DockPanel::setCurrentIndexChecksOneButtonAlone()
{
    DockPanel panel(Qt::Vertical, nullptr);
    addButtons(panel, 3);
    panel.setCurrentIndex(1);
    QCOMPARE(checkedStates(panel), QList<bool>({false, true, false}));
    panel.setCurrentIndex(1);
    QCOMPARE(checkedStates(panel), QList<bool>({false, true, false}));
    panel.setButtonChecked(2, true);
    panel.setCurrentIndex(0);
    QCOMPARE(checkedStates(panel), QList<bool>({true, false, false}));
    QCOMPARE(panel.checkedId(), 0);
}

void tst_DockPanel::setButtonCheckedLeavesTheOthers()
{
    DockPanel panel(Qt::Vertical, nullptr);
    addButtons(panel, 3);
    panel.setButtonChecked(2, true);
    QCOMPARE(checkedStates(panel), QList<bool>({true, false, true}));
    panel.setButtonChecked(0, false);
    QCOMPARE(checkedStates(panel), QList<bool>({false, false, true}));
    QCOMPARE(panel.checkedId(), 2);
}

void tst_DockPanel::hiddenButtonsTakeNoRoom()
{
    BarWindow window(u"left"_s);
    DockPanel &panel = window.bar();
    addButtons(panel, 3);
    QVERIFY(Input::show(&window));
    panel.setButtonVisible(1, false);
    QVERIFY(!buttonOf(panel, 1)->isVisible());
    QTRY_COMPARE(buttonOf(panel, 2)->y(), 6 + 36);
    panel.setButtonVisible(1, true);
    QVERIFY(buttonOf(panel, 1)->isVisible());
    QTRY_COMPARE(buttonOf(panel, 2)->y(), 6 + 2 * 36);
}

void tst_DockPanel::wrongIndexesAreIgnored()
{
    QFETCH(const int, index);
    DockPanel panel(Qt::Horizontal, nullptr);
    addButtons(panel, 3);
    const int width = panel.width();
    QCOMPARE(panel.tabifyButton(index, u"more"_s, icon(Qt::blue)), -1);
    panel.setButtonChecked(index, true);
    panel.setButtonChecked(index, false);
    panel.setButtonVisible(index, false);
    panel.setCurrentIndex(index);
    QCOMPARE(checkedStates(panel), QList<bool>({true, false, false}));
    for (int i = 0; i < 3; ++i) {
        QVERIFY(!buttonOf(panel, i)->isHidden());
        QCOMPARE(buttonOf(panel, i)->size(), QSize(30, 30));
        QCOMPARE(buttonOf(panel, i)->icons().size(), 1);
    }
    QCOMPARE(panel.width(), width);
}

void tst_DockPanel::anEmptyBarIgnoresEverything()
{
    DockPanel panel(Qt::Vertical, nullptr);
    QCOMPARE(panel.tabifyButton(0, u"more"_s, icon(Qt::blue)), -1);
    panel.setButtonChecked(0, true);
    panel.setButtonVisible(0, false);
    panel.setCurrentIndex(0);
    QCOMPARE(panel.checkedId(), -1);
    QCOMPARE(panel.layout()->count(), 0);
}

void tst_DockPanel::aDeletedButtonDoesNoHarm()
{
    DockPanel panel(Qt::Horizontal, nullptr);
    addButtons(panel, 2);
    delete buttonOf(panel, 1);
    panel.setCurrentIndex(1);
    panel.setButtonVisible(1, false);
    QCOMPARE(panel.tabifyButton(1, u"more"_s, icon(Qt::blue)), -1);
    delete buttonOf(panel, 0);
    panel.setCurrentIndex(0);
    QCOMPARE(panel.checkedId(), -1);
    panel.addSeparator();
}

void tst_DockPanel::returnInADialogClicksNoButton()
{
    QDialog dialog;
    dialog.resize(200, 300);
    auto *edit = new QLineEdit(&dialog);
    edit->setGeometry(50, 10, 100, 30);
    DockPanel panel(Qt::Vertical, &dialog);
    panel.setGeometry(0, 0, 36, 200);
    addButtons(panel, 2);
    const QSignalSpy spy(&panel, &DockPanel::signalCurrentChanged);
    QVERIFY(Input::show(&dialog));
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    QTest::keyClick(edit, Qt::Key_Enter);
    QCOMPARE(spy.size(), 0);
    QCOMPARE(checkedStates(panel), QList<bool>({true, false}));
}

void tst_DockPanel::horizontalBarIsAsWideAsItsLayoutAsks()
{
    DockPanel panel(Qt::Horizontal, nullptr);
    const auto isFitting = [&panel] {
        const int width = panel.layout()->sizeHint().width();
        return panel.minimumWidth() == width && panel.maximumWidth() == width;
    };
    QVERIFY(isFitting());
    for (int i = 0; i < 3; ++i) {
        panel.addButton(u"button"_s, icon(Qt::red));
        QVERIFY(isFitting());
    }
    const int width = panel.minimumWidth();
    panel.tabifyButton(1, u"more"_s, icon(Qt::blue)); // grows in height alone
    QVERIFY(isFitting());
    QCOMPARE(panel.minimumWidth(), width);
    panel.setButtonVisible(0, false);
    QVERIFY(isFitting());
    QCOMPARE(panel.minimumWidth(), width - 36);
    panel.setButtonVisible(0, true);
    QVERIFY(isFitting());
    QCOMPARE(panel.minimumWidth(), width);
    panel.addSeparator();
    QVERIFY(isFitting());
    QVERIFY(panel.minimumWidth() > width);
}

void tst_DockPanel::verticalBarHasNoFixedWidthOfItsOwn()
{
    DockPanel panel(Qt::Vertical, nullptr);
    addButtons(panel, 2);
    panel.addSeparator();
    QCOMPARE(panel.minimumWidth(), 0);
    QCOMPARE(panel.maximumWidth(), QWIDGETSIZE_MAX);
}

QTEST_MAIN(tst_DockPanel)

#include "tst_dockpanel.moc"
