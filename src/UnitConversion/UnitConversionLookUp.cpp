#include "UnitConversion/UnitConversionLookUp.h"

#include <QtCore/QFileInfo>

#include "ConfigurationAndProcessDataParser.h"
#include "ConfigurationDataAndProcessDescriptionAccess.h"
#include "Diagnostics.h"
#include "FixedUnit.h"
#include "PropertyManagerConst.h"
#include "UnitConversion/FoundConversion.h"

namespace {

const char* const sourceName = "UnitConversion/UnitConversionLookUp";

// Logged no matter which function parsed the text: device logs are searched by this function.
const char* const loadingFunction = "bool UnitConversionLookUp::initByJsonString(const QString&)";

// Device logs are searched by these functions and lines.
LogContext conversionContext(ConversionDirection direction)
{
    return direction == ConversionDirection::ToBaseUnit
               ? LogContext{sourceName, 137,
                            "bool UnitConversionLookUp::toBaseUnit(QVariant&, const QString&, const "
                            "QString&) "
                            "const"}
               : LogContext{sourceName, 152,
                            "bool UnitConversionLookUp::fromBaseUnit(QVariant&, const QString&, const "
                            "QString&) const"};
}

void warnUnknownType(const LogContext& context, const QString& unitType)
{
    context.warning() << "No conversion function given for unitType " << unitType;
}

} // namespace

UnitConversionLookUp::UnitConversionLookUp() = default;

UnitConversionLookUp::UnitConversionLookUp(const QString& json)
{
    initByJsonString(json);
}

UnitConversionLookUp::~UnitConversionLookUp() = default;

bool UnitConversionLookUp::initByJsonString(const QString& json)
{
    reset();
    if (json.isEmpty())
        return false;
    return initByDocument(ConfigurationAndProcessDataParser().parseFromJson(
                              json, PropertyManagerConst::getConfigFileExtension()),
                          json);
}

bool UnitConversionLookUp::initByDocument(const BaseClassSharedPointer& root, const QString& json)
{
    reset();
    if (!root) {
        LogContext{sourceName, 75, loadingFunction}.warning() << "Conversion configuration invalid" << json;
        return false;
    }
    const QHash<QString, BaseClassSharedPointer>& children = root->getChildMap();
    for (auto child = children.begin(); child != children.end(); ++child) {
        const QString unitType = FixedUnit::unitTypeNamed(child.key());
        conversions.insert(unitType, UnitConversionUnitTypeHandler(child.value(), child.key()));
        unitTypes.append(unitType);
    }
    return !children.isEmpty();
}

bool UnitConversionLookUp::initByJsonFile(const QString& path)
{
    return initByJsonString(ConfigurationDataAndProcessDescriptionAccess().getConfiguration(QFileInfo(path)));
}

void UnitConversionLookUp::reset()
{
    conversions.clear();
    unitTypes.clear();
}

bool UnitConversionLookUp::isValid() const
{
    return !conversions.isEmpty();
}

UnitConversionLookUp::operator bool() const
{
    return isValid();
}

QList<QString> UnitConversionLookUp::getListofUnitTypes() const
{
    return unitTypes;
}

QList<QString> UnitConversionLookUp::getListofUnits(const QString& unitType) const
{
    const UnitConversionUnitTypeHandler* handler = findHandler(unitType);
    return handler ? handler->getUnitList() : QList<QString>();
}

QString UnitConversionLookUp::getBaseUnit(const QString& unitType) const
{
    if (const UnitConversionUnitTypeHandler* handler = findHandler(unitType))
        return handler->getBaseUnit(unitType);
    LogContext{sourceName, 122, Q_FUNC_INFO}.warning() << "No base unit given for unitType " << unitType;
    return {};
}

bool UnitConversionLookUp::getDecimalPlacesForUnit(const QString& unitType, const QString& unit,
                                                   unsigned int& decimalPlaces) const
{
    if (const UnitConversionUnitTypeHandler* handler = findHandler(unitType))
        return handler->getDecimalPlacesForUnit(unit, decimalPlaces);
    warnUnknownType({sourceName, 174, Q_FUNC_INFO}, unitType);
    return false;
}

bool UnitConversionLookUp::toBaseUnit(QVariant& value, const QString& unitType, const QString& unit) const
{
    return find(unitType, unit, ConversionDirection::ToBaseUnit).convert(value);
}

bool UnitConversionLookUp::fromBaseUnit(QVariant& value, const QString& unitType, const QString& unit) const
{
    return find(unitType, unit, ConversionDirection::FromBaseUnit).convert(value);
}

FoundConversion UnitConversionLookUp::find(const QString& unitType, const QString& unit,
                                           ConversionDirection direction) const
{
    return find(findHandler(unitType), unitType, unit, direction);
}

FoundConversion UnitConversionLookUp::find(const UnitConversionUnitTypeHandler* handler,
                                           const QString& unitType, const QString& unit,
                                           ConversionDirection direction)
{
    if (handler)
        return handler->find(unit, direction);
    warnUnknownType(conversionContext(direction), unitType);
    return FoundConversion::none(false);
}

const UnitConversionUnitTypeHandler* UnitConversionLookUp::findHandler(const QString& unitType) const
{
    const auto handler = conversions.constFind(unitType);
    return handler != conversions.constEnd() && handler->isValid() ? &*handler : nullptr;
}
