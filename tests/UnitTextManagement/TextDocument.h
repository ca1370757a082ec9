#pragma once

#include <QtCore/QString>

#include "LogCapture.h"
#include "UnitTextManagement/UnitTextHandler.h"
#include "UnitTypes.h"

/// The labels for the look-up tests.
namespace TextDocument {

const QString prefix = PropertyManagerConst::getUnitTypeNamePrefix();
const QString pressure = prefix + "Pressure";

/// "Bare" has no label; "Headless" has no base unit; the base unit of "Tailless" has no label; "Unlabelled"
/// has no label.
const QString document = QStringLiteral(R"({
    "Pressure": {
        "Bar": {"@displayPosition": 0, "UnitLabel": {"@value": {"en": "bar", "de": "Bar", "fr_CH": "bar suisse"}}},
        "HectoPascal": {"@displayPosition": 1, "UnitLabel": "hPa"},
        "Bare": {"@displayPosition": 2}
    },
    "Time": {"Seconds": {"@displayPosition": 0, "UnitLabel": {"@value": {"es": "segundos", "it": "secondi"}}}},
    "NoUnit": {"NoUnit": {"@displayPosition": 0, "UnitLabel": "none"}},
    "Headless": {"Only": {"@displayPosition": 1, "UnitLabel": "only"}},
    "Tailless": {"Base": {"@displayPosition": 0}, "Other": {"@displayPosition": 1, "UnitLabel": "other"}},
    "Unlabelled": {"Base": {"@displayPosition": 0}}
})");

/// The labels of the document. Messages during loading are dropped.
inline UnitTextHandler load()
{
    LogCapture log;
    return UnitTextHandler(document);
}

/// The warning for names that the document does not contain.
inline QString unknownType(const QString& unitType)
{
    return QStringLiteral(R"(Unknown unit type given "%1")").arg(unitType);
}

inline QString unknownUnit(const QString& unit, const QString& unitType)
{
    return QStringLiteral(R"(Unknown unit given "%1" for unittype "%2")").arg(unit, unitType);
}

} // namespace TextDocument
