#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>

#include <functional>

#include "StateMachineEvent.h"
#include "StateMachineStateBase.h"
#include "UnitConversion/Factory.h"
#include "UnitManagerConnector/UnitManagerConnectorDefinitions.h"
#include "UnitManagerConnector/UnitManagerStateMachineWrapper.h"
#include "UnitManagerExport.h"

class UnitManagerConnectionData;

/// A state of the connector. States are made by the factory and owned by the state machine; they act only
/// through the UnitManagerStateMachineWrapper under which they were made.
class UNITMANAGER_EXPORT UnitManagerConnectorStateBase : public StateMachineStateBase
{
    Q_OBJECT

public:
    using ConnectorType = UnitManagerConnectorDefinitions::ConnectorType;

    /// @param parent the wrapper; anything else gives a state without wrapper. It does not become the QObject
    /// parent.
    UnitManagerConnectorStateBase(QObject* parent);
    ~UnitManagerConnectorStateBase() override;

    /// Whether there is no wrapper.
    bool isValid();
    operator bool();

protected:
    /// The data shared by all states of the wrapper.
    UnitManagerConnectionData& connectionData() const;

    /// Selects the state class @p State as the next one. @p event is overwritten by that when it is the one
    /// being delivered: do not read it afterwards.
    template <typename State>
    void moveTo(const StateMachineEvent& event)
    {
        m_wrapper->moveToNextState(VESKFactories::createFactoryKey<State>(), event);
    }

    /// Selects the read state with the sources to read.
    void triggerRead(const QList<ConnectorType>& types);

    /// The sources to read that an event carries; none when its data is something else.
    static QList<ConnectorType> typesToRead(const StateMachineEvent& event);

    /// Does something once for each source that an event carries, whatever became of those before.
    ///
    /// @return whether there was one, and all of it went well.
    static bool forEachType(const StateMachineEvent& event, const std::function<bool(ConnectorType)>& action);

    UnitManagerStateMachineWrapper* m_wrapper;
};
