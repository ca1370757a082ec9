#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtDBus/QDBusConnection>

#include "DBusConnectorExport.h"

class QDBusMessage;

/// Records the last occurrence of a D-Bus signal, for threads without an event loop. isSignalOccured()
/// processes only the events of this object. An occurrence stays recorded until resetLastSignal(). Signals
/// that arrive between two polls are queued in the thread's event queue, so poll regularly.
///
///     DBusConnectionSignalPollingHandler changes(module, object, "configurationChanged",
///                                                DBusConnectionSignalPollingHandler::SlotSignatureString);
///     if (changes.isSignalOccured()) {
///         reload(changes.getSignalParameter().toString());
///         changes.resetLastSignal();
///     }
///
/// After a restart of the bus, the next isSignalOccured() subscribes again; signals sent in the meantime are
/// lost. Must be used from the thread that created it; a QCoreApplication must exist.
class DBUSCONNECTOR_EXPORT DBusConnectionSignalPollingHandler : public QObject
{
    Q_OBJECT

public:
    /// The arguments that the caller expects of the signal.
    enum SlotSignature
    {
        SlotSignatureString = 3 ///< one string
    };

    /// Subscribes to the signal of one object, on any of its interfaces.
    /// @param service the module's name, without the device's prefix.
    /// @param object the object's name, without "/".
    /// @param signalName the signal's member name.
    /// @param slotSignature a SlotSignature or its number. It is informative only: a signal with other
    /// arguments is recorded unchanged.
    DBusConnectionSignalPollingHandler(const QString& service, const QString& object,
                                       const QString& signalName, int slotSignature);

    /// Whether the signal has occurred since construction or the last resetLastSignal().
    bool isSignalOccured();

    /// The first argument of the last occurrence that isSignalOccured() processed, unconverted; invalid when
    /// there is no occurrence or the signal had no argument.
    QVariant getSignalParameter() const;

    /// Clears the recorded occurrence. A signal that isSignalOccured() has not processed yet is not lost.
    void resetLastSignal();

private Q_SLOTS:
    void recordSignal(const QDBusMessage& message);

private:
    void subscribe();

    const QString m_serviceName;
    const QString m_objectPath;
    const QString m_signalName;
    QDBusConnection m_connection;
    bool m_subscribed = false;
    bool m_occurred = false;
    QVariant m_parameter;
};
