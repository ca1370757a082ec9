#pragma once

#include "ProcessDataDefinitions.h"
#include "ProcessDataExport.h"

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// A measured value at one moment: the value, what is wrong with it, and where it comes from. A plain value.
class PROCESSDATA_EXPORT ProcessValue
{
public:
    /// No value: error type ErrorTypeNotAvailable.
    ProcessValue();
    explicit ProcessValue(ProcessDataDefinitions::ErrorTypes errorType);
    ProcessValue(const QVariant& value, ProcessDataDefinitions::ErrorTypes errorType);
    virtual ~ProcessValue();
    ProcessValue(const ProcessValue&) = default;
    ProcessValue& operator=(const ProcessValue&) = default;

    /// Whether all members are equal; two values are when they are of one type, and a NaN equals a NaN.
    bool operator==(const ProcessValue& other) const;
    bool operator!=(const ProcessValue& other) const;

    QVariant getValue() const;
    void setValue(const QVariant& value);

    ProcessDataDefinitions::ErrorTypes getErrorType() const;
    void setErrorType(ProcessDataDefinitions::ErrorTypes errorType);

    /// When the value was measured; invalid when unknown.
    QDateTime getTimestamp() const;
    void setTimestamp(const QDateTime& timestamp);

    /// The name of the sensor or module that measured; empty when unknown.
    QString getSource() const;
    void setSource(const QString& source);

private:
    QVariant m_value;
    ProcessDataDefinitions::ErrorTypes m_errorType;
    QDateTime m_timestamp;
    QString m_source;
};
