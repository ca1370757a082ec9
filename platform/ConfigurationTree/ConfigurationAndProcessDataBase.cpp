#include "ConfigurationAndProcessDataBase.h"

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"

namespace {

using Definitions = ConfigurationAndProcessDataDefinitions;

bool isOfNumberType(const ConfigurationAndProcessDataBase& node)
{
    return node.getProperty(Definitions::getKeyDataPropertyType()).toString() ==
           Definitions::getKeyDataTypeNumber();
}

} // namespace

ConfigurationAndProcessDataBase::~ConfigurationAndProcessDataBase() = default;

const QHash<QString, BaseClassSharedPointer>& ConfigurationAndProcessDataBase::getChildMap() const
{
    return childMap();
}

bool ConfigurationAndProcessDataBase::isNumberType() const
{
    return ConfigurationAndProcessDataTools::isVariantNumber(
               getProperty(Definitions::getKeyDataPropertyValue())) &&
           isOfNumberType(*this);
}

bool ConfigurationAndProcessDataBase::isNumberNoInput() const
{
    return ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(
               getProperty(Definitions::getKeyDataPropertyValue())) &&
           isOfNumberType(*this);
}

const QHash<QString, BaseClassSharedPointer>& ConfigurationAndProcessDataBase::childMap() const
{
    static const QHash<QString, BaseClassSharedPointer> noChildren;
    return noChildren;
}
