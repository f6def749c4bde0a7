// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "EndToEndCase.h"

#include <QFile>

using namespace Qt::StringLiterals;

/// Display, person and program, whatever is done with them.
class tst_E2eDriver final : public EndToEndCase
{
    Q_OBJECT

private Q_SLOTS:
    void theProgramIsUsedAtEveryScale_data();
    void theProgramIsUsedAtEveryScale();
    void aFailureTellsWhatWasDoneBefore();
    void aMissingProgramIsNamed();
    void whatDoesNotComeFailsWithWhatIsThereInstead();
    void aWarningFailsTheScenario();
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

void tst_E2eDriver::aMissingProgramIsNamed()
{
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(scene()->path(u"folder"_s)));
    Steps steps;
    const VirtualDisplay display({640, 480}, &steps);
    qputenv("PATH", path);
    QVERIFY2(steps.failure().startsWith(u"Xvfb could not be started"_s),
             qPrintable(steps.failure()));
    QCOMPARE(display.name(), QString());
    QVERIFY(display.picture().isNull());
}

void tst_E2eDriver::whatDoesNotComeFailsWithWhatIsThereInstead()
{
    const TemporaryHome home;
    Steps steps;
    WorkbenchProcess process(&home, WorkbenchProcess::Place{}, &steps);
    process.start(QString::fromUtf8(WORKBENCH_PROGRAM), {});
    QVERIFY2(!steps.haveFailed(), qPrintable(steps.failure()));
    QCOMPARE(process.value(u"nonsense"_s), QString());
    QVERIFY(steps.failure().startsWith(u"the report says nothing about “nonsense”"_s));

    Steps hasty(std::chrono::milliseconds(100));
    WorkbenchProcess other(&home, WorkbenchProcess::Place{}, &hasty);
    other.start(QString::fromUtf8(WORKBENCH_PROGRAM), {});
    // However long the start takes, one of the two waits too long.
    other.waitFor(u"section"_s, u"7"_s);
    QVERIFY2(hasty.failure().contains(u"section is “0”"_s)
                 || hasty.failure().contains(u"cannot be seen"_s),
             qPrintable(hasty.failure()));
}

void tst_E2eDriver::aWarningFailsTheScenario()
{
    Scene other(QString::fromUtf8(WORKBENCH_PROGRAM));
    other.write(u"settings.ini/in_the_way"_s, "a folder has the name of the settings\n");
    other.start({});
    QVERIFY2(!other.steps()->haveFailed(), qPrintable(other.steps()->failure()));
    other.leave();
    QVERIFY2(other.steps()->failure().contains(u"The settings could not be written"_s),
             qPrintable(other.steps()->failure()));
}

QTEST_GUILESS_MAIN(tst_E2eDriver)

#include "tst_e2e_driver.moc"
