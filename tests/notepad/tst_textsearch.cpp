// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "TextSearch.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace TextSearch;

namespace {

constexpr Options Plain{false, false};
constexpr Options Case{true, false};
constexpr Options Words{false, true};

} // namespace

class tst_TextSearch final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsForwards_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<int>("from");
        QTest::addColumn<Options>("options");
        QTest::addColumn<int>("start");

        QTest::newRow("at the start") << u"abc"_s << u"ab"_s << 0 << Plain << 0;
        QTest::newRow("behind the start") << u"abab"_s << u"ab"_s << 1 << Plain << 2;
        QTest::newRow("any case") << u"xAB"_s << u"ab"_s << 0 << Plain << 1;
        QTest::newRow("this case only") << u"ABab"_s << u"ab"_s << 0 << Case << 2;
        QTest::newRow("nowhere") << u"abc"_s << u"x"_s << 0 << Plain << -1;
        QTest::newRow("nothing to look for") << u"abc"_s << QString() << 0 << Plain << -1;
        QTest::newRow("nothing to look in") << QString() << u"a"_s << 0 << Plain << -1;
        QTest::newRow("from behind the end") << u"a"_s << u"a"_s << 5 << Plain << -1;
        QTest::newRow("whole word") << u"cats cat"_s << u"cat"_s << 0 << Words << 5;
        QTest::newRow("no whole word") << u"cats a_cat cat2"_s << u"cat"_s << 0 << Words << -1;
        QTest::newRow("word with marks") << u"x (cat)"_s << u"(cat)"_s << 0 << Words << 2;
        QTest::newRow("word before a picture") << u"cat\U0001F600"_s << u"cat"_s << 0 << Words << 0;
        QTest::newRow("word in a far script") << u"\U00010400cat"_s << u"cat"_s << 0 << Words << -1;
    }

    void findsForwards()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, pattern);
        QFETCH(const int, from);
        QFETCH(const Options, options);
        QTEST(int(findNext(text, pattern, from, options).start), "start");
    }

    void findsBackwards_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("until");
        QTest::addColumn<Options>("options");
        QTest::addColumn<int>("start");

        QTest::newRow("the last one") << u"cat cat"_s << 7 << Plain << 4;
        QTest::newRow("the one before") << u"cat cat"_s << 6 << Plain << 0;
        QTest::newRow("no room") << u"cat"_s << 2 << Plain << -1;
        QTest::newRow("nothing") << QString() << 0 << Plain << -1;
        QTest::newRow("whole words") << u"cat cats"_s << 8 << Words << 0;
        QTest::newRow("other case") << u"cat CAT"_s << 7 << Case << 0;
    }

    void findsBackwards()
    {
        QFETCH(const QString, text);
        QFETCH(const int, until);
        QFETCH(const Options, options);
        QTEST(int(findPrevious(text, u"cat"_s, until, options).start), "start");
    }

    void countsEachPlaceOnce()
    {
        const Count overlapping = count(u"aaaa"_s, u"aa"_s, 2, Plain);
        QCOMPARE(overlapping.total, 2);
        QCOMPARE(overlapping.position, 2);
        const Count between = count(u"a a"_s, u"a"_s, 1, Plain);
        QCOMPARE(between.total, 2);
        QCOMPARE(between.position, 0);
        QCOMPARE(count(u"abc"_s, QString(), 0, Plain).total, 0);
    }

    void tellsWhetherAMatchIsHere()
    {
        QVERIFY(isMatchAt(u"a CAT"_s, u"cat"_s, 2, Plain));
        QVERIFY(!isMatchAt(u"a CAT"_s, u"cat"_s, 2, Case));
        QVERIFY(!isMatchAt(u"a cats"_s, u"cat"_s, 2, Words));
        QVERIFY(!isMatchAt(u"a cat"_s, u"cat"_s, 9, Plain));
        QVERIFY(!isMatchAt(u"a cat"_s, QString(), 0, Plain));
    }

    void replacesEveryPlace_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("replacement");
        QTest::addColumn<Options>("options");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<int>("count");

        QTest::newRow("all") << u"cat Cat"_s << u"dog"_s << Plain << u"dog dog"_s << 2;
        QTest::newRow("by nothing") << u"cat, cat"_s << QString() << Plain << u", "_s << 2;
        QTest::newRow("by what holds it") << u"cat"_s << u"cat cat"_s << Plain << u"cat cat"_s << 1;
        QTest::newRow("none") << u"dog"_s << u"x"_s << Plain << u"dog"_s << 0;
        QTest::newRow("one case") << u"cat Cat"_s << u"dog"_s << Case << u"dog Cat"_s << 1;
        QTest::newRow("whole words") << u"cat cats"_s << u"dog"_s << Words << u"dog cats"_s << 1;
    }

    void replacesEveryPlace()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, replacement);
        QFETCH(const Options, options);
        const Replaced replaced = replaceAll(text, u"cat"_s, replacement, options);
        QTEST(replaced.text, "expected");
        QTEST(int(replaced.count), "count");
    }
};

QTEST_GUILESS_MAIN(tst_TextSearch)

#include "tst_textsearch.moc"
