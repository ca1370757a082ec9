#include "UnitManagerConnector/UnitManagerConnectorStateWaitForReply.h"

#include "DBusPendingReply.h"
#include "ErrorContainer.h"
#include "UnitManagerConnector/UnitManagerConnectionData.h"
#include "UnitManagerConnector/UnitManagerConnectorStateError.h"
#include "UnitManagerConnector/UnitManagerConnectorStateUpdate.h"

namespace {

/// Results of isFinished(); any other value means that the reply is outstanding.
const int replyArrived = 0;
const int replyFailed = 1;

/// Results of checkReplyState().
const int textArrived = 0;
const int nothingToUse = 1;
const int callFailed = 2;

} // namespace

UnitManagerConnectorStateWaitForReply::UnitManagerConnectorStateWaitForReply(QObject* parent)
    : UnitManagerConnectorStateBase(parent)
{}

UnitManagerConnectorStateWaitForReply::~UnitManagerConnectorStateWaitForReply() = default;

void UnitManagerConnectorStateWaitForReply::postInitialEvent(const StateMachineEvent& /*event*/) {}

void UnitManagerConnectorStateWaitForReply::postEvent(const StateMachineEvent& event)
{
    const QList<ConnectorType> types = typesToRead(event);
    if (types.isEmpty())
        return;
    UnitManagerConnectionData& data = connectionData();
    for (const ConnectorType type : types) {
        const auto reply = data.pendingReplies().find(type);
        if (reply == data.pendingReplies().end() || !*reply)
            continue;
        const int state = checkReplyState(*reply, data.configurations()[type]);
        if (state == textArrived)
            continue;
        if (state == callFailed)
            moveTo<UnitManagerConnectorStateError>(event);
        return;
    }
    moveTo<UnitManagerConnectorStateUpdate>(event);
}

int UnitManagerConnectorStateWaitForReply::checkReplyState(QSharedPointer<DBusPendingReply>& reply,
                                                           QString& text)
{
    if (!reply)
        return nothingToUse;
    ErrorContainer error;
    const int state = reply->isFinished(error);
    if (state == replyFailed) {
        reply.reset();
        return callFailed;
    }
    if (state != replyArrived)
        return nothingToUse;

    const QVariant value = reply->getReply();
    reply.reset();
    if (!value.canConvert(QVariant::String))
        return nothingToUse;
    text = value.toString();
    return textArrived;
}
