// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "address/FaultBench.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcessEnvironment>
#include <QStandardPaths>

#include <fstream>
#include <iterator>
#include <string>

#ifdef Q_OS_LINUX
#    include <sched.h>
#    include <sys/mount.h>
#    include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace FaultBench {

namespace {

constexpr int Patience = 30'000; // ms

} // namespace

QString enterMountSpace()
{
#ifdef Q_OS_LINUX
    static bool isEntered = false;
    if (isEntered)
        return {};
    if (::geteuid() != 0)
        return u"only root can mount the disks of this test"_s;
    if (::unshare(CLONE_NEWNS) != 0)
        return u"this system allows no mounts of one's own"_s;
    // In a changed root, that is no mount point; whoever changed it has seen to this.
    static_cast<void>(::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr));
    isEntered = true;
    return {};
#else
    return u"the disks of this test need Linux"_s;
#endif
}

bool hasProgram(const QString &program)
{
    return !QStandardPaths::findExecutable(program).isEmpty()
           || !QStandardPaths::findExecutable(program, {u"/usr/sbin"_s, u"/sbin"_s}).isEmpty();
}

bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    return process.waitForFinished(Patience) && process.exitStatus() == QProcess::NormalExit
           && process.exitCode() == 0;
}

Mount::Mount(const Path &folder, const QStringList &arguments) : m_folder(folder)
{
    std::filesystem::create_directories(folder);
    m_isMounted = run(u"mount"_s, arguments + QStringList(text(folder)));
}

Mount::~Mount()
{
    if (m_isMounted)
        run(u"umount"_s, {u"-l"_s, text(m_folder)});
}

std::unique_ptr<Mount> makeDisk(const Path &folder, const QString &options)
{
    QStringList arguments = {u"-t"_s, u"tmpfs"_s};
    if (!options.isEmpty())
        arguments += {u"-o"_s, options};
    return std::make_unique<Mount>(folder, arguments + QStringList(u"tmpfs"_s));
}

QString text(const Path &path)
{
    return QFile::decodeName(path.c_str());
}

QString text(const Path &folder, const char *name)
{
    return text(folder / name);
}

void makeFile(const Path &path, const QByteArray &seed, int size)
{
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    QByteArray bytes = seed;
    while (bytes.size() < size)
        bytes += seed + QByteArray::number(bytes.size());
    file << bytes.left(size).toStdString();
}

QByteArray readAll(const Path &path)
{
    std::ifstream file(path, std::ios::binary);
    return QByteArray::fromStdString(std::string((std::istreambuf_iterator<char>(file)), {}));
}

Operation::Operation(const QStringList &words, const Path &dataHome, const QStringList &prefix)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_DATA_HOME"_s, text(dataHome));
    environment.insert(u"XDG_RUNTIME_DIR"_s, u"/tmp"_s);
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    // Leaks cannot be looked for in a process that is traced.
    environment.insert(u"ASAN_OPTIONS"_s, u"detect_leaks=0"_s);
    m_process.setProcessEnvironment(environment);
    const QString program = QCoreApplication::applicationDirPath() + u"/fileoperator"_s;
    // A hang is a fault too.
    QStringList arguments = {u"-s"_s, u"KILL"_s, u"25"_s};
    arguments += prefix;
    arguments += program;
    m_process.start(u"timeout"_s, arguments + words);
}

bool Operation::finish()
{
    const bool isFinished = m_process.waitForFinished(Patience);
    m_output += m_process.readAllStandardOutput();
    return isFinished && m_process.exitStatus() == QProcess::NormalExit
           && m_process.exitCode() == 0;
}

} // namespace FaultBench
