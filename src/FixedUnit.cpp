#include "FixedUnit.h"

#include "PropertyManagerConst.h"

namespace {

const QLatin1Char separator('/');

/// Asked in every conversion: compilers make vectors of this loop, which they cannot of QString's own
/// count().
int countSeparators(const QString& text)
{
    int count = 0;
    for (const QChar character : text)
        count += static_cast<int>(character == separator);
    return count;
}

} // namespace

namespace FixedUnit {

bool isFixedUnit(const QString& unitType)
{
    static const int separators = countSeparators(PropertyManagerConst::getUnitTypeNamePrefix()) + 1;
    return countSeparators(unitType) == separators;
}

bool isFixedUnitBehindPrefix(const QString& name)
{
    return countSeparators(name) == 1;
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
