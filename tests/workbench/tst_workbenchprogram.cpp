// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "support/ProgramFixture.h"

#include <QDir>
#include <QProcess>

using namespace Qt::StringLiterals;

/// The program as it is run from the command line.
class tst_WorkbenchProgram final : public ProgramFixture
{
    Q_OBJECT

public:
    tst_WorkbenchProgram();

private Q_SLOTS:
    void init();
    void aScreenshotNeedsNoSettings();
    void saysWhatWentWrong_data();
    void answersQuestions();
};

tst_WorkbenchProgram::tst_WorkbenchProgram()
    : ProgramFixture({QString::fromUtf8(WORKBENCH_PROGRAM),
                      QSize(1100, 720),
                      // The row of the ribbon's tabs, the bars on both sides, and the status bar.
                      {{QPoint(600, 5), QColor(0, 64, 115)},
                       {QPoint(17, 400), QColor(230, 230, 230)},
                       {QPoint(1083, 400), QColor(230, 230, 230)},
                       {QPoint(700, 702), QColor(230, 230, 230)}},
                      {u"folder"_s, u"a.md"_s},
                      {u"--settings <FILE.ini>"_s, u"--report"_s, u"[FOLDER|FILE...]"_s}})
{}

void tst_WorkbenchProgram::init()
{
    ProgramFixture::init();
    QVERIFY(QDir(path({})).mkdir(u"folder"_s));
    write(u"a.md"_s, "# Heading\n\ntext\n");
    write(u"folder/b.csv"_s, "a,b\n1,2\n");
}

void tst_WorkbenchProgram::aScreenshotNeedsNoSettings()
{
    checkScreenshotWithout("[General]\nformat=1\n\n[left]\nminimized=true\n");
}

void tst_WorkbenchProgram::saysWhatWentWrong_data()
{
    ProgramFixture::saysWhatWentWrong_data();
    QTest::newRow("no such file") << QStringList{u"missing.txt"_s, u"--screenshot"_s,
                                                 u"picture.png"_s}
                                  << u"missing.txt"_s;
    QTest::newRow("no name for the settings") << QStringList{u"--settings"_s} << u"settings"_s;
}

void tst_WorkbenchProgram::answersQuestions()
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"HOME"_s, path(u"home"_s));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(path({}));
    process.start(QString::fromUtf8(WORKBENCH_PROGRAM),
                  {u"--report"_s, u"--settings"_s, u"a.ini"_s, u"folder"_s, u"a.md"_s});
    QVERIFY(process.waitForStarted());
    // In pieces: only a whole line is a question.
    process.write("rep");
    QVERIFY(process.waitForBytesWritten());
    process.write("ort\nwidget searchField\n");
    QByteArray output;
    while (!output.contains("end: widget searchField\n"))
        QVERIFY(process.waitForReadyRead() && (output += process.readAllStandardOutput()).size());
    QVERIFY(output.contains("tabs 0: a.md\n"));
    QVERIFY(output.contains("end: report\n"));
    QVERIFY(output.contains("ribbon page: textTools\n"));
    // The program goes on when nobody asks any more.
    process.closeWriteChannel();
    QVERIFY(!process.waitForFinished(300));
    process.terminate();
    QVERIFY(process.waitForFinished());
}

QTEST_GUILESS_MAIN(tst_WorkbenchProgram)

#include "tst_workbenchprogram.moc"
