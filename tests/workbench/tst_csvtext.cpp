// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "CsvText.h"
#include "TableSorter.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Tables as text.
class tst_CsvText final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textComesBack_data();
    void textComesBack();
    void cellsAreRead_data();
    void cellsAreRead();
    void valuesBecomeCells_data();
    void valuesBecomeCells();
    void tellsTheSeparator_data();
    void tellsTheSeparator();
    void whatIsNotClosedIsClosedBeforeSomethingFollows();
    void linesInTheMiddleGetAnEnd();
    void anEmptyLastLineIsNotLost();
    void sorts_data();
    void sorts();
};

void tst_CsvText::textComesBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qsizetype>("rows");

    QTest::newRow("nothing") << QString() << qsizetype(0);
    QTest::newRow("one cell") << u"a"_s << qsizetype(1);
    QTest::newRow("one line") << u"a,b\n"_s << qsizetype(1);
    QTest::newRow("separator at the end") << u"a,"_s << qsizetype(1);
    QTest::newRow("only separators") << u",,\n,"_s << qsizetype(2);
    QTest::newRow("CRLF") << u"a,b\r\nc,d\r\n"_s << qsizetype(2);
    QTest::newRow("CR") << u"a,b\rc,d"_s << qsizetype(2);
    QTest::newRow("mixed") << u"a\nb\r\nc\rd"_s << qsizetype(4);
    QTest::newRow("empty lines") << u"a\n\n\nb\n"_s << qsizetype(4);
    QTest::newRow("uneven") << u"a,b,c\nd\ne,f,g,h\n"_s << qsizetype(3);
    QTest::newRow("quotes") << u"\"a\",\"b \"\"c\"\"\"\n"_s << qsizetype(1);
    QTest::newRow("quotes that hold ends") << u"\"a\nb\r\nc\",d\n"_s << qsizetype(1);
    QTest::newRow("quotes that hold separators") << u"\"a,b\",c\n"_s << qsizetype(1);
    QTest::newRow("text behind quotes") << u"\"a\"b,c\n"_s << qsizetype(1);
    QTest::newRow("quotes in the middle") << u"a\"b,c\"d\n"_s << qsizetype(1);
    QTest::newRow("quotes behind a space") << u" \"a\", \"b\"\n"_s << qsizetype(1);
    QTest::newRow("never closed") << u"a,\"b\nc,d\n"_s << qsizetype(1);
    QTest::newRow("only a quote") << u"\""_s << qsizetype(1);
}

void tst_CsvText::textComesBack()
{
    QFETCH(const QString, text);
    const QList<CsvRow> rows = CsvText::parse(text, u',');
    QTEST(rows.size(), "rows");
    const bool isEnded = !rows.isEmpty() && !rows.constLast().lineEnd.isEmpty();
    QCOMPARE(CsvText::join(rows, u',', u"?"_s, isEnded), text);
}

void tst_CsvText::cellsAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("values");

    QTest::newRow("plain") << u"a, b ,"_s << QStringList{u"a"_s, u" b "_s, QString()};
    QTest::newRow("quotes") << u"\"a\",\"\",\"b \"\"c\"\"\""_s
                            << QStringList{u"a"_s, QString(), u"b \"c\""_s};
    QTest::newRow("separators and ends")
        << u"\"a,b\",\"c\r\nd\""_s << QStringList{u"a,b"_s, u"c\r\nd"_s};
    QTest::newRow("only a doubled quote") << u"\"\"\"\""_s << QStringList{u"\""_s};
    QTest::newRow("text behind quotes") << u"\"a\"b\"c"_s << QStringList{u"ab\"c"_s};
    QTest::newRow("quotes in the middle") << u"a\"b\""_s << QStringList{u"a\"b\""_s};
    QTest::newRow("never closed") << u"\"a,b"_s << QStringList{u"a,b"_s};
}

void tst_CsvText::cellsAreRead()
{
    QFETCH(const QString, text);
    const QList<CsvRow> rows = CsvText::parse(text, u',');
    QCOMPARE(rows.size(), 1);
    QStringList values;
    for (const QString &cell : rows.constFirst().cells)
        values.append(CsvText::value(cell));
    QTEST(values, "values");
}

void tst_CsvText::valuesBecomeCells_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("isQuoted");
    QTest::addColumn<QString>("cell");

    QTest::newRow("plain") << u"a b"_s << false << u"a b"_s;
    QTest::newRow("empty") << QString() << false << QString();
    QTest::newRow("in quotes before") << u"a"_s << true << u"\"a\""_s;
    QTest::newRow("separator") << u"a;b"_s << false << u"\"a;b\""_s;
    QTest::newRow("separator of others") << u"a,b"_s << false << u"a,b"_s;
    QTest::newRow("quote") << u"a\"b"_s << false << u"\"a\"\"b\""_s;
    QTest::newRow("LF") << u"a\nb"_s << false << u"\"a\nb\""_s;
    QTest::newRow("CR") << u"a\rb"_s << false << u"\"a\rb\""_s;
}

void tst_CsvText::valuesBecomeCells()
{
    QFETCH(const QString, value);
    QFETCH(const bool, isQuoted);
    const QString cell = CsvText::cell(value, u';', isQuoted);
    QTEST(cell, "cell");
    QCOMPARE(CsvText::value(cell), value);
}

void tst_CsvText::tellsTheSeparator_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QChar>("separator");

    QTest::newRow("nothing") << QString() << QChar(u',');
    QTest::newRow("one column") << u"a\nb\n"_s << QChar(u',');
    QTest::newRow("comma") << u"a,b\n1,2\n"_s << QChar(u',');
    QTest::newRow("semicolon") << u"a;b\n1,5;2,5\n1;2,7\n"_s << QChar(u';');
    QTest::newRow("semicolon, all numbers with a comma") << u"1,5;2,5\n3,5;4,5\n"_s << QChar(u';');
    QTest::newRow("tabulator") << u"a, b\tc\nd\te\n"_s << QChar(u'\t');
    QTest::newRow("bar") << u"a|b\nc|d\n"_s << QChar(u'|');
    QTest::newRow("others in quotes") << u"\"a;b\",\"c;d\"\n\"e;f\",g\n"_s << QChar(u',');
    QTest::newRow("empty lines between") << u"a,b\n\n\n\n1,2\n"_s << QChar(u',');
}

void tst_CsvText::tellsTheSeparator()
{
    QFETCH(const QString, text);
    QTEST(CsvText::guessSeparator(text, u','), "separator");
}

void tst_CsvText::whatIsNotClosedIsClosedBeforeSomethingFollows()
{
    QList<CsvRow> rows = CsvText::parse(u"a,\"b"_s, u',');
    rows.append({{u"c"_s}, {}});
    const QString text = CsvText::join(rows, u',', u"\n"_s, false);
    QCOMPARE(text, u"a,\"b\"\nc"_s);
    QCOMPARE(CsvText::parse(text, u',').size(), 2);
}

void tst_CsvText::linesInTheMiddleGetAnEnd()
{
    QList<CsvRow> rows = CsvText::parse(u"a\r\nb"_s, u',');
    rows.swapItemsAt(0, 1);
    QCOMPARE(CsvText::join(rows, u',', u"\r\n"_s, false), u"b\r\na"_s);
    QCOMPARE(CsvText::join(rows, u',', u"\r\n"_s, true), u"b\r\na\r\n"_s);
}

void tst_CsvText::anEmptyLastLineIsNotLost()
{
    const QList<CsvRow> rows{{{u"a"_s}, u"\n"_s}, {{QString()}, {}}};
    const QString text = CsvText::join(rows, u',', u"\n"_s, false);
    QCOMPARE(CsvText::parse(text, u',').size(), 2);
}

void tst_CsvText::sorts_data()
{
    QTest::addColumn<Qt::SortOrder>("order");
    QTest::addColumn<QString>("expected");

    QTest::newRow("up") << Qt::AscendingOrder << u"h\n-1\n9,a\n9,b\n10\n\"11\"\nb\nnan\n\n \n"_s;
    QTest::newRow("down") << Qt::DescendingOrder << u"h\nnan\nb\n\"11\"\n10\n9,a\n9,b\n-1\n\n \n"_s;
}

void tst_CsvText::sorts()
{
    QFETCH(const Qt::SortOrder, order);
    const QList<CsvRow> rows = CsvText::parse(u"h\n9,a\n\nb\n10\n9,b\n \n-1\nnan\n\"11\"\n"_s,
                                              u',');
    const QList<CsvRow> sorted = TableSorter::sorted(rows, 1, 0, order);
    QTEST(CsvText::join(sorted, u',', u"\n"_s, true), "expected");
}

QTEST_GUILESS_MAIN(tst_CsvText)

#include "tst_csvtext.moc"
