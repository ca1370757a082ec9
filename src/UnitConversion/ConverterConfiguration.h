#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"

/// Reads the configured values of a unit's node. Nothing is reported: a value of another kind counts as
/// absent.
namespace ConverterConfiguration {

/// The list under @p key; empty when the value cannot convert to one.
QList<QVariant> readList(const QString& key, const BaseClassSharedPointer& node);

/// The number under @p key; 0.0 when the value cannot convert to one.
double readDouble(const QString& key, const BaseClassSharedPointer& node);

} // namespace ConverterConfiguration
