// Registers the creators of the converters when the library is loaded.

#include "UnitConversion/Factory.h"
#include "UnitConversion/ValueConverterArbitraryTable.h"
#include "UnitConversion/ValueConverterEquidistantTable.h"
#include "UnitConversion/ValueConverterFactory.h"
#include "UnitConversion/ValueConverterPolynomial.h"

template class VESKFactories::Factory<ValueConverterBase,
                                      const QSharedPointer<ConfigurationAndProcessDataBase>&>;

namespace {

struct ValueConverterRegistration
{
    ValueConverterRegistration()
    {
        ValueConverterFactory& factory = ValueConverterFactory::instance();
        factory.registerClass<ValueConverterPolynomial>(QStringLiteral("Polynomial"));
        factory.registerClass<ValueConverterEquidistantTable>(QStringLiteral("EquidistantTable"));
        factory.registerClass<ValueConverterArbitraryTable>(QStringLiteral("ArbitraryTable"));
    }
};

const ValueConverterRegistration registration;

} // namespace
