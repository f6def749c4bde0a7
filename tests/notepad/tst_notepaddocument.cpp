// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DialogFixture.h"
#include "support/ModalScript.h"

#include "DocumentController.h"
#include "NotepadDialog.h"
#include "TextEditor.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QFileInfo>
#include <QMimeData>

using namespace Qt::StringLiterals;

/// The ways of a text between the window and its file.
class tst_NotepadDocument final : public DialogFixture
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithAnEmptyText();
    void opensAFile();
    void whatCannotBeOpenedIsSaidAndTheTextStays_data();
    void whatCannotBeOpenedIsSaidAndTheTextStays();
    void unsavedTextIsAskedFor_data();
    void unsavedTextIsAskedFor();
    void savedTextIsNotAskedFor_data();
    void savedTextIsNotAskedFor();
    void escapeDoesNotCloseTheWindow();
    void openingCanBeGivenUp();
    void aDroppedFileIsOpened();
    void savingAnUntitledTextAsksForAName();
    void closingAnUntitledTextWithoutANameGoesOn();
    void savesUnderAnotherName();
    void aCopyLeavesTheWindowWithItsFile();
    void aCopyOntoTheFileItselfSavesIt();
    void aFailedSaveIsSaidAndTheTextStaysUnsaved();
    void closingAfterAFailedSaveGoesOn();
    void aFileThatAnotherProgramChangedIsAskedFor();
    void reloadingAsksOnlyForUnsavedText();
    void lineEndsAreChosenFromTheMenu();
    void theByteOrderMarkIsChosenFromTheMenu();
    void theTitleNamesTheFile();

private:
    void change(const QString &text) const;
    void trigger(const QString &route) const;
};

/// Makes \a text the unsaved text of the window.
void tst_NotepadDocument::change(const QString &text) const
{
    editor()->selectAll();
    editor()->insertPlainText(text);
    QVERIFY(editor()->document()->isModified());
}

void tst_NotepadDocument::trigger(const QString &route) const
{
    if (route == u"the window's button"_s)
        dialog()->close();
    else if (route == u"reject"_s)
        dialog()->reject();
    else
        action(route)->trigger();
}

void tst_NotepadDocument::startsWithAnEmptyText()
{
    QCOMPARE(editor()->text(), QString());
    QCOMPARE(dialog()->windowTitle(), u"Untitled[*] – Notepad"_s);
    QVERIFY(!dialog()->isWindowModified());
    QVERIFY(editor()->hasFocus());
    QVERIFY(dialog()->windowFlags() & Qt::WindowMinMaxButtonsHint);
    QVERIFY(!action(u"reload"_s)->isEnabled());
}

void tst_NotepadDocument::opensAFile()
{
    const QString file = createFile(u"a.txt"_s, "\xEF\xBB\xBF"
                                                "one\r\ntwo\r\n");
    ModalScript script;
    script.chooseFile(file);
    action(u"open"_s)->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(editor()->text(), u"one\ntwo\n"_s);
    QCOMPARE(dialog()->windowTitle(), u"a.txt[*] – Notepad"_s);
    QCOMPARE(label(u"encoding"_s), u"UTF-8 with BOM"_s);
    QCOMPARE(label(u"lineEnds"_s), u"Windows (CRLF)"_s);
    QCOMPARE(label(u"length"_s), u"Length: 8"_s);
    action(u"save"_s)->trigger();
    QCOMPARE(bytesOf(file), QByteArray("\xEF\xBB\xBF"
                                       "one\r\ntwo\r\n"));
}

void tst_NotepadDocument::whatCannotBeOpenedIsSaidAndTheTextStays_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("binary") << u"binary"_s;
    QTest::newRow("other encoding") << u"latin1"_s;
    QTest::newRow("folder") << u"."_s;
    QTest::newRow("missing") << u"missing <b>file</b>"_s;
}

void tst_NotepadDocument::whatCannotBeOpenedIsSaidAndTheTextStays()
{
    QFETCH(const QString, name);
    createFile(u"binary"_s, QByteArray("a\0", 2));
    createFile(u"latin1"_s, QByteArray("\xE9"));
    const QString good = openFile(u"good.txt"_s, "good\n");
    change(u"better"_s);
    ModalScript script;
    script.answer(QMessageBox::Ok);
    QVERIFY(!dialog()->document()->openPath(path(name)));
    QVERIFY(script.texts().value(0).contains(name));
    QCOMPARE(editor()->text(), u"better"_s);
    QCOMPARE(dialog()->document()->file().path(), good);
    QVERIFY(dialog()->isWindowModified());
}

void tst_NotepadDocument::unsavedTextIsAskedFor_data()
{
    QTest::addColumn<QString>("route");
    QTest::addColumn<QMessageBox::StandardButton>("answer");

    const QStringList routes{u"new"_s, u"open"_s, u"close"_s, u"the window's button"_s,
                             u"reject"_s};
    for (const QString &route : routes) {
        QTest::addRow("%s, cancelled", qPrintable(route)) << route << QMessageBox::Cancel;
        QTest::addRow("%s, discarded", qPrintable(route)) << route << QMessageBox::Discard;
        QTest::addRow("%s, saved", qPrintable(route)) << route << QMessageBox::Save;
    }
}

void tst_NotepadDocument::unsavedTextIsAskedFor()
{
    QFETCH(const QString, route);
    QFETCH(const QMessageBox::StandardButton, answer);
    const QString file = openFile(u"a.txt"_s, "old\n");
    const QString other = createFile(u"other.txt"_s, "other\n");
    change(u"new\n"_s);
    const bool goesOn = answer != QMessageBox::Cancel;

    ModalScript script;
    script.answer(answer);
    if (route == u"open"_s && goesOn)
        script.chooseFile(other);
    trigger(route);
    QVERIFY(script.isDone());
    QVERIFY(script.texts().value(0).contains(u"a.txt"_s));
    QCOMPARE(bytesOf(file),
             answer == QMessageBox::Save ? QByteArray("new\n") : QByteArray("old\n"));

    const bool closes = route != u"new"_s && route != u"open"_s;
    QCOMPARE(dialog()->isVisible(), !(closes && goesOn));
    if (!goesOn)
        QCOMPARE(editor()->text(), u"new\n"_s);
    else if (route == u"new"_s)
        QCOMPARE(editor()->text(), QString());
    else if (route == u"open"_s)
        QCOMPARE(editor()->text(), u"other\n"_s);
    QCOMPARE(dialog()->isWindowModified(), !goesOn || (closes && answer == QMessageBox::Discard));
}

void tst_NotepadDocument::savedTextIsNotAskedFor_data()
{
    QTest::addColumn<QString>("route");

    QTest::newRow("new") << u"new"_s;
    QTest::newRow("close") << u"close"_s;
    QTest::newRow("the window's button") << u"the window's button"_s;
    QTest::newRow("reject") << u"reject"_s;
}

void tst_NotepadDocument::savedTextIsNotAskedFor()
{
    QFETCH(const QString, route);
    openFile(u"a.txt"_s, "old\n");
    change(u"new\n"_s);
    const ModalScript script;
    editor()->undo();
    trigger(route);
    QCOMPARE(dialog()->isVisible(), route == u"new"_s);
}

void tst_NotepadDocument::escapeDoesNotCloseTheWindow()
{
    const ModalScript script;
    QTest::keyClick(editor(), Qt::Key_Escape);
    QVERIFY(dialog()->isVisible());
    change(u"new"_s);
    QTest::keyClick(editor(), Qt::Key_Escape);
    QVERIFY(dialog()->isVisible());
    QCOMPARE(editor()->text(), u"new"_s);
}

void tst_NotepadDocument::openingCanBeGivenUp()
{
    openFile(u"a.txt"_s, "old\n");
    change(u"new\n"_s);
    ModalScript script;
    script.answer(QMessageBox::Discard).chooseFile(QString());
    action(u"open"_s)->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(editor()->text(), u"new\n"_s);
    QVERIFY(dialog()->isWindowModified());
}

void tst_NotepadDocument::aDroppedFileIsOpened()
{
    const QString file = createFile(u"a.txt"_s, "dropped\n");
    change(u"mine"_s);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file)});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    ModalScript script;
    script.answer(QMessageBox::Discard);
    QCoreApplication::sendEvent(editor()->viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QCoreApplication::sendEvent(editor()->viewport(), &drop);
    QTRY_VERIFY(script.isDone());
    QCOMPARE(editor()->text(), u"dropped\n"_s);
}

void tst_NotepadDocument::savingAnUntitledTextAsksForAName()
{
    change(u"text"_s);
    ModalScript script;
    script.chooseFile(path(u"a.txt"_s));
    action(u"save"_s)->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(bytesOf(path(u"a.txt"_s)), QByteArray("text"));
    QCOMPARE(dialog()->windowTitle(), u"a.txt[*] – Notepad"_s);
    QVERIFY(!dialog()->isWindowModified());
    QVERIFY(label(u"message"_s).contains(u"a.txt"_s));
}

void tst_NotepadDocument::closingAnUntitledTextWithoutANameGoesOn()
{
    change(u"text"_s);
    ModalScript script;
    script.answer(QMessageBox::Save).chooseFile(QString());
    dialog()->close();
    QVERIFY(script.isDone());
    QVERIFY(dialog()->isVisible());
    QVERIFY(dialog()->isWindowModified());
}

void tst_NotepadDocument::savesUnderAnotherName()
{
    const QString file = openFile(u"a.txt"_s, "old\n");
    change(u"new\n"_s);
    ModalScript script;
    script.chooseFile(path(u"b.txt"_s));
    action(u"saveAs"_s)->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(bytesOf(file), QByteArray("old\n"));
    QCOMPARE(bytesOf(path(u"b.txt"_s)), QByteArray("new\n"));
    QCOMPARE(dialog()->windowTitle(), u"b.txt[*] – Notepad"_s);
    QVERIFY(!dialog()->isWindowModified());
}

void tst_NotepadDocument::aCopyLeavesTheWindowWithItsFile()
{
    const QString file = openFile(u"a.txt"_s, "old\n");
    change(u"new\n"_s);
    ModalScript script;
    script.chooseFile(path(u"b.txt"_s));
    action(u"saveCopy"_s)->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(bytesOf(file), QByteArray("old\n"));
    QCOMPARE(bytesOf(path(u"b.txt"_s)), QByteArray("new\n"));
    QCOMPARE(dialog()->windowTitle(), u"a.txt[*] – Notepad"_s);
    QVERIFY(dialog()->isWindowModified());
}

void tst_NotepadDocument::aCopyOntoTheFileItselfSavesIt()
{
    const QString file = openFile(u"a.txt"_s, "old\n");
    change(u"new\n"_s);
    ModalScript script;
    // The file dialog asks before it gives the name of a file that is there.
    script.chooseFile(file).close(
        [](QWidget *box) { qobject_cast<QMessageBox *>(box)->button(QMessageBox::Yes)->click(); });
    action(u"saveCopy"_s)->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(bytesOf(file), QByteArray("new\n"));
    QVERIFY(!dialog()->isWindowModified());
}

void tst_NotepadDocument::aFailedSaveIsSaidAndTheTextStaysUnsaved()
{
    QVERIFY(QDir(path(u"."_s)).mkdir(u"folder"_s));
    openFile(u"folder/a.txt"_s, "old\n");
    change(u"new\n"_s);
    QVERIFY(QDir(path(u"folder"_s)).removeRecursively());
    ModalScript script;
    script.answer(QMessageBox::Ok);
    action(u"save"_s)->trigger();
    QVERIFY(script.texts().value(0).contains(u"a.txt"_s));
    QCOMPARE(editor()->text(), u"new\n"_s);
    QVERIFY(dialog()->isWindowModified());
    QCOMPARE(dialog()->windowTitle(), u"a.txt[*] – Notepad"_s);
}

void tst_NotepadDocument::closingAfterAFailedSaveGoesOn()
{
    QVERIFY(QDir(path(u"."_s)).mkdir(u"folder"_s));
    openFile(u"folder/a.txt"_s, "old\n");
    change(u"new\n"_s);
    QVERIFY(QDir(path(u"folder"_s)).removeRecursively());
    ModalScript script;
    script.answer(QMessageBox::Save).answer(QMessageBox::Ok);
    dialog()->close();
    QVERIFY(script.isDone());
    QVERIFY(dialog()->isVisible());
    QVERIFY(dialog()->isWindowModified());
}

void tst_NotepadDocument::aFileThatAnotherProgramChangedIsAskedFor()
{
    const QString file = openFile(u"a.txt"_s, "old\n");
    change(u"mine\n"_s);
    createFile(u"a.txt"_s, "theirs\n");
    ModalScript script;
    script.answer(QMessageBox::Cancel);
    action(u"save"_s)->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(bytesOf(file), QByteArray("theirs\n"));
    QVERIFY(dialog()->isWindowModified());
    script.answer(u"Replace"_s);
    action(u"save"_s)->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(bytesOf(file), QByteArray("mine\n"));
    QVERIFY(!dialog()->isWindowModified());
    // Now it is ours again.
    action(u"save"_s)->trigger();
}

void tst_NotepadDocument::reloadingAsksOnlyForUnsavedText()
{
    openFile(u"a.txt"_s, "old\n");
    createFile(u"a.txt"_s, "theirs\n");
    ModalScript script;
    action(u"reload"_s)->trigger();
    QCOMPARE(editor()->text(), u"theirs\n"_s);
    change(u"mine\n"_s);
    script.answer(QMessageBox::Cancel);
    action(u"reload"_s)->trigger();
    QCOMPARE(editor()->text(), u"mine\n"_s);
    script.answer(u"Reload"_s);
    action(u"reload"_s)->trigger();
    QCOMPARE(editor()->text(), u"theirs\n"_s);
    QVERIFY(!dialog()->isWindowModified());
}

void tst_NotepadDocument::lineEndsAreChosenFromTheMenu()
{
    const QString file = openFile(u"a.txt"_s, "a\r\nb\n");
    QCOMPARE(label(u"lineEnds"_s), u"Mixed line ends"_s);
    QVERIFY(!action(u"lineEndLf"_s)->isChecked());
    QVERIFY(!action(u"lineEndCrLf"_s)->isChecked());
    action(u"lineEndLf"_s)->trigger();
    QVERIFY(action(u"lineEndLf"_s)->isChecked());
    QCOMPARE(label(u"lineEnds"_s), u"Unix (LF)"_s);
    QVERIFY(dialog()->isWindowModified());
    action(u"save"_s)->trigger();
    QCOMPARE(bytesOf(file), QByteArray("a\nb\n"));
    // The choice that is made already changes nothing.
    action(u"lineEndLf"_s)->trigger();
    QVERIFY(action(u"lineEndLf"_s)->isChecked());
    QVERIFY(!dialog()->isWindowModified());
    action(u"lineEndCrLf"_s)->trigger();
    action(u"save"_s)->trigger();
    QCOMPARE(bytesOf(file), QByteArray("a\r\nb\r\n"));
}

void tst_NotepadDocument::theByteOrderMarkIsChosenFromTheMenu()
{
    const QString file = openFile(u"a.txt"_s, "a");
    action(u"byteOrderMark"_s)->trigger();
    QVERIFY(dialog()->isWindowModified());
    QCOMPARE(label(u"encoding"_s), u"UTF-8 with BOM"_s);
    action(u"save"_s)->trigger();
    QCOMPARE(bytesOf(file), QByteArray("\xEF\xBB\xBF"
                                       "a"));
}

void tst_NotepadDocument::theTitleNamesTheFile()
{
    openFile(u"odd[*] <i>.txt"_s, "a");
    QCOMPARE(dialog()->windowTitle(), u"odd[*][*] <i>.txt[*] – Notepad"_s);
    change(u"b"_s);
    QVERIFY(dialog()->isWindowModified());
    editor()->undo();
    QVERIFY(!dialog()->isWindowModified());
}

QTEST_MAIN(tst_NotepadDocument)

#include "tst_notepaddocument.moc"
