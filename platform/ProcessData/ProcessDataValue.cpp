#include "ProcessDataValue.h"

#include <mutex>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"
#include "WriteStatus.h"

namespace {

using Guard = std::lock_guard<const ProcessDataValue>;

bool isValueKey(const QString& propertyKey)
{
    return PropertyList::isSameKey(propertyKey,
                                   ConfigurationAndProcessDataDefinitions::getKeyDataPropertyValue());
}

} // namespace

ProcessDataValue::ProcessDataValue(const QString& unitType)
{
    m_properties.set(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyType(),
                     ConfigurationAndProcessDataDefinitions::getKeyDataTypeNumber());
    if (!unitType.isEmpty())
        m_properties.set(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyUnitType(), unitType);
}

ProcessDataValue::~ProcessDataValue() = default;

void ProcessDataValue::lock() const
{
    m_mutex.lock();
}

void ProcessDataValue::unlock() const
{
    m_mutex.unlock();
}

ProcessValue ProcessDataValue::getValue(bool lastGood) const
{
    const Guard guard(*this);
    ProcessValue value;
    getValueNoLock(value, lastGood);
    return value;
}

void ProcessDataValue::getValueNoLock(ProcessValue& value, bool lastGood) const
{
    value = m_value;
    if (lastGood)
        value.setValue(m_lastGood);
}

bool ProcessDataValue::setValue(const ProcessValue& value)
{
    const Guard guard(*this);
    return setValueNoLock(value);
}

bool ProcessDataValue::setValueNoLock(const ProcessValue& value)
{
    const bool changed = m_value != value;
    m_value = value;
    if (value.getErrorType() == ProcessDataDefinitions::ErrorTypeNone)
        m_lastGood = value.getValue();
    return changed;
}

BaseClassSharedPointer ProcessDataValue::getChild(const QString& /*key*/) const
{
    return {};
}

QVariant ProcessDataValue::getProperty(const QString& propertyKey) const
{
    const Guard guard(*this);
    return isValueKey(propertyKey) ? m_value.getValue() : m_properties.value(propertyKey);
}

bool ProcessDataValue::hasProperty(const QString& propertyKey) const
{
    const Guard guard(*this);
    return isValueKey(propertyKey) ? m_value.getValue().isValid() : m_properties.contains(propertyKey);
}

int ProcessDataValue::changeProperty(const QString& propertyKey, const QVariant& value)
{
    const Guard guard(*this);
    return hasProperty(propertyKey) ? setProperty(propertyKey, value) : WriteStatus::refused;
}

int ProcessDataValue::setProperty(const QString& propertyKey, const QVariant& value)
{
    const Guard guard(*this);
    if (m_properties.value(ConfigurationAndProcessDataDefinitions::getKeyDataPropertyReadOnly()).toBool())
        return WriteStatus::refused;
    if (isValueKey(propertyKey))
        return setNumber(value);
    if (!value.isValid())
        return WriteStatus::refused;

    const QVariant old = m_properties.value(propertyKey);
    if (old.userType() == value.userType() && old == value)
        return WriteStatus::unchanged;

    m_properties.set(propertyKey, value);
    return WriteStatus::changed;
}

int ProcessDataValue::setNumber(const QVariant& number)
{
    if (!ConfigurationAndProcessDataTools::isVariantNumber(number))
        return WriteStatus::refused;
    if (m_value.getErrorType() == ProcessDataDefinitions::ErrorTypeNone && m_value.getValue() == number)
        return WriteStatus::unchanged;
    setValueNoLock(ProcessValue(number, ProcessDataDefinitions::ErrorTypeNone));
    return WriteStatus::changed;
}
