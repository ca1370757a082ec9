#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

class ProcessDataValue;

/// What the checks need from the platform beyond the operations that the library uses. One source file per
/// platform implements these functions.
namespace VendorHooks {

/// The marker for values that were not entered.
QVariant noInputMarker();

/// A live value of a unit type, without a value yet.
QSharedPointer<ProcessDataValue> createProcessData(const QString& unitType);

/// Starts the source of documents: from now on, @p object of the device manager's module has one
/// configuration. @return whether it is available.
bool startSource(const QString& object, const QString& configuration, const QString& text);

/// Announces that a configuration of @p object has changed, as the signal "configurationChanged" with its
/// name.
void announceChange(const QString& object, const QString& configuration);

/// Stops the source: it is then as if it had never been started.
void stopSource();

} // namespace VendorHooks
