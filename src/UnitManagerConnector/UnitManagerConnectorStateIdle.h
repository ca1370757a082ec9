#pragma once

#include <QtCore/QObject>

#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"
#include "UnitManagerExport.h"

/// Waits for changes and triggers reading of the changed sources.
class UNITMANAGER_EXPORT UnitManagerConnectorStateIdle : public UnitManagerConnectorStateBase
{
    Q_OBJECT

public:
    /// For the parent see UnitManagerConnectorStateBase().
    UnitManagerConnectorStateIdle(QObject* parent);
    ~UnitManagerConnectorStateIdle() override;

    /// Entering the state does nothing.
    void postInitialEvent(const StateMachineEvent& event) override;

    /// Polls the change flags once. When something has changed, triggers reading of the sources with a
    /// recorded change.
    void postEvent(const StateMachineEvent& event) override;
};
