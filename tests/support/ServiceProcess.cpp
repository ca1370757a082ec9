#include "ServiceProcess.h"

#include <QtCore/QDeadlineTimer>

#include <csignal>

#include "WaitLimit.h"

QString ServiceProcess::program()
{
    return QStringLiteral(CONFIGURATION_FILE_SERVICE);
}

ServiceProcess::ServiceProcess()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DEVICE_BUS", "QT_HASH_SEED", "QT_LOGGING_RULES", "QT_MESSAGE_PATTERN"})
        environment.remove(name);
    m_process.setProcessEnvironment(environment);
}

void ServiceProcess::launch(const QStringList& arguments)
{
    m_process.start(program(), arguments);
}

bool ServiceProcess::start(const QStringList& arguments)
{
    launch(arguments);
    const QDeadlineTimer deadline(waitLimit);
    while (!output().startsWith(QLatin1String("serving "))) {
        if (!m_process.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            return false;
    }
    return true;
}

bool ServiceProcess::serve(const QString& directory, const QString& bus)
{
    return start({QStringLiteral("--directory"), directory, QStringLiteral("--bus"), bus});
}

int ServiceProcess::run(const QStringList& arguments)
{
    launch(arguments);
    return waitForEnd();
}

int ServiceProcess::waitForEnd()
{
    const bool hasEnded = m_process.state() == QProcess::NotRunning || m_process.waitForFinished(waitLimit);
    return hasEnded && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

void ServiceProcess::setVariable(const QString& name, const QString& value)
{
    QProcessEnvironment environment = m_process.processEnvironment();
    environment.insert(name, value);
    m_process.setProcessEnvironment(environment);
}

bool ServiceProcess::send(int signal) const
{
    return ::kill(static_cast<pid_t>(m_process.processId()), signal) == 0;
}

void ServiceProcess::closeLog()
{
    m_process.closeReadChannel(QProcess::StandardError);
}

QString ServiceProcess::output()
{
    m_output += m_process.readAllStandardOutput();
    return QString::fromUtf8(m_output);
}

QString ServiceProcess::log()
{
    m_log += m_process.readAllStandardError();
    return QString::fromUtf8(m_log);
}
