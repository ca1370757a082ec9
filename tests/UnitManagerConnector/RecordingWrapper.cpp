#include "RecordingWrapper.h"

#include "ConfigurationService.h"
#include "UnitConversion/Factory.h"
#include "UnitManagerConnector/UnitManagerConnectorStateError.h"
#include "UnitManagerConnector/UnitManagerConnectorStateIdle.h"
#include "UnitManagerConnector/UnitManagerConnectorStateInitial.h"
#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationASynchron.h"
#include "UnitManagerConnector/UnitManagerConnectorStateReadConfigurationSynchron.h"
#include "UnitManagerConnector/UnitManagerConnectorStateUpdate.h"
#include "UnitManagerConnector/UnitManagerConnectorStateWaitForReply.h"

namespace {

using Types = QList<UnitManagerConnectorDefinitions::ConnectorType>;

template <typename State>
void insertName(QHash<QString, QString>& names)
{
    names.insert(VESKFactories::createFactoryKey<State>(),
                 QString::fromLatin1(State::staticMetaObject.className()));
}

QString stateNameOf(const QString& key)
{
    QHash<QString, QString> names;
    insertName<UnitManagerConnectorStateInitial>(names);
    insertName<UnitManagerConnectorStateReadConfigurationASynchron>(names);
    insertName<UnitManagerConnectorStateReadConfigurationSynchron>(names);
    insertName<UnitManagerConnectorStateError>(names);
    insertName<UnitManagerConnectorStateIdle>(names);
    insertName<UnitManagerConnectorStateUpdate>(names);
    insertName<UnitManagerConnectorStateWaitForReply>(names);
    return names.value(key, QStringLiteral("unknown"));
}

QString dataText(const QVariant& data)
{
    if (data.userType() != qMetaTypeId<Types>())
        return data.toString();
    QStringList numbers;
    for (const auto type : data.value<Types>())
        numbers.append(QString::number(type));
    return QLatin1Char('[') + numbers.join(QLatin1Char(' ')) + QLatin1Char(']');
}

/// The name for an optional source; empty unless it is configured.
QString nameIf(bool isConfigured, const QString& name)
{
    return isConfigured ? name : QString();
}

bool hasDependencyFile(RecordingWrapper::OptionalSources sources)
{
    return sources != RecordingWrapper::NoDependencyFile && sources != RecordingWrapper::NoneConfigured;
}

bool hasDefaultUnit(RecordingWrapper::OptionalSources sources)
{
    return sources != RecordingWrapper::NoDefaultUnit && sources != RecordingWrapper::NoneConfigured;
}

QString moduleOf(bool isAbsent)
{
    return isAbsent ? TestSource::absentModule : TestSource::module;
}

} // namespace

RecordingWrapper::RecordingWrapper(bool useSignalPolling, bool useAsynchronInterface, OptionalSources sources)
    : UnitManagerStateMachineWrapper(
          nullptr, useSignalPolling, useAsynchronInterface,
          nameIf(hasDependencyFile(sources), moduleOf(sources == DependencyFileAbsent)),
          nameIf(hasDependencyFile(sources), TestSource::dependencyObject),
          nameIf(hasDependencyFile(sources), TestSource::dependencyName),
          nameIf(hasDefaultUnit(sources), moduleOf(sources == DefaultUnitAbsent)),
          nameIf(hasDefaultUnit(sources), TestSource::defaultUnitObject),
          nameIf(hasDefaultUnit(sources), TestSource::defaultUnitName))
{}

RecordingWrapper::~RecordingWrapper() = default;

bool RecordingWrapper::moveToNextState(const QString& nextStateKey, const StateMachineEvent& event)
{
    if (m_observer)
        m_observer();
    m_transitions.append(transitionText(stateNameOf(nextStateKey), event));
    return true;
}

QStringList RecordingWrapper::takeTransitions()
{
    QStringList taken;
    taken.swap(m_transitions);
    return taken;
}

void RecordingWrapper::setObserver(const std::function<void()>& observer)
{
    m_observer = observer;
}

UnitManagerConnectionData& RecordingWrapper::data()
{
    return *getConnectionDataObject();
}

bool RecordingWrapper::openAll()
{
    bool areOpen = true;
    for (const auto type : {TestSource::units, TestSource::dependencies, TestSource::defaults})
        areOpen = data().openConnector(type) == UnitManagerConnectorDefinitions::Connected && areOpen;
    return areOpen;
}

QString transitionText(const QString& stateName, const StateMachineEvent& event)
{
    return QStringLiteral("%1 %2(%3)").arg(stateName, event.getName(), dataText(event.getData()));
}

StateMachineEvent readTrigger(const QList<UnitManagerConnectorDefinitions::ConnectorType>& types,
                              const QString& name)
{
    return StateMachineEvent(name, QVariant::fromValue(types));
}
