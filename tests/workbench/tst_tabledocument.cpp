// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "CellDelegate.h"
#include "DocumentFixture.h"
#include "TableDocument.h"
#include "TableModel.h"

#include "support/Input.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QUndoStack>

#include <functional>

using namespace Qt::StringLiterals;

/// A table that is edited and saved.
class tst_TableDocument final : public DocumentFixture
{
    Q_OBJECT

private Q_SLOTS:
    void anUnchangedTableComesBackByteByByte_data();
    void anUnchangedTableComesBackByteByByte();
    void changesTouchNothingElse_data();
    void changesTouchNothingElse();
    void theSameTextIsNoChange();
    void aRowThatIsTooShortGrowsToTheCell();
    void tellsWhetherThereIsAHeader_data();
    void tellsWhetherThereIsAHeader();
    void theHeaderCanBeSwitched();
    void sortingIsOneStep();
    void scatteredRowsAreRemovedInOneStep();
    void anEmptyTableGrows();
    void allCanBeRemoved();
    void theCurrentCellStaysWhereItIs();
    void aLetterThatLatin1DoesNotHaveIsAskedFor();
    void aChangedFileIsNotOverwritten();
    void cellsAreCopiedAndPasted();
    void aCellIsTypedInto();
    void aCellOfSeveralLinesIsEdited();
    void columnsAreTheOutline();
    void propertiesAreCounted();
    void hundredThousandRowsAreUsable();

private:
    void select(const TableDocument *document, int row, int column) const;
};

void tst_TableDocument::select(const TableDocument *document, int row, int column) const
{
    const QModelIndex index = document->model()->index(row, column);
    document->view()->selectionModel()->select(index, QItemSelectionModel::Select);
    document->view()->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

void tst_TableDocument::anUnchangedTableComesBackByteByByte_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("commas") << QByteArray("a,b\n1,2\n");
    QTest::newRow("no end") << QByteArray("a,b\n1,2");
    QTest::newRow("semicolons, CRLF, mark") << QByteArray("\xEF\xBB\xBF"
                                                          "a;b\r\n1,5;2\r\n");
    QTest::newRow("quotes of all kinds")
        << QByteArray("\"a\",b\n\"c \"\"d\"\"\",\"e\nf,g\"\n\"x\"y, \"z\"\n");
    QTest::newRow("uneven") << QByteArray("a,b,c\nd\n\n,,,,\n");
    QTest::newRow("mixed ends") << QByteArray("a,b\r\nc,d\ne,f\rg,h");
    QTest::newRow("never closed") << QByteArray("a,b\nc,\"d\ne");
    QTest::newRow("UTF-16") << QByteArray("\xFE\xFF\0a\0,\0b\0\n", 10);
    QTest::newRow("Latin-1") << QByteArray("\xE9,b\n");
}

void tst_TableDocument::anUnchangedTableComesBackByteByByte()
{
    QFETCH(const QByteArray, bytes);
    const QString path = createFile(u"a.csv"_s, bytes);
    const auto document = load<TableDocument>(path);
    QCOMPARE(document->saveAnyway(), QString());
    QCOMPARE(bytesOf(path), bytes);
    // Nor does anything that is undone.
    document->insertRow();
    document->insertColumn();
    document->sort(0, Qt::DescendingOrder);
    document->removeRows();
    document->removeColumns();
    while (document->undoStack()->canUndo())
        document->undo();
    QCOMPARE(document->saveAnyway(), QString());
    QCOMPARE(bytesOf(path), bytes);
}

void tst_TableDocument::changesTouchNothingElse_data()
{
    using Change = std::function<void(TableDocument *)>;
    QTest::addColumn<std::function<void(TableDocument *)>>("change");
    QTest::addColumn<QByteArray>("expected");

    const auto edit = [](int row, int column, const QString &text) {
        return Change([=](TableDocument *document) {
            document->model()->setData(document->model()->index(row, column), text);
        });
    };
    // Before: a,"b",c CRLF 3,"x" CRLF "1",y,z LF 2
    QTest::newRow("cell") << edit(2, 0, u"9"_s)
                          << QByteArray("a,\"b\",c\r\n3,\"x\"\r\n\"1\",y,z\n9");
    QTest::newRow("cell in quotes")
        << edit(1, 0, u"9"_s) << QByteArray("a,\"b\",c\r\n3,\"x\"\r\n\"9\",y,z\n2");
    QTest::newRow("cell that needs quotes")
        << edit(2, 0, u"9,\"8\""_s)
        << QByteArray("a,\"b\",c\r\n3,\"x\"\r\n\"1\",y,z\n\"9,\"\"8\"\"\"");
    QTest::newRow("cell that was not there")
        << edit(2, 2, u"9"_s) << QByteArray("a,\"b\",c\r\n3,\"x\"\r\n\"1\",y,z\n2,,9");
    const auto at = [this](int row, int column, void (TableDocument::*function)()) {
        return Change([=](TableDocument *document) {
            document->view()->clearSelection();
            select(document, row, column);
            (document->*function)();
        });
    };
    QTest::newRow("row inserted") << at(0, 0, &TableDocument::insertRow)
                                  << QByteArray("a,\"b\",c\r\n3,\"x\"\r\n,,\r\n\"1\",y,z\n2");
    QTest::newRow("row inserted at the end")
        << at(2, 0, &TableDocument::insertRow)
        << QByteArray("a,\"b\",c\r\n3,\"x\"\r\n\"1\",y,z\n2\r\n,,");
    QTest::newRow("row removed") << at(1, 0, &TableDocument::removeRows)
                                 << QByteArray("a,\"b\",c\r\n3,\"x\"\r\n2");
    QTest::newRow("last row removed")
        << at(2, 0, &TableDocument::removeRows) << QByteArray("a,\"b\",c\r\n3,\"x\"\r\n\"1\",y,z");
    QTest::newRow("column inserted") << at(0, 0, &TableDocument::insertColumn)
                                     << QByteArray("a,,\"b\",c\r\n3,,\"x\"\r\n\"1\",,y,z\n2,");
    QTest::newRow("column inserted at the end")
        << at(0, 2, &TableDocument::insertColumn)
        << QByteArray("a,\"b\",c,\r\n3,\"x\"\r\n\"1\",y,z,\n2");
    QTest::newRow("column removed")
        << at(0, 1, &TableDocument::removeColumns) << QByteArray("a,c\r\n3\r\n\"1\",z\n2");
    QTest::newRow("sorted") << Change([](TableDocument *document) {
        document->sort(0, Qt::AscendingOrder);
    }) << QByteArray("a,\"b\",c\r\n\"1\",y,z\n2\r\n3,\"x\"");
}

void tst_TableDocument::changesTouchNothingElse()
{
    QFETCH(const std::function<void(TableDocument *)>, change);
    const QByteArray before("a,\"b\",c\r\n3,\"x\"\r\n\"1\",y,z\n2");
    const QString path = createFile(u"a.csv"_s, before);
    const auto document = load<TableDocument>(path);
    QVERIFY(document->hasHeaderRow());
    QSignalSpy modified(document.get(), &WorkbenchDocument::signalModifiedChanged);
    QSignalSpy content(document.get(), &WorkbenchDocument::signalContentChanged);
    change(document.get());
    QVERIFY(document->isModified());
    QCOMPARE(modified.size(), 1);
    QVERIFY(!content.isEmpty());
    QCOMPARE(document->undoStack()->count(), 1);
    QCOMPARE(document->save(), QString());
    QVERIFY(!document->isModified());
    QTEST(bytesOf(path), "expected");
    document->undo();
    QCOMPARE(document->save(), QString());
    QCOMPARE(bytesOf(path), before);
    document->redo();
    QCOMPARE(document->save(), QString());
    QTEST(bytesOf(path), "expected");
}

void tst_TableDocument::theSameTextIsNoChange()
{
    const auto document = load<TableDocument>(createFile(u"a.csv"_s, "a,b\n\"1\",2\n"));
    QVERIFY(document->model()->setData(document->model()->index(0, 0), u"1"_s));
    QVERIFY(!document->isModified());
}

void tst_TableDocument::aRowThatIsTooShortGrowsToTheCell()
{
    const auto document = load<TableDocument>(createFile(u"a.csv"_s, "1,2,3\n4\n"));
    const QModelIndex index = document->model()->index(1, 1);
    QCOMPARE(index.data().toString(), QString());
    QVERIFY(document->model()->setData(index, QString()));
    QVERIFY(!document->isModified());
    QVERIFY(document->model()->setData(index, u"5"_s));
    QCOMPARE(document->model()->fileRows().at(1).cells, (QStringList{u"4"_s, u"5"_s}));
}

void tst_TableDocument::tellsWhetherThereIsAHeader_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("hasHeader");

    QTest::newRow("names") << QByteArray("a,b\n1,2\n") << true;
    QTest::newRow("only one row") << QByteArray("a,b\n") << false;
    QTest::newRow("a number") << QByteArray("a,1\n1,2\n") << false;
    QTest::newRow("the same twice") << QByteArray("a,a\n1,2\n") << false;
    QTest::newRow("a gap") << QByteArray("a,\n1,2\n") << false;
    QTest::newRow("nothing") << QByteArray("") << false;
}

void tst_TableDocument::tellsWhetherThereIsAHeader()
{
    QFETCH(const QByteArray, bytes);
    QTEST(load<TableDocument>(createFile(u"a.csv"_s, bytes))->hasHeaderRow(), "hasHeader");
}

void tst_TableDocument::theHeaderCanBeSwitched()
{
    const auto document = load<TableDocument>(createFile(u"a.csv"_s, "a,b\n1,2\n"));
    TableModel *model = document->model();
    QCOMPARE(model->rowCount(), 1);
    QCOMPARE(model->headerData(1, Qt::Horizontal).toString(), u"b"_s);
    document->setHeaderRow(false);
    QCOMPARE(model->rowCount(), 2);
    QCOMPARE(model->index(0, 1).data().toString(), u"b"_s);
    QCOMPARE(model->headerData(1, Qt::Horizontal).toString(), u"2"_s);
    QVERIFY(!document->isModified());
    // What was done with the other setting is undone where it was done.
    model->setData(model->index(1, 0), u"9"_s);
    document->setHeaderRow(true);
    document->undo();
    QCOMPARE(model->index(0, 0).data().toString(), u"1"_s);
}

void tst_TableDocument::sortingIsOneStep()
{
    const auto document = load<TableDocument>(createFile(u"a.csv"_s, "n\n10\n9\n\n-1\nx\n"));
    const auto cells = [&document] {
        QStringList list;
        for (int row = 0; row < document->model()->rowCount(); ++row)
            list.append(document->model()->index(row, 0).data().toString());
        return list.join(u' ');
    };
    document->view()->setCurrentIndex(document->model()->index(0, 0));
    document->sort(Qt::AscendingOrder);
    QCOMPARE(cells(), u"-1 9 10 x "_s);
    document->sort(Qt::DescendingOrder);
    QCOMPARE(cells(), u"x 10 9 -1 "_s);
    QCOMPARE(document->undoStack()->count(), 2);
    document->undo();
    document->undo();
    QCOMPARE(cells(), u"10 9  -1 x"_s);
    document->sort(7, Qt::AscendingOrder);
    document->sort(-1, Qt::AscendingOrder);
    QVERIFY(!document->isModified());
}

void tst_TableDocument::scatteredRowsAreRemovedInOneStep()
{
    const QByteArray bytes("1\n2\n3\n4\n5\n6\n");
    const QString path = createFile(u"a.csv"_s, bytes);
    const auto document = load<TableDocument>(path);
    document->view()->clearSelection();
    for (const int row : {0, 2, 3, 5})
        select(document.get(), row, 0);
    document->removeRows();
    QCOMPARE(document->save(), QString());
    QCOMPARE(bytesOf(path), QByteArray("2\n5\n"));
    QCOMPARE(document->undoStack()->count(), 1);
    document->undo();
    QCOMPARE(document->save(), QString());
    QCOMPARE(bytesOf(path), bytes);
}

void tst_TableDocument::anEmptyTableGrows()
{
    const QString path = createFile(u"a.csv"_s, "");
    const auto document = load<TableDocument>(path);
    QCOMPARE(document->model()->rowCount(), 0);
    document->removeRows();
    document->removeColumns();
    document->sort(Qt::AscendingOrder);
    QVERIFY(!document->isModified());
    document->insertRow();
    document->insertColumn();
    QCOMPARE(document->model()->rowCount(), 1);
    QCOMPARE(document->model()->columnCount(), 2);
    QVERIFY(document->model()->setData(document->model()->index(0, 1), u"a"_s));
    QCOMPARE(document->save(), QString());
    QCOMPARE(bytesOf(path), QByteArray(",a\n"));
}

void tst_TableDocument::allCanBeRemoved()
{
    const QByteArray bytes("a,b\n1,2\n3,4\n");
    const QString path = createFile(u"a.csv"_s, bytes);
    const auto document = load<TableDocument>(path);
    document->view()->selectAll();
    document->removeRows();
    QCOMPARE(document->model()->rowCount(), 0);
    document->insertRow();
    QCOMPARE(document->save(), QString());
    QCOMPARE(bytesOf(path), QByteArray("a,b\n,\n"));
    document->view()->selectAll();
    document->removeColumns();
    QCOMPARE(document->model()->columnCount(), 0);
    while (document->undoStack()->canUndo())
        document->undo();
    QCOMPARE(document->save(), QString());
    QCOMPARE(bytesOf(path), bytes);
}

void tst_TableDocument::theCurrentCellStaysWhereItIs()
{
    const auto document = load<TableDocument>(createFile(u"a.csv"_s, "3,3\n2,2\n1,1\n"));
    const auto current = [&document] {
        const QModelIndex index = document->view()->currentIndex();
        return QPoint(index.row(), index.column());
    };
    QCOMPARE(current(), QPoint(0, 0));
    document->view()->setCurrentIndex(document->model()->index(1, 1));
    document->sort(Qt::AscendingOrder);
    QCOMPARE(current(), QPoint(1, 1));
    document->insertRow();
    QCOMPARE(current(), QPoint(2, 1));
    document->insertColumn();
    QCOMPARE(current(), QPoint(2, 2));
    document->removeColumns();
    QCOMPARE(current(), QPoint(2, 1));
    document->removeRows();
    QCOMPARE(current(), QPoint(2, 1));
}

void tst_TableDocument::aLetterThatLatin1DoesNotHaveIsAskedFor()
{
    const QString path = createFile(u"a.csv"_s, "\xE9,1\n");
    const auto document = load<TableDocument>(path);
    document->model()->setData(document->model()->index(0, 1), u"\u20AC"_s);
    QVERIFY(document->save().contains(u'\u20AC'));
    QVERIFY(document->canSaveAnyway());
    QCOMPARE(bytesOf(path), QByteArray("\xE9,1\n"));
    QCOMPARE(document->saveAnyway(), QString());
    QCOMPARE(bytesOf(path), QByteArray("\xC3\xA9,\xE2\x82\xAC\n"));
}

void tst_TableDocument::aChangedFileIsNotOverwritten()
{
    const QString path = createFile(u"a.csv"_s, "a,b\n");
    const auto document = load<TableDocument>(path);
    document->insertRow();
    createFile(u"a.csv"_s, "others");
    QVERIFY(!document->save().isEmpty());
    QCOMPARE(bytesOf(path), QByteArray("others"));
    QVERIFY(document->isModified());
    QCOMPARE(document->saveAnyway(), QString());
    QCOMPARE(bytesOf(path), QByteArray("a,b\n,\n"));
}

void tst_TableDocument::cellsAreCopiedAndPasted()
{
    const auto document = load<TableDocument>(createFile(u"a.csv"_s, "1,\"x\ny\"\n2,3\n4,5\n"));
    document->view()->clearSelection();
    for (int i = 0; i < 4; ++i)
        select(document.get(), i / 2, i % 2);
    document->cut();
    QCOMPARE(QGuiApplication::clipboard()->text(), u"1\t\"x\ny\"\n2\t3"_s);
    QCOMPARE(document->model()->index(1, 1).data().toString(), QString());
    QCOMPARE(document->undoStack()->count(), 1);
    // The table grows where it is too small.
    document->view()->setCurrentIndex(document->model()->index(2, 0));
    document->paste();
    QCOMPARE(document->model()->index(2, 1).data().toString(), u"x\ny"_s);
    QCOMPARE(document->model()->rowCount(), 4);
    QCOMPARE(document->model()->index(3, 1).data().toString(), u"3"_s);
    QCOMPARE(document->undoStack()->count(), 2);
    document->undo();
    document->undo();
    QCOMPARE(document->model()->rowCount(), 3);
    QVERIFY(!document->isModified());
    QCOMPARE(document->model()->index(2, 1).data().toString(), u"5"_s);
    QGuiApplication::clipboard()->clear();
}

void tst_TableDocument::aCellIsTypedInto()
{
    const auto document = load<TableDocument>(createFile(u"a.csv"_s, "1,2\n3,4\n"));
    document->resize(400, 300);
    QVERIFY(Input::show(document.get()));
    const auto editor = [&document] { return document->view()->findChild<QLineEdit *>(); };
    // Leaving a cell as it was is no change.
    document->view()->edit(document->model()->index(1, 0));
    QVERIFY(editor());
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_VERIFY(!editor());
    QVERIFY(!document->isModified());
    document->view()->edit(document->model()->index(1, 1));
    QTest::keyClicks(editor(), u"56"_s);
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(document->model()->index(1, 1).data().toString(), u"56"_s);
}

void tst_TableDocument::aCellOfSeveralLinesIsEdited()
{
    const auto document = load<TableDocument>(createFile(u"a.csv"_s, "1,\"x\r\ny\xC2\xA0\"\n"));
    const QModelIndex index = document->model()->index(0, 1);
    const CellDelegate delegate;
    QWidget parent;
    const std::unique_ptr<QWidget> widget(delegate.createEditor(&parent, {}, index));
    auto *editor = qobject_cast<QPlainTextEdit *>(widget.get());
    QVERIFY(editor);
    delegate.setEditorData(editor, index);
    delegate.setModelData(editor, document->model(), index);
    QVERIFY(!document->isModified());
    editor->insertPlainText(u"w\n"_s);
    delegate.setModelData(editor, document->model(), index);
    QCOMPARE(document->model()->fileRows().constFirst().cells.at(1), u"\"w\r\nx\r\ny\u00a0\""_s);
}

void tst_TableDocument::columnsAreTheOutline()
{
    const auto document = load<TableDocument>(createFile(u"a.csv"_s, "name,size\na,1\nb,2\n"));
    const QList<OutlineEntry> outline = document->outline();
    QCOMPARE(outline.size(), 2);
    QCOMPARE(outline.at(1).text, u"size"_s);
    document->goToLine(outline.at(1).line);
    QCOMPARE(document->view()->currentIndex().column(), 1);
    document->goToLine(-1);
    document->goToLine(2);
    QCOMPARE(document->view()->currentIndex().column(), 1);
    document->setHeaderRow(false);
    QCOMPARE(document->outline().at(1).text, u"Column 2"_s);
}

void tst_TableDocument::propertiesAreCounted()
{
    const auto document = load<TableDocument>(createFile(u"a.csv"_s, "a;b\r\n1;2\r\n3\r\n"));
    QCOMPARE(property(document.get(), u"Rows"_s), u"2"_s);
    QCOMPARE(property(document.get(), u"Columns"_s), u"2"_s);
    QCOMPARE(property(document.get(), u"Separator"_s), u";"_s);
    QCOMPARE(property(document.get(), u"Encoding"_s), u"UTF-8"_s);
    QCOMPARE(property(document.get(), u"Line ends"_s), u"CR LF"_s);
}

void tst_TableDocument::hundredThousandRowsAreUsable()
{
    QByteArray bytes("id,name,value\n");
    for (int i = 0; i < 100000; ++i)
        bytes += QByteArray::number(i) + ",\"name " + QByteArray::number(i * 7919 % 100000) + "\","
                 + QByteArray::number(i * 0.5) + "\n";
    const QString path = createFile(u"a.csv"_s, bytes);
    QElapsedTimer timer;
    timer.start();
    const auto document = load<TableDocument>(path);
    document->resize(600, 400);
    QVERIFY(Input::show(document.get()));
    document->view()->scrollToBottom();
    QCOMPARE(document->model()->rowCount(), 100000);
    QCOMPARE(document->view()->rowAt(document->view()->viewport()->height() - 1), 99999);
    document->sort(1, Qt::DescendingOrder);
    for (int i = 0; i < 90; ++i) {
        document->insertRow();
        document->model()->setData(document->view()->currentIndex(), u"new"_s);
    }
    document->insertColumn();
    while (document->undoStack()->canUndo())
        document->undo();
    QCOMPARE(document->saveAnyway(), QString());
    // Several times what it needs, as machines and builds differ.
    QVERIFY2(timer.elapsed() < 30000, qPrintable(QString::number(timer.elapsed())));
    qInfo("%lld ms", timer.elapsed());
    QVERIFY(bytesOf(path) == bytes);
}

QTEST_MAIN(tst_TableDocument)

#include "tst_tabledocument.moc"
