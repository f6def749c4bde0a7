// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "address/FileCensus.h"

#include <QByteArray>
#include <QProcess>
#include <QStringList>

#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

/// What the tests of file operations under faults share: disks of their own, and a program that
/// does one operation on them.
namespace FaultBench {

using Path = std::filesystem::path;

/// Makes the mounts of this process its own, so that nobody else sees the test's. Why not, where
/// that cannot be; empty where it can.
QString enterMountSpace();

/// Whether \a program can be started.
bool hasProgram(const QString &program);

/// Runs a command to its end; whether it succeeded.
bool run(const QString &program, const QStringList &arguments);

/// Something mounted at a folder, for as long as this lives.
class Mount
{
public:
    /// \a arguments are those of mount(8) before the folder.
    Mount(const Path &folder, const QStringList &arguments);
    ~Mount();

    bool isMounted() const { return m_isMounted; }
    Path path() const { return m_folder; }

private:
    Q_DISABLE_COPY_MOVE(Mount)

    const Path m_folder;
    bool m_isMounted = false;
};

/// A small disk in memory; \a options are those of tmpfs.
std::unique_ptr<Mount> makeDisk(const Path &folder, const QString &options = QString());

QString text(const Path &path);
QString text(const Path &folder, const char *name);

/// Makes a file, and the folders above it; the same \a seed gives the same content.
void makeFile(const Path &path, const QByteArray &seed, int size = 3000);

QByteArray readAll(const Path &path);

/// One operation as one process: fileoperator with \a words, its trash in \a dataHome.
class Operation
{
public:
    Operation(const QStringList &words, const Path &dataHome, const QStringList &prefix = {});

    /// For a test that does something to it meanwhile.
    QProcess &process() { return m_process; }

    /// Whether it ended by itself within the time that it has, and found no fault with its words.
    bool finish();
    QByteArray output() const { return m_output; }

private:
    QProcess m_process;
    QByteArray m_output;
};

} // namespace FaultBench
