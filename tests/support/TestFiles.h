#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Files of the tests, written in the same ways as by editors.
namespace TestFiles {

/// Overwrites the file in place, so that it is incomplete for a moment. @return whether it was written.
bool write(const QString& path, const QByteArray& bytes);

/// Replaces the file by a new one of the same name. @return whether that succeeded.
bool replace(const QString& path, const QByteArray& bytes);

/// Creates or changes a symbolic link atomically. @return whether that succeeded.
bool link(const QString& target, const QString& path);

/// Sets the permissions of a file or directory, such as 0755. @return whether that succeeded.
bool setMode(const QString& path, unsigned int mode);

} // namespace TestFiles
