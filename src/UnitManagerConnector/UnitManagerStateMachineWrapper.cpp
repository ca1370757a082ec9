#include "UnitManagerConnector/UnitManagerStateMachineWrapper.h"

#include "UnitConversion/Factory.h"
#include "UnitManagerConnector/UnitManagerConnectorStateInitial.h"

namespace {

/// The name of a source that is not configured: empty, but not null.
const QLatin1String noName("");

QString initialStateKey()
{
    return VESKFactories::createFactoryKey<UnitManagerConnectorStateInitial>();
}

StateMachineEvent initialEvent()
{
    return StateMachineEvent(QStringLiteral("initialEvent"));
}

} // namespace

UnitManagerStateMachineWrapper::UnitManagerStateMachineWrapper(
    QObject* /*parent*/, bool useSignalPolling, bool useAsynchronInterface, const QString& dependencyService,
    const QString& dependencyObject, const QString& dependencyConfiguration,
    const QString& defaultUnitService, const QString& defaultUnitObject,
    const QString& defaultUnitConfiguration)
    : QObject(nullptr),
      m_connectionData(nullptr, useSignalPolling, false, false, noName, noName, noName, noName, noName,
                       noName),
      m_stateMachine(this)
{
    m_stateMachine.setInitialState(initialStateKey(), initialEvent());
    init(useAsynchronInterface, dependencyService, dependencyObject, dependencyConfiguration,
         defaultUnitService, defaultUnitObject, defaultUnitConfiguration);
}

UnitManagerStateMachineWrapper::~UnitManagerStateMachineWrapper() = default;

bool UnitManagerStateMachineWrapper::init(bool useAsynchronInterface, const QString& dependencyService,
                                          const QString& dependencyObject,
                                          const QString& dependencyConfiguration,
                                          const QString& defaultUnitService, const QString& defaultUnitObject,
                                          const QString& defaultUnitConfiguration)
{
    m_connectionData.init(useAsynchronInterface, dependencyService, dependencyObject, dependencyConfiguration,
                          defaultUnitService, defaultUnitObject, defaultUnitConfiguration);
    return reset();
}

bool UnitManagerStateMachineWrapper::reset()
{
    m_connectionData.resetObject();
    m_stateMachine.setNextState(initialStateKey(), initialEvent());
    return true;
}

bool UnitManagerStateMachineWrapper::moveToNextState(const QString& nextStateKey,
                                                     const StateMachineEvent& event)
{
    m_pendingEvent = event;
    m_stateMachine.setNextState(nextStateKey, event);
    return true;
}

UnitManagerStateMachineWrapper::StepResult UnitManagerStateMachineWrapper::postEvent()
{
    return m_stateMachine.postEvent(m_pendingEvent);
}

QString UnitManagerStateMachineWrapper::getCurrentStateIdentifier() const
{
    return m_stateMachine.getCurrentStateIdentifier();
}

UnitManagerConnectionData* UnitManagerStateMachineWrapper::getConnectionDataObject()
{
    return &m_connectionData;
}

bool UnitManagerStateMachineWrapper::initializeDependencyWalker(QSharedPointer<DependencyWalker>& out)
{
    return m_connectionData.initializeDependencyWalker(out);
}

bool UnitManagerStateMachineWrapper::initializeUnitManager(QSharedPointer<UnitManagerDevice>& out)
{
    return m_connectionData.initializeUnitManager(out);
}
