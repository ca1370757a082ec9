#include "ConfigurationAndProcessDataBase.h"

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"
#include "PropertyList.h"

namespace {

using Definitions = ConfigurationAndProcessDataDefinitions;

bool isOfNumberType(const ConfigurationAndProcessDataBase& node)
{
    const QVariant type = node.getProperty(Definitions::getKeyDataPropertyType());
    // Compared in place: a copy costs more than the comparison.
    return type.userType() == QMetaType::QString &&
           PropertyList::isSameKey(*static_cast<const QString*>(type.constData()),
                                   Definitions::getKeyDataTypeNumber());
}

} // namespace

ConfigurationAndProcessDataBase::~ConfigurationAndProcessDataBase() = default;

const QHash<QString, BaseClassSharedPointer>& ConfigurationAndProcessDataBase::getChildMap() const
{
    return childMap();
}

bool ConfigurationAndProcessDataBase::isNumberType() const
{
    return isNumber();
}

bool ConfigurationAndProcessDataBase::isNumber() const
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
