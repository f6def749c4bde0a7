// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <benchmark/benchmark.h>

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
