#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Reads document files.
namespace DocumentFile {

/// The bytes of a file, or the reason why they could not be read.
struct Content
{
    QByteArray bytes;
    /// Empty if the file was read.
    QString problem;
};

bool operator==(const Content& left, const Content& right);

/// Reads at most @p maximumSize + 1 bytes of a file; the extra byte reveals a file that is too large.
///
/// @return a problem also for anything but a regular file, such as a pipe, because reading could block.
Content read(const QString& path, qint64 maximumSize);

} // namespace DocumentFile
