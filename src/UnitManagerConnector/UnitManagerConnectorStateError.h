#pragma once

#include <QtCore/QObject>

#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"
#include "UnitManagerExport.h"

/// Discards everything that was opened or fetched and starts again.
class UNITMANAGER_EXPORT UnitManagerConnectorStateError : public UnitManagerConnectorStateBase
{
    Q_OBJECT

public:
    /// For the parent see UnitManagerConnectorStateBase().
    UnitManagerConnectorStateError(QObject* parent);
    ~UnitManagerConnectorStateError() override;

    /// Entering the state does nothing.
    void postInitialEvent(const StateMachineEvent& event) override;

    /// Changes to the initial state.
    void postEvent(const StateMachineEvent& event) override;
};
