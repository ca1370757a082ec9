#include "Application.h"

#include <QtCore/QVariant>

#include <memory>

#include "DependencyWalker.h"
#include "Expected.h"
#include "Recorder.h"
#include "UnitManagerConnector/UnitManagerDBusConnector.h"
#include "UnitManagerConnector/UnitManagerStateMachineWrapper.h"
#include "UnitManagerDevice/UnitManagerDevice.h"
#include "UnitManagerDevice/UnitManagerWrapper.h"

namespace {

const QVariant twoBar(2.0);
const QString hectoPascal = QStringLiteral("HectoPascal");
const QString pressure = QStringLiteral("UnitManager/UnitType/Pressure");
const QString language = QStringLiteral("en");

QString conversionText(bool isUsable, const QVariant& inHectoPascal, const QVariant& shown,
                       const QString& label)
{
    return QStringLiteral("%1: %2 HectoPascal, %3 %4 by default")
        .arg(isUsable ? QLatin1String("usable") : QLatin1String("raw"), inHectoPascal.toString(),
             shown.toString(), label)
        .simplified();
}

QString conversionByWrapper(UnitManagerWrapper& wrapper)
{
    return conversionText(wrapper, wrapper.getValue(twoBar, pressure, hectoPascal),
                          wrapper.getValue(twoBar, pressure, QString()),
                          wrapper.getUnitText(pressure, language));
}

QString dependentKeys(DependencyWalker* walker)
{
    QList<QVariant> visited;
    if (walker)
        walker->traverseDependencyGraph(QStringLiteral("PressureUnit"), {}, {}, visited, {}, {});
    QStringList keys;
    for (const QVariant& key : qAsConst(visited))
        keys.append(key.toString());
    return keys.isEmpty() ? QStringLiteral("none") : keys.join(QLatin1Char(' '));
}

/// Sets the operations that are called in the same way at all levels.
template <typename Library>
Application commonOperations(const std::shared_ptr<Library>& library, const Mode& mode)
{
    Application application;
    application.init = [library, mode](const Settings& settings) {
        library->init(!mode.isBlocking, settings.dependencies.module, settings.dependencies.object,
                      settings.dependencies.configuration, settings.defaultUnits.module,
                      settings.defaultUnits.object, settings.defaultUnits.configuration);
    };
    application.reset = [library] {
        library->reset();
    };
    return application;
}

/// Holds a wrapper, as devices do.
Application wrapperApplication(const Mode& mode, const Settings& settings)
{
    const auto wrapper = std::make_shared<UnitManagerWrapper>(
        settings.dependencies.module, settings.dependencies.object, settings.dependencies.configuration,
        settings.defaultUnits.module, settings.defaultUnits.object, settings.defaultUnits.configuration,
        !mode.isBlocking, mode.isPolled);
    Application application = commonOperations(wrapper, mode);
    application.check = [wrapper] {
        return wrapper->checkInitialized();
    };
    application.units = [wrapper] {
        return wrapper->getUnitManager();
    };
    application.conversion = [wrapper] {
        return conversionByWrapper(*wrapper);
    };
    application.hasChanged = [wrapper] {
        return wrapper->hasUnitManagerConfigurationChanged();
    };
    return application;
}

/// Sets the operations that the connector and its state machine have in common.
template <typename Library>
Application connectorLevelOperations(const std::shared_ptr<Library>& library, const Mode& mode)
{
    Application application = commonOperations(library, mode);
    const auto units = [library] {
        QSharedPointer<UnitManagerDevice> current;
        library->initializeUnitManager(current);
        return current;
    };
    application.units = units;
    application.conversion = [units] {
        return conversionBy(units());
    };
    application.dependents = [library] {
        QSharedPointer<DependencyWalker> walker;
        library->initializeDependencyWalker(walker);
        return dependentKeys(walker.data());
    };
    return application;
}

// The connector and its state machine are constructed without sources, and then initialised, as in the
// wrapper.
const QString none;

/// Holds only the connector and records its signals.
Application connectorApplication(const Mode& mode, const Settings& settings, Recorder& recorder)
{
    const auto connector = std::make_shared<UnitManagerDBusConnector>(nullptr, mode.isPolled, false, none,
                                                                      none, none, none, none, none);
    QObject::connect(connector.get(), &UnitManagerDBusConnector::unitManagerConfigurationChanged,
                     [&recorder] { recorder.addEvent(Signal::configurationChanged); });
    QObject::connect(connector.get(), &UnitManagerDBusConnector::unitManagerIsInitialized,
                     [&recorder] { recorder.addEvent(Signal::initialized); });
    Application application = connectorLevelOperations(connector, mode);
    application.check = [connector] {
        return connector->isUnitManagerInitialized();
    };
    application.hasChanged = [connector] {
        return connector->hasConfigurationChanged();
    };
    application.init(settings);
    return application;
}

/// Holds only the connector's state machine; each check is one step of it.
Application machineApplication(const Mode& mode, const Settings& settings)
{
    const auto machine = std::make_shared<UnitManagerStateMachineWrapper>(nullptr, mode.isPolled, false, none,
                                                                          none, none, none, none, none);
    Application application = connectorLevelOperations(machine, mode);
    application.check = [machine] {
        machine->postEvent();
        return machine->getCurrentStateIdentifier() == State::idle;
    };
    application.init(settings);
    return application;
}

} // namespace

Application Application::create(const Mode& mode, const Settings& settings, Recorder& recorder)
{
    if (mode.level == Mode::Wrapper)
        return wrapperApplication(mode, settings);
    if (mode.level == Mode::Connector)
        return connectorApplication(mode, settings, recorder);
    return machineApplication(mode, settings);
}

QString conversionBy(const QSharedPointer<const UnitManagerDevice>& units)
{
    if (!units || !units->isValid())
        return conversionText(false, twoBar, twoBar, QString());
    return conversionText(true, units->getValue(twoBar, pressure, hectoPascal),
                          units->getValue(twoBar, pressure, QString()),
                          units->getUnitText(pressure, language, QString()));
}
