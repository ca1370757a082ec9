#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationASynchron.h"

#include <QtTest/QTest>

#include <memory>

#include "ConfigurationFileHandlerDBusConnector.h"
#include "ConfigurationService.h"
#include "DBusPendingReply.h"
#include "LogCapture.h"
#include "MessageText.h"
#include "RecordingWrapper.h"
#include "WaitUntil.h"

using Definitions = UnitManagerConnectorDefinitions;
using Type = Definitions::ConnectorType;
using State = UnitManagerConnectorStateReadConfigurationASynchron;

class UnitManagerConnectorStateReadConfigurationASynchronTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theListedReadsAreStartedInOrder_data();
    void theListedReadsAreStartedInOrder();
    void startingDoesNotWait();
    void withoutListNothingIsStarted_data();
    void withoutListNothingIsStarted();
    void anEarlierTextIsClearedButNoneCreated();
    void anEarlierReplyIsReleased();
    void anUnknownKindIsNotAsked();
    void anUnknownKindWithAnEarlierReplyIsASuccess();
    void aFailureDoesNotStopTheOtherStarts();
    void withoutConnectionNothingIsAsked();
    void aMissingConnectorFailsSilently();
    void withoutWrapperNothingIsStarted();

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
    return warningText("UnitManagerConnector/UnitManagerConnectorStateReadConfigurationASynchron", anyLine,
                       "bool UnitManagerConnectorStateReadConfigurationASynchron::startConfigurationRead("
                       "UnitManagerConnectorDefinitions::ConnectorType)",
                       text);
}

/// The value of a pending reply.
QVariant valueOf(const QSharedPointer<DBusPendingReply>& reply)
{
    ErrorContainer error;
    waitUntil([&] { return reply->isFinished(error) != DBusPendingReply::Outstanding; });
    return reply->getReply();
}

} // namespace

void UnitManagerConnectorStateReadConfigurationASynchronTest::init()
{
    m_service = std::make_unique<ConfigurationService>();
    QVERIFY(m_service->start());
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::cleanup()
{
    m_service.reset();
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::open(RecordingWrapper& wrapper)
{
    for (const Type type : {units, dependencies, defaults})
        QCOMPARE(wrapper.data().openConnector(type), Definitions::Connected);
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::theListedReadsAreStartedInOrder_data()
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

void UnitManagerConnectorStateReadConfigurationASynchronTest::theListedReadsAreStartedInOrder()
{
    QFETCH(const QList<Type>, types);
    QFETCH(const QStringList, calls);
    QFETCH(const QString, listText);
    RecordingWrapper wrapper;
    open(wrapper);
    State state(&wrapper);
    LogCapture log;
    state.postEvent(readTrigger(types, "any name"));
    QCOMPARE(wrapper.takeTransitions(),
             QStringList{"UnitManagerConnectorStateWaitForReply any name(" + listText + ')'});
    QVERIFY(m_service->waitForCalls(calls.size()));
    QCOMPARE(m_service->takeCalls(), calls);
    const QMap<Type, QString> all{{units, TestDocument::units()},
                                  {dependencies, TestDocument::dependencies()},
                                  {defaults, TestDocument::defaultUnits()}};
    QCOMPARE(wrapper.data().pendingReplies().size(), types.size());
    for (const Type type : types)
        QCOMPARE(valueOf(wrapper.data().pendingReplies().value(type)), QVariant(all.value(type)));
    QVERIFY(wrapper.data().configurations().isEmpty());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::startingDoesNotWait()
{
    m_service->setAnswer(TestSource::unitSwitchName, FakeBusService::never());
    RecordingWrapper wrapper;
    open(wrapper);
    State state(&wrapper);
    QVERIFY(state.startConfigurationRead(units));
    ErrorContainer error;
    QCOMPARE(wrapper.data().pendingReplies().value(units)->isFinished(error), 2);
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::withoutListNothingIsStarted_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<QString>("text");
    QTest::newRow("no data") << QVariant() << "";
    QTest::newRow("an empty list") << QVariant::fromValue(QList<Type>()) << "[]";
    QTest::newRow("a text") << QVariant("0") << "0";
    QTest::newRow("a list of numbers") << QVariant(QVariantList{0, 1}) << "";
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::withoutListNothingIsStarted()
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
    QVERIFY(wrapper.data().pendingReplies().isEmpty());
    QCOMPARE(log.takeTexts(), QStringList());
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::anEarlierTextIsClearedButNoneCreated()
{
    RecordingWrapper wrapper;
    open(wrapper);
    wrapper.data().configurations()[units] = QStringLiteral("earlier");
    State state(&wrapper);
    QVERIFY(state.startConfigurationRead(units));
    QVERIFY(state.startConfigurationRead(defaults));
    QCOMPARE(wrapper.data().configurations().keys(), QList<Type>{units});
    QVERIFY(wrapper.data().configurations().value(units).isNull());
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::anEarlierReplyIsReleased()
{
    RecordingWrapper wrapper;
    open(wrapper);
    State state(&wrapper);
    QVERIFY(state.startConfigurationRead(units));
    const QWeakPointer<DBusPendingReply> earlier = wrapper.data().pendingReplies().value(units);
    QVERIFY(earlier);
    QVERIFY(state.startConfigurationRead(units));
    QVERIFY(earlier.isNull());
    QVERIFY(wrapper.data().pendingReplies().value(units));
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::anUnknownKindIsNotAsked()
{
    RecordingWrapper wrapper;
    open(wrapper);
    wrapper.data().connectorSettings()[units][3] = QStringLiteral("file");
    State state(&wrapper);
    LogCapture log;
    state.postEvent(readTrigger({units}));
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any),
             (QStringList{warning("Unknown Filetype given \"file\""),
                          warning("Unable to get unitswitch configuration via DBus \"DeviceManager\" "
                                  "\"UnitManagerConfiguration\" \"UnitManager/UnitType\"")}));
    QCOMPARE(wrapper.takeTransitions(), QStringList{"UnitManagerConnectorStateError ReadTrigger([0])"});
    QVERIFY(ConfigurationService::settle("org.measuringdevice.DeviceManager"));
    QCOMPARE(m_service->takeCalls(), QStringList());
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::anUnknownKindWithAnEarlierReplyIsASuccess()
{
    RecordingWrapper wrapper;
    open(wrapper);
    State state(&wrapper);
    QVERIFY(state.startConfigurationRead(units));
    const QSharedPointer<DBusPendingReply> earlier = wrapper.data().pendingReplies().value(units);
    QVERIFY(m_service->waitForCalls(1));
    m_service->takeCalls();

    wrapper.data().connectorSettings()[units][3] = QStringLiteral("file");
    LogCapture log;
    QVERIFY(state.startConfigurationRead(units));
    QCOMPARE(log.takeTexts(), QStringList{"Unknown Filetype given \"file\""});
    QCOMPARE(wrapper.data().pendingReplies().value(units), earlier);
    QVERIFY(ConfigurationService::settle("org.measuringdevice.DeviceManager"));
    QCOMPARE(m_service->takeCalls(), QStringList());
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::aFailureDoesNotStopTheOtherStarts()
{
    RecordingWrapper wrapper;
    open(wrapper);
    wrapper.data().connectorSettings()[units][3] = QStringLiteral("file");
    State state(&wrapper);
    LogCapture log;
    state.postEvent(readTrigger({units, dependencies, defaults}));
    QCOMPARE(wrapper.takeTransitions(), QStringList{"UnitManagerConnectorStateError ReadTrigger([0 1 2])"});
    QVERIFY(wrapper.data().pendingReplies().value(units).isNull());
    QVERIFY(m_service->waitForCalls(2));
    QCOMPARE(m_service->takeCalls(), (QStringList{dependenciesCall, defaultsCall}));
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::withoutConnectionNothingIsAsked()
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
    QVERIFY(wrapper.data().pendingReplies().isEmpty());
    // The existing entry is cleared first.
    QCOMPARE(wrapper.data().configurations().keys(), QList<Type>{units});
    QVERIFY(wrapper.data().configurations().value(units).isNull());
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::aMissingConnectorFailsSilently()
{
    RecordingWrapper wrapper(true, true, RecordingWrapper::NoDefaultUnit);
    for (const Type type : {units, dependencies})
        QCOMPARE(wrapper.data().openConnector(type), Definitions::Connected);
    State state(&wrapper);
    LogCapture log;
    QVERIFY(!state.startConfigurationRead(defaults));
    QCOMPARE(log.takeTexts(), QStringList());
    QVERIFY(wrapper.data().pendingReplies().isEmpty());
    QVERIFY(wrapper.data().configurations().isEmpty());
}

void UnitManagerConnectorStateReadConfigurationASynchronTest::withoutWrapperNothingIsStarted()
{
    State state(nullptr);
    LogCapture log;
    QVERIFY(!state.startConfigurationRead(units));
    QCOMPARE(log.takeTexts(), QStringList());
}

QTEST_GUILESS_MAIN(UnitManagerConnectorStateReadConfigurationASynchronTest)
#include "UnitManagerConnectorStateReadConfigurationASynchronTest.moc"
