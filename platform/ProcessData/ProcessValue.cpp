#include "ProcessValue.h"

#include "ConfigurationAndProcessDataTools.h"

namespace {

bool isSameValue(const QVariant& left, const QVariant& right)
{
    if (left.userType() != right.userType())
        return false;
    return left == right || (ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(left) &&
                             ConfigurationAndProcessDataTools::isNoInputValueIndicatorSet(right));
}

} // namespace

ProcessValue::ProcessValue() : ProcessValue(ProcessDataDefinitions::ErrorTypeNotAvailable) {}

ProcessValue::ProcessValue(ProcessDataDefinitions::ErrorTypes errorType) : m_errorType(errorType) {}

ProcessValue::ProcessValue(const QVariant& value, ProcessDataDefinitions::ErrorTypes errorType)
    : m_value(value), m_errorType(errorType)
{}

ProcessValue::~ProcessValue() = default;

bool ProcessValue::operator==(const ProcessValue& other) const
{
    return m_errorType == other.m_errorType && m_timestamp == other.m_timestamp &&
           m_source == other.m_source && isSameValue(m_value, other.m_value);
}

bool ProcessValue::operator!=(const ProcessValue& other) const
{
    return !(*this == other);
}

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
