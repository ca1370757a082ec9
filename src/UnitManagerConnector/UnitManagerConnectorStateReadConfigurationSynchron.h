#pragma once

#include <QtCore/QObject>

#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"
#include "UnitManagerExport.h"

/// Reads the configurations with blocking calls.
class UNITMANAGER_EXPORT UnitManagerConnectorStateReadConfigurationSynchron
    : public UnitManagerConnectorStateBase
{
    Q_OBJECT

public:
    /// For the parent see UnitManagerConnectorStateBase().
    UnitManagerConnectorStateReadConfigurationSynchron(QObject* parent);
    ~UnitManagerConnectorStateReadConfigurationSynchron() override;

    /// Entering the state does nothing.
    void postInitialEvent(const StateMachineEvent& event) override;

    /// Reads every source that the event lists, even after a failure. Changes to the update state, or to the
    /// error state when a read failed or no source is listed.
    void postEvent(const StateMachineEvent& event) override;

    /// Reads one source into the connection data. An earlier text of that source is discarded first.
    ///
    /// @return whether a non-empty text was stored. Warnings give the reason if not, except for a missing
    /// connector.
    bool readConfiguration(UnitManagerConnectorDefinitions::ConnectorType type);
};
