#pragma once

#include <QtCore/QString>

#include "ConfigurationTreeExport.h"

/// The property keys and the names of the data types of configuration-tree nodes. Every getter returns the
/// same object on each call.
class CONFIGURATIONTREE_EXPORT ConfigurationAndProcessDataDefinitions
{
public:
    ConfigurationAndProcessDataDefinitions() = delete;

    /// The node's value.
    static const QString& getKeyDataPropertyValue();
    /// The unit type of the value.
    static const QString& getKeyDataPropertyUnitType();
    /// The node's data type. If a document omits it, it is derived from the value.
    static const QString& getKeyDataPropertyType();
    /// The position of a unit among the units of its type; 0 is the base unit.
    static const QString& getKeyDataPropertyDisplayPosition();
    /// The measurement-range attributes of a value.
    static const QString& getKeyDataPropertyMeasurementRangeAttributes();
    /// Whether the node refuses every write; a boolean.
    static const QString& getKeyDataPropertyReadOnly();

    /// A node without a value.
    static const QString& getKeyDataTypeTreeNode();
    /// A text selected from several.
    static const QString& getKeyDataTypeSelection();
    /// A number, held as `double`.
    static const QString& getKeyDataTypeNumber();
    /// A text.
    static const QString& getKeyDataTypeText();
    /// A truth value.
    static const QString& getKeyDataTypeBoolean();
    /// A list of values, or a list of rows of them.
    static const QString& getKeyDataTypeArray();
    /// A text per language, or one text for every language.
    static const QString& getKeyDataTypeTranslateableText();
};
