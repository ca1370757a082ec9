#include "ChildProcess.h"

#include <csignal>
#include <sys/prctl.h>

ChildProcess::~ChildProcess()
{
    if (state() == NotRunning)
        return;
    kill();
    waitForFinished(10000);
}

void ChildProcess::setupChildProcess()
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}
