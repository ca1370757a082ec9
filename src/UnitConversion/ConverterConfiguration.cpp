#include "UnitConversion/ConverterConfiguration.h"

#include "ConfigurationAndProcessDataTools.h"

namespace ConverterConfiguration {

QList<QVariant> readList(const QString& key, const BaseClassSharedPointer& node)
{
    const QVariant value = ConfigurationAndProcessDataTools::extractConfigValue(key, node);
    return value.canConvert(QVariant::List) ? value.toList() : QList<QVariant>();
}

double readDouble(const QString& key, const BaseClassSharedPointer& node)
{
    const QVariant value = ConfigurationAndProcessDataTools::extractConfigValue(key, node);
    return value.canConvert(QVariant::Double) ? value.toDouble() : 0.0;
}

} // namespace ConverterConfiguration
