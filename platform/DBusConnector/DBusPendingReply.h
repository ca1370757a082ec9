#pragma once

#include "DBusConnectorExport.h"
#include "ErrorContainer.h"

#include <QtCore/QVariant>
#include <QtDBus/QDBusPendingCall>

/// The outcome of a call that does not block: looked at as often as the caller likes, until it is there.
/// Needs no event loop: replies are received, and time-outs kept, on a thread of the bus connection.
class DBUSCONNECTOR_EXPORT DBusPendingReply
{
public:
    /// What isFinished() answers.
    enum State
    {
        Arrived = 0,
        Failed = 1,
        Outstanding = 2
    };

    explicit DBusPendingReply(const QDBusPendingCall& call);

    /// Where the call stands; never blocks, and never goes back.
    /// @param error set to what went wrong when the answer is Failed, else left as it is.
    /// @return a State: 0 the reply has arrived, 1 the call has failed (an error reply, a time-out, a lost
    /// bus), 2 it is outstanding.
    int isFinished(ErrorContainer& error) const;

    /// The reply's first argument as it arrived, see DBusReply::getValue(); invalid while the call is
    /// outstanding, when it failed, and for a reply without arguments.
    QVariant getReply() const;

private:
    QDBusPendingCall m_call;
};
