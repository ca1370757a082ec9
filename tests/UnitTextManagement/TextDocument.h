#pragma once

#include <QtCore/QString>

#include "LogCapture.h"
#include "UnitTextManagement/UnitTextHandler.h"

/// The labels that the look-ups are tested with.
namespace TextDocument {

const QString prefix = QStringLiteral("UnitManager/UnitType/");
const QString pressure = prefix + "Pressure";

/// "Bare" has no label; "Headless" has no base unit, "Tailless" one without label; "Unlabelled" has no label.
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

/// Labels of the document; what loading says is not of interest here.
inline UnitTextHandler load()
{
    LogCapture log;
    return UnitTextHandler(document);
}

/// What is warned of names that the document does not know.
inline QString unknownType(const QString& unitType)
{
    return QStringLiteral(R"(Unknown unit type given "%1")").arg(unitType);
}

inline QString unknownUnit(const QString& unit, const QString& unitType)
{
    return QStringLiteral(R"(Unknown unit given "%1" for unittype "%2")").arg(unit, unitType);
}

} // namespace TextDocument
