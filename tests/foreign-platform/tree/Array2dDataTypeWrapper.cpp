#include "Array2dDataTypeWrapper.h"

#include <algorithm>

namespace {

QVariantList asRow(const QVariant& row)
{
    return row.userType() == QMetaType::QVariantList ? row.toList() : QVariantList{row};
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

QVector<unsigned int> Array2dDataTypeWrapper::getArrayType() const
{
    return {m_rows, m_columns};
}

void Array2dDataTypeWrapper::reset(const QList<QVariant>& data, const QList<QVariant>& dimensions)
{
    m_rows = static_cast<unsigned int>(data.size());
    m_columns = 0;
    for (const QVariant& row : data)
        m_columns = std::max(m_columns, static_cast<unsigned int>(asRow(row).size()));

    m_cells = QVector<QVariant>(static_cast<int>(m_rows * m_columns));
    for (unsigned int row = 0; row < m_rows; ++row) {
        const QVariantList values = asRow(data.at(static_cast<int>(row)));
        std::copy(values.begin(), values.end(), m_cells.begin() + cell(row, 0));
    }
    m_unitTypes.clear();
    for (unsigned int column = 0; column < m_columns; ++column)
        m_unitTypes.append(dimensions.value(static_cast<int>(column)).toString());
}

QStringList Array2dDataTypeWrapper::getColumnUnitTypes() const
{
    return m_unitTypes;
}

QList<QVariant> Array2dDataTypeWrapper::getData() const
{
    QList<QVariant> rows;
    for (unsigned int row = 0; row < m_rows; ++row)
        rows.append(QVariant(getRowValues(row)));
    return rows;
}

QList<QVariant> Array2dDataTypeWrapper::getRowValues(unsigned int row) const
{
    return getRowValues(row, 0, m_columns);
}

QList<QVariant> Array2dDataTypeWrapper::getRowValues(unsigned int row, unsigned int firstColumn,
                                                     unsigned int columnCount) const
{
    if (!contains(row, firstColumn, columnCount))
        return {};
    return m_cells.mid(cell(row, firstColumn), static_cast<int>(columnCount)).toList();
}

QList<QVariant> Array2dDataTypeWrapper::getColumnValues(unsigned int column) const
{
    QList<QVariant> values;
    for (unsigned int row = 0; column < m_columns && row < m_rows; ++row)
        values.append(m_cells.at(cell(row, column)));
    return values;
}

bool Array2dDataTypeWrapper::setRowValues(const QList<QVariant>& values, unsigned int row)
{
    return static_cast<unsigned int>(values.size()) == m_columns && setRowValues(values, row, 0, m_columns);
}

bool Array2dDataTypeWrapper::setRowValues(const QList<QVariant>& values, unsigned int row,
                                          unsigned int firstColumn, unsigned int columnCount)
{
    if (!contains(row, firstColumn, columnCount) || static_cast<unsigned int>(values.size()) < columnCount)
        return false;
    std::copy_n(values.begin(), columnCount, m_cells.begin() + cell(row, firstColumn));
    return true;
}

bool Array2dDataTypeWrapper::contains(unsigned int row, unsigned int firstColumn,
                                      unsigned int columnCount) const
{
    return row < m_rows && firstColumn <= m_columns && columnCount <= m_columns - firstColumn;
}

int Array2dDataTypeWrapper::cell(unsigned int row, unsigned int column) const
{
    return static_cast<int>(row * m_columns + column);
}
