#pragma once

#include "ConfigurationAndProcessDataBase.h"
#include "ProcessDataExport.h"
#include "ProcessValue.h"
#include "PropertyList.h"

#include <QtCore/QMutex>
#include <QtCore/QString>
#include <QtCore/QVariant>

/// A live measured value that is a node of the configuration tree as well: a number node without children,
/// whose value property is the value of the current ProcessValue and whose unit type is a property.
///
/// May be used by several threads. Every operation but those named NoLock takes the lock; a caller that needs
/// several operations in one takes it around them (the lock is recursive):
///
///     const std::lock_guard<const ProcessDataValue> guard(*pressure);
///     pressure->getValueNoLock(value, false);
class PROCESSDATA_EXPORT ProcessDataValue : public ConfigurationAndProcessDataBase
{
public:
    /// Has no value yet: see ProcessValue::ProcessValue().
    /// @param unitType the full name of the unit type; empty for none.
    explicit ProcessDataValue(const QString& unitType);
    ~ProcessDataValue() override;

    void lock() const;
    void unlock() const;

    /// The current value.
    /// @param lastGood when true, a faulty value carries the last good value's number beside its own error
    /// type.
    ProcessValue getValue(bool lastGood = false) const;
    /// getValue() into `value`, for callers that hold the lock.
    void getValueNoLock(ProcessValue& value, bool lastGood) const;

    /// Replaces the current value.
    /// @return whether it differs from the one before.
    bool setValue(const ProcessValue& value);
    /// setValue() for callers that hold the lock.
    bool setValueNoLock(const ProcessValue& value);

    BaseClassSharedPointer getChild(const QString& key) const override;
    QVariant getProperty(const QString& propertyKey) const override;
    bool hasProperty(const QString& propertyKey) const override;
    int changeProperty(const QString& propertyKey, const QVariant& value) override;
    /// Writing the value property sets a good ProcessValue; what is no number is refused.
    int setProperty(const QString& propertyKey, const QVariant& value) override;

private:
    int setNumber(const QVariant& number);

    mutable QRecursiveMutex m_mutex;
    PropertyList m_properties;
    ProcessValue m_value;
    QVariant m_lastGood;
};
