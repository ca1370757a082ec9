#include "ReadStateTest.h"

#include <QtTest/QTest>

#include "ConfigurationFileHandlerDBusConnector.h"
#include "LogCapture.h"
#include "MessageText.h"
#include "Row.h"
#include "TestDocuments.h"

using namespace TestSource;

ReadStateTest::ReadStateTest(const TestedClass& testedClass) : m_testedClass(testedClass) {}

QString ReadStateTest::warning(const QString& text) const
{
    return warningText("UnitManagerConnector/" + m_testedClass.name, anyLine,
                       QStringLiteral("bool %1::%2(UnitManagerConnectorDefinitions::ConnectorType)")
                           .arg(m_testedClass.name, m_testedClass.readFunction),
                       text);
}

void ReadStateTest::theListedSourcesAreRequestedInOrder_data()
{
    QTest::addColumn<QList<Type>>("types");
    QTest::addColumn<QStringList>("calls");
    QTest::addColumn<QString>("listText");
    row("all", QList<Type>{units, dependencies, defaults},
        QStringList{TestCall::units, TestCall::dependencies, TestCall::defaults}, "[0 1 2]");
    row("all, backwards", QList<Type>{defaults, dependencies, units},
        QStringList{TestCall::defaults, TestCall::dependencies, TestCall::units}, "[2 1 0]");
    row("one", QList<Type>{dependencies}, QStringList{TestCall::dependencies}, "[1]");
}

void ReadStateTest::theListedSourcesAreRequestedInOrder()
{
    QFETCH(const QList<Type>, types);
    QFETCH(const QStringList, calls);
    QFETCH(const QString, listText);
    RecordingWrapper wrapper;
    QVERIFY(wrapper.openAll());
    LogCapture log;
    createState(&wrapper)->postEvent(readTrigger(types, "any name"));
    QCOMPARE(m_service->takeCalls(), calls);
    QCOMPARE(wrapper.takeTransitions(), QStringList{m_testedClass.nextState + " any name(" + listText + ')'});
    const QMap<Type, QVariant> all{{units, TestDocuments::units()},
                                   {dependencies, TestDocument::dependencies()},
                                   {defaults, TestDocuments::defaultUnits()}};
    const QMap<Type, QVariant> delivered = deliveredValues(wrapper);
    QCOMPARE(delivered.size(), types.size());
    for (const Type type : types)
        QCOMPARE(delivered.value(type), all.value(type));
    QCOMPARE(wrapper.data().configurations().size(), m_testedClass.createsText ? types.size() : 0);
    QCOMPARE(log.takeTexts(), QStringList());
}

void ReadStateTest::withoutListNothingIsRequested_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::addColumn<QString>("text");
    QTest::newRow("no data") << QVariant() << "";
    QTest::newRow("an empty list") << QVariant::fromValue(QList<Type>()) << "[]";
    QTest::newRow("a text") << QVariant("0") << "0";
    QTest::newRow("a list of numbers") << QVariant(QVariantList{0, 1}) << "";
}

void ReadStateTest::withoutListNothingIsRequested()
{
    QFETCH(const QVariant, data);
    QFETCH(const QString, text);
    RecordingWrapper wrapper;
    QVERIFY(wrapper.openAll());
    LogCapture log;
    createState(&wrapper)->postEvent(StateMachineEvent("ReadTrigger", data));
    QCOMPARE(wrapper.takeTransitions(),
             QStringList{"UnitManagerConnectorStateError ReadTrigger(" + text + ')'});
    QCOMPARE(m_service->takeCalls(), QStringList());
    QCOMPARE(log.takeTexts(), QStringList());
    QVERIFY(wrapper.data().configurations().isEmpty());
    QVERIFY(wrapper.data().pendingReplies().isEmpty());
}

void ReadStateTest::anUnknownKindIsNotRequested_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("another word") << "file";
    QTest::newRow("nothing") << "";
    QTest::newRow("a key in capitals") << "Configuration";
}

void ReadStateTest::anUnknownKindIsNotRequested()
{
    QFETCH(const QString, kind);
    RecordingWrapper wrapper;
    QVERIFY(wrapper.openAll());
    wrapper.data().connectorSettings()[units][3] = kind;
    const auto state = createState(&wrapper);
    const QStringList warnings{warning("Unknown Filetype given \"" + kind + '"'),
                               warning("Unable to get unitswitch configuration via DBus \"DeviceManager\" "
                                       "\"UnitManagerConfiguration\" \"UnitManager/UnitType\"")};
    LogCapture log;
    QVERIFY(!read(*state, units));
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any), warnings);
    state->postEvent(readTrigger({units}));
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any), warnings);
    QCOMPARE(wrapper.takeTransitions(), QStringList{"UnitManagerConnectorStateError ReadTrigger([0])"});
    QCOMPARE(m_service->takeCalls(), QStringList());
}

void ReadStateTest::withoutConnectionNothingIsRequested()
{
    RecordingWrapper wrapper;
    QVERIFY(wrapper.openAll());
    wrapper.data().configurations()[units] = QStringLiteral("earlier");
    // One missing optional connector prevents all other sources from being read.
    wrapper.data().connectors()[defaults].reset();
    const auto state = createState(&wrapper);
    const QString connectionWarning =
        warning("Unitswitch connector: Cannot call method configuration get via DBus");
    LogCapture log;
    state->postEvent(readTrigger({units, dependencies}));
    QCOMPARE(messageTexts(log.take(), LineNumbers::Any), (QStringList{connectionWarning, connectionWarning}));
    QCOMPARE(wrapper.takeTransitions(), QStringList{"UnitManagerConnectorStateError ReadTrigger([0 1])"});
    QCOMPARE(m_service->takeCalls(), QStringList());
    QVERIFY(wrapper.data().pendingReplies().isEmpty());
    // The texts are cleared first.
    const QList<Type> cleared =
        m_testedClass.createsText ? QList<Type>{units, dependencies} : QList<Type>{units};
    QCOMPARE(wrapper.data().configurations().keys(), cleared);
    for (const QString& text : wrapper.data().configurations())
        QVERIFY(text.isNull());
}

void ReadStateTest::aMissingConnectorFailsSilently()
{
    RecordingWrapper wrapper(true, false, RecordingWrapper::NoDefaultUnit);
    for (const Type type : {units, dependencies})
        QCOMPARE(wrapper.data().openConnector(type), UnitManagerConnectorDefinitions::Connected);
    const auto state = createState(&wrapper);
    LogCapture log;
    QVERIFY(!read(*state, defaults));
    QCOMPARE(log.takeTexts(), QStringList());
    QCOMPARE(m_service->takeCalls(), QStringList());
    QCOMPARE(wrapper.data().configurations().keys(),
             m_testedClass.createsText ? QList<Type>{defaults} : QList<Type>());
    QVERIFY(wrapper.data().pendingReplies().isEmpty());
}

void ReadStateTest::withoutWrapperNothingIsRequested()
{
    const auto state = createState(nullptr);
    LogCapture log;
    QVERIFY(!read(*state, units));
    QCOMPARE(log.takeTexts(), QStringList());
}
