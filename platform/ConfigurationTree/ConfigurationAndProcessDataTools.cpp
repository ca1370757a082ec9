#include "ConfigurationAndProcessDataTools.h"

#include <cmath>
#include <limits>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "WriteStatus.h"

namespace {

using Definitions = ConfigurationAndProcessDataDefinitions;

BaseClassSharedPointer childOf(const BaseClassSharedPointer& node, const QString& key)
{
    return node ? node->getChild(key) : BaseClassSharedPointer();
}

bool isFloatingType(int type)
{
    return type == QMetaType::Double || type == QMetaType::Float;
}

bool isIntegerType(int type)
{
    switch (type) {
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

} // namespace

QVariant ConfigurationAndProcessDataTools::extractConfigValue(const QString& key,
                                                              const BaseClassSharedPointer& node)
{
    const BaseClassSharedPointer child = childOf(node, key);
    return child ? child->getProperty(Definitions::getKeyDataPropertyValue()) : QVariant();
}

int ConfigurationAndProcessDataTools::setConfigValueWithStatus(const QString& key,
                                                               const BaseClassSharedPointer& node,
                                                               const QVariant& value)
{
    const BaseClassSharedPointer child = childOf(node, key);
    return child ? child->setProperty(Definitions::getKeyDataPropertyValue(), value) : WriteStatus::refused;
}

bool ConfigurationAndProcessDataTools::isVariantNumber(const QVariant& value)
{
    const int type = value.userType();
    return isFloatingType(type) || isIntegerType(type);
}

QVariant ConfigurationAndProcessDataTools::getNoInputValueIndicator()
{
    return std::numeric_limits<double>::quiet_NaN();
}

bool ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(const QVariant& value)
{
    const int type = value.userType();
    if (type == QMetaType::Double)
        return std::isnan(*static_cast<const double*>(value.constData()));
    return type == QMetaType::Float && std::isnan(value.toFloat());
}

ConfigurationAndProcessDataTools::NoInputTest ConfigurationAndProcessDataTools::getNanOnlyNoInputTest()
{
    // This is always the function above: the project's libraries bind their own functions at link time.
    return &isNoInputValueIndicatorSet;
}
