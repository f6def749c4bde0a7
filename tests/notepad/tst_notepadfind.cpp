// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DialogFixture.h"
#include "support/ModalScript.h"

#include "FindField.h"
#include "NotepadDialog.h"
#include "TextEditor.h"

#include <VornFrame/RibbonBar.h>

#include <QAction>
#include <QLineEdit>

using namespace Qt::StringLiterals;

/// Finding and replacing, with the keyboard and from the ribbon.
class tst_NotepadFind final : public DialogFixture
{
    Q_OBJECT

private Q_SLOTS:
    void theKeysOfFindLeadToItsField();
    void findTakesTheSelectedText();
    void typingFindsFromWhereTheCursorWas();
    void returnFindsTheNextAndWithShiftThePrevious();
    void findingGoesOnAtTheOtherEnd();
    void whatIsNotThereIsSaid();
    void optionsNarrowTheSearch();
    void theTwoFindFieldsHoldOneText();
    void countingFollowsTheText();
    void replacesOneAfterAnother();
    void replacesAllAtOnceInOneStep();
    void withoutATextToFindThereIsNothingToDo();
    void escapeAndReturnInFieldsLeadBackToTheText();
    void goesToALine();

private:
    FindField *field(const QString &name) const { return dialog()->findChild<FindField *>(name); }
    void type(const QString &name, const QString &text) const;
};

/// Types \a text into the empty field \a name.
void tst_NotepadFind::type(const QString &name, const QString &text) const
{
    field(name)->activate();
    QTest::keyClick(field(name), Qt::Key_Delete);
    QTest::keyClicks(field(name), text);
}

void tst_NotepadFind::theKeysOfFindLeadToItsField()
{
    QTest::keyClick(editor(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(field(u"findField"_s)->hasFocus());
    QVERIFY(field(u"findField"_s)->isVisible());
    QCOMPARE(bar()->indexOf(bar()->currentPage()), 1);
    QTest::keyClick(field(u"findField"_s), Qt::Key_H, Qt::ControlModifier);
    QVERIFY(field(u"replaceField"_s)->hasFocus());
    bar()->setCurrentIndex(0);
    QTest::keyClick(editor(), Qt::Key_Q, Qt::AltModifier);
    QVERIFY(field(u"quickField"_s)->hasFocus());
    QCOMPARE(bar()->indexOf(bar()->currentPage()), 0);
}

void tst_NotepadFind::findTakesTheSelectedText()
{
    editor()->setText(u"one two\nthree"_s);
    select(4, 3);
    action(u"find"_s)->trigger();
    QCOMPARE(field(u"findField"_s)->text(), u"two"_s);
    QCOMPARE(field(u"findField"_s)->selectedText(), u"two"_s);
    // A selection over lines is not what someone wants to find.
    select(4, 6);
    action(u"find"_s)->trigger();
    QCOMPARE(field(u"findField"_s)->text(), u"two"_s);
}

void tst_NotepadFind::typingFindsFromWhereTheCursorWas()
{
    editor()->setText(u"cat car cat car"_s);
    select(1, 0);
    type(u"findField"_s, u"ca"_s);
    QCOMPARE(editor()->textCursor().selectionStart(), 4);
    QTest::keyClick(field(u"findField"_s), 't');
    QCOMPARE(editor()->textCursor().selectionStart(), 8);
    QCOMPARE(editor()->selectedText(), u"cat"_s);
    QCOMPARE(label(u"findResult"_s), u"2 of 2"_s);
    QTest::keyClick(field(u"findField"_s), Qt::Key_Backspace);
    QCOMPARE(editor()->textCursor().selectionStart(), 4);
}

void tst_NotepadFind::returnFindsTheNextAndWithShiftThePrevious()
{
    editor()->setText(u"cat\ncat\ncat"_s);
    type(u"findField"_s, u"cat"_s);
    QCOMPARE(editor()->textCursor().selectionStart(), 0);
    QTest::keyClick(field(u"findField"_s), Qt::Key_Return);
    QCOMPARE(editor()->textCursor().selectionStart(), 4);
    QVERIFY(field(u"findField"_s)->hasFocus());
    QTest::keyClick(field(u"findField"_s), Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(editor()->textCursor().selectionStart(), 0);
    QTest::keyClick(editor(), Qt::Key_F3);
    QCOMPARE(editor()->textCursor().selectionStart(), 4);
    QTest::keyClick(editor(), Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(editor()->textCursor().selectionStart(), 0);
}

void tst_NotepadFind::findingGoesOnAtTheOtherEnd()
{
    editor()->setText(u"cat cat"_s);
    select(7, 0);
    field(u"findField"_s)->setFocus();
    type(u"quickField"_s, u"cat"_s);
    QCOMPARE(editor()->textCursor().selectionStart(), 0);
    action(u"findPrevious"_s)->trigger();
    QCOMPARE(editor()->textCursor().selectionStart(), 4);
    QCOMPARE(label(u"findResult"_s), u"2 of 2, went on from the end"_s);
    action(u"findNext"_s)->trigger();
    QCOMPARE(editor()->textCursor().selectionStart(), 0);
    QCOMPARE(label(u"findResult"_s), u"1 of 2, went on from the start"_s);
    QCOMPARE(label(u"message"_s), label(u"findResult"_s));
}

void tst_NotepadFind::whatIsNotThereIsSaid()
{
    editor()->setText(u"cat"_s);
    select(1, 0);
    type(u"findField"_s, u"dog"_s);
    QCOMPARE(label(u"findResult"_s), u"Not found"_s);
    QVERIFY(!field(u"findField"_s)->styleSheet().isEmpty());
    QCOMPARE(editor()->textCursor().position(), 1);
    QTest::keyClick(field(u"findField"_s), Qt::Key_Return);
    QCOMPARE(label(u"findResult"_s), u"Not found"_s);
    type(u"findField"_s, u"cat"_s);
    QVERIFY(field(u"findField"_s)->styleSheet().isEmpty());
}

void tst_NotepadFind::optionsNarrowTheSearch()
{
    editor()->setText(u"cat Cat cats"_s);
    type(u"findField"_s, u"Cat"_s);
    QCOMPARE(label(u"findResult"_s), u"1 of 3"_s);
    action(u"wholeWords"_s)->trigger();
    QTRY_COMPARE(label(u"findResult"_s), u"1 of 2"_s);
    action(u"matchCase"_s)->trigger();
    QTRY_COMPARE(label(u"findResult"_s), u"1 found"_s);
    action(u"findNext"_s)->trigger();
    QCOMPARE(editor()->textCursor().selectionStart(), 4);
    QCOMPARE(label(u"findResult"_s), u"1 of 1"_s);
}

void tst_NotepadFind::theTwoFindFieldsHoldOneText()
{
    editor()->setText(u"cat dog"_s);
    type(u"quickField"_s, u"dog"_s);
    QCOMPARE(field(u"findField"_s)->text(), u"dog"_s);
    QCOMPARE(editor()->selectedText(), u"dog"_s);
    type(u"findField"_s, u"cat"_s);
    QCOMPARE(field(u"quickField"_s)->text(), u"cat"_s);
}

void tst_NotepadFind::countingFollowsTheText()
{
    type(u"findField"_s, u"cat"_s);
    QCOMPARE(label(u"findResult"_s), u"Not found"_s);
    editor()->insertPlainText(u"cat cat"_s);
    QTRY_COMPARE(label(u"findResult"_s), u"2 found"_s);
    select(4, 3);
    QTRY_COMPARE(label(u"findResult"_s), u"2 of 2"_s);
}

void tst_NotepadFind::replacesOneAfterAnother()
{
    editor()->setText(u"cat Cat dog"_s);
    type(u"findField"_s, u"cat"_s);
    type(u"replaceField"_s, u"bird"_s);
    QTest::keyClick(field(u"replaceField"_s), Qt::Key_Return);
    QCOMPARE(editor()->text(), u"bird Cat dog"_s);
    QCOMPARE(editor()->selectedText(), u"Cat"_s);
    action(u"replaceOne"_s)->trigger();
    QCOMPARE(editor()->text(), u"bird bird dog"_s);
    QCOMPARE(label(u"findResult"_s), u"Not found"_s);
    action(u"replaceOne"_s)->trigger();
    QCOMPARE(editor()->text(), u"bird bird dog"_s);
}

void tst_NotepadFind::replacesAllAtOnceInOneStep()
{
    openFile(u"a.txt"_s, "cat\r\nCat\r\ndog\r\n");
    type(u"findField"_s, u"cat"_s);
    type(u"replaceField"_s, u"bird"_s);
    action(u"replaceAll"_s)->trigger();
    QCOMPARE(editor()->text(), u"bird\nbird\ndog\n"_s);
    QCOMPARE(label(u"findResult"_s), u"2 replaced"_s);
    editor()->undo();
    QCOMPARE(editor()->text(), u"cat\nCat\ndog\n"_s);
    QVERIFY(!dialog()->isWindowModified());
    type(u"findField"_s, u"mouse"_s);
    action(u"replaceAll"_s)->trigger();
    QCOMPARE(label(u"findResult"_s), u"0 replaced"_s);
    QVERIFY(!dialog()->isWindowModified());
}

void tst_NotepadFind::withoutATextToFindThereIsNothingToDo()
{
    editor()->setText(u"cat"_s);
    for (const QString &name : {u"findNext"_s, u"findPrevious"_s, u"replaceOne"_s, u"replaceAll"_s})
        QVERIFY(!action(name)->isEnabled());
    type(u"findField"_s, u"c"_s);
    QVERIFY(action(u"replaceAll"_s)->isEnabled());
    QTest::keyClick(field(u"findField"_s), Qt::Key_Backspace);
    QVERIFY(!action(u"replaceAll"_s)->isEnabled());
    QCOMPARE(label(u"findResult"_s), QString());
    QTest::keyClick(field(u"findField"_s), Qt::Key_Return);
    QTest::keyClick(field(u"replaceField"_s), Qt::Key_Return);
    QCOMPARE(editor()->text(), u"cat"_s);
}

void tst_NotepadFind::escapeAndReturnInFieldsLeadBackToTheText()
{
    action(u"find"_s)->trigger();
    QTest::keyClick(field(u"findField"_s), Qt::Key_Escape);
    QVERIFY(editor()->hasFocus());
    action(u"replace"_s)->trigger();
    QTest::keyClick(field(u"replaceField"_s), Qt::Key_Escape);
    QVERIFY(editor()->hasFocus());
    bar()->setCurrentIndex(0);
    auto *size = dialog()->findChild<QWidget *>(u"fontSize"_s);
    size->setFocus();
    QTest::keyClick(size, Qt::Key_Return);
    QVERIFY(editor()->hasFocus());
    QCOMPARE(bar()->indexOf(bar()->currentPage()), 0);
    QVERIFY(dialog()->isVisible());
}

void tst_NotepadFind::goesToALine()
{
    editor()->setText(u"a\nb\nc"_s);
    ModalScript script;
    script.enter(3);
    action(u"goToLine"_s)->trigger();
    QVERIFY(script.isDone());
    QCOMPARE(editor()->textCursor().position(), 4);
    QCOMPARE(label(u"position"_s), u"Line 3, column 1"_s);
}

QTEST_MAIN(tst_NotepadFind)

#include "tst_notepadfind.moc"
