#include "UnitConversion/UnitConversionUnitTypeHandler.h"

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"
#include "Diagnostics.h"
#include "UnitManagerDefinitions.h"

namespace {

const char* const sourceName = "UnitConversion/UnitConversionUnitTypeHandler";

} // namespace

UnitConversionUnitTypeHandler::UnitConversionUnitTypeHandler() = default;

UnitConversionUnitTypeHandler::UnitConversionUnitTypeHandler(const BaseClassSharedPointer& node,
                                                             const QString& unitTypeName)
    : unitType(unitTypeName)
{
    init(node);
}

UnitConversionUnitTypeHandler::~UnitConversionUnitTypeHandler() = default;

bool UnitConversionUnitTypeHandler::init(const BaseClassSharedPointer& node)
{
    conversions.clear();
    if (!node)
        return true;

    const QVariant treeNodeType(ConfigurationAndProcessDataDefinitions::getKeyDataTypeTreeNode());
    const QHash<QString, BaseClassSharedPointer>& children = node->getChildMap();
    for (auto child = children.begin(); child != children.end(); ++child) {
        if (!child.value()) {
            LogContext{sourceName, 76, Q_FUNC_INFO}.warning() << "Invalid node found";
            continue;
        }
        if (child.value()->getProperty(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyType()) !=
            treeNodeType)
            continue;
        if (child.key() == UnitManagerDefinitions::getUnitTypeNoUnit()) {
            conversions.clear();
            baseUnit = UnitManagerDefinitions::getUnitTypeNoUnit();
            continue;
        }
        if (child.key() == UnitManagerDefinitions::getUnitTypeText())
            continue;
        const ValueConversionWrapper wrapper(child.value());
        if (wrapper)
            addUnit(child.key(), *child.value(), wrapper);
    }
    valid = true;
    return true;
}

void UnitConversionUnitTypeHandler::addUnit(const QString& unit, const ConfigurationAndProcessDataBase& node,
                                            const ValueConversionWrapper& wrapper)
{
    conversions.insert(unit, wrapper);
    unitList.append(unit);
    const QVariant position =
        node.getProperty(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyDisplayPosition());
    if (position.canConvert(QVariant::Int) && position.toInt() == 0)
        baseUnit = unit;
}

bool UnitConversionUnitTypeHandler::toBaseUnit(QVariant& value, const QString& unit) const
{
    return convert(value, unit, &ValueConversionWrapper::invertValue, {sourceName, 114, Q_FUNC_INFO},
                   {sourceName, 132, Q_FUNC_INFO});
}

bool UnitConversionUnitTypeHandler::fromBaseUnit(QVariant& value, const QString& unit) const
{
    return convert(value, unit, &ValueConversionWrapper::convertValue, {sourceName, 162, Q_FUNC_INFO},
                   {sourceName, 180, Q_FUNC_INFO});
}

bool UnitConversionUnitTypeHandler::convert(QVariant& value, const QString& unit, Conversion conversion,
                                            const LogContext& invalidType,
                                            const LogContext& unknownUnit) const
{
    if (unit == UnitManagerDefinitions::getUnitTypeNoUnit())
        return true;

    if (const ValueConversionWrapper* const wrapper = findConversion(unit)) {
        if (ConfigurationAndProcessDataTools::isVariantNumber(value)) {
            if (!ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(value))
                value = QVariant((wrapper->*conversion)(value.toDouble()));
            return true;
        }
        invalidType.warning() << "Invalid type given for conversion" << value.typeName();
    }
    if (unit.isEmpty())
        return true;
    unknownUnit.warning() << "Unknown unit" << unit << "given for unitType" << unitType;
    return false;
}

const ValueConversionWrapper* UnitConversionUnitTypeHandler::findConversion(const QString& unit) const
{
    // "NoUnit" is never among them.
    const auto wrapper = conversions.constFind(unit);
    return wrapper == conversions.constEnd() ? nullptr : &*wrapper;
}

bool UnitConversionUnitTypeHandler::getDecimalPlacesForUnit(const QString& unit,
                                                            unsigned int& decimalPlaces) const
{
    const ValueConversionWrapper* const wrapper = findConversion(unit);
    return wrapper && wrapper->getDecimalPlacesForUnit(decimalPlaces);
}

QString UnitConversionUnitTypeHandler::getBaseUnit(const QString& unitTypeName) const
{
    if (unitTypeName == UnitManagerDefinitions::getUnitTypeNoUnit())
        return UnitManagerDefinitions::getUnitTypeNoUnit();
    return unitTypeName + QLatin1Char('/') + baseUnit;
}

QList<QString> UnitConversionUnitTypeHandler::getUnitList() const
{
    return unitList;
}

bool UnitConversionUnitTypeHandler::isValid() const
{
    return valid;
}

UnitConversionUnitTypeHandler::operator bool() const
{
    return isValid();
}
