// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <vector>

/// Notices when the window that it watches has been painted.
class PaintWatcher : public QObject
{
public:
    explicit PaintWatcher(QWidget *window) { window->installEventFilter(this); }

    void waitForPaint()
    {
        while (!m_painted)
            QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        m_painted = false;
    }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        m_painted = m_painted || event->type() == QEvent::UpdateRequest;
        return false;
    }

private:
    bool m_painted = false;
};

/// For cases that measure by themselves with state.SetIterationTime().
inline void timed(benchmark::internal::Benchmark *benchmark)
{
    benchmark->UseManualTime()->Unit(benchmark::kMillisecond);
}

inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

inline double seconds(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    constexpr double NanosecondsPerSecond = 1e9;
    return double(timer.nsecsElapsed()) / NanosecondsPerSecond;
}

/// Sets the counters of a case from the seconds that it took and those of its baseline. "ratio" is
/// that of the two medians.
inline void compare(benchmark::State &state, const std::vector<double> &ours,
                    const std::vector<double> &baseline)
{
    constexpr double MillisecondsPerSecond = 1000;
    state.counters["median_ms"] = median(ours) * MillisecondsPerSecond;
    state.counters["baseline_ms"] = median(baseline) * MillisecondsPerSecond;
    state.counters["ratio"] = median(ours) / median(baseline);
}

/// Measures \a ours and \a baseline in turn, after \a prepare each time. Both return the seconds that
/// they took.
inline void timesSideBySide(benchmark::State &state, const std::function<void()> &prepare,
                            const std::function<double()> &ours,
                            const std::function<double()> &baseline)
{
    std::vector<double> own;
    std::vector<double> other;
    for (auto _ : state) {
        prepare();
        other.push_back(baseline());
        prepare();
        own.push_back(ours());
        state.SetIterationTime(own.back());
    }
    compare(state, own, other);
}

/// The same for what is measured from its begin to its end.
inline void sideBySide(benchmark::State &state, const std::function<void()> &prepare,
                       const std::function<void()> &ours, const std::function<void()> &baseline)
{
    timesSideBySide(
        state, prepare, [&ours] { return seconds(ours); },
        [&baseline] { return seconds(baseline); });
}
