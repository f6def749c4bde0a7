// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DialogFixture.h"
#include "StyleChecks.h"
#include "support/ModalScript.h"

#include "DocumentController.h"
#include "NotepadDialog.h"
#include "StyleCatalog.h"
#include "StyledText.h"
#include "TextEditor.h"
#include "TextStyler.h"

#include <QAction>
#include <QFileDialog>
#include <QLineEdit>

using namespace Qt::StringLiterals;
using StyleChecks::stylesOf;

/// Styled text between the window and its file.
class tst_NotepadStyledFiles final : public DialogFixture
{
    Q_OBJECT

private Q_SLOTS:
    void stylesComeBackFromAnHtmlFile_data();
    void stylesComeBackFromAnHtmlFile();
    void aStyledFileStaysOneWithoutStyles();
    void aStyledFileKeepsItsLineEndsAndItsMark();
    void aStyledTextIsProposedAsHtml();
    void aPlainFileGetsNoMarkup();
    void aPlainFileStaysAsItIsWhenTheUserThinksAgain();
    void droppedStylesAreAskedForOnce();
    void anotherPlainFileIsAskedForAgain();
    void closingAsksBeforeStylesAreLost();
    void aPageThatIsWrittenByHandIsItsSource();
    void aPageFromElsewhereComesBackByteByByte_data();
    void aPageFromElsewhereComesBackByteByByte();
    void aPageFromElsewhereGetsNoStyles();
    void markupInAPlainFileIsPlainText();
    void aCopyKeepsStylesWhereItCan_data();
    void aCopyKeepsStylesWhereItCan();
    void controlCharactersAreNotDroppedSilently();
    void reloadingBringsStylesBack();
    void aNewTextHasNoStyles();

private:
    void apply(const QString &name, int start, int length) const;
    void styleText() const;
    void saveAs(const QString &name) const;
    QStringList styles() const { return stylesOf(*editor()->document()); }
};

void tst_NotepadStyledFiles::apply(const QString &name, int start, int length) const
{
    editor()->select(start, length);
    TextStyler(editor()).apply(*StyleCatalog::instance().find(name));
}

/// Makes a text with some styles that of the window.
void tst_NotepadStyledFiles::styleText() const
{
    editor()->selectAll();
    editor()->insertPlainText(u"Head\n\none  <two>\t& three"_s);
    apply(u"heading1"_s, 0, 0);
    apply(u"quote"_s, 6, 0);
    apply(u"red"_s, 11, 5);
    apply(u"yellow-marker"_s, 13, 8);
}

void tst_NotepadStyledFiles::saveAs(const QString &name) const
{
    ModalScript script;
    script.chooseFile(path(name));
    action(u"saveAs"_s)->trigger();
    QVERIFY(script.isDone());
}

void tst_NotepadStyledFiles::stylesComeBackFromAnHtmlFile_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("html") << u"a.html"_s;
    QTest::newRow("htm") << u"a.htm"_s;
    QTest::newRow("capitals") << u"A.HTML"_s;
}

void tst_NotepadStyledFiles::stylesComeBackFromAnHtmlFile()
{
    QFETCH(const QString, name);
    styleText();
    const QStringList before = styles();
    const QString text = editor()->text();
    saveAs(name);
    QVERIFY(!dialog()->isWindowModified());
    const QByteArray bytes = bytesOf(path(name));
    QVERIFY(bytes.startsWith("<!DOCTYPE html>\n"));
    QVERIFY(bytes.contains("<h1 class=\"heading1\">"));
    action(u"new"_s)->trigger();
    QCOMPARE(styles(), QStringList{u":"_s});
    QVERIFY(dialog()->document()->openPath(path(name)));
    QCOMPARE(styles(), before);
    QCOMPARE(editor()->text(), text);
    QVERIFY(!dialog()->isWindowModified());
    action(u"save"_s)->trigger();
    QCOMPARE(bytesOf(path(name)), bytes);
    editor()->undo();
    QCOMPARE(styles(), before);
}

void tst_NotepadStyledFiles::aStyledFileStaysOneWithoutStyles()
{
    styleText();
    saveAs(u"a.html"_s);
    editor()->selectAll();
    action(u"clearStyles"_s)->trigger();
    QVERIFY(dialog()->isWindowModified());
    action(u"save"_s)->trigger();
    const QString html = QString::fromUtf8(bytesOf(path(u"a.html"_s)));
    QVERIFY(StyledText::isReadable(html));
    QVERIFY(html.contains(u"<p>one  &lt;two&gt;\t&amp; three</p>"_s));
    const QString text = editor()->text();
    QVERIFY(dialog()->document()->openPath(path(u"a.html"_s)));
    QCOMPARE(editor()->text(), text);
}

void tst_NotepadStyledFiles::aStyledFileKeepsItsLineEndsAndItsMark()
{
    styleText();
    action(u"lineEndCrLf"_s)->trigger();
    action(u"byteOrderMark"_s)->trigger();
    saveAs(u"a.html"_s);
    const QStringList before = styles();
    const QByteArray bytes = bytesOf(path(u"a.html"_s));
    QVERIFY(bytes.startsWith("\xEF\xBB\xBF<!DOCTYPE html>\r\n"));
    action(u"new"_s)->trigger();
    QVERIFY(dialog()->document()->openPath(path(u"a.html"_s)));
    QCOMPARE(styles(), before);
    QCOMPARE(label(u"lineEnds"_s), u"Windows (CRLF)"_s);
    action(u"save"_s)->trigger();
    QCOMPARE(bytesOf(path(u"a.html"_s)), bytes);
}

void tst_NotepadStyledFiles::aStyledTextIsProposedAsHtml()
{
    QString proposal;
    const auto look = [&proposal](QWidget *window) {
        proposal = window->findChild<QLineEdit *>(u"fileNameEdit"_s)->text();
    };
    ModalScript script;
    script.close(look);
    action(u"saveAs"_s)->trigger();
    QCOMPARE(proposal, u"Untitled.txt"_s);
    styleText();
    script.close(look);
    action(u"saveAs"_s)->trigger();
    QCOMPARE(proposal, u"Untitled.html"_s);
    QVERIFY(dialog()->isWindowModified());
}

void tst_NotepadStyledFiles::aPlainFileGetsNoMarkup()
{
    const QByteArray bytes("one\r\ntwo\n<three>\t");
    const QString file = openFile(u"a.txt"_s, bytes);
    apply(u"heading1"_s, 0, 0);
    apply(u"bold"_s, 5, 2);
    const QStringList before = styles();
    QVERIFY(dialog()->isWindowModified());
    ModalScript script;
    script.answer(u"Save Without Styles"_s);
    action(u"save"_s)->trigger();
    QVERIFY(script.isDone());
    QVERIFY(script.texts().value(0).contains(u"a.txt"_s));
    QCOMPARE(bytesOf(file), bytes);
    QVERIFY(!dialog()->isWindowModified());
    // They are still to be seen.
    QCOMPARE(styles(), before);
}

void tst_NotepadStyledFiles::aPlainFileStaysAsItIsWhenTheUserThinksAgain()
{
    const QString file = openFile(u"a.txt"_s, "old\n");
    styleText();
    const QStringList before = styles();
    {
        ModalScript script;
        script.answer(QMessageBox::Cancel);
        action(u"save"_s)->trigger();
    }
    QCOMPARE(bytesOf(file), QByteArray("old\n"));
    QVERIFY(dialog()->isWindowModified());
    QCOMPARE(styles(), before);
    // As the question says.
    saveAs(u"a.html"_s);
    QVERIFY(!dialog()->isWindowModified());
    QCOMPARE(dialog()->windowTitle(), u"a.html[*] – Notepad"_s);
    QCOMPARE(bytesOf(file), QByteArray("old\n"));
    QVERIFY(dialog()->document()->openPath(path(u"a.html"_s)));
    QCOMPARE(styles(), before);
}

void tst_NotepadStyledFiles::droppedStylesAreAskedForOnce()
{
    const QString file = openFile(u"a.txt"_s, "old\n");
    apply(u"bold"_s, 0, 3);
    ModalScript script;
    script.answer(u"Save Without Styles"_s);
    action(u"save"_s)->trigger();
    editor()->insertPlainText(u"new"_s);
    apply(u"italic"_s, 0, 1);
    action(u"save"_s)->trigger();
    QCOMPARE(bytesOf(file), QByteArray("new\n"));
    // Nor is there a question when nothing more gets lost than the user knows.
    dialog()->close();
    QVERIFY(!dialog()->isVisible());
}

void tst_NotepadStyledFiles::anotherPlainFileIsAskedForAgain()
{
    openFile(u"a.txt"_s, "old\n");
    apply(u"bold"_s, 0, 3);
    ModalScript script;
    script.answer(u"Save Without Styles"_s);
    action(u"save"_s)->trigger();
    script.chooseFile(path(u"b.txt"_s)).answer(QMessageBox::Cancel);
    action(u"saveAs"_s)->trigger();
    QVERIFY(script.isDone());
    QVERIFY(script.texts().value(1).contains(u"b.txt"_s));
    QVERIFY(!QFile::exists(path(u"b.txt"_s)));
    QVERIFY(dialog()->document()->openPath(path(u"a.txt"_s)));
    apply(u"bold"_s, 0, 3);
    script.answer(QMessageBox::Cancel);
    action(u"save"_s)->trigger();
    QVERIFY(script.isDone());
}

void tst_NotepadStyledFiles::closingAsksBeforeStylesAreLost()
{
    const QString file = openFile(u"a.txt"_s, "old\n");
    apply(u"bold"_s, 0, 3);
    ModalScript script;
    script.answer(QMessageBox::Save).answer(QMessageBox::Cancel);
    dialog()->close();
    QVERIFY(script.isDone());
    QVERIFY(dialog()->isVisible());
    QVERIFY(dialog()->isWindowModified());
    script.answer(QMessageBox::Save).answer(u"Save Without Styles"_s);
    dialog()->close();
    QVERIFY(script.isDone());
    QVERIFY(!dialog()->isVisible());
    QCOMPARE(bytesOf(file), QByteArray("old\n"));
}

void tst_NotepadStyledFiles::aPageThatIsWrittenByHandIsItsSource()
{
    const QString page = u"<p>by <b>hand</b></p>\n"_s;
    editor()->insertPlainText(page);
    saveAs(u"a.html"_s);
    QCOMPARE(bytesOf(path(u"a.html"_s)), page.toUtf8());
    QVERIFY(dialog()->document()->openPath(path(u"a.html"_s)));
    QCOMPARE(editor()->text(), page);
    editor()->insertPlainText(u"<!-- mine -->\n"_s);
    action(u"save"_s)->trigger();
    QCOMPARE(bytesOf(path(u"a.html"_s)), "<!-- mine -->\n" + page.toUtf8());
}

void tst_NotepadStyledFiles::aPageFromElsewhereComesBackByteByByte_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("short") << QByteArray("<b>loud</b>");
    QTest::newRow("long") << QByteArray("<!DOCTYPE html>\r\n<html>\r\n<head><title>x</title>\n"
                                        "<script>1 < 2</script></head><body><img></body></html>");
    QTest::newRow("like one of ours") << QByteArray("<!DOCTYPE html>\n<html>\n<head>\n"
                                                    "<meta charset=\"utf-8\"/>\n"
                                                    "<meta name=\"generator\""
                                                    " content=\"VornFrame Notepad\"/>\n");
    QTest::newRow("empty") << QByteArray();
}

void tst_NotepadStyledFiles::aPageFromElsewhereComesBackByteByByte()
{
    QFETCH(const QByteArray, bytes);
    const QString file = openFile(u"a.html"_s, bytes);
    QCOMPARE(editor()->text(), dialog()->document()->file().text());
    action(u"save"_s)->trigger();
    QCOMPARE(bytesOf(file), bytes);
}

void tst_NotepadStyledFiles::aPageFromElsewhereGetsNoStyles()
{
    const QByteArray bytes("<b>loud</b>\n");
    const QString file = openFile(u"a.html"_s, bytes);
    apply(u"red"_s, 3, 4);
    {
        ModalScript script;
        script.answer(QMessageBox::Cancel);
        action(u"save"_s)->trigger();
        QVERIFY(script.isDone());
        script.answer(u"Save Without Styles"_s);
        action(u"save"_s)->trigger();
    }
    QCOMPARE(bytesOf(file), bytes);
    // Under another name it is a styled text about a page.
    saveAs(u"b.html"_s);
    QVERIFY(bytesOf(path(u"b.html"_s)).contains("&lt;b&gt;<span class=\"red\""));
    QCOMPARE(bytesOf(file), bytes);
}

void tst_NotepadStyledFiles::markupInAPlainFileIsPlainText()
{
    styleText();
    const QByteArray html = StyledText::toHtml(*editor()->document()).toUtf8();
    editor()->document()->setModified(false);
    const QString file = openFile(u"a.txt"_s, html);
    QCOMPARE(editor()->text(), QString::fromUtf8(html));
    action(u"save"_s)->trigger();
    QCOMPARE(bytesOf(file), html);
}

void tst_NotepadStyledFiles::aCopyKeepsStylesWhereItCan_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<bool>("isWritten");
    QTest::addColumn<bool>("isStyled");

    QTest::newRow("html") << u"b.html"_s << QString() << true << true;
    QTest::newRow("txt, without") << u"b.txt"_s << u"Save Without Styles"_s << true << false;
    QTest::newRow("txt, not at all") << u"b.txt"_s << u"Cancel"_s << false << false;
}

void tst_NotepadStyledFiles::aCopyKeepsStylesWhereItCan()
{
    QFETCH(const QString, name);
    QFETCH(const QString, answer);
    QFETCH(const bool, isWritten);
    QFETCH(const bool, isStyled);
    styleText();
    saveAs(u"a.html"_s);
    apply(u"bold"_s, 0, 4);
    const QString text = editor()->text();
    const QByteArray html = StyledText::toHtml(*editor()->document()).toUtf8();
    ModalScript script;
    script.chooseFile(path(name));
    if (answer == u"Cancel"_s)
        script.answer(QMessageBox::Cancel);
    else if (!answer.isEmpty())
        script.answer(answer);
    action(u"saveCopy"_s)->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(QFile::exists(path(name)), isWritten);
    if (isWritten)
        QCOMPARE(bytesOf(path(name)), isStyled ? html : text.toUtf8());
    QVERIFY(dialog()->isWindowModified());
    action(u"save"_s)->trigger();
    QCOMPARE(bytesOf(path(u"a.html"_s)), html);
}

void tst_NotepadStyledFiles::controlCharactersAreNotDroppedSilently()
{
    editor()->insertPlainText(u"page\fbreak"_s);
    apply(u"bold"_s, 0, 4);
    ModalScript script;
    script.chooseFile(path(u"a.html"_s)).answer(QMessageBox::Ok);
    action(u"saveAs"_s)->trigger();
    QVERIFY(script.isDone());
    QVERIFY(script.texts().value(0).contains(u"control characters"_s));
    QVERIFY(!QFile::exists(path(u"a.html"_s)));
    QVERIFY(dialog()->isWindowModified());
    script.chooseFile(path(u"a.txt"_s)).answer(u"Save Without Styles"_s);
    action(u"saveAs"_s)->trigger();
    QCOMPARE(bytesOf(path(u"a.txt"_s)), QByteArray("page\fbreak"));
}

void tst_NotepadStyledFiles::reloadingBringsStylesBack()
{
    styleText();
    saveAs(u"a.html"_s);
    const QStringList before = styles();
    editor()->selectAll();
    action(u"clearStyles"_s)->trigger();
    ModalScript script;
    script.answer(u"Reload"_s);
    action(u"reload"_s)->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(styles(), before);
    QVERIFY(!dialog()->isWindowModified());
}

void tst_NotepadStyledFiles::aNewTextHasNoStyles()
{
    styleText();
    saveAs(u"a.html"_s);
    action(u"new"_s)->trigger();
    QTest::keyClicks(editor(), u"plain"_s);
    QCOMPARE(styles(), QStringList{u": <>plain"_s});
    // And it is no styled file.
    saveAs(u"b.html"_s);
    QCOMPARE(bytesOf(path(u"b.html"_s)), QByteArray("plain"));
    openFile(u"c.txt"_s, "text\n");
    QTest::keyClicks(editor(), u"more "_s);
    action(u"save"_s)->trigger();
    QCOMPARE(bytesOf(path(u"c.txt"_s)), QByteArray("more text\n"));
}

QTEST_MAIN(tst_NotepadStyledFiles)

#include "tst_notepadstyledfiles.moc"
