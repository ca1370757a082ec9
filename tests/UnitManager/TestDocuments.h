#pragma once

#include <QtCore/QString>

#include "ConfigurationAndProcessDataTools.h"
#include "DebugText.h"
#include "UnitTypes.h"

/// The documents that the tests of the unit manager load.
namespace TestDocuments {

/// Pressure (base Bar, 3 places; HectoPascal, 1 place; MilliBar, no places given), AbsoluteTemperature (base
/// Kelvin, 2 places; Celsius, 1 place) and Ratio (base Percentage, 2 places; the table unit Counts). Every
/// unit has a label; loading logs nothing.
QString units();

/// HectoPascal for Pressure as a bare name, Celsius for AbsoluteTemperature as a fixed unit, none for Ratio.
QString defaultUnits();

/// A document with a single unit, Volt of Voltage, with the label "V".
QString voltage();

} // namespace TestDocuments

namespace TestValue {

/// The platform's marker for values that were not entered.
const double marker = ConfigurationAndProcessDataTools::getNoInputValueIndicator().toDouble();
const float floatMarker = static_cast<float>(marker);
/// The results of toDebugText() for them.
const QString markerText = toDebugText(QVariant(marker));
const QString floatMarkerText = toDebugText(QVariant(floatMarker));

} // namespace TestValue

/// The unit types of the documents, including their prefix.
namespace TestUnitType {

const QString pressure = typeNamed("Pressure");
const QString temperature = typeNamed("AbsoluteTemperature");
const QString ratio = typeNamed("Ratio");
const QString voltage = typeNamed("Voltage");
const QString noUnit = typeNamed("NoUnit");
const QString unknown = typeNamed("Unknown");

} // namespace TestUnitType
