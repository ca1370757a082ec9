#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Documents for the service to serve.
namespace ServiceDocuments {

/// A valid unit document; documents with different labels differ.
QByteArray units(const QString& label);

/// A valid default-unit document.
QByteArray defaultUnits(const QString& note);

/// A valid dependency document.
QByteArray dependencies(const QString& dependent);

} // namespace ServiceDocuments
