// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QStringList>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int MaximalLines = 600;

/// Which subsystems the files of a subsystem may include, besides their own.
QStringList allowedTargets(const QString &subsystem)
{
    static const QHash<QString, QStringList> arrows{
        {u"core"_s, {}},
        {u"ribbon"_s, {u"core"_s}},
        {u"gallery"_s, {u"core"_s}},
        {u"dock"_s, {u"core"_s}},
        {u"address"_s, {u"core"_s}},
        {u"frame"_s, {u"core"_s, u"ribbon"_s, u"address"_s, u"dock"_s}},
    };
    return arrows.value(subsystem);
}

/// A public header without a source file of its own name belongs to no subsystem (empty): everybody may use it.
bool isAllowed(const QString &from, const QString &to)
{
    return to.isEmpty() || from == to || allowedTargets(from).contains(to);
}

bool isPrivateQtHeader(const QString &include)
{
    static const QRegularExpression pattern(u"(^|/)private/|^qpa/|^<Q?.*_p\\.h>$"_s);
    return pattern.match(include).hasMatch();
}

QDir sourceDir()
{
    return QDir(QStringLiteral(VORNFRAME_SOURCE_DIR));
}

/// The files below \a folder, as paths from the top of the tree.
QStringList filesBelow(const QString &folder, const QStringList &patterns)
{
    QStringList files;
    QDirIterator iterator(sourceDir().filePath(folder), patterns, QDir::Files | QDir::Hidden,
                          QDirIterator::Subdirectories);
    while (iterator.hasNext())
        files.append(sourceDir().relativeFilePath(iterator.next()));
    files.sort();
    return files;
}

QStringList publicHeaders()
{
    return filesBelow(u"include"_s, {u"*"_s});
}

QStringList librarySources()
{
    return filesBelow(u"src"_s, {u"*.cpp"_s, u"*.h"_s});
}

QString contentOf(const QString &path)
{
    QFile file(sourceDir().filePath(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

struct Include
{
    QString name;
    bool quoted = false;
};

QList<Include> includesOf(const QString &path)
{
    static const QRegularExpression line(u"^[ \\t]*#[ \\t]*include[ \\t]*([<\"])([^>\"]+)[>\"]"_s,
                                         QRegularExpression::MultilineOption);
    QList<Include> includes;
    auto matches = line.globalMatch(contentOf(path));
    while (matches.hasNext()) {
        const auto match = matches.next();
        includes.append({match.captured(2), match.captured(1) == u'"'});
    }
    return includes;
}

bool isMocOutput(const QString &include)
{
    return include.endsWith(".moc"_L1) || include.startsWith("moc_"_L1);
}

/// The path of an included file of the project (from the top of the tree), empty for a file of others.
QString resolved(const QString &includingFile, const QString &include)
{
    const QString beside = QFileInfo(includingFile).path() + u'/' + include;
    const QStringList candidates{QDir::cleanPath(beside), u"src/"_s + include,
                                 u"include/"_s + include};
    const auto found = std::find_if(candidates.begin(), candidates.end(), [](const QString &path) {
        return QFileInfo(sourceDir().filePath(path)).isFile();
    });
    return found == candidates.end() ? QString() : *found;
}

/// The subsystem of a file of src/, or of the source file that defines the class of a public header.
QString subsystemOf(const QString &path)
{
    if (path.startsWith("src/"_L1))
        return path.section(u'/', 1, 1);
    const QString source = QFileInfo(path).completeBaseName() + u".cpp"_s;
    const QStringList found = filesBelow(u"src"_s, {source});
    return found.isEmpty() ? QString() : found.constFirst().section(u'/', 1, 1);
}

void addRows(const QStringList &paths)
{
    QTest::addColumn<QString>("path");
    for (const QString &path : paths)
        QTest::newRow(qPrintable(path)) << path;
}

} // namespace

class tst_Includes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTreeIsThere();
    void arrowsRunDownwardOnly_data();
    void arrowsRunDownwardOnly();
    void privateQtHeadersAreRecognised_data();
    void privateQtHeadersAreRecognised();
    void includesFollowTheArrows_data();
    void includesFollowTheArrows();
    void publicHeadersIncludeOnlyPublicHeaders_data();
    void publicHeadersIncludeOnlyPublicHeaders();
    void noPrivateQtHeaderIsIncluded_data();
    void noPrivateQtHeaderIsIncluded();
    void sourceFilesAreShort_data();
    void sourceFilesAreShort();
    void sourceFilesNameTheLicence_data();
    void sourceFilesNameTheLicence();
};

void tst_Includes::theTreeIsThere()
{
    QVERIFY(publicHeaders().contains(u"include/VornFrame/RibbonBar.h"_s));
    QVERIFY(librarySources().contains(u"src/ribbon/RibbonBar.cpp"_s));
    QCOMPARE(subsystemOf(u"include/VornFrame/RibbonBar.h"_s), u"ribbon"_s);
    QCOMPARE(subsystemOf(u"include/VornFrame/VornFrameGlobal.h"_s), QString());
    QVERIFY(!includesOf(u"src/ribbon/RibbonBar.cpp"_s).isEmpty());
}

void tst_Includes::arrowsRunDownwardOnly_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<bool>("allowed");

    QTest::newRow("ribbon uses itself") << u"ribbon"_s << u"ribbon"_s << true;
    QTest::newRow("ribbon uses core") << u"ribbon"_s << u"core"_s << true;
    QTest::newRow("gallery uses core") << u"gallery"_s << u"core"_s << true;
    QTest::newRow("frame uses ribbon") << u"frame"_s << u"ribbon"_s << true;
    QTest::newRow("frame uses address") << u"frame"_s << u"address"_s << true;
    QTest::newRow("frame uses dock") << u"frame"_s << u"dock"_s << true;
    QTest::newRow("core uses ribbon") << u"core"_s << u"ribbon"_s << false;
    QTest::newRow("ribbon uses frame") << u"ribbon"_s << u"frame"_s << false;
    QTest::newRow("ribbon uses gallery") << u"ribbon"_s << u"gallery"_s << false;
    QTest::newRow("gallery uses ribbon") << u"gallery"_s << u"ribbon"_s << false;
    QTest::newRow("dock uses address") << u"dock"_s << u"address"_s << false;
    QTest::newRow("address uses dock") << u"address"_s << u"dock"_s << false;
    QTest::newRow("frame uses gallery") << u"frame"_s << u"gallery"_s << false;
    QTest::newRow("unknown uses core") << u"unknown"_s << u"core"_s << false;
}

void tst_Includes::arrowsRunDownwardOnly()
{
    QFETCH(const QString, from);
    QFETCH(const QString, to);
    QTEST(isAllowed(from, to), "allowed");
}

void tst_Includes::privateQtHeadersAreRecognised_data()
{
    QTest::addColumn<QString>("include");
    QTest::addColumn<bool>("isPrivate");

    QTest::newRow("module and folder") << u"QtWidgets/private/qwidget_p.h"_s << true;
    QTest::newRow("folder") << u"private/qwidget_p.h"_s << true;
    QTest::newRow("platform") << u"qpa/qplatformtheme.h"_s << true;
    QTest::newRow("public") << u"QWidget"_s << false;
    QTest::newRow("public with module") << u"QtWidgets/QWidget"_s << false;
    QTest::newRow("own private object") << u"ribbon/RibbonBar_p.h"_s << false;
}

void tst_Includes::privateQtHeadersAreRecognised()
{
    QFETCH(const QString, include);
    QTEST(isPrivateQtHeader(include), "isPrivate");
}

void tst_Includes::includesFollowTheArrows_data()
{
    addRows(publicHeaders() + librarySources());
}

void tst_Includes::includesFollowTheArrows()
{
    QFETCH(const QString, path);
    const QString from = subsystemOf(path);
    if (from.isEmpty())
        return; // the header of all headers and the version
    for (const Include &include : includesOf(path)) {
        const QString target = resolved(path, include.name);
        if (target.isEmpty()) {
            QVERIFY2(!include.quoted || isMocOutput(include.name),
                     qPrintable(u"not found: "_s + include.name));
            continue;
        }
        QVERIFY2(target != "include/VornFrame/VornFrame.h"_L1,
                 "the header of all headers is for users");
        const QString to = subsystemOf(target);
        QVERIFY2(isAllowed(from, to),
                 qPrintable(u"%1 -> %2 through %3"_s.arg(from, to, include.name)));
    }
}

void tst_Includes::publicHeadersIncludeOnlyPublicHeaders_data()
{
    addRows(publicHeaders());
}

void tst_Includes::publicHeadersIncludeOnlyPublicHeaders()
{
    QFETCH(const QString, path);
    for (const Include &include : includesOf(path)) {
        QVERIFY2(!include.quoted, qPrintable(include.name));
        QVERIFY2(!resolved(path, include.name).startsWith("src/"_L1), qPrintable(include.name));
    }
}

void tst_Includes::noPrivateQtHeaderIsIncluded_data()
{
    addRows(publicHeaders() + librarySources());
}

void tst_Includes::noPrivateQtHeaderIsIncluded()
{
    QFETCH(const QString, path);
    for (const Include &include : includesOf(path))
        QVERIFY2(!isPrivateQtHeader(include.name), qPrintable(include.name));
}

void tst_Includes::sourceFilesAreShort_data()
{
    addRows(librarySources());
}

void tst_Includes::sourceFilesAreShort()
{
    QFETCH(const QString, path);
    const auto lines = contentOf(path).count(u'\n');
    QVERIFY2(lines <= MaximalLines, qPrintable(u"%1 lines"_s.arg(lines)));
}

void tst_Includes::sourceFilesNameTheLicence_data()
{
    const QStringList code{u"*.cpp"_s,          u"*.h"_s, u"*.in"_s, u"*.cmake"_s,
                           u"CMakeLists.txt"_s, u"*.py"_s};
    QStringList paths = publicHeaders();
    paths += filesBelow(u"scripts"_s, {u"*"_s}).filter(QRegularExpression(u"^(?!.*__pycache__)"_s));
    paths += filesBelow(u".ci"_s, {u"*"_s});
    for (const auto &folder : {u"src"_s, u"tests"_s, u"examples"_s, u"benchmarks"_s, u"cmake"_s})
        paths += filesBelow(folder, code);
    paths.append(u"CMakeLists.txt"_s);
    addRows(paths);
}

void tst_Includes::sourceFilesNameTheLicence()
{
    QFETCH(const QString, path);
    const QStringList head = contentOf(path).split(u'\n').mid(0, 4);
    // In two parts, so that this line is not taken for the licence of this file.
    QCOMPARE(head.filter(u"SPDX-FileCopyright"_s + u"Text: VornFrame contributors"_s).size(), 1);
    QCOMPARE(head.filter(u"SPDX-License"_s + u"-Identifier: MIT"_s).size(), 1);
}

QTEST_GUILESS_MAIN(tst_Includes)

#include "tst_includes.moc"
