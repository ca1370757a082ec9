#include <QtTest/QTest>

#include "Array2dDataTypeWrapper.h"
#include "ConfigurationAndProcessDataTools.h"
#include "DebugText.h"
#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "RecordingNode.h"
#include "RecordingValueNode.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "TwoWrappersFixture.h"

/// Values and arrays, each with and without loaded units.
class UnitManagerWrapperValueTest : public TwoWrappersFixture
{
    Q_OBJECT

private Q_SLOTS:
    void nodeValueIsRead_data();
    void nodeValueIsRead();
    void nullNodeHasNoValue();
    void plainValueIsConverted_data();
    void plainValueIsConverted();
    void arrayIsRead_data();
    void arrayIsRead();
    void arrayIsWritten_data();
    void arrayIsWritten();
    void nodeValueIsWritten_data();
    void nodeValueIsWritten();
    void statusIsThatOfTheNode_data();
    void statusIsThatOfTheNode();
};

namespace {

namespace T = TestUnitType;
using Expected::Conversion;

BaseClassSharedPointer parentOf(const QString& child)
{
    return nodeFromJson(QStringLiteral(R"({ "Value": %1 })").arg(child));
}

QString pressure(const char* value)
{
    return QStringLiteral(R"({ "@unitType": "UnitManager/UnitType/Pressure", "@value": %1 })").arg(value);
}

/// Two rows; the columns contain pressure, a number without unit type, and pressure.
Array2dDataTypeWrapper threeColumns()
{
    return {{QVariantList{1.5, 2.5, 3.5}, QVariantList{4.5, 5.5, 6.5}},
            {T::pressure, QString(), T::pressure}};
}

QStringList rowsOf(const Array2dDataTypeWrapper& array)
{
    QStringList rows;
    for (unsigned int row = 0; row < array.getDimensions().at(0); ++row)
        rows.append(toDebugText(array.getRowValues(row)).join(", "));
    return rows;
}

} // namespace

void UnitManagerWrapperValueTest::nodeValueIsRead_data()
{
    QTest::addColumn<QString>("child");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("converted");
    QTest::addColumn<QString>("asStored");

    row("given unit", pressure("1.5"), "Bar", "double 1.5", "double 1.5");
    row("default unit", pressure("1.5"), "", "double 1500", "double 1.5");
    row("more places than the unit shows", pressure("1.00048828125"), "HectoPascal", "double 1000.48828125",
        "double 1.00048828125");
    row("no unit type", "1.5", "", "double 1.5", "double 1.5");
    row("marker", R"({ "@type": "Number", "@value": null })", "Bar", "double nan", "double nan");
    row("text", pressure(R"("much")"), "Bar", "QString much", "QString much");
    row("no value", R"({ "Child": 1 })", "Bar", "invalid", "invalid");
    row("null child", "null", "Bar", "invalid", "invalid");
}

void UnitManagerWrapperValueTest::nodeValueIsRead()
{
    QFETCH(QString, child);
    QFETCH(QString, unit);
    const auto node = parentOf(child);
    QVERIFY(node);
    LogCapture log;

    QTEST(toDebugText(m_units->getValue("Value", node, unit)), "converted");
    QTEST(toDebugText(m_noUnits->getValue("Value", node, unit)), "asStored");
    QTEST(toDebugText(m_noUnits->getValue("Value", node, "Nope")), "asStored");
    QCOMPARE(toDebugText(m_units->getValue("Other", node, unit)), QStringLiteral("invalid"));
    QCOMPARE(toDebugText(m_noUnits->getValue("Other", node, unit)), QStringLiteral("invalid"));
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerWrapperValueTest::nullNodeHasNoValue()
{
    const BaseClassSharedPointer null;
    for (const auto* wrapper : {m_units.get(), m_noUnits.get()})
        QCOMPARE(toDebugText(wrapper->getValue("Value", null, "Bar")), QStringLiteral("invalid"));
}

void UnitManagerWrapperValueTest::plainValueIsConverted_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("converted");
    QTest::addColumn<QStringList>("messages");

    const QStringList none;
    row("given unit", QVariant(1.5), T::pressure, "HectoPascal", "double 1500", none);
    row("default unit", QVariant(1.5), T::pressure, "", "double 1500", none);
    row("more places than the unit shows", QVariant(1.00048828125), T::pressure, "", "double 1000.48828125",
        none);
    row("integer", QVariant(2), T::pressure, "HectoPascal", "double 2000", none);
    row("fixed unit type", QVariant(2), T::pressure + "/Bar", "HectoPascal", "int 2", none);
    row("no value", QVariant(), T::pressure, "HectoPascal", "invalid", none);
    row("unknown unit", QVariant(1.5), T::pressure, "Nope", "double 1.5",
        QStringList{Expected::unknownUnit(Conversion::FromBase, "Nope", "Pressure")});
    row("unknown unit type", QVariant(1.5), T::unknown, "Bar", "double 1.5",
        QStringList{Expected::noConversion(Conversion::FromBase, T::unknown)});
}

void UnitManagerWrapperValueTest::plainValueIsConverted()
{
    QFETCH(QVariant, value);
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    LogCapture log;

    QTEST(toDebugText(m_units->getValue(value, unitType, unit)), "converted");
    QTEST(takeMessageTexts(log), "messages");
    QCOMPARE(toDebugText(m_noUnits->getValue(value, unitType, unit)), toDebugText(value));
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerWrapperValueTest::arrayIsRead_data()
{
    QTest::addColumn<unsigned int>("row");
    QTest::addColumn<unsigned int>("firstColumn");
    QTest::addColumn<unsigned int>("columnCount");
    QTest::addColumn<QStringList>("converted");
    QTest::addColumn<QStringList>("asStored");

    const QStringList nothing;
    row("part of a row", 0U, 1U, 2U, QStringList{"double 2.5", "double 3500"},
        QStringList{"double 2.5", "double 3.5"});
    row("whole row", 1U, 0U, 3U, QStringList{"double 4500", "double 5.5", "double 6500"},
        QStringList{"double 4.5", "double 5.5", "double 6.5"});
    row("one cell", 1U, 2U, 1U, QStringList{"double 6500"}, QStringList{"double 6.5"});
    row("beyond the columns", 0U, 2U, 2U, nothing, nothing);
    row("beyond the rows", 2U, 0U, 1U, nothing, nothing);
}

void UnitManagerWrapperValueTest::arrayIsRead()
{
    QFETCH(unsigned int, row);
    QFETCH(unsigned int, firstColumn);
    QFETCH(unsigned int, columnCount);
    const auto array = threeColumns();
    const QString unit = QStringLiteral("HectoPascal");

    QTEST(toDebugText(m_units->getValueArray(array, row, firstColumn, columnCount, unit)), "converted");
    QTEST(toDebugText(m_noUnits->getValueArray(array, row, firstColumn, columnCount, unit)), "asStored");
}

void UnitManagerWrapperValueTest::arrayIsWritten_data()
{
    QTest::addColumn<unsigned int>("row");
    QTest::addColumn<unsigned int>("firstColumn");
    QTest::addColumn<QList<QVariant>>("values");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QStringList>("converted");
    QTest::addColumn<QStringList>("asGiven");

    const QString row0 = QStringLiteral("double 1.5, double 2.5, double 3.5");
    const QString row1 = QStringLiteral("double 4.5, double 5.5, double 6.5");
    const QStringList refused;
    using Values = QList<QVariant>;
    row("part of a row", 0U, 1U, Values{7.5, 8500.0}, "HectoPascal",
        QStringList{"double 1.5, double 7.5, double 8.5", row1},
        QStringList{"double 1.5, double 7.5, double 8500", row1});
    row("whole row", 1U, 0U, Values{7500.0, 8.5, 9500.0}, "",
        QStringList{row0, "double 7.5, double 8.5, double 9.5"},
        QStringList{row0, "double 7500, double 8.5, double 9500"});
    row("unknown unit", 0U, 0U, Values{7.5}, "Nope", refused,
        QStringList{"double 7.5, double 2.5, double 3.5", row1});
    row("beyond the columns", 0U, 2U, Values{7.5, 8.5}, "Bar", refused, refused);
    row("beyond the rows", 2U, 0U, Values{7.5}, "Bar", refused, refused);
}

void UnitManagerWrapperValueTest::arrayIsWritten()
{
    QFETCH(unsigned int, row);
    QFETCH(unsigned int, firstColumn);
    QFETCH(QList<QVariant>, values);
    QFETCH(QString, unit);
    const LogCapture quiet;
    const auto write = [&](const UnitManagerWrapper& wrapper) -> QStringList {
        auto array = threeColumns();
        const auto count = static_cast<unsigned int>(values.size());
        if (wrapper.setValueArray(array, row, firstColumn, count, values, unit))
            return rowsOf(array);
        return rowsOf(array) == rowsOf(threeColumns()) ? QStringList() : QStringList{"written nevertheless"};
    };

    QTEST(write(*m_units), "converted");
    QTEST(write(*m_noUnits), "asGiven");
}

void UnitManagerWrapperValueTest::nodeValueIsWritten_data()
{
    QTest::addColumn<QString>("child");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("converted");
    QTest::addColumn<QString>("asGiven");

    const QString readOnly = R"({ "@readOnly": true, "@value": 2.5,
                                  "@unitType": "UnitManager/UnitType/Pressure" })";
    const QVariant marker = ConfigurationAndProcessDataTools::getNoInputValueIndicator();
    row("given unit", pressure("2.5"), QVariant(1500.0), "HectoPascal", "0: double 1.5", "0: double 1500");
    row("default unit", pressure("2.5"), QVariant(1500.0), "", "0: double 1.5", "0: double 1500");
    row("not rounded", pressure("2.5"), QVariant(0.00048828125), "Bar", "0: double 0.00048828125",
        "0: double 0.00048828125");
    row("stored value", pressure("1.5"), QVariant(1.5), "Bar", "1: double 1.5", "1: double 1.5");
    row("unknown unit", pressure("2.5"), QVariant(1500.0), "Nope", "2: double 2.5", "0: double 1500");
    row("marker of an unknown unit", pressure("2.5"), marker, "Nope", "0: double nan", "0: double nan");
    row("read-only", readOnly, QVariant(1500.0), "HectoPascal", "2: double 2.5", "2: double 2.5");
    row("null child", "null", QVariant(1500.0), "HectoPascal", "2: invalid", "2: invalid");
}

void UnitManagerWrapperValueTest::nodeValueIsWritten()
{
    QFETCH(QString, child);
    QFETCH(QVariant, value);
    QFETCH(QString, unit);
    const LogCapture quiet;
    const auto write = [&](UnitManagerWrapper& wrapper) {
        const auto node = parentOf(child);
        const int status = wrapper.setValueStatus("Value", node, value, unit);
        const QVariant stored = ConfigurationAndProcessDataTools::extractConfigValue("Value", node);
        return QStringLiteral("%1: %2").arg(QString::number(status), toDebugText(stored));
    };

    QTEST(write(*m_units), "converted");
    QTEST(write(*m_noUnits), "asGiven");
    QCOMPARE(m_units->setValueStatus("Value", {}, value, unit), 2);
    QCOMPARE(m_noUnits->setValueStatus("Value", {}, value, unit), 2);
}

void UnitManagerWrapperValueTest::statusIsThatOfTheNode_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("isWritten");
    QTest::newRow("changed") << 0 << true;
    QTest::newRow("unchanged") << 1 << true;
    QTest::newRow("refused") << 2 << false;
    QTest::newRow("another failure") << 3 << false;
}

void UnitManagerWrapperValueTest::statusIsThatOfTheNode()
{
    QFETCH(int, status);
    const auto child = RecordingValueNode::number(2.5, T::pressure);
    child->setWriteStatus(status);
    const auto node = RecordingValueNode::parentOf(child);

    for (auto* wrapper : {m_units.get(), m_noUnits.get()}) {
        QCOMPARE(wrapper->setValueStatus("Value", node, 1.5, "Bar"), status);
        QTEST(wrapper->setValue("Value", node, 1.5, "Bar"), "isWritten");
    }
}

static const TestClass<UnitManagerWrapperValueTest> testClass;
#include "UnitManagerWrapperValueTest.moc"
