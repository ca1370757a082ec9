#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QString>

class DependencyWalker;
class UnitManagerDevice;
class UnitManagerWrapper;

/// What the library's objects say, in a line of text each.
namespace Conversion {

/// What is said of two bar: whether there is a usable unit manager, the value in HectoPascal, the value and
/// the label in the default unit.
QString by(UnitManagerWrapper& wrapper);

/// The same; null and invalid @p units convert nothing and know no label
QString by(const QSharedPointer<const UnitManagerDevice>& units);

/// The keys that depend on "PressureUnit" by the walker; "none" when that is null or knows none.
QString dependentsBy(const QSharedPointer<DependencyWalker>& walker);

} // namespace Conversion
