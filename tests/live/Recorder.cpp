#include "Recorder.h"

#include <QtCore/QLoggingCategory>

#include <utility>

namespace {

const char* const machineCategory = "device.statemachine";

QString level(QtMsgType type)
{
    return type == QtDebugMsg     ? QStringLiteral("debug")
           : type == QtWarningMsg ? QStringLiteral("warning")
                                  : QStringLiteral("level %1").arg(type);
}

/// The state that is quoted last in a message of the machine.
QString enteredState(const QString& message)
{
    return message.section(QLatin1Char('"'), -2, -2);
}

} // namespace

Recorder::Recorder()
{
    QLoggingCategory::setFilterRules(QStringLiteral("%1.debug=true").arg(QLatin1String(machineCategory)));
}

Recorder::~Recorder()
{
    QLoggingCategory::setFilterRules(QString());
}

void Recorder::addEvent(const QString& event)
{
    update();
    m_events.append(event);
}

void Recorder::update()
{
    record(true);
}

void Recorder::discardMessages()
{
    record(false);
}

QStringList Recorder::events()
{
    update();
    return m_events;
}

QStringList Recorder::takeEvents()
{
    update();
    return std::exchange(m_events, {});
}

int Recorder::enteredStates()
{
    update();
    return m_enteredStates;
}

QStringList Recorder::messages()
{
    update();
    QStringList lines;
    for (int first = 0, next = 0; first < m_messages.size(); first = next) {
        while (next < m_messages.size() && m_messages.at(next) == m_messages.at(first))
            ++next;
        lines.append(repeated(next - first, m_messages.at(first)));
    }
    return lines;
}

QString Recorder::repeated(int count, const QString& message)
{
    return count == 1 ? message : QStringLiteral("%1 x %2").arg(count).arg(message);
}

void Recorder::record(bool withMessages)
{
    for (const LoggedMessage& message : m_capture.take()) {
        if (message.category == QLatin1String(machineCategory)) {
            m_events.append(enteredState(message.text));
            ++m_enteredStates;
        } else if (withMessages) {
            m_messages.append(level(message.type) + QLatin1Char(' ') + message.text);
        }
    }
}
