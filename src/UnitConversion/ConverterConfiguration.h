#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"

/// Reads the configured values of a unit's node. Nothing is logged: a value of the wrong type counts as
/// missing.
namespace ConverterConfiguration {

/// The list under @p key; empty when the value cannot be converted to a list.
QList<QVariant> readList(const QString& key, const BaseClassSharedPointer& node);

/// The number under @p key; 0.0 when the value cannot be converted to a number.
double readDouble(const QString& key, const BaseClassSharedPointer& node);

} // namespace ConverterConfiguration
