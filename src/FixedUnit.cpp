#include "FixedUnit.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "PropertyManagerConst.h"

namespace {

const QLatin1Char separator('/');

// Asked in every conversion: QString's own startsWith() and count() would take longer than the arithmetic.

bool hasOneSeparator(const QChar* begin, const QChar* end)
{
    const QChar* const first = std::find(begin, end, separator);
    return first != end && std::find(first + 1, end, separator) == end;
}

bool startsWith(const QString& text, const QString& start)
{
    return text.size() >= start.size() &&
           std::memcmp(text.constData(), start.constData(),
                       static_cast<std::size_t>(start.size()) * sizeof(QChar)) == 0;
}

} // namespace

namespace FixedUnit {

bool isFixedUnit(const QString& unitType)
{
    static const QString prefix = PropertyManagerConst::getUnitTypeNamePrefix();
    // Nearly every unit type begins with the prefix, whose separators need not be counted again.
    if (startsWith(unitType, prefix))
        return hasOneSeparator(unitType.cbegin() + prefix.size(), unitType.cend());
    return unitType.count(separator) == prefix.count(separator) + 1;
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
