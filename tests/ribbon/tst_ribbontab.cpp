// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ribbon/RibbonTab.h"
#include "ribbon/RibbonTab_p.h"
#include "support/Input.h"
#include "support/TestCase.h"

#include <QPointer>
#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

class tst_RibbonTab : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAPushButtonInTheNamespace();
    void itsRecordStartsAsPromised();
    void belongsToItsParent();
    void startsAsACheckableButtonWithoutFocus();
    void isTemporaryWhenToldSo();
    void isAsWideAsItsTextWithTenPixelsOnEachSide_data();
    void isAsWideAsItsTextWithTenPixelsOnEachSide();
    void isAsHighAsAnyPushButton_data();
    void isAsHighAsAnyPushButton();
    void followsTheFontOfAStyleSheet();
    void aSheetsMinimumWidthHolds();
    void aClickChecksItAndTakesNoFocus();
};

void tst_RibbonTab::isAPushButtonInTheNamespace()
{
    QCOMPARE(QLatin1StringView(RibbonTab::staticMetaObject.className()), "VornFrame::RibbonTab"_L1);
    QCOMPARE(RibbonTab::staticMetaObject.superClass(), &QPushButton::staticMetaObject);
}

void tst_RibbonTab::itsRecordStartsAsPromised()
{
    const RibbonTabPrivate d;
    QCOMPARE(d.temporary, false);
    QCOMPARE(d.margin, 10);
    QVERIFY(!d.q_ptr);
}

void tst_RibbonTab::belongsToItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QPointer<RibbonTab> tab = new RibbonTab(u"Home"_s, parent.get());
    QCOMPARE(tab->parent(), parent.get());
    parent.reset();
    QVERIFY(!tab);
}

void tst_RibbonTab::startsAsACheckableButtonWithoutFocus()
{
    const RibbonTab tab(u"Home"_s, nullptr);
    QCOMPARE(tab.text(), u"Home"_s);
    QVERIFY(tab.isCheckable());
    QVERIFY(!tab.isChecked());
    QCOMPARE(tab.focusPolicy(), Qt::NoFocus);
    QVERIFY(!tab.isTemporary());
}

void tst_RibbonTab::isTemporaryWhenToldSo()
{
    RibbonTab tab(u"Home"_s, nullptr);
    tab.setTemporary(true);
    QVERIFY(tab.isTemporary());
    tab.setTemporary(false);
    QVERIFY(!tab.isTemporary());
}

void tst_RibbonTab::isAsWideAsItsTextWithTenPixelsOnEachSide_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QString();
    QTest::newRow("short") << u"A"_s;
    QTest::newRow("word") << u"Home"_s;
    QTest::newRow("sentence") << u"All that can be done with a picture"_s;
    QTest::newRow("with a mnemonic") << u"&File"_s;
    QTest::newRow("with kerning") << u"AVAVAV To"_s;
    QTest::newRow("right-to-left script") << u"\u05e2\u05e8\u05d9\u05db\u05d4"_s;
}

void tst_RibbonTab::isAsWideAsItsTextWithTenPixelsOnEachSide()
{
    QFETCH(const QString, text);
    const RibbonTab tab(text, nullptr);
    QCOMPARE(tab.sizeHint().width(), 2 * 10 + tab.fontMetrics().horizontalAdvance(text));
}

void tst_RibbonTab::isAsHighAsAnyPushButton_data()
{
    isAsWideAsItsTextWithTenPixelsOnEachSide_data();
}

void tst_RibbonTab::isAsHighAsAnyPushButton()
{
    QFETCH(const QString, text);
    const RibbonTab tab(text, nullptr);
    const QPushButton button(text);
    QCOMPARE(tab.sizeHint().height(), button.sizeHint().height());
}

void tst_RibbonTab::followsTheFontOfAStyleSheet()
{
    QWidget parent;
    const auto *tab = new RibbonTab(u"Home"_s, &parent);
    const int before = tab->sizeHint().width();
    parent.setStyleSheet(u"QPushButton { font-size: 40px; }"_s);
    const int after = tab->sizeHint().width();
    QCOMPARE(tab->font().pixelSize(), 40);
    QCOMPARE(after, 20 + tab->fontMetrics().horizontalAdvance(u"Home"_s));
    QVERIFY(after > before);
}

void tst_RibbonTab::aSheetsMinimumWidthHolds()
{
    QWidget parent;
    auto *tab = new RibbonTab(u"A"_s, &parent);
    parent.setStyleSheet(u"VornFrame--RibbonTab { min-width: 100px; border: none; }"_s);
    tab->ensurePolished();
    tab->adjustSize();
    QVERIFY(tab->sizeHint().width() < 100);
    QCOMPARE(tab->width(), 100);
}

void tst_RibbonTab::aClickChecksItAndTakesNoFocus()
{
    QWidget window;
    auto *tab = new RibbonTab(u"Home"_s, &window);
    tab->move(10, 10);
    const QSignalSpy clicked(tab, &RibbonTab::clicked);
    QVERIFY(Input::show(&window));
    Input::click(tab);
    QCOMPARE(clicked.size(), 1);
    QVERIFY(tab->isChecked());
    QVERIFY(!tab->hasFocus());
}

QTEST_MAIN(tst_RibbonTab)

#include "tst_ribbontab.moc"
