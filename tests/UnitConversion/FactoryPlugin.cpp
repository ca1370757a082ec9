#include "FactoryProbe.h"

extern "C" Q_DECL_EXPORT const void* converterFactoryOfPlugin()
{
    return &ValueConverterFactory::instance();
}

extern "C" Q_DECL_EXPORT const void* stateFactoryOfPlugin()
{
    return &StateFactory::instance();
}

extern "C" Q_DECL_EXPORT const void* probeFactoryOfPlugin()
{
    return &ProbeFactory::instance();
}
