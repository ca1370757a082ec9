#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationSynchron.h"

#include <QtTest/QTest>

#include <memory>

#include "ConfigurationFileHandlerDBusConnector.h"
#include "ConfigurationService.h"
#include "LogCapture.h"
#include "MessageText.h"
#include "RecordingWrapper.h"
#include "WaitUntil.h"

using Definitions = UnitManagerConnectorDefinitions;
using Type = Definitions::ConnectorType;
using State = UnitManagerConnectorStateReadConfigurationSynchron;
using Texts = QMap<Type, QString>;

Q_DECLARE_METATYPE(FakeBusService::Answer)
Q_DECLARE_METATYPE(UnitManagerConnectorDefinitions::ConnectorType)

class UnitManagerConnectorStateReadConfigurationSynchronTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theListedSourcesAreReadInOrder_data();
    void theListedSourcesAreReadInOrder();
    void withoutListNothingIsRead_data();
    void withoutListNothingIsRead();
    void aFailureDoesNotStopTheOtherReads();
    void aFailedReadLeavesAnEmptyText_data();
    void aFailedReadLeavesAnEmptyText();
    void theMessagesNameTheSource_data();
    void theMessagesNameTheSource();
    void aReplyIsTakenAsText();
    void anUnknownKindIsNotAsked_data();
    void anUnknownKindIsNotAsked();
    void withoutConnectionNothingIsAsked();
    void aMissingConnectorFailsSilently();
    void withoutWrapperNothingIsRead();

private:
    void open(RecordingWrapper& wrapper);

    std::unique_ptr<ConfigurationService> m_service;
};

namespace {

const Type units = Definitions::UnitSwitch;
const Type dependencies = Definitions::DependencyFile;
const Type defaults = Definitions::DefaultUnit;

const QString unitsCall =
    QStringLiteral("/UnitManagerConfiguration getConfiguration(UnitManager/UnitType, UnitManager, )");
const QString dependenciesCall =
    QStringLiteral("/DependencyObject getConfigurationDependency(Test/Dependency, UnitManager)");
const QString defaultsCall =
    QStringLiteral("/DefaultUnitObject getConfiguration(Test/DefaultUnit, UnitManager, )");
const QString connectionWarning =
    QStringLiteral("Unitswitch connector: Cannot call method configuration get via DBus");

QString warning(const QString& text)
{
    return warningText("UnitManagerConnector/UnitManagerConnectorStateReadConfigurationSynchron", anyLine,
                       "bool UnitManagerConnectorStateReadConfigurationSynchron::readConfiguration("
                       "UnitManagerConnectorDefinitions::ConnectorType)",
                       text);
}

} // namespace

void UnitManagerConnectorStateReadConfigurationSynchronTest::init()
{
    m_service = std::make_unique<ConfigurationService>();
    QVERIFY(m_service->start());
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::cleanup()
{
    m_service.reset();
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::open(RecordingWrapper& wrapper)
{
    for (const Type type : {units, dependencies, defaults})
        QCOMPARE(wrapper.data().openConnector(type), Definitions::Connected);
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::theListedSourcesAreReadInOrder_data()
{
    QTest::addColumn<QList<Type>>("types");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<QString>("listText");
    QTest::newRow("all") << QList<Type>{units, dependencies, defaults}
                         << QStringList{unitsCall, dependenciesCall, defaultsCall} << "[0 1 2]";
    QTest::newRow("all, backwards") << QList<Type>{defaults, dependencies, units}
                                    << QStringList{defaultsCall, dependenciesCall, unitsCall} << "[2 1 0]";
    QTest::newRow("one") << QList<Type>{dependencies} << QStringList{dependenciesCall} << "[1]";
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::theListedSourcesAreReadInOrder()
{
    QFETCH(const QList<Type>, types);
    QFETCH(const QStringList, calls);
    QFETCH(const QString, listText);
    RecordingWrapper wrapper;
    open(wrapper);
    State state(&wrapper);
    LogCapture log;
    state.postEvent(readTrigger(types, "any name"));
    QCOMPARE(m_service->takeCalls(), calls);
    QCOMPARE(wrapper.takeTransitions(),
             QStringList{"UnitManagerConnectorStateUpdate any name(" + listText + ')'});
    const Texts all{{units, TestDocument::units()},
                    {dependencies, TestDocument::dependencies()},
                    {defaults, TestDocument::defaultUnits()}};
    QCOMPARE(wrapper.data().configurations().size(), types.size());
    for (const Type type : types)
        QCOMPARE(wrapper.data().configurations().value(type), all.value(type));
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::withoutListNothingIsRead_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<QString>("text");
    QTest::newRow("no data") << QVariant() << "";
    QTest::newRow("an empty list") << QVariant::fromValue(QList<Type>()) << "[]";
    QTest::newRow("a text") << QVariant("0") << "0";
    QTest::newRow("a list of numbers") << QVariant(QVariantList{0, 1}) << "";
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::withoutListNothingIsRead()
{
    QFETCH(const QVariant, data);
    QFETCH(const QString, text);
    RecordingWrapper wrapper;
    open(wrapper);
    State state(&wrapper);
    LogCapture log;
    state.postEvent(StateMachineEvent("ReadTrigger", data));
    QCOMPARE(wrapper.takeTransitions(),
             QStringList{"UnitManagerConnectorStateError ReadTrigger(" + text + ')'});
    QCOMPARE(m_service->takeCalls(), QStringList());
    QCOMPARE(log.takeTexts(), QStringList());
    QVERIFY(wrapper.data().configurations().isEmpty());
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::aFailureDoesNotStopTheOtherReads()
{
    m_service->setAnswer(TestSource::unitSwitchName, FakeBusService::withError("org.example.Error"));
    RecordingWrapper wrapper;
    open(wrapper);
    State state(&wrapper);
    LogCapture log;
    state.postEvent(readTrigger({units, dependencies, defaults}));
    QCOMPARE(m_service->takeCalls(), (QStringList{unitsCall, dependenciesCall, defaultsCall}));
    QCOMPARE(wrapper.takeTransitions(), QStringList{"UnitManagerConnectorStateError ReadTrigger([0 1 2])"});
    QVERIFY(wrapper.data().configurations().value(units).isNull());
    QCOMPARE(wrapper.data().configurations().value(dependencies), TestDocument::dependencies());
    QCOMPARE(wrapper.data().configurations().value(defaults), TestDocument::defaultUnits());
    QCOMPARE(log.takeTexts().size(), 1);
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::aFailedReadLeavesAnEmptyText_data()
{
    QTest::addColumn<FakeBusService::Answer>("answer");
    QTest::addColumn<QString>("message");
    const QString noReply = QStringLiteral("Unable to get unitswitch configuration via DBus");
    const QString empty = QStringLiteral("Unit switch configuration empty string");
    QTest::newRow("an error") << FakeBusService::withError("org.example.Error") << noReply;
    QTest::newRow("no reply in time") << FakeBusService::never() << noReply;
    QTest::newRow("an empty text") << FakeBusService::withValue("") << empty;
    QTest::newRow("a reply without value") << FakeBusService::withoutValue() << empty;
    QTest::newRow("a value that is no text") << FakeBusService::withValue(QVariantMap{{"a", 1}}) << empty;
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::aFailedReadLeavesAnEmptyText()
{
    QFETCH(const FakeBusService::Answer, answer);
    QFETCH(const QString, message);
    qputenv("DEVICE_BUS_TIMEOUT_MS", "300");
    m_service->setAnswer(TestSource::unitSwitchName, answer);
    RecordingWrapper wrapper;
    open(wrapper);
    wrapper.data().configurations()[units] = QStringLiteral("earlier");
    State state(&wrapper);
    LogCapture log;
    QVERIFY(!state.readConfiguration(units));
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any),
             QStringList{warning(message + " \"DeviceManager\" \"UnitManagerConfiguration\" "
                                           "\"UnitManager/UnitType\"")});
    QVERIFY(wrapper.data().configurations().contains(units));
    QVERIFY(wrapper.data().configurations().value(units).isEmpty());

    state.postEvent(readTrigger({units}));
    QCOMPARE(wrapper.takeTransitions(), QStringList{"UnitManagerConnectorStateError ReadTrigger([0])"});
    QCOMPARE(m_service->takeCalls(), (QStringList{unitsCall, unitsCall}));
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::theMessagesNameTheSource_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("source");
    QTest::newRow("dependency file") << dependencies << TestSource::dependencyName
                                     << "\"DeviceManager\" \"DependencyObject\" \"Test/Dependency\"";
    QTest::newRow("default unit") << defaults << TestSource::defaultUnitName
                                  << "\"DeviceManager\" \"DefaultUnitObject\" \"Test/DefaultUnit\"";
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::theMessagesNameTheSource()
{
    QFETCH(const Type, type);
    QFETCH(const QString, name);
    QFETCH(const QString, source);
    RecordingWrapper wrapper;
    open(wrapper);
    State state(&wrapper);
    LogCapture log;
    m_service->setAnswer(name, FakeBusService::withError("org.example.Error"));
    QVERIFY(!state.readConfiguration(type));
    m_service->setAnswer(name, FakeBusService::withValue(""));
    QVERIFY(!state.readConfiguration(type));
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any),
             (QStringList{warning("Unable to get unitswitch configuration via DBus " + source),
                          warning("Unit switch configuration empty string " + source)}));
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::aReplyIsTakenAsText()
{
    m_service->setAnswer(TestSource::defaultUnitName, FakeBusService::withValue(7));
    RecordingWrapper wrapper;
    open(wrapper);
    State state(&wrapper);
    QVERIFY(state.readConfiguration(defaults));
    QCOMPARE(wrapper.data().configurations().value(defaults), QStringLiteral("7"));
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::anUnknownKindIsNotAsked_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("another word") << "file";
    QTest::newRow("nothing") << "";
    QTest::newRow("a key in capitals") << "Configuration";
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::anUnknownKindIsNotAsked()
{
    QFETCH(const QString, kind);
    RecordingWrapper wrapper;
    open(wrapper);
    wrapper.data().connectorSettings()[units][3] = kind;
    State state(&wrapper);
    LogCapture log;
    QVERIFY(!state.readConfiguration(units));
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any),
             (QStringList{warning("Unknown Filetype given \"" + kind + '"'),
                          warning("Unable to get unitswitch configuration via DBus \"DeviceManager\" "
                                  "\"UnitManagerConfiguration\" \"UnitManager/UnitType\"")}));
    QCOMPARE(m_service->takeCalls(), QStringList());
    state.postEvent(readTrigger({units}));
    QCOMPARE(wrapper.takeTransitions(), QStringList{"UnitManagerConnectorStateError ReadTrigger([0])"});
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::withoutConnectionNothingIsAsked()
{
    RecordingWrapper wrapper;
    open(wrapper);
    wrapper.data().configurations()[units] = QStringLiteral("earlier");
    // One missing optional connector prevents all other sources from being read.
    wrapper.data().connectors()[defaults].reset();
    State state(&wrapper);
    LogCapture log;
    state.postEvent(readTrigger({units, dependencies}));
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any),
             (QStringList{warning(connectionWarning), warning(connectionWarning)}));
    QCOMPARE(wrapper.takeTransitions(), QStringList{"UnitManagerConnectorStateError ReadTrigger([0 1])"});
    QCOMPARE(m_service->takeCalls(), QStringList());
    // The entries are cleared first, and created if missing.
    QCOMPARE(wrapper.data().configurations().keys(), (QList<Type>{units, dependencies}));
    for (const QString& text : wrapper.data().configurations())
        QVERIFY(text.isNull());
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::aMissingConnectorFailsSilently()
{
    RecordingWrapper wrapper(true, false, RecordingWrapper::NoDefaultUnit);
    for (const Type type : {units, dependencies})
        QCOMPARE(wrapper.data().openConnector(type), Definitions::Connected);
    State state(&wrapper);
    LogCapture log;
    QVERIFY(!state.readConfiguration(defaults));
    QCOMPARE(wrapper.data().configurations().keys(), QList<Type>{defaults});
    QCOMPARE(log.takeTexts(), QStringList());
    QCOMPARE(m_service->takeCalls(), QStringList());
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::withoutWrapperNothingIsRead()
{
    State state(nullptr);
    LogCapture log;
    QVERIFY(!state.readConfiguration(units));
    QCOMPARE(log.takeTexts(), QStringList());
}

QTEST_GUILESS_MAIN(UnitManagerConnectorStateReadConfigurationSynchronTest)
#include "UnitManagerConnectorStateReadConfigurationSynchronTest.moc"
