#pragma once

#include <QtCore/QString>

#include "PropertyManagerConst.h"

/// The prefix of unit types in the literals of the tests.
const QLatin1String literalPrefix("UnitManager/UnitType/");

/// A document or message of a test, with the unit-type prefix of the platform instead of literalPrefix.
inline QString withPlatformPrefix(QString text)
{
    return text.replace(literalPrefix, PropertyManagerConst::getUnitTypeNamePrefix());
}

/// The identifier of a unit type on the platform; @p name may include a unit.
inline QString typeNamed(const char* name)
{
    return PropertyManagerConst::getUnitTypeNamePrefix() + QLatin1String(name);
}
