#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include "ProcessValue.h"
#include "UnitManager.h"
#include "UnitManagerExport.h"

class ProcessDataValue;

/// A unit manager that also reads and writes live process-data values in the caller's unit, while the value
/// itself is stored in the base unit.
///
/// Callers of both operations must already hold the lock of the process-data value. Neither operation rounds.
class UNITMANAGER_EXPORT UnitManagerDevice : public UnitManager
{
public:
    UnitManagerDevice();
    ~UnitManagerDevice() override;

    /// @param processDataValue the live value, which the caller has locked
    /// @param unit unit of the result; empty for the default unit
    /// @return the value converted from the base unit, or unchanged if it carries an error; error type 3 for
    /// a null @p processDataValue.
    ProcessValue getValueNoLock(const QSharedPointer<ProcessDataValue>& processDataValue,
                                const QString& unit) const;

    /// Writes @p value converted to the base unit; a value that carries an error is written unchanged.
    ///
    /// @param processDataValue the live value, which the caller has locked
    /// @param value the new value with its error type
    /// @param unit unit of @p value; empty for the default unit
    /// @return false, with nothing written, for a null @p processDataValue and a value that cannot be
    /// converted.
    bool setValueNoLock(const QSharedPointer<ProcessDataValue>& processDataValue, const ProcessValue& value,
                        const QString& unit) const;

private:
    UNITMANAGER_NO_EXPORT bool convertInPlace(const ConfigurationAndProcessDataBase& node, QVariant& value,
                                              const QString& unit, ConversionDirection direction) const;
};
