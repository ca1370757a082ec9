#include "WrapperSetup.h"

#include <QtTest/QTest>

#include "WaitUntil.h"

namespace {

const QString module = QStringLiteral("DeviceManager");
const QString defaultUnitObject = QStringLiteral("DefaultUnitConfiguration");
const QString defaultUnitName = QStringLiteral("UnitManager/DefaultUnit");
const QString dependencyObject = QStringLiteral("DependencyConfiguration");
const QString dependencyName = QStringLiteral("UnitManager/Dependency");

} // namespace

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

void WrapperSetup::addModes()
{
    QTest::addColumn<bool>("reading");
    QTest::addColumn<bool>("changeSignals");
    QTest::newRow("blocking, delivered") << bool(Blocking) << bool(Delivered);
    QTest::newRow("blocking, polled") << bool(Blocking) << bool(Polled);
    QTest::newRow("asynchronous, delivered") << bool(Asynchronous) << bool(Delivered);
    QTest::newRow("asynchronous, polled") << bool(Asynchronous) << bool(Polled);
}
