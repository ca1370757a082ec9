#pragma once

#include <QtCore/QObject>

#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"
#include "UnitManagerExport.h"

/// Opens a connector for each configuration source and triggers reading of the opened ones.
class UNITMANAGER_EXPORT UnitManagerConnectorStateInitial : public UnitManagerConnectorStateBase
{
    Q_OBJECT

public:
    /// For the parent see UnitManagerConnectorStateBase().
    UnitManagerConnectorStateInitial(QObject* parent);
    ~UnitManagerConnectorStateInitial() override;

    /// Entering the state does nothing.
    void postInitialEvent(const StateMachineEvent& event) override;

    /// Opens the sources in ascending order. A mandatory source that cannot be opened, and an optional one
    /// whose connection fails, end the attempt: the remaining sources are not opened, all connections are
    /// closed, and the next step tries again. An optional source that is not configured is skipped.
    ///
    /// Logs a warning for each source that ends the attempt and for an incomplete settings list.
    void postEvent(const StateMachineEvent& event) override;
};
