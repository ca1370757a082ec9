#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusPendingCall>

#include <optional>

#include "DocumentChecker.h"
#include "JsonDocument.h"
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

    static QVector<DocumentKind> documentKinds();
    /// "units", "default-units" and "dependencies".
    static QStringList documentNames();
    static QString documentName(DocumentKind kind);
    /// @return no value for a text that is not one of the names
    static std::optional<DocumentKind> kindNamed(const QString& name);

    /// Opens the device's bus, which is @p bus from now on. The service need not be on it.
    ///
    /// @param bus "session", "system" or a D-Bus address
    /// @return a failure if the bus cannot be reached
    static Result<RunningService> connect(const QString& bus);
    /// Opens the bus like connect() and finds the service.
    ///
    /// @return a failure if the bus cannot be reached or the service is not on it
    static Result<RunningService> find(const QString& bus);

    /// The active text of a document, exactly as served.
    ///
    /// @return a failure if the service has no valid document yet or does not answer
    Result<QString> text(DocumentKind kind) const;
    /// The active document; see text().
    Result<JsonDocument> document(DocumentKind kind) const;
    /// @return a failure if the service does not answer or is too old to show its state
    Result<State> state(DocumentKind kind) const;

    /// Asks for a state without waiting for the reply, which stateFrom() reads.
    QDBusPendingCall requestState(DocumentKind kind) const;
    static Result<State> stateFrom(const QDBusMessage& reply);

    /// The failure without service.
    static Failure notOnBus(const QString& bus);
    /// The failure without a valid document. @param refusal why the file is refused; may be empty
    static Failure missing(DocumentKind kind, const QString& refusal);

private:
    explicit RunningService(const QDBusConnection& connection);

    QDBusConnection m_connection;
};
