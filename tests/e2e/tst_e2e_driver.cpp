// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "EndToEndCase.h"

using namespace Qt::StringLiterals;

/// Display, person and program, whatever is done with them.
class tst_E2eDriver final : public EndToEndCase
{
    Q_OBJECT

private Q_SLOTS:
    void theProgramIsUsedAtEveryScale_data();
    void theProgramIsUsedAtEveryScale();
    void aFailureTellsWhatWasDoneBefore();
};

void tst_E2eDriver::theProgramIsUsedAtEveryScale_data()
{
    QTest::addColumn<int>("scale");

    QTest::newRow("1") << 1;
    QTest::newRow("2") << 2;
}

void tst_E2eDriver::theProgramIsUsedAtEveryScale()
{
    QFETCH(const int, scale);
    useScale(scale);
    scene()->start({u"folder"_s});
    workbench()->waitFor(u"folder"_s, scene()->path(u"folder"_s));
    scene()->click(u"widget searchField"_s);
    workbench()->waitFor(u"focus"_s, u"searchField"_s);
    scene()->doubleClick(u"file readme.txt"_s);
    workbench()->waitFor(u"tabs 0"_s, u"readme.txt"_s);
    workbench()->waitFor(u"ribbon page"_s, u"textTools"_s);
    // The row of the ribbon's tabs, in front of all.
    const QRect window = workbench()->place(u"widget workbench"_s);
    scene()->waitForColor(window.topLeft() + QPoint(600, 5), QColor(0, 64, 115));
    QCOMPARE(scene()->picture().size(), QSize(1280, 900) * scale);
    scene()->leave();
}

void tst_E2eDriver::aFailureTellsWhatWasDoneBefore()
{
    Steps steps;
    steps.add(u"first"_s);
    steps.add(u"second"_s);
    steps.fail(u"reason"_s);
    steps.fail(u"consequence"_s);
    QVERIFY(steps.haveFailed());
    QCOMPARE(steps.failure(), u"reason\nafter: first\n       second"_s);
    // What follows is not even tried.
    QVERIFY(!steps.waitUntil([] { return true; }, [] { return QString(); }));
}

QTEST_GUILESS_MAIN(tst_E2eDriver)

#include "tst_e2e_driver.moc"
