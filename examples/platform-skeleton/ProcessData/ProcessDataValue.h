#pragma once

#include "ConfigurationAndProcessDataBase.h"
#include "ProcessValue.h"

class ProcessDataValue : public ConfigurationAndProcessDataBase
{
public:
    BaseClassSharedPointer getChild(const QString& key) const override;
    QVariant getProperty(const QString& propertyKey) const override;
    bool hasProperty(const QString& propertyKey) const override;
    int changeProperty(const QString& propertyKey, const QVariant& value) override;
    int setProperty(const QString& propertyKey, const QVariant& value) override;

    /// For callers that hold the lock. The library passes false.
    void getValueNoLock(ProcessValue& value, bool lastGood) const;
    /// For callers that hold the lock. The library ignores the result.
    bool setValueNoLock(const ProcessValue& value);
};
