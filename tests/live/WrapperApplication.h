#pragma once

#include "Application.h"
#include "UnitManagerDevice/UnitManagerWrapper.h"

/// Holds a wrapper, as devices do.
class WrapperApplication : public Application
{
public:
    WrapperApplication(const Mode& mode, const Settings& settings);

    void init(const Settings& settings) override;
    void reset() override;
    bool check() override;
    std::optional<bool> hasChanged() override;
    QSharedPointer<const UnitManagerDevice> units() override;
    QString converted() override;
    std::optional<QString> dependents() override;

private:
    const bool m_isAsynchronous;
    UnitManagerWrapper m_wrapper;
};
