#include "ProcessSignal.h"

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

int openDescriptor(std::initializer_list<int> signalNumbers)
{
    sigset_t set;
    sigemptyset(&set);
    for (const int number : signalNumbers)
        sigaddset(&set, number);
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    return ::signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
}

} // namespace

ProcessSignal::ProcessSignal(std::initializer_list<int> signalNumbers)
    : m_descriptor(openDescriptor(signalNumbers)), m_notifier(m_descriptor, QSocketNotifier::Read)
{
    connect(&m_notifier, &QSocketNotifier::activated, this, &ProcessSignal::receive);
}

ProcessSignal::~ProcessSignal()
{
    m_notifier.setEnabled(false);
    ::close(m_descriptor);
}

void ProcessSignal::receive()
{
    signalfd_siginfo information = {};
    if (::read(m_descriptor, &information, sizeof(information)) == sizeof(information))
        Q_EMIT received();
}
