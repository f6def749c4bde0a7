// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

// Files and paths at the edges of what there is.

#include "address/FileCensus.h"
#include "address/FileCheck.h"
#include "address/FileOperations.h"
#include "address/FilePaste.h"
#include "address/FileProgress.h"
#include "support/TestCase.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

#include <array>
#include <filesystem>

#include <climits>

#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

class Selection final : public FileSelection
{
public:
    QStringList selectedPaths() const override { return paths; }
    QString currentPath() const override { return current; }

    QStringList paths;
    QString current;
};

} // namespace

class tst_FileEdges : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void sourcesThatCannotBeCut_data();
    void sourcesThatCannotBeCut();
    void pathsThatCannotBeRemoved_data();
    void pathsThatCannotBeRemoved();
    void namesOfOneFileStay_data();
    void namesOfOneFileStay();
    void sourceThroughALinkAndBack();
    void nestedSources_data();
    void nestedSources();
    void sameSourceTwice();
    void earlierCopyIsNoProofOfALaterOne();
    void cutSourceThatGoesDuringTheQuestion();
    void placeHoldersInNamesStay();
    void onlyLocalFilesArePasted();
    void linksAreReplacedNotFollowed_data();
    void linksAreReplacedNotFollowed();
    void linkToAFolderIsNotMergedInto();
    void permissionsAndTimesAreKept_data();
    void permissionsAndTimesAreKept();
    void hugeHolesStayHoles();
    void filesThatSayTheyAreEmpty();
    void deepFolders();
    void foldersAsDeepAsPathsCanBe();
    void copiesOfCopies();
    void newFoldersBesideBrokenLinks();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    fs::path native(const char *name) const
    {
        return fs::path(m_folder->path().toStdString()) / name;
    }
    void write(const QString &name, const QByteArray &content) const;
    QByteArray read(const QString &name) const;
    void paste(const QByteArray &marker, const QStringList &sources, const QString &target);
    void answerBox();

    std::unique_ptr<QTemporaryDir> m_folder;
    Selection m_selection;
    FileOperations m_operations{m_selection};
    QTimer m_driver;
    QString m_answer;
    QStringList m_boxes;
};

void tst_FileEdges::init()
{
    TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
    QDir(m_folder->path()).mkpath(u"data"_s);
    QDir(m_folder->path()).mkpath(u"target"_s);
    qputenv("XDG_DATA_HOME", QFile::encodeName(path(u"data"_s)));
    m_answer.clear();
    m_boxes.clear();
    connect(&m_driver, &QTimer::timeout, this, &tst_FileEdges::answerBox, Qt::UniqueConnection);
    m_driver.start(0);
}

void tst_FileEdges::cleanup()
{
    m_driver.stop();
    QGuiApplication::clipboard()->clear();
    m_folder.reset();
    TestCase::cleanup();
}

void tst_FileEdges::answerBox()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box)
        return;
    m_boxes.append(box->text());
    const QList<QAbstractButton *> buttons = box->buttons();
    for (QAbstractButton *button : buttons) {
        if (button->text().remove(u'&') == m_answer) {
            button->click();
            return;
        }
    }
    box->close();
}

void tst_FileEdges::write(const QString &name, const QByteArray &content) const
{
    QFile file(path(name));
    QVERIFY(QFileInfo(file).dir().mkpath(u"."_s));
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray tst_FileEdges::read(const QString &name) const
{
    QFile file(path(name));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_FileEdges::paste(const QByteArray &marker, const QStringList &sources,
                          const QString &target)
{
    QList<QUrl> urls;
    for (const QString &source : sources)
        urls.append(QUrl::fromLocalFile(source));
    auto *data = new QMimeData; // the clipboard takes it over
    data->setUrls(urls);
    data->setData("application/x-cut-or-copy"_L1, marker);
    QGuiApplication::clipboard()->setMimeData(data);
    m_operations.paste(target);
}

// --- Paths ----------------------------------------------------------------------------------

void tst_FileEdges::sourcesThatCannotBeCut_data()
{
    QTest::addColumn<QString>("source");
    QTest::newRow("root") << u"/"_s;
    QTest::newRow("folder above") << u"%1/target/.."_s;
    QTest::newRow("the folder itself") << u"%1/target/."_s;
    QTest::newRow("the folder itself, with a slash") << u"%1/target/"_s;
    QTest::newRow("nothing") << QString();
}

void tst_FileEdges::sourcesThatCannotBeCut()
{
    QFETCH(const QString, source);
    write(u"target/inside"_s, "inside");
    const QString real = source.isEmpty() || source == "/"_L1 ? source
                                                              : source.arg(m_folder->path());
    // Nobody's root is put at risk by a test.
    paste(real == "/"_L1 ? "copy" : "cut", {real}, path(u"target"_s));
    QCOMPARE(m_boxes.size(), source.isEmpty() ? 0 : 1);
    QCOMPARE(read(u"target/inside"_s), QByteArray("inside"));
    QCOMPARE(QDir(path(u"target"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList(u"inside"_s));
}

void tst_FileEdges::pathsThatCannotBeRemoved_data()
{
    QTest::addColumn<QString>("source");
    QTest::newRow("nothing") << QString();
    QTest::newRow("nothing there") << u"/nowhere/at/all"_s;
}

void tst_FileEdges::pathsThatCannotBeRemoved()
{
    QFETCH(const QString, source);
    QVERIFY(!m_operations.removePath(source));
    QVERIFY(QFile::exists(m_folder->path()));
    m_selection.paths = {source};
    m_operations.removeSelection();
    QVERIFY(QFile::exists(m_folder->path()));
}

void tst_FileEdges::namesOfOneFileStay_data()
{
    QTest::addColumn<QString>("how");
    QTest::newRow("hard link") << u"hard"_s;
    QTest::newRow("link") << u"link"_s;
    QTest::newRow("link at the source") << u"source"_s;
    QTest::newRow("links to each other") << u"cycle"_s;
}

void tst_FileEdges::namesOfOneFileStay()
{
    QFETCH(const QString, how);
    if (how == "source"_L1) {
        write(u"target/file"_s, "file");
        fs::create_symlink("target/file", native("file"));
    } else if (how == "cycle"_L1) {
        fs::create_symlink("target/file", native("file"));
        fs::create_symlink("../file", native("target/file"));
    } else {
        write(u"file"_s, "file");
        if (how == "hard"_L1)
            fs::create_hard_link(native("file"), native("target/file"));
        else
            fs::create_symlink("../file", native("target/file"));
    }
    m_answer = u"Replace Current"_s;
    const FileCensus before = FileCensus::of({native("")});
    for (const char *marker : {"cut", "copy"}) {
        paste(marker, {path(u"file"_s)}, path(u"target"_s));
        m_operations.copyPath(path(u"file"_s), path(u"target/file"_s), true);
        QCOMPARE(before.lostIn(FileCensus::of({native("")})), QByteArrayList());
        if (how != "cycle"_L1)
            QCOMPARE(read(u"target/file"_s), QByteArray("file"));
    }
}

/// What the system means by it, which is not what the text seems to say.
void tst_FileEdges::sourceThroughALinkAndBack()
{
    write(u"file"_s, "wrong");
    write(u"elsewhere/file"_s, "right");
    QDir(m_folder->path()).mkpath(u"elsewhere/deep"_s);
    fs::create_symlink("elsewhere/deep", native("link"));
    m_operations.copyPath(path(u"link/../file"_s), path(u"target/file"_s), false);
    QCOMPARE(read(u"target/file"_s), QByteArray("right"));
    QVERIFY(m_operations.removePath(path(u"link/../file"_s)));
    QCOMPARE(read(u"file"_s), QByteArray("wrong"));
    QVERIFY(!QFile::exists(path(u"elsewhere/file"_s)));
}

void tst_FileEdges::nestedSources_data()
{
    QTest::addColumn<bool>("isOuterFirst");
    QTest::addColumn<QByteArray>("marker");
    for (const QByteArray &marker : {QByteArray("cut"), QByteArray("copy")}) {
        QTest::newRow((marker + ", outer first").constData()) << true << marker;
        QTest::newRow((marker + ", inner first").constData()) << false << marker;
    }
}

void tst_FileEdges::nestedSources()
{
    QFETCH(const bool, isOuterFirst);
    QFETCH(const QByteArray, marker);
    write(u"a/b/file"_s, "file");
    write(u"a/other"_s, "other");
    QStringList sources = {path(u"a"_s), path(u"a/b"_s)};
    if (!isOuterFirst)
        std::swap(sources[0], sources[1]);
    const FileCensus before = FileCensus::of({native("")});
    paste(marker, sources, path(u"target"_s));
    QCOMPARE(before.lostIn(FileCensus::of({native("target")})), QByteArrayList());
    QCOMPARE(QFile::exists(path(u"a"_s)), marker == "copy");
    QCOMPARE(m_boxes.size(), isOuterFirst && marker == "cut" ? 1 : 0);
}

void tst_FileEdges::sameSourceTwice()
{
    write(u"a"_s, "a");
    paste("cut", {path(u"a"_s), path(u"a"_s)}, path(u"target"_s));
    QCOMPARE(read(u"target/a"_s), QByteArray("a"));
    QCOMPARE(m_boxes, QStringList(u"Source file does not exist"_s));
}

void tst_FileEdges::earlierCopyIsNoProofOfALaterOne()
{
    write(u"folder/file"_s, "data");
    write(u"target/file"_s, "DATA");
    // It is left out, so that the folder stays where it is.
    QCOMPARE(::mkfifo(native("folder/pipe").c_str(), 0600), 0);
    FileProgress progress;
    const auto cancelAndReplace = [&progress](const fs::path &, bool) {
        progress.cancel();
        return FilePaste::Answer::Replace;
    };
    FilePaste paste(true, {cancelAndReplace, [](const fs::path &, const fs::path &, int) {}},
                    progress);
    paste.run({native("folder"), native("folder/file")}, native("target"));
    QCOMPARE(read(u"target/folder/file"_s), QByteArray("data"));
    QCOMPARE(read(u"target/file"_s), QByteArray("DATA"));
    QCOMPARE(read(u"folder/file"_s), QByteArray("data"));
}

void tst_FileEdges::cutSourceThatGoesDuringTheQuestion()
{
    write(u"file"_s, "data");
    write(u"target/file"_s, "old");
    m_answer = u"Replace Current"_s;
    QTimer remover;
    connect(&remover, &QTimer::timeout, this, [this] { QFile::remove(path(u"file"_s)); });
    m_driver.stop();
    connect(&remover, &QTimer::timeout, this, &tst_FileEdges::answerBox);
    remover.start(0);
    paste("cut", {path(u"file"_s)}, path(u"target"_s));
    QCOMPARE(m_boxes.size(), 1);
    QCOMPARE(read(u"target/file"_s), QByteArray("old"));
}

void tst_FileEdges::placeHoldersInNamesStay()
{
    write(u"%1 and %2"_s, "file");
    write(u"target/%1 and %2"_s, "there");
    paste("copy", {path(u"%1 and %2"_s)}, path(u"target"_s));
    QVERIFY2(m_boxes.value(0).contains(u"a file named %1 and %2. Do"_s),
             qPrintable(m_boxes.value(0)));
    m_boxes.clear();
    FileOperations::showCopyError(u"/%2/a"_s, u"/%1/b"_s, FileCheck::PermissionDenied);
    QCOMPARE(m_boxes.value(0),
             u"Cannot copy or move the file from /%2/a to /%1/b. File permission denied."_s);
    QCOMPARE(copyName(2, u"%1%2.%1"_s), u"Copy_2_of_%1%2.%1"_s);
}

void tst_FileEdges::onlyLocalFilesArePasted()
{
    write(u"a"_s, "a");
    auto *data = new QMimeData; // the clipboard takes it over
    QUrl withSlash = QUrl::fromLocalFile(path(u"a"_s) + u'/');
    data->setUrls({QUrl(u"https://example.org/etc/passwd"_s), withSlash});
    QGuiApplication::clipboard()->setMimeData(data);
    m_operations.paste(path(u"target"_s));
    QCOMPARE(QDir(path(u"target"_s)).entryList(QDir::Files), QStringList(u"a"_s));
    QCOMPARE(read(u"a"_s), QByteArray("a"));
    paste("cut", {}, path(u"target"_s));
    QVERIFY(m_boxes.isEmpty());
}

// --- Links ----------------------------------------------------------------------------------

void tst_FileEdges::linksAreReplacedNotFollowed_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("to a file") << u"../precious"_s;
    QTest::newRow("broken") << u"nowhere"_s;
    QTest::newRow("to itself") << u"file"_s;
    QTest::newRow("to a folder") << u"../folder"_s;
}

void tst_FileEdges::linksAreReplacedNotFollowed()
{
    QFETCH(const QString, text);
    write(u"precious"_s, "precious");
    write(u"folder/inside"_s, "inside");
    write(u"file"_s, "new");
    fs::create_symlink(text.toStdString(), native("target/file"));
    m_answer = u"Replace Current"_s;
    paste("cut", {path(u"file"_s)}, path(u"target"_s));
    QVERIFY(!fs::is_symlink(native("target/file")));
    QCOMPARE(read(u"target/file"_s), QByteArray("new"));
    QCOMPARE(read(u"precious"_s), QByteArray("precious"));
    QCOMPARE(read(u"folder/inside"_s), QByteArray("inside"));
    // And the other way round.
    fs::create_symlink(text.toStdString(), native("link"));
    m_operations.copyPath(path(u"link"_s), path(u"target/file"_s), true);
    QCOMPARE(fs::read_symlink(native("target/file")).native(), text.toStdString());
    QVERIFY(m_operations.removePath(path(u"link"_s) + u'/'));
    QCOMPARE(read(u"folder/inside"_s), QByteArray("inside"));
}

void tst_FileEdges::linkToAFolderIsNotMergedInto()
{
    write(u"tree/sub/file"_s, "new");
    write(u"elsewhere/file"_s, "precious");
    QDir(m_folder->path()).mkpath(u"target/tree"_s);
    fs::create_symlink("../../elsewhere", native("target/tree/sub"));
    m_answer = u"Replace Current"_s;
    paste("cut", {path(u"tree"_s)}, path(u"target"_s));
    QCOMPARE(m_boxes.size(), 2);
    QCOMPARE(read(u"elsewhere/file"_s), QByteArray("precious"));
    QCOMPARE(read(u"tree/sub/file"_s), QByteArray("new"));
}

// --- Files ----------------------------------------------------------------------------------

void tst_FileEdges::permissionsAndTimesAreKept_data()
{
    QTest::addColumn<uint>("mode");
    QTest::addColumn<qint64>("seconds");
    QTest::newRow("0644") << 0644U << qint64(1'000'000'000);
    QTest::newRow("0444") << 0444U << qint64(-1);
    QTest::newRow("0555, before 1970") << 0555U << qint64(-86'400'000);
    QTest::newRow("set user") << 04755U << qint64(0);
    QTest::newRow("set group") << 02755U << qint64(2'000'000'000);
    if (::geteuid() == 0)
        QTest::newRow("0000") << 0U << qint64(1);
}

void tst_FileEdges::permissionsAndTimesAreKept()
{
    QFETCH(const uint, mode);
    QFETCH(const qint64, seconds);
    // Others than root must be able to read what they copy.
    const uint readable = ::geteuid() == 0 ? mode : mode | 0500U;
    write(u"tree/file"_s, "file");
    const timespec time = {time_t(seconds), 123'456'789};
    const std::array<timespec, 2> times = {time, time};
    for (const char *name : {"tree/file", "tree"}) {
        QCOMPARE(::chmod(native(name).c_str(), mode_t(readable)), 0);
        QCOMPARE(::utimensat(AT_FDCWD, native(name).c_str(), times.data(), 0), 0);
    }
    paste("copy", {path(u"tree"_s)}, path(u"target"_s));
    for (const char *name : {"target/tree/file", "target/tree"}) {
        struct stat status = {};
        QCOMPARE(::lstat(native(name).c_str(), &status), 0);
        QCOMPARE(uint(status.st_mode & 0777U), readable & 0777U);
        QVERIFY((status.st_mode & (S_ISUID | S_ISGID)) == 0);
        QCOMPARE(qint64(status.st_mtim.tv_sec), seconds);
        QCOMPARE(status.st_mtim.tv_nsec, 123'456'789);
    }
}

void tst_FileEdges::hugeHolesStayHoles()
{
    write(u"huge"_s, "begin");
    constexpr std::uintmax_t Size = 1'000'000'000'000;
    std::error_code error;
    fs::resize_file(native("huge"), Size, error);
    if (error)
        QSKIP("this file system has no files of a terabyte");
    {
        QFile file(path(u"huge"_s));
        QVERIFY(file.open(QFile::ReadWrite));
        QVERIFY(file.seek(qint64(Size) / 2));
        QCOMPARE(file.write("middle"), 6);
    }
    paste("cut", {path(u"huge"_s)}, path(u"target"_s));
    QVERIFY(!QFile::exists(path(u"huge"_s)));
    QFile copy(path(u"target/huge"_s));
    QVERIFY(copy.open(QFile::ReadOnly));
    QCOMPARE(copy.size(), qint64(Size));
    QCOMPARE(copy.read(5), QByteArray("begin"));
    QVERIFY(copy.seek(qint64(Size) / 2));
    QCOMPARE(copy.read(6), QByteArray("middle"));
}

void tst_FileEdges::filesThatSayTheyAreEmpty()
{
    QFile version(u"/proc/version"_s);
    if (!version.open(QFile::ReadOnly))
        QSKIP("this system has no /proc");
    paste("copy", {u"/proc/version"_s}, path(u"target"_s));
    QCOMPARE(read(u"target/version"_s), version.readAll());
}

void tst_FileEdges::deepFolders()
{
    QString deep = u"deep"_s;
    for (int i = 0; i < 100; ++i)
        deep += u"/level %1"_s.arg(i);
    write(deep + u"/file"_s, "bottom");
    paste("cut", {path(u"deep"_s)}, path(u"target"_s));
    QVERIFY(!QFile::exists(path(u"deep"_s)));
    QCOMPARE(read(u"target/"_s + deep + u"/file"_s), QByteArray("bottom"));
    QVERIFY(m_operations.removePath(path(u"target/deep"_s)));
}

void tst_FileEdges::foldersAsDeepAsPathsCanBe()
{
#ifdef __GLIBC__
    // Other systems give a thread as little as this to work with.
    pthread_attr_t before;
    QCOMPARE(::pthread_getattr_default_np(&before), 0);
    pthread_attr_t small;
    QCOMPARE(::pthread_attr_init(&small), 0);
    QCOMPARE(::pthread_attr_setstacksize(&small, size_t(512) * 1024), 0);
    QCOMPARE(::pthread_setattr_default_np(&small), 0);
    const auto restore = qScopeGuard([&before] { ::pthread_setattr_default_np(&before); });
#endif
    constexpr int Levels = PATH_MAX / 2 - 150;
    const QString deep = u"deep"_s + u"/d"_s.repeated(Levels);
    write(deep + u"/file"_s, "bottom");
    paste("cut", {path(u"deep"_s)}, path(u"target"_s));
    QVERIFY(!QFile::exists(path(u"deep"_s)));
    QCOMPARE(read(u"target/"_s + deep + u"/file"_s), QByteArray("bottom"));
    // Where there is no trash, it is removed level by level.
    QVERIFY(QDir(path(u"data"_s)).removeRecursively());
    write(u"data"_s, "no folder");
    QVERIFY(m_operations.removePath(path(u"target/deep"_s)));
}

void tst_FileEdges::copiesOfCopies()
{
    write(u"target/a.txt"_s, "a");
    for (int i = 0; i < 3; ++i)
        paste("copy", {path(u"target/a.txt"_s)}, path(u"target"_s));
    paste("copy", {path(u"target/Copy_2_of_a.txt"_s)}, path(u"target"_s));
    const QString name = QString(u"\u00e4"_s).repeated(124) + u".tar.gz"_s;
    write(u"target/"_s + name, "long");
    paste("copy", {path(u"target/"_s + name)}, path(u"target"_s));
    paste("copy", {path(u"target/"_s + name)}, path(u"target"_s));
    const QStringList names = QDir(path(u"target"_s)).entryList(QDir::Files);
    for (const QString &expected : {u"Copy_2_of_a.txt"_s, u"Copy_3_of_a.txt"_s,
                                    u"Copy_4_of_a.txt"_s, u"Copy_2_of_Copy_2_of_a.txt"_s})
        QVERIFY2(names.contains(expected), qPrintable(expected));
    QCOMPARE(names.filter(QRegularExpression(u"^Copy_[23]_of_\u00e4+\\.gz$"_s)).size(), 2);
}

void tst_FileEdges::newFoldersBesideBrokenLinks()
{
    m_selection.current = path(u"target"_s);
    fs::create_symlink("nowhere", native("target/New Folder"));
    write(u"target/New Folder (2)"_s, "file");
    QCOMPARE(m_operations.newFolder(), path(u"target/New Folder (3)"_s));
    QVERIFY(QFileInfo(path(u"target/New Folder (3)"_s)).isDir());
    QVERIFY(!QFile::exists(path(u"target/nowhere"_s)));
    // Of a file, its folder is meant.
    m_selection.current = path(u"target/New Folder (2)"_s);
    QCOMPARE(m_operations.newFolder(), path(u"target/New Folder (4)"_s));
}

QTEST_MAIN(tst_FileEdges)
#include "tst_fileedges.moc"
