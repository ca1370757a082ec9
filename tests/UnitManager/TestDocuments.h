#pragma once

#include <QtCore/QString>

#include <limits>

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
constexpr double marker = std::numeric_limits<double>::quiet_NaN();

} // namespace TestValue

/// The unit types of the documents, including their prefix.
namespace TestUnitType {

const QString pressure = QStringLiteral("UnitManager/UnitType/Pressure");
const QString temperature = QStringLiteral("UnitManager/UnitType/AbsoluteTemperature");
const QString ratio = QStringLiteral("UnitManager/UnitType/Ratio");
const QString voltage = QStringLiteral("UnitManager/UnitType/Voltage");
const QString noUnit = QStringLiteral("UnitManager/UnitType/NoUnit");
const QString unknown = QStringLiteral("UnitManager/UnitType/Unknown");

} // namespace TestUnitType
