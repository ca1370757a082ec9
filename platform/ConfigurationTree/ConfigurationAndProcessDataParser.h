#pragma once

#include <QtCore/QString>

#include "ConfigurationAndProcessDataBase.h"
#include "ConfigurationTreeExport.h"

/// Creates a tree of nodes from the JSON text of a configuration document.
///
/// The document is one object, the root node. Every node is an object: members whose names begin with "@" are
/// its properties, the others are its children. Members of the root whose names begin with "$" are notes for
/// editors and are ignored. A member that is a number, a string, a boolean or an array is
/// a leaf node with that value; a `null` member is a child entry with a null node. Numbers are stored as
/// `double`, arrays as `QVariantList`, objects below a property as `QVariantMap`. A property that is `null`
/// is ignored, except that the value `null` in a node of the number type is the no-input marker. If two
/// members have the same name, the later one is used.
class CONFIGURATIONTREE_EXPORT ConfigurationAndProcessDataParser
{
public:
    /// Parses @p json. The file extension @p fileExtension gives the format; "json" is the only one
    /// supported.
    ///
    /// Strict JSON (RFC 8259); a byte order mark at the start is skipped.
    ///
    /// @return the root node; null for another extension and for a text that is not exactly one JSON object:
    /// empty, truncated, with text after the object, with an unpaired surrogate (literal or escaped), with a
    /// number too large for `double` (one too small becomes 0), or with more than 1024 nested objects and
    /// arrays. Nothing is logged.
    BaseClassSharedPointer parseFromJson(const QString& json, const QString& fileExtension) const;
};
