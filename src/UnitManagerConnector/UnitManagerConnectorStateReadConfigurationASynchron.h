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
    /// For the parent see UnitManagerConnectorStateBase().
    UnitManagerConnectorStateReadConfigurationASynchron(QObject* parent);
    ~UnitManagerConnectorStateReadConfigurationASynchron() override;

    /// Entering the state does nothing.
    void postInitialEvent(const StateMachineEvent& event) override;

    /// Starts reading every source that the event lists, even after a failure. Changes to the state that
    /// waits for the replies, or to the error state when a read could not be started or no source is listed.
    void postEvent(const StateMachineEvent& event) override;

    /// Starts reading one source. An earlier text of that source is discarded first.
    ///
    /// @return whether the connection data holds a pending reply. Warnings give the reason if not, except for
    /// a missing connector.
    bool startConfigurationRead(UnitManagerConnectorDefinitions::ConnectorType type);
};
