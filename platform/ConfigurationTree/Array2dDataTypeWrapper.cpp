#include "Array2dDataTypeWrapper.h"

#include <algorithm>

namespace {

bool isRowList(const QVariant& row)
{
    return row.canConvert(QVariant::List);
}

QVariantList cellsOf(const QVariant& row)
{
    return isRowList(row) ? row.toList() : QVariantList{row};
}

QVariant cellOf(const QVariant& row, int column)
{
    if (isRowList(row))
        return row.toList().value(column);
    return column == 0 ? row : QVariant();
}

} // namespace

Array2dDataTypeWrapper::Array2dDataTypeWrapper(const QList<QVariant>& data, const QList<QVariant>& dimensions)
{
    reset(data, dimensions);
}

Array2dDataTypeWrapper::~Array2dDataTypeWrapper() = default;

QVector<unsigned int> Array2dDataTypeWrapper::getDimensions() const
{
    return getArrayType();
}

void Array2dDataTypeWrapper::reset(const QList<QVariant>& data, const QList<QVariant>& dimensions)
{
    m_data = data;
    m_columns = 0;
    for (const QVariant& row : data)
        m_columns = std::max(m_columns, static_cast<unsigned int>(cellsOf(row).size()));
    m_columnUnitTypes.clear();
    for (int column = 0; column < static_cast<int>(m_columns); ++column)
        m_columnUnitTypes.append(dimensions.value(column).toString());
}

QVector<unsigned int> Array2dDataTypeWrapper::getArrayType() const
{
    return {static_cast<unsigned int>(m_data.size()), m_columns};
}

QStringList Array2dDataTypeWrapper::getColumnUnitTypes() const
{
    return m_columnUnitTypes;
}

QList<QVariant> Array2dDataTypeWrapper::getData() const
{
    return m_data;
}

QList<QVariant> Array2dDataTypeWrapper::getRowValues(unsigned int row) const
{
    return getRowValues(row, 0, m_columns);
}

QList<QVariant> Array2dDataTypeWrapper::getRowValues(unsigned int row, unsigned int firstColumn,
                                                     unsigned int columnCount) const
{
    if (!hasCells(row, firstColumn, columnCount))
        return {};
    const QVariantList cells = cellsOf(m_data.at(static_cast<int>(row)));
    // The list is shared, not copied, when the whole row is requested.
    if (firstColumn == 0 && static_cast<int>(columnCount) == cells.size())
        return cells;
    QList<QVariant> values;
    values.reserve(static_cast<int>(columnCount));
    for (unsigned int column = firstColumn; column < firstColumn + columnCount; ++column)
        values.append(cells.value(static_cast<int>(column)));
    return values;
}

QList<QVariant> Array2dDataTypeWrapper::getColumnValues(unsigned int column) const
{
    QList<QVariant> values;
    if (column >= m_columns)
        return values;
    values.reserve(m_data.size());
    for (const QVariant& row : m_data)
        values.append(cellOf(row, static_cast<int>(column)));
    return values;
}

bool Array2dDataTypeWrapper::setRowValues(const QList<QVariant>& values, unsigned int row)
{
    return static_cast<unsigned int>(values.size()) == m_columns && setRowValues(values, row, 0, m_columns);
}

bool Array2dDataTypeWrapper::setRowValues(const QList<QVariant>& values, unsigned int row,
                                          unsigned int firstColumn, unsigned int columnCount)
{
    if (!hasCells(row, firstColumn, columnCount) || static_cast<unsigned int>(values.size()) < columnCount)
        return false;
    QVariant& stored = m_data[static_cast<int>(row)];
    // A table with one column keeps its form: a plain list of values.
    if (m_columns == 1 && !isRowList(stored)) {
        stored = values.value(0, stored);
        return true;
    }
    if (columnCount == m_columns && static_cast<unsigned int>(values.size()) == m_columns) {
        stored = QVariant(values);
        return true;
    }
    QList<QVariant> cells = getRowValues(row);
    for (unsigned int index = 0; index < columnCount; ++index)
        cells[static_cast<int>(firstColumn + index)] = values.at(static_cast<int>(index));
    stored = QVariant(cells);
    return true;
}

bool Array2dDataTypeWrapper::hasCells(unsigned int row, unsigned int firstColumn,
                                      unsigned int columnCount) const
{
    // Avoids adding both numbers, which could overflow.
    return row < static_cast<unsigned int>(m_data.size()) && firstColumn <= m_columns &&
           columnCount <= m_columns - firstColumn;
}
