#pragma once

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"
#include "UnitManagerExport.h"

class DBusPendingReply;

/// Collects the replies to the reads that were started.
class UNITMANAGER_EXPORT UnitManagerConnectorStateWaitForReply : public UnitManagerConnectorStateBase
{
    Q_OBJECT

public:
    UnitManagerConnectorStateWaitForReply(QObject* parent);
    ~UnitManagerConnectorStateWaitForReply() override;

    /// Entering the state does nothing.
    void postInitialEvent(const StateMachineEvent& event) override;

    /// Looks at the outstanding replies in order up to the first that has not arrived. Goes to the update
    /// state when all are in, and to the error state when one has failed. Stays for ever when the event lists
    /// no source.
    void postEvent(const StateMachineEvent& event) override;

    /// Looks at one reply; never blocks.
    ///
    /// @param reply released once it has arrived or failed
    /// @param text set to the reply's text when that has arrived
    /// @return 0 the text has arrived, 1 there is none yet or the reply is no text, 2 the call has failed.
    int checkReplyState(QSharedPointer<DBusPendingReply>& reply, QString& text);
};
