#pragma once

#include <QtCore/QString>

#include "UnitManager.h"

/// The documents that are loaded, and what is made of them.
namespace Documents {

/// The text of a shipped document. @return empty when it cannot be read.
const QString& shippedUnits();
const QString& shippedDefaultUnits();
const QString& shippedDependencies();

/// A unit document of the shipped one's kind with @p unitCount units, twenty in each unit type.
/// @param unitCount a multiple of twenty
QString generatedUnits(int unitCount);

/// The number of units that @p manager knows.
int unitCount(const UnitManager& manager);

/// A manager of the shipped documents.
const UnitManager& shippedManager();

/// Full name of the pressure type, and names of two of its units. The base unit is bar.
const QString& pressure();
const QString& hectoPascal();
const QString& pressureInBar();

} // namespace Documents
