#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// The file that a document is read from.
namespace DocumentFile {

/// The bytes of a file, or why they could not be read.
struct Content
{
    QByteArray bytes;
    /// Empty when the file was read.
    QString problem;
};

bool operator==(const Content& left, const Content& right);

/// Reads a file, but never more than @p maximumSize bytes and one: that one tells a file that is larger.
///
/// @return a problem also for anything that is no regular file, such as a pipe, on which reading could block.
Content read(const QString& path, qint64 maximumSize);

} // namespace DocumentFile
