#include "ProcessDataValue.h"
#include "ProcessMeasurementAttributes.h"

ProcessValue::ProcessValue(ProcessDataDefinitions::ErrorTypes /*errorType*/) {}

ProcessValue::~ProcessValue() = default;

QVariant ProcessValue::getValue() const
{
    return {};
}

void ProcessValue::setValue(const QVariant& /*value*/) {}

ProcessDataDefinitions::ErrorTypes ProcessValue::getErrorType() const
{
    return ProcessDataDefinitions::ErrorTypeNotAvailable;
}

BaseClassSharedPointer ProcessDataValue::getChild(const QString& /*key*/) const
{
    return {};
}

QVariant ProcessDataValue::getProperty(const QString& /*propertyKey*/) const
{
    return {};
}

bool ProcessDataValue::hasProperty(const QString& /*propertyKey*/) const
{
    return false;
}

int ProcessDataValue::changeProperty(const QString& /*propertyKey*/, const QVariant& /*value*/)
{
    return 2;
}

int ProcessDataValue::setProperty(const QString& /*propertyKey*/, const QVariant& /*value*/)
{
    return 2;
}

void ProcessDataValue::getValueNoLock(ProcessValue& /*value*/, bool /*lastGood*/) const {}

bool ProcessDataValue::setValueNoLock(const ProcessValue& /*value*/)
{
    return false;
}

ProcessMeasurementAttributes::ProcessMeasurementAttributes(const QVariant& /*attributes*/) {}

void ProcessMeasurementAttributes::setUnit(int /*index*/, const QString& /*unit*/) {}

void ProcessMeasurementAttributes::setUnitText(int /*index*/, const QVariant& /*textMap*/) {}

QVariant ProcessMeasurementAttributes::getMeasurementAttributeObject() const
{
    return {};
}
