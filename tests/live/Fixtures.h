#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include "Application.h"
#include "World.h"

/// Modules of the service, by name.
namespace Modules {

const QString deviceManager = QStringLiteral("DeviceManager");
const QString defaultUnitManager = QStringLiteral("DefaultUnitManager");

} // namespace Modules

/// Locations of the configurations.
namespace Sources {

const SourceName none;
const SourceName units{Modules::deviceManager, QStringLiteral("UnitManagerConfiguration"),
                       QStringLiteral("UnitManager/UnitType")};
const SourceName dependencies{Modules::deviceManager, QStringLiteral("DependencyConfiguration"),
                              QStringLiteral("UnitManager/Dependency")};
const SourceName defaultUnits{Modules::deviceManager, QStringLiteral("DefaultUnitConfiguration"),
                              QStringLiteral("UnitManager/DefaultUnit")};
/// Default units of another module.
const SourceName remoteDefaultUnits{Modules::defaultUnitManager, QStringLiteral("DefaultUnitConfiguration"),
                                    QStringLiteral("UnitManager/DefaultUnit")};
/// Other default units of the same module.
const SourceName otherDefaultUnits{Modules::deviceManager, QStringLiteral("OtherConfiguration"),
                                   QStringLiteral("UnitManager/OtherDefaultUnit")};

} // namespace Sources

/// Answers, worlds and settings that many scenarios share.
namespace Fixtures {

/// Pressure in Bar (the base unit) and HectoPascal. A bar has @p hectoPascalPerBar hectopascal, so that
/// conversions show which document is active.
Answer units(int hectoPascalPerBar = 1000);
/// @p key as the only key that depends on "PressureUnit".
Answer dependencies(const QString& key = QStringLiteral("Pressure"));
/// @p unit as the default unit of Pressure.
Answer defaultUnits(const QString& unit = QStringLiteral("HectoPascal"));
/// A text that is not a document.
Answer brokenUnits();
/// The same answer, held until the reply is released.
Answer held(Answer answer);
/// The same answer, just after a change of a configuration has been announced.
Answer afterChange(const SourceName& changed, Answer answer);

/// Only the units, with the answers to their reads.
World unitsWorld(const QList<Answer>& answers);
/// All three sources, with the answers to the reads of each.
World fullWorld(const QList<Answer>& unitAnswers = {units()},
                const QList<Answer>& dependencyAnswers = {dependencies()},
                const QList<Answer>& defaultUnitAnswers = {defaultUnits()});
/// All three sources; each has a different answer when it is read again.
World changingWorld(const QList<Answer>& unitAnswers = {units(1000), units(2000)});

/// The settings of an application without optional sources.
const Settings unitsOnly;
const Settings allSources{Sources::dependencies, Sources::defaultUnits};

} // namespace Fixtures
