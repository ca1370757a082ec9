#include "Journal.h"

#include <QtCore/QDebug>
#include <QtCore/QLoggingCategory>
#include <QtCore/QMessageLogger>

namespace {

const char* const machineCategory = "device.statemachine";
const char* const signalCategory = "live.signal";

QString level(QtMsgType type)
{
    return type == QtDebugMsg     ? QStringLiteral("debug")
           : type == QtWarningMsg ? QStringLiteral("warning")
                                  : QStringLiteral("level %1").arg(type);
}

/// The state that the machine's message names last.
QString enteredState(const QString& message)
{
    return message.section(QLatin1Char('"'), -2, -2).remove(QLatin1String("UnitManagerConnectorState"));
}

QStringList withRepetitionsCounted(const QStringList& messages)
{
    QStringList counted;
    for (int first = 0, next = 0; first < messages.size(); first = next) {
        while (next < messages.size() && messages.at(next) == messages.at(first))
            ++next;
        const int count = next - first;
        counted.append(count == 1 ? messages.at(first)
                                  : QStringLiteral("%1 x %2").arg(count).arg(messages.at(first)));
    }
    return counted;
}

} // namespace

Journal::Journal()
{
    QLoggingCategory::setFilterRules(QStringLiteral("%1.debug=true").arg(QLatin1String(machineCategory)));
}

Journal::~Journal()
{
    QLoggingCategory::setFilterRules(QString());
}

void Journal::noteSignal(const QString& name)
{
    static const QLoggingCategory category(signalCategory);
    QMessageLogger(nullptr, 0, nullptr).debug(category).noquote() << name;
}

void Journal::addStep(const QString& step, const QString& result)
{
    update();
    m_lines.append(
        QStringLiteral("%1: %2 = %3").arg(step, m_events.join(QLatin1Char(' ')), result).simplified());
    m_events.clear();
}

void Journal::addAnswer(const QString& step, const QString& result)
{
    m_lines.append(QStringLiteral("%1: %2").arg(step, result));
}

void Journal::update()
{
    takeIn(true);
}

void Journal::dropMessages()
{
    takeIn(false);
}

QStringList Journal::events()
{
    update();
    return m_events;
}

int Journal::enteredStates()
{
    update();
    return m_enteredStates;
}

QStringList Journal::takeLines()
{
    update();
    QStringList lines;
    lines.swap(m_lines);
    if (!m_events.isEmpty())
        lines.append(QLatin1String("end: ") + m_events.join(QLatin1Char(' ')));
    m_events.clear();
    return lines;
}

QStringList Journal::messages() const
{
    return withRepetitionsCounted(m_messages);
}

void Journal::takeIn(bool withMessages)
{
    for (const LoggedMessage& message : m_capture.take()) {
        if (message.category == QLatin1String(machineCategory)) {
            m_events.append(enteredState(message.text));
            ++m_enteredStates;
        } else if (message.category == QLatin1String(signalCategory)) {
            m_events.append(QLatin1Char('*') + message.text);
        } else if (withMessages) {
            m_messages.append(level(message.type) + QLatin1Char(' ') + message.text);
        }
    }
}
