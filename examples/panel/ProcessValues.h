#pragma once

#include <QtCore/QObject>
#include <QtCore/QVariantList>

/// The simulated values of a device, all in base units, and a setting.
class ProcessValues : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double linePressure READ linePressure NOTIFY changed)
    Q_PROPERTY(double dewPoint READ dewPoint NOTIFY changed)
    Q_PROPERTY(double humidity READ humidity NOTIFY changed)
    /// A value in a fixed unit.
    Q_PROPERTY(double supplyPressure READ supplyPressure NOTIFY changed)
    /// The last values of the line pressure, oldest first.
    Q_PROPERTY(QVariantList linePressureHistory READ linePressureHistory NOTIFY changed)
    /// The largest number of values in the history, and the time between two of them in seconds.
    Q_PROPERTY(int historyLength READ historyLength CONSTANT)
    Q_PROPERTY(double period READ period CONSTANT)
    Q_PROPERTY(double alarmLimit MEMBER m_alarmLimit NOTIFY alarmLimitChanged)

public:
    /// Starts with a full history, at values without deviation.
    ProcessValues();

    /// The values one period later.
    void advance();

    double linePressure() const;
    double dewPoint() const;
    double humidity() const;
    double supplyPressure() const;
    QVariantList linePressureHistory() const;
    int historyLength() const;
    double period() const;

Q_SIGNALS:
    void changed();
    void alarmLimitChanged();

private:
    /// A deviation between -1 and 1, with that many cycles in the time of the history.
    double deviation(int cycles) const;

    int m_step = 0;
    double m_alarmLimit = 1.0421337;
    QVariantList m_history;
};
