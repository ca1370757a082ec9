#pragma once

#include <QtCore/QMutex>
#include <QtCore/QString>
#include <QtCore/QVariantList>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

#include "BusQuestions.h"

/// One bus named by DEVICE_BUS: the process's connection to it, and requests to the bus daemon itself. Two
/// buses share nothing. Thread-safe.
class DeviceBus
{
public:
    /// The bus that DEVICE_BUS names now. It is never destroyed.
    static DeviceBus& current();

    /// @param bus "session", "system" or a D-Bus address.
    explicit DeviceBus(const QString& bus);

    /// See DBusConnection::getQDBusConnection().
    QDBusConnection connection();

    /// Sends a request to the bus on its connection, see BusQuestions::ask().
    QDBusMessage ask(const QString& member, const QVariantList& arguments);

private:
    /// Whether opening the bus is worthwhile: false when it accepts connections, but has not answered in
    /// time.
    bool answers();

    const QString m_bus;
    const QString m_connectionName;
    const QString m_greetingName;
    QMutex m_openingMutex;
    BusQuestions m_greeting;
    BusQuestions m_questions;
};
