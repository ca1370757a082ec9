#pragma once

#include "Application.h"
#include "UnitManagerConnector/UnitManagerDBusConnector.h"

/// Holds the connector alone, and hears its signals.
class ConnectorApplication : public Application
{
public:
    ConnectorApplication(const Mode& mode, const Settings& settings);

    void init(const Settings& settings) override;
    void reset() override;
    bool check() override;
    std::optional<bool> hasChanged() override;
    QSharedPointer<const UnitManagerDevice> units() override;
    QString converted() override;
    std::optional<QString> dependents() override;

private:
    const bool m_isAsynchronous;
    UnitManagerDBusConnector m_connector;
};
