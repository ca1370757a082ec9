#include "UnitManagerDevice/UnitManagerDevice.h"

#include "ProcessDataValue.h"
#include "UnitConversion/FoundConversion.h"

namespace {

// Every platform defines these values; the names of its enumerators may differ.
const auto noError = ProcessDataDefinitions::ErrorTypes(0);
const auto notReadable = ProcessDataDefinitions::ErrorTypes(3);

} // namespace

UnitManagerDevice::UnitManagerDevice() = default;

UnitManagerDevice::~UnitManagerDevice() = default;

ProcessValue UnitManagerDevice::getValueNoLock(const QSharedPointer<ProcessDataValue>& processDataValue,
                                               const QString& unit) const
{
    ProcessValue result(notReadable);
    if (!processDataValue)
        return result;
    processDataValue->getValueNoLock(result, false);
    if (result.getErrorType() != noError)
        return result;
    QVariant converted = result.getValue();
    convertInPlace(*processDataValue, converted, unit, ConversionDirection::FromBaseUnit);
    result.setValue(converted);
    return result;
}

bool UnitManagerDevice::setValueNoLock(const QSharedPointer<ProcessDataValue>& processDataValue,
                                       const ProcessValue& value, const QString& unit) const
{
    if (!processDataValue)
        return false;
    ProcessValue stored = value;
    if (stored.getErrorType() == noError) {
        QVariant converted = stored.getValue();
        if (!convertInPlace(*processDataValue, converted, unit, ConversionDirection::ToBaseUnit))
            return false;
        stored.setValue(converted);
    }
    processDataValue->setValueNoLock(stored);
    return true;
}

bool UnitManagerDevice::convertInPlace(const ConfigurationAndProcessDataBase& node, QVariant& value,
                                       const QString& unit, ConversionDirection direction) const
{
    return unitManagerCore().find(node, unit, direction).convert(value);
}
