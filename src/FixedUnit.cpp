#include "FixedUnit.h"

#include "PropertyManagerConst.h"

namespace {

const QLatin1Char separator('/');

} // namespace

namespace FixedUnit {

bool isFixedUnit(const QString& unitType)
{
    return unitType.count(separator) == PropertyManagerConst::getUnitTypeNamePrefix().count(separator) + 1;
}

QString unitTypeOf(const QString& fixedUnit)
{
    return fixedUnit.left(fixedUnit.lastIndexOf(separator));
}

QString unitOf(const QString& fixedUnit)
{
    return fixedUnit.mid(fixedUnit.lastIndexOf(separator) + 1);
}

} // namespace FixedUnit
