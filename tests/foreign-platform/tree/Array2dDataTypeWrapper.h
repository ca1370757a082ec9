#pragma once

#include <QtCore/QList>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtCore/QVector>

/// A table: its cells are stored row by row, and missing cells of short rows are invalid variants.
class Array2dDataTypeWrapper
{
public:
    /// @param data rows, or single values as rows of one column
    /// @param dimensions the unit type of each column
    Array2dDataTypeWrapper(const QList<QVariant>& data, const QList<QVariant>& dimensions);
    virtual ~Array2dDataTypeWrapper();

    /// @return the numbers of rows and of columns.
    virtual QVector<unsigned int> getDimensions() const;
    QVector<unsigned int> getArrayType() const;
    void reset(const QList<QVariant>& data, const QList<QVariant>& dimensions);

    QStringList getColumnUnitTypes() const;
    QList<QVariant> getData() const;
    QList<QVariant> getRowValues(unsigned int row) const;
    QList<QVariant> getRowValues(unsigned int row, unsigned int firstColumn, unsigned int columnCount) const;
    QList<QVariant> getColumnValues(unsigned int column) const;
    bool setRowValues(const QList<QVariant>& values, unsigned int row);
    bool setRowValues(const QList<QVariant>& values, unsigned int row, unsigned int firstColumn,
                      unsigned int columnCount);

private:
    bool contains(unsigned int row, unsigned int firstColumn, unsigned int columnCount) const;
    int cell(unsigned int row, unsigned int column) const;

    QVector<QVariant> m_cells;
    unsigned int m_rows = 0;
    unsigned int m_columns = 0;
    QStringList m_unitTypes;
};
