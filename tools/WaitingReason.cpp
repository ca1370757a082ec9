#include "WaitingReason.h"

#include <QtDBus/QDBusError>
#include <QtDBus/QDBusMessage>

#include <algorithm>

#include "RunningService.h"

namespace {

const int pauseMilliseconds = 200;

/// @return empty if the document is not a reason to wait
QString reasonFrom(DocumentKind kind, const QDBusMessage& reply, const QString& bus)
{
    const auto state = RunningService::stateFrom(reply);
    if (state)
        return state->state == "missing" ? RunningService::missing(kind, state->lastRefusal).reason
                                         : QString();
    // The bus's answers to a call that must not start its receiver.
    if (reply.errorName().endsWith(".NameHasNoOwner") || reply.errorName().endsWith(".ServiceUnknown"))
        return RunningService::notOnBus(bus).reason;
    switch (QDBusError(reply).type()) {
    case QDBusError::NoReply:
    case QDBusError::TimedOut:
    case QDBusError::Disconnected:
        return state.error().reason;
    default:
        // A service without properties.
        return {};
    }
}

} // namespace

WaitingReason::WaitingReason(const QString& bus) : m_bus(bus) {}

std::optional<QString> WaitingReason::poll()
{
    if (m_requests.isEmpty() && m_pause.hasExpired())
        ask();
    if (m_requests.isEmpty() || !isAnswered())
        return m_reason;

    m_reason = "reading";
    const QVector<DocumentKind> kinds = RunningService::documentKinds();
    for (int index = kinds.size() - 1; index >= 0; --index) {
        const QString reason = reasonFrom(kinds[index], m_requests[index].reply(), m_bus);
        if (!reason.isEmpty())
            m_reason = reason;
    }
    m_requests.clear();
    m_pause.setRemainingTime(pauseMilliseconds);
    return m_reason;
}

void WaitingReason::reset()
{
    m_reason.reset();
    m_requests.clear();
    m_pause.setRemainingTime(0);
}

void WaitingReason::ask()
{
    const auto service = RunningService::connect(m_bus);
    if (!service) {
        m_reason = service.error().reason;
        m_pause.setRemainingTime(pauseMilliseconds);
        return;
    }
    for (const DocumentKind kind : RunningService::documentKinds())
        m_requests.append(service->requestState(kind));
}

bool WaitingReason::isAnswered() const
{
    return std::all_of(m_requests.begin(), m_requests.end(),
                       [](const QDBusPendingCall& request) { return request.isFinished(); });
}
