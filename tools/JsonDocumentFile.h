#pragma once

#include <QtCore/QString>

#include "Result.h"

/// Reads configuration documents and says precisely what is wrong with one.
namespace JsonDocumentFile {

/// A document that is one JSON object, or empty.
struct Document
{
    /// The document's text, without byte order mark.
    QString text;
    /// Whether there is anything in it.
    bool hasContent = false;
};

/// Reads the document @p path.
///
/// @return a failure that names the file for one that cannot be read and for a document that is no object;
/// with line and column (characters, from 1) for one that is not UTF-8 or not JSON. An empty file is a
/// document without content.
Result<Document> read(const QString& path);

} // namespace JsonDocumentFile
