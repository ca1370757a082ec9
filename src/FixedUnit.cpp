#include "FixedUnit.h"

#include <algorithm>

#include "PropertyManagerConst.h"

namespace {

const QLatin1Char separator('/');

/// Hot path; written so that it vectorises, which QString::count() does not.
int countSeparators(const QString& text)
{
    int count = 0;
    for (const QChar character : text)
        count += static_cast<int>(character == separator);
    return count;
}

/// Content of @p header for a static string whose characters begin at @p characters, as in a string literal.
/// Its reference count marks it as never freed. Only the address of @p header is used.
QStringData headerOf(const QStringData& header, const QChar* characters, int size)
{
    // A distance between two objects: pointers into different objects must not be subtracted.
    const quintptr offset = reinterpret_cast<quintptr>(characters) - reinterpret_cast<quintptr>(&header);
    return {{Q_REFCOUNT_INITIALIZE_STATIC, size, 0, 0, static_cast<qptrdiff>(offset)}};
}

/// The string that @p header describes.
QString headedBy(QStringData& header)
{
    return QString(QStringDataPtr{&header});
}

} // namespace

namespace FixedUnit {

QString unitTypeNamed(const QString& name)
{
    return PropertyManagerConst::getUnitTypeNamePrefix() + name;
}

QString join(const QString& unitType, const QString& unit)
{
    return unitType + separator + unit;
}

bool isFixedUnit(const QString& unitType)
{
    static const int separators = countSeparators(PropertyManagerConst::getUnitTypeNamePrefix()) + 1;
    return countSeparators(unitType) == separators;
}

bool isFixedUnitName(const QString& name)
{
    return countSeparators(name) == 1;
}

QString unitTypeOf(const QString& fixedUnit)
{
    return fixedUnit.left(fixedUnit.lastIndexOf(separator));
}

QString unitOf(const QString& fixedUnit)
{
    const int last = fixedUnit.lastIndexOf(separator);
    return last < 0 ? fixedUnit : fixedUnit.mid(last + 1);
}

Parts::Parts(const QString& fixedUnit)
    : m_separator(fixedUnit.lastIndexOf(separator)),
      m_unitTypeHeader(headerOf(m_unitTypeHeader, fixedUnit.constData(), std::max(m_separator, 0))),
      m_unitHeader(headerOf(m_unitHeader, fixedUnit.constData() + m_separator + 1,
                            fixedUnit.size() - m_separator - 1)),
      m_unitType(headedBy(m_unitTypeHeader)),
      m_unit(headedBy(m_unitHeader))
{}

bool Parts::areValid() const
{
    return m_separator >= 0;
}

} // namespace FixedUnit
