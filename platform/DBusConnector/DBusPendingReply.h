#pragma once

#include <QtCore/QVariant>
#include <QtDBus/QDBusPendingCall>

#include "DBusConnectorExport.h"
#include "ErrorContainer.h"

/// The result of a non-blocking call, to be polled until it is available. Needs no event loop: a thread of
/// the bus connection receives replies and handles time-outs.
class DBUSCONNECTOR_EXPORT DBusPendingReply
{
public:
    /// Result of isFinished().
    enum State
    {
        Arrived = 0,
        Failed = 1,
        Outstanding = 2
    };

    explicit DBusPendingReply(const QDBusPendingCall& call);

    /// The state of the call. Never blocks; Arrived and Failed are final.
    /// @param error set to the error when the result is Failed, else unchanged.
    /// @return a State: 0 the reply has arrived, 1 the call has failed (an error reply, a time-out, a lost
    /// bus), 2 it is outstanding.
    int isFinished(ErrorContainer& error) const;

    /// The reply's first argument, unconverted, see DBusReply::getValue(); invalid while the call is
    /// outstanding, when it failed, and for a reply without arguments.
    QVariant getReply() const;

private:
    QDBusPendingCall m_call;
};
