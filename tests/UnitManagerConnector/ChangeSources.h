#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QMap>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include "ConfigurationService.h"
#include "LogCapture.h"
#include "UnitManagerConnector/DBusConfigurationChangeSignalHandling.h"

/// The three sources, set up for the tests of the change signals.
namespace ChangeSources {

using Type = UnitManagerConnectorDefinitions::ConnectorType;
using Status = UnitManagerConnectorDefinitions::ConnectionStatus;
using Settings = QMap<Type, QStringList>;
using Changes = QMap<Type, QString>;

using TestSource::settings;

const Type all[] = {TestSource::units, TestSource::dependencies, TestSource::defaults};

/// The name of a source in the test rows.
const char* nameOf(Type type);

/// Adds the column "polling" with both values.
void addModes();
/// Adds the columns "polling" and "type" with all combinations.
void addModesAndSources();

/// A handling with the settings of the tests.
class ConfiguredHandling : public DBusConfigurationChangeSignalHandling
{
public:
    explicit ConfiguredHandling(bool useSignalPolling, const Settings& settings = TestSource::settings())
        : DBusConfigurationChangeSignalHandling(useSignalPolling)
    {
        init(settings);
    }
};

/// Subscribes to one source.
Status subscribe(DBusConfigurationChangeSignalHandling& handling, Type type);
/// Subscribes to all sources. @return whether all subscriptions succeeded.
bool subscribeAll(DBusConfigurationChangeSignalHandling& handling);

/// Calls the slot of a source.
void report(DBusConfigurationChangeSignalHandling& handling, Type type, const QString& instanceName);

/// Whether @p recorder, the handling or an object that contains it, has recorded a change after the event
/// loop has delivered pending signals.
template <typename Recorder>
bool hasChanged(Recorder& recorder)
{
    QCoreApplication::processEvents();
    return recorder.pollChangeFlags();
}

/// The logged messages. Each function is reduced to its name and parameters, because compilers spell the
/// result type differently.
QStringList takeMessages(LogCapture& log);
/// A message of the class, in the format of takeMessages().
QString messageOf(QtMsgType level, const QString& function, const QString& text);

} // namespace ChangeSources

Q_DECLARE_METATYPE(UnitManagerConnectorDefinitions::ConnectorType)
