#pragma once

#include <QtCore/QList>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitManagerDevice/UnitManagerDevice.h"
#include "UnitManagerDevice/UnitManagerWrapper.h"

class ProcessDataValue;

/// A minimal device application: it holds process values in base units and shows them as configured.
class MeasuringDevice
{
public:
    /// @param language language of the labels
    explicit MeasuringDevice(const QString& language);

    /// One iteration of the application's loop. @return whether it loaded a configuration, including the
    /// first one.
    bool poll();
    /// The number of configurations loaded so far.
    int adoptedConfigurations() const;

private:
    struct ProcessEntry
    {
        QString name;
        QString unitType;
        QSharedPointer<ProcessDataValue> value;
    };

    void addProcessValue(const QString& name, const QString& unitType, double baseValue);
    void setUpOnce();
    void writeInCallersUnit();
    void fillMeasurementRange();
    QString shown(const ProcessEntry& entry);
    void printTable();
    void printChanges();

    QString m_language;
    UnitManagerWrapper m_units;
    QList<ProcessEntry> m_entries;
    BaseClassSharedPointer m_settings;
    QStringList m_lastShown;
    int m_adopted = 0;
};
