#include "ConfigurationAndProcessDataBase.h"

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"

using Definitions = ConfigurationAndProcessDataDefinitions;
using Tools = ConfigurationAndProcessDataTools;

ConfigurationAndProcessDataBase::~ConfigurationAndProcessDataBase() = default;

bool ConfigurationAndProcessDataBase::isNumberType() const
{
    return getProperty(Definitions::getKeyDataPropertyType()).toString() ==
               Definitions::getKeyDataTypeNumber() &&
           Tools::isVariantNumber(getProperty(Definitions::getKeyDataPropertyValue()));
}

bool ConfigurationAndProcessDataBase::isNumberNoInput() const
{
    return isNumberType() &&
           Tools::isNoInputValueIndicatorSet(getProperty(Definitions::getKeyDataPropertyValue()));
}

const QHash<QString, BaseClassSharedPointer>& ConfigurationAndProcessDataBase::childMap() const
{
    static const QHash<QString, BaseClassSharedPointer> noChildren;
    return noChildren;
}
