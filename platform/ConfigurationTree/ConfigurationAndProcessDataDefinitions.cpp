#include "ConfigurationAndProcessDataDefinitions.h"

namespace {

// Not function-local: every access to a node reads these several times.
const QString keyDataPropertyValue = QStringLiteral("@value");
const QString keyDataPropertyUnitType = QStringLiteral("@unitType");
const QString keyDataPropertyType = QStringLiteral("@type");
const QString keyDataPropertyDisplayPosition = QStringLiteral("@displayPosition");
const QString keyDataPropertyMeasurementRangeAttributes = QStringLiteral("@measurementRangeAttributes");
const QString keyDataPropertyReadOnly = QStringLiteral("@readOnly");
const QString keyDataTypeTreeNode = QStringLiteral("TreeNode");
const QString keyDataTypeSelection = QStringLiteral("Selection");
const QString keyDataTypeNumber = QStringLiteral("Number");
const QString keyDataTypeText = QStringLiteral("Text");
const QString keyDataTypeBoolean = QStringLiteral("Boolean");
const QString keyDataTypeArray = QStringLiteral("Array");
const QString keyDataTypeTranslateableText = QStringLiteral("TranslateableText");

} // namespace

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataPropertyValue()
{
    return keyDataPropertyValue;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataPropertyUnitType()
{
    return keyDataPropertyUnitType;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataPropertyType()
{
    return keyDataPropertyType;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataPropertyDisplayPosition()
{
    return keyDataPropertyDisplayPosition;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataPropertyMeasurementRangeAttributes()
{
    return keyDataPropertyMeasurementRangeAttributes;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataPropertyReadOnly()
{
    return keyDataPropertyReadOnly;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataTypeTreeNode()
{
    return keyDataTypeTreeNode;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataTypeSelection()
{
    return keyDataTypeSelection;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataTypeNumber()
{
    return keyDataTypeNumber;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataTypeText()
{
    return keyDataTypeText;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataTypeBoolean()
{
    return keyDataTypeBoolean;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataTypeArray()
{
    return keyDataTypeArray;
}

const QString& ConfigurationAndProcessDataDefinitions::getKeyDataTypeTranslateableText()
{
    return keyDataTypeTranslateableText;
}
