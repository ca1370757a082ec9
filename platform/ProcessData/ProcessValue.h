#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include "ProcessDataDefinitions.h"
#include "ProcessDataExport.h"

/// A measured value at one moment: the value, its error and its source. A plain value.
class PROCESSDATA_EXPORT ProcessValue
{
public:
    /// Creates an object without a value: error type ErrorTypeNotAvailable.
    ProcessValue();
    explicit ProcessValue(ProcessDataDefinitions::ErrorTypes errorType);
    ProcessValue(const QVariant& value, ProcessDataDefinitions::ErrorTypes errorType);
    virtual ~ProcessValue();
    ProcessValue(const ProcessValue&) = default;
    ProcessValue& operator=(const ProcessValue&) = default;

    /// Whether all members are equal. Values are equal only if they have the same type; a NaN equals a NaN.
    bool operator==(const ProcessValue& other) const;
    bool operator!=(const ProcessValue& other) const;

    QVariant getValue() const;
    void setValue(const QVariant& value);

    ProcessDataDefinitions::ErrorTypes getErrorType() const;
    void setErrorType(ProcessDataDefinitions::ErrorTypes errorType);

    /// The time of measurement; invalid when unknown.
    QDateTime getTimestamp() const;
    void setTimestamp(const QDateTime& timestamp);

    /// The name of the sensor or module that measured the value; empty when unknown.
    QString getSource() const;
    void setSource(const QString& source);

private:
    QVariant m_value;
    ProcessDataDefinitions::ErrorTypes m_errorType;
    QDateTime m_timestamp;
    QString m_source;
};
