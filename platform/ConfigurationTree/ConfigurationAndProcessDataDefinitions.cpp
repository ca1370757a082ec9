#include "ConfigurationAndProcessDataDefinitions.h"

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataPropertyValue()
{
    static const QString key = QStringLiteral("@value");
    return key;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataPropertyUnitType()
{
    static const QString key = QStringLiteral("@unitType");
    return key;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataPropertyType()
{
    static const QString key = QStringLiteral("@type");
    return key;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataPropertyDisplayPosition()
{
    static const QString key = QStringLiteral("@displayPosition");
    return key;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataPropertyMeasurementRangeAttributes()
{
    static const QString key = QStringLiteral("@measurementRangeAttributes");
    return key;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataPropertyReadOnly()
{
    static const QString key = QStringLiteral("@readOnly");
    return key;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataTypeTreeNode()
{
    static const QString key = QStringLiteral("TreeNode");
    return key;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataTypeSelection()
{
    static const QString key = QStringLiteral("Selection");
    return key;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataTypeNumber()
{
    static const QString key = QStringLiteral("Number");
    return key;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataTypeText()
{
    static const QString key = QStringLiteral("Text");
    return key;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataTypeBoolean()
{
    static const QString key = QStringLiteral("Boolean");
    return key;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataTypeArray()
{
    static const QString key = QStringLiteral("Array");
    return key;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataTypeTranslateableText()
{
    static const QString key = QStringLiteral("TranslateableText");
    return key;
}
