#pragma once

#include "BusQuestions.h"

#include <QtCore/QMutex>
#include <QtCore/QString>
#include <QtCore/QVariantList>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

/// One bus, as DEVICE_BUS names it: the process's connection to it, and questions to the bus itself. Nothing
/// is shared between two buses. May be used from any thread.
class DeviceBus
{
public:
    /// The bus that DEVICE_BUS names now. It lives as long as the process.
    static DeviceBus& current();

    /// @param bus "session", "system" or a D-Bus address.
    explicit DeviceBus(const QString& bus);

    /// See DBusConnection::getQDBusConnection().
    QDBusConnection connection();

    /// Asks the bus on its connection, see BusQuestions::ask().
    QDBusMessage ask(const QString& member, const QVariantList& arguments);

private:
    /// Whether the bus is worth opening: false when it accepts connections, but has not answered in time.
    bool answers();

    const QString m_bus;
    const QString m_connectionName;
    const QString m_greetingName;
    QMutex m_openingMutex;
    BusQuestions m_greeting;
    BusQuestions m_questions;
};
