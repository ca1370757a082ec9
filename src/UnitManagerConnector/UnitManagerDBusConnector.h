#pragma once

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>

#include "UnitManagerConnector/UnitManagerStateMachineWrapper.h"
#include "UnitManagerExport.h"

/// Fetches the configurations from the configuration-file service, builds a unit manager and a dependency
/// walker from them, and keeps them up to date.
///
/// Nothing happens between calls: each call of isUnitManagerInitialized() advances the connector. Call it
/// until it returns true, then regularly: it reads a changed configuration, builds new objects and reports
/// the change.
///
/// @code
/// UnitManagerDBusConnector connector(nullptr, true, true, "", "", "", "", "", "");
/// QSharedPointer<UnitManagerDevice> units;
/// // on every poll of the application:
/// if (connector.isUnitManagerInitialized() && connector.hasConfigurationChanged())
///     connector.initializeUnitManager(units);
/// @endcode
///
/// Must be used from the thread that created it. Without signal polling that thread must run a Qt event loop,
/// which delivers the service's change signals. Both signals of this class are emitted from inside
/// isUnitManagerInitialized().
class UNITMANAGER_EXPORT UnitManagerDBusConnector : public QObject
{
    Q_OBJECT

public:
    /// A source with an empty name is not configured. The source of the units is fixed.
    ///
    /// @param parent ignored: the holder owns the object
    /// @param useSignalPolling whether change signals are polled instead of delivered by the event loop
    /// @param useAsynchronInterface whether configurations are read without blocking
    /// @param dependencyService module name of the service of the dependencies
    /// @param dependencyObject name of their object
    /// @param dependencyConfiguration name of their configuration
    /// @param defaultUnitService module name of the service of the default units
    /// @param defaultUnitObject name of their object
    /// @param defaultUnitConfiguration name of their configuration
    UnitManagerDBusConnector(QObject* parent, bool useSignalPolling, bool useAsynchronInterface,
                             const QString& dependencyService, const QString& dependencyObject,
                             const QString& dependencyConfiguration, const QString& defaultUnitService,
                             const QString& defaultUnitObject, const QString& defaultUnitConfiguration);
    ~UnitManagerDBusConnector() override;

    /// Applies new settings and starts again; a recorded change stays recorded. @return true.
    virtual bool init(bool useAsynchronInterface, const QString& dependencyService,
                      const QString& dependencyObject, const QString& dependencyConfiguration,
                      const QString& defaultUnitService, const QString& defaultUnitObject,
                      const QString& defaultUnitConfiguration);

    /// Shares the built dependency walker. @return false, with @p out unchanged, when none has been built.
    virtual bool initializeDependencyWalker(QSharedPointer<DependencyWalker>& out);
    /// Shares the built unit manager. @return false, with @p out unchanged, when none has been built.
    virtual bool initializeUnitManager(QSharedPointer<UnitManagerDevice>& out);

    /// Advances the connector. When configurations are read without blocking, it performs one step and does
    /// not wait for replies. Otherwise it performs up to 100 steps, which block during reads, and ends early
    /// when the connector is idle or has failed.
    ///
    /// Without signal polling an idle connector does not detect a lost bus: call reset() after a restart of
    /// the bus. A change made while the service was down is not announced either; reset() reads everything
    /// again.
    ///
    /// @return whether the connector is idle, that is, every object that could be built is built.
    virtual bool isUnitManagerInitialized();

    /// Whether a configuration was loaded since the last call; the first configuration counts as well.
    virtual bool hasConfigurationChanged();

    /// Starts again and clears a recorded change. Built objects are kept. @return true.
    virtual bool reset();

Q_SIGNALS:
    /// Emitted just before objects are built from new texts, whether or not these load.
    void unitManagerConfigurationChanged();
    /// Emitted just before isUnitManagerInitialized() returns true.
    void unitManagerIsInitialized();

private:
    UNITMANAGER_NO_EXPORT bool stepToIdle();

    UnitManagerStateMachineWrapper m_stateMachineWrapper;
    bool m_configurationChanged = false;
    bool m_useSignalPolling;
};
