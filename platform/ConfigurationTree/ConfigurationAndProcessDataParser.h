#pragma once

#include "ConfigurationAndProcessDataBase.h"
#include "ConfigurationTreeExport.h"

#include <QtCore/QString>

/// Makes a tree of nodes from the JSON text of a configuration document.
///
/// The document is one object, the root node. Every node is an object: members whose name begins with "@" are
/// its properties, the others are its children. A member that is a number, a string, a boolean or an array is
/// a leaf node that holds it as its value; a `null` member is a child entry with a null node. Numbers arrive
/// as `double`, arrays as `QVariantList`, objects below a property as `QVariantMap`; a property that is
/// `null` is no property, except that a value of `null` in a node of the number type is the no-input marker.
/// Of two members of one name the later counts.
class CONFIGURATIONTREE_EXPORT ConfigurationAndProcessDataParser
{
public:
    /// Parses @p json, whose kind is named by the file extension @p fileExtension ("json" is the only one).
    ///
    /// Strict JSON (RFC 8259); a byte order mark at the start is skipped.
    ///
    /// @return the root node; null for another extension and for a text that is not one JSON object: empty,
    /// truncated, with anything after the object, with an unpaired surrogate (written out or escaped), with a
    /// number too large for `double` (one too small is 0), or with more than 1024 objects and arrays in each
    /// other. Nothing is logged.
    BaseClassSharedPointer parseFromJson(const QString& json, const QString& fileExtension) const;
};
