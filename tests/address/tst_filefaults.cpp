// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

// File operations on disks that are full, and with system calls that fail, one after the other. No
// byte may be lost, whichever it is.

#include "address/FaultScene.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <deque>

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
    const QString process_id = QString::fromLatin1(process.readLine()).section(u' ', 1).trimmed();
    attempt.tracer = std::make_unique<QProcess>();
    QStringList arguments = {u"-f"_s, u"-qq"_s, u"-o"_s, text(log)};
    for (const QString &expression : expressions)
        arguments += {u"-e"_s, expression};
    attempt.tracer->start(u"strace"_s, arguments + QStringList{u"-p"_s, process_id});
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
        for (const int count : counts)
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
    for (const auto &[call, count] : calls) {
        for (const QString &error : errorsOf(call)) {
            for (int when = 1; when <= count; ++when) {
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

QTEST_GUILESS_MAIN(tst_FileFaults)
#include "tst_filefaults.moc"
