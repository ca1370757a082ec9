#include "Array2dDataTypeWrapper.h"
#include "Checks.h"

namespace {

const QVariantList rows = {QVariantList{1, 2, 3, 4}, QVariantList{5, 6, 7, 8}};
const QVariantList unitTypes = {"A", "B"};

void sizesAreRowsAndColumns(Faults& faults)
{
    const Array2dDataTypeWrapper table(rows, unitTypes);
    faults.expect(table.getArrayType() == QVector<unsigned int>({2, 4}) &&
                      table.getDimensions() == table.getArrayType(),
                  "two rows and four columns");
    faults.expect(table.getColumnUnitTypes() == QStringList({"A", "B", "", ""}),
                  "each column has a unit type, which may be empty");
    faults.expect(Array2dDataTypeWrapper({1, 2, 3}, {}).getArrayType() == QVector<unsigned int>({3, 1}),
                  "a list of values has one column");
    Array2dDataTypeWrapper replaced(rows, unitTypes);
    replaced.reset({QVariant(QVariantList{1, 2})}, {});
    faults.expect(replaced.getArrayType() == QVector<unsigned int>({1, 2}) &&
                      replaced.getColumnUnitTypes() == QStringList({"", ""}),
                  "reset replaces data and unit types");
}

void wholeRowsAndColumnsAreRead(Faults& faults)
{
    const Array2dDataTypeWrapper table(rows, unitTypes);
    faults.expect(table.getRowValues(1) == QVariantList({5, 6, 7, 8}), "a row has all its cells");
    faults.expect(table.getRowValues(2).isEmpty(), "a missing row is empty");
    faults.expect(table.getColumnValues(2) == QVariantList({3, 7}), "a column has a cell of each row");
    faults.expect(table.getColumnValues(4).isEmpty(), "a missing column is empty");
}

void partsOfRowsAreRead(Faults& faults)
{
    const Array2dDataTypeWrapper table(rows, unitTypes);
    faults.expect(table.getRowValues(1, 2, 1) == QVariantList({7}),
                  "the last parameter is the number of columns, not the last column");
    faults.expect(table.getRowValues(0, 1, 3) == QVariantList({2, 3, 4}), "a part may end with the row");
    faults.expect(table.getRowValues(0, 2, 3).isEmpty(), "a part beyond the row is empty");
}

void wholeRowsAreWritten(Faults& faults)
{
    Array2dDataTypeWrapper table(rows, unitTypes);
    faults.expect(table.setRowValues({9, 10, 11, 12}, 0) &&
                      table.getRowValues(0) == QVariantList({9, 10, 11, 12}),
                  "a row is replaced");
    faults.expect(!table.setRowValues({9}, 0) && !table.setRowValues({9, 10, 11, 12}, 2),
                  "another number of cells and a missing row are refused");
    faults.expect(rows.first() == QVariant(QVariantList{1, 2, 3, 4}), "the list given is not modified");
}

void partsOfRowsAreWritten(Faults& faults)
{
    Array2dDataTypeWrapper table(rows, unitTypes);
    faults.expect(table.setRowValues({9, 10}, 1, 2, 2) && table.getColumnValues(2) == QVariantList({3, 9}) &&
                      table.getColumnValues(0) == QVariantList({1, 5}),
                  "exactly the cells of the part are replaced");
    faults.expect(!table.setRowValues({9, 10}, 1, 3, 2), "a part beyond the row is refused");
}

} // namespace

QList<Check> tableChecks()
{
    return {
        {"table: sizes are rows and columns",
         {"Array2dDataTypeWrapper::Array2dDataTypeWrapper(QList<QVariant> const&, QList<QVariant> const&)",
          "Array2dDataTypeWrapper::~Array2dDataTypeWrapper()", "Array2dDataTypeWrapper::getArrayType() const",
          "Array2dDataTypeWrapper::getColumnUnitTypes() const",
          "Array2dDataTypeWrapper::reset(QList<QVariant> const&, QList<QVariant> const&)"},
         sizesAreRowsAndColumns},
        {"table: whole rows and columns are read",
         {"Array2dDataTypeWrapper::getRowValues(unsigned int) const",
          "Array2dDataTypeWrapper::getColumnValues(unsigned int) const"},
         wholeRowsAndColumnsAreRead},
        {"table: parts of rows are read",
         {"Array2dDataTypeWrapper::getRowValues(unsigned int, unsigned int, unsigned int) const"},
         partsOfRowsAreRead},
        {"table: whole rows are written",
         {"Array2dDataTypeWrapper::setRowValues(QList<QVariant> const&, unsigned int)"},
         wholeRowsAreWritten},
        {"table: parts of rows are written",
         {"Array2dDataTypeWrapper::setRowValues(QList<QVariant> const&, unsigned int, unsigned int, unsigned "
          "int)"},
         partsOfRowsAreWritten},
    };
}
