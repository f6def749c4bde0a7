// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT
// clazy:excludeall=non-pod-global-static (the macros that register the cases)

// What the ribbon costs beside the plainest Qt widgets that hold as many commands. Each case stands
// beside its baseline in one run, because only the ratio of the two means anything on another
// machine. Run it with --benchmark_format=json for figures that a program can read.

#include "BenchmarkSupport.h"
#include "PlainWindows.h"

#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>
#include <VornFrame/RibbonSubgroup.h>

#include <QAction>
#include <QElapsedTimer>
#include <QTabWidget>

#include <benchmark/benchmark.h>

#include <memory>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

void addRibbonPage(RibbonBar *bar, int number, const QIcon &icon)
{
    RibbonPage *page = bar->addPage(pageName(number));
    for (int g = 0; g < GroupsPerPage; ++g) {
        RibbonGroup *group = page->addGroup(u"Group"_s);
        for (int a = 0; a < ActionsPerGroup; ++a)
            group->addAction(new QAction(icon, commandName(number, g, a), bar));
    }
}

/// Four large buttons and two columns of three small ones.
void addMixedRibbonPage(RibbonBar *bar, int number, const QIcon &icon)
{
    RibbonPage *page = bar->addPage(pageName(number));
    for (int g = 0; g < GroupsPerPage; ++g) {
        RibbonGroup *group = page->addGroup(u"Group"_s);
        RibbonSubgroup *column = nullptr;
        for (int a = 0; a < ActionsPerGroup; ++a) {
            auto *action = new QAction(icon, commandName(number, g, a), bar);
            if (a == 4 || a == 7)
                column = group->addSubgroup();
            if (column)
                column->addAction(action);
            else
                group->addAction(action);
        }
    }
}

using AddRibbonPage = void (*)(RibbonBar *, int, const QIcon &);

void fill(RibbonBar *bar, int pages, AddRibbonPage addPage)
{
    const QIcon icon = fileIcon();
    for (int p = 0; p < pages; ++p)
        addPage(bar, p, icon);
}

/// A bar that gets its pages where it stands.
template <AddRibbonPage addPage>
std::unique_ptr<QWidget> createRibbonWindow(int pages)
{
    auto *bar = new RibbonBar;
    std::unique_ptr<QWidget> window = createWindow(bar);
    fill(bar, pages, addPage);
    return window;
}

/// A bar that has all its pages before it is placed, as the bar of an agent may.
std::unique_ptr<QWidget> createLatePlacedRibbonWindow(int pages)
{
    auto *bar = new RibbonBar;
    fill(bar, pages, addRibbonPage);
    return createWindow(bar);
}

using CreateWindow = std::unique_ptr<QWidget> (*)(int);

void constructToFirstPaint(benchmark::State &state, CreateWindow create)
{
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        const std::unique_ptr<QWidget> window = create(int(state.range(0)));
        PaintWatcher watcher(window.get());
        window->show();
        watcher.waitForPaint();
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
    }
}

/// The mean time of one switch through all pages of a window that were never seen.
template <typename Tabs>
void firstSwitch(benchmark::State &state, CreateWindow create)
{
    constexpr int Pages = 10;
    for (auto _ : state) {
        const std::unique_ptr<QWidget> window = create(Pages);
        PaintWatcher watcher(window.get());
        window->show();
        watcher.waitForPaint();
        auto *tabs = window->findChild<Tabs *>();
        QElapsedTimer timer;
        timer.start();
        for (int p = 1; p < Pages; ++p) {
            tabs->setCurrentIndex(p);
            watcher.waitForPaint();
        }
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9 / (Pages - 1));
    }
}

void ribbonHideTemporaryPages(benchmark::State &state)
{
    auto *bar = new RibbonBar;
    bar->addPage(u"Home"_s);
    for (int p = 0; p < 100; ++p)
        bar->addPage(u"Page %1"_s.arg(p), true);
    const std::unique_ptr<QWidget> window = createWindow(bar);
    PaintWatcher watcher(window.get());
    window->show();
    watcher.waitForPaint();
    for (auto _ : state) {
        for (int i = 1; i < bar->count(); ++i)
            bar->showPage(i);
        watcher.waitForPaint();
        QElapsedTimer timer;
        timer.start();
        bar->hideTemporaryPages();
        watcher.waitForPaint();
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
    }
}

void plainHideTabs(benchmark::State &state)
{
    auto *tabs = new QTabWidget;
    for (int p = 0; p < 101; ++p)
        tabs->addTab(new QWidget, u"Page %1"_s.arg(p));
    const std::unique_ptr<QWidget> window = createWindow(tabs);
    PaintWatcher watcher(window.get());
    window->show();
    watcher.waitForPaint();
    for (auto _ : state) {
        for (int i = 1; i < tabs->count(); ++i)
            tabs->setTabVisible(i, true);
        watcher.waitForPaint();
        QElapsedTimer timer;
        timer.start();
        for (int i = 1; i < tabs->count(); ++i)
            tabs->setTabVisible(i, false);
        watcher.waitForPaint();
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
    }
}

void plainWindow(benchmark::State &state)
{
    constructToFirstPaint(state, createPlainPagesWindow);
}

void ribbonWindow(benchmark::State &state)
{
    constructToFirstPaint(state, createRibbonWindow<addRibbonPage>);
}

void ribbonWindowPlacedLate(benchmark::State &state)
{
    constructToFirstPaint(state, createLatePlacedRibbonWindow);
}

void ribbonWindowMixedForms(benchmark::State &state)
{
    constructToFirstPaint(state, createRibbonWindow<addMixedRibbonPage>);
}

void plainFirstSwitch(benchmark::State &state)
{
    firstSwitch<QTabWidget>(state, createPlainPagesWindow);
}

void ribbonFirstSwitch(benchmark::State &state)
{
    firstSwitch<RibbonBar>(state, createRibbonWindow<addRibbonPage>);
}

void timedFor10And30Pages(benchmark::internal::Benchmark *benchmark)
{
    timed(benchmark->Arg(10)->Arg(30));
}

BENCHMARK(plainWindow)->Apply(timedFor10And30Pages);
BENCHMARK(ribbonWindow)->Apply(timedFor10And30Pages);
BENCHMARK(ribbonWindowPlacedLate)->Apply(timedFor10And30Pages);
BENCHMARK(ribbonWindowMixedForms)->Apply(timedFor10And30Pages);
BENCHMARK(plainFirstSwitch)->Apply(timed);
BENCHMARK(ribbonFirstSwitch)->Apply(timed);
BENCHMARK(plainHideTabs)->Apply(timed);
BENCHMARK(ribbonHideTemporaryPages)->Apply(timed);

} // namespace
