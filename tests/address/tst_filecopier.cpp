// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/FileCheck.h"
#include "address/FileCopier.h"
#include "address/FileFixture.h"
#include "address/FileProgress.h"
#include "support/TestCase.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <filesystem>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace VornFrame;
using NativeFiles::Path;

namespace {

constexpr qint64 Gibibyte = qint64(1024) * 1024 * 1024;

} // namespace

class TestFileCopier : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_files = std::make_unique<FileFixture>();
        m_reports.clear();
        m_record = {};
        m_progress = std::make_unique<FileProgress>();
    }
    void cleanup()
    {
        m_files.reset();
        TestCase::cleanup();
    }

    void wholeFolderIsCopied();
    void linksStayLinks();
    void linkTakesThePlaceOfAFile();
    void linkThatLeadsNowhereIsReplaced();
    void specialFilesAreLeftOut();
    void namesOfAnyBytesAreCopied();
    void permissionsAndTimesAreKept_data();
    void permissionsAndTimesAreKept();
    void folderKeepsItsPermissionsAndTime();
    void existingFolderKeepsItsOwn();
    void setuidIsNotHandedOn();
    void holesStayHoles();
    void fileThatSaysItIsEmptyIsRead();
    void deepFoldersAreCopied();
    void hardLinksToTheTargetAreLeft();
    void folderIsNotCopiedThroughALinkInTheTarget();
    void missingFoldersAboveAreMade();
    void missingFolderAboveAFileIsNot();
    void conflictsBelowAreReported();
    void failedReplacementIsLogged();
    void cancelledCopyLeavesNothingHalf();
    void bytesAreCounted();
    void arrivalIsProved();
    void arrivalIsDoubted_data();
    void arrivalIsDoubted();
    void nothingArrivesWithoutARecord();

private:
    Path native(const QString &relative) const
    {
        return NativeFiles::fromText(m_files->path(relative));
    }
    FileCopier copier()
    {
        return {*m_progress,
                [this](const Path &source, const Path &target, int code) {
                    m_reports.append(u"%1 %2 %3"_s.arg(code).arg(
                        QString::fromStdString(source.filename().string()),
                        QString::fromStdString(target.filename().string())));
                },
                &m_record};
    }
    void copy(const QString &source, const QString &target, bool overwrite = false)
    {
        copier().copy(native(source), native(target), overwrite);
    }

    std::unique_ptr<FileFixture> m_files;
    std::unique_ptr<FileProgress> m_progress;
    FileRecord m_record;
    QStringList m_reports;
};

void TestFileCopier::wholeFolderIsCopied()
{
    m_files->write(u"from/a"_s, "a");
    m_files->write(u"from/.hidden/.b"_s, "b");
    m_files->write(u"from/empty"_s, "");
    m_files->makeFolder(u"from/folder/empty"_s);
    copy(u"from"_s, u"to"_s);
    QCOMPARE(m_files->list(u"to"_s), m_files->list(u"from"_s));
    QCOMPARE(m_files->list(u"to"_s).size(), 6);
    QCOMPARE(m_files->read(u"to/.hidden/.b"_s), "b");
    QVERIFY(m_reports.isEmpty());
}

void TestFileCopier::linksStayLinks()
{
    m_files->write(u"from/file"_s, "data");
    m_files->makeLink(u"from/to file"_s, u"file"_s);
    m_files->makeLink(u"from/to folder"_s, u".."_s);
    m_files->makeLink(u"from/to nothing"_s, u"nothing"_s);
    m_files->makeLink(u"from/cycle"_s, u"cycle"_s);
    m_files->makeLink(u"from/absolute"_s, m_files->path(u"from"_s));
    copy(u"from"_s, u"to"_s);
    QCOMPARE(m_files->list(u"to"_s), m_files->list(u"from"_s));
    copy(u"from/to folder"_s, u"alone"_s);
    QCOMPARE(QFile::symLinkTarget(m_files->path(u"alone"_s)),
             QFileInfo(m_files->path(u".."_s)).absoluteFilePath());
}

void TestFileCopier::linkTakesThePlaceOfAFile()
{
    m_files->makeLink(u"from/a"_s, u"somewhere"_s);
    m_files->write(u"to/a"_s, "old");
    copy(u"from/a"_s, u"to/a"_s, true);
    QCOMPARE(m_files->list(u"to"_s), QStringList{u"a->somewhere"_s});
    QCOMPARE(m_files->readTrashed(u"a"_s), "old");
}

void TestFileCopier::linkThatLeadsNowhereIsReplaced()
{
    m_files->write(u"from/a"_s, "new");
    m_files->makeFolder(u"to"_s);
    m_files->makeLink(u"to/a"_s, u"nothing"_s);
    copy(u"from/a"_s, u"to/a"_s, false);
    QCOMPARE(m_files->list(u"to"_s), QStringList{u"a->nothing"_s});
    m_files->makeLink(u"from/b"_s, u"nothing either"_s);
    m_files->makeLink(u"to/b"_s, u"nothing"_s);
    copy(u"from/a"_s, u"to/a"_s, true);
    copy(u"from/b"_s, u"to/b"_s, true);
    QCOMPARE(m_files->list(u"to"_s), (QStringList{u"a"_s, u"b->nothing either"_s}));
    QVERIFY(!m_files->exists(u"to/nothing"_s));
}

void TestFileCopier::specialFilesAreLeftOut()
{
    m_files->write(u"from/a"_s, "a");
    QCOMPARE(::mkfifo(native(u"from/pipe"_s).c_str(), 0600), 0);
    copy(u"from"_s, u"to"_s);
    QCOMPARE(m_files->list(u"to"_s), QStringList{u"a"_s});
    copy(u"from/pipe"_s, u"to/pipe"_s);
    m_files->write(u"to/b"_s, "old");
    copy(u"from/pipe"_s, u"to/b"_s, true);
    QCOMPARE(m_files->read(u"to/b"_s), "old");
    // Nor is one replaced.
    copy(u"from/a"_s, u"from/pipe"_s, true);
    QVERIFY(std::filesystem::is_fifo(native(u"from/pipe"_s)));
}

void TestFileCopier::namesOfAnyBytesAreCopied()
{
    m_files->makeFolder(u"from"_s);
    const Path name("not \xff\xfe utf-8");
    const Path folder = native(u"from"_s) / name;
    QVERIFY(NativeFiles::makeFolder(folder));
    QCOMPARE(::close(::open((folder / name).c_str(), O_CREAT | O_WRONLY, 0600)), 0);
    copy(u"from"_s, u"to"_s);
    QCOMPARE(NativeFiles::factsOf(native(u"to"_s) / name / name).kind, NativeFiles::Kind::File);
    QVERIFY(copier().hasArrived(native(u"from"_s), native(u"to"_s)));
}

void TestFileCopier::permissionsAndTimesAreKept_data()
{
    QTest::addColumn<uint>("mode");
    QTest::addColumn<qint64>("seconds");
    QTest::addColumn<qint64>("nanoseconds");
    QTest::newRow("usual") << 0644U << qint64(1'600'000'000) << qint64(123'456'789);
    QTest::newRow("private") << 0600U << qint64(0) << qint64(1);
    QTest::newRow("program") << 0755U << qint64(2'000'000'000) << qint64(0);
    QTest::newRow("read only") << 0444U << qint64(1) << qint64(999'999'999);
    QTest::newRow("nothing allowed") << 0000U << qint64(1) << qint64(0);
    QTest::newRow("all allowed") << 0777U << qint64(1) << qint64(0);
    QTest::newRow("before 1970") << 0640U << qint64(-1000) << qint64(500'000'000);
}

void TestFileCopier::permissionsAndTimesAreKept()
{
    QFETCH(uint, mode);
    QFETCH(qint64, seconds);
    QFETCH(qint64, nanoseconds);
    if (mode == 0 && ::geteuid() != 0)
        QSKIP("only root may read a file that allows nothing");
    m_files->write(u"a"_s, "data");
    const std::array<timespec, 2> times{{{0, UTIME_NOW}, {time_t(seconds), long(nanoseconds)}}};
    QCOMPARE(::utimensat(AT_FDCWD, native(u"a"_s).c_str(), times.data(), 0), 0);
    QCOMPARE(::chmod(native(u"a"_s).c_str(), mode_t(mode)), 0);
    copy(u"a"_s, u"b"_s);
    const NativeFiles::Facts facts = NativeFiles::factsOf(native(u"b"_s));
    QCOMPARE(facts.mode, mode);
    QCOMPARE(facts.modified, seconds * 1'000'000'000 + nanoseconds);
}

void TestFileCopier::folderKeepsItsPermissionsAndTime()
{
    m_files->write(u"from/folder/a"_s, "data");
    const std::array<timespec, 2> times{{{0, UTIME_OMIT}, {1000, 5}}};
    QCOMPARE(::chmod(native(u"from/folder"_s).c_str(), 0555), 0);
    QCOMPARE(::utimensat(AT_FDCWD, native(u"from/folder"_s).c_str(), times.data(), 0), 0);
    copy(u"from"_s, u"to"_s);
    const NativeFiles::Facts facts = NativeFiles::factsOf(native(u"to/folder"_s));
    QCOMPARE(facts.mode, 0555U);
    QCOMPARE(facts.modified, 1000LL * 1'000'000'000 + 5);
    QCOMPARE(m_files->read(u"to/folder/a"_s), "data");
    QCOMPARE(::chmod(native(u"from/folder"_s).c_str(), 0755), 0);
    QCOMPARE(::chmod(native(u"to/folder"_s).c_str(), 0755), 0);
}

void TestFileCopier::existingFolderKeepsItsOwn()
{
    m_files->makeFolder(u"from"_s);
    m_files->makeFolder(u"to"_s);
    QCOMPARE(::chmod(native(u"from"_s).c_str(), 0777), 0);
    QCOMPARE(::chmod(native(u"to"_s).c_str(), 0700), 0);
    copy(u"from"_s, u"to"_s, true);
    QCOMPARE(NativeFiles::factsOf(native(u"to"_s)).mode, 0700U);
}

void TestFileCopier::setuidIsNotHandedOn()
{
    m_files->write(u"a"_s, "data");
    QCOMPARE(::chmod(native(u"a"_s).c_str(), 06755), 0);
    copy(u"a"_s, u"b"_s);
    struct stat status = {};
    QCOMPARE(::stat(native(u"b"_s).c_str(), &status), 0);
    QCOMPARE(uint(status.st_mode & 07777), 0755U);
}

void TestFileCopier::holesStayHoles()
{
    QFile file(m_files->path(u"a"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("start"), 5);
    QVERIFY(file.seek(Gibibyte * 20));
    QCOMPARE(file.write("middle"), 6);
    QVERIFY(file.resize(Gibibyte * 40));
    file.close();
    copy(u"a"_s, u"b"_s);
    QFile copied(m_files->path(u"b"_s));
    QVERIFY(copied.open(QIODevice::ReadOnly));
    QCOMPARE(copied.size(), Gibibyte * 40);
    QCOMPARE(copied.read(6), QByteArray("start\0", 6));
    QVERIFY(copied.seek(Gibibyte * 20));
    QCOMPARE(copied.read(7), QByteArray("middle\0", 7));
    struct stat status = {};
    QCOMPARE(::stat(native(u"b"_s).c_str(), &status), 0);
    QVERIFY(status.st_blocks < 10'000);
}

void TestFileCopier::fileThatSaysItIsEmptyIsRead()
{
    if (!QFile::exists(u"/proc/self/status"_s))
        QSKIP("this system has no such files");
    copier().copy("/proc/self/status", native(u"status"_s), false);
    QVERIFY(m_files->read(u"status"_s).contains("VmRSS"));
}

void TestFileCopier::deepFoldersAreCopied()
{
    QString folder = u"from"_s;
    for (int depth = 0; depth < 200; ++depth)
        folder += u"/d"_s;
    m_files->write(folder + u"/a"_s, "deep");
    copy(u"from"_s, u"to"_s);
    QCOMPARE(m_files->read(folder.replace(0, 4, u"to"_s) + u"/a"_s), "deep");
}

void TestFileCopier::hardLinksToTheTargetAreLeft()
{
    m_files->write(u"from/a"_s, "data");
    m_files->makeFolder(u"to"_s);
    std::filesystem::create_hard_link(native(u"from/a"_s), native(u"to/a"_s));
    copy(u"from"_s, u"to"_s, true);
    copy(u"from/a"_s, u"to/a"_s, true);
    QCOMPARE(m_files->read(u"from/a"_s), "data");
    QCOMPARE(m_files->read(u"to/a"_s), "data");
    QVERIFY(m_files->trashed().isEmpty());
}

void TestFileCopier::folderIsNotCopiedThroughALinkInTheTarget()
{
    m_files->write(u"from/sub/a"_s, "data");
    m_files->makeFolder(u"elsewhere"_s);
    m_files->makeFolder(u"to"_s);
    m_files->makeLink(u"to/sub"_s, m_files->path(u"elsewhere"_s));
    copy(u"from"_s, u"to"_s, true);
    QVERIFY(m_files->list(u"elsewhere"_s).isEmpty());
    QCOMPARE(m_reports, QStringList{u"5 sub sub"_s});
    QVERIFY(!copier().hasArrived(native(u"from"_s), native(u"to"_s)));
}

void TestFileCopier::missingFoldersAboveAreMade()
{
    m_files->write(u"from/a"_s, "data");
    copy(u"from"_s, u"new/path/to"_s);
    QCOMPARE(m_files->read(u"new/path/to/a"_s), "data");
}

void TestFileCopier::missingFolderAboveAFileIsNot()
{
    m_files->write(u"a"_s, "data");
    copy(u"a"_s, u"new/a"_s);
    QVERIFY(!m_files->exists(u"new"_s));
    QVERIFY(m_reports.isEmpty());
}

void TestFileCopier::conflictsBelowAreReported()
{
    m_files->write(u"from/sub/clash/a"_s, "a");
    m_files->write(u"from/sub/rest/b"_s, "b");
    m_files->write(u"to/sub/clash"_s, "file");
    copy(u"from"_s, u"to"_s, true);
    QCOMPARE(m_reports, QStringList{u"5 clash clash"_s});
    QCOMPARE(m_files->read(u"to/sub/clash"_s), "file");
    QCOMPARE(m_files->read(u"to/sub/rest/b"_s), "b");
    m_reports.clear();
    copy(u"none"_s, u"to"_s);
    copy(u"from"_s, u"from/sub"_s);
    copy(u"from"_s, u"from"_s);
    QCOMPARE(m_reports, (QStringList{u"0 none to"_s, u"2 from sub"_s}));
}

void TestFileCopier::failedReplacementIsLogged()
{
    m_files->write(u"a"_s, "data");
    // A system that lets nobody write: not even root.
    const QString target = u"/proc/version"_s;
    QTest::ignoreMessage(QtDebugMsg, qPrintable(u"Error: copy file from %1 to %2"_s.arg(
                                         m_files->path(u"a"_s), target)));
    copier().copy(native(u"a"_s), NativeFiles::fromText(target), true);
    copier().copy(native(u"a"_s), NativeFiles::fromText(target), false);
}

void TestFileCopier::cancelledCopyLeavesNothingHalf()
{
    m_files->write(u"from/a"_s, "data");
    m_files->makeFolder(u"from/sub"_s);
    m_files->write(u"old"_s, "old");
    m_progress->cancel();
    copy(u"from/a"_s, u"b"_s);
    copy(u"from/a"_s, u"old"_s, true);
    copy(u"from"_s, u"to"_s);
    QVERIFY(!m_files->exists(u"b"_s));
    QVERIFY(m_files->list(u"to"_s).isEmpty());
    QCOMPARE(m_files->read(u"old"_s), "old");
    QVERIFY(!copier().hasArrived(native(u"from"_s), native(u"to"_s)));
}

void TestFileCopier::bytesAreCounted()
{
    m_files->write(u"from/a"_s, QByteArray(1'000'000, 'a'));
    m_files->write(u"from/sub/b"_s, QByteArray(234, 'b'));
    m_files->makeLink(u"from/link"_s, u"a"_s);
    copy(u"from"_s, u"to"_s);
    QCOMPARE(m_progress->done(), 1'000'234);
}

void TestFileCopier::arrivalIsProved()
{
    m_files->write(u"from/a"_s, "a");
    m_files->write(u"from/sub/.b"_s, "b");
    m_files->makeLink(u"from/link"_s, u"nothing"_s);
    FileCopier copier = this->copier();
    copier.copy(native(u"from"_s), native(u"to"_s), false);
    QVERIFY(copier.hasArrived(native(u"from"_s), native(u"to"_s)));
}

void TestFileCopier::arrivalIsDoubted_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : {"target file missing", "target file shorter", "target link differs",
                             "target is no folder", "source file added", "hidden file added",
                             "source file grown", "source file touched", "source file replaced",
                             "source link changed", "source folder added", "source gone"})
        QTest::newRow(what) << QString::fromLatin1(what);
}

void TestFileCopier::arrivalIsDoubted()
{
    QFETCH(QString, what);
    m_files->write(u"from/sub/a"_s, "data");
    m_files->makeLink(u"from/link"_s, u"nothing"_s);
    FileCopier copier = this->copier();
    copier.copy(native(u"from"_s), native(u"to"_s), false);
    const auto change = [this](const QString &path) { std::filesystem::remove_all(native(path)); };
    if (what == u"target file missing") {
        change(u"to/sub/a"_s);
    } else if (what == u"target file shorter") {
        m_files->write(u"to/sub/a"_s, "dat");
    } else if (what == u"target link differs") {
        change(u"to/link"_s);
        m_files->makeLink(u"to/link"_s, u"else"_s);
    } else if (what == u"target is no folder") {
        change(u"to/sub"_s);
        m_files->write(u"to/sub"_s, "");
    } else if (what == u"source file added") {
        m_files->write(u"from/sub/new"_s, "");
    } else if (what == u"hidden file added") {
        m_files->write(u"from/.new"_s, "");
    } else if (what == u"source file grown") {
        m_files->write(u"from/sub/a"_s, "data and more");
    } else if (what == u"source file touched") {
        const std::array<timespec, 2> times{{{0, UTIME_OMIT}, {5, 5}}};
        QCOMPARE(::utimensat(AT_FDCWD, native(u"from/sub/a"_s).c_str(), times.data(), 0), 0);
    } else if (what == u"source file replaced") {
        m_files->write(u"from/sub/b"_s, "DATA");
        const NativeFiles::Facts facts = NativeFiles::factsOf(native(u"from/sub/a"_s));
        std::filesystem::rename(native(u"from/sub/b"_s), native(u"from/sub/a"_s));
        const std::array<timespec, 2> times{
            {{0, UTIME_OMIT},
             {time_t(facts.modified / 1'000'000'000), long(facts.modified % 1'000'000'000)}}};
        QCOMPARE(::utimensat(AT_FDCWD, native(u"from/sub/a"_s).c_str(), times.data(), 0), 0);
    } else if (what == u"source link changed") {
        change(u"from/link"_s);
        m_files->makeLink(u"from/link"_s, u"else"_s);
    } else if (what == u"source folder added") {
        m_files->makeFolder(u"from/new"_s);
    } else {
        change(u"from"_s);
    }
    QVERIFY(!copier.hasArrived(native(u"from"_s), native(u"to"_s)));
}

void TestFileCopier::nothingArrivesWithoutARecord()
{
    m_files->write(u"a"_s, "data");
    FileCopier copier(*m_progress, [](const Path &, const Path &, int) {});
    copier.copy(native(u"a"_s), native(u"b"_s), false);
    QCOMPARE(m_files->read(u"b"_s), "data");
    QVERIFY(!copier.hasArrived(native(u"a"_s), native(u"b"_s)));
}

QTEST_MAIN(TestFileCopier)

#include "tst_filecopier.moc"
