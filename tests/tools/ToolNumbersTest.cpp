#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtTest/QTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "Row.h"
#include "TestProgram.h"
#include "ToolProcess.h"

/// Reading and writing of numbers.
class ToolNumbersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsNumbers_data();
    void readsNumbers();
    void refusesOtherText_data();
    void refusesOtherText();
    void roundsAsTheLibraryDoes_data();
    void roundsAsTheLibraryDoes();
    void printsSpecialValues_data();
    void printsSpecialValues();
    void rawTextReadsBackTheSameDouble();
    void jsonValueReadsBackTheSameDouble();
};

namespace {

/// Doubles of every magnitude, including the extreme ones.
QVector<double> sampleDoubles()
{
    using Limits = std::numeric_limits<double>;
    QVector<double> samples{0.0,
                            0.1,
                            1.0 / 3,
                            1e22,
                            1e23,
                            9007199254740993.0,
                            Limits::max(),
                            Limits::lowest(),
                            Limits::min(),
                            Limits::denorm_min(),
                            -Limits::denorm_min()};
    std::mt19937_64 random(20231);
    while (samples.size() < 5000) {
        const quint64 bits = random();
        double sample = 0;
        std::memcpy(&sample, &bits, sizeof sample);
        if (std::isfinite(sample))
            samples.append(sample);
    }
    return samples;
}

QByteArray exactLines(const QVector<double>& values)
{
    QByteArray lines;
    for (double value : values)
        lines += QByteArray::number(value, 'g', 17) + '\n';
    return lines;
}

QList<QByteArray> linesOf(const QByteArray& text)
{
    return text.trimmed().split('\n');
}

} // namespace

void ToolNumbersTest::readsNumbers_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("read");
    QTest::newRow("whole") << "5" << QByteArray("5");
    QTest::newRow("negative") << "-5" << QByteArray("-5");
    QTest::newRow("negative without leading zero") << "-.5" << QByteArray("-0.5");
    QTest::newRow("positive sign") << "+5" << QByteArray("5");
    QTest::newRow("no digit before the point") << ".5" << QByteArray("0.5");
    QTest::newRow("no digit after the point") << "5." << QByteArray("5");
    QTest::newRow("exponent") << "1.5e3" << QByteArray("1500");
    QTest::newRow("negative exponent") << "-1.5e-3" << QByteArray("-0.0015");
    QTest::newRow("capital exponent") << "1E5" << QByteArray("100000");
    QTest::newRow("blanks around") << " 5\t" << QByteArray("5");
    QTest::newRow("more digits than a double keeps") << "0.1000000000000000055" << QByteArray("0.1");
    QTest::newRow("smallest") << "5e-324" << QByteArray("5e-324");
    QTest::newRow("largest") << "1.7976931348623157e308" << QByteArray("1.7976931348623157e+308");
    QTest::newRow("negative zero") << "-0" << QByteArray("0");
    QTest::newRow("no value") << "nan" << QByteArray("nan");
    QTest::newRow("infinite") << "inf" << QByteArray("inf");
    QTest::newRow("negative infinite") << "-inf" << QByteArray("-inf");
}

void ToolNumbersTest::readsNumbers()
{
    QFETCH(QString, value);
    QFETCH(QByteArray, read);
    for (const ToolRun& run : {ToolProcess::run({"convert", value, "NoUnit", "--raw"}),
                               ToolProcess::run({"convert", "-", "NoUnit", "--raw"}, value.toUtf8())}) {
        QCOMPARE(run.standardError, QByteArray());
        QCOMPARE(run.standardOutput, read + '\n');
        QCOMPARE(run.exitCode, 0);
    }
}

void ToolNumbersTest::refusesOtherText_data()
{
    QTest::addColumn<QString>("value");
    QTest::newRow("word") << "five";
    QTest::newRow("decimal comma") << "1,5";
    QTest::newRow("grouping") << "1,234.5";
    QTest::newRow("grouping by blanks") << "1 234";
    QTest::newRow("grouping by apostrophes") << "1'234";
    QTest::newRow("two numbers") << "1 2";
    QTest::newRow("number with unit") << "5hPa";
    QTest::newRow("hexadecimal") << "0x10";
    QTest::newRow("two signs") << "--5";
    QTest::newRow("exponent without digits") << "1e";
    QTest::newRow("broken exponent") << "1e5.5";
    QTest::newRow("lone point") << ".";
    QTest::newRow("full-width digit") << QString(QChar(0xFF15));
    QTest::newRow("too large") << "1e999";
    QTest::newRow("too small") << "1e-999";
    QTest::newRow("long form of infinite") << "infinity";
}

void ToolNumbersTest::refusesOtherText()
{
    QFETCH(QString, value);
    const QByteArray message =
        '"' + value.toUtf8() +
        "\" is not a decimal number such as -1234.5 or 1e-3, within the range of a double\n";
    const ToolRun argument = ToolProcess::run({"convert", "--", value, "NoUnit"});
    QVERIFY2(argument.standardError.startsWith("unitmanager: " + message),
             argument.standardError.constData());
    QCOMPARE(argument.standardOutput, QByteArray());
    QCOMPARE(argument.exitCode, 2);

    const ToolRun line = ToolProcess::run({"convert", "-", "NoUnit"}, value.toUtf8());
    QCOMPARE(line.standardError, "unitmanager: line 1: " + message);
    QCOMPARE(line.standardOutput, QByteArray("\n"));
    QCOMPARE(line.exitCode, 1);
}

void ToolNumbersTest::roundsAsTheLibraryDoes_data()
{
    QTest::addColumn<QString>("bar");
    QTest::addColumn<QByteArray>("shown");
    QTest::newRow("half away from zero") << "1.0625" << QByteArray("1.063");
    QTest::newRow("negative half away from zero") << "-1.0625" << QByteArray("-1.063");
    QTest::newRow("below half") << "1.0624" << QByteArray("1.062");
    QTest::newRow("filled up with zeros") << "2" << QByteArray("2.000");
    QTest::newRow("negative that rounds to zero") << "-0.0004" << QByteArray("0.000");
    QTest::newRow("negative zero") << "-0" << QByteArray("0.000");
    QTest::newRow("large, in fixed notation") << "1e15" << QByteArray("1000000000000000.000");
    QTest::newRow("no value") << "nan" << QByteArray("nan");
    QTest::newRow("infinite") << "-inf" << QByteArray("-inf");
}

void ToolNumbersTest::roundsAsTheLibraryDoes()
{
    QFETCH(QString, bar);
    QFETCH(QByteArray, shown);
    const ToolRun run = ToolProcess::run({"convert", bar, "Pressure", "Bar", "Bar"});
    QCOMPARE(run.standardError, QByteArray());
    QCOMPARE(run.standardOutput, shown + " bar\n");
    QCOMPARE(run.exitCode, 0);
}

void ToolNumbersTest::printsSpecialValues_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("shown");
    QTest::addColumn<QByteArray>("raw");
    QTest::addColumn<QByteArray>("json");
    const auto addRow = [](const char* name, const QStringList& arguments, const QByteArray& value,
                           const QByteArray& label, const QByteArray& json) {
        row(name, arguments, QByteArray(value + ' ' + label), value, json);
    };
    const QByteArray inBar = R"({"label":"bar","type":"Pressure","unit":"Bar","value":null})";
    const QByteArray inPascal = R"({"label":"Pa","type":"Pressure","unit":"Pascal","value":null})";
    const QByteArray inKelvin = R"({"label":"K","type":"AbsoluteTemperature","unit":"Kelvin","value":null})";
    for (const char* value : {"inf", "-inf", "nan"})
        addRow(qPrintable(QString("%1 in its own unit").arg(value)),
               {"convert", value, "Pressure", "Bar", "Bar"}, value, "bar", inBar);
    for (const char* value : {"inf", "-inf", "nan"}) {
        addRow(qPrintable(QString("%1 from the base unit").arg(value)),
               {"convert", value, "Pressure", "Bar", "Pascal"}, "nan", "Pa", inPascal);
        addRow(qPrintable(QString("%1 into the base unit").arg(value)),
               {"convert", value, "Pressure", "Pascal", "Bar"}, "nan", "bar", inBar);
        addRow(qPrintable(QString("%1 with an offset").arg(value)),
               {"convert", value, "AbsoluteTemperature", "DegreeCelsius", "Kelvin"}, "nan", "K", inKelvin);
    }
    addRow("too large in the other unit", {"convert", "1e305", "Pressure", "Bar", "Pascal"}, "inf", "Pa",
           inPascal);
    addRow("too small in the other unit", {"convert", "-1e305", "Pressure", "Bar", "Pascal"}, "-inf", "Pa",
           inPascal);
    row("table", QStringList{"table", "-inf", "Ratio", "PartsPerMillion"},
        QByteArray("Percentage       nan %\nPartsPerMillion  -inf ppm\nPartsPerBillion  nan ppb\n"
                   "Fraction         nan fraction"),
        QByteArray("Percentage       nan\nPartsPerMillion  -inf\nPartsPerBillion  nan\n"
                   "Fraction         nan"),
        QByteArray(R"({"label":"%","type":"Ratio","unit":"Percentage","value":null}
{"label":"ppm","type":"Ratio","unit":"PartsPerMillion","value":null}
{"label":"ppb","type":"Ratio","unit":"PartsPerBillion","value":null}
{"label":"fraction","type":"Ratio","unit":"Fraction","value":null})"));
}

void ToolNumbersTest::printsSpecialValues()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, shown);
    QFETCH(QByteArray, raw);
    QFETCH(QByteArray, json);
    QCOMPARE(ToolProcess::run(arguments).standardOutput, shown + '\n');
    QCOMPARE(ToolProcess::run(arguments + QStringList("--raw")).standardOutput, raw + '\n');
    QCOMPARE(ToolProcess::run(arguments + QStringList("--json")).standardOutput, json + '\n');
}

void ToolNumbersTest::rawTextReadsBackTheSameDouble()
{
    const QVector<double> values = sampleDoubles();
    const ToolRun run = ToolProcess::run({"convert", "-", "NoUnit", "--raw"}, exactLines(values));
    const QList<QByteArray> lines = linesOf(run.standardOutput);
    QCOMPARE(lines.size(), values.size());
    for (int i = 0; i < values.size(); ++i) {
        QVERIFY2(lines[i].toDouble() == values[i], lines[i].constData());
        QVERIFY2(lines[i].size() <= QByteArray::number(values[i], 'g', 17).size(), lines[i].constData());
    }
}

void ToolNumbersTest::jsonValueReadsBackTheSameDouble()
{
    const QVector<double> values = sampleDoubles();
    const ToolRun run = ToolProcess::run({"convert", "-", "NoUnit", "--json"}, exactLines(values));
    const QList<QByteArray> lines = linesOf(run.standardOutput);
    QCOMPARE(lines.size(), values.size());
    for (int i = 0; i < values.size(); ++i) {
        const QJsonValue value = QJsonDocument::fromJson(lines[i]).object().value("value");
        QVERIFY2(value.isDouble() && value.toDouble() == values[i], lines[i].constData());
    }
}

static const TestClass<ToolNumbersTest> testClass;
#include "ToolNumbersTest.moc"
