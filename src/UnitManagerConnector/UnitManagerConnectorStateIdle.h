#pragma once

#include <QtCore/QObject>

#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"
#include "UnitManagerExport.h"

/// Waits for changes and has the changed sources read again.
class UNITMANAGER_EXPORT UnitManagerConnectorStateIdle : public UnitManagerConnectorStateBase
{
    Q_OBJECT

public:
    UnitManagerConnectorStateIdle(QObject* parent);
    ~UnitManagerConnectorStateIdle() override;

    /// Entering the state does nothing.
    void postInitialEvent(const StateMachineEvent& event) override;

    /// Polls the change flags once; when something has changed, has those sources read whose change is noted.
    void postEvent(const StateMachineEvent& event) override;
};
