// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "BenchmarkSupport.h"
#include "FrameWindow.h"
#include "PlainWindows.h"

#include <QString>
#include <QWidget>

#include <memory>

#include <malloc.h>

// How the windows of a whole program come up, in one process with others or in one of their own.

inline void showUntilPainted(QWidget *window)
{
    PaintWatcher watcher(window);
    window->show();
    watcher.waitForPaint();
}

/// The seconds until the window of what \a create makes is painted, without those of its end.
template <typename Create>
double secondsUntilPainted(Create create)
{
    decltype(create()) scene;
    return seconds([&scene, &create] {
        scene = create();
        showUntilPainted(scene->window());
    });
}

/// The same for the windows that the other benchmarks take for their baselines, one after the other.
inline double secondsUntilPlainPartsArePainted(const QString &path)
{
    const Actions actions(FrameWindow::GalleryActions);
    return secondsUntilPainted([] { return createPlainPagesWindow(FrameWindow::Pages); })
           + secondsUntilPainted([] { return createPlainDockWindow(FrameWindow::Tabs); })
           + secondsUntilPainted([&actions] { return createPlainButtonWindow(actions); })
           + secondsUntilPainted([&path] { return createWindow(createPlainPathRow(path)); });
}

/// Bytes on the heap.
inline double heap()
{
    const struct mallinfo2 info = ::mallinfo2();
    return double(info.uordblks + info.hblkhd);
}
