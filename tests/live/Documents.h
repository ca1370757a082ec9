#pragma once

#include <QtCore/QString>

#include "World.h"

/// The configurations that the situations are made of.
namespace Documents {

/// Pressure in Bar (the base unit) and HectoPascal, of which @p hectoPascalPerBar make a bar: what converts
/// tells which document is in force.
QString units(int hectoPascalPerBar);

/// @p unit as the default unit of Pressure.
QString defaultUnits(const QString& unit);

/// @p key as the only key that depends on "PressureUnit".
QString dependencies(const QString& key);

/// A text that is no document.
QString broken();

} // namespace Documents

/// Where the configurations stand.
namespace Sources {

SourceName none();
SourceName units();
SourceName dependencies();
SourceName defaultUnits();
/// Default units of a module of their own.
SourceName remoteDefaultUnits();
/// A second configuration of default units.
SourceName otherDefaultUnits();

} // namespace Sources
