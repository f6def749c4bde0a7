// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "support/ProgramFixture.h"

#include <QDir>

using namespace Qt::StringLiterals;

/// The program as it is run from the command line.
class tst_FilesProgram final : public ProgramFixture
{
    Q_OBJECT

public:
    tst_FilesProgram();

private Q_SLOTS:
    void init();
    void oneFolderIsEnough();
    void aScreenshotNeedsNoSettings();
    void saysWhatWentWrong_data();
};

tst_FilesProgram::tst_FilesProgram()
    : ProgramFixture({QString::fromUtf8(FILES_PROGRAM),
                      QSize(1100, 720),
                      // The ground of the trees and that of the preview.
                      {{QPoint(300, 400), QColor(245, 245, 245)},
                       {QPoint(800, 400), QColor(245, 245, 245)},
                       {QPoint(300, 700), QColor(Qt::white)}},
                      {u"a"_s, u"b"_s},
                      {u"--settings <FILE.ini>"_s, u"[LEFT [RIGHT]]"_s}})
{}

void tst_FilesProgram::init()
{
    ProgramFixture::init();
    const QDir folder(path(u"."_s));
    QVERIFY(folder.mkdir(u"a"_s) && folder.mkdir(u"b"_s));
    write(u"a/file.txt"_s, "some text\n");
}

void tst_FilesProgram::oneFolderIsEnough()
{
    QCOMPARE(screenshot({u"a"_s}).size(), QSize(1100, 720));
}

void tst_FilesProgram::aScreenshotNeedsNoSettings()
{
    checkScreenshotWithout("[General]\nformat=1\n\n[window]\nisPreviewShown=false\n");
}

void tst_FilesProgram::saysWhatWentWrong_data()
{
    ProgramFixture::saysWhatWentWrong_data();
    QTest::newRow("no such folder")
        << QStringList{u"a"_s, u"missing"_s, u"--screenshot"_s, u"picture.png"_s} << u"missing"_s;
    QTest::newRow("no folder") << QStringList{u"a/file.txt"_s, u"--screenshot"_s, u"picture.png"_s}
                               << u"file.txt"_s;
    QTest::newRow("a folder too many") << QStringList{u"a"_s, u"b"_s, u"a"_s} << u"two panes"_s;
    QTest::newRow("no name for the settings") << QStringList{u"--settings"_s} << u"settings"_s;
}

QTEST_GUILESS_MAIN(tst_FilesProgram)

#include "tst_filesprogram.moc"
