#include "UnitManagerConnector/UnitManagerConnectorDefinitions.h"

#include <QtTest/QTest>

#include <type_traits>

#include "ObjectSlots.h"
#include "Row.h"
#include "TestProgram.h"

using Definitions = UnitManagerConnectorDefinitions;
using Getter = const QString& (*)();
using Types = QList<Definitions::ConnectorType>;

Q_DECLARE_METATYPE(Getter)

static_assert(std::is_base_of_v<QObject, Definitions>);
static_assert(std::is_convertible_v<QObject*, Definitions>);
static_assert(sizeof(Definitions::ConnectorType) == 4 && sizeof(Definitions::ConnectionStatus) == 4);
static_assert(Definitions::UnitSwitch == 0 && Definitions::DependencyFile == 1 &&
              Definitions::DefaultUnit == 2);
static_assert(Definitions::Connected == 0 && Definitions::ConnectionFailed == 1 &&
              Definitions::NotConfigured == 2);

class UnitManagerConnectorDefinitionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theKeysAreFixed_data();
    void theKeysAreFixed();
    void theMetaObjectHasNoMethodsOfItsOwn();
    void theParentIsNotPassedOn();
    void aListOfTypesTravelsInAVariant();
};

void UnitManagerConnectorDefinitionsTest::theKeysAreFixed_data()
{
    QTest::addColumn<Getter>("getter");
    QTest::addColumn<QString>("text");
    row("optional", Getter(Definitions::getKeyOptional), "optional");
    row("mandatory", Getter(Definitions::getKeyMandatory), "mandatory");
    // Swapped on purpose; consumers rely on it.
    row("configuration", Getter(Definitions::getKeyConfigurationFile), "configuration.dependency");
    row("dependency configuration", Getter(Definitions::getKeyConfigurationDependencyFile), "configuration");
}

void UnitManagerConnectorDefinitionsTest::theKeysAreFixed()
{
    QFETCH(const Getter, getter);
    QFETCH(const QString, text);
    const QString& first = getter();
    const QString& second = getter();
    QCOMPARE(first, text);
    QCOMPARE(&first, &second);
}

void UnitManagerConnectorDefinitionsTest::theMetaObjectHasNoMethodsOfItsOwn()
{
    const QMetaObject& metaObject = Definitions::staticMetaObject;
    QCOMPARE(metaObject.className(), "UnitManagerConnectorDefinitions");
    QCOMPARE(metaObject.superClass(), &QObject::staticMetaObject);
    QCOMPARE(metaObject.methodCount(), metaObject.methodOffset());
}

void UnitManagerConnectorDefinitionsTest::theParentIsNotPassedOn()
{
    QObject parent;
    const Definitions definitions(&parent);
    QCOMPARE(definitions.parent(), nullptr);
    QVERIFY(parent.children().isEmpty());
}

void UnitManagerConnectorDefinitionsTest::aListOfTypesTravelsInAVariant()
{
    const Types types{Definitions::DefaultUnit, Definitions::UnitSwitch};
    const QVariant data = QVariant::fromValue(types);
    QCOMPARE(data.typeName(), "QList<UnitManagerConnectorDefinitions::ConnectorType>");
    QCOMPARE(QMetaType::type("QList<UnitManagerConnectorDefinitions::ConnectorType>"), data.userType());
    QVERIFY(data.canConvert<Types>());
    QCOMPARE(data.value<Types>(), types);
    QVERIFY(!QVariant("0").canConvert<Types>());
}

static const TestClass<UnitManagerConnectorDefinitionsTest> testClass;
#include "UnitManagerConnectorDefinitionsTest.moc"
