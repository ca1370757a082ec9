#pragma once

#include <QtCore/QObject>

#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"
#include "UnitManagerExport.h"

/// Starts reading the configurations without blocking.
class UNITMANAGER_EXPORT UnitManagerConnectorStateReadConfigurationASynchron
    : public UnitManagerConnectorStateBase
{
    Q_OBJECT

public:
    UnitManagerConnectorStateReadConfigurationASynchron(QObject* parent);
    ~UnitManagerConnectorStateReadConfigurationASynchron() override;

    /// Entering the state does nothing.
    void postInitialEvent(const StateMachineEvent& event) override;

    /// Starts every source that the event lists, also after a failure. Goes to the state that waits for the
    /// replies, or to the error state when a read could not be started or none is listed.
    void postEvent(const StateMachineEvent& event) override;

    /// Starts reading one source; an earlier text that is there is dropped first.
    ///
    /// @return whether the connection data holds a pending reply. Warnings say why not; there is none for a
    /// missing connector.
    bool startConfigurationRead(UnitManagerConnectorDefinitions::ConnectorType type);
};
