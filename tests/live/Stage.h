#pragma once

#include <QtCore/QList>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

#include "Application.h"
#include "Fixtures.h"
#include "Mode.h"
#include "Recorder.h"
#include "ScriptedService.h"
#include "World.h"

/// Thrown by the first operation of a stage whose expectation is not met; ends the scenario.
struct ScenarioFailure
{
    QString step;
    /// All lines in order: "- " before an expected line that was not seen, "+ " before one that was seen
    /// instead, two blanks before a line that is as expected.
    QStringList difference;
};

/// Runs a scenario: the service on the bus, the applications, and the record of what they do. Operations
/// throw ScenarioFailure. All waiting ends after a minute.
///
/// Each check compares the events since the previous comparison with the expected ones: states entered and,
/// at the connector level, signals. At the other levels, which have no signals, expected signals are left
/// out.
class Stage
{
public:
    /// @param address of the bus; the applications find it through the environment
    Stage(const Mode& stageMode, const QString& address);

    const Mode mode;

    /// Lets the applications look for a bus that does not exist.
    void withoutBus();
    /// After each of these operations, the application has received the resulting messages.
    void startModule(const QString& module);
    void stopModule(const QString& module);
    /// Announces a change of a configuration under its own name.
    void announce(const SourceName& name, int count = 1);
    /// Announces a change on the object of a configuration, with any arguments.
    void announceWith(const SourceName& name, const QVariantList& arguments, int count = 1);
    /// Sends the held replies of a configuration.
    void release(const SourceName& name);

    /// Puts a world on the bus, except for one module, and starts an application.
    void start(const Settings& settings, const World& world, const QString& absentModule = QString());
    /// Puts a world on the bus, except for one module, and starts an application with all sources. Returns
    /// when the library is idle, its change has been queried, and its unit manager is kept.
    void startAllSources(const World& world, const QString& absentModule = QString());
    /// Starts an application, which becomes the active one.
    void start(const Settings& settings);
    /// Makes the application that was started as number @p index, from 0, the active one.
    void switchTo(std::size_t index);
    /// The active application.
    Application& application();

    /// @p count checks after which the library is idle.
    void checkIdle(const QStringList& events, int count = 1);
    /// @p count checks after which the library is not idle.
    void checkNotIdle(const QStringList& events, int count = 1);
    /// Checks until the library is idle.
    void checkUntilIdle(const QStringList& events);
    /// Checks until a change has been detected; hasChanged() is then false again.
    void checkUntilChanged(const QStringList& events);
    /// Checks, if necessary, until the last one of the expected states has been entered.
    void checkUntilEntered(const QStringList& events);
    /// Checks until two checks in a row are idle and enter no state.
    void checkUntilSettled(const QStringList& events);
    /// Compares the events since the last check.
    void expectEvents(const QStringList& events);

    /// Queries whether the configuration has changed, except at the machine level.
    void expectChanged(bool expected);
    /// Compares the conversion of two bar, see conversionBy().
    void expectConversion(const QString& conversion);
    /// Compares the keys that depend on "PressureUnit", except at the wrapper level.
    void expectDependents(const QString& keys);
    /// Keeps the current unit manager.
    void keepUnits();
    /// Compares the conversions by the unit managers kept so far.
    void expectKept(const QStringList& conversions);

    /// Checks until the library is idle. Then the conversion is as expected, and the configuration changed.
    void expectStart(const QStringList& events, const QString& conversion);
    /// Checks until an announced change has been read and detected. Then the conversion is as expected.
    void expectReload(const QString& conversion);

    /// For an application in the changing world, after an announcement about the units: the library settles,
    /// and has reloaded the units only if the announcement is @p accepted. Finishes the scenario.
    void finishAnnouncement(bool accepted);
    /// Destroys the applications and compares all reads that the service received and all messages. The last
    /// operation of every scenario.
    void finish(const QStringList& reads, const QStringList& messages = {});
    bool isFinished() const;

private:
    bool pumpAndCheck();
    void checkCount(const QString& condition, int count, const QStringList& events, int idleCount);
    template <typename Condition>
    void checkUntil(const QString& condition, const QStringList& events, Condition isMet);
    void synchronize();
    QString nextStep(const QString& operation);
    void compareEvents(const QString& step, const QStringList& expected);

    bool m_isFinished = false;
    int m_steps = 0;
    Recorder m_recorder;
    ScriptedService m_service;
    std::vector<Application> m_applications;
    std::size_t m_active = 0;
    QList<QSharedPointer<const UnitManagerDevice>> m_kept;
};
