#pragma once

#include <QtCore/QVariant>

#include "ProcessDataDefinitions.h"

class ProcessValue
{
public:
    explicit ProcessValue(ProcessDataDefinitions::ErrorTypes errorType);
    ProcessValue(const ProcessValue&) = default;
    ProcessValue& operator=(const ProcessValue&) = default;
    virtual ~ProcessValue();

    QVariant getValue() const;
    void setValue(const QVariant& value);
    ProcessDataDefinitions::ErrorTypes getErrorType() const;
};
