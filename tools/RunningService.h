#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariantList>
#include <QtDBus/QDBusConnection>

#include <optional>

#include "DocumentChecker.h"
#include "Result.h"

class QDBusMessage;

/// The configuration service on a bus: its active documents and their state. Never starts the service.
class RunningService
{
public:
    /// The state of a document; see the service's D-Bus interface.
    struct State
    {
        QString version;
        QString state;
        QString checksum;
        QString lastRefusal;
    };

    /// "units", "default-units" and "dependencies".
    static QStringList documentNames();
    static QString documentName(DocumentKind kind);
    /// @return no value for a text that is not one of the names
    static std::optional<DocumentKind> kindNamed(const QString& name);

    /// Finds the service on the device's bus, which is @p bus from now on.
    ///
    /// @param bus "session", "system" or a D-Bus address
    /// @return a failure if the bus cannot be reached or the service is not on it
    static Result<RunningService> find(const QString& bus);

    /// The active text of a document, exactly as served.
    ///
    /// @return a failure if the service has no valid document yet or does not answer
    Result<QString> text(DocumentKind kind) const;
    /// @return a failure if the service does not answer or is too old to show its state
    Result<State> state(DocumentKind kind) const;

private:
    explicit RunningService(const QDBusConnection& connection);

    QDBusMessage call(const QString& object, const QString& interface, const QString& method,
                      const QVariantList& arguments) const;
    Failure missing(DocumentKind kind) const;

    QDBusConnection m_connection;
};
