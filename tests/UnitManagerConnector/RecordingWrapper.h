#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

#include "StateMachineEvent.h"
#include "UnitManagerConnector/UnitManagerConnectorDefinitions.h"
#include "UnitManagerConnector/UnitManagerStateMachineWrapper.h"

/// A wrapper that writes down which transitions the state under test asks for, and makes none of them.
class RecordingWrapper : public UnitManagerStateMachineWrapper
{
public:
    /// Which of the optional sources have settings.
    enum OptionalSources
    {
        BothConfigured,
        NoDependencyFile,
        NoDefaultUnit,
        NoneConfigured,
        DependencyFileAbsent, ///< its module is not on the bus
        DefaultUnitAbsent     ///< its module is not on the bus
    };

    explicit RecordingWrapper(bool useSignalPolling = true, bool useAsynchronInterface = false,
                              OptionalSources sources = BothConfigured);
    ~RecordingWrapper() override;

    /// Writes the transition down. @return true.
    bool moveToNextState(const QString& nextStateKey, const StateMachineEvent& event) override;

    /// The transitions since the last time, oldest first, as transitionText() gives them.
    QStringList takeTransitions();

    /// Called at the beginning of each transition.
    void setObserver(const std::function<void()>& observer);

    UnitManagerConnectionData& data();

private:
    QStringList m_transitions;
    std::function<void()> m_observer;
};

/// A transition as text: the state's class name, the event's name and, in parentheses, its data.
QString transitionText(const QString& stateName, const StateMachineEvent& event);

/// An event that lists sources.
StateMachineEvent readTrigger(const QList<UnitManagerConnectorDefinitions::ConnectorType>& types,
                              const QString& name = QStringLiteral("ReadTrigger"));
