#include <QtTest/QTest>

#include <dlfcn.h>

#include "Row.h"
#include "TestProgram.h"

/// The registries of a process that loads the libraries like plugins, each in a separate scope, and links
/// none of them.
class FactoryLocalScopeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void librariesShareTheRegistries_data();
    void librariesShareTheRegistries();

private:
    void* m_stateMachine = nullptr;
    void* m_unitManager = nullptr;
    void* m_plugin = nullptr;
};

void FactoryLocalScopeTest::initTestCase()
{
    QVERIFY(!dlopen(STATE_MACHINE_LIBRARY, RTLD_NOW | RTLD_NOLOAD));
    m_stateMachine = dlopen(STATE_MACHINE_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    QVERIFY2(m_stateMachine, dlerror());
    m_unitManager = dlopen(UNIT_MANAGER_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    QVERIFY2(m_unitManager, dlerror());
    m_plugin = dlopen(FACTORY_PLUGIN, RTLD_NOW | RTLD_LOCAL);
    QVERIFY2(m_plugin, dlerror());
}

void FactoryLocalScopeTest::librariesShareTheRegistries_data()
{
    QTest::addColumn<bool>("isOfTheStateMachine");
    QTest::addColumn<QByteArray>("registry");
    QTest::addColumn<QByteArray>("getter");

    // The mangled names are those of the static objects in Factory<...>::instance().
    row("states", true,
        QByteArray("_ZZN13VESKFactories7FactoryI21StateMachineStateBaseJP7QObjectEE8"
                   "instanceEvE7factory"),
        QByteArray("stateFactoryOfPlugin"));
    row("converters", false,
        QByteArray("_ZZN13VESKFactories7FactoryI18ValueConverterBaseJRK14QSharedPointerI31"
                   "ConfigurationAndProcessDataBaseEEE8instanceEvE7factory"),
        QByteArray("converterFactoryOfPlugin"));
}

void FactoryLocalScopeTest::librariesShareTheRegistries()
{
    QFETCH(bool, isOfTheStateMachine);
    QFETCH(QByteArray, registry);
    QFETCH(QByteArray, getter);

    const void* const ofUnitManager = dlsym(m_unitManager, registry.constData());
    QVERIFY2(ofUnitManager, dlerror());
    const auto ofPlugin = reinterpret_cast<const void* (*)()>(dlsym(m_plugin, getter.constData()));
    QVERIFY2(ofPlugin, dlerror());
    QCOMPARE(ofPlugin(), ofUnitManager);
    if (isOfTheStateMachine)
        QCOMPARE(static_cast<const void*>(dlsym(m_stateMachine, registry.constData())), ofUnitManager);
}

static const TestClass<FactoryLocalScopeTest> testClass;

#include "FactoryLocalScopeTest.moc"
