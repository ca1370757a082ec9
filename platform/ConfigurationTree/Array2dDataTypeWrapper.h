#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include "ConfigurationTreeExport.h"

/// A nested list used as a table of rows and columns.
///
/// Each element of the list is a row; an element that is not a list counts as a row of one column, so `[0,
/// 100]` and `[[0], [100]]` are the same table. The longest row determines the number of columns; the missing
/// cells of a shorter row are invalid variants. The wrapper holds its own (implicitly shared) copy of the
/// list.
class CONFIGURATIONTREE_EXPORT Array2dDataTypeWrapper
{
public:
    /// @param data the rows.
    /// @param dimensions one entry per column: the name of the column's unit type, empty for none. Columns
    /// without an entry have no unit type; entries beyond the last column are ignored.
    Array2dDataTypeWrapper(const QList<QVariant>& data, const QList<QVariant>& dimensions);
    virtual ~Array2dDataTypeWrapper();
    Array2dDataTypeWrapper(const Array2dDataTypeWrapper&) = default;
    Array2dDataTypeWrapper& operator=(const Array2dDataTypeWrapper&) = default;

    /// @return the number of rows and the number of columns, always two entries; (0, 0) for an empty list.
    virtual QVector<unsigned int> getDimensions() const;

    /// Replaces the data; for the parameters see the constructor.
    void reset(const QList<QVariant>& data, const QList<QVariant>& dimensions);

    /// @return the number of rows and the number of columns of the data.
    QVector<unsigned int> getArrayType() const;
    /// @return one unit type per column; an empty text for a column without one.
    QStringList getColumnUnitTypes() const;
    /// @return the rows as passed in, with the changes made by setRowValues().
    QList<QVariant> getData() const;

    /// @return all cells of a row, one per column; an empty list when there is no such row.
    QList<QVariant> getRowValues(unsigned int row) const;
    /// @return @p columnCount cells of a row from @p firstColumn on; an empty list when the row or one of the
    /// columns does not exist.
    QList<QVariant> getRowValues(unsigned int row, unsigned int firstColumn, unsigned int columnCount) const;
    /// @return all cells of a column, one per row; an empty list when there is no such column.
    QList<QVariant> getColumnValues(unsigned int column) const;

    /// Replaces a row. @return false, with nothing written, when there is no such row or the number of
    /// @p values is not the number of columns.
    bool setRowValues(const QList<QVariant>& values, unsigned int row);
    /// Replaces @p columnCount cells of a row from @p firstColumn on by the first entries of @p values.
    ///
    /// @return false, with nothing written, when the row or one of the columns does not exist or @p values
    /// has too few entries. With a count of 0 nothing changes.
    bool setRowValues(const QList<QVariant>& values, unsigned int row, unsigned int firstColumn,
                      unsigned int columnCount);

private:
    bool hasCells(unsigned int row, unsigned int firstColumn, unsigned int columnCount) const;

    QList<QVariant> m_data;
    QStringList m_columnUnitTypes;
    unsigned int m_columns = 0;
};
