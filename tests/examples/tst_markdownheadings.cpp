// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "MarkdownHeadings.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// What counts as a heading.
class tst_MarkdownHeadings final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsHeadings_data();
    void findsHeadings();
};

void tst_MarkdownHeadings::findsHeadings_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("headings"); // line:level:text

    QTest::newRow("nothing") << QString() << QStringList();
    QTest::newRow("text alone") << u"some\ntext\n"_s << QStringList();
    QTest::newRow("all levels") << u"# a\n## b\n### c\n#### d\n##### e\n###### f"_s
                                << QStringList{u"0:1:a"_s, u"1:2:b"_s, u"2:3:c"_s,
                                               u"3:4:d"_s, u"4:5:e"_s, u"5:6:f"_s};
    QTest::newRow("seven signs") << u"####### a"_s << QStringList();
    QTest::newRow("no blank behind the sign") << u"#a"_s << QStringList();
    QTest::newRow("closing signs") << u"## a ##  "_s << QStringList{u"0:2:a"_s};
    QTest::newRow("a sign in the text") << u"# C# and F#"_s << QStringList{u"0:1:C# and F#"_s};
    QTest::newRow("without text") << u"#"_s << QStringList{u"0:1:"_s};
    QTest::newRow("indented") << u"   # a\n    # code"_s << QStringList{u"0:1:a"_s};
    QTest::newRow("underlined") << u"a\n===\n\nb\n-"_s << QStringList{u"0:1:a"_s, u"3:2:b"_s};
    QTest::newRow("a line across") << u"a\n\n---\n"_s << QStringList();
    QTest::newRow("a line across below a list") << u"- a\n---\n"_s << QStringList();
    QTest::newRow("two lines across") << u"---\n---\n"_s << QStringList();
    QTest::newRow("fenced") << u"```c\n# a\n```\n# b"_s << QStringList{u"3:1:b"_s};
    QTest::newRow("fenced by tildes") << u"~~~\n```\n# a\n~~~\n# b"_s << QStringList{u"4:1:b"_s};
    QTest::newRow("a longer fence") << u"````\n```\n# a\n````\n# b"_s << QStringList{u"4:1:b"_s};
    QTest::newRow("never closed") << u"```\n# a"_s << QStringList();
    QTest::newRow("code in a line") << u"``` a ```\n# b"_s << QStringList{u"1:1:b"_s};
}

void tst_MarkdownHeadings::findsHeadings()
{
    QFETCH(const QString, text);
    QStringList found;
    const QList<OutlineEntry> headings = MarkdownHeadings::find(text);
    for (const OutlineEntry &heading : headings)
        found.append(u"%1:%2:%3"_s.arg(heading.line).arg(heading.level).arg(heading.text));
    QTEST(found, "headings");
}

QTEST_GUILESS_MAIN(tst_MarkdownHeadings)

#include "tst_markdownheadings.moc"
