#pragma once

#include <QtCore/QList>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"
#include "UnitManagerConnector/UnitManagerDBusConnector.h"
#include "UnitManagerExport.h"

class Array2dDataTypeWrapper;
class DependencyWalker;
class UnitManagerDevice;

/// The class for device applications: a unit manager that fetches its configuration from the
/// configuration-file service and keeps itself up to date.
///
/// Create it, call checkInitialized() until it returns true, and keep calling it regularly: every call
/// advances the connector and loads a changed configuration. hasUnitManagerConfigurationChanged() then
/// returns true once. The value operations may be called at any time: without a usable unit manager they
/// return values as they are stored, and empty texts.
///
/// @code
/// UnitManagerWrapper units("DeviceManager", "DefaultUnitConfiguration", "UnitManager/DefaultUnit", true,
/// true);
/// // on every poll of the application:
/// if (units.checkInitialized() && units.hasUnitManagerConfigurationChanged())
///     redraw();
/// const QVariant shown = units.getValue(nameOfChild, processData, QString()); // in the default unit
/// @endcode
///
/// Must be used from the thread that created it. Without signal polling that thread must run a Qt event loop,
/// or changes of the configuration are not detected; after a restart of the bus call reset(). With signal
/// polling no event loop is needed, and changes are detected again after a restart of the bus. Changes made
/// while the service or the bus was down are not announced: reset() reads everything again. Nothing throws.
///
/// A configuration that does not load replaces a good one: the wrapper then falls back to stored values until
/// a good one is read.
class UNITMANAGER_EXPORT UnitManagerWrapper
{
public:
    /// Units only. Change signals are always delivered by the event loop with this constructor.
    ///
    /// @param useAsynchronInterface whether configurations are read without blocking
    /// @param useSignalPolling only suppresses the first attempt
    UnitManagerWrapper(bool useAsynchronInterface, bool useSignalPolling);

    /// Deleted: two string literals would be converted to the two flags.
    template <typename Character>
    UnitManagerWrapper(const Character*, const Character*) = delete;

    /// Units and default units.
    ///
    /// @param defaultUnitService module name of the service of the default units, "DeviceManager"
    /// @param defaultUnitObject name of their object, "DefaultUnitConfiguration"
    /// @param defaultUnitConfiguration name of their configuration, "UnitManager/DefaultUnit"
    /// @param useAsynchronInterface whether configurations are read without blocking
    /// @param useSignalPolling whether change signals are polled; also suppresses the first attempt, so that
    /// the constructor reads nothing
    UnitManagerWrapper(const QString& defaultUnitService, const QString& defaultUnitObject,
                       const QString& defaultUnitConfiguration, bool useAsynchronInterface,
                       bool useSignalPolling);

    /// Units, dependencies and default units; a source with an empty name is not configured.
    UnitManagerWrapper(const QString& dependencyService, const QString& dependencyObject,
                       const QString& dependencyConfiguration, const QString& defaultUnitService,
                       const QString& defaultUnitObject, const QString& defaultUnitConfiguration,
                       bool useAsynchronInterface, bool useSignalPolling);
    virtual ~UnitManagerWrapper();

    /// Discards the unit manager and the dependency walker, applies new settings and starts again, without
    /// making a first attempt.
    ///
    /// @return true.
    virtual bool init(bool useAsynchronInterface, const QString& dependencyService,
                      const QString& dependencyObject, const QString& dependencyConfiguration,
                      const QString& defaultUnitService, const QString& defaultUnitObject,
                      const QString& defaultUnitConfiguration);

    /// Advances the connector and loads what it has built.
    ///
    /// @return whether the connector is idle. Also true, with a warning, when no unit manager could be built.
    bool checkInitialized();

    /// Whether the configuration has changed since the last call; the first configuration counts as a change.
    /// Loads what the connector has built, but does not advance it. Logs a warning when no unit manager could
    /// be built.
    bool hasUnitManagerConfigurationChanged();

    /// Starts again; unit manager and dependency walker are kept meanwhile. @return true.
    bool reset();

    /// Whether there is a usable unit manager.
    operator bool() const;
    /// The unit manager of the configuration loaded last, for operations that this class does not have.
    ///
    /// The object is shared with the connector and must not be modified. A later configuration creates a new
    /// object: a caller that keeps this one keeps the present configuration.
    ///
    /// @return null as long as there is none; it may be invalid after a configuration that did not load.
    QSharedPointer<const UnitManagerDevice> getUnitManager() const;

    /// The value of the child @p key of @p node, converted to @p unit (empty: the default unit). Without a
    /// unit manager, the stored value.
    QVariant getValue(const QString& key, const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                      const QString& unit) const;
    /// @p value converted from the base unit to @p unit, not rounded. Without a unit manager, @p value
    /// unchanged.
    QVariant getValue(const QVariant& value, const QString& unitType, const QString& unit) const;
    /// Cells of one row, each converted to @p unit. Without a unit manager, the stored values.
    QList<QVariant> getValueArray(const Array2dDataTypeWrapper& array, unsigned int row,
                                  unsigned int firstColumn, unsigned int columnCount,
                                  const QString& unit) const;
    /// Writes cells of one row, each converted from @p unit. Without a unit manager they are written
    /// unconverted.
    ///
    /// @return whether they were written.
    bool setValueArray(Array2dDataTypeWrapper& array, unsigned int row, unsigned int firstColumn,
                       unsigned int columnCount, const QList<QVariant>& values, const QString& unit) const;
    /// Writes a value to the child @p key of @p node, converted from @p unit, and resolves what depends on
    /// it. Without a unit manager it is written unconverted.
    ///
    /// @return 0 changed, 1 written without change; any higher value is a failure.
    int setValueStatus(const QString& key, const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                       const QVariant& value, const QString& unit);
    /// Writes a value like setValueStatus(). @return whether it was written.
    bool setValue(const QString& key, const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                  const QVariant& value, const QString& unit);

    /// The unit label of the child @p key of @p node; empty without a unit manager.
    QString getUnitText(const QString& key, const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                        const QString& language);
    /// The label of a fixed unit or of a unit type's default unit; empty without a unit manager.
    QString getUnitText(const QString& unitType, const QString& language);
    /// The unit label of one column; empty without a unit manager.
    QString getUnitTextArray(const Array2dDataTypeWrapper& array, unsigned int column,
                             const QString& language);
    /// The label, in all languages, of a fixed unit or of a unit type's base unit; a variant of "" without a
    /// unit manager.
    QVariant getUnitTextJsonMap(const QString& unitType) const;
    /// The base unit as a fixed unit; empty without a unit manager.
    QString getBaseUnit(const QString& unitType) const;

    /// Visits everything that depends on @p key.
    ///
    /// @param key key of the value that has changed
    /// @param node start node when there is no other one
    /// @param otherNode start node; if null, @p node is used
    /// @return true.
    bool resolveDependency(const QString& key, const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                           const QSharedPointer<ConfigurationAndProcessDataBase>& otherNode);

private:
    UNITMANAGER_NO_EXPORT bool adoptConfiguration();

    UnitManagerDBusConnector m_connector;
    QSharedPointer<DependencyWalker> m_dependencyWalker;
    QSharedPointer<UnitManagerDevice> m_unitManager;
};
