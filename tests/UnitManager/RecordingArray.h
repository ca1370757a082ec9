#pragma once

#include "Array2dDataTypeWrapper.h"

/// An array that answers with given dimensions, whatever its data, and counts how often it is asked for them.
class RecordingArray : public Array2dDataTypeWrapper
{
public:
    RecordingArray(const QList<QVariant>& data, const QList<QVariant>& unitTypes,
                   const QVector<unsigned int>& dimensions);

    QVector<unsigned int> getDimensions() const override;

    int dimensionQuestions() const;

private:
    QVector<unsigned int> m_dimensions;
    mutable int m_dimensionQuestions = 0;
};
