#include <QtTest/QTest>

#include <algorithm>

#include "Row.h"
#include "TestProgram.h"
#include "UnitConversion/Factory.h"
#include "UnitManagerConnector/UnitManagerConnectionData.h"
#include "UnitManagerConnector/UnitManagerConnectorStateBase.h"
#include "UnitManagerConnector/UnitManagerConnectorStateInitial.h"
#include "WrapperSetup.h"

using namespace WrapperSetup;

Q_DECLARE_METATYPE(WrapperSetup::Names)

namespace {

using SettingsMap = QMap<UnitManagerConnectorDefinitions::ConnectorType, QStringList>;

/// The settings of the connector at each selection of the initial state, oldest first.
QList<SettingsMap>& seenSettings()
{
    static QList<SettingsMap> list;
    return list;
}

bool hasNullText(const QStringList& settings)
{
    return std::any_of(settings.begin(), settings.end(), [](const QString& text) { return text.isNull(); });
}

QStringList namesOf(const SettingsMap& settings)
{
    return settings.value(UnitManagerConnectorDefinitions::DependencyFile).mid(0, 3) +
           settings.value(UnitManagerConnectorDefinitions::DefaultUnit).mid(0, 3);
}

} // namespace

/// Replaces the initial state, which the connector selects whenever it gets new settings.
class SettingsWitness : public UnitManagerConnectorStateBase
{
    Q_OBJECT

public:
    explicit SettingsWitness(QObject* parent) : UnitManagerConnectorStateBase(parent)
    {
        seenSettings().append(connectionData().connectorSettings());
    }

    void postEvent(const StateMachineEvent& /*event*/) override {}
};

/// What a wrapper's constructors pass to the connector.
class UnitManagerWrapperSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void missingNamesAreEmptyTexts_data();
    void missingNamesAreEmptyTexts();
};

void UnitManagerWrapperSettingsTest::initTestCase()
{
    VESKFactories::Factory<StateMachineStateBase, QObject*>::instance().registerClass<SettingsWitness>(
        VESKFactories::createFactoryKey<UnitManagerConnectorStateInitial>());
}

void UnitManagerWrapperSettingsTest::missingNamesAreEmptyTexts_data()
{
    QTest::addColumn<Names>("names");
    QTest::addColumn<QStringList>("expected");
    const QStringList defaultUnits{"DeviceManager", "DefaultUnitObject", "Test/DefaultUnit"};
    row("no names", NoNames, QStringList{"", "", "", "", "", ""});
    row("names of the default units", DefaultUnitNames, QStringList{"", "", ""} + defaultUnits);
    row("all names", AllNames,
        QStringList{"DeviceManager", "DependencyObject", "Test/Dependency"} + defaultUnits);
}

void UnitManagerWrapperSettingsTest::missingNamesAreEmptyTexts()
{
    QFETCH(Names, names);
    seenSettings().clear();
    create(names, Asynchronous, Polled);

    // A device may register its own initial state, which sees every step: the data is built without names,
    // then the connector, which finally gets the wrapper's names.
    QCOMPARE(seenSettings().size(), 3);
    QCOMPARE(namesOf(seenSettings().at(0)), QStringList({"", "", "", "", "", ""}));
    QCOMPARE(namesOf(seenSettings().at(1)), QStringList({"", "", "", "", "", ""}));
    QTEST(namesOf(seenSettings().at(2)), "expected");
    for (const SettingsMap& settings : qAsConst(seenSettings()))
        QVERIFY(!hasNullText(namesOf(settings)));
}

static const TestClass<UnitManagerWrapperSettingsTest> testClass;
#include "UnitManagerWrapperSettingsTest.moc"
