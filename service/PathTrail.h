#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

/// The places that decide what a path leads to.
namespace PathTrail {

/// A file or directory: its path, which goes through no symbolic link, and what is there.
struct Place
{
    QString path;
    quint64 device = 0;
    quint64 number = 0;
    quint32 permissions = 0;
};

bool operator==(const Place& left, const Place& right);

/// Every directory that is gone through when @p path is opened, the root first, and the file at its end;
/// symbolic links are followed. A change in what the path leads to is a change in one of these places. The
/// trail of a path that leads to nothing ends where it breaks off.
///
/// @param path absolute
QVector<Place> of(const QString& path);

} // namespace PathTrail
