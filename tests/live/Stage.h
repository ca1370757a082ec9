#pragma once

#include <QtCore/QList>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtDBus/QDBusConnection>

#include <memory>
#include <vector>

#include "Application.h"
#include "Journal.h"
#include "Mode.h"
#include "ScriptedService.h"
#include "World.h"

/// Where a situation is played: the world on the bus, the applications, and the record of what they show. All
/// waiting ends after a minute.
class Stage
{
public:
    /// @param address of the bus; the applications find it through the environment
    Stage(const Mode& mode, const QString& address, const World& world);

    /// Builds another application, which is the one that acts from now on.
    void startApplication(const Settings& settings);
    /// Lets the application that was started as number @p index, from 0, act from now on.
    void switchTo(int index);
    void init(const Settings& settings);
    void reset();
    /// Destroys the application that acts.
    void destroy();

    /// One check of the application; recorded with what it showed and answered.
    void check();
    /// Checks, recorded as one, with how many of them idled.
    void check(int count);
    /// Checks until one idles.
    void checkUntilIdle();
    /// Checks until a change has been announced, which takes that answer.
    void checkUntilChanged();
    /// Checks, if necessary, until the machine has entered a state since the last step recorded.
    void checkUntilEntered(const QString& state);
    /// Checks until two in a row idled and entered no state.
    void checkUntilSettled();

    /// Recorded answers of the application.
    void askChanged();
    void convert();
    void askDependents();
    /// Keeps the unit manager in use.
    void keepUnits();
    /// What the unit managers kept so far convert.
    void convertByKept();

    /// The service's deeds. When they return, the application has received what came of them.
    void startModule(const QString& module);
    void stopModule(const QString& module);
    void announce(const SourceName& name, const QVariantList& arguments, int count = 1);
    void release(const SourceName& name);
    /// Lets the application give up its calls after a time.
    static void setCallTimeout(int milliseconds);

    /// Everything that was recorded, then the reads that the service saw, then the messages.
    QStringList takeRecord();

private:
    Application& application();
    bool pumpAndCheck();
    void deliver();
    void synchronize();
    QString stepName(const QString& step) const;

    const Mode m_mode;
    const bool m_hasBus;
    Journal m_journal;
    ScriptedService m_service;
    std::vector<std::unique_ptr<Application>> m_applications;
    int m_acting = -1;
    QList<QSharedPointer<const UnitManagerDevice>> m_kept;
};
