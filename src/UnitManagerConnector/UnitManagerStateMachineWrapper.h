#pragma once

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include <utility>

#include "StateMachineEvent.h"
#include "UnitManagerConnector/UnitManagerConnectionData.h"
#include "UnitManagerConnector/UnitManagerConnectorStateMachine.h"
#include "UnitManagerExport.h"

/// Holds the connector's state machine together with the data that its states share, and is what the states
/// act through.
///
/// The machine never runs by itself: each postEvent() is one step. One thread builds the object and drives
/// it.
class UNITMANAGER_EXPORT UnitManagerStateMachineWrapper : public QObject
{
    Q_OBJECT

public:
    /// What the platform's state machine returns from a step; `void` where it returns nothing.
    using StepResult = decltype(std::declval<UnitManagerConnectorStateMachine&>().postEvent(
        std::declval<const StateMachineEvent&>()));

    /// The initial state is selected. The six names are service, object and configuration of the dependency
    /// file and of the default units; a source with an empty name is not configured.
    ///
    /// @param parent ignored: the object belongs to its holder
    UnitManagerStateMachineWrapper(QObject* parent, bool useSignalPolling, bool useAsynchronInterface,
                                   const QString& dependencyService, const QString& dependencyObject,
                                   const QString& dependencyConfiguration, const QString& defaultUnitService,
                                   const QString& defaultUnitObject, const QString& defaultUnitConfiguration);
    ~UnitManagerStateMachineWrapper() override;

    /// Takes over new settings and starts again from the initial state. @return true.
    bool init(bool useAsynchronInterface, const QString& dependencyService, const QString& dependencyObject,
              const QString& dependencyConfiguration, const QString& defaultUnitService,
              const QString& defaultUnitObject, const QString& defaultUnitConfiguration);

    /// Drops connectors and fetched texts and starts again from the initial state. The built objects and the
    /// pending event stay. @return true.
    bool reset();

    /// Keeps @p event for the next step and selects the state with the factory key @p nextStateKey. @return
    /// true.
    virtual bool moveToNextState(const QString& nextStateKey, const StateMachineEvent& event);

    /// One step of the machine with the event that the last state handed over.
    ///
    /// @return what the platform's state machine returns from the step.
    StepResult postEvent();

    /// The class name of the current state.
    QString getCurrentStateIdentifier() const;

    /// The data that the states share; never null.
    UnitManagerConnectionData* getConnectionDataObject();

    /// Shares the built dependency walker. @return false, with @p out untouched, when none has been built.
    virtual bool initializeDependencyWalker(QSharedPointer<DependencyWalker>& out);
    /// Shares the built unit manager. @return false, with @p out untouched, when none has been built.
    virtual bool initializeUnitManager(QSharedPointer<UnitManagerDevice>& out);

private:
    UnitManagerConnectionData m_connectionData;
    StateMachineEvent m_pendingEvent;
    UnitManagerConnectorStateMachine m_stateMachine;
};
