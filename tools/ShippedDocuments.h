#pragma once

#include <QtCore/QString>

/// The documents that are installed with the program.
namespace ShippedDocuments {

/// The path of a document; it is fixed relative to the program's folder.
QString path(const QString& name);

} // namespace ShippedDocuments
