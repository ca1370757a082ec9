// Replaces the platform's tests of a value. The environment variable NO_INPUT_MARKER selects the platform's
// marker: "nan", "number" (-999 as a double) or "both".

#include <QtCore/QtGlobal>

#include <cmath>

#include "ConfigurationAndProcessDataTools.h"
#include "RecordedCalls.h"

namespace {

const QByteArray& markerKind()
{
    static const QByteArray kind = qgetenv("NO_INPUT_MARKER");
    return kind;
}

bool isMarker(const QVariant& value)
{
    const bool isFloating = value.userType() == QMetaType::Double || value.userType() == QMetaType::Float;
    const bool isNan = isFloating && std::isnan(value.toDouble());
    const bool isMarkerNumber = value.userType() == QMetaType::Double && value.toDouble() == -999.0;
    return (isNan && markerKind() != "number") || (isMarkerNumber && markerKind() != "nan");
}

} // namespace

bool ConfigurationAndProcessDataTools::isVariantNumber(const QVariant& value)
{
    RecordedCalls::addQuery(QStringLiteral("number?"));
    switch (value.userType()) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

bool ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(const QVariant& value)
{
    RecordedCalls::addQuery(QStringLiteral("marker?"));
    return isMarker(value);
}
