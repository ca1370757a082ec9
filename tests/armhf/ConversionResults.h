#pragma once

#include <QtCore/QString>

#include <vector>

#include "UnitManager.h"

/// The results of every conversion of a catalogue, in every form that the library offers, for comparisons
/// between processors.
namespace ConversionResults {

using Numbers = std::vector<double>;

/// What identifies a unit: a type and a unit, a type alone (its default unit), or a fixed unit alone.
struct UnitName
{
    QString unitType;
    QString unit;
};

/// A form of conversion: a function of the library, applied to many numbers.
struct Form
{
    const char* name;
    Numbers (*results)(const UnitManager& units, const UnitName& name, const Numbers& numbers);
};

/// Ten thousand numbers, the same on every processor: both zeros, halves, subnormal and huge numbers, NaNs
/// with and without the signalling bit, infinities, random ones. The first landmarkCount of them have one of
/// each kind.
const Numbers& numbers();
const std::size_t landmarkCount = 8;

const std::vector<Form>& forms();

/// Every name of every unit of the catalogue, sorted.
std::vector<UnitName> unitNames(const UnitManager& units);

/// Sixteen hexadecimal digits.
QByteArray hexadecimal(double number);

} // namespace ConversionResults
