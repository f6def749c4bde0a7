// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT
// clazy:excludeall=non-pod-global-static (the macros that register the cases)

// What a dock container costs beside Qt's own dock widgets. Each case stands beside its baseline in
// one run, because only the ratio of the two means anything on another machine. Run it with
// --benchmark_format=json for figures that a program can read.

#include "BenchmarkSupport.h"
#include "PlainWindows.h"

#include <VornFrame/DockContainer.h>
#include <VornFrame/DockContentWidget.h>
#include <VornFrame/DockPanelWidget.h>

#include <QDockWidget>
#include <QElapsedTimer>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QTabWidget>

#include <benchmark/benchmark.h>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;
using namespace VornFrame;

namespace {

constexpr int FewTabs = 40;
constexpr int ManyTabs = 200;

std::unique_ptr<QMainWindow> createDockWindow(int tabs)
{
    constexpr int Sections = 4;
    auto window = std::make_unique<QMainWindow>();
    auto *container = new DockContainer(window.get());
    window->setCentralWidget(container);
    container->setupMainWindow(window.get());
    const QIcon icon = fileIcon();
    for (int side = 0; side < Sides; ++side) {
        DockPanelWidget *panel = container->panelWidget(DockContainer::DockArea(side));
        for (int view = 0; view < ViewsPerSide; ++view)
            panel->addView(new QLabel(viewName(side, view)), icon, viewName(side, view));
    }
    DockContentWidget *content = container->contentWidget();
    for (int section = 0; section < Sections; ++section)
        content->addSection(u"Section %1"_s.arg(section));
    for (int tab = 0; tab < tabs; ++tab)
        content->addTab(tab * Sections / tabs, new QLabel(tabName(tab)), tabName(tab));
    window->resize(WindowSize);
    return window;
}

/// All tabs in one section.
std::unique_ptr<QMainWindow> createDockWindowOfOneSection(int tabs)
{
    auto window = std::make_unique<QMainWindow>();
    auto *container = new DockContainer(window.get());
    window->setCentralWidget(container);
    container->setupMainWindow(window.get());
    DockContentWidget *content = container->contentWidget();
    content->addSection(u"Section"_s);
    for (int tab = 0; tab < tabs; ++tab)
        content->addTab(0, new QLabel(tabName(tab)), tabName(tab));
    window->resize(WindowSize);
    return window;
}

using CreateWindow = std::unique_ptr<QMainWindow> (*)(int);

template <CreateWindow create>
void constructToFirstPaint(benchmark::State &state)
{
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        const std::unique_ptr<QMainWindow> window = create(int(state.range(0)));
        PaintWatcher watcher(window.get());
        window->show();
        watcher.waitForPaint();
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
    }
}

/// Runs \a step, followed by a repaint of the whole window, once for each iteration.
template <typename Step>
void repeat(benchmark::State &state, QMainWindow *window, Step step)
{
    PaintWatcher watcher(window);
    window->show();
    watcher.waitForPaint();
    int turn = 0;
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        step(turn++);
        window->update();
        watcher.waitForPaint();
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
    }
}

void plainRestore(benchmark::State &state)
{
    const std::unique_ptr<QMainWindow> window = createPlainDockWindow(int(state.range(0)));
    repeat(state, window.get(), [&window](int) { window->restoreState(window->saveState()); });
}

void dockRestore(benchmark::State &state)
{
    const std::unique_ptr<QMainWindow> window = createDockWindow(int(state.range(0)));
    auto *container = window->findChild<DockContainer *>();
    repeat(state, window.get(),
           [container](int) { container->restoreState(container->saveState()); });
}

void plainSwitchTab(benchmark::State &state)
{
    const std::unique_ptr<QMainWindow> window = createPlainDockWindow(FewTabs);
    auto *content = qobject_cast<QTabWidget *>(window->centralWidget());
    repeat(state, window.get(), [content](int turn) { content->setCurrentIndex(turn % 8); });
}

void dockSwitchTab(benchmark::State &state)
{
    const std::unique_ptr<QMainWindow> window = createDockWindow(FewTabs);
    DockContentWidget *content = window->findChild<DockContainer *>()->contentWidget();
    repeat(state, window.get(), [content](int turn) { content->setCurrentTab(0, turn % 8); });
}

void dockSwitchSection(benchmark::State &state)
{
    const std::unique_ptr<QMainWindow> window = createDockWindow(FewTabs);
    DockContentWidget *content = window->findChild<DockContainer *>()->contentWidget();
    repeat(state, window.get(), [content](int turn) { content->setCurrentTab(turn % 4, 0); });
}

void plainHideAndShowSide(benchmark::State &state)
{
    const std::unique_ptr<QMainWindow> window = createPlainDockWindow(FewTabs);
    QList<QDockWidget *> left;
    for (int view = 0; view < ViewsPerSide; ++view)
        left.append(window->findChild<QDockWidget *>(viewName(0, view)));
    repeat(state, window.get(), [&left](int turn) {
        for (QDockWidget *dock : std::as_const(left))
            dock->setVisible(turn % 2 != 0);
    });
}

void dockMinimizeAndRestoreSide(benchmark::State &state)
{
    const std::unique_ptr<QMainWindow> window = createDockWindow(FewTabs);
    const DockPanelWidget *left = window->findChild<DockContainer *>()->panelWidget(
        DockContainer::Left);
    auto *button = left->panel()->findChild<QPushButton *>();
    repeat(state, window.get(), [button](int) { button->click(); });
}

void timedForFewAndManyTabs(benchmark::internal::Benchmark *benchmark)
{
    timed(benchmark->Arg(FewTabs)->Arg(ManyTabs));
}

BENCHMARK(constructToFirstPaint<createPlainDockWindow>)->Apply(timedForFewAndManyTabs);
BENCHMARK(constructToFirstPaint<createDockWindow>)->Apply(timedForFewAndManyTabs);
BENCHMARK(constructToFirstPaint<createDockWindowOfOneSection>)->Apply(timedForFewAndManyTabs);
BENCHMARK(plainRestore)->Apply(timedForFewAndManyTabs);
BENCHMARK(dockRestore)->Apply(timedForFewAndManyTabs);
BENCHMARK(plainSwitchTab)->Apply(timed);
BENCHMARK(dockSwitchTab)->Apply(timed);
BENCHMARK(dockSwitchSection)->Apply(timed);
BENCHMARK(plainHideAndShowSide)->Apply(timed);
BENCHMARK(dockMinimizeAndRestoreSide)->Apply(timed);

} // namespace
