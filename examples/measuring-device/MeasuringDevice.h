#pragma once

#include <QtCore/QList>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitManagerDevice/UnitManagerDevice.h"
#include "UnitManagerDevice/UnitManagerWrapper.h"

class ProcessDataValue;

/// A device application in small: it holds process values in base units and shows them as the current
/// configuration says.
class MeasuringDevice
{
public:
    /// @param language language of the labels
    explicit MeasuringDevice(const QString& language);

    /// One turn of the application's loop. @return whether a configuration was taken up in it, the first one
    /// included.
    bool poll();
    /// How many configurations were taken up.
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
