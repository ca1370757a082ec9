#pragma once

#include "Array2dDataTypeWrapper.h"

/// An array with given dimensions, regardless of its data, that counts the queries for them.
class RecordingArray : public Array2dDataTypeWrapper
{
public:
    RecordingArray(const QList<QVariant>& data, const QList<QVariant>& unitTypes,
                   const QVector<unsigned int>& dimensions);

    QVector<unsigned int> getDimensions() const override;

    int dimensionQueries() const;

private:
    QVector<unsigned int> m_dimensions;
    mutable int m_dimensionQueries = 0;
};
