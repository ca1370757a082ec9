#include "UnitManager.h"

#include <QtTest/QTest>

#include "ConfigurationAndProcessDataParser.h"
#include "DebugText.h"
#include "ExpectedMessages.h"
#include "LogCapture.h"
#include "PropertyManagerConst.h"
#include "RecordingValueNode.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "UnitTypes.h"

class UnitManagerNodeAccessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void getValue_data();
    void getValue();
    void getValueReadsTheUnitTypeOfNumbersOnly_data();
    void getValueReadsTheUnitTypeOfNumbersOnly();
    void setValue_data();
    void setValue();
    void writeStatusIsReturned_data();
    void writeStatusIsReturned();
    void nothingWithoutChild_data();
    void nothingWithoutChild();
    void getUnitText_data();
    void getUnitText();
    void parsedNodes();

private:
    UnitManager m_manager;
};

Q_DECLARE_METATYPE(QSharedPointer<RecordingValueNode>)

namespace {

namespace T = TestUnitType;

using Expected::Conversion;
using Expected::notConverted;
using TestValue::marker;
using Node = QSharedPointer<RecordingValueNode>;

const QString key = QStringLiteral("Value");
const QStringList queried{QStringLiteral("hasProperty @unitType")};
const QStringList read = queried + QStringList{QStringLiteral("getProperty @unitType")};
const QString written = QStringLiteral("setProperty @value");

} // namespace

void UnitManagerNodeAccessTest::initTestCase()
{
    QVERIFY(m_manager.initByJsonString(TestDocuments::units(), TestDocuments::defaultUnits()));
}

void UnitManagerNodeAccessTest::getValue_data()
{
    QTest::addColumn<Node>("node");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QStringList>("messages");

    const auto number = &RecordingValueNode::number;
    const QString fixedBar = T::pressure + QStringLiteral("/Bar");
    const QStringList none;
    row("unit, not rounded", number(1.23456, T::pressure), "HectoPascal", toDebugText(1.23456 * 1000.0),
        none);
    row("default unit", number(2.0, T::pressure), "", "double 2000", none);
    row("whole number", number(2, T::pressure), "HectoPascal", "double 2000", none);
    row("fixed unit", number(1.23456, fixedBar), "HectoPascal", toDebugText(1.23456), none);
    row("number without unit type", number(2, QVariant()), "Bar", "int 2", none);
    row("unit type that is not a text", number(2, QVariantList{1}), "Bar", "int 2", none);
    row("marker", number(marker, T::pressure), "HectoPascal", TestValue::markerText, none);
    row("marker with an unknown unit", number(marker, T::pressure), "Nope", TestValue::markerText, none);
    row("no value", number(QVariant(), T::pressure), "HectoPascal", "invalid", none);
    row("text", RecordingValueNode::text("abc", T::pressure), "HectoPascal", "QString abc", none);
    row("number in a text node", RecordingValueNode::text(2, T::pressure), "HectoPascal", "int 2", none);
    row("text in a number node", number("abc", T::pressure), "HectoPascal", "QString abc", none);
    row("unknown unit", number(2, T::pressure), "Nope", "int 2",
        QStringList{Expected::unknownUnit(Conversion::FromBase, "Nope", "Pressure")});
    row("unknown unit type", number(2, T::unknown), "Bar", "int 2",
        QStringList{Expected::noConversion(Conversion::FromBase, T::unknown)});
}

// Calls and their order are visible to the node classes of other libraries.
void UnitManagerNodeAccessTest::getValue()
{
    QFETCH(Node, node);
    QFETCH(QString, unit);
    const QString stored = toDebugText(node->value());
    const Node parent = RecordingValueNode::parentOf(node);
    LogCapture log;

    QTEST(toDebugText(m_manager.getValue(key, parent, unit)), "result");
    QTEST(takeMessageTexts(log), "messages");
    QCOMPARE(parent->calls(), QStringList{QStringLiteral("getChild Value")});
    QCOMPARE(node->calls().value(0), QStringLiteral("getProperty @value"));
    QCOMPARE(node->calls().filter(QStringLiteral("setProperty")), QStringList());
    QCOMPARE(node->calls().filter(QStringLiteral("changeProperty")), QStringList());
    QCOMPARE(toDebugText(node->value()), stored);
}

void UnitManagerNodeAccessTest::getValueReadsTheUnitTypeOfNumbersOnly_data()
{
    QTest::addColumn<Node>("node");
    QTest::addColumn<QStringList>("unitTypeCalls");

    const QStringList none;
    row("number", RecordingValueNode::number(2, T::pressure), read);
    row("number without unit type", RecordingValueNode::number(2), queried);
    row("marker", RecordingValueNode::number(marker, T::pressure), none);
    row("no value", RecordingValueNode::number(QVariant(), T::pressure), none);
    row("text", RecordingValueNode::text("abc", T::pressure), none);
}

void UnitManagerNodeAccessTest::getValueReadsTheUnitTypeOfNumbersOnly()
{
    QFETCH(Node, node);

    m_manager.getValue(key, RecordingValueNode::parentOf(node), QString());

    QTEST(node->calls().filter(QStringLiteral("@unitType")), "unitTypeCalls");
}

void UnitManagerNodeAccessTest::setValue_data()
{
    QTest::addColumn<Node>("node");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<QStringList>("messages");

    const auto number = [](const QVariant& unitType) {
        return RecordingValueNode::number(1.5, unitType);
    };
    const QString fixedBar = T::pressure + QStringLiteral("/Bar");
    const QStringList none;
    const QStringList readAndWritten = read + QStringList{written};
    row("unit, not rounded", number(T::pressure), QVariant(1234.56), "HectoPascal", 0,
        toDebugText(1234.56 * 0.001), readAndWritten, none);
    row("default unit", number(T::pressure), QVariant(2000), "", 0, "double 2", readAndWritten, none);
    row("fixed unit", number(fixedBar), QVariant(3), "HectoPascal", 0, "int 3", readAndWritten, none);
    row("text in a fixed unit", number(fixedBar), QVariant("abc"), "", 0, "QString abc", readAndWritten,
        none);
    row("no unit type, no unit", number(QVariant()), QVariant("abc"), "", 0, "QString abc",
        queried + QStringList{written}, none);
    row("no unit type, a unit", number(QVariant()), QVariant(3), "Bar", 2, "double 1.5", queried, none);
    row("unit type that is not a text", number(QVariantList{1}), QVariant(3), "", 0, "int 3", readAndWritten,
        none);
    row("text", number(T::pressure), QVariant("abc"), "Bar", 2, "double 1.5", read,
        notConverted(Conversion::ToBase, "QString", "Bar", "Pressure"));
    row("text into a text node with unit type", RecordingValueNode::text("old", T::pressure), QVariant("abc"),
        "Bar", 2, "QString old", read, notConverted(Conversion::ToBase, "QString", "Bar", "Pressure"));
    row("number into a text node is converted", RecordingValueNode::text("old", T::pressure), QVariant(2000),
        "HectoPascal", 0, "double 2", readAndWritten, none);
    row("unknown unit", number(T::pressure), QVariant(3), "Nope", 2, "double 1.5", read,
        QStringList{Expected::unknownUnit(Conversion::ToBase, "Nope", "Pressure")});
    row("unknown unit type", number(T::unknown), QVariant(3), "Bar", 2, "double 1.5", read,
        QStringList{Expected::noConversion(Conversion::ToBase, T::unknown)});
    row("no default unit", number(T::ratio), QVariant(3), "", 0, "int 3", readAndWritten,
        QStringList{Expected::noDefaultUnit(T::ratio)});
    row("invalid value", number(T::pressure), QVariant(), "Bar", 2, "double 1.5", read,
        notConverted(Conversion::ToBase, "", "Bar", "Pressure"));
    row("marker", number(T::pressure), QVariant(marker), "Bar", 0, TestValue::markerText,
        QStringList{written}, none);
    row("marker with an unknown unit", number(T::pressure), QVariant(marker), "Nope", 0,
        TestValue::markerText, QStringList{written}, none);
    row("marker without unit type, with a unit", number(QVariant()), QVariant(marker), "Bar", 0,
        TestValue::markerText, QStringList{written}, none);
}

// Calls and their order are visible to the node classes of other libraries.
void UnitManagerNodeAccessTest::setValue()
{
    QFETCH(Node, node);
    QFETCH(QVariant, value);
    QFETCH(QString, unit);
    const QString given = toDebugText(value);
    const Node parent = RecordingValueNode::parentOf(node);
    LogCapture log;

    QTEST(m_manager.setValueStatus(key, parent, value, unit), "status");
    QTEST(toDebugText(node->value()), "stored");
    QTEST(node->calls(), "calls");
    QTEST(takeMessageTexts(log), "messages");
    QCOMPARE(parent->calls(), QStringList{QStringLiteral("getChild Value")});
    QCOMPARE(toDebugText(value), given);
}

void UnitManagerNodeAccessTest::writeStatusIsReturned_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<bool>("isWritten");

    row("changed", 0, true);
    row("unchanged", 1, true);
    row("refused", 2, false);
    row("beyond the known ones", 3, false);
}

void UnitManagerNodeAccessTest::writeStatusIsReturned()
{
    QFETCH(int, status);
    const Node child = RecordingValueNode::number(1.5, T::pressure);
    const Node parent = RecordingValueNode::parentOf(child);
    child->setWriteStatus(status);

    QCOMPARE(m_manager.setValueStatus(key, parent, 3, QStringLiteral("Bar")), status);
    QCOMPARE(m_manager.setValueStatus(key, parent, marker, QStringLiteral("Bar")), status);
    QTEST(m_manager.setValue(key, parent, 3, QStringLiteral("Bar")), "isWritten");
}

void UnitManagerNodeAccessTest::nothingWithoutChild_data()
{
    QTest::addColumn<Node>("node");
    QTest::addColumn<QString>("childKey");

    row("null node", Node(), key);
    row("no such child", RecordingValueNode::parentOf(RecordingValueNode::number(1.5, T::pressure)),
        "Missing");
    row("null child", RecordingValueNode::parentOf(Node()), key);
}

void UnitManagerNodeAccessTest::nothingWithoutChild()
{
    QFETCH(Node, node);
    QFETCH(QString, childKey);
    LogCapture log;

    QCOMPARE(toDebugText(m_manager.getValue(childKey, node, QString())), QStringLiteral("invalid"));
    QCOMPARE(m_manager.setValueStatus(childKey, node, 3, QString()), 2);
    QCOMPARE(m_manager.setValueStatus(childKey, node, marker, QString()), 2);
    QVERIFY(!m_manager.setValue(childKey, node, 3, QString()));
    QCOMPARE(m_manager.getUnitText(childKey, node, QStringLiteral("de"), QStringLiteral("Bar")), QString());
    QCOMPARE(takeMessageTexts(log), QStringList());
}

void UnitManagerNodeAccessTest::getUnitText_data()
{
    QTest::addColumn<Node>("node");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("messages");

    const auto number = [](const QVariant& unitType) {
        return RecordingValueNode::number(1.5, unitType);
    };
    const QString fixedBar = T::pressure + QStringLiteral("/Bar");
    const QStringList none;
    row("unit", number(T::pressure), "Bar", "Bar", none);
    row("default unit", number(T::pressure), "", "Hektopascal", none);
    row("fixed unit", number(fixedBar), "HectoPascal", "Bar", none);
    row("fixed unit without unit", number(fixedBar), "", "Bar",
        QStringList{Expected::noDefaultUnit(fixedBar)});
    row("unit-less type", number(T::noUnit), "", "", Expected::noDefaultUnitOfUnitLessType());
    row("text node", RecordingValueNode::text("abc", T::pressure), "Bar", "Bar", none);
    row("no unit type", number(QVariant()), "Bar", "", QStringList{Expected::unknownTextType("")});
    row("no unit type, no unit", number(QVariant()), "", "",
        QStringList{Expected::noDefaultUnit(""), Expected::unknownTextType("")});
}

void UnitManagerNodeAccessTest::getUnitText()
{
    QFETCH(Node, node);
    QFETCH(QString, unit);
    const Node parent = RecordingValueNode::parentOf(node);
    LogCapture log;

    QTEST(m_manager.getUnitText(key, parent, QStringLiteral("de"), unit), "text");
    QTEST(takeMessageTexts(log), "messages");
    QCOMPARE(parent->calls(), QStringList{QStringLiteral("getChild Value")});
}

void UnitManagerNodeAccessTest::parsedNodes()
{
    const BaseClassSharedPointer root =
        ConfigurationAndProcessDataParser().parseFromJson(withPlatformPrefix(QStringLiteral(R"json({
            "Pressure": { "@value": 1.5, "@unitType": "UnitManager/UnitType/Pressure" },
            "Empty": { "@type": "Number", "@value": null, "@unitType": "UnitManager/UnitType/Pressure" },
            "Name": { "@value": "pump", "@unitType": "UnitManager/UnitType/Pressure" },
            "Locked": { "@value": 1.5, "@unitType": "UnitManager/UnitType/Pressure", "@readOnly": true }
        })json")),
                                                          PropertyManagerConst::getConfigFileExtension());
    QVERIFY(root);
    const QString hectoPascal = QStringLiteral("HectoPascal");
    const QString pressure = QStringLiteral("Pressure");
    LogCapture log;

    QCOMPARE(toDebugText(m_manager.getValue(pressure, root, hectoPascal)), QStringLiteral("double 1500"));
    QCOMPARE(toDebugText(m_manager.getValue(QStringLiteral("Empty"), root, hectoPascal)),
             TestValue::markerText);
    QCOMPARE(toDebugText(m_manager.getValue(QStringLiteral("Name"), root, hectoPascal)),
             QStringLiteral("QString pump"));

    QCOMPARE(m_manager.setValueStatus(pressure, root, 2000, hectoPascal), 0);
    QCOMPARE(m_manager.setValueStatus(pressure, root, 2000, hectoPascal), 1);
    QCOMPARE(m_manager.setValueStatus(QStringLiteral("Locked"), root, 2000, hectoPascal), 2);
    QVERIFY(m_manager.setValue(pressure, root, 2000, hectoPascal));
    QCOMPARE(toDebugText(m_manager.getValue(pressure, root, QStringLiteral("Bar"))),
             QStringLiteral("double 2"));
    QCOMPARE(m_manager.setValueStatus(pressure, root, marker, hectoPascal), 0);
    QCOMPARE(toDebugText(m_manager.getValue(pressure, root, hectoPascal)), TestValue::markerText);
    QCOMPARE(takeMessageTexts(log), QStringList());
}

static const TestClass<UnitManagerNodeAccessTest> testClass;

#include "UnitManagerNodeAccessTest.moc"
