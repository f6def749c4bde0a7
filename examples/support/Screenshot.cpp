// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "Screenshot.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace Screenshot {

namespace {

/// In ms. Longer than a slow system needs to put a window on the screen.
constexpr int Exposure_Maximum = 5000;
constexpr int Exposure_Step = 10;
/// Layouts, fonts and what else waits for its turn.
constexpr int Settling = 200;

void wait(int duration)
{
    QEventLoop loop;
    QTimer::singleShot(duration, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

bool take(QWidget *window, const QString &path)
{
    // A cursor that blinks would be on one picture and not on the next.
    QApplication::setCursorFlashTime(0);
    window->show();
    QElapsedTimer timer;
    timer.start();
    while (!window->windowHandle()->isExposed() && !timer.hasExpired(Exposure_Maximum))
        wait(Exposure_Step);
    wait(Settling);
    return window->grab().save(path, "PNG");
}

} // namespace Screenshot
