// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT
// clazy:excludeall=non-pod-global-static (the macros that register the cases)

// What the address bar and its file operations cost. Every case measures its baseline in turn with
// itself, because a disk is never as quick twice; the counter "ratio" is that of the two medians.
// The files lie below the folder in TMPDIR, which should be on a real disk.

#include "BenchmarkSupport.h"
#include "PlainWindows.h"

#include <VornFrame/AddressBar.h>

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTreeView>
#include <QUrl>

#include <benchmark/benchmark.h>

#include <memory>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr int ManyFolders = 10'000;
constexpr int ManyFiles = 10'000;
constexpr int FilesPerFolder = 100;
constexpr qsizetype SmallFile = 2000; // bytes
constexpr qint64 Mebibyte = qint64(1024) * 1024;
constexpr int BigFileMebibytes = 1024;
constexpr int Depth = 12;
constexpr int Navigations = 500;

/// The files that the cases work on, made once. Their trash lies among them.
class Files
{
public:
    Files() { qputenv("XDG_DATA_HOME", QFile::encodeName(path(u"home"_s))); }

    static Files &instance()
    {
        static Files files;
        return files;
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }

    QString manyFolders() const
    {
        const QDir folder(path(u"folders"_s));
        if (!folder.exists()) {
            for (int i = 0; i < ManyFolders; ++i)
                folder.mkpath(u"folder %1"_s.arg(i));
        }
        return folder.path();
    }

    QString manyFiles() const
    {
        const QDir folder(path(u"small"_s));
        if (!folder.exists()) {
            for (int i = 0; i < ManyFiles; ++i) {
                const QString part = u"d%1"_s.arg(i / FilesPerFolder);
                folder.mkpath(part);
                write(folder.filePath(part + u"/f%1"_s.arg(i)), noise(SmallFile));
            }
        }
        return folder.path();
    }

    QString bigFile() const
    {
        QFile file(path(u"big"_s));
        if (!file.exists() && file.open(QIODevice::WriteOnly)) {
            for (int i = 0; i < BigFileMebibytes; ++i)
                file.write(noise(Mebibyte));
        }
        return file.fileName();
    }

    QString deepFolder() const
    {
        QString deep = path(u"deep"_s) + u"/level"_s.repeated(Depth);
        QDir().mkpath(deep);
        return deep;
    }

    /// A new folder to work in; nothing that was written before is still on its way. What lies in
    /// those before it stays there: a file system may take seconds to look for what to use again of
    /// thousands of files that were just removed.
    QString newFolder()
    {
        QString folder = path(u"target %1"_s.arg(++m_folders));
        QDir().mkpath(folder);
        ::sync();
        return folder;
    }

private:
    static QByteArray noise(qsizetype size)
    {
        QByteArray bytes(size, Qt::Uninitialized);
        QRandomGenerator::global()->generate(bytes.begin(), bytes.end());
        return bytes;
    }

    static void write(const QString &path, const QByteArray &data)
    {
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(data);
    }

    const QTemporaryDir m_folder;
    int m_folders = 0;
};

/// Pastes as a person does: by Ctrl+V in the tree.
void paste(AddressBar &bar, const QString &source, const QByteArray &marker, const QString &target)
{
    auto *data = new QMimeData;
    data->setUrls({QUrl::fromLocalFile(source)});
    data->setData(u"application/x-cut-or-copy"_s, marker);
    QGuiApplication::clipboard()->setMimeData(data);
    bar.setPath(target);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier);
    QCoreApplication::sendEvent(bar.treeView(), &press);
}

void copyByProgram(const QString &source, const QString &target)
{
    QProcess::execute(u"cp"_s, {u"-r"_s, source, target});
}

void enterFolderOfManyFolders(benchmark::State &state)
{
    const QString folder = Files::instance().manyFolders();
    AddressBar bar;
    std::unique_ptr<QMenu> menu;
    const auto leave = [&] {
        menu = std::make_unique<QMenu>();
        bar.setPath(u"/"_s);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    sideBySide(
        state, leave, [&] { bar.setPath(folder); }, [&] { addFolders(menu.get(), folder); });
}
BENCHMARK(enterFolderOfManyFolders)->Apply(timed)->Iterations(9);

double residentMebibytes()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArrayList pages = file.readAll().split(' ');
    return double(pages.value(1).toLongLong() * ::sysconf(_SC_PAGESIZE)) / double(Mebibyte);
}

void navigate(benchmark::State &state)
{
    const QString deep = Files::instance().deepFolder();
    AddressBar bar;
    bar.show();
    const auto walk = [&] {
        for (int i = 0; i < Navigations; ++i) {
            const int levels = 1 + i % Depth;
            bar.setPath(deep.section(u'/', 0, -levels));
            QCoreApplication::sendPostedEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        bar.resetPath(deep);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    walk();
    const auto objects = bar.findChildren<QObject *>().size();
    const double memory = residentMebibytes();
    for (auto _ : state)
        state.SetIterationTime(seconds(walk));
    state.counters["objects_more"] = double(bar.findChildren<QObject *>().size() - objects);
    state.counters["MiB_more"] = residentMebibytes() - memory;
}
BENCHMARK(navigate)->Apply(timed)->Iterations(9);

void pasteManySmallFiles(benchmark::State &state)
{
    Files &files = Files::instance();
    const QString source = files.manyFiles();
    AddressBar bar;
    QString target;
    sideBySide(
        state, [&] { target = files.newFolder(); }, [&] { paste(bar, source, "copy"_ba, target); },
        [&] { copyByProgram(source, target); });
}
BENCHMARK(pasteManySmallFiles)->Apply(timed)->Iterations(9);

void pasteOneBigFile(benchmark::State &state)
{
    Files &files = Files::instance();
    const QString source = files.bigFile();
    AddressBar bar;
    const QString target = files.newFolder();
    const auto clear = [&target] {
        QFile::remove(target + u"/big"_s);
        ::sync();
    };
    sideBySide(
        state, clear, [&] { paste(bar, source, "copy"_ba, target); },
        [&] { copyByProgram(source, target); });
}
BENCHMARK(pasteOneBigFile)->Apply(timed)->Iterations(5);

/// Beside a copy that is put on the disk, which is what a cut waits for before it removes anything.
void cutManySmallFiles(benchmark::State &state)
{
    Files &files = Files::instance();
    AddressBar bar;
    QString source;
    QString target;
    sideBySide(
        state,
        [&] {
            const QString folder = files.newFolder();
            copyByProgram(files.manyFiles(), folder);
            source = folder + u"/small"_s;
            target = files.newFolder();
        },
        [&] { paste(bar, source, "cut"_ba, target); },
        [&] {
            copyByProgram(source, target);
            ::sync();
        });
}
BENCHMARK(cutManySmallFiles)->Apply(timed)->Iterations(5);

} // namespace
