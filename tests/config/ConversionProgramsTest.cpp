#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QMap>
#include <QtCore/QSharedPointer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <algorithm>
#include <cmath>

#include "GnuUnits.h"
#include "LogCapture.h"
#include "ShippedCatalogue.h"
#include "TestProgram.h"
#include "Udunits.h"

namespace {

using Program = QSharedPointer<ConversionProgram>;
using PairCounts = QMap<QString, int>;

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

/// Relative to the result. An affine conversion adds and subtracts numbers of the size of its shift, the
/// distance between absolute zero and the ice point. If the result is smaller than the shift, the tolerance
/// is relative to the shift.
double tolerance(double result, double zeroShift)
{
    constexpr double relativeTolerance = 1e-12;
    return relativeTolerance * std::max(std::abs(result), zeroShift);
}

} // namespace

Q_DECLARE_METATYPE(Program)
Q_DECLARE_METATYPE(PairCounts)

/// Converts every unit to every other of its type and compares the results with two programs that are
/// independent of the shipped documents. data/conversion-programs.json contains their unit names and the
/// values.
class ConversionProgramsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyUnitHasNamesInThePrograms_data();
    void everyUnitHasNamesInThePrograms();
    void programAgreesWithEveryPair_data();
    void programAgreesWithEveryPair();
    void wrongResultIsDetected_data();
    void wrongResultIsDetected();
    void unknownUnitIsAnError_data();
    void unknownUnitIsAnError();
    void missingProgramIsAnError_data();
    void missingProgramIsAnError();

private:
    /// The conversions to check, the tolerance of each, and the pairs of units they belong to.
    struct Queries
    {
        QVector<Conversion> conversions;
        QVector<double> tolerances;
        PairCounts pairs;
    };

    static void addPrograms();
    Queries queries(const QString& key, const ConversionProgram& program) const;
    void addPair(const QString& type, const QString& from, const QString& to, const QString& key,
                 const ConversionProgram& program, Queries* queries) const;

    ShippedCatalogue m_catalogue;
    QJsonArray m_values;
    QJsonObject m_unitTypes;
};

void ConversionProgramsTest::initTestCase()
{
    QVERIFY(m_catalogue.isLoaded());
    QFile file(QStringLiteral(UNITMANAGER_TEST_DATA "/conversion-programs.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject data = QJsonDocument::fromJson(file.readAll()).object();
    m_values = data[QStringLiteral("values")].toArray();
    m_unitTypes = data[QStringLiteral("unitTypes")].toObject();
    QCOMPARE(m_values.size(), 12);
    QCOMPARE(m_unitTypes.size(), 10);
}

void ConversionProgramsTest::everyUnitHasNamesInThePrograms_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("unknownUnits");

    QTest::newRow("GNU Units") << "gnuUnits" << QStringList();
    // In UDUNITS, torr is another name of the conventional millimetre of mercury; here it is 1/760 of the
    // standard atmosphere, smaller by 1.4e-7. GNU Units covers it.
    QTest::newRow("UDUNITS") << "udunits" << QStringList{QStringLiteral("Pressure/Torr")};
}

void ConversionProgramsTest::everyUnitHasNamesInThePrograms()
{
    QFETCH(QString, key);
    QFETCH(QStringList, unknownUnits);
    QStringList withoutName;
    QStringList types{ShippedCatalogue::unitTypeName(QStringLiteral("NoUnit"))};
    for (const QString& type : m_unitTypes.keys()) {
        types.append(ShippedCatalogue::unitTypeName(type));
        const QJsonObject units = m_unitTypes[type].toObject();
        for (const QString& unit : m_catalogue.manager().getListofUnits(types.last()))
            if (units[unit][key].toString().isEmpty())
                withoutName.append(type + QLatin1Char('/') + unit);
        QCOMPARE(units.size(), m_catalogue.manager().getListofUnits(types.last()).size());
    }
    QCOMPARE(withoutName, unknownUnits);
    QCOMPARE(sorted(types), sorted(m_catalogue.manager().getListofUnitTypes()));
}

void ConversionProgramsTest::programAgreesWithEveryPair_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<Program>("program");
    QTest::addColumn<PairCounts>("expectedPairs");
    QTest::addColumn<int>("expectedConversions");

    // A type with n units gives n * (n - 1) pairs; the only unit of relative humidity gives none.
    PairCounts pairs{{"AbsoluteHumidity", 12},
                     {"AbsoluteTemperature", 12},
                     {"MixingRatio", 6},
                     {"Pressure", 14 * 13},
                     {"Ratio", 12},
                     {"Resistance", 12},
                     {"SpecificEnthalpy", 12},
                     {"Time", 20},
                     {"Voltage", 12}};
    // 12 values for each linear pair, 9 for each pair of temperatures.
    QTest::newRow("GNU Units") << "gnuUnits" << Program(new GnuUnits) << pairs << 268 * 12 + 12 * 9;
    // One pressure unit fewer, and without the value 1e-30, which is too small.
    pairs[QStringLiteral("Pressure")] = 13 * 12;
    QTest::newRow("UDUNITS") << "udunits" << Program(new Udunits) << pairs << 242 * 11 + 12 * 9;
}

void ConversionProgramsTest::programAgreesWithEveryPair()
{
    QFETCH(QString, key);
    QFETCH(Program, program);
    QFETCH(PairCounts, expectedPairs);
    QFETCH(int, expectedConversions);
    LogCapture log;
    const Queries all = queries(key, *program);
    QCOMPARE(log.takeTexts(), QStringList());
    QCOMPARE(all.pairs, expectedPairs);
    QCOMPARE(all.conversions.size(), expectedConversions);

    QString error;
    const QVector<double> deviations = program->deviations(all.conversions, &error);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    QCOMPARE(deviations.size(), expectedConversions);
    for (int i = 0; i < deviations.size(); ++i) {
        const Conversion& conversion = all.conversions.at(i);
        QVERIFY2(std::abs(deviations.at(i)) <= all.tolerances.at(i),
                 qPrintable(QStringLiteral("%1 %2 is not %3 %4: off by %5")
                                .arg(conversion.value)
                                .arg(conversion.from)
                                .arg(conversion.result, 0, 'g', 17)
                                .arg(conversion.to)
                                .arg(deviations.at(i))));
    }
}

void ConversionProgramsTest::addPrograms()
{
    QTest::addColumn<Program>("program");
    QTest::newRow("GNU Units") << Program(new GnuUnits);
    QTest::newRow("UDUNITS") << Program(new Udunits);
}

void ConversionProgramsTest::wrongResultIsDetected_data()
{
    addPrograms();
}

void ConversionProgramsTest::wrongResultIsDetected()
{
    QFETCH(Program, program);
    const QString bar = QStringLiteral("bar");
    const QString hectoPascal = QStringLiteral("hPa");
    QString error;
    const QVector<double> deviations =
        program->deviations({{bar, hectoPascal, 1.5, 1500.0}, {bar, hectoPascal, 1.5, 1500.125}}, &error);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    QCOMPARE(deviations, (QVector<double>{0.0, -0.125}));
}

void ConversionProgramsTest::unknownUnitIsAnError_data()
{
    addPrograms();
}

void ConversionProgramsTest::unknownUnitIsAnError()
{
    QFETCH(Program, program);
    const QString bar = QStringLiteral("bar");
    QString error;
    QVERIFY(program->deviations({{bar, QStringLiteral("nosuchunit"), 1.0, 1.0}}, &error).isEmpty());
    QVERIFY(!error.isEmpty());
}

void ConversionProgramsTest::missingProgramIsAnError_data()
{
    addPrograms();
}

void ConversionProgramsTest::missingProgramIsAnError()
{
    QFETCH(Program, program);
    const QByteArray path = qgetenv("PATH");
    const QTemporaryDir empty;
    qputenv("PATH", QFile::encodeName(empty.path()));
    const QString bar = QStringLiteral("bar");
    QString error;
    const QVector<double> deviations = program->deviations({{bar, bar, 1.0, 1.0}}, &error);
    qputenv("PATH", path);
    QVERIFY(deviations.isEmpty());
    QVERIFY(!error.isEmpty());
}

ConversionProgramsTest::Queries ConversionProgramsTest::queries(const QString& key,
                                                                const ConversionProgram& program) const
{
    Queries result;
    for (const QString& type : m_unitTypes.keys()) {
        const QStringList units = m_unitTypes[type].toObject().keys();
        for (const QString& from : units)
            for (const QString& to : units)
                if (from != to)
                    addPair(type, from, to, key, program, &result);
    }
    return result;
}

void ConversionProgramsTest::addPair(const QString& type, const QString& from, const QString& to,
                                     const QString& key, const ConversionProgram& program,
                                     Queries* queries) const
{
    const QJsonObject source = m_unitTypes[type][from].toObject();
    const QJsonObject target = m_unitTypes[type][to].toObject();
    if (!source.contains(key) || !target.contains(key))
        return;
    ++queries->pairs[type];
    const double zeroShift = target[QStringLiteral("zeroShift")].toDouble(0.0);
    const QJsonArray values = source[QStringLiteral("values")].toArray(m_values);
    for (const QJsonValue& value : values) {
        const QVariant result = m_catalogue.convert(value.toDouble(), type, from, to);
        const Conversion conversion{source[key].toString(), target[key].toString(), value.toDouble(),
                                    result.toDouble()};
        if (!program.isAnswerable(conversion))
            continue;
        queries->conversions.append(conversion);
        queries->tolerances.append(tolerance(conversion.result, zeroShift));
    }
}

static const TestClass<ConversionProgramsTest> testClass;

#include "ConversionProgramsTest.moc"
