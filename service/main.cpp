#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusError>

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "CommandLine.h"
#include "ConfigurationFileService.h"
#include "ExitCode.h"
#include "ProcessSignal.h"

namespace {

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

int serve(const CommandLine& commandLine)
{
    const ProcessSignal termination({SIGTERM, SIGINT});
    const ProcessSignal hangUp({SIGHUP});
    // The reader of the log may leave; that must not end the service.
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
    const QString& bus = commandLine.bus;
    const QDBusConnection connection = connectTo(bus);
    if (!connection.isConnected())
        return fail(QStringLiteral("cannot reach the bus %1: %2").arg(bus, connection.lastError().message()));

    ConfigurationFileService service(commandLine.directories, commandLine.maximumSize, connection);
    const auto exitWith = [](const QString& problem) {
        QCoreApplication::exit(fail(problem));
    };
    QObject::connect(&service, &ConfigurationFileService::started, [&commandLine] {
        write(QStringLiteral("serving %1 as %2 on %3\n")
                  .arg(commandLine.directories.join(QLatin1String(", ")), ConfigurationFileService::name(),
                       commandLine.bus),
              stdout);
    });
    // Queued: exit() has no effect before the event loop runs.
    QObject::connect(&service, &ConfigurationFileService::failed, &service, exitWith, Qt::QueuedConnection);
    QObject::connect(&service, &ConfigurationFileService::busLost,
                     [&bus, exitWith] { exitWith(QStringLiteral("lost the bus %1").arg(bus)); });
    QObject::connect(&hangUp, &ProcessSignal::received, &service, &ConfigurationFileService::reload);
    QObject::connect(&termination, &ProcessSignal::received, &QCoreApplication::quit);
    service.start();
    const int exitCode = QCoreApplication::exec();
    // A thread that is stuck cannot be ended; destructors would wait for it or destroy what it uses.
    if (!service.stop())
        std::_Exit(exitCode);
    return exitCode;
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
        write(commandLine.text, stderr);
        return WrongUsage;
    case CommandLine::Request::Serve:
        break;
    }
    return serve(commandLine);
}
