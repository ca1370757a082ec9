#include "UnitManagerCore.h"

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataParser.h"
#include "Diagnostics.h"
#include "FixedUnit.h"
#include "PropertyManagerConst.h"

namespace {

const char* const sourceName = "UnitManagerCore";

} // namespace

UnitManagerCore::UnitManagerCore() = default;

UnitManagerCore::~UnitManagerCore() = default;

bool UnitManagerCore::updateUnitConversionByJsonString(const QString& json)
{
    if (json.isEmpty()) {
        conversionLookUp.reset();
        unitTexts.reset();
        return false;
    }
    // Once for both: parsing is the larger part of loading.
    const BaseClassSharedPointer root = ConfigurationAndProcessDataParser().parseFromJson(
        json, PropertyManagerConst::getConfigFileExtension());
    const bool hasConversions = conversionLookUp.initByDocument(root, json);
    const bool hasTexts = unitTexts.initByDocument(root);
    return hasConversions && hasTexts;
}

bool UnitManagerCore::updateUnitConversionByJsonFile(const QString& path)
{
    if (path.isEmpty()) {
        conversionLookUp.reset();
        unitTexts.reset();
        return false;
    }
    const bool hasConversions = conversionLookUp.initByJsonFile(path);
    const bool hasTexts = unitTexts.initByJsonFile(path);
    return hasConversions && hasTexts;
}

bool UnitManagerCore::updateDefaultUnitsByJsonString(const QString& json)
{
    if (json.isEmpty()) {
        defaultUnits.reset();
        return true;
    }
    return defaultUnits.initByJsonString(json);
}

bool UnitManagerCore::updateDefaultUnitsByJsonFile(const QString& path)
{
    if (path.isEmpty()) {
        defaultUnits.reset();
        return true;
    }
    return defaultUnits.initByJsonFile(path);
}

QStringList UnitManagerCore::getListofUnitTypes() const
{
    return conversionLookUp.getListofUnitTypes();
}

QStringList UnitManagerCore::getListofUnits(const QString& unitType) const
{
    return conversionLookUp.getListofUnits(unitType);
}

QString UnitManagerCore::getDefaultUnit(const QString& unitType) const
{
    return defaultUnits.getDefaultUnit(unitType);
}

QString UnitManagerCore::getBaseUnit(const QString& unitType) const
{
    return conversionLookUp.getBaseUnit(unitType);
}

QString UnitManagerCore::getUnitText(const QString& unitType, const QString& language,
                                     const QString& unit) const
{
    return unitTexts.getUnitText(unitType, language, unitOrDefault(unitType, unit));
}

QString UnitManagerCore::getUnitText(const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                     const QString& language, const QString& unit) const
{
    QString unitType;
    QString unused;
    getUnitProperties(node, unitType, unused);
    return getUnitText(unitType, language, unit);
}

QVariant UnitManagerCore::getUnitTextJsonMap(const QString& key) const
{
    return unitTexts.getUnitTextJsonMap(key);
}

bool UnitManagerCore::getUnitProperties(const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                        QString& unitType, QString& /*unit*/) const
{
    const QString& key = ConfigurationAndProcessDataDefinitions::getKeyDataPropertyUnitType();
    if (!node || !node->hasProperty(key))
        return false;
    const QVariant property = node->getProperty(key);
    if (!property.canConvert(QVariant::String))
        return false;
    unitType = property.toString();
    return true;
}

bool UnitManagerCore::getUnitProperties(const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                        const QString& key, QString& unitType, QString& unit) const
{
    return node && getUnitProperties(node->getChild(key), unitType, unit);
}

bool UnitManagerCore::isFixedUnitType(const QString& unitType) const
{
    return FixedUnit::isFixedUnit(unitType);
}

bool UnitManagerCore::extractUnitTypeAndUnit(const QString& fixedUnit, QString& unitType, QString& unit) const
{
    if (!isFixedUnitType(fixedUnit)) {
        LogContext{sourceName, __LINE__, Q_FUNC_INFO}.warning()
            << "Unable to get unit type for unit:" << fixedUnit << "!";
        return false;
    }
    // Taken before either is written: a caller may pass one string as input and output.
    const QString plainType = FixedUnit::unitTypeOf(fixedUnit);
    const QString plainUnit = FixedUnit::unitOf(fixedUnit);
    unit = plainUnit;
    unitType = plainType;
    return true;
}

bool UnitManagerCore::toBaseUnit(QVariant& value, const QString& unitType, const QString& unit) const
{
    if (unitType.isEmpty())
        return unit.isEmpty();
    if (isFixedUnitType(unitType))
        return true;
    return conversionLookUp.toBaseUnit(value, unitType, unitOrDefault(unitType, unit));
}

QVariant UnitManagerCore::fromBaseUnit(const QVariant& value, const QString& unitType,
                                       const QString& unit) const
{
    QVariant converted = value;
    if (!unitType.isEmpty() && !isFixedUnitType(unitType))
        conversionLookUp.fromBaseUnit(converted, unitType, unitOrDefault(unitType, unit));
    return converted;
}

bool UnitManagerCore::toBaseUnit(const QSharedPointer<ConfigurationAndProcessDataBase>& node, QVariant& value,
                                 const QString& unit) const
{
    QString unitType;
    QString unused;
    getUnitProperties(node, unitType, unused);
    return toBaseUnit(value, unitType, unit);
}

QVariant UnitManagerCore::fromBaseUnit(const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                       const QVariant& value, const QString& unit) const
{
    QString unitType;
    QString unused;
    getUnitProperties(node, unitType, unused);
    return fromBaseUnit(value, unitType, unit);
}

const ValueConversionWrapper* UnitManagerCore::findConversion(const QString& unitType,
                                                              const QString& unit) const
{
    const UnitConversionUnitTypeHandler* const handler = conversionLookUp.findHandler(unitType);
    if (!handler || FixedUnit::isFixedUnitBehindPrefix(handler->getUnitType()))
        return nullptr;
    if (!unit.isEmpty())
        return handler->findConversion(unit);
    return defaultUnits.hasDefaultUnit(unitType)
               ? handler->findConversion(defaultUnits.getDefaultUnit(unitType))
               : nullptr;
}

bool UnitManagerCore::getDecimalPlacesForUnit(const QString& unitType, const QString& unit,
                                              unsigned int& decimalPlaces) const
{
    QString plainType = unitType;
    QString plainUnit = unit;
    if (isFixedUnitType(unitType)) {
        if (!extractUnitTypeAndUnit(unitType, plainType, plainUnit)) {
            LogContext{sourceName, __LINE__, Q_FUNC_INFO}.warning()
                << "Error on extracting unit type and unit from fixed unit:" << unitType << "!";
        }
    } else {
        plainUnit = unitOrDefault(unitType, unit);
    }
    return conversionLookUp.getDecimalPlacesForUnit(plainType, plainUnit, decimalPlaces);
}

QString UnitManagerCore::unitOrDefault(const QString& unitType, const QString& unit) const
{
    return unit.isEmpty() ? getDefaultUnit(unitType) : unit;
}

bool UnitManagerCore::isValid() const
{
    return conversionLookUp && unitTexts;
}

UnitManagerCore::operator bool() const
{
    return isValid();
}
