#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <mutex>

#include "ConfigurationAndProcessDataBase.h"
#include "ProcessDataExport.h"
#include "ProcessValue.h"
#include "PropertyList.h"

/// A live measured value that is also a node of the configuration tree: a number node without children. Its
/// value property is the value of the current ProcessValue, and its unit type is a property.
///
/// Thread-safe: every operation takes the lock, except those named NoLock. To combine several operations,
/// hold the lock around them (it is recursive):
///
///     const std::lock_guard<const ProcessDataValue> guard(*pressure);
///     pressure->getValueNoLock(value, false);
class PROCESSDATA_EXPORT ProcessDataValue : public ConfigurationAndProcessDataBase
{
public:
    /// Creates an object without a value: see ProcessValue::ProcessValue().
    /// @param unitType the full name of the unit type; empty for none.
    explicit ProcessDataValue(const QString& unitType);
    ~ProcessDataValue() override;

    void lock() const;
    void unlock() const;

    /// The current value.
    /// @param lastGood when true, a faulty value contains the last good value's number with its own error
    /// type.
    ProcessValue getValue(bool lastGood = false) const;
    /// Stores the current value in `value`, for callers that hold the lock; see getValue().
    void getValueNoLock(ProcessValue& value, bool lastGood) const;

    /// Replaces the current value.
    /// @return whether it differs from the previous one.
    bool setValue(const ProcessValue& value);
    /// Replaces the current value, for callers that hold the lock; see setValue().
    bool setValueNoLock(const ProcessValue& value);

    BaseClassSharedPointer getChild(const QString& key) const override;
    QVariant getProperty(const QString& propertyKey) const override;
    bool hasProperty(const QString& propertyKey) const override;
    int changeProperty(const QString& propertyKey, const QVariant& value) override;
    /// Writing the value property sets a good ProcessValue; a value that is not a number is refused.
    int setProperty(const QString& propertyKey, const QVariant& value) override;

private:
    int setNumber(const QVariant& number);

    mutable std::recursive_mutex m_mutex;
    PropertyList m_properties;
    ProcessValue m_value;
    QVariant m_lastGood;
};
