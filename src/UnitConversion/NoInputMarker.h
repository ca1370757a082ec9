#pragma once

#include <QtCore/QVariant>

#include <cmath>

#include "ConfigurationAndProcessDataTools.h"

/// The platform's marker for values that were not entered. Values that carry it are never converted.
namespace NoInputMarker {

/// Whether the platform promises that only a NaN can carry the marker. Other numbers then need no platform
/// call, which takes longer than a conversion.
extern const bool isAlwaysNan;

/// Kind of content of a value.
enum class Content
{
    Number,
    Marker,
    Other
};

/// The number in a value of type double. QVariant::toDouble() takes longer.
inline double storedDouble(const QVariant& value)
{
    return *static_cast<const double*>(value.constData());
}

/// Whether @p number carries the marker.
inline bool isSet(double number)
{
    return (!isAlwaysNan || std::isnan(number)) &&
           ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(number);
}

/// Whether @p value carries the marker.
inline bool isSet(const QVariant& value)
{
    return value.userType() == QMetaType::Double
               ? isSet(storedDouble(value))
               : ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(value);
}

/// Determines what @p value holds. @p number receives the number or the marker, unless the result is Other.
inline Content read(const QVariant& value, double& number)
{
    if (value.userType() == QMetaType::Double) {
        number = storedDouble(value);
        return isSet(number) ? Content::Marker : Content::Number;
    }
    if (!ConfigurationAndProcessDataTools::isVariantNumber(value))
        return Content::Other;
    number = value.toDouble();
    return ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(value) ? Content::Marker
                                                                               : Content::Number;
}

} // namespace NoInputMarker
