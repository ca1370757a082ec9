#include "UnitConversion/FoundConversion.h"

#include <algorithm>

#include "UnitConversion/NoInputMarker.h"
#include "UnitConversion/UnitConversionUnitTypeHandler.h"
#include "UnitConversion/ValueConversionWrapper.h"

FoundConversion FoundConversion::none(bool isKnown)
{
    FoundConversion found;
    found.isKnown = isKnown;
    return found;
}

bool FoundConversion::convert(QVariant& value) const
{
    if (!conversion)
        return isKnown;
    double number = 0.0;
    switch (NoInputMarker::read(value, number)) {
    case NoInputMarker::Content::Number:
        value.setValue(convertNumber(number));
        return true;
    case NoInputMarker::Content::Marker:
        return true;
    case NoInputMarker::Content::Other:
        break;
    }
    return unitType->reportInvalidValue(value, *this);
}

double FoundConversion::convertNumber(double number) const
{
    return direction == ConversionDirection::FromBaseUnit ? conversion->convertValue(number)
                                                          : conversion->invertValue(number);
}

void FoundConversion::convertArray(const double* values, double* results, std::size_t count) const
{
    if (!conversion) {
        std::copy_n(values, count, results);
        return;
    }
    if (!NoInputMarker::isAlwaysNan) {
        std::transform(values, values + count, results, [this](double number) {
            return NoInputMarker::isSet(number) ? number : convertNumber(number);
        });
        return;
    }
    if (direction == ConversionDirection::FromBaseUnit)
        conversion->convertValues(values, results, count);
    else
        conversion->invertValues(values, results, count);
}
