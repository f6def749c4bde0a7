// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ChildProcess.h"

#ifdef Q_OS_LINUX
#    include <csignal>

#    include <sys/prctl.h>
#endif

namespace {

constexpr int Patience = 5000; // ms

} // namespace

ChildProcess::ChildProcess()
{
#ifdef Q_OS_LINUX
    setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
#endif
}

ChildProcess::~ChildProcess()
{
    if (state() == NotRunning)
        return;
    terminate();
    if (!waitForFinished(Patience)) {
        kill();
        waitForFinished(Patience);
    }
}
