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
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

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
    return std::make_unique<FrameWindow>(Folders::path());
}

std::unique_ptr<PlainFrameWindow> createPlain()
{
    return std::make_unique<PlainFrameWindow>(Folders::path());
}

void nothing() {}

void firstPaint(benchmark::State &state)
{
    timesSideBySide(
        state, nothing, [] { return secondsUntilPainted(createFrame); },
        [] { return secondsUntilPlainPartsArePainted(Folders::path()); });
}
BENCHMARK(firstPaint)->Apply(timed)->Iterations(25);

void firstPaintBesideOnePlainWindow(benchmark::State &state)
{
    timesSideBySide(
        state, nothing, [] { return secondsUntilPainted(createFrame); },
        [] { return secondsUntilPainted(createPlain); });
}
BENCHMARK(firstPaintBesideOnePlainWindow)->Apply(timed)->Iterations(25);

/// What a program of its own says about itself.
QList<double> ask(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    const QByteArrayList words = process.readAllStandardOutput().simplified().split(' ');
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
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

/// Another section, with other pages in the ribbon, and a repaint of the whole window.
template <typename Window>
double secondsOfSwitch(Window &scene, int turn)
{
    PaintWatcher watcher(scene.window());
    return seconds([&scene, &watcher, turn] {
        scene.switchTo(turn % FrameWindow::Sections);
        scene.window()->update();
        watcher.waitForPaint();
    });
}

void switchSection(benchmark::State &state)
{
    const std::unique_ptr<FrameWindow> frame = createFrame();
    const std::unique_ptr<PlainFrameWindow> plain = createPlain();
    showUntilPainted(frame->window());
    showUntilPainted(plain->window());
    for (int section = 0; section < FrameWindow::Sections; ++section) {
        secondsOfSwitch(*frame, section);
        secondsOfSwitch(*plain, section);
    }
    int turn = 0;
    int plainTurn = 0;
    timesSideBySide(
        state, nothing, [&] { return secondsOfSwitch(*frame, turn++); },
        [&] { return secondsOfSwitch(*plain, plainTurn++); });
}
BENCHMARK(switchSection)->Apply(timed)->Iterations(300);

/// To a section whose pages and tabs nobody has seen before.
void switchSectionFirst(benchmark::State &state)
{
    std::unique_ptr<FrameWindow> frame;
    std::unique_ptr<PlainFrameWindow> plain;
    const auto prepare = [&] {
        plain.reset();
        frame = createFrame();
        plain = createPlain();
        showUntilPainted(frame->window());
        showUntilPainted(plain->window());
    };
    timesSideBySide(
        state, prepare, [&] { return secondsOfSwitch(*frame, 1); },
        [&] { return secondsOfSwitch(*plain, 1); });
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
    open(WarmUp);
    const double before = heap();
    for (auto _ : state)
        state.SetIterationTime(seconds([&open] { open(Windows); }));
    state.counters["kept_KiB"] = (heap() - before) / Kibibyte;
}
BENCHMARK(openAndCloseManyWindows)->Apply(timed)->Iterations(1);

} // namespace
