#include "WrapperSetup.h"

#include <QtTest/QTest>

#include "ConfigurationService.h"
#include "DebugText.h"
#include "TestDocuments.h"
#include "WaitUntil.h"

using namespace TestSource;

std::unique_ptr<UnitManagerWrapper> WrapperSetup::create(Names names, Reading reading, Signals changeSignals)
{
    switch (names) {
    case NoNames:
        return std::make_unique<UnitManagerWrapper>(reading, changeSignals);
    case DefaultUnitNames:
        return std::make_unique<UnitManagerWrapper>(module, defaultUnitObject, defaultUnitName, reading,
                                                    changeSignals);
    case AllNames:
        return std::make_unique<UnitManagerWrapper>(module, dependencyObject, dependencyName, module,
                                                    defaultUnitObject, defaultUnitName, reading,
                                                    changeSignals);
    }
    return nullptr;
}

std::unique_ptr<UnitManagerWrapper> WrapperSetup::createInFetchedMode(Names names)
{
    QFETCH(bool, reading);
    QFETCH(bool, changeSignals);
    return create(names, Reading(reading), Signals(changeSignals));
}

std::unique_ptr<UnitManagerWrapper> WrapperSetup::createUnused()
{
    return create(NoNames, Asynchronous, Polled);
}

bool WrapperSetup::init(UnitManagerWrapper& wrapper, Reading reading)
{
    return wrapper.init(reading, module, dependencyObject, dependencyName, module, defaultUnitObject,
                        defaultUnitName);
}

bool WrapperSetup::initWithoutNames(UnitManagerWrapper& wrapper, Reading reading)
{
    const QString none;
    return wrapper.init(reading, none, none, none, none, none, none);
}

bool WrapperSetup::waitForUnits(UnitManagerWrapper& wrapper)
{
    return waitUntil([&wrapper] { return wrapper.checkInitialized(); });
}

QString WrapperSetup::shown(const UnitManagerWrapper& wrapper)
{
    return toDebugText(wrapper.getValue(1.5, TestUnitType::pressure, QStringLiteral("HectoPascal")));
}

void WrapperSetup::addModes()
{
    QTest::addColumn<bool>("reading");
    QTest::addColumn<bool>("changeSignals");
    QTest::newRow("blocking, delivered") << bool(Blocking) << bool(Delivered);
    QTest::newRow("blocking, polled") << bool(Blocking) << bool(Polled);
    QTest::newRow("asynchronous, delivered") << bool(Asynchronous) << bool(Delivered);
    QTest::newRow("asynchronous, polled") << bool(Asynchronous) << bool(Polled);
}
