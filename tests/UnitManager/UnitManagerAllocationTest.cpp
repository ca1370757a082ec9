#include "UnitManager.h"

#include <QtTest/QTest>

#include <dlfcn.h>

#include <cstddef>
#include <functional>

#include "TestDocuments.h"
#include "TestProgram.h"

namespace {

thread_local bool isCounting = false;
thread_local int allocations = 0;

template <typename Function>
Function* nextDefinition(const char* name)
{
    allocations += isCounting ? 1 : 0;
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// The number of allocations during @p call, in any library.
int allocationsIn(const std::function<void()>& call)
{
    allocations = 0;
    isCounting = true;
    call();
    isCounting = false;
    return allocations;
}

} // namespace

// A program's own definitions take precedence over those of the C library, also for the libraries that it
// uses.
extern "C" {

void* malloc(std::size_t size)
{
    return nextDefinition<void*(std::size_t)>("malloc")(size);
}

void* calloc(std::size_t count, std::size_t size)
{
    return nextDefinition<void*(std::size_t, std::size_t)>("calloc")(count, size);
}

void* realloc(void* memory, std::size_t size)
{
    return nextDefinition<void*(void*, std::size_t)>("realloc")(memory, size);
}
}

/// A conversion of a `double` allocates nothing.
class UnitManagerAllocationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void allocationsAreCounted();
    void conversionAllocatesNothing_data();
    void conversionAllocatesNothing();
    void repeatedConversionAllocatesNothing();

private:
    UnitManager m_manager;
};

namespace {

namespace T = TestUnitType;

} // namespace

void UnitManagerAllocationTest::initTestCase()
{
    QVERIFY(m_manager.initByJsonString(TestDocuments::units(), TestDocuments::defaultUnits()));
}

void UnitManagerAllocationTest::allocationsAreCounted()
{
    QCOMPARE(allocationsIn([] {}), 0);
    QCOMPARE(allocationsIn([] { QString(100, QLatin1Char('x')); }), 1);
    // Allocations inside a shared library count.
    QCOMPARE(allocationsIn([this] { m_manager.getBaseUnit(T::pressure); }) > 0, true);
}

void UnitManagerAllocationTest::conversionAllocatesNothing_data()
{
    QTest::addColumn<QString>("unitType");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<double>("fromBase");

    QTest::newRow("unit") << T::pressure << "HectoPascal" << 1013.3;
    QTest::newRow("default unit") << T::pressure << "" << 1013.3;
    QTest::newRow("table unit") << T::ratio << "Counts" << 1.0;
}

void UnitManagerAllocationTest::conversionAllocatesNothing()
{
    QFETCH(QString, unitType);
    QFETCH(QString, unit);
    const QVariant value(1.01325);
    QVariant result;
    // Call it once before counting: the first call resolves symbols and initialises static data.
    const auto count = [&](auto operation) {
        const auto call = [&] {
            result = (m_manager.*operation)(value, unitType, unit);
        };
        call();
        return allocationsIn(call);
    };

    QCOMPARE(count(&UnitManager::toBaseUnit), 0);
    QCOMPARE(count(&UnitManager::fromBaseUnit), 0);
    QTEST(result.toDouble(), "fromBase");
    QCOMPARE(count(&UnitManager::toBaseUnitRaw), 0);
    QCOMPARE(count(&UnitManager::fromBaseUnitRaw), 0);
}

void UnitManagerAllocationTest::repeatedConversionAllocatesNothing()
{
    double values[] = {1.0, 2.0, 3.0};
    const QString unit = QStringLiteral("HectoPascal");
    const auto call = [&] {
        m_manager.fromBaseUnitArray(values, values, 3, T::pressure, unit);
    };
    call();
    QCOMPARE(allocationsIn(call), 0);
    QCOMPARE(values[2], 3000000.0);
}

static const TestClass<UnitManagerAllocationTest> testClass;

#include "UnitManagerAllocationTest.moc"
