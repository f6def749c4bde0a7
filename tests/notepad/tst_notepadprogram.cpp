// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

/// The program as it is run from the command line.
class tst_NotepadProgram final : public ProgramFixture
{
    Q_OBJECT

public:
    tst_NotepadProgram();

private Q_SLOTS:
    void init();
    void theFirstPageCanBeChosen();
    void saysWhatWentWrong_data();
};

tst_NotepadProgram::tst_NotepadProgram()
    : ProgramFixture({QString::fromUtf8(NOTEPAD_PROGRAM),
                      QSize(1000, 640),
                      // The tab row, the page below it, and the text.
                      {{QPoint(600, 10), QColor(0, 64, 115)},
                       {QPoint(900, 80), QColor(245, 245, 245)},
                       {QPoint(600, 400), QColor(Qt::white)}},
                      {u"a.txt"_s},
                      {u"[FILE]"_s, u"--page <TITLE>"_s}})
{}

void tst_NotepadProgram::init()
{
    ProgramFixture::init();
    write(u"a.txt"_s, "some text\n");
}

void tst_NotepadProgram::theFirstPageCanBeChosen()
{
    const QImage home = screenshot({u"a.txt"_s});
    const QImage styles = screenshot({u"a.txt"_s, u"--page"_s, u"styles"_s});
    QVERIFY(!home.isNull() && !styles.isNull());
    QVERIFY(styles != home);
    QCOMPARE(screenshot({u"a.txt"_s, u"--page"_s, u"Home"_s}), home);
    // The frame around the gallery.
    QCOMPARE(styles.pixelColor(3, 70), QColor(191, 191, 191));
}

void tst_NotepadProgram::saysWhatWentWrong_data()
{
    ProgramFixture::saysWhatWentWrong_data();
    QTest::newRow("no such file") << QStringList{u"missing.txt"_s, u"--screenshot"_s,
                                                 u"picture.png"_s}
                                  << u"missing.txt"_s;
    QTest::newRow("no such page") << QStringList{u"--page"_s, u"unknown"_s, u"--screenshot"_s,
                                                 u"picture.png"_s}
                                  << u"unknown"_s;
    QTest::newRow("two files") << QStringList{u"a.txt"_s, u"b.txt"_s} << u"one file"_s;
}

QTEST_GUILESS_MAIN(tst_NotepadProgram)

#include "tst_notepadprogram.moc"
