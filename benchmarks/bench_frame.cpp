// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT
// clazy:excludeall=non-pod-global-static (the macros that register the cases)

// What a whole window costs: ribbon, gallery, address bar, views and sections, set up by an agent.
// Every case measures its baseline in turn with itself; the counter "ratio" is that of the two
// medians. The baseline "parts" is the sum of what the other benchmarks measure their parts beside,
// each in its own window; "one plain window" holds all of them at once.

#include "BenchmarkSupport.h"
#include "FirstPaint.h"
#include "FrameWindow.h"

#include <QApplication>
#include <QDir>
#include <QPixmapCache>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr double NanosecondsPerSecond = 1e9;
constexpr double Mebibyte = 1024.0 * 1024.0;
constexpr double Kibibyte = 1024.0;

/// Three folders deep, with twenty sub-folders in each, made once.
class Folders
{
public:
    static QString path()
    {
        static const Folders folders;
        return folders.m_path;
    }

private:
    Folders()
    {
        for (int level = 0; level < Levels; ++level) {
            for (int i = 0; i < SubFolders; ++i)
                QDir(m_path).mkdir(u"folder %1"_s.arg(i));
            m_path += u"/folder 0"_s;
        }
    }

    static constexpr int Levels = 3;
    static constexpr int SubFolders = 20;

    const QTemporaryDir m_folder;
    QString m_path = m_folder.path();
};

std::unique_ptr<FrameWindow> createFrame()
{
    return std::make_unique<FrameWindow>(Folders::path(), FrameWidth::OfScreen);
}

std::unique_ptr<FrameWindow> createWideFrame()
{
    return std::make_unique<FrameWindow>(Folders::path(), FrameWidth::OfPages);
}

std::unique_ptr<PlainFrameWindow> createPlain()
{
    return std::make_unique<PlainFrameWindow>(Folders::path(), FrameWidth::OfScreen);
}

double plainParts()
{
    return secondsUntilPlainPartsArePainted(Folders::path());
}

/// The style sheet that an agent has set for the whole application would cost plain windows too.
void dropSheet()
{
    qApp->setStyleSheet({});
}

void nothing() {}

void firstPaint(benchmark::State &state)
{
    timesSideBySide(
        state, dropSheet, [] { return secondsUntilPainted(createFrame); }, plainParts);
}
BENCHMARK(firstPaint)->Apply(timed)->Iterations(25);

void firstPaintAsWideAsPages(benchmark::State &state)
{
    timesSideBySide(
        state, dropSheet, [] { return secondsUntilPainted(createWideFrame); }, plainParts);
}
BENCHMARK(firstPaintAsWideAsPages)->Apply(timed)->Iterations(25);

void firstPaintBesideOnePlainWindow(benchmark::State &state)
{
    timesSideBySide(
        state, dropSheet, [] { return secondsUntilPainted(createFrame); },
        [] { return secondsUntilPainted(createPlain); });
}
BENCHMARK(firstPaintBesideOnePlainWindow)->Apply(timed)->Iterations(25);

/// What a program of its own says about itself.
QList<double> ask(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    const bool hasFinished = process.waitForFinished();
    const QByteArrayList words = process.readAllStandardOutput().simplified().split(' ');
    if (!hasFinished || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        qFatal("%s has failed", qUtf8Printable(program));
    QList<double> numbers;
    for (const QByteArray &word : words)
        numbers.append(word.toDouble());
    return numbers;
}

QList<double> askForWindow(const QString &kind)
{
    return ask(QStringLiteral(FRAME_PROBE), {kind, Folders::path()});
}

double coldSeconds(const QString &kind)
{
    return askForWindow(kind).at(0) / NanosecondsPerSecond;
}

/// From the begin of main(), in processes of their own.
void coldFirstPaint(benchmark::State &state)
{
    timesSideBySide(
        state, nothing, [] { return coldSeconds(u"frame"_s); },
        [] { return coldSeconds(u"parts"_s); });
}
BENCHMARK(coldFirstPaint)->Apply(timed)->Iterations(25);

void coldFirstPaintBesideOnePlainWindow(benchmark::State &state)
{
    timesSideBySide(
        state, nothing, [] { return coldSeconds(u"frame"_s); },
        [] { return coldSeconds(u"plain"_s); });
}
BENCHMARK(coldFirstPaintBesideOnePlainWindow)->Apply(timed)->Iterations(25);

/// The baseline is the first paint of a program: the ratio is the share of it that goes into loading
/// the library and registering its resources.
void load(benchmark::State &state)
{
    timesSideBySide(
        state, nothing,
        [] {
            return ask(QStringLiteral(LOAD_PROBE), {QStringLiteral(LIBRARY)}).at(0)
                   / NanosecondsPerSecond;
        },
        [] { return coldSeconds(u"frame"_s); });
}
BENCHMARK(load)->Apply(timed)->Iterations(25);

/// Another section, with another page in the ribbon, until it is painted.
template <typename Window>
double secondsOfSwitch(Window &scene, int section)
{
    PaintWatcher watcher(scene.window());
    return seconds([&scene, &watcher, section] {
        scene.switchTo(section);
        watcher.waitForPaint();
    });
}

constexpr int Switches = 300;

/// Through sections that have all been seen before.
template <typename Create>
std::vector<double> secondsOfSwitches(Create create)
{
    dropSheet();
    const auto scene = create();
    showUntilPainted(scene->window());
    for (int section = 0; section < FrameWindow::Sections; ++section)
        secondsOfSwitch(*scene, section);
    std::vector<double> times;
    times.reserve(Switches);
    for (int turn = 0; turn < Switches; ++turn)
        times.push_back(secondsOfSwitch(*scene, turn % FrameWindow::Sections));
    return times;
}

/// The two windows come one after the other: the style sheet of one would cost the other too.
void switchSection(benchmark::State &state)
{
    for (auto _ : state) {
        const std::vector<double> plain = secondsOfSwitches(createPlain);
        const std::vector<double> frame = secondsOfSwitches(createFrame);
        state.SetIterationTime(median(frame));
        compare(state, frame, plain);
    }
}
BENCHMARK(switchSection)->Apply(timed)->Iterations(1);

/// To a section whose page and tabs nobody has seen before.
template <typename Create>
double secondsOfFirstSwitch(Create create)
{
    const auto scene = create();
    showUntilPainted(scene->window());
    return secondsOfSwitch(*scene, 1);
}

void switchSectionFirst(benchmark::State &state)
{
    timesSideBySide(
        state, dropSheet, [] { return secondsOfFirstSwitch(createFrame); },
        [] { return secondsOfFirstSwitch(createPlain); });
}
BENCHMARK(switchSectionFirst)->Apply(timed)->Iterations(15);

/// A program's memory at its first window: its peak, and what lies on its heap.
void memory(benchmark::State &state)
{
    for (auto _ : state) {
        const QList<double> frame = askForWindow(u"frame"_s);
        const QList<double> plain = askForWindow(u"plain"_s);
        state.counters["heap_MiB"] = frame.at(1) / Mebibyte;
        state.counters["baseline_heap_MiB"] = plain.at(1) / Mebibyte;
        state.counters["peak_MiB"] = frame.at(2) / Kibibyte;
        state.counters["baseline_peak_MiB"] = plain.at(2) / Kibibyte;
        state.SetIterationTime(0);
    }
}
BENCHMARK(memory)->Apply(timed)->Iterations(1);

/// A hundred windows, opened and closed one after the other, after a first few that leave behind what
/// everyone shares.
void openAndCloseManyWindows(benchmark::State &state)
{
    constexpr int Windows = 100;
    constexpr int WarmUp = 5;
    const auto open = [](int times) {
        for (int i = 0; i < times; ++i)
            showUntilPainted(createFrame()->window());
    };
    // Pictures that wait there for their next use count as growth until there is no more room.
    const int limit = QPixmapCache::cacheLimit();
    QPixmapCache::clear();
    QPixmapCache::setCacheLimit(0);
    open(WarmUp);
    const double before = heap();
    for (auto _ : state)
        state.SetIterationTime(seconds([&open] { open(Windows); }));
    state.counters["kept_KiB"] = (heap() - before) / Kibibyte;
    QPixmapCache::setCacheLimit(limit);
}
BENCHMARK(openAndCloseManyWindows)->Apply(timed)->Iterations(1);

} // namespace
