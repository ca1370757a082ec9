#include "UnitManagerConnector/UnitManagerDBusConnector.h"

namespace {

const QLatin1String updateState("UnitManagerConnectorStateUpdate");
const QLatin1String idleState("UnitManagerConnectorStateIdle");
const QLatin1String errorState("UnitManagerConnectorStateError");

const int maximumStepCount = 100;

} // namespace

UnitManagerDBusConnector::UnitManagerDBusConnector(
    QObject* /*parent*/, bool useSignalPolling, bool useAsynchronInterface, const QString& dependencyService,
    const QString& dependencyObject, const QString& dependencyConfiguration,
    const QString& defaultUnitService, const QString& defaultUnitObject,
    const QString& defaultUnitConfiguration)
    : QObject(nullptr),
      m_stateMachineWrapper(nullptr, useSignalPolling, useAsynchronInterface, dependencyService,
                            dependencyObject, dependencyConfiguration, defaultUnitService, defaultUnitObject,
                            defaultUnitConfiguration),
      m_useSignalPolling(useSignalPolling)
{}

UnitManagerDBusConnector::~UnitManagerDBusConnector() = default;

bool UnitManagerDBusConnector::init(bool useAsynchronInterface, const QString& dependencyService,
                                    const QString& dependencyObject, const QString& dependencyConfiguration,
                                    const QString& defaultUnitService, const QString& defaultUnitObject,
                                    const QString& defaultUnitConfiguration)
{
    m_stateMachineWrapper.init(useAsynchronInterface, dependencyService, dependencyObject,
                               dependencyConfiguration, defaultUnitService, defaultUnitObject,
                               defaultUnitConfiguration);
    return true;
}

bool UnitManagerDBusConnector::initializeDependencyWalker(QSharedPointer<DependencyWalker>& out)
{
    return m_stateMachineWrapper.initializeDependencyWalker(out);
}

bool UnitManagerDBusConnector::initializeUnitManager(QSharedPointer<UnitManagerDevice>& out)
{
    return m_stateMachineWrapper.initializeUnitManager(out);
}

bool UnitManagerDBusConnector::isUnitManagerInitialized()
{
    if (m_stateMachineWrapper.getConnectionDataObject()->useAsynchronInterface())
        return stepToIdle();
    for (int step = 0; step < maximumStepCount; ++step) {
        if (stepToIdle())
            return true;
        if (m_stateMachineWrapper.getCurrentStateIdentifier() == errorState)
            return false;
    }
    return false;
}

bool UnitManagerDBusConnector::stepToIdle()
{
    if (m_stateMachineWrapper.getCurrentStateIdentifier() == updateState) {
        m_configurationChanged = true;
        Q_EMIT unitManagerConfigurationChanged();
    }
    m_stateMachineWrapper.postEvent();
    if (m_stateMachineWrapper.getCurrentStateIdentifier() != idleState)
        return false;
    Q_EMIT unitManagerIsInitialized();
    return true;
}

bool UnitManagerDBusConnector::hasConfigurationChanged()
{
    const bool changed = m_configurationChanged;
    m_configurationChanged = false;
    return changed;
}

bool UnitManagerDBusConnector::reset()
{
    m_configurationChanged = false;
    return m_stateMachineWrapper.reset();
}
