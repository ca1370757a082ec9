#include "ConfigurationAndProcessDataTools.h"

#include "ConfigurationAndProcessDataDefinitions.h"

namespace {

/// What measuring instruments commonly send for "not a number".
const double marker = 9.91e37;

} // namespace

QVariant ConfigurationAndProcessDataTools::extractConfigValue(const QString& key,
                                                              const BaseClassSharedPointer& node)
{
    const BaseClassSharedPointer child = node ? node->getChild(key) : BaseClassSharedPointer();
    return child ? child->getProperty(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyValue())
                 : QVariant();
}

int ConfigurationAndProcessDataTools::setConfigValueWithStatus(const QString& key,
                                                               const BaseClassSharedPointer& node,
                                                               const QVariant& value)
{
    const BaseClassSharedPointer child = node ? node->getChild(key) : BaseClassSharedPointer();
    if (!child)
        return 2;
    return child->setProperty(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyValue(), value);
}

bool ConfigurationAndProcessDataTools::isVariantNumber(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

QVariant ConfigurationAndProcessDataTools::getNoInputValueIndicator()
{
    return marker;
}

bool ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(const QVariant& value)
{
    if (value.userType() == QMetaType::Float)
        return value.toFloat() == static_cast<float>(marker);
    return value.userType() == QMetaType::Double && value.toDouble() == marker;
}
