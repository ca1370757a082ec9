#pragma once

#include "FactoryProbeExport.h"
#include "StateMachineStateBase.h"
#include "UnitConversion/Factory.h"
#include "UnitConversion/ValueConverterFactory.h"

/// Base of a registry that knows nothing of the library under test.
class FACTORYPROBE_EXPORT ProbeBase
{
public:
    ProbeBase() = default;
    virtual ~ProbeBase();
    ProbeBase(const ProbeBase&) = delete;
    ProbeBase& operator=(const ProbeBase&) = delete;

    /// A number that tells objects apart.
    virtual int number() const = 0;
};

using StateFactory = VESKFactories::Factory<StateMachineStateBase, QObject*>;
using ProbeFactory = VESKFactories::Factory<ProbeBase, int>;

/// The registries as code in another shared library sees them.
class FACTORYPROBE_EXPORT FactoryProbe
{
public:
    FactoryProbe() = delete;

    static const ValueConverterFactory* converterFactory();
    static const StateFactory* stateFactory();
    static const ProbeFactory* probeFactory();
};
