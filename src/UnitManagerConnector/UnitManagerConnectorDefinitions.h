#pragma once

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QObject>
#include <QtCore/QString>

#include "UnitManagerExport.h"

/// The vocabulary of the connector: the configuration sources, the outcome of opening one, and the keys of
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

    /// The outcome of opening a source.
    enum ConnectionStatus
    {
        Connected = 0,        ///< the connector is there and its change signal connected
        ConnectionFailed = 1, ///< there is no connector, or its change signal could not be connected
        NotConfigured = 2     ///< the source has no usable settings
    };

    /// @param parent ignored: the object belongs to its holder
    UnitManagerConnectorDefinitions(QObject* parent);

    /// Key of a source that may be missing.
    static const QString& getKeyOptional();
    /// Key of a source without which nothing is read.
    static const QString& getKeyMandatory();
    /// Key of a source that is read as a configuration. Its text and the next one's are crossed; go through
    /// the getters.
    static const QString& getKeyConfigurationFile();
    /// Key of a source that is read as a dependency configuration.
    static const QString& getKeyConfigurationDependencyFile();
};

Q_DECLARE_METATYPE(QList<UnitManagerConnectorDefinitions::ConnectorType>)
