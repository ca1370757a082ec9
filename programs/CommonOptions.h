#pragma once

#include <QtCore/QString>

#include "Result.h"

class QCommandLineParser;

/// The options of the tool and the service that have the same meaning, and the form of help and error
/// messages.
namespace CommonOptions {

/// Declares -h, --help and -v, --version.
void addHelpAndVersion(QCommandLineParser& parser);

/// Declares --max-size.
void addMaximumSize(QCommandLineParser& parser);
/// The largest document that is read, in bytes. @return a failure if the value of --max-size is not valid
Result<int> maximumSize(const QCommandLineParser& options);

/// Declares --bus, whose default is the bus that the variable DEVICE_BUS names, else the session bus.
void addBus(QCommandLineParser& parser);
/// Declares --bus for programs that use no bus without it. @param purpose the beginning of its help
void addOptionalBus(QCommandLineParser& parser, const QString& purpose);
bool isBusGiven(const QCommandLineParser& options);
/// The bus: "session", "system" or a D-Bus address. @return a failure if the given one is not valid
Result<QString> bus(const QCommandLineParser& options);

/// The failure of a command line that the parser rejected.
Failure parserFailure(const QCommandLineParser& parser);

/// The help, without line break at its end.
///
/// @param usage the form of the command line, such as "unitmanager units [options] TYPE"
QString helpText(const QCommandLineParser& parser, const QString& usage);

/// "PROGRAM: REASON", and for a wrong command line a second line with the usage; each with a line break.
QString failureText(const QString& program, const Failure& failure, const QString& usage);

} // namespace CommonOptions
