#!/usr/bin/env python3
"""The exact definition of every unit of units.json, and the coefficients that follow from it.

  coefficients.py units.json            print the coefficients of every unit, in the form of the document
  coefficients.py --check units.json    compare them with those in the document; exit status 1 on any difference

The exit status is 2 if the document cannot be read or lacks what the calculation needs.
A new unit is added here first: its size is written as an exact fraction, never as a rounded decimal.
"""

import argparse
import json
import sys
from fractions import Fraction
from typing import NamedTuple

NO_UNIT = "NoUnit"
POSITION = "@displayPosition"


class UnusableDocument(Exception):
    """The document cannot be read, or lacks what the calculation needs."""


class Unit(NamedTuple):
    """A value x in this unit is size * x + zero in the reference of its unit type."""

    size: Fraction
    zero: Fraction = Fraction(0)


def exactly(size, zero=0):
    """A unit given by fractions, whole numbers or decimal texts; floats are refused, they are rounded already."""
    if isinstance(size, float) or isinstance(zero, float):
        raise TypeError("a definition is exact")
    return Unit(Fraction(size), Fraction(zero))


# International yard and pound agreement, 1959; grain = pound / 7000.
FOOT = Fraction("0.3048")
INCH = FOOT / 12
POUND = Fraction("0.45359237")
GRAIN = POUND / 7000
# Standard acceleration of gravity, 3rd CGPM 1901, in m/s2.
GRAVITY = Fraction("9.80665")
# Conventional densities of the manometer liquids, NIST SP 811, appendix B.8, in kg/m3.
MERCURY = Fraction("13595.1")
WATER = Fraction(1000)
# Standard atmosphere, 10th CGPM 1954, in Pa.
ATMOSPHERE = Fraction(101325)
# International Table calorie, Fifth International Conference on the Properties of Steam 1956, in J. The British
# thermal unit of the same table heats one pound by one degree Fahrenheit: 1 Btu/lb = 5/9 kcal/kg.
CALORIE = Fraction("4.1868")
DEGREE_FAHRENHEIT = Fraction(5, 9)

DEFINITIONS = {
    # in pascal
    "Pressure": {
        "Bar": exactly(10**5),
        "MilliBar": exactly(100),
        "HectoPascal": exactly(100),
        "Pascal": exactly(1),
        "KiloPascal": exactly(10**3),
        "MegaPascal": exactly(10**6),
        "PoundForcePerSquareInch": exactly(POUND * GRAVITY / INCH**2),
        "KiloGramForcePerSquareCentimeter": exactly(GRAVITY * 10**4),
        "StandardAtmosphere": exactly(ATMOSPHERE),
        "Torr": exactly(ATMOSPHERE / 760),
        "MillimeterOfMercury": exactly(MERCURY * GRAVITY / 1000),
        "InchOfMercury": exactly(MERCURY * GRAVITY * INCH),
        "MillimeterOfWater": exactly(WATER * GRAVITY / 1000),
        "InchOfWater": exactly(WATER * GRAVITY * INCH),
    },
    # in one
    "Ratio": {
        "Percentage": exactly("1e-2"),
        "PartsPerMillion": exactly("1e-6"),
        "PartsPerBillion": exactly("1e-9"),
        "Fraction": exactly(1),
    },
    # in kilogram of water per kilogram of dry gas
    "MixingRatio": {
        "GramPerKiloGram": exactly("1e-3"),
        "KiloGramPerKiloGram": exactly(1),
        "GrainPerPound": exactly(GRAIN / POUND),
    },
    # in percent
    "RelativeHumidity": {
        "RelHumidity": exactly(1),
    },
    # in kilogram per cubic metre
    "AbsoluteHumidity": {
        "GramPerCubicMeter": exactly("1e-3"),
        "MilliGramPerCubicMeter": exactly("1e-6"),
        "GrainPerCubicFoot": exactly(GRAIN / FOOT**3),
        "PoundPerMillionCubicFoot": exactly(POUND / (10**6 * FOOT**3)),
    },
    # in kelvin
    "AbsoluteTemperature": {
        "DegreeCelsius": exactly(1, "273.15"),
        "DegreeFahrenheit": exactly(DEGREE_FAHRENHEIT, DEGREE_FAHRENHEIT * Fraction("459.67")),
        "Kelvin": exactly(1),
        "DegreeRankine": exactly(DEGREE_FAHRENHEIT),
    },
    # in ohm
    "Resistance": {
        "Ohm": exactly(1),
        "MilliOhm": exactly("1e-3"),
        "KiloOhm": exactly(10**3),
        "MegaOhm": exactly(10**6),
    },
    # in volt
    "Voltage": {
        "Volt": exactly(1),
        "MicroVolt": exactly("1e-6"),
        "MilliVolt": exactly("1e-3"),
        "KiloVolt": exactly(10**3),
    },
    # in second
    "Time": {
        "Seconds": exactly(1),
        "MilliSeconds": exactly("1e-3"),
        "Minutes": exactly(60),
        "Hours": exactly(3600),
        "Days": exactly(86400),
    },
    # in joule per kilogram
    "SpecificEnthalpy": {
        "KiloJoulePerKiloGram": exactly(10**3),
        "JoulePerGram": exactly(10**3),
        "KiloCaloriePerKiloGram": exactly(CALORIE * 1000),
        "BtuPerPound": exactly(CALORIE * 1000 * DEGREE_FAHRENHEIT),
    },
    NO_UNIT: {},
}


def polynomial(source, target):
    """Coefficients, constant term first, that take a value in source to target: each the double nearest to it."""
    return [[float((source.zero - target.zero) / target.size)], [float(source.size / target.size)]]


def require_object(value, where):
    if not isinstance(value, dict):
        raise UnusableDocument(f"{where} is not an object")


def unit_types_of(document):
    """The unit types of a document without notes for editors, such as "$schema"."""
    require_object(document, "the document")
    result = {name: units for name, units in document.items() if not name.startswith("$")}
    for unit_type, units in result.items():
        require_object(units, unit_type)
        for name, unit in units.items():
            require_object(unit, f"{unit_type}/{name}")
            if POSITION not in unit:
                raise UnusableDocument(f"{unit_type}/{name} has no {POSITION}")
    return result


def base_unit(unit_type, units):
    for name, unit in units.items():
        if unit[POSITION] == 0:
            return name
    raise UnusableDocument(f"{unit_type} has no base unit, which has {POSITION} 0")


def read_document(path):
    try:
        with open(path, encoding="utf-8") as file:
            return unit_types_of(json.load(file))
    except OSError as error:
        raise UnusableDocument(error.strerror) from error
    except (ValueError, RecursionError) as error:
        raise UnusableDocument(f"not JSON: {error}") from error


def expected_coefficients(definitions, base):
    """Unit name -> the two polynomials of a unit type whose base unit is base."""
    return {
        name: {
            "Polynomial": polynomial(definitions[base], unit),
            "InversePolynomial": polynomial(unit, definitions[base]),
        }
        for name, unit in definitions.items()
    }


def difference_of_names(where, defined, documented):
    return [f"{where}: {name} has no definition" for name in documented if name not in defined] + [
        f"{where}: {name} is not in the document" for name in defined if name not in documented
    ]


def findings(document):
    """One line for each coefficient, unit or unit type in which the document and the definitions differ."""
    result = difference_of_names("document", DEFINITIONS, document)
    for unit_type in DEFINITIONS.keys() & document.keys():
        units = {name: unit for name, unit in document[unit_type].items() if name != NO_UNIT}
        result += difference_of_names(unit_type, DEFINITIONS[unit_type], units)
        if units.keys() != DEFINITIONS[unit_type].keys() or not units:
            continue
        for name, polynomials in expected_coefficients(DEFINITIONS[unit_type], base_unit(unit_type, units)).items():
            result += [
                f"{unit_type}/{name}: {key} is {units[name].get(key)}, its definition gives {coefficients}"
                for key, coefficients in polynomials.items()
                if units[name].get(key) != coefficients
            ]
    return sorted(result)


def coefficient_lines(document):
    """One line per unit, in the form of the document."""
    result = []
    for unit_type, definitions in DEFINITIONS.items():
        if not definitions:
            continue
        if unit_type not in document:
            raise UnusableDocument(f"the document has no unit type {unit_type}")
        base = base_unit(unit_type, document[unit_type])
        if base not in definitions:
            raise UnusableDocument(f"{unit_type}/{base} has no definition")
        for name, polynomials in expected_coefficients(definitions, base).items():
            result.append(f"{unit_type}/{name} {json.dumps(polynomials)}")
    return result


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true", help="compare the document with the definitions")
    parser.add_argument("document", help="the unit document, units.json")
    arguments = parser.parse_args()
    try:
        document = read_document(arguments.document)
        lines = findings(document) if arguments.check else coefficient_lines(document)
    except UnusableDocument as error:
        print(f"coefficients.py: {arguments.document}: {error}", file=sys.stderr)
        return 2
    for line in lines:
        print(line, file=sys.stderr if arguments.check else sys.stdout)
    return 1 if arguments.check and lines else 0


if __name__ == "__main__":
    sys.exit(main())
