#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "Application.h"
#include "Documents.h"
#include "Lines.h"
#include "Situation.h"
#include "Steps.h"
#include "World.h"

/// Worlds and settings of many situations.
namespace Usual {

inline Answer units(int hectoPascalPerBar = 1000)
{
    return Answer::with(Documents::units(hectoPascalPerBar));
}

inline Answer defaultUnits(const char* unit = "HectoPascal")
{
    return Answer::with(Documents::defaultUnits(QLatin1String(unit)));
}

inline Answer dependencies(const char* key = "Pressure")
{
    return Answer::with(Documents::dependencies(QLatin1String(key)));
}

/// The units alone, with the answers to their reads.
inline World unitsWorld(const QList<Answer>& answers)
{
    return {{{Sources::units(), answers}}, {}, true, 60000};
}

/// All three sources, with the answers to the reads of each.
inline World fullWorld(const QList<Answer>& unitAnswers = {units()},
                       const QList<Answer>& dependencyAnswers = {dependencies()},
                       const QList<Answer>& defaultUnitAnswers = {defaultUnits()})
{
    return {{{Sources::units(), unitAnswers},
             {Sources::dependencies(), dependencyAnswers},
             {Sources::defaultUnits(), defaultUnitAnswers}},
            {},
            true,
            60000};
}

/// A world in which every source has something else to say when it is read again.
inline World changingWorld()
{
    return fullWorld({units(1000), units(2000)}, {dependencies("Pressure"), dependencies("Range")},
                     {defaultUnits("HectoPascal"), defaultUnits("Bar")});
}

inline Settings unitsOnly()
{
    return {};
}

inline Settings allSources()
{
    return {Sources::dependencies(), Sources::defaultUnits()};
}

/// What happens after a start with all three sources that was asked whether it changed anything; the unit
/// manager of that start is kept.
inline Situation afterStart(const QString& name, const World& world, const Script& script,
                            const QStringList& record)
{
    const Script beginning{Steps::start(allSources()), Steps::untilIdle(), Steps::changed(), Steps::keep()};
    return {name, world, beginning + script,
            QStringList{Lines::firstStart, QStringLiteral("changed: true")} + record};
}

} // namespace Usual
