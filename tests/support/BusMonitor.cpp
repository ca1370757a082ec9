#include "BusMonitor.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QRegularExpression>
#include <QtDBus/QDBusMessage>

#include "WaitLimit.h"

namespace {

QStringList callsOf(const QString& sender, const QString& received)
{
    static const QRegularExpression call(
        QStringLiteral("^method call .* sender=(\\S+) -> destination=(\\S+) .* member=(\\S+)\\n"
                       "(?:   string \"(.*)\"\\n)?"),
        QRegularExpression::MultilineOption);

    QStringList calls;
    for (auto found = call.globalMatch(received); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        if (match.captured(1) != sender)
            continue;
        const QStringList parts{match.captured(2), match.captured(3), match.captured(4)};
        calls.append(parts.join(QLatin1Char(' ')).trimmed());
    }
    return calls;
}

} // namespace

BusMonitor::BusMonitor(const QString& address)
{
    m_monitor.setProgram(QStringLiteral("dbus-monitor"));
    m_monitor.setArguments({QStringLiteral("--address"), address});
    m_monitor.setStandardErrorFile(QProcess::nullDevice());
}

bool BusMonitor::start()
{
    m_monitor.start(QIODevice::ReadOnly);
    // A connection loses its name when it becomes a monitor.
    return readUntil("member=NameLost");
}

QStringList BusMonitor::takeCalls(const QDBusConnection& caller)
{
    // The mark is sent after the calls on the same connection, so it arrives after them.
    const QString mark = QStringLiteral("Mark%1").arg(++m_marks);
    caller.send(QDBusMessage::createSignal(QStringLiteral("/"), QStringLiteral("org.example.Monitor"), mark));
    if (!readUntil("member=" + mark.toLatin1() + '\n'))
        return {QString()};

    const QString received = QString::fromUtf8(m_received);
    m_received.clear();
    return callsOf(caller.baseService(), received);
}

bool BusMonitor::readUntil(const QByteArray& text)
{
    const QDeadlineTimer deadline(waitLimit);
    while (!m_received.contains(text)) {
        if (!m_monitor.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            return false;
        m_received += m_monitor.readAllStandardOutput();
    }
    return true;
}
