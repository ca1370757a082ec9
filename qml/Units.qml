import UnitManager 1.0

// The units of the running configuration service. A binding that uses a function is evaluated again when the
// configuration, `language` or `groupSeparators` changes, because the functions read `current`.
//
//     Units { id: units; language: "de" }
//     Text { text: units.text(1.01325, "UnitManager/UnitType/Pressure", "HectoPascal") } // "1013,3 hPa"
//
// `value` is a number in the base unit, `unitType` an identifier, also that of a fixed unit, `unit` the name of a unit or
// nothing for the default unit. Without a configuration, texts are empty, numbers NaN or "–".
UnitSource {
    readonly property bool ready: state !== "waiting"

    // The number in the application's locale, with the decimal places of the unit, and the label.
    function text(value, unitType, unit) { return (number(value, unitType, unit) + " " + label(unitType, unit)).trim() }
    // The number alone; "–" for a value that is missing or cannot be converted.
    function number(value, unitType, unit) { return current.numberOf(value, unitType, unit) }
    function label(unitType, unit) { return current.labelOf(unitType, unit) }
    // The units in display order: a list of { name, label }.
    function units(unitType) { return current.unitsOf(unitType) }
    function defaultUnit(unitType) { return current.defaultUnitOf(unitType) }

    // From the base unit, and from any unit to any other, without rounding; NaN if a unit is not known.
    function fromBase(value, unitType, unit) { return current.convertTo(value, unitType, unit) }
    function convert(value, unitType, from, to) { return fromBase(current.convertFrom(value, unitType, from), unitType, to) }
    // Reads what a person typed in the application's locale: { value, error }, of which one is set. Does not round.
    function toBase(text, unitType, unit) { return current.parse(text, unitType, unit) }
}
