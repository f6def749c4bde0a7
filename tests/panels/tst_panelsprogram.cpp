// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

/// The program as it is run from the command line.
class tst_PanelsProgram final : public ProgramFixture
{
    Q_OBJECT

public:
    tst_PanelsProgram();

private Q_SLOTS:
    void init();
    void aScreenshotNeedsNoSettings();
    void saysWhatWentWrong_data();
};

tst_PanelsProgram::tst_PanelsProgram()
    : ProgramFixture({QString::fromUtf8(PANELS_PROGRAM),
                      QSize(1100, 720),
                      // The bars on both sides, the status bar, and the text or the ground of the
                      // placeholder.
                      {{QPoint(17, 400), QColor(230, 230, 230)},
                       {QPoint(1083, 400), QColor(230, 230, 230)},
                       {QPoint(700, 702), QColor(230, 230, 230)},
                       {QPoint(700, 450), QColor(Qt::white)}},
                      {u"b.txt"_s, u"a.md"_s},
                      {u"--settings <FILE.ini>"_s, u"[FILE...]"_s}})
{}

void tst_PanelsProgram::init()
{
    ProgramFixture::init();
    write(u"a.md"_s, "# Heading\n\ntext\n");
    write(u"b.txt"_s, "some text\n");
}

void tst_PanelsProgram::aScreenshotNeedsNoSettings()
{
    checkScreenshotWithout("[General]\nformat=1\n\n[left]\nminimized=true\n");
}

void tst_PanelsProgram::saysWhatWentWrong_data()
{
    ProgramFixture::saysWhatWentWrong_data();
    QTest::newRow("no such file") << QStringList{u"b.txt"_s, u"missing.txt"_s, u"--screenshot"_s,
                                                 u"picture.png"_s}
                                  << u"missing.txt"_s;
    QTest::newRow("no name for the settings") << QStringList{u"--settings"_s} << u"settings"_s;
}

QTEST_GUILESS_MAIN(tst_PanelsProgram)

#include "tst_panelsprogram.moc"
