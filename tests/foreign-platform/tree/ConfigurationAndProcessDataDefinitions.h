#pragma once

#include <QtCore/QString>

/// Property keys and type names, as the documents write them.
class ConfigurationAndProcessDataDefinitions
{
public:
    static const QString& getKeyDataPropertyValue();
    static const QString& getKeyDataPropertyUnitType();
    static const QString& getKeyDataPropertyType();
    static const QString& getKeyDataPropertyDisplayPosition();
    static const QString& getKeyDataPropertyMeasurementRangeAttributes();

    static const QString& getKeyDataTypeTreeNode();
    static const QString& getKeyDataTypeSelection();
    static const QString& getKeyDataTypeNumber();
};
