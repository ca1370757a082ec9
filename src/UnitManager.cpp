#include "UnitManager.h"

#include <algorithm>
#include <cmath>

#include <QtCore/QtNumeric>

#include "Array2dDataTypeWrapper.h"
#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"
#include "Diagnostics.h"
#include "FloatRound.h"
#include "PropertyManagerConst.h"
#include "UnitManagerDefinitions.h"

namespace {

const char* const sourceName = "UnitManager";

const int writeFailed = 2;

/// Whether the array has unit types and cells for every column before @p endColumn.
bool hasColumns(const Array2dDataTypeWrapper& array, const QStringList& unitTypes, unsigned int endColumn)
{
    if (endColumn > static_cast<unsigned int>(unitTypes.size()))
        return false;
    const QVector<unsigned int> dimensions = array.getDimensions();
    return dimensions.size() == 2 && endColumn <= dimensions.at(1);
}

bool hasCells(const Array2dDataTypeWrapper& array, const QStringList& unitTypes, unsigned int row,
              unsigned int endColumn)
{
    return hasColumns(array, unitTypes, endColumn) && row < array.getDimensions().at(0);
}

bool isConvertible(const QVariant& cell, const QString& unitType)
{
    return !unitType.isEmpty() && !ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(cell);
}

/// Whether only a NaN can be the platform's marker of no input. The platform has one marker, always the same:
/// where that is a NaN, other numbers need not be asked about, which would cost more than their conversion.
bool isMarkerNan()
{
    static const bool isNan = ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(qQNaN());
    return isNan;
}

/// Stores the number that @p value holds.
///
/// @return false, with @p number perhaps written, for the marker of no input and for what is no number.
bool readNumber(const QVariant& value, double& number)
{
    if (value.userType() == QMetaType::Double) {
        number = *static_cast<const double*>(value.constData());
        const bool mayBeMarker = std::isnan(number) || !isMarkerNan();
        return !mayBeMarker || !ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(value);
    }
    if (!ConfigurationAndProcessDataTools::isVariantNumber(value) ||
        ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(value))
        return false;
    number = value.toDouble();
    return true;
}

QVariant rounded(double value, const ValueConversionWrapper& conversion)
{
    unsigned int decimalPlaces = 0;
    conversion.getDecimalPlacesForUnit(decimalPlaces);
    return FloatRound::roundValue(value, decimalPlaces);
}

using Conversion = double (ValueConversionWrapper::*)(double) const;

void convertRun(const double* values, double* results, std::size_t count,
                const ValueConversionWrapper& conversion, Conversion convert)
{
    const bool isNan = isMarkerNan();
    std::transform(values, values + count, results, [&conversion, convert, isNan](double value) {
        const bool mayBeMarker = std::isnan(value) || !isNan;
        const bool isMarker =
            mayBeMarker && ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(value);
        return isMarker ? value : (conversion.*convert)(value);
    });
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
    return core.updateUnitConversionByJsonString(json);
}

bool UnitManager::updateUnitConversionByJsonFile(const QString& path)
{
    return core.updateUnitConversionByJsonFile(path);
}

bool UnitManager::updateDefaultUnitsByJsonString(const QString& json)
{
    return core.updateDefaultUnitsByJsonString(json);
}

bool UnitManager::updateDefaultUnitsByJsonFile(const QString& path)
{
    return core.updateDefaultUnitsByJsonFile(path);
}

QStringList UnitManager::getListofUnitTypes() const
{
    return core.getListofUnitTypes();
}

QStringList UnitManager::getListofUnits(const QString& unitType) const
{
    return core.getListofUnits(unitType);
}

QString UnitManager::getDefaultUnit(const QString& unitType) const
{
    return core.getDefaultUnit(unitType);
}

QString UnitManager::getBaseUnit(const QString& unitType) const
{
    return core.getBaseUnit(unitType);
}

bool UnitManager::isFixedUnitType(const QString& unitType) const
{
    return core.isFixedUnitType(unitType);
}

bool UnitManager::extractUnitTypeAndUnit(const QString& fixedUnit, QString& unitType, QString& unit) const
{
    return core.extractUnitTypeAndUnit(fixedUnit, unitType, unit);
}

QString UnitManager::getUnitText(const QString& unitType, const QString& language, const QString& unit) const
{
    return core.getUnitText(unitType, language, unit);
}

QVariant UnitManager::getUnitTextJsonMap(const QString& key) const
{
    return core.getUnitTextJsonMap(key);
}

bool UnitManager::isValid() const
{
    return core.isValid();
}

UnitManager::operator bool() const
{
    return isValid();
}

QString UnitManager::getNoUnitLabelTextId() const
{
    return PropertyManagerConst::getUnitTypeNamePrefix() + UnitManagerDefinitions::getUnitTypeNoUnit();
}

bool UnitManager::getDecimalPlacesForUnit(const QString& unitType, const QString& unit,
                                          unsigned int& decimalPlaces) const
{
    return core.getDecimalPlacesForUnit(unitType, unit, decimalPlaces);
}

QVariant UnitManager::roundDouble(const QVariant& value, unsigned int decimalPlaces) const
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (isNumber)
        return FloatRound::roundValue(number, decimalPlaces);
    LogContext{sourceName, __LINE__, Q_FUNC_INFO}.warning()
        << "Error on converting value to double" << value << "!";
    return 0.0;
}

QVariant UnitManager::fromBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const
{
    double number = 0.0;
    if (const ValueConversionWrapper* const conversion = findConversion(value, unitType, unit, number))
        return rounded(conversion->convertValue(number), *conversion);
    return roundToUnit(fromBaseUnitRaw(value, unitType, unit), unitType, unit);
}

QVariant UnitManager::toBaseUnit(const QVariant& value, const QString& unitType, const QString& unit) const
{
    double number = 0.0;
    if (const ValueConversionWrapper* const conversion = findConversion(value, unitType, unit, number))
        return rounded(conversion->invertValue(number), *conversion);
    return roundToUnit(toBaseUnitRaw(value, unitType, unit), unitType, unit);
}

QVariant UnitManager::roundToUnit(const QVariant& value, const QString& unitType, const QString& unit) const
{
    unsigned int decimalPlaces = 0;
    return core.getDecimalPlacesForUnit(unitType, unit, decimalPlaces) ? roundDouble(value, decimalPlaces)
                                                                       : value;
}

QVariant UnitManager::fromBaseUnitRaw(const QVariant& value, const QString& unitType,
                                      const QString& unit) const
{
    double number = 0.0;
    if (const ValueConversionWrapper* const conversion = findConversion(value, unitType, unit, number))
        return conversion->convertValue(number);
    return core.fromBaseUnit(value, unitType, unit);
}

QVariant UnitManager::toBaseUnitRaw(const QVariant& value, const QString& unitType, const QString& unit) const
{
    double number = 0.0;
    if (const ValueConversionWrapper* const conversion = findConversion(value, unitType, unit, number))
        return conversion->invertValue(number);
    QVariant converted = value;
    core.toBaseUnit(converted, unitType, unit);
    return converted;
}

const ValueConversionWrapper* UnitManager::findConversion(const QVariant& value, const QString& unitType,
                                                          const QString& unit, double& number) const
{
    return readNumber(value, number) ? core.findConversion(unitType, unit) : nullptr;
}

ValueConversionWrapper UnitManager::getConversion(const QString& unitType, const QString& unit) const
{
    if (const ValueConversionWrapper* const conversion = core.findConversion(unitType, unit))
        return *conversion;
    // Nothing to convert, or a failure: the single call knows, and logs the failure.
    core.fromBaseUnit(0.0, unitType, unit);
    return {};
}

void UnitManager::fromBaseUnitRaw(const double* values, double* results, std::size_t count,
                                  const QString& unitType, const QString& unit) const
{
    convertRun(values, results, count, getConversion(unitType, unit), &ValueConversionWrapper::convertValue);
}

void UnitManager::toBaseUnitRaw(const double* values, double* results, std::size_t count,
                                const QString& unitType, const QString& unit) const
{
    const ValueConversionWrapper* const conversion = core.findConversion(unitType, unit);
    if (!conversion)
        toBaseUnitRaw(0.0, unitType, unit); // logs a failure
    convertRun(values, results, count, conversion ? *conversion : ValueConversionWrapper(),
               &ValueConversionWrapper::invertValue);
}

QVariant UnitManager::getValue(const QVariant& value, const QString& unitType, const QString& unit) const
{
    return value.isValid() ? core.fromBaseUnit(value, unitType, unit) : QVariant();
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
    return core.fromBaseUnit(child, value, unit);
}

int UnitManager::setValueStatus(const QString& key, const BaseClassSharedPointer& node, const QVariant& value,
                                const QString& unit) const
{
    const BaseClassSharedPointer child = node ? node->getChild(key) : BaseClassSharedPointer();
    if (!child)
        return writeFailed;
    QVariant converted = value;
    if (!ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(value) &&
        !core.toBaseUnit(child, converted, unit))
        return writeFailed;
    return child->setProperty(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyValue(), converted);
}

bool UnitManager::setValue(const QString& key, const BaseClassSharedPointer& node, const QVariant& value,
                           const QString& unit) const
{
    return setValueStatus(key, node, value, unit) < writeFailed;
}

QString UnitManager::getUnitText(const QString& key, const BaseClassSharedPointer& node,
                                 const QString& language, const QString& unit) const
{
    const BaseClassSharedPointer child = node ? node->getChild(key) : BaseClassSharedPointer();
    return child ? core.getUnitText(child, language, unit) : QString();
}

QStringList UnitManager::getUnitText(const Array2dDataTypeWrapper& array, const QString& language,
                                     unsigned int firstColumn, unsigned int columnCount,
                                     const QString& unit) const
{
    const unsigned int endColumn = firstColumn + columnCount;
    const QStringList unitTypes = array.getColumnUnitTypes();
    QStringList texts;
    if (columnCount == 0 || !hasColumns(array, unitTypes, endColumn))
        return texts;
    for (unsigned int column = firstColumn; column < endColumn; ++column) {
        const QString& unitType = unitTypes.at(static_cast<int>(column));
        texts.append(unitType.isEmpty() ? QString() : core.getUnitText(unitType, language, unit));
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
    if (!hasCells(array, unitTypes, row, endColumn))
        return values;
    const QList<QVariant> cells = array.getRowValues(row);
    for (unsigned int column = firstColumn; column < endColumn; ++column) {
        const QVariant& cell = cells.at(static_cast<int>(column));
        const QString& unitType = unitTypes.at(static_cast<int>(column));
        values.append(isConvertible(cell, unitType) ? core.fromBaseUnit(cell, unitType, unit) : cell);
    }
    return values;
}

bool UnitManager::setValueArray(Array2dDataTypeWrapper& array, unsigned int row, unsigned int firstColumn,
                                unsigned int columnCount, const QList<QVariant>& values,
                                const QString& unit) const
{
    const unsigned int endColumn = firstColumn + columnCount;
    const QStringList unitTypes = array.getColumnUnitTypes();
    if (!hasCells(array, unitTypes, row, endColumn))
        return false;
    QList<QVariant> cells = array.getRowValues(row);
    bool allConverted = true;
    for (unsigned int column = firstColumn; column < endColumn; ++column) {
        QVariant& cell = cells[static_cast<int>(column)];
        const QString& unitType = unitTypes.at(static_cast<int>(column));
        cell = values.at(static_cast<int>(column - firstColumn));
        // Later cells are converted also after a failure: every one of them shall be reported.
        if (isConvertible(cell, unitType))
            allConverted = core.toBaseUnit(cell, unitType, unit) && allConverted;
    }
    return allConverted && array.setRowValues(cells, row);
}

const UnitManagerCore& UnitManager::unitManagerCore() const
{
    return core;
}
