#pragma once

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtCore/QVector>

class Array2dDataTypeWrapper
{
public:
    Array2dDataTypeWrapper(const QList<QVariant>& data, const QList<QVariant>& dimensions);
    virtual ~Array2dDataTypeWrapper();

    /// The numbers of rows and of columns.
    virtual QVector<unsigned int> getDimensions() const;
    QVector<unsigned int> getArrayType() const;
    void reset(const QList<QVariant>& data, const QList<QVariant>& dimensions);
    QStringList getColumnUnitTypes() const;
    QList<QVariant> getRowValues(unsigned int row) const;
    QList<QVariant> getRowValues(unsigned int row, unsigned int firstColumn, unsigned int columnCount) const;
    QList<QVariant> getColumnValues(unsigned int column) const;
    bool setRowValues(const QList<QVariant>& values, unsigned int row);
    bool setRowValues(const QList<QVariant>& values, unsigned int row, unsigned int firstColumn,
                      unsigned int columnCount);
};
