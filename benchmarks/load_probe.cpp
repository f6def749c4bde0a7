// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

// Loads the library that is named into a process that has Qt already, for bench_frame, and prints the
// nanoseconds that it took: to find and bind all symbols, and to register the resources.

#include <QApplication>
#include <QElapsedTimer>

#include <cstdio>
#include <cstdlib>

#include <dlfcn.h>

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    if (argc != 2)
        return EXIT_FAILURE;
    QElapsedTimer timer;
    timer.start();
    // As the loader does it for programs, unless they ask for all symbols at once.
    if (!::dlopen(argv[1], RTLD_LAZY)) {
        std::fputs(::dlerror(), stderr);
        return EXIT_FAILURE;
    }
    std::printf("%lld\n", static_cast<long long>(timer.nsecsElapsed()));
    return EXIT_SUCCESS;
}
