#include "UnitManagerConnector/UnitManagerConnectionData.h"

#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCall>
#include <QtTest/QTest>

#include "ConfigurationFileHandlerDBusConnector.h"
#include "ConfigurationService.h"
#include "DBusPendingReply.h"
#include "DependencyWalker.h"
#include "DeviceManagerDefinitions.h"
#include "LogCapture.h"
#include "ObjectSlots.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"
#include "UnitManagerDevice/UnitManagerDevice.h"

using Data = UnitManagerConnectionData;
using Definitions = UnitManagerConnectorDefinitions;
using Settings = QMap<Definitions::ConnectorType, QStringList>;
using Texts = QMap<Definitions::ConnectorType, QString>;
using namespace TestSource;

Q_DECLARE_METATYPE(Texts)

/// Functions that need no bus: settings, resets, and the objects built from the texts.
class UnitManagerConnectionDataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theMetaObjectHasNoMethodsOfItsOwn();
    void theFirstVirtualFunctionIsTheInterface();
    void theParentIsNotPassedOn();
    void everythingIsEmptyAtFirst();
    void theSettingsAreThoseOfTheThreeSources();
    void initReplacesTheSettings();
    void theIgnoredFlagDoesNothing();
    void nothingIsBuiltWithoutText();
    void objectsAreBuiltFromTheTexts_data();
    void objectsAreBuiltFromTheTexts();
    void theUnitManagerIsReplacedByAFreshOne();
    void aDependencyTextAloneKeepsTheUnitManager();
    void unitTextsAloneKeepTheDependencyWalker();
    void aDefaultUnitTextAloneCreatesAManagerWithoutUnits();
    void theFetchedTextsOutliveAnUpdate();
    void resetsKeepKeysAndObjects_data();
    void resetsKeepKeysAndObjects();
};

namespace {

using TestUnitType::pressure;

/// The unit types of TestDocuments.
const QStringList allTypes{TestUnitType::temperature, pressure, TestUnitType::ratio};

/// The unit types in alphabetical order.
QStringList unitTypesOf(const UnitManagerDevice& manager)
{
    QStringList types = manager.getListofUnitTypes();
    types.sort();
    return types;
}

/// Connection data whose optional sources are configured.
class ConfiguredData : public Data
{
public:
    ConfiguredData()
        : Data(nullptr, true, false, false, module, dependencyObject, dependencyName, module,
               defaultUnitObject, defaultUnitName)
    {}

    QSharedPointer<UnitManagerDevice> unitManager()
    {
        QSharedPointer<UnitManagerDevice> out;
        initializeUnitManager(out);
        return out;
    }

    QSharedPointer<DependencyWalker> walker()
    {
        QSharedPointer<DependencyWalker> out;
        initializeDependencyWalker(out);
        return out;
    }
};

QStringList dependentsOf(const DependencyWalker& walker, const QString& key)
{
    QList<QVariant> results;
    walker.traverseDependencyGraph(key, {}, {}, results, {}, {});
    QStringList keys;
    for (const QVariant& result : results)
        keys.append(result.toString());
    return keys;
}

QSharedPointer<DBusPendingReply> arrivedReply()
{
    const QDBusMessage call = QDBusMessage::createMethodCall("org.example", "/", "org.example", "method");
    return QSharedPointer<DBusPendingReply>::create(
        QDBusPendingCall::fromCompletedCall(call.createReply("text")));
}

} // namespace

void UnitManagerConnectionDataTest::initTestCase()
{
    useNoBus();
}

void UnitManagerConnectionDataTest::theMetaObjectHasNoMethodsOfItsOwn()
{
    const QMetaObject& metaObject = Data::staticMetaObject;
    QCOMPARE(metaObject.className(), "UnitManagerConnectionData");
    QCOMPARE(metaObject.superClass(), &QObject::staticMetaObject);
    QCOMPARE(metaObject.methodCount(), metaObject.methodOffset());
}

void UnitManagerConnectionDataTest::theFirstVirtualFunctionIsTheInterface()
{
    // Part of the binary interface: callers use the position in the virtual table.
    QCOMPARE(virtualSlot(&Data::useAsynchronInterface), firstSlotAfterObject());
}

void UnitManagerConnectionDataTest::theParentIsNotPassedOn()
{
    QObject parent;
    const Data data(&parent, false, false, false, "", "", "", "", "", "");
    QCOMPARE(data.parent(), nullptr);
    QVERIFY(parent.children().isEmpty());
}

void UnitManagerConnectionDataTest::everythingIsEmptyAtFirst()
{
    LogCapture log;
    ConfiguredData data;
    QVERIFY(data.connectors().isEmpty());
    QVERIFY(data.pendingReplies().isEmpty());
    QVERIFY(data.configurations().isEmpty());
    QVERIFY(data.getConfigurationChangeMap().isEmpty());
    QVERIFY(!data.pollChangeFlags());
    QVERIFY(!data.isConnectedToDBus());
    QVERIFY(!data.useAsynchronInterface());
    QVERIFY(data.closeConnections());

    const auto device = QSharedPointer<UnitManagerDevice>::create();
    const auto walker = QSharedPointer<DependencyWalker>::create();
    QSharedPointer<UnitManagerDevice> deviceOut = device;
    QSharedPointer<DependencyWalker> walkerOut = walker;
    QVERIFY(!data.initializeUnitManager(deviceOut));
    QVERIFY(!data.initializeDependencyWalker(walkerOut));
    QCOMPARE(deviceOut, device);
    QCOMPARE(walkerOut, walker);
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectionDataTest::theSettingsAreThoseOfTheThreeSources()
{
    Data data(nullptr, false, true, false, "s1", "s2", "s3", "s4", "s5", "s6");
    const Settings expected{
        {units,
         {DeviceManagerDefinitions::getModuleName(),
          DeviceManagerDefinitions::getObjectNameUnitManagerConfiguration(), "UnitManager/UnitType",
          Definitions::getKeyConfigurationFile(), "mandatory"}},
        {dependencies, {"s1", "s2", "s3", Definitions::getKeyConfigurationDependencyFile(), "optional"}},
        {defaults, {"s4", "s5", "s6", Definitions::getKeyConfigurationFile(), "optional"}}};
    QCOMPARE(data.connectorSettings(), expected);
    QVERIFY(data.useAsynchronInterface());
}

void UnitManagerConnectionDataTest::initReplacesTheSettings()
{
    LogCapture log;
    Data data(nullptr, false, false, false, "", "", "", "", "", "");
    QCOMPARE(data.connectorSettings().value(dependencies),
             (QStringList{"", "", "", "configuration", "optional"}));
    QCOMPARE(data.connectorSettings().value(defaults),
             (QStringList{"", "", "", "configuration.dependency", "optional"}));

    data.connectorSettings()[units] = QStringList{"anything"};
    QVERIFY(data.init(true, "a", "b", "c", "d", "e", "f"));
    QVERIFY(data.useAsynchronInterface());
    QCOMPARE(data.connectorSettings().size(), 3);
    QCOMPARE(data.connectorSettings().value(units),
             (QStringList{"DeviceManager", "UnitManagerConfiguration", "UnitManager/UnitType",
                          "configuration.dependency", "mandatory"}));
    QCOMPARE(data.connectorSettings().value(dependencies),
             (QStringList{"a", "b", "c", "configuration", "optional"}));
    QCOMPARE(data.connectorSettings().value(defaults),
             (QStringList{"d", "e", "f", "configuration.dependency", "optional"}));
    QVERIFY(data.init(false, "", "", "", "", "", ""));
    QVERIFY(!data.useAsynchronInterface());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectionDataTest::theIgnoredFlagDoesNothing()
{
    Data with(nullptr, false, false, true, "a", "b", "c", "d", "e", "f");
    Data without(nullptr, false, false, false, "a", "b", "c", "d", "e", "f");
    QCOMPARE(with.connectorSettings(), without.connectorSettings());
    QVERIFY(!with.useAsynchronInterface());
}

void UnitManagerConnectionDataTest::nothingIsBuiltWithoutText()
{
    LogCapture log;
    ConfiguredData data;
    QVERIFY(data.updateObjects());
    QVERIFY(data.unitManager().isNull());
    QVERIFY(data.walker().isNull());

    data.configurations() = Texts{{units, ""}, {dependencies, QString()}, {defaults, ""}};
    QVERIFY(data.updateObjects());
    QVERIFY(data.unitManager().isNull());
    QVERIFY(data.walker().isNull());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectionDataTest::objectsAreBuiltFromTheTexts_data()
{
    const Texts good{{units, TestDocuments::units()},
                     {dependencies, TestDocument::dependencies()},
                     {defaults, TestDocuments::defaultUnits()}};
    Texts noUnits = good;
    Texts noDefaults = good;
    Texts noDependencies = good;
    noUnits[units] = TestDocument::broken();
    noDefaults[defaults] = TestDocument::broken();
    noDependencies[dependencies] = TestDocument::broken();
    QTest::addColumn<Texts>("texts");
    QTest::addColumn<bool>("result");
    QTest::addColumn<QStringList>("unitTypes");
    QTest::addColumn<QString>("defaultUnit");
    QTest::addColumn<QStringList>("dependents");
    const QStringList dependents{"Pressure"};
    row("all texts load", good, true, allTypes, "HectoPascal", dependents);
    row("the units do not load", noUnits, false, QStringList(), "HectoPascal", dependents);
    row("the default units do not load", noDefaults, false, allTypes, "", dependents);
    row("the dependencies do not load", noDependencies, false, allTypes, "HectoPascal", QStringList());
}

void UnitManagerConnectionDataTest::objectsAreBuiltFromTheTexts()
{
    QFETCH(const Texts, texts);
    QFETCH(const bool, result);
    QFETCH(const QStringList, unitTypes);
    QFETCH(const QString, defaultUnit);
    QFETCH(const QStringList, dependents);
    LogCapture log;
    ConfiguredData data;
    data.configurations() = texts;
    QCOMPARE(data.updateObjects(), result);
    QVERIFY(data.unitManager());
    QVERIFY(data.walker());
    QCOMPARE(unitTypesOf(*data.unitManager()), unitTypes);
    QCOMPARE(data.unitManager()->getDefaultUnit(pressure), defaultUnit);
    QCOMPARE(dependentsOf(*data.walker(), "PressureUnit"), dependents);

    // The objects are shared, not copied.
    QSharedPointer<UnitManagerDevice> deviceOut = QSharedPointer<UnitManagerDevice>::create();
    QSharedPointer<DependencyWalker> walkerOut;
    QVERIFY(data.initializeUnitManager(deviceOut));
    QVERIFY(data.initializeDependencyWalker(walkerOut));
    QCOMPARE(deviceOut, data.unitManager());
    QCOMPARE(walkerOut, data.walker());
}

void UnitManagerConnectionDataTest::theUnitManagerIsReplacedByAFreshOne()
{
    LogCapture log;
    ConfiguredData data;
    data.configurations()[units] = TestDocuments::units();
    QVERIFY(data.updateObjects());
    const QSharedPointer<UnitManagerDevice> first = data.unitManager();
    data.configurations()[units] = TestDocument::broken();
    QVERIFY(!data.updateObjects());
    QVERIFY(data.unitManager() != first);
    QVERIFY(!data.unitManager()->isValid());
    // Owners of the old object keep the old units.
    QVERIFY(first->isValid());
    QCOMPARE(unitTypesOf(*first), allTypes);
}

void UnitManagerConnectionDataTest::aDependencyTextAloneKeepsTheUnitManager()
{
    LogCapture log;
    ConfiguredData data;
    data.configurations() = Texts{{units, TestDocuments::units()}, {dependencies, "{}"}};
    QVERIFY(data.updateObjects());
    const QSharedPointer<UnitManagerDevice> manager = data.unitManager();
    const QSharedPointer<DependencyWalker> walker = data.walker();
    data.configurations() = Texts{{dependencies, TestDocument::dependencies()}};
    QVERIFY(data.updateObjects());
    QCOMPARE(data.unitManager(), manager);
    QVERIFY(data.walker() != walker);
    QCOMPARE(dependentsOf(*data.walker(), "PressureUnit"), QStringList{"Pressure"});
    QCOMPARE(dependentsOf(*walker, "PressureUnit"), QStringList());
}

void UnitManagerConnectionDataTest::unitTextsAloneKeepTheDependencyWalker()
{
    LogCapture log;
    ConfiguredData data;
    data.configurations() =
        Texts{{units, TestDocuments::units()}, {dependencies, TestDocument::dependencies()}};
    QVERIFY(data.updateObjects());
    const QSharedPointer<DependencyWalker> walker = data.walker();
    data.configurations() = Texts{{units, TestDocuments::units()}};
    QVERIFY(data.updateObjects());
    QCOMPARE(data.walker(), walker);
}

void UnitManagerConnectionDataTest::aDefaultUnitTextAloneCreatesAManagerWithoutUnits()
{
    LogCapture log;
    ConfiguredData data;
    data.configurations() = Texts{{units, TestDocuments::units()}};
    QVERIFY(data.updateObjects());
    const QSharedPointer<UnitManagerDevice> before = data.unitManager();
    data.configurations() = Texts{{defaults, TestDocuments::defaultUnits()}};
    QVERIFY(data.updateObjects());
    QVERIFY(data.unitManager() != before);
    QVERIFY(!data.unitManager()->isValid());
    QCOMPARE(data.unitManager()->getListofUnitTypes(), QStringList());
    QCOMPARE(data.unitManager()->getDefaultUnit(pressure), QStringLiteral("HectoPascal"));
    QVERIFY(data.walker().isNull());
}

void UnitManagerConnectionDataTest::theFetchedTextsOutliveAnUpdate()
{
    LogCapture log;
    ConfiguredData data;
    const Texts texts{{units, TestDocuments::units()}, {dependencies, TestDocument::dependencies()}};
    data.configurations() = texts;
    data.pendingReplies()[units] = arrivedReply();
    QVERIFY(data.updateObjects());
    for (const auto type : {units, dependencies})
        QCOMPARE(data.configurations().value(type), texts.value(type));
    QVERIFY(data.pendingReplies().value(units));

    // Only one source was read again: the stored text of the other is used again.
    data.configurations()[defaults] = TestDocuments::defaultUnits();
    QVERIFY(data.updateObjects());
    QVERIFY(data.unitManager()->isValid());
    QCOMPARE(data.unitManager()->getDefaultUnit(pressure), QStringLiteral("HectoPascal"));
}

void UnitManagerConnectionDataTest::resetsKeepKeysAndObjects_data()
{
    QTest::addColumn<bool>("all");
    QTest::newRow("of the cached objects") << false;
    QTest::newRow("of everything") << true;
}

void UnitManagerConnectionDataTest::resetsKeepKeysAndObjects()
{
    QFETCH(const bool, all);
    LogCapture log;
    ConfiguredData data;
    data.configurations() =
        Texts{{units, TestDocuments::units()}, {dependencies, TestDocument::dependencies()}};
    QVERIFY(data.updateObjects());
    const QSharedPointer<UnitManagerDevice> manager = data.unitManager();
    const QSharedPointer<DependencyWalker> walker = data.walker();
    data.pendingReplies()[defaults] = arrivedReply();
    const QWeakPointer<DBusPendingReply> reply = data.pendingReplies().value(defaults);
    const Settings settings = data.connectorSettings();

    QVERIFY(all ? data.resetObject() : data.resetCachedObjects());
    QCOMPARE(data.configurations().keys(), (QList<Definitions::ConnectorType>{units, dependencies}));
    for (const QString& text : data.configurations())
        QVERIFY(text.isNull());
    QCOMPARE(data.pendingReplies().keys(), QList<Definitions::ConnectorType>{defaults});
    QVERIFY(data.pendingReplies().value(defaults).isNull());
    QVERIFY(reply.isNull());
    QCOMPARE(data.connectorSettings(), settings);
    QCOMPARE(data.unitManager(), manager);
    QCOMPARE(data.walker(), walker);
}

static const TestClass<UnitManagerConnectionDataTest> testClass;
#include "UnitManagerConnectionDataTest.moc"
