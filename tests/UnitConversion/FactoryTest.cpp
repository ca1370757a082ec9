#include <QtCore/QLibrary>
#include <QtTest/QTest>

#include <memory>
#include <string>
#include <type_traits>

#include "FactoryProbe.h"
#include "LogCapture.h"
#include "RecordingNode.h"
#include "Row.h"
#include "TestProgram.h"
#include "UnitConversion/ValueConversionWrapper.h"
#include "UnitConversion/ValueConverterArbitraryTable.h"
#include "UnitConversion/ValueConverterEquidistantTable.h"
#include "UnitConversion/ValueConverterPolynomial.h"
#include "VirtualSlot.h"

namespace {

using Product = std::unique_ptr<ProbeBase>;
using Converter = std::unique_ptr<ValueConverterBase>;

static_assert(std::is_same_v<decltype(ProbeFactory::creators),
                             std::unordered_map<QString, std::unique_ptr<ProbeFactory::AbstractCreator>,
                                                VESKFactories::KeyHasher>>);
static_assert(std::has_virtual_destructor_v<ProbeFactory::AbstractCreator>);
static_assert(std::is_abstract_v<ProbeFactory::AbstractCreator>);

class Plus : public ProbeBase
{
public:
    explicit Plus(int number) : m_number(number) {}
    int number() const override
    {
        return m_number;
    }

private:
    int m_number;
};

class Minus : public ProbeBase
{
public:
    explicit Minus(int number) : m_number(-number) {}
    int number() const override
    {
        return m_number;
    }

private:
    int m_number;
};

static_assert(sizeof(ProbeFactory::Creator<Plus>) == sizeof(ProbeFactory::AbstractCreator));

/// Counts its destructions.
class CountingCreator : public ProbeFactory::AbstractCreator
{
public:
    explicit CountingCreator(int& destroyed) : m_destroyed(destroyed) {}
    ~CountingCreator() override
    {
        ++m_destroyed;
    }
    CountingCreator(const CountingCreator&) = delete;
    CountingCreator& operator=(const CountingCreator&) = delete;
    ProbeBase* create(int number) override
    {
        return new Plus(number + 1000);
    }

private:
    int& m_destroyed;
};

/// Converts everything to 1234.
class TestConverter : public ValueConverterBase
{
public:
    explicit TestConverter(const BaseClassSharedPointer& /*node*/) {}
    double convertValue(double /*x*/) const override
    {
        return 1234;
    }
    double invertValue(double /*x*/) const override
    {
        return 1234;
    }
};

/// The class name of a converter; empty for any other class and for a null pointer.
QString className(const ValueConverterBase* converter)
{
    if (dynamic_cast<const ValueConverterPolynomial*>(converter))
        return QStringLiteral("ValueConverterPolynomial");
    if (dynamic_cast<const ValueConverterEquidistantTable*>(converter))
        return QStringLiteral("ValueConverterEquidistantTable");
    if (dynamic_cast<const ValueConverterArbitraryTable*>(converter))
        return QStringLiteral("ValueConverterArbitraryTable");
    return {};
}

} // namespace

class FactoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneRegistryForAllLibraries();
    void libraryUsesWhatTheProgramRegisters();
    void holdsExactlyThreeConverters();
    void createsConverters_data();
    void createsConverters();
    void everyCallCreatesAnObjectOfTheCallers();
    void missingKeyGivesNullSilently_data();
    void missingKeyGivesNullSilently();
    void handsArgumentsToTheConstructor();
    void laterCreatorReplacesAndDestroysTheEarlier();
    void destructionDestroysEveryCreator();
    void startsWithStandardMap();
    void createPrecedesTheDestructor();
    void keyIsTheHashCodeInDecimal();
    void hashIsNotSeeded_data();
    void hashIsNotSeeded();
};

void FactoryTest::oneRegistryForAllLibraries()
{
    QCOMPARE(FactoryProbe::converterFactory(), &std::as_const(ValueConverterFactory::instance()));
    QCOMPARE(FactoryProbe::stateFactory(), &std::as_const(StateFactory::instance()));
    QCOMPARE(FactoryProbe::probeFactory(), &std::as_const(ProbeFactory::instance()));

    using Address = const void* (*)();
    QLibrary plugin(QStringLiteral(FACTORY_PLUGIN));
    QVERIFY2(plugin.load(), qPrintable(plugin.errorString()));
    const auto converterFactory = reinterpret_cast<Address>(plugin.resolve("converterFactoryOfPlugin"));
    const auto stateFactory = reinterpret_cast<Address>(plugin.resolve("stateFactoryOfPlugin"));
    const auto probeFactory = reinterpret_cast<Address>(plugin.resolve("probeFactoryOfPlugin"));
    QVERIFY(converterFactory && stateFactory && probeFactory);
    QCOMPARE(converterFactory(), static_cast<const void*>(&ValueConverterFactory::instance()));
    QCOMPARE(stateFactory(), static_cast<const void*>(&StateFactory::instance()));
    QCOMPARE(probeFactory(), static_cast<const void*>(&ProbeFactory::instance()));
}

void FactoryTest::libraryUsesWhatTheProgramRegisters()
{
    const BaseClassSharedPointer node = nodeFromJson(QStringLiteral(R"({"Polynomial": [[5], [2]]})"));
    ValueConverterFactory& factory = ValueConverterFactory::instance();
    factory.registerClass<TestConverter>(QStringLiteral("Polynomial"));
    const double converted = ValueConversionWrapper(node).convertValue(3);
    factory.registerClass<ValueConverterPolynomial>(QStringLiteral("Polynomial"));

    QCOMPARE(converted, 1234.0);
    QCOMPARE(ValueConversionWrapper(node).convertValue(3), 11.0);
}

void FactoryTest::holdsExactlyThreeConverters()
{
    QStringList keys;
    for (const auto& creator : ValueConverterFactory::instance().creators)
        keys.append(creator.first);
    keys.sort();
    QCOMPARE(keys, QStringList({"ArbitraryTable", "EquidistantTable", "Polynomial"}));
}

void FactoryTest::createsConverters_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected");

    row("polynomial", "Polynomial", "ValueConverterPolynomial");
    row("equidistant table", "EquidistantTable", "ValueConverterEquidistantTable");
    row("arbitrary table", "ArbitraryTable", "ValueConverterArbitraryTable");
}

void FactoryTest::createsConverters()
{
    QFETCH(QString, key);
    const BaseClassSharedPointer node = nodeFromJson(QStringLiteral("{}"));
    const Converter converter(ValueConverterFactory::instance().create(key, node));
    QTEST(className(converter.get()), "expected");
}

void FactoryTest::everyCallCreatesAnObjectOfTheCallers()
{
    const BaseClassSharedPointer node = nodeFromJson(QStringLiteral("{}"));
    const Converter first(ValueConverterFactory::instance().create(QStringLiteral("Polynomial"), node));
    const Converter second(ValueConverterFactory::instance().create(QStringLiteral("Polynomial"), node));
    QVERIFY(first && second);
    QVERIFY(first != second);
}

void FactoryTest::missingKeyGivesNullSilently_data()
{
    QTest::addColumn<QString>("key");

    row("null text", QString());
    row("empty text", "");
    row("key of the table's rows", "Table");
    row("lower case", "polynomial");
    row("blank at the start", " Polynomial");
    row("class name", "ValueConverterPolynomial");
}

void FactoryTest::missingKeyGivesNullSilently()
{
    QFETCH(QString, key);
    LogCapture log;
    const std::size_t before = ValueConverterFactory::instance().creators.size();
    const Converter converter(
        ValueConverterFactory::instance().create(key, nodeFromJson(QStringLiteral("{}"))));
    QVERIFY(!converter);
    QCOMPARE(ValueConverterFactory::instance().creators.size(), before);
    QCOMPARE(log.takeTexts(), QStringList());
}

void FactoryTest::handsArgumentsToTheConstructor()
{
    ProbeFactory factory;
    factory.registerClass<Plus>(QStringLiteral("plus"));
    factory.registerClass<Minus>(QStringLiteral("minus"));
    QCOMPARE(Product(factory.create(QStringLiteral("plus"), 5))->number(), 5);
    QCOMPARE(Product(factory.create(QStringLiteral("minus"), 5))->number(), -5);
    QCOMPARE(Product(factory.creators.at(QStringLiteral("minus"))->create(6))->number(), -6);
}

void FactoryTest::laterCreatorReplacesAndDestroysTheEarlier()
{
    LogCapture log;
    int destroyed = 0;
    ProbeFactory factory;
    const QString key = QStringLiteral("key");
    factory.creators[key] = std::make_unique<CountingCreator>(destroyed);
    QCOMPARE(Product(factory.create(key, 1))->number(), 1001);

    factory.registerClass<Plus>(key);
    QCOMPARE(destroyed, 1);
    factory.registerClass<Minus>(key);
    QCOMPARE(factory.creators.size(), std::size_t(1));
    QCOMPARE(Product(factory.create(key, 1))->number(), -1);
    QCOMPARE(destroyed, 1);
    QCOMPARE(log.takeTexts(), QStringList());
}

void FactoryTest::destructionDestroysEveryCreator()
{
    int destroyed = 0;
    {
        ProbeFactory factory;
        factory.creators[QStringLiteral("a")] = std::make_unique<CountingCreator>(destroyed);
        factory.creators[QStringLiteral("b")] = std::make_unique<CountingCreator>(destroyed);
        QCOMPARE(destroyed, 0);
    }
    QCOMPARE(destroyed, 2);
}

// The registry is a public member: programs compiled with this header access it directly.
void FactoryTest::startsWithStandardMap()
{
    const ProbeFactory factory;
    QCOMPARE(factory.creators.size(), std::size_t(0));
    QCOMPARE(factory.creators.bucket_count(), std::size_t(1));
    QCOMPARE(factory.creators.max_load_factor(), 1.0F);
}

// Device programs call through the virtual table.
void FactoryTest::createPrecedesTheDestructor()
{
    QCOMPARE(virtualSlot(&ProbeFactory::AbstractCreator::create), std::size_t(0));
    QCOMPARE(virtualSlot(&ValueConverterFactory::AbstractCreator::create), std::size_t(0));
}

void FactoryTest::keyIsTheHashCodeInDecimal()
{
    const QString plus = VESKFactories::createFactoryKey<Plus>();
    QCOMPARE(plus, QString::fromStdString(std::to_string(typeid(Plus).hash_code())));
    QCOMPARE(VESKFactories::createFactoryKey<Plus>(), plus);
    QVERIFY(VESKFactories::createFactoryKey<Minus>() != plus);
    QVERIFY(VESKFactories::createFactoryKey<ProbeBase>() != plus);
}

void FactoryTest::hashIsNotSeeded_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<std::size_t>("expected");

    // Per character: hash = 31 * hash + character.
    row("empty", "", std::size_t(0));
    row("one character", "a", std::size_t(97));
    row("two characters", "ab", std::size_t(97 * 31 + 98));
}

// Programs compiled with this header look up keys in the same map: every process needs the same hash.
void FactoryTest::hashIsNotSeeded()
{
    QFETCH(QString, key);
    QTEST(VESKFactories::KeyHasher()(key), "expected");
}

static const TestClass<FactoryTest> testClass;
#include "FactoryTest.moc"
