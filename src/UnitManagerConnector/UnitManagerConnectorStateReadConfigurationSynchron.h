#pragma once

#include <QtCore/QObject>

#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"
#include "UnitManagerExport.h"

/// Reads the configurations with calls that block.
class UNITMANAGER_EXPORT UnitManagerConnectorStateReadConfigurationSynchron
    : public UnitManagerConnectorStateBase
{
    Q_OBJECT

public:
    UnitManagerConnectorStateReadConfigurationSynchron(QObject* parent);
    ~UnitManagerConnectorStateReadConfigurationSynchron() override;

    /// Entering the state does nothing.
    void postInitialEvent(const StateMachineEvent& event) override;

    /// Reads every source that the event lists, also after a failure. Goes to the update state, or to the
    /// error state when a read failed or none is listed.
    void postEvent(const StateMachineEvent& event) override;

    /// Reads one source into the connection data, whose earlier text is dropped first.
    ///
    /// @return whether a text was stored that is not empty. Warnings say why not; there is none for a missing
    /// connector.
    bool readConfiguration(UnitManagerConnectorDefinitions::ConnectorType type);
};
