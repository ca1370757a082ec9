#include "UnitManagerConnector/UnitManagerConnectorStateInitial.h"

#include <QtTest/QTest>

#include "ConfigurationFileHandlerDBusConnector.h"
#include "LogCapture.h"
#include "MessageText.h"
#include "RecordingWrapper.h"
#include "Row.h"
#include "ServiceFixture.h"
#include "TestProgram.h"

using Definitions = UnitManagerConnectorDefinitions;
using Type = Definitions::ConnectorType;
using State = UnitManagerConnectorStateInitial;

using namespace TestSource;

Q_DECLARE_METATYPE(RecordingWrapper::OptionalSources)

class UnitManagerConnectorStateInitialTest : public ServiceFixture
{
    Q_OBJECT

private Q_SLOTS:
    void theOpenedSourcesAreRead_data();
    void theOpenedSourcesAreRead();
    void theReceivedEventIsIgnored();
    void anUnreachableUnitSwitchEndsTheAttempt();
    void everyStepTriesAgain();
    void anUnreachableOptionalSourceEndsTheAttempt_data();
    void anUnreachableOptionalSourceEndsTheAttempt();
    void aMandatorySourceWithoutSettingsEndsTheAttempt();
    void aFailureDiscardsTextsAndSubscriptions();
    void aShortListIsOpenedButNotRead_data();
    void aShortListIsOpenedButNotRead();
    void anUnknownRequirementIsOpenedButNotRead_data();
    void anUnknownRequirementIsOpenedButNotRead();
    void aBadSourceDoesNotBlockTheOthers_data();
    void aBadSourceDoesNotBlockTheOthers();
    void withoutSourcesTheListIsEmpty();
};

namespace {

QString warning(const QString& text)
{
    return warningText("UnitManagerConnector/UnitManagerConnectorStateInitial", anyLine,
                       "virtual void UnitManagerConnectorStateInitial::postEvent(const StateMachineEvent&)",
                       text);
}

QString readTransition(const QString& types, bool asynchron = false)
{
    return QStringLiteral("UnitManagerConnectorStateReadConfiguration%1 ReadTrigger(%2)")
        .arg(asynchron ? "ASynchron" : "Synchron", types);
}

/// The sources that have a connector.
QList<Type> openTypes(RecordingWrapper& wrapper)
{
    QList<Type> types;
    const auto& connectors = wrapper.data().connectors();
    for (auto connector = connectors.begin(); connector != connectors.end(); ++connector) {
        if (connector.value())
            types.append(connector.key());
    }
    return types;
}

} // namespace

void UnitManagerConnectorStateInitialTest::theOpenedSourcesAreRead_data()
{
    QTest::addColumn<RecordingWrapper::OptionalSources>("sources");
    QTest::addColumn<bool>("asynchron");
    QTest::addColumn<QString>("types");
    for (const bool asynchron : {false, true}) {
        const char* const mode = asynchron ? "asynchronous" : "blocking";
        QTest::addRow("all sources, %s", mode) << RecordingWrapper::BothConfigured << asynchron << "[0 1 2]";
        QTest::addRow("no dependency file, %s", mode)
            << RecordingWrapper::NoDependencyFile << asynchron << "[0 2]";
        QTest::addRow("no default unit, %s", mode) << RecordingWrapper::NoDefaultUnit << asynchron << "[0 1]";
        QTest::addRow("unit switch alone, %s", mode)
            << RecordingWrapper::NoneConfigured << asynchron << "[0]";
    }
}

void UnitManagerConnectorStateInitialTest::theOpenedSourcesAreRead()
{
    QFETCH(const RecordingWrapper::OptionalSources, sources);
    QFETCH(const bool, asynchron);
    QFETCH(const QString, types);
    for (const bool polling : {false, true}) {
        LogCapture log;
        RecordingWrapper wrapper(polling, asynchron, sources);
        State state(&wrapper);
        state.postEvent(StateMachineEvent());
        QCOMPARE(wrapper.takeTransitions(), QStringList{readTransition(types, asynchron)});
        QCOMPARE(log.takeTexts(), QStringList());
        QVERIFY(wrapper.data().isConnectedToDBus());
        // Nothing is read yet.
        QCOMPARE(m_service->takeCalls(), QStringList());
    }
}

void UnitManagerConnectorStateInitialTest::theReceivedEventIsIgnored()
{
    RecordingWrapper wrapper;
    State state(&wrapper);
    state.postEvent(readTrigger({defaults}, "other"));
    QCOMPARE(wrapper.takeTransitions(), QStringList{readTransition("[0 1 2]")});
}

void UnitManagerConnectorStateInitialTest::anUnreachableUnitSwitchEndsTheAttempt()
{
    m_service->stop();
    RecordingWrapper wrapper;
    State state(&wrapper);
    LogCapture log;
    state.postEvent(StateMachineEvent());
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any),
             QStringList{warning("Unable to connect to mandantory file type \"UnitManager/UnitType\"")});
    QCOMPARE(wrapper.takeTransitions(), QStringList());
    // The other sources are not checked at all.
    QCOMPARE(wrapper.data().connectors().keys(), QList<Type>{units});
    QCOMPARE(openTypes(wrapper), QList<Type>());
}

void UnitManagerConnectorStateInitialTest::everyStepTriesAgain()
{
    m_service->stop();
    RecordingWrapper wrapper;
    State state(&wrapper);
    LogCapture log;
    for (int attempt = 0; attempt < 3; ++attempt)
        state.postEvent(StateMachineEvent());
    QCOMPARE(log.takeTexts().size(), 3);
    QCOMPARE(wrapper.takeTransitions(), QStringList());
    QVERIFY(m_service->start());
    state.postEvent(StateMachineEvent());
    QCOMPARE(log.takeTexts(), QStringList());
    QCOMPARE(wrapper.takeTransitions(), QStringList{readTransition("[0 1 2]")});
}

void UnitManagerConnectorStateInitialTest::anUnreachableOptionalSourceEndsTheAttempt_data()
{
    QTest::addColumn<RecordingWrapper::OptionalSources>("sources");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QList<Type>>("tried");
    row("dependency file", RecordingWrapper::DependencyFileAbsent, dependencyName,
        QList<Type>{units, dependencies});
    row("default unit", RecordingWrapper::DefaultUnitAbsent, defaultUnitName,
        QList<Type>{units, dependencies, defaults});
}

void UnitManagerConnectorStateInitialTest::anUnreachableOptionalSourceEndsTheAttempt()
{
    QFETCH(const RecordingWrapper::OptionalSources, sources);
    QFETCH(const QString, name);
    QFETCH(const QList<Type>, tried);
    RecordingWrapper wrapper(true, false, sources);
    State state(&wrapper);
    LogCapture log;
    state.postEvent(StateMachineEvent());
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any),
             QStringList{warning("Connection Error to optional file type \"" + name + '"')});
    QCOMPARE(wrapper.takeTransitions(), QStringList());
    QCOMPARE(wrapper.data().connectors().keys(), tried);
    QCOMPARE(openTypes(wrapper), QList<Type>());
}

void UnitManagerConnectorStateInitialTest::aMandatorySourceWithoutSettingsEndsTheAttempt()
{
    RecordingWrapper wrapper;
    wrapper.data().connectorSettings()[units][1].clear();
    State state(&wrapper);
    LogCapture log;
    state.postEvent(StateMachineEvent());
    QCOMPARE(log.takeTexts(),
             QStringList{"Unable to connect to mandantory file type \"UnitManager/UnitType\""});
    QCOMPARE(wrapper.takeTransitions(), QStringList());
    QCOMPARE(wrapper.data().connectors().keys(), QList<Type>{units});
}

void UnitManagerConnectorStateInitialTest::aFailureDiscardsTextsAndSubscriptions()
{
    RecordingWrapper wrapper(true, false, RecordingWrapper::DefaultUnitAbsent);
    wrapper.data().configurations()[units] = QStringLiteral("text");
    State state(&wrapper);
    LogCapture log;
    state.postEvent(StateMachineEvent());
    QVERIFY(wrapper.data().configurations().contains(units));
    QVERIFY(wrapper.data().configurations().value(units).isNull());
    // The subscriptions are closed too.
    QVERIFY(m_service->announce(units));
    QVERIFY(!wrapper.data().pollChangeFlags());
}

void UnitManagerConnectorStateInitialTest::aShortListIsOpenedButNotRead_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<bool>("isOpened");
    QTest::newRow("no entry") << 0 << false;
    QTest::newRow("two entries") << 2 << false;
    QTest::newRow("three entries") << 3 << true;
    QTest::newRow("four entries") << 4 << true;
}

void UnitManagerConnectorStateInitialTest::aShortListIsOpenedButNotRead()
{
    QFETCH(const int, size);
    QFETCH(const bool, isOpened);
    for (const Type type : {units, dependencies, defaults}) {
        RecordingWrapper wrapper;
        QStringList& settings = wrapper.data().connectorSettings()[type];
        settings = settings.mid(0, size);
        State state(&wrapper);
        LogCapture log;
        state.postEvent(StateMachineEvent());
        QCOMPARE(messageTexts(log.take(), LineNumbers::Any),
                 QStringList{warning("Unable to find handling for file type")});
        QList<Type> opened{units, dependencies, defaults};
        opened.removeOne(type);
        const QString types = QStringLiteral("[%1 %2]").arg(opened.at(0)).arg(opened.at(1));
        QCOMPARE(wrapper.takeTransitions(), QStringList{readTransition(types)});
        QCOMPARE(openTypes(wrapper).contains(type), isOpened);
        QCOMPARE(openTypes(wrapper).size(), isOpened ? 3 : 2);
    }
}

void UnitManagerConnectorStateInitialTest::anUnknownRequirementIsOpenedButNotRead_data()
{
    QTest::addColumn<QString>("requirement");
    QTest::newRow("nothing") << "";
    QTest::newRow("another word") << "desirable";
    QTest::newRow("mandatory in capitals") << "Mandatory";
    QTest::newRow("optional in capitals") << "OPTIONAL";
}

void UnitManagerConnectorStateInitialTest::anUnknownRequirementIsOpenedButNotRead()
{
    QFETCH(const QString, requirement);
    RecordingWrapper wrapper;
    wrapper.data().connectorSettings()[units][4] = requirement;
    State state(&wrapper);
    LogCapture log;
    state.postEvent(StateMachineEvent());
    QCOMPARE(log.takeTexts(), QStringList());
    QCOMPARE(wrapper.takeTransitions(), QStringList{readTransition("[1 2]")});
    QCOMPARE(openTypes(wrapper), (QList<Type>{units, dependencies, defaults}));
}

void UnitManagerConnectorStateInitialTest::aBadSourceDoesNotBlockTheOthers_data()
{
    QTest::addColumn<QStringList>("lastSettings");
    QTest::addColumn<QStringList>("messages");
    row("not configured", QStringList{"", "", "", "configuration.dependency", "optional"}, QStringList());
    row("a short list, its service absent",
        QStringList{absentModule, "Object", "Name", "configuration.dependency"},
        QStringList{"Unable to find handling for file type"});
    row("an unknown requirement, its service absent",
        QStringList{absentModule, "Object", "Name", "configuration.dependency", "any"}, QStringList());
}

void UnitManagerConnectorStateInitialTest::aBadSourceDoesNotBlockTheOthers()
{
    QFETCH(const QStringList, lastSettings);
    QFETCH(const QStringList, messages);
    RecordingWrapper wrapper;
    wrapper.data().connectorSettings()[defaults] = lastSettings;
    State state(&wrapper);
    LogCapture log;
    state.postEvent(StateMachineEvent());
    QCOMPARE(log.takeTexts(), messages);
    QCOMPARE(wrapper.takeTransitions(), QStringList{readTransition("[0 1]")});
    QCOMPARE(openTypes(wrapper), (QList<Type>{units, dependencies}));

    // If it is in the middle of the list, the next source is still opened.
    wrapper.data().resetObject();
    wrapper.init(false, "", "", "", module, defaultUnitObject, defaultUnitName);
    wrapper.data().connectorSettings()[dependencies] = lastSettings;
    state.postEvent(StateMachineEvent());
    QCOMPARE(log.takeTexts(), messages);
    QCOMPARE(wrapper.takeTransitions(), QStringList{readTransition("[0 2]")});
}

void UnitManagerConnectorStateInitialTest::withoutSourcesTheListIsEmpty()
{
    RecordingWrapper wrapper;
    wrapper.data().connectorSettings().clear();
    State state(&wrapper);
    LogCapture log;
    state.postEvent(StateMachineEvent());
    QCOMPARE(log.takeTexts(), QStringList());
    QCOMPARE(wrapper.takeTransitions(), QStringList{readTransition("[]")});
}

static const TestClass<UnitManagerConnectorStateInitialTest> testClass;
#include "UnitManagerConnectorStateInitialTest.moc"
