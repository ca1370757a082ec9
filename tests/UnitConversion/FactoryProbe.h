#pragma once

#include "FactoryProbeExport.h"
#include "StateMachineStateBase.h"
#include "UnitConversion/Factory.h"
#include "UnitConversion/ValueConverterFactory.h"

/// Base class of a registry that is independent of the library under test.
class FACTORYPROBE_EXPORT ProbeBase
{
public:
    ProbeBase() = default;
    virtual ~ProbeBase();
    ProbeBase(const ProbeBase&) = delete;
    ProbeBase& operator=(const ProbeBase&) = delete;

    /// Identifies the object.
    virtual int number() const = 0;
};

using StateFactory = VESKFactories::Factory<StateMachineStateBase, QObject*>;
using ProbeFactory = VESKFactories::Factory<ProbeBase, int>;

/// The registries as seen by code in another shared library.
class FACTORYPROBE_EXPORT FactoryProbe
{
public:
    FactoryProbe() = delete;

    static const ValueConverterFactory* converterFactory();
    static const StateFactory* stateFactory();
    static const ProbeFactory* probeFactory();
};
