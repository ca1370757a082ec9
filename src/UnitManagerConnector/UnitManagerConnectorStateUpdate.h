#pragma once

#include <QtCore/QObject>

#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"
#include "UnitManagerExport.h"

/// Builds the unit manager and the dependency walker from the fetched texts.
class UNITMANAGER_EXPORT UnitManagerConnectorStateUpdate : public UnitManagerConnectorStateBase
{
    Q_OBJECT

public:
    /// For the parent see UnitManagerConnectorStateBase().
    UnitManagerConnectorStateUpdate(QObject* parent);
    ~UnitManagerConnectorStateUpdate() override;

    /// Entering the state does nothing.
    void postInitialEvent(const StateMachineEvent& event) override;

    /// Changes to the idle state, or to the error state when a text did not load.
    void postEvent(const StateMachineEvent& event) override;
};
