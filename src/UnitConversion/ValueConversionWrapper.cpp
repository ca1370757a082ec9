#include "UnitConversion/ValueConversionWrapper.h"

#include <algorithm>
#include <cmath>
#include <typeinfo>

#include "Diagnostics.h"
#include "UnitConversion/ValueConverterFactory.h"
#include "UnitConversion/ValueConverterPolynomial.h"

namespace {

const char* const sourceName = "UnitConversion/ValueConversionWrapper";

/// The child that gives the kind of conversion; empty when the node has none.
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

/// The converter if it is exactly a polynomial; null for other classes, including derived ones, and for null.
const ValueConverterPolynomial* asPolynomial(const ValueConverterBase* converter)
{
    return converter && typeid(*converter) == typeid(ValueConverterPolynomial)
               ? static_cast<const ValueConverterPolynomial*>(converter)
               : nullptr;
}

template <typename Convert>
void convertSingly(const double* values, double* results, std::size_t count, const Convert& convert)
{
    std::transform(values, values + count, results,
                   [&convert](double x) { return std::isnan(x) ? x : convert(x); });
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
    // The converter reads its keys from the unit's node, not from the child that gives its kind.
    converter.reset(key.isEmpty() ? nullptr : ValueConverterFactory::instance().create(key, node));
    return isValid();
}

void ValueConversionWrapper::convertValues(const double* values, double* results, std::size_t count) const
{
    if (const ValueConverterPolynomial* const polynomial = asPolynomial(converter.data()))
        return polynomial->convertValues(values, results, count);
    convertSingly(values, results, count, [this](double x) { return convertValue(x); });
}

void ValueConversionWrapper::invertValues(const double* values, double* results, std::size_t count) const
{
    if (const ValueConverterPolynomial* const polynomial = asPolynomial(converter.data()))
        return polynomial->invertValues(values, results, count);
    convertSingly(values, results, count, [this](double x) { return invertValue(x); });
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
