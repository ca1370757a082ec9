#pragma once

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include "UnitManagerConnector/UnitManagerStateMachineWrapper.h"
#include "UnitManagerExport.h"

/// Fetches the configurations from the configuration-file service, builds a unit manager and a dependency
/// walker from them, and keeps them current.
///
/// Nothing happens between calls: every isUnitManagerInitialized() advances the connector. Call it until it
/// is true, then regularly: a change of a configuration is read, built and announced inside it.
///
/// @code
/// UnitManagerDBusConnector connector(nullptr, true, true, "", "", "", "", "", "");
/// QSharedPointer<UnitManagerDevice> units;
/// // on every poll of the application:
/// if (connector.isUnitManagerInitialized() && connector.hasConfigurationChanged())
///     connector.initializeUnitManager(units);
/// @endcode
///
/// Used from the thread that built it. Without signal polling that thread must run a Qt event loop, which
/// delivers the service's change signals. Both signals of this class are emitted from inside
/// isUnitManagerInitialized().
class UNITMANAGER_EXPORT UnitManagerDBusConnector : public QObject
{
    Q_OBJECT

public:
    /// The six names are service, object and configuration of the dependency file and of the default units; a
    /// source with an empty name is not configured. The source of the units is fixed.
    ///
    /// @param parent ignored: the object belongs to its holder
    /// @param useSignalPolling whether change signals are polled instead of delivered by the event loop
    /// @param useAsynchronInterface whether configurations are read without blocking
    UnitManagerDBusConnector(QObject* parent, bool useSignalPolling, bool useAsynchronInterface,
                             const QString& dependencyService, const QString& dependencyObject,
                             const QString& dependencyConfiguration, const QString& defaultUnitService,
                             const QString& defaultUnitObject, const QString& defaultUnitConfiguration);
    ~UnitManagerDBusConnector() override;

    /// Takes over new settings and starts again; a noted change stays noted. @return true.
    virtual bool init(bool useAsynchronInterface, const QString& dependencyService,
                      const QString& dependencyObject, const QString& dependencyConfiguration,
                      const QString& defaultUnitService, const QString& defaultUnitObject,
                      const QString& defaultUnitConfiguration);

    /// Shares the built dependency walker. @return false, with @p out untouched, when none has been built.
    virtual bool initializeDependencyWalker(QSharedPointer<DependencyWalker>& out);
    /// Shares the built unit manager. @return false, with @p out untouched, when none has been built.
    virtual bool initializeUnitManager(QSharedPointer<UnitManagerDevice>& out);

    /// Advances the connector: one step, which waits for no configuration, when configurations are read
    /// without blocking; else up to 100 steps, which block during the reads and end early when the connector
    /// idles or has failed.
    ///
    /// Without polled signals a lost bus is not noticed once the connector idles: call reset() after the bus
    /// was restarted. A change made while the service was down is not announced by it either; reset() reads
    /// everything again.
    ///
    /// @return whether the connector idles, so that what could be built is built.
    virtual bool isUnitManagerInitialized();

    /// Whether a configuration was taken up since the last call; the first one counts.
    virtual bool hasConfigurationChanged();

    /// Starts again and forgets a noted change. Built objects stay. @return true.
    virtual bool reset();

Q_SIGNALS:
    /// Objects are about to be built from what was read, whether or not it loads.
    void unitManagerConfigurationChanged();
    /// isUnitManagerInitialized() is about to return true.
    void unitManagerIsInitialized();

private:
    UNITMANAGER_NO_EXPORT bool stepToIdle();

    UnitManagerStateMachineWrapper m_stateMachineWrapper;
    bool m_configurationChanged = false;
    bool m_useSignalPolling;
};
