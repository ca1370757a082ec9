#include "FactoryProbe.h"

ProbeBase::~ProbeBase() = default;

const ValueConverterFactory* FactoryProbe::converterFactory()
{
    return &ValueConverterFactory::instance();
}

const ProbeFactory* FactoryProbe::probeFactory()
{
    return &ProbeFactory::instance();
}
