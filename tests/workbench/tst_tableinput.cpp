// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "DocumentFixture.h"
#include "TableDocument.h"
#include "TableModel.h"

#include "support/Input.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QUndoStack>

using namespace Qt::StringLiterals;

/// What is typed and pressed in a table.
class tst_TableInput final : public DocumentFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theKeysOfTheClipboardServeAllSelectedCells();
    void deleteEmptiesCells();
    void whatIsPastedMakesTheTableGrow_data();
    void whatIsPastedMakesTheTableGrow();
    void typingIsAChangeBeforeItIsInTheTable();
    void savingTakesWhatIsBeingTyped();
    void aCellOfSeveralLinesIsAChangeOnlyWhenItIsTypedInto();
    void whatIsTakenBackIsNoChange();
    void aTableMayGoWhileACellIsTypedInto();

private:
    TableDocument *open(const QByteArray &bytes);
    QLineEdit *editor() const { return m_document->view()->findChild<QLineEdit *>(); }
    QString cell(int row, int column) const;
    void type(int row, int column, const QString &text) const;

    std::unique_ptr<TableDocument> m_document;
    QString m_clipboardText;
};

void tst_TableInput::init()
{
    DocumentFixture::init();
    m_clipboardText = QGuiApplication::clipboard()->text();
}

void tst_TableInput::cleanup()
{
    m_document.reset();
    QGuiApplication::clipboard()->setText(m_clipboardText);
    DocumentFixture::cleanup();
}

TableDocument *tst_TableInput::open(const QByteArray &bytes)
{
    m_document = load<TableDocument>(createFile(u"a.csv"_s, bytes));
    m_document->resize(400, 300);
    if (!Input::show(m_document.get()))
        qFatal("the document could not be shown");
    m_document->view()->setFocus();
    return m_document.get();
}

QString tst_TableInput::cell(int row, int column) const
{
    return m_document->model()->index(row, column).data().toString();
}

/// Leaves the editor open.
void tst_TableInput::type(int row, int column, const QString &text) const
{
    m_document->view()->edit(m_document->model()->index(row, column));
    QVERIFY(editor());
    QTest::keyClicks(editor(), text);
}

void tst_TableInput::theKeysOfTheClipboardServeAllSelectedCells()
{
    const TableDocument *document = open("1,2\n3,4\n");
    document->view()->selectAll();
    QTest::keyClick(document->view(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"1\t2\n3\t4"_s);
    document->view()->clearSelection();
    QTest::keyClick(document->view(), Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"1"_s);
    QCOMPARE(cell(0, 0), QString());
    document->view()->setCurrentIndex(document->model()->index(1, 1));
    QTest::keyClick(document->view(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(cell(1, 1), u"1"_s);
}

void tst_TableInput::deleteEmptiesCells()
{
    const TableDocument *document = open("1,2\n3,\n");
    document->view()->selectRow(0);
    QTest::keyClick(document->view(), Qt::Key_Delete);
    QCOMPARE(cell(0, 0) + cell(0, 1), QString());
    QCOMPARE(document->undoStack()->count(), 1);
    // Nothing to empty is no change.
    document->view()->setCurrentIndex(document->model()->index(1, 1));
    QTest::keyClick(document->view(), Qt::Key_Delete);
    QCOMPARE(document->undoStack()->count(), 1);
}

void tst_TableInput::whatIsPastedMakesTheTableGrow_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<QByteArray>("after");

    QTest::newRow("inside") << QByteArray("1,2\n3,4\n") << u"a"_s << QByteArray("a,2\n3,4\n");
    QTest::newRow("wider") << QByteArray("1\n2\n") << u"a\tb\tc"_s << QByteArray("a,b,c\n2\n");
    QTest::newRow("longer") << QByteArray("1\n") << u"a\nb\nc"_s << QByteArray("a\nb\nc\n");
    QTest::newRow("into nothing") << QByteArray() << u"a\tb\nc\td"_s << QByteArray("a,b\nc,d\n");
    QTest::newRow("quotes") << QByteArray("1\n") << u"\"a\nb\"\tc,d"_s
                            << QByteArray("\"a\nb\",\"c,d\"\n");
}

void tst_TableInput::whatIsPastedMakesTheTableGrow()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QString, clipboard);
    QFETCH(const QByteArray, after);
    TableDocument *document = open(before);
    document->setHeaderRow(false);
    document->view()->setCurrentIndex(document->model()->index(0, 0));
    QGuiApplication::clipboard()->setText(clipboard);
    document->paste();
    QCOMPARE(document->save(), QString());
    QCOMPARE(bytesOf(document->path()), after);
    document->undo();
    QCOMPARE(document->save(), QString());
    QCOMPARE(bytesOf(document->path()), before);
}

void tst_TableInput::typingIsAChangeBeforeItIsInTheTable()
{
    const TableDocument *document = open("1,2\n3,4\n");
    QSignalSpy spy(document, &WorkbenchDocument::signalModifiedChanged);
    document->view()->edit(document->model()->index(0, 0));
    QVERIFY(!document->isModified());
    QTest::keyClick(editor(), Qt::Key_Escape);
    QTRY_VERIFY(!editor());
    type(0, 1, u"9"_s);
    QVERIFY(document->isModified());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(cell(0, 1), u"2"_s);
}

void tst_TableInput::savingTakesWhatIsBeingTyped()
{
    TableDocument *document = open("1,2\n3,4\n");
    type(0, 1, u"9"_s);
    QCOMPARE(document->save(), QString());
    QCOMPARE(bytesOf(document->path()), QByteArray("1,9\n3,4\n"));
    QVERIFY(!document->isModified());
    QTRY_VERIFY(!editor());
    type(1, 1, u"8"_s);
    QCOMPARE(document->saveCopy(filePath(u"b.csv"_s)), QString());
    QCOMPARE(bytesOf(filePath(u"b.csv"_s)), QByteArray("1,9\n3,8\n"));
}

void tst_TableInput::aCellOfSeveralLinesIsAChangeOnlyWhenItIsTypedInto()
{
    TableDocument *document = open("\"one\ntwo\",2\n");
    const auto field = [document] { return document->view()->findChild<QPlainTextEdit *>(); };
    document->view()->edit(document->model()->index(0, 0));
    QVERIFY(field());
    QVERIFY(!document->isModified());
    QTest::keyClicks(field(), u"x"_s);
    QVERIFY(document->isModified());
    QCOMPARE(document->save(), QString());
    QCOMPARE(bytesOf(document->path()), QByteArray("\"xone\ntwo\",2\n"));
    QVERIFY(!document->isModified());
    QTRY_VERIFY(!field());
    QVERIFY(!document->isModified());
}

void tst_TableInput::whatIsTakenBackIsNoChange()
{
    const TableDocument *document = open("1,2\n");
    type(0, 1, u"9"_s);
    QSignalSpy spy(document, &WorkbenchDocument::signalModifiedChanged);
    QTest::keyClick(editor(), Qt::Key_Escape);
    QTRY_VERIFY(!document->isModified());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), false);
    QCOMPARE(cell(0, 1), u"2"_s);
}

void tst_TableInput::aTableMayGoWhileACellIsTypedInto()
{
    open("1,2\n");
    type(0, 1, u"9"_s);
    m_document.reset();
}

QTEST_MAIN(tst_TableInput)

#include "tst_tableinput.moc"
