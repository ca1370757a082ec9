#include "Array2dDataTypeWrapper.h"
#include "ConfigurationAndProcessDataBase.h"
#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataParser.h"
#include "ConfigurationAndProcessDataTools.h"
#include "ConfigurationDataAndProcessDescriptionAccess.h"

using Definitions = ConfigurationAndProcessDataDefinitions;
using Tools = ConfigurationAndProcessDataTools;

ConfigurationAndProcessDataBase::~ConfigurationAndProcessDataBase() = default;

const QHash<QString, BaseClassSharedPointer>& ConfigurationAndProcessDataBase::getChildMap() const
{
    return childMap();
}

bool ConfigurationAndProcessDataBase::isNumberType() const
{
    return false;
}

bool ConfigurationAndProcessDataBase::isNumberNoInput() const
{
    return false;
}

const QHash<QString, BaseClassSharedPointer>& ConfigurationAndProcessDataBase::childMap() const
{
    static const QHash<QString, BaseClassSharedPointer> noChildren;
    return noChildren;
}

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

BaseClassSharedPointer
ConfigurationAndProcessDataParser::parseFromJson(const QString& /*json*/,
                                                 const QString& /*fileExtension*/) const
{
    return {};
}

QVariant Tools::extractConfigValue(const QString& /*key*/, const BaseClassSharedPointer& /*node*/)
{
    return {};
}

int Tools::setConfigValueWithStatus(const QString& /*key*/, const BaseClassSharedPointer& /*node*/,
                                    const QVariant& /*value*/)
{
    return 2;
}

bool Tools::isVariantNumber(const QVariant& /*value*/)
{
    return false;
}

bool Tools::isNoInputValueIndicatorSet(const QVariant& /*value*/)
{
    return false;
}

QString ConfigurationDataAndProcessDescriptionAccess::getConfiguration(const QFileInfo& /*file*/) const
{
    return {};
}

Array2dDataTypeWrapper::Array2dDataTypeWrapper(const QList<QVariant>& /*data*/,
                                               const QList<QVariant>& /*dimensions*/)
{}

Array2dDataTypeWrapper::~Array2dDataTypeWrapper() = default;

QVector<unsigned int> Array2dDataTypeWrapper::getDimensions() const
{
    return getArrayType();
}

QVector<unsigned int> Array2dDataTypeWrapper::getArrayType() const
{
    return {0, 0};
}

void Array2dDataTypeWrapper::reset(const QList<QVariant>& /*data*/, const QList<QVariant>& /*dimensions*/) {}

QStringList Array2dDataTypeWrapper::getColumnUnitTypes() const
{
    return {};
}

QList<QVariant> Array2dDataTypeWrapper::getRowValues(unsigned int /*row*/) const
{
    return {};
}

QList<QVariant> Array2dDataTypeWrapper::getRowValues(unsigned int /*row*/, unsigned int /*firstColumn*/,
                                                     unsigned int /*columnCount*/) const
{
    return {};
}

QList<QVariant> Array2dDataTypeWrapper::getColumnValues(unsigned int /*column*/) const
{
    return {};
}

bool Array2dDataTypeWrapper::setRowValues(const QList<QVariant>& /*values*/, unsigned int /*row*/)
{
    return false;
}

bool Array2dDataTypeWrapper::setRowValues(const QList<QVariant>& /*values*/, unsigned int /*row*/,
                                          unsigned int /*firstColumn*/, unsigned int /*columnCount*/)
{
    return false;
}
