#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

#include "StateMachineEvent.h"
#include "UnitManagerConnector/UnitManagerConnectorDefinitions.h"
#include "UnitManagerConnector/UnitManagerStateMachineWrapper.h"

/// A wrapper that records the transitions that the state under test requests, and makes none of them.
class RecordingWrapper : public UnitManagerStateMachineWrapper
{
public:
    /// The optional sources that have settings.
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

    /// Records the transition. @return true.
    bool moveToNextState(const QString& nextStateKey, const StateMachineEvent& event) override;

    /// The transitions since the last takeTransitions(), oldest first; see transitionText().
    QStringList takeTransitions();

    /// Sets a function that is called at the beginning of each transition.
    void setObserver(const std::function<void()>& observer);

    UnitManagerConnectionData& data();

    /// Opens the connectors of all sources. @return whether all are connected.
    bool openAll();

private:
    QStringList m_transitions;
    std::function<void()> m_observer;
};

/// A transition as text: the state's class name, the event's name and, in parentheses, its data.
QString transitionText(const QString& stateName, const StateMachineEvent& event);

/// An event that lists sources.
StateMachineEvent readTrigger(const QList<UnitManagerConnectorDefinitions::ConnectorType>& types,
                              const QString& name = QStringLiteral("ReadTrigger"));
