#include "UnitConversion/ValueConversionWrapper.h"

#include "Diagnostics.h"
#include "UnitConversion/ValueConverterFactory.h"

namespace {

const char* const sourceName = "UnitConversion/ValueConversionWrapper";

/// The child that names the kind of conversion; empty when the node has none.
QString findConverterKey(const ConfigurationAndProcessDataBase& node)
{
    const QString keys[] = {QStringLiteral("Polynomial"), QStringLiteral("ArbitraryTable"),
                            QStringLiteral("EquidistantTable")};
    for (const QString& key : keys) {
        if (node.getChild(key))
            return key;
    }
    return {};
}

} // namespace

ValueConversionWrapper::ValueConversionWrapper() = default;

ValueConversionWrapper::ValueConversionWrapper(const BaseClassSharedPointer& node)
{
    init(node);
}

ValueConversionWrapper::~ValueConversionWrapper() = default;

bool ValueConversionWrapper::init(const BaseClassSharedPointer& node)
{
    const QString key = node ? findConverterKey(*node) : QString();
    // The converter reads its keys from the unit's node, not from the child that names its kind.
    converter.reset(key.isEmpty() ? nullptr : ValueConverterFactory::instance().create(key, node));
    return isValid();
}

double ValueConversionWrapper::convertValue(double x) const
{
    return converter ? converter->convertValue(x) : x;
}

double ValueConversionWrapper::invertValue(double x) const
{
    return converter ? converter->invertValue(x) : x;
}

bool ValueConversionWrapper::getDecimalPlacesForUnit(unsigned int& decimalPlaces) const
{
    if (!converter) {
        LogContext{sourceName, 85, Q_FUNC_INFO}.warning() << "invalid pointer to conversion object!";
        return false;
    }
    decimalPlaces = converter->getDecimalPlaces();
    return true;
}

bool ValueConversionWrapper::isValid() const
{
    return !converter.isNull();
}

ValueConversionWrapper::operator bool() const
{
    return isValid();
}
