// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "EndToEndCase.h"

#include <QFile>

using namespace Qt::StringLiterals;

/// Files in tabs: opened, changed, searched, saved.
class tst_E2eDocuments final : public EndToEndCase
{
    Q_OBJECT

private Q_SLOTS:
    void eachKindOfFileComesWithItsPage_data();
    void eachKindOfFileComesWithItsPage();
    void aSectionShowsItsPageAlone();
    void tabsAreSwitchedByKeysAlone();
    void whatIsTypedIsSaved();
    void aTextIsSearched();
    void theWheelGoesThroughAText();
    void aFileThatCannotBeOpenedIsSaid_data();
    void aFileThatCannotBeOpenedIsSaid();
    void aFileThatIsNotThereIsSaid();
};

void tst_E2eDocuments::eachKindOfFileComesWithItsPage_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("section");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("title");

    QTest::newRow("text") << u"readme.txt"_s << 0 << u"textTools"_s << u"Text Tools"_s;
    QTest::newRow("picture") << u"picture.png"_s << 1 << u"pictureTools"_s << u"Picture Tools"_s;
    QTest::newRow("table") << u"table.csv"_s << 2 << u"tableTools"_s << u"Table Tools"_s;
}

void tst_E2eDocuments::eachKindOfFileComesWithItsPage()
{
    QFETCH(const QString, file);
    QFETCH(const int, section);
    QFETCH(const QString, page);
    QFETCH(const QString, title);
    scene()->start({u"folder"_s});
    workbench()->waitFor(u"temporary pages"_s, QString());
    scene()->doubleClick(u"file "_s + file);
    workbench()->waitFor(u"tabs %1"_s.arg(section), file);
    workbench()->waitFor(u"section"_s, QString::number(section));
    workbench()->waitFor(u"document"_s, scene()->path(u"folder/"_s + file));
    workbench()->waitFor(u"ribbon page"_s, page);
    workbench()->waitFor(u"temporary pages"_s, title);
    workbench()->waitFor(u"title"_s, file + u" – Workbench"_s);
    workbench()->waitFor(
        u"message"_s, u"Information: “%1” was opened."_s.arg(scene()->path(u"folder/"_s + file)));
    scene()->leave();
}

void tst_E2eDocuments::aSectionShowsItsPageAlone()
{
    scene()->start({u"folder/readme.txt"_s, u"folder/picture.png"_s, u"folder/table.csv"_s});
    workbench()->waitFor(u"temporary pages"_s, u"Table Tools"_s);
    scene()->click(u"section 0"_s);
    workbench()->waitFor(u"section"_s, u"0"_s);
    workbench()->waitFor(u"temporary pages"_s, u"Text Tools"_s);
    workbench()->waitFor(u"ribbon page"_s, u"textTools"_s);
    scene()->click(u"section 1"_s);
    workbench()->waitFor(u"section"_s, u"1"_s);
    workbench()->waitFor(u"temporary pages"_s, u"Picture Tools"_s);
    workbench()->waitFor(u"ribbon page"_s, u"pictureTools"_s);
    scene()->click(u"button Home"_s);
    workbench()->waitFor(u"ribbon page"_s, u"homePage"_s);
    scene()->click(u"button Picture Tools"_s);
    workbench()->waitFor(u"ribbon page"_s, u"pictureTools"_s);
    // Without its last tab a section is gone, and its page too.
    person()->press(u"ctrl+w"_s);
    workbench()->waitUntilGone(u"section 1"_s);
    workbench()->waitFor(u"tabs 1"_s, QString());
    workbench()->waitUntilGone(u"button Picture Tools"_s);
    scene()->leave();
}

void tst_E2eDocuments::tabsAreSwitchedByKeysAlone()
{
    scene()->start({u"folder/readme.txt"_s, u"folder/notes.md"_s, u"folder/inner/deep.txt"_s,
                    u"folder/picture.png"_s, u"folder/table.csv"_s});
    workbench()->waitFor(u"document"_s, scene()->path(u"folder/table.csv"_s));
    person()->press(u"F6"_s);
    workbench()->waitFor(u"document"_s, scene()->path(u"folder/inner/deep.txt"_s));
    person()->press(u"ctrl+Next"_s);
    workbench()->waitFor(u"document"_s, scene()->path(u"folder/readme.txt"_s));
    person()->press(u"ctrl+Next"_s);
    workbench()->waitFor(u"document"_s, scene()->path(u"folder/notes.md"_s));
    person()->press(u"ctrl+Prior"_s);
    workbench()->waitFor(u"document"_s, scene()->path(u"folder/readme.txt"_s));
    person()->press(u"shift+F6"_s);
    workbench()->waitFor(u"document"_s, scene()->path(u"folder/table.csv"_s));
    person()->press(u"shift+F6"_s);
    workbench()->waitFor(u"document"_s, scene()->path(u"folder/picture.png"_s));
    // Whoever comes to a text this way can write at once.
    person()->press(u"F6"_s);
    workbench()->waitFor(u"document"_s, scene()->path(u"folder/table.csv"_s));
    person()->press(u"F6"_s);
    workbench()->waitFor(u"document"_s, scene()->path(u"folder/readme.txt"_s));
    person()->type(u"x"_s);
    workbench()->waitFor(u"tabs 0"_s, u"readme.txt* | notes.md | deep.txt"_s);
    person()->press(u"ctrl+z"_s);
    workbench()->waitFor(u"tabs 0"_s, u"readme.txt | notes.md | deep.txt"_s);
    scene()->leave();
}

void tst_E2eDocuments::whatIsTypedIsSaved()
{
    scene()->start({u"folder"_s});
    scene()->doubleClick(u"file readme.txt"_s);
    workbench()->waitFor(u"selection"_s, u"0 "_s);
    person()->press(u"ctrl+End"_s);
    workbench()->waitFor(u"selection"_s, u"14 "_s);
    person()->type(u"four"_s);
    workbench()->waitFor(u"selection"_s, u"18 "_s);
    workbench()->waitFor(u"tabs 0"_s, u"readme.txt*"_s);
    workbench()->waitFor(u"title"_s, u"readme.txt* – Workbench"_s);
    QCOMPARE(scene()->bytesOf(u"folder/readme.txt"_s), "one\ntwo\nthree\n");
    person()->press(u"ctrl+s"_s);
    workbench()->waitFor(u"tabs 0"_s, u"readme.txt"_s);
    QCOMPARE(scene()->bytesOf(u"folder/readme.txt"_s), "one\ntwo\nthree\nfour");
    scene()->leave();
    QCOMPARE(scene()->bytesOf(u"folder/readme.txt"_s), "one\ntwo\nthree\nfour");
}

void tst_E2eDocuments::aTextIsSearched()
{
    scene()->start({u"folder/notes.md"_s});
    workbench()->waitFor(u"selection"_s, u"0 "_s);
    scene()->click(u"widget searchField"_s);
    workbench()->waitFor(u"focus"_s, u"searchField"_s);
    person()->type(u"ALPHA"_s);
    person()->press(u"Return"_s);
    workbench()->waitFor(u"selection"_s, u"9 alpha"_s);
    person()->press(u"Return"_s);
    workbench()->waitFor(u"selection"_s, u"32 alpha"_s);
    person()->press(u"F3"_s);
    workbench()->waitFor(u"selection"_s, u"9 alpha"_s);
    person()->press(u"ctrl+f"_s);
    person()->type(u"zebra"_s);
    person()->press(u"Return"_s);
    workbench()->waitFor(u"message"_s, u"Information: “zebra” was not found."_s);
    workbench()->waitFor(u"selection"_s, u"9 alpha"_s);
    scene()->leave();
}

void tst_E2eDocuments::theWheelGoesThroughAText()
{
    QByteArray lines;
    for (int line = 0; line < 200; ++line)
        lines += QByteArray::number(line) + QByteArray(line, '-') + '\n';
    scene()->write(u"folder/long.txt"_s, lines);
    scene()->start({u"folder/long.txt"_s});
    workbench()->waitFor(u"focus"_s, u"text"_s);
    const QRect text = workbench()->place(u"widget text"_s);
    person()->move(text.center());
    const auto picture = [this, text] {
        return scene()->picture().copy(text.adjusted(0, 30, 0, 0));
    };
    // Without the first line, where the cursor blinks.
    const QImage before = picture();
    const auto reason = [] { return u"the text is not scrolled as expected"_s; };
    person()->wheel(text.center(), 3);
    scene()->steps()->waitUntil([&] { return picture() != before; }, reason);
    person()->wheel(text.center(), -5);
    scene()->steps()->waitUntil([&] { return picture() == before; }, reason);
    scene()->leave();
}

void tst_E2eDocuments::aFileThatCannotBeOpenedIsSaid_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");

    QTest::newRow("binary") << u"binary.txt"_s << u"binary"_s;
    QTest::newRow("no picture") << u"broken.png"_s << u"no picture"_s;
    QTest::newRow("unreadable") << u"secret.txt"_s << u"ermission"_s;
}

void tst_E2eDocuments::aFileThatCannotBeOpenedIsSaid()
{
    QFETCH(const QString, file);
    QFETCH(const QString, reason);
    scene()->write(u"folder/binary.txt"_s, QByteArray("a\0b\0\1", 5));
    scene()->write(u"folder/broken.png"_s, "no picture at all\n");
    scene()->write(u"folder/secret.txt"_s, "secret\n");
    QVERIFY(QFile::setPermissions(scene()->path(u"folder/secret.txt"_s), {}));
    scene()->start({u"folder"_s});
    scene()->doubleClick(u"file "_s + file);
    workbench()->waitFor(u"box"_s, u"Warning"_s);
    const QString path = scene()->path(u"folder/"_s + file);
    const QString text = workbench()->value(u"box text"_s);
    QVERIFY2(text.startsWith(u"“%1” could not be opened."_s.arg(path)), qPrintable(text));
    QVERIFY2(text.contains(reason), qPrintable(text));
    scene()->answer(u"OK"_s);
    const QString message = workbench()->value(u"message"_s);
    QVERIFY2(message.startsWith(u"Warning: “%1” could not be opened."_s.arg(path)),
             qPrintable(message));
    workbench()->waitFor(u"document"_s, QString());
    scene()->leave();
}

void tst_E2eDocuments::aFileThatIsNotThereIsSaid()
{
    scene()->start({u"folder/missing.txt"_s});
    workbench()->waitFor(u"box"_s, u"Warning"_s);
    workbench()->waitFor(u"box text"_s, u"There is no file and no folder “folder/missing.txt”.  "
                                        "The last folder is shown instead."_s);
    workbench()->waitFor(u"message"_s, u"Warning: There is no file and no folder "
                                       "“folder/missing.txt”. The last folder is shown instead."_s);
    scene()->answer(u"OK"_s);
    workbench()->waitFor(u"folder"_s, scene()->path());
    scene()->leave();
}

QTEST_GUILESS_MAIN(tst_E2eDocuments)

#include "tst_e2e_documents.moc"
