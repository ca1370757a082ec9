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

/// What a device application holds: a unit manager that fetches its configuration from the configuration-file
/// service and keeps itself current.
///
/// Build it, call checkInitialized() until it is true, and go on calling it regularly: every call advances
/// the connector, and a changed configuration is read and taken up inside it.
/// hasUnitManagerConfigurationChanged() then says so once. The value operations may be called at any time: as
/// long as there is no usable unit manager they give values as they are stored and empty texts.
///
/// @code
/// UnitManagerWrapper units("DeviceManager", "DefaultUnitConfiguration", "UnitManager/DefaultUnit", true,
/// true);
/// // on every poll of the application:
/// if (units.checkInitialized() && units.hasUnitManagerConfigurationChanged())
///     redraw();
/// const QVariant shown = units.getValue("Pressure", processData, QString()); // in the default unit
/// @endcode
///
/// Used from the thread that built it. Without signal polling that thread must run a Qt event loop, or
/// changes of the configuration go unnoticed; with it none is needed, and changes are heard again after the
/// bus was restarted, where without it reset() is needed. Changes made while the service or the bus was down
/// are announced by nobody: reset() reads everything again. Nothing throws.
///
/// A configuration that does not load replaces a good one: the wrapper then falls back to stored values until
/// a good one is read.
class UNITMANAGER_EXPORT UnitManagerWrapper
{
public:
    /// Units only. Change signals are always delivered by the event loop here; @p useSignalPolling only
    /// suppresses the first attempt.
    ///
    /// @param useAsynchronInterface whether configurations are read without blocking
    UnitManagerWrapper(bool useAsynchronInterface, bool useSignalPolling);

    /// Not available: two string literals would be taken for the two flags.
    template <typename Character>
    UnitManagerWrapper(const Character*, const Character*) = delete;

    /// Units and default units; the names are service, object and configuration of the default units.
    ///
    /// @param useAsynchronInterface whether configurations are read without blocking
    /// @param useSignalPolling whether change signals are polled; also suppresses the first attempt, so that
    /// nothing is read inside the constructor
    UnitManagerWrapper(const QString& defaultUnitService, const QString& defaultUnitObject,
                       const QString& defaultUnitConfiguration, bool useAsynchronInterface,
                       bool useSignalPolling);

    /// Units, dependencies and default units; a source with an empty name is not configured.
    UnitManagerWrapper(const QString& dependencyService, const QString& dependencyObject,
                       const QString& dependencyConfiguration, const QString& defaultUnitService,
                       const QString& defaultUnitObject, const QString& defaultUnitConfiguration,
                       bool useAsynchronInterface, bool useSignalPolling);
    virtual ~UnitManagerWrapper();

    /// Drops the unit manager and the dependency walker, takes over new settings and starts again; no attempt
    /// is made.
    ///
    /// @return true.
    virtual bool init(bool useAsynchronInterface, const QString& dependencyService,
                      const QString& dependencyObject, const QString& dependencyConfiguration,
                      const QString& defaultUnitService, const QString& defaultUnitObject,
                      const QString& defaultUnitConfiguration);

    /// Advances the connector and takes up what it has built.
    ///
    /// @return whether the connector idles. Also true, with a warning, when no unit manager could be built.
    bool checkInitialized();

    /// Whether the configuration has changed since the last call; the first one counts. Takes up what was
    /// built and does not advance the connector. Logs a warning when no unit manager could be built.
    bool hasUnitManagerConfigurationChanged();

    /// Starts again; unit manager and dependency walker stay meanwhile. @return true.
    bool reset();

    /// Whether there is a usable unit manager.
    operator bool() const;
    /// The unit manager of the configuration taken up last, for all that it knows beyond the operations
    /// below.
    ///
    /// The connector shares the object, which is therefore not to be changed. A later configuration comes as
    /// another object: a caller that keeps this one keeps the units of this moment.
    ///
    /// @return null as long as there is none; it may be invalid after a configuration that did not load.
    QSharedPointer<const UnitManagerDevice> getUnitManager() const;

    /// The value of the child @p key of @p node, converted to @p unit (empty: the default unit). Without unit
    /// manager as it is stored.
    QVariant getValue(const QString& key, const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                      const QString& unit) const;
    /// @p value converted from the base unit to @p unit, not rounded. Without unit manager @p value itself.
    QVariant getValue(const QVariant& value, const QString& unitType, const QString& unit) const;
    /// Cells of one row, each converted to @p unit. Without unit manager as they are stored.
    QList<QVariant> getValueArray(const Array2dDataTypeWrapper& array, unsigned int row,
                                  unsigned int firstColumn, unsigned int columnCount,
                                  const QString& unit) const;
    /// Writes cells of one row, each converted from @p unit. Without unit manager as they are given.
    ///
    /// @return whether they were written.
    bool setValueArray(Array2dDataTypeWrapper& array, unsigned int row, unsigned int firstColumn,
                       unsigned int columnCount, const QList<QVariant>& values, const QString& unit) const;
    /// Writes a value to the child @p key of @p node, converted from @p unit, and resolves what depends on
    /// it. Without unit manager it is written as it is given.
    ///
    /// @return 0 changed, 1 written without change, more than that: failure.
    int setValueStatus(const QString& key, const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                       const QVariant& value, const QString& unit);
    /// Whether setValueStatus() wrote the value.
    bool setValue(const QString& key, const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                  const QVariant& value, const QString& unit);

    /// The unit label of the child @p key of @p node; empty without unit manager.
    QString getUnitText(const QString& key, const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                        const QString& language);
    /// The label of a fixed unit or of a unit type's default unit; empty without unit manager.
    QString getUnitText(const QString& unitType, const QString& language);
    /// The unit label of one column; empty without unit manager.
    QString getUnitTextArray(const Array2dDataTypeWrapper& array, unsigned int column,
                             const QString& language);
    /// The label, in all languages, of a fixed unit or of a unit type's base unit; a variant of "" without
    /// unit manager.
    QVariant getUnitTextJsonMap(const QString& unitType) const;
    /// The base unit as a fixed unit; empty without unit manager.
    QString getBaseUnit(const QString& unitType) const;

    /// Visits everything that depends on @p key.
    ///
    /// @param otherNode where to start; null for @p node
    /// @return true.
    bool resolveDependency(const QString& key, const QSharedPointer<ConfigurationAndProcessDataBase>& node,
                           const QSharedPointer<ConfigurationAndProcessDataBase>& otherNode);

private:
    UNITMANAGER_NO_EXPORT bool adoptConfiguration();

    UnitManagerDBusConnector m_connector;
    QSharedPointer<DependencyWalker> m_dependencyWalker;
    QSharedPointer<UnitManagerDevice> m_unitManager;
};
