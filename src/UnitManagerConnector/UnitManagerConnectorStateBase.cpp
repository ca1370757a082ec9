#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"

#include <QtCore/QVariant>

#include "UnitManagerConnector/UnitManagerConnectionData.h"
#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationASynchron.h"
#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationSynchron.h"

UnitManagerConnectorStateBase::UnitManagerConnectorStateBase(QObject* parent)
    : StateMachineStateBase(nullptr), m_wrapper(qobject_cast<UnitManagerStateMachineWrapper*>(parent))
{}

UnitManagerConnectorStateBase::~UnitManagerConnectorStateBase() = default;

bool UnitManagerConnectorStateBase::isValid()
{
    return m_wrapper == nullptr;
}

UnitManagerConnectorStateBase::operator bool()
{
    return isValid();
}

UnitManagerConnectionData& UnitManagerConnectorStateBase::connectionData() const
{
    return *m_wrapper->getConnectionDataObject();
}

void UnitManagerConnectorStateBase::triggerRead(const QList<ConnectorType>& types)
{
    StateMachineEvent event(QStringLiteral("ReadTrigger"));
    event.setData(QVariant::fromValue(types));
    if (connectionData().useAsynchronInterface())
        moveTo<UnitManagerConnectorStateReadConfigurationASynchron>(event);
    else
        moveTo<UnitManagerConnectorStateReadConfigurationSynchron>(event);
}

QList<UnitManagerConnectorStateBase::ConnectorType>
UnitManagerConnectorStateBase::typesToRead(const StateMachineEvent& event)
{
    const QVariant data = event.getData();
    return data.canConvert<QList<ConnectorType>>() ? data.value<QList<ConnectorType>>()
                                                   : QList<ConnectorType>();
}

bool UnitManagerConnectorStateBase::forEachType(const StateMachineEvent& event,
                                                const std::function<bool(ConnectorType)>& action)
{
    const QList<ConnectorType> types = typesToRead(event);
    bool allWell = !types.isEmpty();
    for (const ConnectorType type : types)
        allWell = action(type) && allWell;
    return allWell;
}
