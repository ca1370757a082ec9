#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusError>

#include <cstdio>

#include "CommandLine.h"
#include "ConfigurationFileService.h"
#include "TerminationSignal.h"

namespace {

/// Exit codes of the program.
enum ExitCode
{
    Succeeded = 0,
    Failed = 1,
    WrongUsage = 2
};

bool write(const QString& text, std::FILE* stream)
{
    return std::fputs(text.toUtf8().constData(), stream) >= 0 && std::fflush(stream) == 0;
}

QDBusConnection connectTo(const QString& bus)
{
    const QString name = QStringLiteral("service");
    if (bus == QLatin1String("session"))
        return QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    if (bus == QLatin1String("system"))
        return QDBusConnection::connectToBus(QDBusConnection::SystemBus, name);
    return QDBusConnection::connectToBus(bus, name);
}

int fail(const QString& problem)
{
    qCritical().noquote() << problem;
    return Failed;
}

int serve(const QString& directory, const QString& bus)
{
    const TerminationSignal termination;
    QObject::connect(&termination, &TerminationSignal::received, &QCoreApplication::quit);
    const QDBusConnection connection = connectTo(bus);
    if (!connection.isConnected())
        return fail(QStringLiteral("cannot reach the bus %1: %2").arg(bus, connection.lastError().message()));

    ConfigurationFileService service(directory);
    QObject::connect(&service, &ConfigurationFileService::busLost,
                     [&bus] { QCoreApplication::exit(fail(QStringLiteral("lost the bus %1").arg(bus))); });
    const QString problem = service.start(connection);
    if (!problem.isEmpty())
        return fail(problem);
    write(QStringLiteral("serving %1 as %2 on %3\n").arg(directory, ConfigurationFileService::name(), bus),
          stdout);
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("configuration-file-service"));
    QCoreApplication::setApplicationVersion(QStringLiteral(UNITMANAGER_VERSION));
    qSetMessagePattern(QStringLiteral("%{appname}: %{if-warning}warning: %{endif}%{message}"));

    const CommandLine commandLine = CommandLine::read(QCoreApplication::arguments());
    switch (commandLine.request) {
    case CommandLine::Request::Print:
        return write(commandLine.text, stdout) ? Succeeded : Failed;
    case CommandLine::Request::Reject:
        write(QCoreApplication::applicationName() + ": " + commandLine.text, stderr);
        return WrongUsage;
    case CommandLine::Request::Serve:
        break;
    }
    return serve(commandLine.directory, commandLine.bus);
}
