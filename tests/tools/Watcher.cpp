#include "Watcher.h"

#include <QtCore/QDebug>
#include <QtTest/QTest>

#include <csignal>

#include "ToolProcess.h"
#include "WaitLimit.h"

Watcher::Watcher(const QStringList& options)
    : m_arguments(QStringList("watch") + options), m_environment(ToolProcess::plainEnvironment())
{
    m_environment.remove("DEVICE_BUS");
}

void Watcher::setVariable(const QString& name, const QString& value)
{
    m_environment.insert(name, value);
}

void Watcher::writeTo(const QString& file)
{
    m_process.setStandardOutputFile(file);
}

bool Watcher::start()
{
    m_process.setProcessEnvironment(m_environment);
    m_process.start(ToolProcess::path(), m_arguments);
    return m_process.waitForStarted(waitLimit);
}

bool Watcher::prints(const QByteArray& text)
{
    const bool isText =
        QTest::qWaitFor([&] { return news().size() >= text.size(); }, waitLimit) && news() == text;
    if (!isText)
        qWarning() << "printed" << news() << "instead of" << text;
    m_known = m_output.size();
    return isText;
}

QByteArray Watcher::nextLine()
{
    if (!QTest::qWaitFor([this] { return news().contains('\n'); }, waitLimit))
        return {};
    const QByteArray line = news().split('\n').first();
    m_known += line.size() + 1;
    return line;
}

bool Watcher::complains(const QByteArray& text)
{
    return QTest::qWaitFor([&] { return errors().contains(text); }, waitLimit);
}

QByteArray Watcher::errors()
{
    m_errors += m_process.readAllStandardError();
    return m_errors;
}

bool Watcher::isRunning() const
{
    return m_process.state() == QProcess::Running;
}

qint64 Watcher::processId() const
{
    return m_process.processId();
}

int Watcher::end(int signal)
{
    ::kill(static_cast<pid_t>(m_process.processId()), signal);
    return waitForEnd();
}

int Watcher::waitForEnd()
{
    const bool hasEnded = !isRunning() || m_process.waitForFinished(waitLimit);
    return hasEnded && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

QByteArray Watcher::news()
{
    m_output += m_process.readAllStandardOutput();
    return m_output.mid(m_known);
}
