#pragma once

#include <QtCore/QString>

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
};
