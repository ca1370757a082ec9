#include <QtTest/QTest>

#include "Row.h"
#include "TestProgram.h"
#include "ToolProcess.h"

/// Units given by label, and without their type; in a document whose labels are not unique.
class ToolUnitWordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsShippedUnits_data();
    void findsShippedUnits();
    void findsUnits_data();
    void findsUnits();
    void listsCandidates_data();
    void listsCandidates();
    void suggestsShippedUnits_data();
    void suggestsShippedUnits();
    void refusesWrongUsage_data();
    void refusesWrongUsage();
};

namespace {

QStringList withSharedLabels(const QStringList& arguments)
{
    return arguments + QStringList{"--units", ToolProcess::testData("shared-labels.json"), "--default-units",
                                   ToolProcess::testData("shared-labels-default-units.json")};
}

void addAnswers()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("standardOutput");
}

void answer(const char* name, const QStringList& arguments, const QByteArray& standardOutput)
{
    QTest::newRow(name) << arguments << standardOutput;
}

void addProblems()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("message");
}

void problem(const char* name, const QStringList& arguments, const QByteArray& message)
{
    QTest::newRow(name) << arguments << message;
}

void compareAnswer(const ToolRun& run, const QByteArray& standardOutput)
{
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, standardOutput);
    QCOMPARE(run.exitCode, 0);
}

void compareProblem(const ToolRun& run, const QByteArray& message)
{
    QCOMPARE(run.standardError, "unitmanager: " + message + '\n');
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 1);
}

} // namespace

void ToolUnitWordsTest::findsShippedUnits_data()
{
    addAnswers();
    answer("labels", {"convert", "5", "Pressure", "bar", "psi"}, "72.52 psi\n");
    answer("labels without type", {"convert", "5", "bar", "psi"}, "72.52 psi\n");
    answer("labels that are not ASCII", {"convert", "20", "°C", "°F"}, "68.0 °F\n");
    answer("label with a slash", {"convert", "5", "g/kg", "kg/kg"}, "0.00500 kg/kg\n");
    answer("name and label", {"convert", "5", "Bar", "psi"}, "72.52 psi\n");
    answer("name alone", {"convert", "5", "Bar"}, "5000.0 hPa\n");
    answer("label of another language", {"convert", "50", "% r.F."}, "50.0 %RH\n");
    answer("labels of two languages", {"convert", "50", "%RH", "% HR", "--language", "de"}, "50.0 % r.F.\n");
    answer("standard input", {"convert", "-", "bar", "psi"}, "");
    answer("type of the JSON object", {"convert", "2", "bar", "mbar", "--json"},
           "{\"label\":\"mbar\",\"type\":\"Pressure\",\"unit\":\"MilliBar\",\"value\":2000}\n");
    answer("fixed unit, named again by its label", {"convert", "1", "Pressure/Bar", "bar"}, "1.000 bar\n");
    answer(
        "table", {"table", "1", "kV"},
        "Volt       1000.000 V\nMicroVolt  1000000000 µV\nMilliVolt  1000000.0 mV\nKiloVolt   1.000000 kV\n");
    answer("label of a label", {"label", "psi"}, "psi\n");
    answer("label of a name", {"label", "Days", "--language", "fr"}, "j\n");
    answer("label by another language", {"label", "j"}, "d\n");
}

void ToolUnitWordsTest::findsShippedUnits()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, standardOutput);
    compareAnswer(ToolProcess::run(arguments), standardOutput);
}

void ToolUnitWordsTest::findsUnits_data()
{
    addAnswers();
    answer("type selects the unit", {"convert", "1", "Time", "m", "s"}, "4.0 s\n");
    answer("second unit determines the type", {"convert", "1", "m", "s"}, "4.0 s\n");
    answer("first unit determines the type", {"convert", "8", "ft", "Hour"}, "8.0 hour\n");
    answer("label of several types, name of several types", {"convert", "16", "m", "Hour"}, "8.0 h\n");
    answer("name before label", {"label", "ft"}, "\n");
    answer("label in the type where nothing has the name", {"convert", "4", "Length", "ft", "Meter"},
           "1.0 m\n");
    answer("label of several languages of one unit", {"convert", "1", "s"}, "0.3 m\n");
    answer("label in a language that tells units apart", {"convert", "2", "US-pt", "l"}, "1.0 l\n");
    answer("label without language", {"convert", "1", "hour"}, "1.0 hour\n");
    answer("type before unit", {"convert", "1", "Volume", "l"}, "1.0 l\n");
    answer("unit with the name of a type, after a type", {"convert", "1", "Time", "Volume", "s"}, "1.0 s\n");
    answer("type with slash and label with slash", {"convert", "1", "l/m", "l"}, "1.0 l\n");
    answer("default unit as FROM", {"convert", "1", "", "s"}, "4.0 s\n");
    answer("default unit as TO", {"convert", "8", "s", ""}, "2.0 m\n");
}

void ToolUnitWordsTest::findsUnits()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, standardOutput);
    compareAnswer(ToolProcess::run(withSharedLabels(arguments)), standardOutput);
}

void ToolUnitWordsTest::listsCandidates_data()
{
    addProblems();
    const QByteArray types = "known unit types: Duration, Length, Sound, Time, Volume";
    const QByteArray times = "known: Second (s), Minute (m), Hour (h), Volume";
    problem("label of several types", {"convert", "1", "m"},
            "\"m\" is ambiguous: Moment (m) of Duration, Meter (m) of Length, Minute (m) of Time");
    problem("label of several types, for a table", {"table", "1", "m"},
            "\"m\" is ambiguous: Moment (m) of Duration, Meter (m) of Length, Minute (m) of Time");
    problem("label of several types, for a label", {"label", "m"},
            "\"m\" is ambiguous: Moment (m) of Duration, Meter (m) of Length, Minute (m) of Time");
    problem("name of several types", {"convert", "1", "Hour"},
            "\"Hour\" is ambiguous: Hour (hour) of Sound, Hour (h) of Time");
    problem("two words with several types in common", {"convert", "1", "m", "mi"},
            "\"m\" and \"mi\" are ambiguous: Moment (m) of Duration, Meter (m) of Length, MicroYear (mi) of "
            "Duration, Mile (mi) of Length");
    problem("label of several units of one type", {"convert", "1", "pt"},
            "\"pt\" is the label of several units of Volume: UsPint (pt), ImperialPint (pt)");
    problem("label of several units of the given type", {"convert", "1", "Volume", "l", "pt"},
            "\"pt\" is the label of several units of Volume: UsPint (pt), ImperialPint (pt)");
    problem("no type in common", {"convert", "1", "Fuß", "l"},
            "\"Fuß\" and \"l\" are not units of one type: Foot (ft) of Length, Liter (l) of Volume");
    problem("no type in common, because a name wins", {"convert", "1", "ft", "Meter"},
            "\"ft\" and \"Meter\" are not units of one type: ft of Sound, Meter (m) of Length");
    problem("unit of another type", {"convert", "1", "Time", "l"}, "unknown unit \"l\" of Time; " + times);
    problem("unknown word", {"convert", "1", "Furlong"}, "unknown unit type or unit \"Furlong\"; " + types);
    problem("unknown words", {"convert", "1", "Furlong", "Fathom"},
            "unknown unit type or unit \"Furlong\"; " + types);
    problem("empty words", {"convert", "1", "", ""}, "unknown unit type or unit \"\"; " + types);
    problem("unknown TO of one type", {"convert", "1", "min", "Furlong"},
            "unknown unit \"Furlong\" of Time; " + times);
    problem("unknown TO of several types", {"convert", "1", "m", "Furlong"},
            "unknown unit type or unit \"Furlong\"; " + types);
    problem("FROM and TO after an unknown type", {"convert", "1", "Tine", "m", "s"},
            "unknown unit type \"Tine\"; known: Duration, Length, Sound, Time, Volume; did you mean Time?");
    problem("two units of a label", {"label", "m", "s"},
            "unknown unit type \"m\"; known: Duration, Length, Sound, Time, Volume");

    problem("near miss of a type", {"convert", "1", "Tine", "m"},
            "unknown unit type or unit \"Tine\"; " + types + "; did you mean Time?");
    problem("near miss of a name", {"convert", "1", "Litre"},
            "unknown unit type or unit \"Litre\"; " + types + "; did you mean Liter (l) of Volume?");
    problem("near miss of a label", {"convert", "1", "Meilen"},
            "unknown unit type or unit \"Meilen\"; " + types + "; did you mean Mile (mi) of Length?");
    problem("other case of a label", {"convert", "1", "MIN"},
            "unknown unit type or unit \"MIN\"; " + types + "; did you mean Minute (m) of Time?");
    problem("other case of several labels", {"convert", "1", "M", "s"},
            "unknown unit type or unit \"M\"; " + types +
                "; did you mean Moment (m) of Duration, Meter (m) of Length or Minute (m) of Time?");
    problem("unit of a fixed unit", {"convert", "1", "Time/Minut"},
            "unknown unit \"Minut\" of Time; " + times + "; did you mean Minute (m)?");
}

void ToolUnitWordsTest::listsCandidates()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    compareProblem(ToolProcess::run(withSharedLabels(arguments)), message);
}

void ToolUnitWordsTest::suggestsShippedUnits_data()
{
    addProblems();
    const QByteArray ofPressure =
        " of Pressure; known: Bar (bar), HectoPascal (hPa), MilliBar (mbar), Pascal (Pa), KiloPascal (kPa), "
        "MegaPascal (MPa), PoundForcePerSquareInch (psi), KiloGramForcePerSquareCentimeter (kgf/cm²), "
        "StandardAtmosphere (atm), Torr, MillimeterOfMercury (mmHg), InchOfMercury (inHg), "
        "MillimeterOfWater (mmH₂O), InchOfWater (inH₂O)";
    const QByteArray types =
        "known unit types: AbsoluteHumidity, AbsoluteTemperature, MixingRatio, NoUnit, Pressure, Ratio, "
        "RelativeHumidity, Resistance, SpecificEnthalpy, Time, Voltage";
    problem("upper case", {"convert", "5", "Pressure", "HPA"},
            "unknown unit \"HPA\"" + ofPressure + "; did you mean HectoPascal (hPa)?");
    problem("lower case", {"convert", "5", "Pressure", "hpa"},
            "unknown unit \"hpa\"" + ofPressure + "; did you mean HectoPascal (hPa)?");
    problem("lower case without type", {"convert", "5", "hpa", "bar"},
            "unknown unit type or unit \"hpa\"; " + types + "; did you mean HectoPascal (hPa) of Pressure?");
    problem("second unit in lower case", {"convert", "5", "bar", "hpa"},
            "unknown unit \"hpa\"" + ofPressure + "; did you mean HectoPascal (hPa)?");
    problem("type", {"convert", "1", "Presure", "Bar"},
            "unknown unit type or unit \"Presure\"; " + types + "; did you mean Pressure?");
}

void ToolUnitWordsTest::suggestsShippedUnits()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    compareProblem(ToolProcess::run(arguments), message);
}

void ToolUnitWordsTest::refusesWrongUsage_data()
{
    addProblems();
    problem("unit with the name of a type", {"convert", "1", "Volume"},
            "FROM is missing\nunitmanager: usage: unitmanager convert [options] VALUE [TYPE] FROM [TO]");
    problem("too many units", {"table", "1", "Time", "s", "m"},
            "too many arguments: \"m\"\nunitmanager: usage: unitmanager table [options] VALUE [TYPE] FROM");
}

void ToolUnitWordsTest::refusesWrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, message);
    const ToolRun run = ToolProcess::run(withSharedLabels(arguments));
    QCOMPARE(run.standardError, "unitmanager: " + message + "; more with --help\n");
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 2);
}

static const TestClass<ToolUnitWordsTest> testClass;
#include "ToolUnitWordsTest.moc"
