#include <QtTest/QtTest>

#include <dlfcn.h>

/// The registry of a process that loads the libraries as plugins do, each in a scope of its own. It links
/// none of them.
class FactoryLocalScopeTest : public QObject
{
    Q_OBJECT

private slots:
    void librariesShareTheRegistryOfStates();
};

void FactoryLocalScopeTest::librariesShareTheRegistryOfStates()
{
    QVERIFY(!dlopen(STATE_MACHINE_LIBRARY, RTLD_NOW | RTLD_NOLOAD));
    void* const stateMachine = dlopen(STATE_MACHINE_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    QVERIFY2(stateMachine, dlerror());
    void* const unitManager = dlopen(UNIT_MANAGER_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    QVERIFY2(unitManager, dlerror());

    // The static object in Factory<StateMachineStateBase, QObject*>::instance(). Each library has a copy, and
    // the loader lets one of them count.
    const char* const registry =
        "_ZZN13VESKFactories7FactoryI21StateMachineStateBaseJP7QObjectEE8instanceEvE7factory";
    QVERIFY(dlsym(stateMachine, registry));
    QCOMPARE(dlsym(unitManager, registry), dlsym(stateMachine, registry));
}

QTEST_APPLESS_MAIN(FactoryLocalScopeTest)

#include "FactoryLocalScopeTest.moc"
