// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

// Opens one window in a process of its own, for bench_frame, and says what that cost since the begin
// of main(): with fonts, style sheets and pictures that nobody has used before.
//
// frame_probe frame|plain|parts <folder>

#include "FirstPaint.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLoggingCategory>
#include <QStyleFactory>

#include <cstdio>
#include <cstdlib>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// The line \a name of the process's status, in KiB.
long status(const QByteArray &name)
{
    QFile file(u"/proc/self/status"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArrayList lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(name))
            return line.simplified().split(' ').value(1).toLong();
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QElapsedTimer timer;
    timer.start();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(u"*.warning=false"_s);
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    const QApplication app(argc, argv);
    const QString kind = QCoreApplication::arguments().value(1);
    const QString path = QCoreApplication::arguments().value(2);

    const long residentBefore = status("VmRSS:");
    const double heapBefore = heap();
    std::optional<FrameWindow> frame;
    std::optional<PlainFrameWindow> plain;
    if (kind == u"frame"_s)
        showUntilPainted(frame.emplace(path, FrameWidth::OfScreen).window());
    else if (kind == u"plain"_s)
        showUntilPainted(plain.emplace(path, FrameWidth::OfScreen).window());
    else if (kind == u"parts"_s)
        secondsUntilPlainPartsArePainted(path);
    else
        return EXIT_FAILURE;

    const auto nanoseconds = static_cast<long long>(timer.nsecsElapsed());
    std::printf("%lld %.0f %ld\n", nanoseconds, heap() - heapBefore,
                status("VmHWM:") - residentBefore);
    return EXIT_SUCCESS;
}
