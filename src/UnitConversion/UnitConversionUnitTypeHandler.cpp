#include "UnitConversion/UnitConversionUnitTypeHandler.h"

#include <algorithm>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "Diagnostics.h"
#include "FixedUnit.h"
#include "UnitConversion/FoundConversion.h"
#include "UnitManagerDefinitions.h"

namespace {

const char* const sourceName = "UnitConversion/UnitConversionUnitTypeHandler";

// Device logs are searched by these functions and lines.
const char* const toBaseUnitFunction =
    "bool UnitConversionUnitTypeHandler::toBaseUnit(QVariant&, const QString&) const";
const char* const fromBaseUnitFunction =
    "bool UnitConversionUnitTypeHandler::fromBaseUnit(QVariant&, const QString&) const";

LogContext invalidTypeContext(ConversionDirection direction)
{
    return direction == ConversionDirection::ToBaseUnit ? LogContext{sourceName, 114, toBaseUnitFunction}
                                                        : LogContext{sourceName, 162, fromBaseUnitFunction};
}

void warnUnknownUnit(ConversionDirection direction, const QString& unit, const QString& unitType)
{
    const LogContext context = direction == ConversionDirection::ToBaseUnit
                                   ? LogContext{sourceName, 132, toBaseUnitFunction}
                                   : LogContext{sourceName, 180, fromBaseUnitFunction};
    context.warning() << "Unknown unit" << unit << "given for unitType" << unitType;
}

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
    return find(unit, ConversionDirection::ToBaseUnit).convert(value);
}

bool UnitConversionUnitTypeHandler::fromBaseUnit(QVariant& value, const QString& unit) const
{
    return find(unit, ConversionDirection::FromBaseUnit).convert(value);
}

FoundConversion UnitConversionUnitTypeHandler::find(const QString& unit, ConversionDirection direction) const
{
    const auto conversion = conversions.constFind(unit);
    if (conversion != conversions.constEnd())
        return {this, &*conversion, direction, true, true};
    // "NoUnit" is never stored in the table.
    if (unit.isEmpty() || unit == UnitManagerDefinitions::getUnitTypeNoUnit())
        return FoundConversion::none(true);
    warnUnknownUnit(direction, unit, unitType);
    return FoundConversion::none(false);
}

bool UnitConversionUnitTypeHandler::reportInvalidValue(const QVariant& value,
                                                       const FoundConversion& found) const
{
    invalidTypeContext(found.direction).warning() << "Invalid type given for conversion" << value.typeName();
    const auto conversion =
        std::find_if(conversions.keyValueBegin(), conversions.keyValueEnd(),
                     [&found](const auto& entry) { return &entry.second == found.conversion; });
    const QString& unit = (*conversion).first;
    if (unit.isEmpty())
        return true;
    warnUnknownUnit(found.direction, unit, unitType);
    return false;
}

bool UnitConversionUnitTypeHandler::getDecimalPlacesForUnit(const QString& unit,
                                                            unsigned int& decimalPlaces) const
{
    const auto conversion = conversions.constFind(unit);
    return conversion != conversions.constEnd() && conversion->getDecimalPlacesForUnit(decimalPlaces);
}

QString UnitConversionUnitTypeHandler::getBaseUnit(const QString& unitTypeName) const
{
    if (unitTypeName == UnitManagerDefinitions::getUnitTypeNoUnit())
        return UnitManagerDefinitions::getUnitTypeNoUnit();
    return FixedUnit::join(unitTypeName, baseUnit);
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
