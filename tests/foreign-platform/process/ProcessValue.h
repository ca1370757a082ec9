#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include "ProcessDataDefinitions.h"

/// A measured value, its error, time and source.
class ProcessValue
{
public:
    ProcessValue();
    explicit ProcessValue(ProcessDataDefinitions::ErrorTypes errorType);
    ProcessValue(const QVariant& value, ProcessDataDefinitions::ErrorTypes errorType);
    ProcessValue(const ProcessValue&) = default;
    ProcessValue& operator=(const ProcessValue&) = default;
    virtual ~ProcessValue();

    QVariant getValue() const;
    void setValue(const QVariant& value);
    ProcessDataDefinitions::ErrorTypes getErrorType() const;
    void setErrorType(ProcessDataDefinitions::ErrorTypes errorType);
    QDateTime getTimestamp() const;
    void setTimestamp(const QDateTime& timestamp);
    QString getSource() const;
    void setSource(const QString& source);

private:
    ProcessDataDefinitions::ErrorTypes m_errorType;
    QVariant m_value;
    QString m_source;
    QDateTime m_timestamp;
};
