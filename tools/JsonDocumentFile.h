#pragma once

#include <QtCore/QString>

#include "Result.h"

/// Reads configuration documents and reports their faults precisely.
namespace JsonDocumentFile {

/// A document: one JSON object, or an empty text.
struct Document
{
    /// The document's text, without byte order mark.
    QString text;
    /// Whether the document is not empty.
    bool hasContent = false;
};

/// Reads the document at @p path.
///
/// @return a failure that names the file if it cannot be read or its content is not an object; with line and
/// column (characters, from 1) if it is not UTF-8 or not JSON. An empty file gives a document without
/// content.
Result<Document> read(const QString& path);

} // namespace JsonDocumentFile
