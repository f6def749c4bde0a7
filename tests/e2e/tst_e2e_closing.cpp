// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "EndToEndCase.h"

using namespace Qt::StringLiterals;

/// Closing with changes that are not saved.
class tst_E2eClosing final : public EndToEndCase
{
    Q_OBJECT

private Q_SLOTS:
    void aTabIsClosedByItsCross();
    void allTabsButOneAreClosed_data();
    void allTabsButOneAreClosed();
    void whoStaysKeepsEverything();
    void whoLeavesDecidesAboutTheChanges_data();
    void whoLeavesDecidesAboutTheChanges();
};

void tst_E2eClosing::aTabIsClosedByItsCross()
{
    scene()->start({u"folder/readme.txt"_s, u"folder/notes.md"_s});
    workbench()->waitFor(u"tabs 0"_s, u"readme.txt | notes.md"_s);
    const QRect tab = workbench()->place(u"tab 0 0"_s);
    person()->click({tab.right() - 14, tab.center().y()});
    workbench()->waitFor(u"tabs 0"_s, u"notes.md"_s);
    scene()->leave();
}

void tst_E2eClosing::allTabsButOneAreClosed_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("tabs");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("Save") << u"Save"_s << u"readme.txt"_s << QByteArray("xdeep\n");
    QTest::newRow("Discard") << u"Discard"_s << u"readme.txt"_s << QByteArray("deep\n");
    QTest::newRow("Cancel") << u"Cancel"_s << u"readme.txt | notes.md | deep.txt*"_s
                            << QByteArray("deep\n");
}

void tst_E2eClosing::allTabsButOneAreClosed()
{
    QFETCH(const QString, answer);
    QFETCH(const QString, tabs);
    QFETCH(const QByteArray, bytes);
    scene()->start({u"folder/readme.txt"_s, u"folder/notes.md"_s, u"folder/inner/deep.txt"_s});
    workbench()->waitFor(u"selection"_s, u"0 "_s);
    person()->type(u"x"_s);
    workbench()->waitFor(u"tabs 0"_s, u"readme.txt | notes.md | deep.txt*"_s);
    scene()->click(u"tab 0 0"_s, Person::Right);
    scene()->click(u"entry Close All(Except Current)"_s);
    workbench()->waitFor(u"box"_s, u"Unsaved Changes"_s);
    // The question shows what it is about.
    workbench()->waitFor(u"document"_s, scene()->path(u"folder/inner/deep.txt"_s));
    QCOMPARE(workbench()->value(u"box text"_s), u"Save the changes to “deep.txt”?"_s);
    scene()->answer(answer);
    workbench()->waitFor(u"tabs 0"_s, tabs);
    QCOMPARE(scene()->bytesOf(u"folder/inner/deep.txt"_s), bytes);
    QCOMPARE(scene()->bytesOf(u"folder/readme.txt"_s), "one\ntwo\nthree\n");
    if (answer != "Cancel"_L1) {
        workbench()->waitFor(u"document"_s, scene()->path(u"folder/readme.txt"_s));
        scene()->leave();
        return;
    }
    scene()->close();
    workbench()->waitFor(u"box"_s, u"Unsaved Changes"_s);
    scene()->click(u"button Discard"_s);
    workbench()->waitForEnd();
}

void tst_E2eClosing::whoStaysKeepsEverything()
{
    scene()->start({u"folder/readme.txt"_s, u"folder/picture.png"_s, u"folder/notes.md"_s});
    workbench()->waitFor(u"document"_s, scene()->path(u"folder/notes.md"_s));
    person()->type(u"new"_s);
    workbench()->waitFor(u"tabs 0"_s, u"readme.txt | notes.md*"_s);
    scene()->close();
    workbench()->waitFor(u"box"_s, u"Unsaved Changes"_s);
    scene()->answer(u"Cancel"_s);
    workbench()->waitFor(u"active"_s, u"workbench"_s);
    workbench()->waitFor(u"tabs 0"_s, u"readme.txt | notes.md*"_s);
    workbench()->waitFor(u"tabs 1"_s, u"picture.png"_s);
    workbench()->waitFor(u"selection"_s, u"3 "_s);
    QVERIFY(scene()->bytesOf(u"folder/notes.md"_s).startsWith("# First"));
    person()->press(u"ctrl+s"_s);
    workbench()->waitFor(u"tabs 0"_s, u"readme.txt | notes.md"_s);
    scene()->leave();
    QVERIFY(scene()->bytesOf(u"folder/notes.md"_s).startsWith("new# First"));
}

void tst_E2eClosing::whoLeavesDecidesAboutTheChanges_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("Save") << u"Save"_s << QByteArray("xone\ntwo\nthree\n");
    QTest::newRow("Discard") << u"Discard"_s << QByteArray("one\ntwo\nthree\n");
}

void tst_E2eClosing::whoLeavesDecidesAboutTheChanges()
{
    QFETCH(const QString, answer);
    QFETCH(const QByteArray, bytes);
    scene()->start({u"folder/readme.txt"_s});
    workbench()->waitFor(u"selection"_s, u"0 "_s);
    person()->type(u"x"_s);
    workbench()->waitFor(u"tabs 0"_s, u"readme.txt*"_s);
    scene()->close();
    workbench()->waitFor(u"box"_s, u"Unsaved Changes"_s);
    scene()->click(u"button "_s + answer);
    workbench()->waitForEnd();
    QCOMPARE(scene()->bytesOf(u"folder/readme.txt"_s), bytes);
}

QTEST_GUILESS_MAIN(tst_E2eClosing)

#include "tst_e2e_closing.moc"
