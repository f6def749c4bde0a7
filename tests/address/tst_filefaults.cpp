// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

// File operations on disks that are full, and with system calls that fail, one after the other, and
// while others change the files. No byte may be lost, whatever happens.

#include "address/FaultScene.h"
#include "support/QuietMacros.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <deque>
#include <utility>

namespace fs = std::filesystem;

using namespace FaultBench;
using namespace Qt::StringLiterals;

using Work = FaultScene::Work;
using Trash = FaultScene::Trash;

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr int Stride = 8; // a sanitized program takes long to start
#else
constexpr int Stride = 1;
#endif

/// A system call that fails, and when.
struct Fault
{
    QString call;
    QString effect; ///< as strace names it; empty for none
    QString when;
};

/// One operation with a fault, at work.
struct Attempt
{
    Fault fault;
    std::unique_ptr<FaultScene> scene;
    std::unique_ptr<Operation> operation;
    std::unique_ptr<QProcess> tracer = {};
    Path folder;
};

QStringList fileCalls()
{
    return {u"openat"_s,   u"newfstatat"_s, u"read"_s,           u"pread64"_s,   u"pwrite64"_s,
            u"write"_s,    u"lseek"_s,      u"close"_s,          u"mkdir"_s,     u"rmdir"_s,
            u"unlink"_s,   u"rename"_s,     u"renameat2"_s,      u"symlink"_s,   u"fchmod"_s,
            u"fsync"_s,    u"utimensat"_s,  u"syncfs"_s,         u"ftruncate"_s, u"getdents64"_s,
            u"readlink"_s, u"faccessat2"_s, u"copy_file_range"_s};
}

/// What each call can be refused with.
QStringList errorsOf(const QString &call)
{
    const QStringList writing = {u"openat"_s, u"pwrite64"_s, u"write"_s,     u"close"_s,
                                 u"mkdir"_s,  u"rename"_s,   u"renameat2"_s, u"symlink"_s,
                                 u"fsync"_s,  u"syncfs"_s,   u"ftruncate"_s, u"copy_file_range"_s};
    const QStringList quick = {u"lseek"_s, u"readlink"_s, u"newfstatat"_s};
    QStringList errors = {u"error=EIO"_s};
    if (writing.contains(call))
        errors.append(u"error=ENOSPC"_s);
    if (!quick.contains(call))
        errors.append(u"error=EINTR"_s);
    return errors;
}

} // namespace

class tst_FileFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void diskIsFull_data();
    void diskIsFull();
    void diskHasNoInodes_data() { diskIsFull_data(); }
    void diskHasNoInodes();
    void callFails_data();
    void callFails();
    void allCallsFailFromOneOn_data();
    void allCallsFailFromOneOn();
    void killed_data();
    void killed();
    void changedMeanwhile_data();
    void changedMeanwhile();

private:
    void tryOnDisk(const QString &options);
    void start(const Fault &fault);
    void finishOldest();
    void tryAll(const std::vector<Fault> &faults);
    std::vector<std::pair<QString, int>> callsOfOperation();
    bool attach(Attempt &attempt, const QStringList &expressions, const Path &log);

    std::unique_ptr<QTemporaryDir> m_folder;
    Path m_base;
    std::unique_ptr<Mount> m_disk;
    std::deque<Attempt> m_attempts;
    int m_count = 0;
    bool m_isHurt = false;
};

void tst_FileFaults::initTestCase()
{
    const QString reason = enterMountSpace();
    if (!reason.isEmpty())
        QSKIP(qPrintable(reason));
}

void tst_FileFaults::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_base = m_folder->path().toStdString();
    m_disk = makeDisk(m_base / "disk");
    if (!m_disk->isMounted())
        QSKIP("this system mounts no disks in memory");
    m_isHurt = false;
}

void tst_FileFaults::cleanup()
{
    m_attempts.clear();
    m_disk.reset();
    m_folder.reset();
}

// --- Full disks -----------------------------------------------------------------------------

void tst_FileFaults::diskIsFull_data()
{
    QTest::addColumn<Work>("work");
    QTest::addColumn<Trash>("trash");
    QTest::newRow("copy") << Work::Copy << Trash::Home;
    QTest::newRow("replace and merge") << Work::Replace << Trash::Unsure;
    QTest::newRow("replace and merge, no trash") << Work::Replace << Trash::None;
    QTest::newRow("cut") << Work::Cut << Trash::Home;
    QTest::newRow("cut, no trash") << Work::Cut << Trash::None;
    QTest::newRow("cut and merge, no trash") << Work::CutAndReplace << Trash::None;
}

/// From a disk where nothing goes to one where all does.
void tst_FileFaults::tryOnDisk(const QString &options)
{
    QFETCH(const Work, work);
    QFETCH(const Trash, trash);
    int done = 0;
    constexpr int Tries = 24;
    for (int i = 0; i <= Tries; i += 1 + (Stride - 1) / 4) {
        const Path room = m_base / "small";
        const std::unique_ptr<Mount> small = makeDisk(room);
        QVERIFY(small->isMounted());
        FaultScene scene(m_base / "disk/source", room / "target", room / "data");
        scene.make(work, trash, {m_base / "disk", room});
        const fs::space_info space = fs::space(room);
        const auto used = qulonglong(space.capacity - space.free);
        const int files = int(std::distance(fs::recursive_directory_iterator(room),
                                            fs::recursive_directory_iterator()));
        // A little more than what is there already.
        const QString limits = options.contains(u"size"_s)
                                   ? options.arg(used + qulonglong(i) * 4096)
                                   : options.arg(files + 1 + i);
        QVERIFY(run(u"mount"_s, {u"-o"_s, u"remount,"_s + limits, text(room)}));
        Operation operation(scene.words(), scene.dataHome());
        QVERIFY2(operation.finish(), qPrintable(limits + QLatin1StringView(operation.output())));
        const QString faults = scene.faults();
        QVERIFY2(faults.isEmpty(), qPrintable(limits + u": "_s + faults));
        done += scene.isDone() ? 1 : 0;
        fs::remove_all(m_base / "disk/source");
        fs::remove_all(m_base / "disk/.Trash-0");
    }
    // The largest was large enough, or the test would say nothing.
    QVERIFY(done > 0);
    QVERIFY(done < Tries);
}

void tst_FileFaults::diskIsFull()
{
    tryOnDisk(u"size=%1"_s);
}

void tst_FileFaults::diskHasNoInodes()
{
    tryOnDisk(u"nr_inodes=%1"_s);
}

// --- Failing calls --------------------------------------------------------------------------

void tst_FileFaults::callFails_data()
{
    QTest::addColumn<Work>("work");
    QTest::addColumn<Trash>("trash");
    QTest::newRow("copy") << Work::Copy << Trash::Home;
    QTest::newRow("cut, no trash") << Work::Cut << Trash::None;
    QTest::newRow("cut and merge") << Work::CutAndReplace << Trash::Unsure;
    QTest::newRow("delete") << Work::Delete << Trash::Unsure;
}

bool tst_FileFaults::attach(Attempt &attempt, const QStringList &expressions, const Path &log)
{
    QProcess &process = attempt.operation->process();
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(10'000))
            return false;
    }
    const QString processId = QString::fromLatin1(process.readLine()).section(u' ', 1).trimmed();
    attempt.tracer = std::make_unique<QProcess>();
    QStringList arguments = {u"-f"_s, u"-qq"_s, u"-o"_s, text(log)};
    for (const QString &expression : expressions)
        arguments += {u"-e"_s, expression};
    attempt.tracer->start(u"strace"_s, arguments + QStringList{u"-p"_s, processId});
    return attempt.tracer->waitForStarted();
}

/// How often the operation makes each call, counted in its own thread: the one that makes the most.
std::vector<std::pair<QString, int>> tst_FileFaults::callsOfOperation()
{
    start({fileCalls().join(u','), QString(), QString()});
    Attempt &attempt = m_attempts.back();
    const bool isFinished = attempt.operation->finish() && attempt.tracer->waitForFinished();
    QFile log(text(attempt.folder / "log"));
    std::vector<std::pair<QString, int>> calls;
    if (!isFinished || !log.open(QFile::ReadOnly))
        return calls;
    const QString lines = QString::fromLatin1(log.readAll());
    for (const QString &call : fileCalls()) {
        const QRegularExpression pattern(u"^(\\d+) +%1\\("_s.arg(call),
                                         QRegularExpression::MultilineOption);
        QMap<QString, int> counts;
        for (auto match = pattern.globalMatch(lines); match.hasNext();)
            ++counts[match.next().captured(1)];
        int most = 0;
        for (const int count : std::as_const(counts))
            most = qMax(most, count);
        if (most > 0)
            calls.emplace_back(call, most);
    }
    m_attempts.clear();
    return calls;
}

void tst_FileFaults::start(const Fault &fault)
{
    QFETCH(const Work, work);
    QFETCH(const Trash, trash);
    Attempt attempt;
    attempt.fault = fault;
    attempt.folder = m_base / "disk" / std::to_string(++m_count);
    const Path &folder = attempt.folder;
    attempt.scene = std::make_unique<FaultScene>(folder / "source", folder / "target",
                                                 folder / "data");
    attempt.scene->make(work, trash);
    if (trash == Trash::None)
        makeFile(m_base / "disk/.Trash-0", "no trash", 10);
    attempt.operation = std::make_unique<Operation>(attempt.scene->words({u"--wait-for-tracer"_s}),
                                                    attempt.scene->dataHome());
    const QString trace = u"trace="_s + fault.call;
    QStringList expressions = {trace};
    if (!fault.effect.isEmpty())
        expressions += u"inject=%1:%2:when=%3"_s.arg(fault.call, fault.effect, fault.when);
    QVERIFY(attach(attempt, expressions, folder / "log"));
    m_attempts.push_back(std::move(attempt));
}

void tst_FileFaults::finishOldest()
{
    Attempt attempt = std::move(m_attempts.front());
    m_attempts.pop_front();
    const Fault &fault = attempt.fault;
    const QString name = u"%1 with %2 at %3: "_s.arg(fault.call, fault.effect, fault.when);
    const bool isKilled = fault.effect == "signal=KILL"_L1;
    QVERIFY2(attempt.operation->finish() || isKilled,
             qPrintable(name + QLatin1StringView(attempt.operation->output())));
    QVERIFY2(attempt.tracer->waitForFinished(), qPrintable(name));
    const QString faults = attempt.scene->faults(m_isHurt);
    QVERIFY2(faults.isEmpty(), qPrintable(name + faults));
    if (fault.effect == "error=EINTR"_L1)
        QVERIFY2(attempt.scene->isDone(), qPrintable(name + u"not done"_s));
    fs::remove_all(attempt.folder);
}

void tst_FileFaults::tryAll(const std::vector<Fault> &faults)
{
    constexpr size_t AtOnce = 3;
    for (const Fault &fault : faults) {
        start(fault);
        if (!QTest::currentTestFailed() && m_attempts.size() >= AtOnce)
            finishOldest();
        if (QTest::currentTestFailed())
            return;
    }
    while (!m_attempts.empty() && !QTest::currentTestFailed())
        finishOldest();
}

void tst_FileFaults::callFails()
{
    if (!hasProgram(u"strace"_s))
        QSKIP("strace is not installed");
    const std::vector<std::pair<QString, int>> calls = callsOfOperation();
    if (calls.empty())
        QSKIP("this system lets no process trace another");
    std::vector<Fault> faults;
    int number = 0;
    // Those that only look are many, and much alike.
    const QStringList looking = {u"newfstatat"_s, u"readlink"_s, u"lseek"_s, u"close"_s};
    for (const auto &[call, count] : calls) {
        const int step = looking.contains(call) ? 3 : 1;
        for (const QString &error : errorsOf(call)) {
            for (int when = 1; when <= count; when += step) {
                if (number++ % Stride == 0)
                    faults.push_back({call, error, QString::number(when)});
            }
        }
    }
    tryAll(faults);
}

/// As when a disk is pulled out.
void tst_FileFaults::allCallsFailFromOneOn_data()
{
    QTest::addColumn<Work>("work");
    QTest::addColumn<Trash>("trash");
    QTest::newRow("cut, no trash") << Work::Cut << Trash::None;
    QTest::newRow("cut and merge") << Work::CutAndReplace << Trash::Unsure;
}

void tst_FileFaults::allCallsFailFromOneOn()
{
    if (!hasProgram(u"strace"_s))
        QSKIP("strace is not installed");
    const std::vector<std::pair<QString, int>> calls = callsOfOperation();
    if (calls.empty())
        QSKIP("this system lets no process trace another");
    m_isHurt = true;
    std::vector<Fault> faults;
    int number = 0;
    for (const auto &[call, count] : calls) {
        for (int when = 1; when <= count; when += 3) {
            if (number++ % Stride == 0)
                faults.push_back({call, u"error=EIO"_s, QString::number(when) + u'+'});
        }
    }
    tryAll(faults);
}

void tst_FileFaults::killed_data()
{
    callFails_data();
}

/// Killed before each call that changes something.
void tst_FileFaults::killed()
{
    if (!hasProgram(u"strace"_s))
        QSKIP("strace is not installed");
    const std::vector<std::pair<QString, int>> calls = callsOfOperation();
    if (calls.empty())
        QSKIP("this system lets no process trace another");
    m_isHurt = true;
    const QStringList changing = {u"renameat2"_s, u"rename"_s,    u"unlink"_s,
                                  u"rmdir"_s,     u"mkdir"_s,     u"copy_file_range"_s,
                                  u"syncfs"_s,    u"utimensat"_s, u"symlink"_s};
    std::vector<Fault> faults;
    for (const auto &[call, count] : calls) {
        for (int when = 1; changing.contains(call) && when <= count; when += Stride)
            faults.push_back({call, u"signal=KILL"_s, QString::number(when)});
    }
    tryAll(faults);
}

// --- Others at work -------------------------------------------------------------------------

void tst_FileFaults::changedMeanwhile_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("grows") << u"printf more >> %1"_s;
    QTest::newRow("shrinks") << u"truncate -s 100 %1"_s;
    QTest::newRow("is written over") << u"printf MORE | dd of=%1 conv=notrunc status=none"_s;
    QTest::newRow("vanishes") << u"mv %1 %1.away"_s;
    QTest::newRow("becomes a link") << u"mv %1 %1.away; ln -s /etc/passwd %1"_s;
    QTest::newRow("becomes a pipe") << u"mv %1 %1.away; mkfifo %1"_s;
    QTest::newRow("becomes a folder") << u"mv %1 %1.away; mkdir %1; echo in > %1/in"_s;
    QTest::newRow("becomes another file") << u"mv %1 %1.away; echo new > %1"_s;
    QTest::newRow("gets a neighbour") << u"echo new > %1.new"_s;
}

/// Stops the operation at one call after the other, while somebody else changes the source.
void tst_FileFaults::changedMeanwhile()
{
    QFETCH(const QString, command);
    if (!hasProgram(u"strace"_s))
        QSKIP("strace is not installed");
    const std::vector<std::pair<const char *, int>> stops = {
        {"openat", 1},    {"openat", 2}, {"copy_file_range", 1}, {"utimensat", 1},
        {"renameat2", 1}, {"openat", 3}, {"syncfs", 1}};
    for (const auto &[call, when] : stops) {
        const Path folder = m_base / "disk/run";
        fs::create_directories(folder / "target");
        makeFile(folder / "source", "source", 300'000);
        makeFile(m_base / "disk/data/Trash", "none");
        makeFile(m_base / "disk/.Trash-0", "none");
        const QByteArray content = FileCensus::contentOf(folder / "source");
        Operation operation({u"--wait-for-tracer"_s, u"paste"_s, u"cut"_s, text(folder / "target"),
                             text(folder / "source")},
                            m_base / "disk/data");
        QVERIFY(operation.process().waitForReadyRead());
        const QString id = QString::fromLatin1(operation.process().readLine()).section(u' ', 1);
        QProcess tracer;
        tracer.start(
            u"strace"_s,
            {u"-f"_s, u"-qq"_s, u"-o"_s, text(folder / "log"), u"-e"_s,
             u"trace=%1"_s.arg(QLatin1StringView(call)), u"-e"_s,
             u"inject=%1:delay_enter=200000:when=%2"_s.arg(QLatin1StringView(call)).arg(when),
             u"-p"_s, id.trimmed()});
        // It stands still when the tracer has noted the call.
        QTRY_VERIFY(readAll(folder / "log").count(call) >= when || tracer.state() == 0);
        const bool wasThere = fs::exists(fs::symlink_status(folder / "source"));
        const QString place = u'\'' + text(folder / "source") + u'\'';
        if (wasThere)
            run(u"sh"_s, {u"-c"_s, QString(command).replace(u"%1"_s, place)});
        QVERIFY(operation.finish());
        QVERIFY(tracer.waitForFinished());
        const auto isThere = [&](const Path &file) { return fs::exists(fs::symlink_status(file)); };
        const QByteArray where = QByteArray(call) + ' ' + QByteArray::number(when);
        // What the others made stays, unless it arrived.
        const FileCensus after = FileCensus::of({folder});
        QVERIFY2(after.leftovers().isEmpty(), where.constData());
        if (command.contains(u".away"_s) && wasThere && isThere(folder / "source.away")) {
            QCOMPARE(FileCensus::contentOf(folder / "source.away"), content);
        } else if (command.startsWith("mv"_L1) || command.startsWith("echo"_L1)) {
            QVERIFY2(isThere(folder / "source")
                         || FileCensus::contentOf(folder / "target/source") == content,
                     where.constData());
        }
        if (command == "printf more >> %1"_L1 && !isThere(folder / "source") && wasThere)
            QVERIFY2(readAll(folder / "target/source").endsWith("more"), where.constData());
        fs::remove_all(folder);
    }
}

QTEST_GUILESS_MAIN(tst_FileFaults)
#include "tst_filefaults.moc"
