#include "ArrayDataTypeWrapper.h"

ArrayDataTypeWrapper::ArrayDataTypeWrapper(const QList<QVariant>& data, const QList<QVariant>& dimensions)
{
    reset(data, dimensions);
}

ArrayDataTypeWrapper::~ArrayDataTypeWrapper() = default;

QVector<unsigned int> ArrayDataTypeWrapper::getDimensions() const
{
    return getArrayType();
}

void ArrayDataTypeWrapper::reset(const QList<QVariant>& data, const QList<QVariant>& dimensions)
{
    m_data = data;
    m_unitType = dimensions.value(0).toString();
}

QVector<unsigned int> ArrayDataTypeWrapper::getArrayType() const
{
    return {static_cast<unsigned int>(m_data.size())};
}

QString ArrayDataTypeWrapper::getUnitType() const
{
    return m_unitType;
}

QList<QVariant> ArrayDataTypeWrapper::getValues() const
{
    return m_data;
}

QList<QVariant> ArrayDataTypeWrapper::getValues(unsigned int first, unsigned int count) const
{
    return hasValues(first, count) ? m_data.mid(static_cast<int>(first), static_cast<int>(count))
                                   : QList<QVariant>();
}

bool ArrayDataTypeWrapper::setValues(const QList<QVariant>& values)
{
    return values.size() == m_data.size() && setValues(values, 0, static_cast<unsigned int>(values.size()));
}

bool ArrayDataTypeWrapper::setValues(const QList<QVariant>& values, unsigned int first, unsigned int count)
{
    if (!hasValues(first, count) || static_cast<unsigned int>(values.size()) < count)
        return false;
    for (unsigned int index = 0; index < count; ++index)
        m_data[static_cast<int>(first + index)] = values.at(static_cast<int>(index));
    return true;
}

bool ArrayDataTypeWrapper::hasValues(unsigned int first, unsigned int count) const
{
    // Avoids adding both numbers, which could overflow.
    const auto size = static_cast<unsigned int>(m_data.size());
    return first <= size && count <= size - first;
}
