#pragma once

#include <QtCore/QMutex>

#include "ConfigurationAndProcessDataBase.h"
#include "ProcessValue.h"

/// A live value, which is a number node without children. It has a lock of its own.
class ProcessDataValue : public ConfigurationAndProcessDataBase
{
public:
    explicit ProcessDataValue(const QString& unitType);
    ~ProcessDataValue() override;

    void lock() const;
    void unlock() const;

    ProcessValue getValue(bool lastGood = false) const;
    void setValue(const ProcessValue& value);
    /// For callers that hold the lock.
    /// @param lastGood whether a faulty value has the number of the last good one
    void getValueNoLock(ProcessValue& value, bool lastGood) const;
    /// For callers that hold the lock. @return whether the number or the error has changed.
    bool setValueNoLock(const ProcessValue& value);

    BaseClassSharedPointer getChild(const QString& key) const override;
    QVariant getProperty(const QString& propertyKey) const override;
    bool hasProperty(const QString& propertyKey) const override;
    int changeProperty(const QString& propertyKey, const QVariant& value) override;
    int setProperty(const QString& propertyKey, const QVariant& value) override;

private:
    const QString m_unitType;
    mutable QMutex m_mutex{QMutex::Recursive};
    ProcessValue m_value;
    QVariant m_lastGood;
};
