// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TextTransforms.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace TextTransforms;

class tst_TextTransforms final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void transforms_data()
    {
        QTest::addColumn<Transform>("transform");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");

        const auto add = [](const char *name, Transform transform, const QString &text,
                            const QString &expected) {
            QTest::newRow(name) << transform << text << expected;
        };
        add("upper case", toUpperCase, u"aß éa1"_s, u"ASS ÉA1"_s);
        add("lower case", toLowerCase, u"AÉ I1"_s, u"aé i1"_s);
        add("title case", toTitleCase, u"the QUICK\nfox's 3rd"_s, u"The Quick\nFox's 3rd"_s);
        add("title case beyond the basic plane", toTitleCase, u"\U00010428\U00010429"_s,
            u"\U00010400\U00010429"_s);
        add("title case of nothing", toTitleCase, QString(), QString());
        add("sorting", sortLines, u"b\na\nC\nB\n"_s, u"a\nB\nb\nC\n"_s);
        add("sorting without a last line end", sortLines, u"b\na"_s, u"a\nb"_s);
        add("sorting with empty lines", sortLines, u"b\n\na\n"_s, u"\na\nb\n"_s);
        add("reversing", reverseLines, u"1\n2\n3\n"_s, u"3\n2\n1\n"_s);
        add("duplicates", removeDuplicateLines, u"b\na\nb\nA\na"_s, u"b\na\nA"_s);
        add("joining", joinLines, u"  one \n\n\ttwo\nthree\n"_s, u"one two three\n"_s);
        add("trimming", trimLineEnds, u"a \t\n b\n \t\nc "_s, u"a\n b\n\nc"_s);
        add("trimming keeps other spaces", trimLineEnds, u"a\u00a0"_s, u"a\u00a0"_s);
        add("indenting", indentLines, u"a\n\n b\n"_s, u"    a\n\n     b\n"_s);
        add("outdenting", outdentLines, u"      a\n  b\n\tc\n \td\ne"_s, u"  a\nb\nc\n\td\ne"_s);
    }

    void transforms()
    {
        QFETCH(const Transform, transform);
        QFETCH(const QString, text);
        QTEST(transform(text), "expected");
    }

    void outdentingUndoesIndenting()
    {
        const QString text = u"a\n  b\n\tc\n\nd"_s;
        QCOMPARE(outdentLines(indentLines(text)), text);
    }

    void statisticsCountWhatAReaderSees_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("lines");
        QTest::addColumn<int>("words");
        QTest::addColumn<int>("characters");

        QTest::newRow("nothing") << QString() << 0 << 0 << 0;
        QTest::newRow("one word") << u"word"_s << 1 << 1 << 4;
        QTest::newRow("two lines") << u"one two,\nthree"_s << 2 << 3 << 14;
        QTest::newRow("a last line end") << u"one\n"_s << 1 << 1 << 4;
        QTest::newRow("only line ends") << u"\n\n"_s << 2 << 0 << 2;
        QTest::newRow("punctuation is no word") << u"- . !"_s << 1 << 0 << 5;
        QTest::newRow("an accent of its own") << u"e\u0301"_s << 1 << 1 << 1;
        QTest::newRow("beyond the basic plane") << u"\U0001F600"_s << 1 << 0 << 1;
    }

    void statisticsCountWhatAReaderSees()
    {
        QFETCH(const QString, text);
        const Statistics numbers = statistics(text);
        QTEST(int(numbers.lines), "lines");
        QTEST(int(numbers.words), "words");
        QTEST(int(numbers.characters), "characters");
    }
};

QTEST_GUILESS_MAIN(tst_TextTransforms)

#include "tst_texttransforms.moc"
