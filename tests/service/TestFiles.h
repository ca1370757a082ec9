#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Files of the test's own, the ways in which editors leave them, and documents to fill them with.
namespace TestFiles {

/// Writes into the file itself, which is there for the moment half written. @return whether it was written.
bool write(const QString& path, const QByteArray& bytes);

/// Puts another file in the place of the one of that name. @return whether that was done.
bool replace(const QString& path, const QByteArray& bytes);

/// Makes or changes a symbolic link in one step. @return whether that was done.
bool link(const QString& target, const QString& path);

/// A good unit document; the label makes the difference between two of them.
QByteArray units(const QString& label);

/// A good default-unit document.
QByteArray defaultUnits(const QString& unit);

/// A good dependency document.
QByteArray dependencies(const QString& dependent);

} // namespace TestFiles
