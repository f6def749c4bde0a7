// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/AddressPaths.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace VornFrame;

class tst_AddressPaths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pathsAreNormalized_data();
    void pathsAreNormalized();
    void normalizingTwiceChangesNothing_data();
    void normalizingTwiceChangesNothing();
    void eachPartHasItsPath_data();
    void eachPartHasItsPath();
    void theLastPartIsThePathItself_data();
    void theLastPartIsThePathItself();
    void editedPathsHaveBackslashes_data();
    void editedPathsHaveBackslashes();
    void foldersHaveChildren_data();
    void foldersHaveChildren();
    void drivesHaveNames_data();
    void drivesHaveNames();
    void typedTextMeansPaths_data();
    void typedTextMeansPaths();
    void linesAreJoinedToOne_data();
    void linesAreJoinedToOne();
};

void tst_AddressPaths::pathsAreNormalized_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("root") << u"/"_s << u"/"_s;
    QTest::newRow("root, backslash") << u"\\"_s << u"/"_s;
    QTest::newRow("root, many") << u"////"_s << u"/"_s;
    QTest::newRow("folder") << u"/home"_s << u"/home"_s;
    QTest::newRow("folder, slash") << u"/home/"_s << u"/home"_s;
    QTest::newRow("folder, slashes") << u"/home///"_s << u"/home"_s;
    QTest::newRow("backslashes") << u"\\home\\u\\"_s << u"/home/u"_s;
    QTest::newRow("mixed") << u"\\home/u\\/"_s << u"/home/u"_s;
    QTest::newRow("drive") << u"C:"_s << u"C:/"_s;
    QTest::newRow("drive, slash") << u"C:/"_s << u"C:/"_s;
    QTest::newRow("drive, backslash") << u"c:\\"_s << u"c:/"_s;
    QTest::newRow("on a drive") << u"C:\\Users\\u\\"_s << u"C:/Users/u"_s;
    QTest::newRow("folder named as a drive") << u"/C:"_s << u"/C:"_s;
    QTest::newRow("folder named colon") << u"/:"_s << u"/:"_s;
    QTest::newRow("network") << u"\\\\server\\share\\"_s << u"//server/share"_s;
    QTest::newRow("network, slashes") << u"//server/share/x"_s << u"//server/share/x"_s;
    QTest::newRow("spaces stay") << u" /a / b"_s << u" /a / b"_s;
    QTest::newRow("relative") << u"a\\b/"_s << u"a/b"_s;
}

void tst_AddressPaths::pathsAreNormalized()
{
    QFETCH(const QString, path);
    QTEST(AddressPaths::normalized(path), "expected");
}

void tst_AddressPaths::normalizingTwiceChangesNothing_data()
{
    pathsAreNormalized_data();
}

void tst_AddressPaths::normalizingTwiceChangesNothing()
{
    QFETCH(const QString, path);
    QTEST(AddressPaths::normalized(AddressPaths::normalized(path)), "expected");
}

void tst_AddressPaths::eachPartHasItsPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("paths");
    QTest::newRow("root") << u"/"_s << QStringList() << QStringList();
    QTest::newRow("one") << u"/home"_s << QStringList(u"home"_s) << QStringList(u"/home"_s);
    QTest::newRow("three") << u"/home/u/x y"_s << QStringList{u"home"_s, u"u"_s, u"x y"_s}
                           << QStringList{u"/home"_s, u"/home/u"_s, u"/home/u/x y"_s};
    QTest::newRow("doubled separator")
        << u"/home//u"_s << QStringList{u"home"_s, u"u"_s} << QStringList{u"/home"_s, u"/home/u"_s};
    QTest::newRow("three leading ones")
        << u"///home"_s << QStringList(u"home"_s) << QStringList(u"/home"_s);
    QTest::newRow("drive") << u"C:/"_s << QStringList(u"C:"_s) << QStringList(u"C:"_s);
    QTest::newRow("on a drive") << u"C:/Users/u"_s << QStringList{u"C:"_s, u"Users"_s, u"u"_s}
                                << QStringList{u"C:"_s, u"C:/Users"_s, u"C:/Users/u"_s};
    QTest::newRow("network") << u"//server/share"_s << QStringList{u"server"_s, u"share"_s}
                             << QStringList{u"//server"_s, u"//server/share"_s};
    QTest::newRow("relative") << u"a/b"_s << QStringList{u"a"_s, u"b"_s}
                              << QStringList{u"a"_s, u"a/b"_s};
    QTest::newRow("nothing") << QString() << QStringList() << QStringList();
}

void tst_AddressPaths::eachPartHasItsPath()
{
    QFETCH(const QString, path);
    QStringList names;
    QStringList paths;
    const auto parts = AddressPaths::parts(path);
    for (const AddressPaths::Part &part : parts) {
        names.append(part.name);
        paths.append(part.path);
    }
    QTEST(names, "names");
    QTEST(paths, "paths");
}

void tst_AddressPaths::theLastPartIsThePathItself_data()
{
    QTest::addColumn<QString>("path");
    for (const char *path : {"/home", "/home/u", "C:/", "C:/Users", "//server", "//server/share"})
        QTest::newRow(path) << QString::fromLatin1(path);
}

void tst_AddressPaths::theLastPartIsThePathItself()
{
    QFETCH(const QString, path);
    QCOMPARE(AddressPaths::normalized(AddressPaths::parts(path).constLast().path), path);
}

void tst_AddressPaths::editedPathsHaveBackslashes_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    QTest::newRow("root") << u"/"_s << u"\\"_s;
    QTest::newRow("folder") << u"/home/u"_s << u"\\home\\u"_s;
    QTest::newRow("drive") << u"C:/"_s << u"C:\\"_s;
    QTest::newRow("network") << u"//server/share"_s << u"\\\\server\\share"_s;
}

void tst_AddressPaths::editedPathsHaveBackslashes()
{
    QFETCH(const QString, path);
    QTEST(AddressPaths::forEditing(path), "expected");
    QCOMPARE(AddressPaths::typed(AddressPaths::forEditing(path)).constFirst(), path);
}

void tst_AddressPaths::foldersHaveChildren_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("root") << u"/"_s << u"home"_s << u"/home"_s;
    QTest::newRow("folder") << u"/home"_s << u"u"_s << u"/home/u"_s;
    QTest::newRow("drive") << u"C:"_s << u"Users"_s << u"C:/Users"_s;
    QTest::newRow("drive, slash") << u"C:/"_s << u"Users"_s << u"C:/Users"_s;
    QTest::newRow("no name") << u"C:"_s << QString() << u"C:/"_s;
}

void tst_AddressPaths::foldersHaveChildren()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, name);
    QTEST(AddressPaths::child(folder, name), "expected");
}

void tst_AddressPaths::drivesHaveNames_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");
    QTest::newRow("root") << u"/"_s << u"/"_s;
    QTest::newRow("drive") << u"C:/"_s << u"C:"_s;
    QTest::newRow("on a drive") << u"D:/x"_s << u"D:"_s;
}

void tst_AddressPaths::drivesHaveNames()
{
    QFETCH(const QString, path);
    QTEST(AddressPaths::driveName(path), "expected");
}

void tst_AddressPaths::typedTextMeansPaths_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("nothing") << QString() << QStringList();
    QTest::newRow("spaces") << u" \t\n "_s << QStringList();
    QTest::newRow("root") << u"/"_s << QStringList(u"/"_s);
    QTest::newRow("root, backslash") << u"\\"_s << QStringList(u"/"_s);
    QTest::newRow("root, two") << u"\\\\"_s << QStringList(u"/"_s);
    QTest::newRow("either separator") << u"\\home/u"_s << QStringList(u"/home/u"_s);
    QTest::newRow("doubled") << u"/home//u\\\\x/"_s << QStringList(u"/home/u/x"_s);
    QTest::newRow("spaces around names")
        << u" / home /u "_s << QStringList{u" / home /u "_s, u"/home/u"_s};
    QTest::newRow("pasted line") << u"/home/u\n"_s << QStringList{u"/home/u\n"_s, u"/home/u"_s};
    QTest::newRow("names of spaces") << u"/home/ /u"_s << QStringList{u"/home/ /u"_s, u"/home/u"_s};
    QTest::newRow("drive") << u"c:"_s << QStringList(u"c:/"_s);
    QTest::newRow("on a drive") << u"C:\\Users\\"_s << QStringList(u"C:/Users"_s);
    QTest::newRow("network") << u"\\\\server\\share"_s << QStringList(u"//server/share"_s);
    QTest::newRow("three leading ones") << u"///home"_s << QStringList(u"/home"_s);
    QTest::newRow("relative") << u"a\\b"_s << QStringList(u"a/b"_s);
}

void tst_AddressPaths::typedTextMeansPaths()
{
    QFETCH(const QString, text);
    QTEST(AddressPaths::typed(text), "expected");
}

void tst_AddressPaths::linesAreJoinedToOne_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << u"a & b \u05d0 \U0001F600"_s << u"a & b \u05d0 \U0001F600"_s;
    QTest::newRow("line feed") << u"a\nb"_s << u"a b"_s;
    QTest::newRow("tab and return") << u"a\tb\rc"_s << u"a b c"_s;
    QTest::newRow("line separator") << u"a\u2028b\u2029c"_s << u"a b c"_s;
}

void tst_AddressPaths::linesAreJoinedToOne()
{
    QFETCH(const QString, text);
    QTEST(AddressPaths::singleLine(text), "expected");
}

QTEST_GUILESS_MAIN(tst_AddressPaths)

#include "tst_addresspaths.moc"
