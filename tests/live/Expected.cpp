#include "Expected.h"

#include "Recorder.h"

QStringList Expected::construction(const Mode& mode)
{
    // The constructor enters the initial state, its init() does so again, and the application's init() once
    // more. With deferred entry only the last selection counts.
    if (mode.isDeferred)
        return {State::initial};
    return {State::initial, State::initial, State::initial};
}

QStringList Expected::read(const Mode& mode)
{
    if (mode.isBlocking)
        return {State::readBlocking};
    return {State::readAsynchronous, State::waitForReply};
}

QStringList Expected::idleChecks(int count)
{
    QStringList events;
    for (int i = 0; i < count; ++i)
        events.append(Signal::initialized);
    return events;
}

QStringList Expected::changeDetected(const Mode& mode)
{
    // With deferred entry the library is still idle after this check.
    return idleChecks(mode.isDeferred ? 1 : 0);
}

QStringList Expected::firstStart(const Mode& mode)
{
    return construction(mode) + read(mode) + update;
}

QStringList Expected::restart(const Mode& mode)
{
    return QStringList{State::initial} + read(mode) + update;
}

QStringList Expected::failedStart(const Mode& mode)
{
    return construction(mode) + read(mode) + QStringList{State::error};
}

QStringList Expected::unloadableStart(const Mode& mode)
{
    return construction(mode) + read(mode) +
           QStringList{State::update, Signal::configurationChanged, State::error};
}

QStringList Expected::reload(const Mode& mode)
{
    return changeDetected(mode) + read(mode) + update;
}

QStringList Expected::failedReload(const Mode& mode)
{
    return changeDetected(mode) + read(mode) + QStringList{State::error};
}

QString Expected::inHectoPascal(int hectoPascalPerBar)
{
    return QStringLiteral("usable: %1 HectoPascal, %1 hPa by default").arg(2 * hectoPascalPerBar);
}

QString Expected::inBar(int hectoPascalPerBar)
{
    return QStringLiteral("usable: %1 HectoPascal, 2 bar by default").arg(2 * hectoPascalPerBar);
}

QStringList Expected::onlyIf(bool condition, const QString& line)
{
    return condition ? QStringList{line} : QStringList();
}

QString Expected::perAttempt(const Mode& mode, int checks, const QString& message)
{
    // A wrapper to which changes are delivered has made a check when it was constructed.
    const int allChecks = mode.isWrapper() && !mode.isPolled ? checks + 1 : checks;
    const int attemptsPerCheck = mode.isBlocking ? 100 : 1;
    return Recorder::repeated(allChecks * attemptsPerCheck, message);
}
