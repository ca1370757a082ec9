#include "UnitManager.h"

#include <QtTest/QTest>

#include <array>
#include <thread>

#include "Array2dDataTypeWrapper.h"
#include "DebugText.h"
#include "TestDocuments.h"
#include "TestProgram.h"

/// Const functions in several threads at the same time, also under ThreadSanitizer.
class UnitManagerThreadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneManagerIsReadByTwoThreads();
    void copiesAreReadAndReplacedByTwoThreads();
};

namespace {

namespace T = TestUnitType;

const int rounds = 2000;

/// The results of every const function that logs nothing.
QStringList answersOf(const UnitManager& manager)
{
    const QString german = QStringLiteral("de");
    const Array2dDataTypeWrapper array({QVariant(QVariantList{1.5, 300.0})}, {T::pressure, T::temperature});
    QString unitType;
    QString unit;
    QStringList answers = manager.getListofUnitTypes() + manager.getListofUnits(T::pressure);
    answers += manager.getDefaultUnit(T::pressure);
    answers += manager.getBaseUnit(T::pressure);
    answers += QString::number(manager.extractUnitTypeAndUnit(T::pressure + "/Bar", unitType, unit));
    answers += manager.getUnitText(T::pressure, german, QString());
    answers += manager.getUnitText(array, german, 0, 2, QString());
    answers += toDebugText(manager.getUnitTextJsonMap(T::ratio + "/Counts"));
    answers += toDebugText(manager.fromBaseUnit(1.23456, T::pressure, QString()));
    answers += toDebugText(manager.toBaseUnit(1234.56, T::pressure, QStringLiteral("HectoPascal")));
    answers += toDebugText(manager.getValue(QVariant(7), T::temperature, QStringLiteral("Celsius")));
    answers += toDebugText(manager.getValueArray(array, 0, 0, 2, QString()));
    return answers;
}

UnitManager loadedManager()
{
    UnitManager manager;
    manager.initByJsonString(TestDocuments::units(), TestDocuments::defaultUnits());
    return manager;
}

/// Runs @p work in two threads at the same time. @return the number of results that differ from the expected
/// ones.
template <typename Work>
int differencesInTwoThreads(const Work& work)
{
    std::array<int, 2> differences = {0, 0};
    std::thread first([&] { differences[0] = work(); });
    std::thread second([&] { differences[1] = work(); });
    first.join();
    second.join();
    return differences[0] + differences[1];
}

} // namespace

void UnitManagerThreadTest::oneManagerIsReadByTwoThreads()
{
    const UnitManager manager = loadedManager();
    const QStringList expected = answersOf(manager);
    QVERIFY(manager.isValid());
    QVERIFY(expected.contains(toDebugText(1234.6)));
    QVERIFY(expected.contains(QStringLiteral("deg C")));

    const int differences = differencesInTwoThreads([&] {
        int count = 0;
        for (int round = 0; round < rounds; ++round)
            count += answersOf(manager) == expected ? 0 : 1;
        return count;
    });
    QCOMPARE(differences, 0);
}

void UnitManagerThreadTest::copiesAreReadAndReplacedByTwoThreads()
{
    const UnitManager manager = loadedManager();
    const QStringList expected = answersOf(manager);

    const int differences = differencesInTwoThreads([&] {
        int count = 0;
        for (int round = 0; round < rounds / 10; ++round) {
            UnitManager copy = manager;
            count += answersOf(copy) == expected ? 0 : 1;
            copy.updateUnitConversionByJsonString(TestDocuments::voltage());
            count += copy.getListofUnitTypes() == QStringList{T::voltage} ? 0 : 1;
        }
        return count;
    });
    QCOMPARE(differences, 0);
    QCOMPARE(answersOf(manager), expected);
}

static const TestClass<UnitManagerThreadTest> testClass;

#include "UnitManagerThreadTest.moc"
