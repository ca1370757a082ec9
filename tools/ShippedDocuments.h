#pragma once

#include <QtCore/QString>

/// The documents that the program uses unless others are named: those of the product, and where it has none
/// of its own, those that are installed with the program.
namespace ShippedDocuments {

/// The path of a document; the folders are fixed relative to the program's folder.
QString path(const QString& name);

} // namespace ShippedDocuments
