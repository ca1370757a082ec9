#include "RecordingArray.h"

RecordingArray::RecordingArray(const QList<QVariant>& data, const QList<QVariant>& unitTypes,
                               const QVector<unsigned int>& dimensions)
    : Array2dDataTypeWrapper(data, unitTypes), m_dimensions(dimensions)
{}

QVector<unsigned int> RecordingArray::getDimensions() const
{
    ++m_dimensionQueries;
    return m_dimensions;
}

int RecordingArray::dimensionQueries() const
{
    return m_dimensionQueries;
}
