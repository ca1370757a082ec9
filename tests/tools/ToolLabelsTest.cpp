#include <QtTest/QTest>

#include "Row.h"
#include "TestProgram.h"
#include "ToolProcess.h"

/// The verb that lists labels in every language.
class ToolLabelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsLabels_data();
    void listsLabels();
    void listsShippedLabels_data();
    void listsShippedLabels();
    void countsALabelThatIsNotAText();
    void refusesAnUnknownType();
};

namespace {

void compareAnswer(const ToolRun& run, const QByteArray& standardOutput)
{
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, standardOutput);
    QCOMPARE(run.exitCode, 0);
}

} // namespace

void ToolLabelsTest::listsLabels_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("standardOutput");
    row("all types by name, units in display order", QStringList{"labels"},
        QByteArray("type      unit          en   *     de\n"
                   "Duration  Moment        m    -     -\n"
                   "Duration  MicroYear     mi   -     -\n"
                   "Length    Meter         m    -     -\n"
                   "Length    Mile          mi   -     Meile\n"
                   "Length    Foot          ft   -     Fuß\n"
                   "Sound     Hour          -    hour  -\n"
                   "Sound     ft            -    -     -\n"
                   "Time      Second        s    -     s\n"
                   "Time      Minute        m    -     min\n"
                   "Time      Hour          h    -     Std.\n"
                   "Time      Volume        -    -     -\n"
                   "Volume    Liter         l    -     -\n"
                   "Volume    UsPint        pt   -     US-pt\n"
                   "Volume    ImperialPint  pt   -     -\n"
                   "Volume    Share         l/m  -     -\n"));
    row("one type", QStringList{"labels", "Length"},
        QByteArray("type    unit   en  *  de\n"
                   "Length  Meter  m   -  -\n"
                   "Length  Mile   mi  -  Meile\n"
                   "Length  Foot   ft  -  Fuß\n"));
    row("fixed unit", QStringList{"labels", "Length/Foot"},
        QByteArray("type         unit  en  *  de\n"
                   "Length/Foot  Foot  ft  -  Fuß\n"));
    row("as JSON", QStringList{"labels", "Sound", "--json"},
        QByteArray(R"({"labels":{"*":"hour"},"type":"Sound","unit":"Hour"}
{"labels":{},"type":"Sound","unit":"ft"}
)"));
    row("several languages as JSON", QStringList{"labels", "Length/Foot", "--json"},
        QByteArray(R"({"labels":{"de":"Fuß","en":"ft"},"type":"Length/Foot","unit":"Foot"}
)"));

    row("missing language", QStringList{"labels", "Length", "--missing", "de"},
        QByteArray("type    unit   en  *  de\n"
                   "Length  Meter  m   -  -\n"));
    row("plain text is not a language", QStringList{"labels", "--missing", "en"},
        QByteArray("type   unit    en  *     de\n"
                   "Sound  Hour    -   hour  -\n"
                   "Sound  ft      -   -     -\n"
                   "Time   Volume  -   -     -\n"));
    row("dialect is not its language", QStringList{"labels", "Length/Foot", "--missing", "de_AT", "--json"},
        QByteArray(R"({"labels":{"de":"Fuß","en":"ft"},"type":"Length/Foot","unit":"Foot"}
)"));
    row("nothing is missing", QStringList{"labels", "Length", "--missing", "en"}, QByteArray());
    row("nothing is missing, as JSON", QStringList{"labels", "Length", "--missing", "en", "--json"},
        QByteArray());
}

void ToolLabelsTest::listsLabels()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, standardOutput);
    compareAnswer(
        ToolProcess::run(arguments + QStringList{"--units", ToolProcess::testData("shared-labels.json")}),
        standardOutput);
}

void ToolLabelsTest::listsShippedLabels_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("standardOutput");
    row("three languages", QStringList{"labels", "RelativeHumidity"},
        QByteArray("type              unit         en   de      fr\n"
                   "RelativeHumidity  RelHumidity  %RH  % r.F.  % HR\n"));
    row("unit-less type, whose labels are empty", QStringList{"labels", "NoUnit"},
        QByteArray("type    unit    en  de  fr\nNoUnit  NoUnit\n"));
    row("complete", QStringList{"labels", "--missing", "fr"}, QByteArray());
    row("unit-less type lacks nothing", QStringList{"labels", "NoUnit", "--missing", "xx"}, QByteArray());
    row("language of no label", QStringList{"labels", "RelativeHumidity", "--missing", "xx"},
        QByteArray("type              unit         en   de      fr\n"
                   "RelativeHumidity  RelHumidity  %RH  % r.F.  % HR\n"));
}

void ToolLabelsTest::listsShippedLabels()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, standardOutput);
    compareAnswer(ToolProcess::run(arguments), standardOutput);
}

void ToolLabelsTest::countsALabelThatIsNotAText()
{
    const QByteArray units = R"({"Length": {"Meter": {"@displayPosition": 0, "DecimalPlaces": 1,
"Polynomial": [[0], [1]], "InversePolynomial": [[0], [1]], "UnitLabel": {"@value": {"en": "m", "de": 5}}}}})";
    const QStringList arguments{"labels", "--units", "/dev/stdin"};
    compareAnswer(ToolProcess::run(arguments, units), "type    unit   en  de\nLength  Meter  m\n");
    compareAnswer(ToolProcess::run(arguments + QStringList{"--missing", "de"}, units), "");
}

void ToolLabelsTest::refusesAnUnknownType()
{
    const ToolRun run =
        ToolProcess::run({"labels", "Presure", "--units", ToolProcess::testData("shared-labels.json")});
    QCOMPARE(run.standardError,
             QByteArray("unitmanager: unknown unit type \"Presure\"; known: Duration, Length, "
                        "Sound, Time, Volume\n"));
    QCOMPARE(run.standardOutput, QByteArray());
    QCOMPARE(run.exitCode, 1);
}

static const TestClass<ToolLabelsTest> testClass;
#include "ToolLabelsTest.moc"
