#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationSynchron.h"

#include <QtTest/QTest>

#include "DeviceBusEnvironment.h"
#include "LogCapture.h"
#include "MessageText.h"
#include "ReadStateTest.h"
#include "Row.h"
#include "TestDocuments.h"
#include "TestProgram.h"

using SynchronState = UnitManagerConnectorStateReadConfigurationSynchron;
using namespace TestSource;

Q_DECLARE_METATYPE(FakeBusService::Answer)
Q_DECLARE_METATYPE(UnitManagerConnectorDefinitions::ConnectorType)

class UnitManagerConnectorStateReadConfigurationSynchronTest : public ReadStateTest
{
    Q_OBJECT

public:
    UnitManagerConnectorStateReadConfigurationSynchronTest();

private Q_SLOTS:
    void aFailureDoesNotStopTheOtherReads();
    void aFailedReadLeavesAnEmptyText_data();
    void aFailedReadLeavesAnEmptyText();
    void theMessagesNameTheSource_data();
    void theMessagesNameTheSource();
    void aReplyIsConvertedToText();

private:
    std::unique_ptr<State> createState(QObject* wrapper) const override;
    bool read(State& state, Type type) const override;
    QMap<Type, QVariant> deliveredValues(RecordingWrapper& wrapper) const override;
};

UnitManagerConnectorStateReadConfigurationSynchronTest::
    UnitManagerConnectorStateReadConfigurationSynchronTest()
    : ReadStateTest({"UnitManagerConnectorStateReadConfigurationSynchron", "readConfiguration",
                     "UnitManagerConnectorStateUpdate", true})
{}

std::unique_ptr<ReadStateTest::State>
UnitManagerConnectorStateReadConfigurationSynchronTest::createState(QObject* wrapper) const
{
    return std::make_unique<SynchronState>(wrapper);
}

bool UnitManagerConnectorStateReadConfigurationSynchronTest::read(State& state, Type type) const
{
    return static_cast<SynchronState&>(state).readConfiguration(type);
}

QMap<ReadStateTest::Type, QVariant>
UnitManagerConnectorStateReadConfigurationSynchronTest::deliveredValues(RecordingWrapper& wrapper) const
{
    QMap<Type, QVariant> values;
    const QMap<Type, QString>& texts = wrapper.data().configurations();
    for (auto text = texts.begin(); text != texts.end(); ++text)
        values.insert(text.key(), text.value());
    return values;
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::aFailureDoesNotStopTheOtherReads()
{
    m_service->setAnswer(unitSwitchName, FakeBusService::withError("org.example.Error"));
    RecordingWrapper wrapper;
    QVERIFY(wrapper.openAll());
    SynchronState state(&wrapper);
    LogCapture log;
    state.postEvent(readTrigger({units, dependencies, defaults}));
    QCOMPARE(m_service->takeCalls(),
             (QStringList{TestCall::units, TestCall::dependencies, TestCall::defaults}));
    QCOMPARE(wrapper.takeTransitions(), QStringList{"UnitManagerConnectorStateError ReadTrigger([0 1 2])"});
    QVERIFY(wrapper.data().configurations().value(units).isNull());
    QCOMPARE(wrapper.data().configurations().value(dependencies), TestDocument::dependencies());
    QCOMPARE(wrapper.data().configurations().value(defaults), TestDocuments::defaultUnits());
    QCOMPARE(log.takeTexts().size(), 1);
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::aFailedReadLeavesAnEmptyText_data()
{
    QTest::addColumn<FakeBusService::Answer>("answer");
    QTest::addColumn<bool>("isAnswered");
    QTest::addColumn<QString>("message");
    const QString noReply = QStringLiteral("Unable to get unitswitch configuration via DBus");
    const QString empty = QStringLiteral("Unit switch configuration empty string");
    const QVariantMap dictionary{{"a", 1}};
    row("an error", FakeBusService::withError("org.example.Error"), true, noReply);
    row("no reply in time", FakeBusService::never(), false, noReply);
    row("an empty text", FakeBusService::withValue(""), true, empty);
    row("a reply without value", FakeBusService::withoutValue(), true, empty);
    row("a value that is not a text", FakeBusService::withValue(dictionary), true, empty);
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::aFailedReadLeavesAnEmptyText()
{
    QFETCH(const FakeBusService::Answer, answer);
    QFETCH(const bool, isAnswered);
    QFETCH(const QString, message);
    m_service->setAnswer(unitSwitchName, answer);
    RecordingWrapper wrapper;
    QVERIFY(wrapper.openAll());
    if (!isAnswered)
        setCallTimeout(300);
    wrapper.data().configurations()[units] = QStringLiteral("earlier");
    SynchronState state(&wrapper);
    LogCapture log;
    QVERIFY(!state.readConfiguration(units));
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any),
             QStringList{warning(message + " \"DeviceManager\" \"UnitManagerConfiguration\" "
                                           "\"UnitManager/UnitType\"")});
    QVERIFY(wrapper.data().configurations().contains(units));
    QVERIFY(wrapper.data().configurations().value(units).isEmpty());

    state.postEvent(readTrigger({units}));
    QCOMPARE(wrapper.takeTransitions(), QStringList{"UnitManagerConnectorStateError ReadTrigger([0])"});
    QCOMPARE(m_service->takeCalls(), (QStringList{TestCall::units, TestCall::units}));
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::theMessagesNameTheSource_data()
{
    QTest::addColumn<Type>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("source");
    row("dependency file", dependencies, dependencyName,
        "\"DeviceManager\" \"DependencyObject\" \"Test/Dependency\"");
    row("default unit", defaults, defaultUnitName,
        "\"DeviceManager\" \"DefaultUnitObject\" \"Test/DefaultUnit\"");
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::theMessagesNameTheSource()
{
    QFETCH(const Type, type);
    QFETCH(const QString, name);
    QFETCH(const QString, source);
    RecordingWrapper wrapper;
    QVERIFY(wrapper.openAll());
    SynchronState state(&wrapper);
    LogCapture log;
    m_service->setAnswer(name, FakeBusService::withError("org.example.Error"));
    QVERIFY(!state.readConfiguration(type));
    m_service->setDocument(name, "");
    QVERIFY(!state.readConfiguration(type));
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any),
             (QStringList{warning("Unable to get unitswitch configuration via DBus " + source),
                          warning("Unit switch configuration empty string " + source)}));
}

void UnitManagerConnectorStateReadConfigurationSynchronTest::aReplyIsConvertedToText()
{
    m_service->setDocument(defaultUnitName, 7);
    RecordingWrapper wrapper;
    QVERIFY(wrapper.openAll());
    SynchronState state(&wrapper);
    QVERIFY(state.readConfiguration(defaults));
    QCOMPARE(wrapper.data().configurations().value(defaults), QStringLiteral("7"));
}

static const TestClass<UnitManagerConnectorStateReadConfigurationSynchronTest> testClass;
#include "UnitManagerConnectorStateReadConfigurationSynchronTest.moc"
