#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include "ConfigurationTreeExport.h"

/// A list used as a one-dimensional array of values of one unit type.
///
/// The wrapper holds its own (implicitly shared) copy of the list.
class CONFIGURATIONTREE_EXPORT ArrayDataTypeWrapper
{
public:
    /// @param data the values.
    /// @param dimensions the name of the values' unit type as the first entry; an empty list or text for
    /// none.
    ArrayDataTypeWrapper(const QList<QVariant>& data, const QList<QVariant>& dimensions);
    virtual ~ArrayDataTypeWrapper();
    ArrayDataTypeWrapper(const ArrayDataTypeWrapper&) = default;
    ArrayDataTypeWrapper& operator=(const ArrayDataTypeWrapper&) = default;

    /// @return the number of values, always one entry.
    virtual QVector<unsigned int> getDimensions() const;

    /// Replaces the data; for the parameters see the constructor.
    void reset(const QList<QVariant>& data, const QList<QVariant>& dimensions);

    /// @return the number of values, always one entry.
    QVector<unsigned int> getArrayType() const;
    /// @return the unit type of the values; an empty text for none.
    QString getUnitType() const;

    /// @return all values.
    QList<QVariant> getValues() const;
    /// @return @p count values from @p first on; an empty list when one of them does not exist.
    QList<QVariant> getValues(unsigned int first, unsigned int count) const;

    /// Replaces all values. @return false, with nothing written, when @p values has a different length.
    bool setValues(const QList<QVariant>& values);
    /// Replaces @p count values from @p first on by the first entries of @p values.
    ///
    /// @return false, with nothing written, when one of them does not exist or @p values has too few entries.
    /// With a count of 0 nothing changes.
    bool setValues(const QList<QVariant>& values, unsigned int first, unsigned int count);

private:
    bool hasValues(unsigned int first, unsigned int count) const;

    QList<QVariant> m_data;
    QString m_unitType;
};
