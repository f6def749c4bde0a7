// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#include "ChildProcess.h"

#ifdef Q_OS_LINUX
#    include <csignal>

#    include <linux/capability.h>
#    include <sys/prctl.h>
#endif

namespace {

constexpr int Patience = 5000; // ms

} // namespace

ChildProcess::ChildProcess()
{
#ifdef Q_OS_LINUX
    setChildProcessModifier([] {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        // Root too shall be refused what the rights of a file forbid.
        prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE);
        prctl(PR_CAPBSET_DROP, CAP_DAC_READ_SEARCH);
    });
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
