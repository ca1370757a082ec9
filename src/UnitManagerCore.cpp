#include "UnitManagerCore.h"

#include <QtCore/QSet>

#include <utility>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataParser.h"
#include "Diagnostics.h"
#include "FixedUnit.h"
#include "PropertyManagerConst.h"
#include "UnitConversion/FoundConversion.h"
#include "UnitConversion/NoInputMarker.h"

namespace {

const char* const sourceName = "UnitManagerCore";

bool readUnitType(const ConfigurationAndProcessDataBase& node, QString& unitType)
{
    const QString& key = ConfigurationAndProcessDataDefinitions::getKeyDataPropertyUnitType();
    if (!node.hasProperty(key))
        return false;
    QVariant property = node.getProperty(key);
    // The text is moved out of the property; an extra copy costs measurable time.
    if (property.userType() == QMetaType::QString) {
        unitType = std::move(*static_cast<QString*>(property.data()));
        return true;
    }
    if (!property.canConvert(QVariant::String))
        return false;
    unitType = property.toString();
    return true;
}

} // namespace

UnitManagerCore::UnitManagerCore() = default;

UnitManagerCore::~UnitManagerCore() = default;

bool UnitManagerCore::updateUnitConversionByJsonString(const QString& json)
{
    if (json.isEmpty()) {
        m_conversionLookUp.reset();
        m_unitTexts.reset();
        return false;
    }
    // Parsed once for both: parsing takes most of the loading time.
    const BaseClassSharedPointer root = ConfigurationAndProcessDataParser().parseFromJson(
        json, PropertyManagerConst::getConfigFileExtension());
    const bool hasConversions = m_conversionLookUp.initByDocument(root, json);
    const bool hasTexts = m_unitTexts.initByDocument(root);
    return hasConversions && hasTexts;
}

bool UnitManagerCore::updateUnitConversionByJsonFile(const QString& path)
{
    if (path.isEmpty()) {
        m_conversionLookUp.reset();
        m_unitTexts.reset();
        return false;
    }
    const bool hasConversions = m_conversionLookUp.initByJsonFile(path);
    const bool hasTexts = m_unitTexts.initByJsonFile(path);
    return hasConversions && hasTexts;
}

bool UnitManagerCore::updateDefaultUnitsByJsonString(const QString& json)
{
    if (json.isEmpty()) {
        m_defaultUnits.reset();
        return true;
    }
    return m_defaultUnits.initByJsonString(json);
}

bool UnitManagerCore::updateDefaultUnitsByJsonFile(const QString& path)
{
    if (path.isEmpty()) {
        m_defaultUnits.reset();
        return true;
    }
    return m_defaultUnits.initByJsonFile(path);
}

QStringList UnitManagerCore::getListofUnitTypes() const
{
    return m_conversionLookUp.getListofUnitTypes();
}

QStringList UnitManagerCore::getListofUnits(const QString& unitType) const
{
    return m_conversionLookUp.getListofUnits(unitType);
}

QStringList UnitManagerCore::getUnitsInDisplayOrder(const QString& unitType) const
{
    const QList<QString> units = m_conversionLookUp.getListofUnits(unitType);
    QSet<QString> others(units.begin(), units.end());
    QStringList ordered;
    for (const QString& unit : m_unitTexts.displayOrder(unitType)) {
        // The texts also know units without conversion, which are not listed.
        if (others.remove(unit))
            ordered.append(unit);
    }
    QStringList unordered = others.values();
    unordered.sort();
    return ordered + unordered;
}

QString UnitManagerCore::getDefaultUnit(const QString& unitType) const
{
    return m_defaultUnits.getDefaultUnit(unitType);
}

QString UnitManagerCore::getBaseUnit(const QString& unitType) const
{
    return m_conversionLookUp.getBaseUnit(unitType);
}

QString UnitManagerCore::getUnitText(const QString& unitType, const QString& language,
                                     const QString& unit) const
{
    return m_unitTexts.getUnitText(unitType, language, unitOrDefault(unitType, unit));
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
    return m_unitTexts.getUnitTextJsonMap(key);
}

bool UnitManagerCore::getUnitProperties(const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                        QString& unitType, QString& /*unit*/) const
{
    return node && readUnitType(*node, unitType);
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
    // Both parts are computed before an output is written: a caller may pass the same string as input and
    // output.
    const QString plainType = FixedUnit::unitTypeOf(fixedUnit);
    const QString plainUnit = FixedUnit::unitOf(fixedUnit);
    unit = plainUnit;
    unitType = plainType;
    return true;
}

bool UnitManagerCore::toBaseUnit(QVariant& value, const QString& unitType, const QString& unit) const
{
    return find(unitType, unit, ConversionDirection::ToBaseUnit).convert(value);
}

QVariant UnitManagerCore::fromBaseUnit(const QVariant& value, const QString& unitType,
                                       const QString& unit) const
{
    QVariant converted = value;
    find(unitType, unit, ConversionDirection::FromBaseUnit).convert(converted);
    return converted;
}

bool UnitManagerCore::toBaseUnit(const QSharedPointer<ConfigurationAndProcessDataBase>& node, QVariant& value,
                                 const QString& unit) const
{
    return node ? find(*node, unit, ConversionDirection::ToBaseUnit).convert(value)
                : toBaseUnit(value, QString(), unit);
}

QVariant UnitManagerCore::fromBaseUnit(const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                                       const QVariant& value, const QString& unit) const
{
    QVariant converted = value;
    if (node)
        find(*node, unit, ConversionDirection::FromBaseUnit).convert(converted);
    return converted;
}

FoundConversion UnitManagerCore::find(const QString& unitType, const QString& unit,
                                      ConversionDirection direction) const
{
    if (unitType.isEmpty())
        return FoundConversion::none(unit.isEmpty());
    const UnitConversionUnitTypeHandler* const handler = m_conversionLookUp.findHandler(unitType);
    // A known unit type has a short name, which is scanned faster than the whole identifier.
    if (handler ? FixedUnit::isFixedUnitName(handler->unitType) : FixedUnit::isFixedUnit(unitType))
        return FoundConversion::none(true);
    if (handler && !unit.isEmpty())
        return handler->find(unit, direction);
    const QString unitOfType = unit.isEmpty() ? m_defaultUnits.getDefaultUnit(unitType) : unit;
    FoundConversion found = UnitConversionLookUp::find(handler, unitType, unitOfType, direction);
    // Not reusable without a default unit, so that the missing default unit is reported at each use.
    found.isReusable = found.isReusable && !unitOfType.isEmpty();
    return found;
}

FoundConversion UnitManagerCore::find(const ConfigurationAndProcessDataBase& node, const QString& unit,
                                      ConversionDirection direction) const
{
    QString unitType;
    readUnitType(node, unitType);
    return find(unitType, unit, direction);
}

bool UnitManagerCore::convertForDisplay(QVariant& value, const QString& unitType, const QString& unit,
                                        ConversionDirection direction, unsigned int& decimalPlaces) const
{
    const FoundConversion found = find(unitType, unit, direction);
    found.convert(value);
    // Otherwise looked up separately, which reports its own failure.
    return found.isReusable ? found.conversion->getDecimalPlacesForUnit(decimalPlaces)
                            : getDecimalPlacesForUnit(unitType, unit, decimalPlaces);
}

bool UnitManagerCore::getDecimalPlacesForUnit(const QString& unitType, const QString& unit,
                                              unsigned int& decimalPlaces) const
{
    if (!isFixedUnitType(unitType))
        return m_conversionLookUp.getDecimalPlacesForUnit(unitType, unitOrDefault(unitType, unit),
                                                          decimalPlaces);
    const FixedUnit::Parts parts(unitType);
    if (!parts.areValid()) {
        LogContext{sourceName, __LINE__, Q_FUNC_INFO}.warning()
            << "Error on extracting unit type and unit from fixed unit:" << unitType << "!";
        return m_conversionLookUp.getDecimalPlacesForUnit(unitType, unit, decimalPlaces);
    }
    return m_conversionLookUp.getDecimalPlacesForUnit(parts.unitType(), parts.unit(), decimalPlaces);
}

bool UnitManagerCore::convertForStorage(const ConfigurationAndProcessDataBase& node, QVariant& value,
                                        const QString& unit) const
{
    return NoInputMarker::isSet(value) || find(node, unit, ConversionDirection::ToBaseUnit).convert(value);
}

QString UnitManagerCore::unitOrDefault(const QString& unitType, const QString& unit) const
{
    return unit.isEmpty() ? getDefaultUnit(unitType) : unit;
}

bool UnitManagerCore::isValid() const
{
    return m_conversionLookUp && m_unitTexts;
}

UnitManagerCore::operator bool() const
{
    return isValid();
}
