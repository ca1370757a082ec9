#include "Array2dDataTypeWrapper.h"

#include <QtTest/QTest>

#include <limits>
#include <type_traits>

#include "NodeText.h"
#include "Row.h"
#include "TestProgram.h"

using Indices = QVector<unsigned int>;

static_assert(std::has_virtual_destructor_v<Array2dDataTypeWrapper>);
static_assert(std::is_copy_constructible_v<Array2dDataTypeWrapper>);

namespace {

const unsigned int highest = std::numeric_limits<unsigned int>::max();

/// The data of a JSON array.
QVariantList list(const QString& json)
{
    const BaseClassSharedPointer root = parse(QStringLiteral("{\"@value\": %1}").arg(json));
    return root ? root->getProperty(QStringLiteral("@value")).toList() : QVariantList();
}

const QString threeByTwo = QStringLiteral(R"([[1, "x"], [2, "y"], [3, "z"]])");

} // namespace

class Array2dDataTypeWrapperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listIsSeenAsRowsAndColumns_data();
    void listIsSeenAsRowsAndColumns();
    void eachColumnHasItsUnitType_data();
    void eachColumnHasItsUnitType();
    void partOfARowIsRead_data();
    void partOfARowIsRead();
    void whatIsOutsideIsEmpty();
    void rowIsReplaced_data();
    void rowIsReplaced();
    void partOfARowIsReplaced_data();
    void partOfARowIsReplaced();
    void resetSelectsOtherData();
    void copyIsIndependent();
    void dimensionsCanBeOverridden();
};

void Array2dDataTypeWrapperTest::listIsSeenAsRowsAndColumns_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<Indices>("dimensions");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("columns");

    row("empty list", "[]", Indices{0, 0}, "", "");
    row("one column", "[[0], [100]]", Indices{2, 1}, "[0] [100]", "[0, 100]");
    row("one column without rows of its own", "[0, 100]", Indices{2, 1}, "[0] [100]", "[0, 100]");
    row("one column, both forms", "[0, [100]]", Indices{2, 1}, "[0] [100]", "[0, 100]");
    row("one cell", "[[7]]", Indices{1, 1}, "[7]", "[7]");
    row("one row", "[[1, 2, 3]]", Indices{1, 3}, "[1, 2, 3]", "[1] [2] [3]");
    row("two columns", "[[0, 10], [1, 20]]", Indices{2, 2}, "[0, 10] [1, 20]", "[0, 1] [10, 20]");
    row("short row", "[[1], [2, 3]]", Indices{2, 2}, "[1, invalid] [2, 3]", "[1, 2] [invalid, 3]");
    row("single value beside a longer row", "[[2, 3], 1]", Indices{2, 2}, "[2, 3] [1, invalid]",
        "[2, 1] [3, invalid]");
    row("empty row", "[[], [1]]", Indices{2, 1}, "[invalid] [1]", "[invalid, 1]");
    row("only empty rows", "[[], []]", Indices{2, 0}, "[] []", "");
    row("null as a row", "[null]", Indices{1, 1}, "[invalid]", "[invalid]");
    row("text and map as rows", R"(["ab", {"a": 1}])", Indices{2, 1}, R"(["ab"] [<a:1>])",
        R"(["ab", <a:1>])");
    row("third dimension as a cell", "[[[1, 2]]]", Indices{1, 1}, "[[1, 2]]", "[[1, 2]]");
}

void Array2dDataTypeWrapperTest::listIsSeenAsRowsAndColumns()
{
    QFETCH(QString, json);
    QFETCH(Indices, dimensions);
    const Array2dDataTypeWrapper array(list(json), {});

    QStringList rows;
    for (unsigned int row = 0; row < dimensions.at(0); ++row)
        rows.append(valueText(array.getRowValues(row)));
    QStringList columns;
    for (unsigned int column = 0; column < dimensions.at(1); ++column)
        columns.append(valueText(array.getColumnValues(column)));

    QCOMPARE(array.getDimensions(), dimensions);
    QCOMPARE(array.getArrayType(), dimensions);
    QTEST(rows.join(' '), "rows");
    QTEST(columns.join(' '), "columns");
    QCOMPARE(valueText(array.getData()), valueText(list(json)));
}

void Array2dDataTypeWrapperTest::eachColumnHasItsUnitType_data()
{
    QTest::addColumn<QVariantList>("given");
    QTest::addColumn<QStringList>("unitTypes");

    QTest::newRow("none") << QVariantList() << QStringList{"", ""};
    QTest::newRow("each column") << QVariantList{"P", "Q"} << QStringList{"P", "Q"};
    QTest::newRow("second column only") << QVariantList{"", "Q"} << QStringList{"", "Q"};
    QTest::newRow("fewer than columns") << QVariantList{"P"} << QStringList{"P", ""};
    QTest::newRow("more than columns") << QVariantList{"P", "Q", "R"} << QStringList{"P", "Q"};
    QTest::newRow("invalid variant for none") << QVariantList{QVariant(), "Q"} << QStringList{"", "Q"};
}

void Array2dDataTypeWrapperTest::eachColumnHasItsUnitType()
{
    QFETCH(QVariantList, given);
    const Array2dDataTypeWrapper array(list(threeByTwo), given);

    QTEST(array.getColumnUnitTypes(), "unitTypes");
}

void Array2dDataTypeWrapperTest::partOfARowIsRead_data()
{
    QTest::addColumn<unsigned int>("row");
    QTest::addColumn<unsigned int>("firstColumn");
    QTest::addColumn<unsigned int>("columnCount");
    QTest::addColumn<QString>("values");

    QTest::newRow("whole row") << 1U << 0U << 2U << "[2, \"y\"]";
    QTest::newRow("first cell") << 1U << 0U << 1U << "[2]";
    QTest::newRow("last cell") << 2U << 1U << 1U << "[\"z\"]";
    QTest::newRow("no cell") << 1U << 0U << 0U << "[]";
    QTest::newRow("no cell after the last") << 1U << 2U << 0U << "[]";
    QTest::newRow("one cell too many") << 1U << 0U << 3U << "[]";
    QTest::newRow("one cell after the last") << 1U << 2U << 1U << "[]";
    QTest::newRow("row after the last") << 3U << 0U << 1U << "[]";
    QTest::newRow("highest row") << highest << 0U << 1U << "[]";
    QTest::newRow("end overflows to 0") << 1U << highest << 1U << "[]";
    QTest::newRow("end overflows to 1") << 1U << 2U << highest << "[]";
}

void Array2dDataTypeWrapperTest::partOfARowIsRead()
{
    QFETCH(unsigned int, row);
    QFETCH(unsigned int, firstColumn);
    QFETCH(unsigned int, columnCount);
    const Array2dDataTypeWrapper array(list(threeByTwo), {});

    QTEST(valueText(array.getRowValues(row, firstColumn, columnCount)), "values");
}

void Array2dDataTypeWrapperTest::whatIsOutsideIsEmpty()
{
    const Array2dDataTypeWrapper array(list(threeByTwo), {});
    QCOMPARE(array.getRowValues(3), QVariantList());
    QCOMPARE(array.getRowValues(highest), QVariantList());
    QCOMPARE(array.getColumnValues(2), QVariantList());
    QCOMPARE(array.getColumnValues(highest), QVariantList());

    const Array2dDataTypeWrapper empty({}, {});
    QCOMPARE(empty.getRowValues(0), QVariantList());
    QCOMPARE(empty.getColumnValues(0), QVariantList());
    QCOMPARE(empty.getColumnUnitTypes(), QStringList());
}

void Array2dDataTypeWrapperTest::rowIsReplaced_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("values");
    QTest::addColumn<unsigned int>("row");
    QTest::addColumn<bool>("isWritten");
    QTest::addColumn<QString>("after");

    row("row in the middle", "[[1, 2], [3, 4]]", "[5, 6]", 1U, true, "[[1, 2], [5, 6]]");
    row("equal row", "[[1, 2], [3, 4]]", "[3, 4]", 1U, true, "[[1, 2], [3, 4]]");
    row("short row becomes whole", "[[1], [3, 4]]", "[5, 6]", 0U, true, "[[5, 6], [3, 4]]");
    row("single value becomes whole", "[1, [3, 4]]", "[5, 6]", 0U, true, "[[5, 6], [3, 4]]");
    row("one column keeps its form", "[1, 2]", "[5]", 0U, true, "[5, 2]");
    row("one column of rows keeps its form", "[[1], [2]]", "[5]", 0U, true, "[[5], [2]]");
    row("list of no cells", "[[], []]", "[]", 0U, true, "[[], []]");
    row("too few values", "[[1, 2]]", "[5]", 0U, false, "[[1, 2]]");
    row("too many values", "[[1, 2]]", "[5, 6, 7]", 0U, false, "[[1, 2]]");
    row("no values", "[[1, 2]]", "[]", 0U, false, "[[1, 2]]");
    row("row after the last", "[[1, 2]]", "[5, 6]", 1U, false, "[[1, 2]]");
    row("highest row", "[[1, 2]]", "[5, 6]", highest, false, "[[1, 2]]");
    row("empty table", "[]", "[]", 0U, false, "[]");
}

void Array2dDataTypeWrapperTest::rowIsReplaced()
{
    QFETCH(QString, json);
    QFETCH(QString, values);
    QFETCH(unsigned int, row);
    Array2dDataTypeWrapper array(list(json), {});

    QTEST(array.setRowValues(list(values), row), "isWritten");
    QTEST(valueText(array.getData()), "after");
}

void Array2dDataTypeWrapperTest::partOfARowIsReplaced_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("values");
    QTest::addColumn<unsigned int>("row");
    QTest::addColumn<unsigned int>("firstColumn");
    QTest::addColumn<unsigned int>("columnCount");
    QTest::addColumn<bool>("isWritten");
    QTest::addColumn<QString>("after");

    const QString before = QStringLiteral("[[1, 2, 3]]");
    row("cell in the middle", before, "[7]", 0U, 1U, 1U, true, "[[1, 7, 3]]");
    row("last cells", before, "[7, 8]", 0U, 1U, 2U, true, "[[1, 7, 8]]");
    row("all cells", before, "[7, 8, 9]", 0U, 0U, 3U, true, "[[7, 8, 9]]");
    row("more values than cells", before, "[7, 8]", 0U, 0U, 1U, true, "[[7, 2, 3]]");
    row("no cell", before, "[7]", 0U, 1U, 0U, true, before);
    row("no cell after the last", before, "[]", 0U, 3U, 0U, true, before);
    row("no cell of a plain list", "[1, 2]", "[]", 0U, 0U, 0U, true, "[1, 2]");
    row("cell of a plain list", "[1, 2]", "[7]", 1U, 0U, 1U, true, "[1, 7]");
    row("cell that the short row lacks", "[[1], [2, 3]]", "[7]", 0U, 1U, 1U, true, "[[1, 7], [2, 3]]");
    row("too few values", before, "[7]", 0U, 0U, 2U, false, before);
    row("one cell after the last", before, "[7]", 0U, 3U, 1U, false, before);
    row("one cell too many", before, "[7, 8]", 0U, 2U, 2U, false, before);
    row("row after the last", before, "[7]", 1U, 0U, 1U, false, before);
    row("end overflows to 0", before, "[7]", 0U, highest, 1U, false, before);
    row("end overflows to 2", before, "[7, 8, 9]", 0U, 3U, highest, false, before);
}

void Array2dDataTypeWrapperTest::partOfARowIsReplaced()
{
    QFETCH(QString, json);
    QFETCH(QString, values);
    QFETCH(unsigned int, row);
    QFETCH(unsigned int, firstColumn);
    QFETCH(unsigned int, columnCount);
    Array2dDataTypeWrapper array(list(json), {});

    QTEST(array.setRowValues(list(values), row, firstColumn, columnCount), "isWritten");
    QTEST(valueText(array.getData()), "after");
}

void Array2dDataTypeWrapperTest::resetSelectsOtherData()
{
    Array2dDataTypeWrapper array(list(threeByTwo), {"P", "Q"});

    array.reset(list(QStringLiteral("[4]")), {"R"});

    QCOMPARE(array.getDimensions(), (Indices{1, 1}));
    QCOMPARE(array.getColumnUnitTypes(), QStringList{"R"});
    QCOMPARE(valueText(array.getColumnValues(0)), QStringLiteral("[4]"));
}

void Array2dDataTypeWrapperTest::copyIsIndependent()
{
    const QVariantList data = list(threeByTwo);
    Array2dDataTypeWrapper array(data, {});
    const Array2dDataTypeWrapper copy(array);

    QVERIFY(array.setRowValues({7, 8}, 0));

    QCOMPARE(valueText(copy.getRowValues(0)), QStringLiteral("[1, \"x\"]"));
    QCOMPARE(valueText(data), valueText(list(threeByTwo)));
}

void Array2dDataTypeWrapperTest::dimensionsCanBeOverridden()
{
    class OneDimension : public Array2dDataTypeWrapper
    {
    public:
        using Array2dDataTypeWrapper::Array2dDataTypeWrapper;
        Indices getDimensions() const override
        {
            return {5};
        }
    };
    const OneDimension array(list(threeByTwo), {});
    const Array2dDataTypeWrapper& base = array;

    QCOMPARE(base.getDimensions(), Indices{5});
    QCOMPARE(base.getArrayType(), (Indices{3, 2}));
}

static const TestClass<Array2dDataTypeWrapperTest> testClass;

#include "Array2dDataTypeWrapperTest.moc"
