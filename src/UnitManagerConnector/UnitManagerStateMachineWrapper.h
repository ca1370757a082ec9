#pragma once

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include <utility>

#include "StateMachineEvent.h"
#include "UnitManagerConnector/UnitManagerConnectionData.h"
#include "UnitManagerConnector/UnitManagerConnectorStateMachine.h"
#include "UnitManagerExport.h"

/// Owns the connector's state machine and the data shared by its states. The states act through this class.
///
/// The machine never runs by itself: each postEvent() is one step. It must be created and driven by one
/// thread.
class UNITMANAGER_EXPORT UnitManagerStateMachineWrapper : public QObject
{
    Q_OBJECT

public:
    /// Result type of a step of the platform's state machine; may be `void`.
    using StepResult = decltype(std::declval<UnitManagerConnectorStateMachine&>().postEvent(
        std::declval<const StateMachineEvent&>()));

    /// Selects the initial state. A source with an empty name is not configured.
    ///
    /// @param parent ignored: the holder owns the object
    /// @param useSignalPolling whether change signals are polled instead of delivered by the event loop
    /// @param useAsynchronInterface whether configurations are read without blocking
    /// @param dependencyService module name of the service of the dependencies
    /// @param dependencyObject name of their object
    /// @param dependencyConfiguration name of their configuration
    /// @param defaultUnitService module name of the service of the default units
    /// @param defaultUnitObject name of their object
    /// @param defaultUnitConfiguration name of their configuration
    UnitManagerStateMachineWrapper(QObject* parent, bool useSignalPolling, bool useAsynchronInterface,
                                   const QString& dependencyService, const QString& dependencyObject,
                                   const QString& dependencyConfiguration, const QString& defaultUnitService,
                                   const QString& defaultUnitObject, const QString& defaultUnitConfiguration);
    ~UnitManagerStateMachineWrapper() override;

    /// Applies new settings and starts again from the initial state. @return true.
    bool init(bool useAsynchronInterface, const QString& dependencyService, const QString& dependencyObject,
              const QString& dependencyConfiguration, const QString& defaultUnitService,
              const QString& defaultUnitObject, const QString& defaultUnitConfiguration);

    /// Discards connectors and fetched texts and starts again from the initial state. The built objects and
    /// the pending event are kept. @return true.
    bool reset();

    /// Stores @p event for the next step and selects the state with the factory key @p nextStateKey.
    ///
    /// @return true.
    virtual bool moveToNextState(const QString& nextStateKey, const StateMachineEvent& event);

    /// Performs one step of the machine with the event that the last state passed on.
    ///
    /// @return the result of the step of the platform's state machine.
    StepResult postEvent();

    /// The class name of the current state.
    QString getCurrentStateIdentifier() const;

    /// The data shared by the states; never null.
    UnitManagerConnectionData* getConnectionDataObject();

    /// Shares the built dependency walker. @return false, with @p out unchanged, when none has been built.
    virtual bool initializeDependencyWalker(QSharedPointer<DependencyWalker>& out);
    /// Shares the built unit manager. @return false, with @p out unchanged, when none has been built.
    virtual bool initializeUnitManager(QSharedPointer<UnitManagerDevice>& out);

private:
    UnitManagerConnectionData m_connectionData;
    StateMachineEvent m_pendingEvent;
    UnitManagerConnectorStateMachine m_stateMachine;
};
