#pragma once

#include "DBusReply.h"
#include "ErrorContainer.h"

/// The answer to a read that does not block. It becomes available at the second query, so that users have to
/// handle a reply that is outstanding.
class DBusPendingReply
{
public:
    explicit DBusPendingReply(const DBusReply& reply);

    /// @return 0 arrived, 1 failed, 2 outstanding.
    int isFinished(ErrorContainer& error) const;
    QVariant getReply() const;

private:
    DBusReply m_reply;
    mutable bool m_isQueried = false;
};
