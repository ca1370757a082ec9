#include "FactoryProbe.h"

ProbeBase::~ProbeBase() = default;

const ValueConverterFactory* FactoryProbe::converterFactory()
{
    return &ValueConverterFactory::instance();
}

const StateFactory* FactoryProbe::stateFactory()
{
    return &StateFactory::instance();
}

const ProbeFactory* FactoryProbe::probeFactory()
{
    return &ProbeFactory::instance();
}
