#pragma once

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QObject>
#include <QtCore/QString>

#include "UnitManagerExport.h"

/// Common definitions of the connector: the configuration sources, the result of opening one, and the keys of
/// its settings.
class UNITMANAGER_EXPORT UnitManagerConnectorDefinitions : public QObject
{
    Q_OBJECT

public:
    /// The configuration sources.
    enum ConnectorType
    {
        UnitSwitch = 0,     ///< unit types, units, conversions and labels; mandatory
        DependencyFile = 1, ///< which values depend on which; optional
        DefaultUnit = 2     ///< default units; optional
    };

    /// Result of opening a source.
    enum ConnectionStatus
    {
        Connected = 0,        ///< the connector exists and its change signal is connected
        ConnectionFailed = 1, ///< there is no connector, or connecting its change signal failed
        NotConfigured = 2     ///< the source has no usable settings
    };

    /// @param parent ignored: the holder owns the object
    UnitManagerConnectorDefinitions(QObject* parent);

    /// Key of an optional source.
    static const QString& getKeyOptional();
    /// Key of a mandatory source: without it nothing is read.
    static const QString& getKeyMandatory();
    /// Key of a source that is read as a configuration. Its text is swapped with that of
    /// getKeyConfigurationDependencyFile(): use the getters, not the texts.
    static const QString& getKeyConfigurationFile();
    /// Key of a source that is read as a dependency configuration; see getKeyConfigurationFile().
    static const QString& getKeyConfigurationDependencyFile();
};

Q_DECLARE_METATYPE(QList<UnitManagerConnectorDefinitions::ConnectorType>)
