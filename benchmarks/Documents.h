#pragma once

#include <QtCore/QString>

#include "UnitManager.h"

/// The documents that the benchmarks load, and managers built from them.
namespace Documents {

/// The text of a shipped document. @return empty if it cannot be read.
const QString& shippedUnits();
const QString& shippedDefaultUnits();
const QString& shippedDependencies();

/// A document in the form of the shipped unit document, with @p unitCount units, twenty per unit type.
/// @param unitCount must be a multiple of twenty
QString generatedUnits(int unitCount);

/// The number of units that @p manager knows.
int unitCount(const UnitManager& manager);

/// A manager with the shipped documents loaded.
const UnitManager& shippedManager();

/// Full name of the pressure type, and names of two of its units. The base unit is bar.
const QString& pressure();
const QString& hectoPascal();
const QString& pressureInBar();

} // namespace Documents
