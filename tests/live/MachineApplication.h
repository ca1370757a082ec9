#pragma once

#include "Application.h"
#include "UnitManagerConnector/UnitManagerStateMachineWrapper.h"

/// Steps the connector's state machine itself: one step a check.
class MachineApplication : public Application
{
public:
    MachineApplication(const Mode& mode, const Settings& settings);

    void init(const Settings& settings) override;
    void reset() override;
    bool check() override;
    std::optional<bool> hasChanged() override;
    QSharedPointer<const UnitManagerDevice> units() override;
    QString converted() override;
    std::optional<QString> dependents() override;

private:
    const bool m_isAsynchronous;
    UnitManagerStateMachineWrapper m_machine;
};
