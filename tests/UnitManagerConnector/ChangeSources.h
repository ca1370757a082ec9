#pragma once

#include <QtCore/QMap>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "LogCapture.h"
#include "UnitManagerConnector/DBusConfigurationChangeSignalHandling.h"

/// The three sources as the tests of the change signals need them.
namespace ChangeSources {

using Type = UnitManagerConnectorDefinitions::ConnectorType;
using Status = UnitManagerConnectorDefinitions::ConnectionStatus;
using Settings = QMap<Type, QStringList>;
using Changes = QMap<Type, QString>;

const Type all[] = {UnitManagerConnectorDefinitions::UnitSwitch,
                    UnitManagerConnectorDefinitions::DependencyFile,
                    UnitManagerConnectorDefinitions::DefaultUnit};

/// What the test rows call a source.
const char* nameOf(Type type);

/// Service, object and configuration of each source; all in one module.
Settings settings();

/// Subscribes to one source.
Status subscribe(DBusConfigurationChangeSignalHandling& handling, Type type);
/// Subscribes to all sources. @return whether all subscriptions were made.
bool subscribeAll(DBusConfigurationChangeSignalHandling& handling);

/// Calls the slot of a source.
void report(DBusConfigurationChangeSignalHandling& handling, Type type, const QString& instanceName);

/// The messages logged; of each function the name and parameters only, because compilers spell the type of
/// the result differently.
QStringList takeMessages(LogCapture& log);
/// A message of the class, as takeMessages() gives it.
QString messageOf(QtMsgType level, const QString& function, const QString& text);

} // namespace ChangeSources

Q_DECLARE_METATYPE(UnitManagerConnectorDefinitions::ConnectorType)
