#pragma once

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"
#include "UnitManagerExport.h"

class DBusPendingReply;

/// Collects the replies of the reads in progress.
class UNITMANAGER_EXPORT UnitManagerConnectorStateWaitForReply : public UnitManagerConnectorStateBase
{
    Q_OBJECT

public:
    /// For the parent see UnitManagerConnectorStateBase().
    UnitManagerConnectorStateWaitForReply(QObject* parent);
    ~UnitManagerConnectorStateWaitForReply() override;

    /// Entering the state does nothing.
    void postInitialEvent(const StateMachineEvent& event) override;

    /// Checks the outstanding replies in order, up to the first that has not arrived. Changes to the update
    /// state when all have arrived, and to the error state when one has failed. Stays in this state forever
    /// when the event lists no source.
    void postEvent(const StateMachineEvent& event) override;

    /// Checks one reply; never blocks.
    ///
    /// @param reply released once it has arrived or failed
    /// @param text set to the text of the reply once it has arrived
    /// @return 0 the text has arrived, 1 there is no reply yet or the reply is not a text, 2 the call has
    /// failed.
    int checkReplyState(QSharedPointer<DBusPendingReply>& reply, QString& text);
};
