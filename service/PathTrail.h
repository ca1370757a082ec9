#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

/// Finds the places that determine what a path leads to.
namespace PathTrail {

/// A file or directory: its path without symbolic links, its identity and permissions.
struct Place
{
    QString path;
    quint64 device = 0;
    quint64 number = 0;
    quint32 permissions = 0;
};

bool operator==(const Place& left, const Place& right);

/// Every directory that is visited when @p path is opened, root first, and finally the file; symbolic links
/// are followed. What the path leads to changes only if one of these places changes. If the path leads to
/// nothing, the trail ends at the last place that exists.
///
/// @param path absolute
QVector<Place> of(const QString& path);

} // namespace PathTrail
