#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QString>

class DependencyWalker;
class UnitManagerDevice;
class UnitManagerWrapper;

/// The state of the library's objects as one line of text each.
namespace Conversion {

/// The conversion of two bar: whether the unit manager is usable, the value in HectoPascal, and the value and
/// the label in the default unit. For example "usable: 2000 HectoPascal, 2 bar by default".
QString by(UnitManagerWrapper& wrapper);

/// The same for a unit manager. If @p units is null or invalid, nothing is converted and there is no label.
QString by(const QSharedPointer<const UnitManagerDevice>& units);

/// The keys that depend on "PressureUnit"; "none" when @p walker is null or finds none.
QString dependentsBy(const QSharedPointer<DependencyWalker>& walker);

} // namespace Conversion
