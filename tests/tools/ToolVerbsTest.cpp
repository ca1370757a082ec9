#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcessEnvironment>
#include <QtTest/QTest>

#include "Row.h"
#include "TestProgram.h"
#include "ToolProcess.h"

/// The output of every verb for valid requests: exact text, nothing on standard error, exit code 0.
class ToolVerbsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsFromTestDocuments_data();
    void printsFromTestDocuments();
    void printsFromShippedDocuments_data();
    void printsFromShippedDocuments();
    void printsValidJson_data();
    void printsValidJson();
    void printsTheSameForEveryHashSeed_data();
    void printsTheSameForEveryHashSeed();
    void acceptsNonAsciiNamesInTheCLocale();
};

namespace {

void addColumns()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("standardOutput");
}

void addRow(const char* name, const QStringList& arguments, const QByteArray& standardOutput)
{
    QTest::newRow(name) << arguments << standardOutput;
}

} // namespace

void ToolVerbsTest::printsFromTestDocuments_data()
{
    addColumns();
    addRow("types by name", {"types"}, "Empty\nGröße\nMisled\nNoUnit\nPressure\nTemperature\nUnlabelled\n");
    addRow("types as JSON, null where there is no unit", {"types", "--json"},
           R"({"baseUnit":null,"defaultUnit":null,"type":"Empty"}
{"baseUnit":"Stück","defaultUnit":"Stück","type":"Größe"}
{"baseUnit":"Here","defaultUnit":"Elsewhere","type":"Misled"}
{"baseUnit":"NoUnit","defaultUnit":"NoUnit","type":"NoUnit"}
{"baseUnit":"Bar","defaultUnit":"HectoPascal","type":"Pressure"}
{"baseUnit":"Celsius","defaultUnit":"Celsius","type":"Temperature"}
{"baseUnit":"Plain","defaultUnit":null,"type":"Unlabelled"}
)");
    addRow("units in display order", {"units", "Pressure"},
           "Bar          bar   base unit\n"
           "HectoPascal  hPa   default unit\n"
           "MilliBar     mbar\n");
    addRow("units, base and default unit in one", {"units", "Temperature"},
           "Celsius     °C  base unit, default unit\n"
           "Fahrenheit  °F\n");
    addRow("units without labels", {"units", "Unlabelled"},
           "Plain    base unit\nFine\nTooFine\nTable\nHuge\n");
    addRow("units of a type without any", {"units", "Empty"}, "");
    addRow("units of the unit-less type", {"units", "NoUnit"}, "NoUnit  base unit, default unit\n");
    addRow("units of a fixed unit", {"units", "Pressure/Bar"}, "Bar  bar  base unit, default unit\n");
    addRow("units in a language", {"units", "Größe", "--language", "de"},
           "Stück  Stück  base unit, default unit\n");
    addRow(
        "units as JSON", {"units", "Temperature", "--json"},
        R"({"decimalPlaces":1,"isBaseUnit":true,"isDefaultUnit":true,"label":"°C","type":"Temperature","unit":"Celsius"}
{"decimalPlaces":0,"isBaseUnit":false,"isDefaultUnit":false,"label":"°F","type":"Temperature","unit":"Fahrenheit"}
)");
    addRow(
        "unit-less type as JSON", {"units", "NoUnit", "--json"},
        R"({"decimalPlaces":null,"isBaseUnit":true,"isDefaultUnit":true,"label":"","type":"NoUnit","unit":"NoUnit"}
)");

    addRow("convert rounds to the target's places, not to the source's",
           {"convert", "1234.56", "Pressure", "HectoPascal", "Bar"}, "1.235 bar\n");
    addRow("convert raw, not rounded at all",
           {"convert", "1234.5", "Pressure", "HectoPascal", "Bar", "--raw"}, "1.2345\n");
    addRow("convert as JSON, not rounded either",
           {"convert", "1234.5", "Pressure", "HectoPascal", "Bar", "--json"},
           "{\"label\":\"bar\",\"type\":\"Pressure\",\"unit\":\"Bar\",\"value\":1.2345}\n");
    addRow("convert to the default unit", {"convert", "1.5", "Pressure", "Bar"}, "1500.0 hPa\n");
    addRow("convert from the default unit", {"convert", "1500", "Pressure", "", "Bar"}, "1.500 bar\n");
    addRow("convert between two units that are not the base unit",
           {"convert", "1.5", "Pressure", "HectoPascal", "MilliBar"}, "1.5 mbar\n");
    addRow("convert to the same unit keeps the double",
           {"convert", "1234.56", "Pressure", "HectoPascal", "HectoPascal", "--raw"}, "1234.56\n");
    addRow("convert with an offset", {"convert", "21.5", "Temperature", "Celsius", "Fahrenheit"}, "71 °F\n");
    addRow("type with its prefix", {"convert", "1", "UnitManager/UnitType/Pressure", "Bar"}, "1000.0 hPa\n");
    addRow("fixed unit", {"convert", "1.23456", "Pressure/Bar"}, "1.235 bar\n");
    addRow("fixed unit with prefix", {"convert", "1.23456", "UnitManager/UnitType/Pressure/Bar"},
           "1.235 bar\n");
    addRow("fixed unit, named again", {"convert", "1.23456", "Pressure/Bar", "Bar", "Bar"}, "1.235 bar\n");
    addRow("fixed unit as JSON", {"convert", "1.5", "Pressure/Bar", "--json"},
           "{\"label\":\"bar\",\"type\":\"Pressure/Bar\",\"unit\":\"Bar\",\"value\":1.5}\n");
    addRow("unit-less value", {"convert", "1.23456", "NoUnit", "NoUnit", "NoUnit"}, "1.23456\n");
    addRow("unit-less value without units", {"convert", "1e-7", "NoUnit"}, "1e-07\n");
    addRow("unit without label", {"convert", "2", "Unlabelled", "Plain", "Plain"}, "2.00\n");
    addRow("table unit has no places", {"convert", "1.5", "Unlabelled", "Table", "Table"}, "2\n");
    addRow("17 places", {"convert", "0.1", "Unlabelled", "Fine", "Fine"}, "0.10000000000000001\n");
    addRow("more places than a double has", {"convert", "0.1", "Unlabelled", "TooFine", "TooFine"}, "0.1\n");

    addRow("table", {"table", "1234.56", "Pressure", "HectoPascal"},
           "Bar          1.235 bar\nHectoPascal  1234.6 hPa\nMilliBar     1234.6 mbar\n");
    addRow("table raw", {"table", "1234.5", "Pressure", "HectoPascal", "--raw"},
           "Bar          1.2345\nHectoPascal  1234.5\nMilliBar     1234.5\n");
    addRow("table as JSON", {"table", "-0.5", "Temperature", "Celsius", "--json"},
           R"({"label":"°C","type":"Temperature","unit":"Celsius","value":-0.5}
{"label":"°F","type":"Temperature","unit":"Fahrenheit","value":31.1}
)");
    addRow("table of a fixed unit", {"table", "1", "Pressure/Bar"}, "Bar  1.000 bar\n");
    addRow("table of the unit-less type", {"table", "5", "NoUnit", "NoUnit"}, "NoUnit  5\n");

    addRow("label of the default unit", {"label", "Pressure"}, "hPa\n");
    addRow("label of a unit", {"label", "Pressure", "MilliBar"}, "mbar\n");
    addRow("label in English when no language is given", {"label", "Größe", "Stück"}, "pieces\n");
    addRow("label in a language", {"label", "Größe", "Stück", "--language", "de"}, "Stück\n");
    addRow("label in a dialect falls back to the language", {"label", "Größe", "--language", "de_AT"},
           "Stück\n");
    addRow("label in a missing language falls back to English", {"label", "Größe", "Stück", "--language=fr"},
           "pieces\n");
    addRow("label of a fixed unit", {"label", "Pressure/Bar"}, "bar\n");
    addRow("label of the unit-less type", {"label", "NoUnit"}, "\n");
    addRow("label of a unit without one", {"label", "Unlabelled", "Plain"}, "\n");
    addRow("label as JSON", {"label", "Größe", "--json", "--language", "de"},
           "{\"label\":\"Stück\",\"type\":\"Größe\",\"unit\":\"Stück\"}\n");
}

void ToolVerbsTest::printsFromTestDocuments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, standardOutput);
    const ToolRun run = ToolProcess::run(arguments + ToolProcess::testDocuments());
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, standardOutput);
    QCOMPARE(run.exitCode, 0);
}

void ToolVerbsTest::printsFromShippedDocuments_data()
{
    addColumns();
    addRow("types", {"types"},
           "AbsoluteHumidity\nAbsoluteTemperature\nMixingRatio\nNoUnit\nPressure\nRatio\nRelativeHumidity\n"
           "Resistance\nSpecificEnthalpy\nTime\nVoltage\n");
    addRow("units of the unit-less type", {"units", "NoUnit"}, "NoUnit  base unit, default unit\n");
    addRow("convert", {"convert", "1234.56", "Pressure", "HectoPascal", "Bar"}, "1.235 bar\n");
    addRow("convert to the default unit", {"convert", "1.01325", "Pressure", "Bar"}, "1013.3 hPa\n");
    addRow("convert raw",
           {"convert", "-40", "AbsoluteTemperature", "DegreeFahrenheit", "DegreeCelsius", "--raw"}, "-40\n");
    addRow("convert a unit-less value", {"convert", "5", "NoUnit"}, "5\n");
    addRow("table of a type with one unit", {"table", "45.67", "RelativeHumidity", "RelHumidity"},
           "RelHumidity  45.7 %RH\n");
    addRow("label in German", {"label", "RelativeHumidity", "--language", "de"}, "% r.F.\n");
}

void ToolVerbsTest::printsFromShippedDocuments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, standardOutput);
    const ToolRun run = ToolProcess::run(arguments);
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, standardOutput);
    QCOMPARE(run.exitCode, 0);
}

void ToolVerbsTest::printsValidJson_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("lineCount");
    row("types", QStringList{"types"}, 7);
    row("units", QStringList{"units", "Unlabelled"}, 5);
    row("convert", QStringList{"convert", "1e200", "Temperature", "Celsius"}, 1);
    row("convert out of range", QStringList{"convert", "1e200", "Unlabelled", "Plain", "Huge"}, 1);
    row("table with nan", QStringList{"table", "nan", "Pressure", "Bar"}, 3);
    row("label", QStringList{"label", "Größe"}, 1);
}

void ToolVerbsTest::printsValidJson()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, lineCount);
    const ToolRun run = ToolProcess::run(arguments + QStringList("--json") + ToolProcess::testDocuments());
    QVERIFY(run.standardOutput.endsWith('\n'));
    const QList<QByteArray> lines = run.standardOutput.chopped(1).split('\n');
    QCOMPARE(lines.size(), lineCount);
    for (const QByteArray& line : lines) {
        const QJsonDocument document = QJsonDocument::fromJson(line);
        QVERIFY2(document.isObject(), line.constData());
        QVERIFY2(document.object().value("type").isString(), line.constData());
    }
}

void ToolVerbsTest::printsTheSameForEveryHashSeed_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("types") << QStringList{"types"};
    QTest::newRow("units") << QStringList{"units", "Pressure"};
    QTest::newRow("table") << QStringList{"table", "1", "Pressure", "Bar"};
    QTest::newRow("labels") << QStringList{"labels"};
    QTest::newRow("known names") << QStringList{"units", "Nothing"};
    QTest::newRow("several suggestions") << QStringList{"convert", "1", "xPa"};
}

void ToolVerbsTest::printsTheSameForEveryHashSeed()
{
    QFETCH(QStringList, arguments);
    QProcessEnvironment environment = ToolProcess::plainEnvironment();
    environment.insert("QT_HASH_SEED", "0");
    const ToolRun first = ToolProcess::run(arguments, {}, environment);
    QVERIFY(!first.standardOutput.isEmpty() || !first.standardError.isEmpty());
    for (int seed = 1; seed <= 8; ++seed) {
        environment.insert("QT_HASH_SEED", QString::number(seed));
        const ToolRun run = ToolProcess::run(arguments, {}, environment);
        QCOMPARE(run.standardOutput, first.standardOutput);
        // Qt prints a message about such a seed before the program begins.
        QVERIFY2(run.standardError.endsWith(first.standardError), run.standardError.constData());
    }
}

void ToolVerbsTest::acceptsNonAsciiNamesInTheCLocale()
{
    QProcessEnvironment environment = ToolProcess::plainEnvironment();
    environment.insert("LC_ALL", "C");
    const QStringList arguments{"convert", "7", "Größe", "Stück", "--language", "de"};
    const ToolRun run = ToolProcess::run(arguments + ToolProcess::testDocuments(), {}, environment);
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, QByteArray("7 Stück\n"));
    QCOMPARE(run.exitCode, 0);
}

static const TestClass<ToolVerbsTest> testClass;
#include "ToolVerbsTest.moc"
