#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QStringList>

#include "ConfigurationService.h"
#include "UnitManagerConnector/UnitManagerDBusConnector.h"
#include "UnitManagerDevice/UnitManagerDevice.h"

/// The signals of a connector that has loaded a configuration.
const QStringList changedAndInitialized{"changed", "initialized"};

/// A connector that records its signals.
class ObservedConnector : public UnitManagerDBusConnector
{
public:
    ObservedConnector(bool useSignalPolling, bool useAsynchronInterface)
        : UnitManagerDBusConnector(nullptr, useSignalPolling, useAsynchronInterface, TestSource::module,
                                   TestSource::dependencyObject, TestSource::dependencyName,
                                   TestSource::module, TestSource::defaultUnitObject,
                                   TestSource::defaultUnitName)
    {
        observe();
    }

    /// Reads the units only.
    explicit ObservedConnector(bool useAsynchronInterface)
        : UnitManagerDBusConnector(nullptr, true, useAsynchronInterface, "", "", "", "", "", "")
    {
        observe();
    }

    QStringList takeSignals()
    {
        QStringList taken;
        taken.swap(m_signals);
        return taken;
    }

    QSharedPointer<UnitManagerDevice> unitManager()
    {
        QSharedPointer<UnitManagerDevice> out;
        initializeUnitManager(out);
        return out;
    }

private:
    void observe()
    {
        connect(this, &UnitManagerDBusConnector::unitManagerConfigurationChanged, this,
                [this] { m_signals.append("changed"); });
        connect(this, &UnitManagerDBusConnector::unitManagerIsInitialized, this,
                [this] { m_signals.append("initialized"); });
    }

    QStringList m_signals;
};
