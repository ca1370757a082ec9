#include "ConfigurationAndProcessDataDefinitions.h"

using Definitions = ConfigurationAndProcessDataDefinitions;

const QString& Definitions::getKeyDataPropertyValue()
{
    static const QString key("@value");
    return key;
}

const QString& Definitions::getKeyDataPropertyUnitType()
{
    static const QString key("@unitType");
    return key;
}

const QString& Definitions::getKeyDataPropertyType()
{
    static const QString key("@type");
    return key;
}

const QString& Definitions::getKeyDataPropertyDisplayPosition()
{
    static const QString key("@displayPosition");
    return key;
}

const QString& Definitions::getKeyDataPropertyMeasurementRangeAttributes()
{
    static const QString key("@measurementRangeAttributes");
    return key;
}

const QString& Definitions::getKeyDataTypeTreeNode()
{
    static const QString name("TreeNode");
    return name;
}

const QString& Definitions::getKeyDataTypeSelection()
{
    static const QString name("Selection");
    return name;
}

const QString& Definitions::getKeyDataTypeNumber()
{
    static const QString name("Number");
    return name;
}
