#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// The settings list of a configuration source, and helpers for maps with one entry per source.
namespace ConnectorSettings {

/// Index of each entry in a settings list.
enum Entry
{
    Service = 0,       ///< module name of the configuration-file service
    Object = 1,        ///< object name
    Configuration = 2, ///< name of the requested configuration
    Kind = 3,          ///< which read call is used
    Requirement = 4,   ///< mandatory or optional
    EntryCount = 5
};

/// Whether service, object and configuration are given.
inline bool areUsable(const QStringList& settings)
{
    return !settings.value(Service).isEmpty() && !settings.value(Object).isEmpty() &&
           !settings.value(Configuration).isEmpty();
}

/// Empties every value of @p map and keeps its keys.
template <typename Key, typename Value>
void clearValues(QMap<Key, Value>& map)
{
    for (Value& value : map)
        value = Value();
}

} // namespace ConnectorSettings
