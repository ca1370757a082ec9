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

/// A state of the connector. The factory creates states and the state machine owns them; they act only
/// through the UnitManagerStateMachineWrapper with which they were created.
class UNITMANAGER_EXPORT UnitManagerConnectorStateBase : public StateMachineStateBase
{
    Q_OBJECT

public:
    /// Short name of the type.
    using ConnectorType = UnitManagerConnectorDefinitions::ConnectorType;

    /// @param parent the wrapper; any other object results in a state without a wrapper. It does not become
    /// the QObject parent.
    UnitManagerConnectorStateBase(QObject* parent);
    ~UnitManagerConnectorStateBase() override;

    /// Whether there is no wrapper.
    bool isValid();
    /// Same as isValid().
    operator bool();

protected:
    /// The data shared by all states of the wrapper.
    UnitManagerConnectionData& connectionData() const;

    /// Selects the state class @p State as the next one. If @p event is the event being delivered, it is
    /// overwritten: do not read it afterwards.
    template <typename State>
    void moveTo(const StateMachineEvent& event)
    {
        m_wrapper->moveToNextState(VESKFactories::createFactoryKey<State>(), event);
    }

    /// Selects the read state and passes on the sources to read.
    void triggerRead(const QList<ConnectorType>& types);

    /// The sources to read that an event carries; empty when its data is of another type.
    static QList<ConnectorType> typesToRead(const StateMachineEvent& event);

    /// Calls @p action once for each source that an event carries, even after a failure.
    ///
    /// @return whether there was at least one source, and @p action succeeded for all of them.
    static bool forEachType(const StateMachineEvent& event, const std::function<bool(ConnectorType)>& action);

    UnitManagerStateMachineWrapper* m_wrapper; ///< null for a state without a wrapper
};
