#include "UnitManager.h"

#include <optional>

#include "Array2dDataTypeWrapper.h"
#include "ConfigurationAndProcessDataDefinitions.h"
#include "Diagnostics.h"
#include "FixedUnit.h"
#include "FloatRound.h"
#include "RowConversion.h"
#include "UnitConversion/FoundConversion.h"
#include "UnitManagerDefinitions.h"
#include "WriteResult.h"

namespace {

const char* const sourceName = "UnitManager";

// Logged by every operation that rounds: device logs are searched by this function.
const char* const roundingFunction = "QVariant UnitManager::roundDouble(const QVariant&, unsigned int) const";

/// The number of rows; empty unless unit types and cells cover every column before @p endColumn.
std::optional<unsigned int> countRows(const Array2dDataTypeWrapper& array, const QStringList& unitTypes,
                                      unsigned int endColumn)
{
    if (endColumn > static_cast<unsigned int>(unitTypes.size()))
        return {};
    const QVector<unsigned int> dimensions = array.getDimensions();
    if (dimensions.size() != 2 || endColumn > dimensions.at(1))
        return {};
    return dimensions.at(0);
}

/// Rounds @p value in place; the result is a double.
void roundInPlace(QVariant& value, unsigned int decimalPlaces)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber) {
        LogContext{sourceName, __LINE__, roundingFunction}.warning()
            << "Error on converting value to double" << value << "!";
    }
    value.setValue(isNumber ? FloatRound::roundValue(number, decimalPlaces) : 0.0);
}

bool convertVector(const FoundConversion& found, QVector<double>& values)
{
    // Without a conversion the data is not accessed for writing, so that it stays shared.
    if (found.conversion)
        found.convertArray(values.constData(), values.data(), static_cast<std::size_t>(values.size()));
    return found.isKnown;
}

} // namespace

UnitManager::UnitManager() = default;

UnitManager::~UnitManager() = default;

bool UnitManager::initByJsonString(const QString& conversionJson, const QString& defaultUnitJson)
{
    const bool hasConversions = updateUnitConversionByJsonString(conversionJson);
    const bool hasDefaultUnits = updateDefaultUnitsByJsonString(defaultUnitJson);
    return hasConversions && hasDefaultUnits;
}

bool UnitManager::initByJsonFile(const QString& conversionPath, const QString& defaultUnitPath)
{
    const bool hasConversions = updateUnitConversionByJsonFile(conversionPath);
    const bool hasDefaultUnits = updateDefaultUnitsByJsonFile(defaultUnitPath);
    return hasConversions && hasDefaultUnits;
}

bool UnitManager::initByJsonFile(const QString& conversionPath)
{
    return initByJsonFile(conversionPath, QString());
}

bool UnitManager::updateUnitConversionByJsonString(const QString& json)
{
    return m_core.updateUnitConversionByJsonString(json);
}

bool UnitManager::updateUnitConversionByJsonFile(const QString& path)
{
    return m_core.updateUnitConversionByJsonFile(path);
}

bool UnitManager::updateDefaultUnitsByJsonString(const QString& json)
{
    return m_core.updateDefaultUnitsByJsonString(json);
}

bool UnitManager::updateDefaultUnitsByJsonFile(const QString& path)
{
    return m_core.updateDefaultUnitsByJsonFile(path);
}

QStringList UnitManager::getListofUnitTypes() const
{
    return m_core.getListofUnitTypes();
}

QStringList UnitManager::getListofUnits(const QString& unitType) const
{
    return m_core.getListofUnits(unitType);
}

QStringList UnitManager::getUnitsInDisplayOrder(const QString& unitType) const
{
    return m_core.getUnitsInDisplayOrder(unitType);
}

QString UnitManager::getDefaultUnit(const QString& unitType) const
{
    return m_core.getDefaultUnit(unitType);
}

QString UnitManager::getBaseUnit(const QString& unitType) const
{
    return m_core.getBaseUnit(unitType);
}

bool UnitManager::isFixedUnitType(const QString& unitType) const
{
    return m_core.isFixedUnitType(unitType);
}

bool UnitManager::extractUnitTypeAndUnit(const QString& fixedUnit, QString& unitType, QString& unit) const
{
    return m_core.extractUnitTypeAndUnit(fixedUnit, unitType, unit);
}

QString UnitManager::getUnitText(const QString& unitType, const QString& language, const QString& unit) const
{
    return m_core.getUnitText(unitType, language, unit);
}

QVariant UnitManager::getUnitTextJsonMap(const QString& key) const
{
    return m_core.getUnitTextJsonMap(key);
}

bool UnitManager::isValid() const
{
    return m_core.isValid();
}

UnitManager::operator bool() const
{
    return isValid();
}

QString UnitManager::getNoUnitLabelTextId() const
{
    return FixedUnit::unitTypeNamed(UnitManagerDefinitions::getUnitTypeNoUnit());
}

bool UnitManager::getDecimalPlacesForUnit(const QString& unitType, const QString& unit,
                                          unsigned int& decimalPlaces) const
{
    return m_core.getDecimalPlacesForUnit(unitType, unit, decimalPlaces);
}

QVariant UnitManager::roundDouble(const QVariant& value, unsigned int decimalPlaces) const
{
    QVariant rounded = value;
    roundInPlace(rounded, decimalPlaces);
    return rounded;
}

QVariant UnitManager::fromBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const
{
    return convertAndRound(value, unitType, unit, ConversionDirection::FromBaseUnit);
}

QVariant UnitManager::toBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const
{
    return convertAndRound(value, unitType, unit, ConversionDirection::ToBaseUnit);
}

QVariant UnitManager::convertAndRound(const QVariant& value, const QString& unitType, const QString& unit,
                                      ConversionDirection direction) const
{
    QVariant converted = value;
    unsigned int decimalPlaces = 0;
    if (m_core.convertForDisplay(converted, unitType, unit, direction, decimalPlaces))
        roundInPlace(converted, decimalPlaces);
    return converted;
}

QVariant UnitManager::fromBaseUnitRaw(const QVariant& value, const QString& unitType,
                                      const QString& unit) const
{
    return m_core.fromBaseUnit(value, unitType, unit);
}

QVariant UnitManager::toBaseUnitRaw(const QVariant& value, const QString& unitType, const QString& unit) const
{
    QVariant converted = value;
    m_core.toBaseUnit(converted, unitType, unit);
    return converted;
}

bool UnitManager::getConversion(const QString& unitType, const QString& unit,
                                ValueConversionWrapper& conversion) const
{
    const FoundConversion found = m_core.find(unitType, unit, ConversionDirection::FromBaseUnit);
    conversion = found.conversion ? *found.conversion : ValueConversionWrapper();
    return found.isKnown;
}

bool UnitManager::fromBaseUnitArray(const double* values, double* results, std::size_t count,
                                    const QString& unitType, const QString& unit) const
{
    const FoundConversion found = m_core.find(unitType, unit, ConversionDirection::FromBaseUnit);
    found.convertArray(values, results, count);
    return found.isKnown;
}

bool UnitManager::toBaseUnitArray(const double* values, double* results, std::size_t count,
                                  const QString& unitType, const QString& unit) const
{
    const FoundConversion found = m_core.find(unitType, unit, ConversionDirection::ToBaseUnit);
    found.convertArray(values, results, count);
    return found.isKnown;
}

bool UnitManager::fromBaseUnitArray(QVector<double>& values, const QString& unitType,
                                    const QString& unit) const
{
    return convertVector(m_core.find(unitType, unit, ConversionDirection::FromBaseUnit), values);
}

bool UnitManager::toBaseUnitArray(QVector<double>& values, const QString& unitType, const QString& unit) const
{
    return convertVector(m_core.find(unitType, unit, ConversionDirection::ToBaseUnit), values);
}

QVariant UnitManager::getValue(const QVariant& value, const QString& unitType, const QString& unit) const
{
    return value.isValid() ? m_core.fromBaseUnit(value, unitType, unit) : QVariant();
}

QVariant UnitManager::getValue(const QString& key, const BaseClassSharedPointer& node,
                               const QString& unit) const
{
    const BaseClassSharedPointer child = node ? node->getChild(key) : BaseClassSharedPointer();
    if (!child)
        return {};
    QVariant value = child->getProperty(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyValue());
    if (!value.isValid() || !child->isNumberType() || child->isNumberNoInput())
        return value;
    m_core.find(*child, unit, ConversionDirection::FromBaseUnit).convert(value);
    return value;
}

int UnitManager::setValueStatus(const QString& key, const BaseClassSharedPointer& node, const QVariant& value,
                                const QString& unit) const
{
    const BaseClassSharedPointer child = node ? node->getChild(key) : BaseClassSharedPointer();
    if (!child)
        return WriteResult::failed;
    QVariant converted = value;
    if (!m_core.convertForStorage(*child, converted, unit))
        return WriteResult::failed;
    return child->setProperty(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyValue(), converted);
}

bool UnitManager::setValue(const QString& key, const BaseClassSharedPointer& node, const QVariant& value,
                           const QString& unit) const
{
    return WriteResult::isSuccess(setValueStatus(key, node, value, unit));
}

QString UnitManager::getUnitText(const QString& key, const BaseClassSharedPointer& node,
                                 const QString& language, const QString& unit) const
{
    const BaseClassSharedPointer child = node ? node->getChild(key) : BaseClassSharedPointer();
    return child ? m_core.getUnitText(child, language, unit) : QString();
}

QStringList UnitManager::getUnitText(const Array2dDataTypeWrapper& array, const QString& language,
                                     unsigned int firstColumn, unsigned int columnCount,
                                     const QString& unit) const
{
    const unsigned int endColumn = firstColumn + columnCount;
    const QStringList unitTypes = array.getColumnUnitTypes();
    QStringList texts;
    if (columnCount == 0 || !countRows(array, unitTypes, endColumn))
        return texts;
    for (unsigned int column = firstColumn; column < endColumn; ++column) {
        const QString& unitType = unitTypes.at(static_cast<int>(column));
        texts.append(unitType.isEmpty() ? QString() : m_core.getUnitText(unitType, language, unit));
    }
    return texts;
}

QString UnitManager::getUnitText(const Array2dDataTypeWrapper& array, const QString& language,
                                 unsigned int column, const QString& unit) const
{
    const QStringList texts = getUnitText(array, language, column, 1, unit);
    return texts.size() == 1 ? texts.first() : QString();
}

QList<QVariant> UnitManager::getValueArray(const Array2dDataTypeWrapper& array, unsigned int row,
                                           unsigned int firstColumn, unsigned int columnCount,
                                           const QString& unit) const
{
    const unsigned int endColumn = firstColumn + columnCount;
    const QStringList unitTypes = array.getColumnUnitTypes();
    QList<QVariant> values;
    if (row >= countRows(array, unitTypes, endColumn).value_or(0))
        return values;
    const QList<QVariant> cells = array.getRowValues(row);
    RowConversion conversion(m_core, unit, ConversionDirection::FromBaseUnit);
    for (unsigned int column = firstColumn; column < endColumn; ++column) {
        values.append(cells.at(static_cast<int>(column)));
        conversion.convert(values.last(), unitTypes.at(static_cast<int>(column)));
    }
    return values;
}

bool UnitManager::setValueArray(Array2dDataTypeWrapper& array, unsigned int row, unsigned int firstColumn,
                                unsigned int columnCount, const QList<QVariant>& values,
                                const QString& unit) const
{
    const unsigned int endColumn = firstColumn + columnCount;
    const QStringList unitTypes = array.getColumnUnitTypes();
    if (row >= countRows(array, unitTypes, endColumn).value_or(0))
        return false;
    QList<QVariant> cells = array.getRowValues(row);
    RowConversion conversion(m_core, unit, ConversionDirection::ToBaseUnit);
    bool allConverted = true;
    for (unsigned int column = firstColumn; column < endColumn; ++column) {
        QVariant& cell = cells[static_cast<int>(column)];
        cell = values.at(static_cast<int>(column - firstColumn));
        // Later cells are converted even after a failure, so that every failure is reported.
        allConverted = conversion.convert(cell, unitTypes.at(static_cast<int>(column))) && allConverted;
    }
    return allConverted && array.setRowValues(cells, row);
}

const UnitManagerCore& UnitManager::unitManagerCore() const
{
    return m_core;
}
