#include "ChildProcess.h"

#include <csignal>
#include <sys/prctl.h>

#include "WaitLimit.h"

ChildProcess::~ChildProcess()
{
    if (state() == NotRunning)
        return;
    kill();
    waitForFinished(waitLimit);
}

void ChildProcess::setupChildProcess()
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}
