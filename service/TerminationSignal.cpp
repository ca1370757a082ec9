#include "TerminationSignal.h"

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

int openDescriptor()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGTERM);
    sigaddset(&set, SIGINT);
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    return ::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

TerminationSignal::TerminationSignal()
    : m_descriptor(openDescriptor()), m_notifier(m_descriptor, QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, &TerminationSignal::receive);
}

TerminationSignal::~TerminationSignal()
{
    m_notifier.setEnabled(false);
    ::close(m_descriptor);
}

void TerminationSignal::receive()
{
    signalfd_siginfo information = {};
    if (::read(m_descriptor, &information, sizeof(information)) == sizeof(information))
        Q_EMIT received();
}
