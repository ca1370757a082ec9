#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"
#include "ProcessDataValue.h"
#include "ProcessMeasurementAttributes.h"

using Definitions = ConfigurationAndProcessDataDefinitions;

ProcessValue::ProcessValue() : ProcessValue(ProcessDataDefinitions::ErrorTypeNotAvailable) {}

ProcessValue::ProcessValue(ProcessDataDefinitions::ErrorTypes errorType) : m_errorType(errorType) {}

ProcessValue::ProcessValue(const QVariant& value, ProcessDataDefinitions::ErrorTypes errorType)
    : m_errorType(errorType), m_value(value)
{}

ProcessValue::~ProcessValue() = default;

QVariant ProcessValue::getValue() const
{
    return m_value;
}

void ProcessValue::setValue(const QVariant& value)
{
    m_value = value;
}

ProcessDataDefinitions::ErrorTypes ProcessValue::getErrorType() const
{
    return m_errorType;
}

void ProcessValue::setErrorType(ProcessDataDefinitions::ErrorTypes errorType)
{
    m_errorType = errorType;
}

QDateTime ProcessValue::getTimestamp() const
{
    return m_timestamp;
}

void ProcessValue::setTimestamp(const QDateTime& timestamp)
{
    m_timestamp = timestamp;
}

QString ProcessValue::getSource() const
{
    return m_source;
}

void ProcessValue::setSource(const QString& source)
{
    m_source = source;
}

ProcessDataValue::ProcessDataValue(const QString& unitType) : m_unitType(unitType) {}

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
    const QMutexLocker guard(&m_mutex);
    ProcessValue value;
    getValueNoLock(value, lastGood);
    return value;
}

void ProcessDataValue::setValue(const ProcessValue& value)
{
    const QMutexLocker guard(&m_mutex);
    setValueNoLock(value);
}

void ProcessDataValue::getValueNoLock(ProcessValue& value, bool lastGood) const
{
    value = m_value;
    if (lastGood && m_value.getErrorType() != ProcessDataDefinitions::ErrorTypeNone)
        value.setValue(m_lastGood);
}

bool ProcessDataValue::setValueNoLock(const ProcessValue& value)
{
    const bool isEqual =
        value.getValue() == m_value.getValue() && value.getErrorType() == m_value.getErrorType();
    m_value = value;
    if (value.getErrorType() == ProcessDataDefinitions::ErrorTypeNone)
        m_lastGood = value.getValue();
    return !isEqual;
}

BaseClassSharedPointer ProcessDataValue::getChild(const QString& /*key*/) const
{
    return {};
}

QVariant ProcessDataValue::getProperty(const QString& propertyKey) const
{
    if (propertyKey == Definitions::getKeyDataPropertyValue())
        return getValue().getValue();
    if (propertyKey == Definitions::getKeyDataPropertyType())
        return Definitions::getKeyDataTypeNumber();
    if (propertyKey == Definitions::getKeyDataPropertyUnitType() && !m_unitType.isEmpty())
        return m_unitType;
    return {};
}

bool ProcessDataValue::hasProperty(const QString& propertyKey) const
{
    return getProperty(propertyKey).isValid();
}

int ProcessDataValue::changeProperty(const QString& propertyKey, const QVariant& value)
{
    return hasProperty(propertyKey) ? setProperty(propertyKey, value) : 2;
}

int ProcessDataValue::setProperty(const QString& propertyKey, const QVariant& value)
{
    if (propertyKey != Definitions::getKeyDataPropertyValue() ||
        !ConfigurationAndProcessDataTools::isVariantNumber(value))
        return 2;
    const QMutexLocker guard(&m_mutex);
    return setValueNoLock(ProcessValue(value.toDouble(), ProcessDataDefinitions::ErrorTypeNone)) ? 0 : 1;
}

ProcessMeasurementAttributes::ProcessMeasurementAttributes(const QVariant& attributes)
    : m_ranges(attributes.userType() == QMetaType::QVariantMap ? QVariantList{attributes}
                                                               : attributes.toList())
{}

void ProcessMeasurementAttributes::setUnit(int index, const QString& unit)
{
    set(index, QStringLiteral("unit"), unit);
}

void ProcessMeasurementAttributes::setUnitText(int index, const QVariant& textMap)
{
    set(index, QStringLiteral("unitText"), textMap);
}

QString ProcessMeasurementAttributes::getUnit(int index) const
{
    return m_ranges.value(index).toMap().value(QStringLiteral("unit")).toString();
}

QVariant ProcessMeasurementAttributes::getUnitText(int index) const
{
    return m_ranges.value(index).toMap().value(QStringLiteral("unitText"));
}

QVariant ProcessMeasurementAttributes::getMeasurementAttributeObject() const
{
    return m_ranges;
}

void ProcessMeasurementAttributes::set(int index, const QString& member, const QVariant& value)
{
    if (index < 0)
        return;
    while (m_ranges.size() <= index)
        m_ranges.append(QVariantMap());
    QVariantMap range = m_ranges.at(index).toMap();
    range.insert(member, value);
    m_ranges[index] = range;
}
