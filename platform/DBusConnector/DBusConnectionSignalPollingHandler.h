#pragma once

#include "DBusConnectorExport.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtDBus/QDBusConnection>

class QDBusMessage;

/// Records the last occurrence of a D-Bus signal, for threads that run no event loop: isSignalOccured() takes
/// in what has arrived for this object, and nothing else. An occurrence stays recorded until
/// resetLastSignal(). What arrives between two polls waits in the thread's event queue, so poll regularly.
///
///     DBusConnectionSignalPollingHandler changes(module, object, "configurationChanged",
///                                                DBusConnectionSignalPollingHandler::SlotSignatureString);
///     if (changes.isSignalOccured()) {
///         reload(changes.getSignalParameter().toString());
///         changes.resetLastSignal();
///     }
///
/// A bus that went away and came back is subscribed again by the next isSignalOccured(); what was sent
/// meanwhile is lost. Used from the thread that built it; a QCoreApplication must exist.
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
    /// @param slotSignature a SlotSignature or its number. It documents the call and filters nothing: a
    /// signal with other arguments is recorded as it arrives.
    DBusConnectionSignalPollingHandler(const QString& service, const QString& object,
                                       const QString& signalName, int slotSignature);

    /// Whether the signal has occurred since construction or the last resetLastSignal().
    bool isSignalOccured();

    /// The first argument of the last occurrence that isSignalOccured() took in, as it arrived; invalid when
    /// there is no occurrence or the signal had no argument.
    QVariant getSignalParameter() const;

    /// Forgets the recorded occurrence. A signal that isSignalOccured() has not taken in yet is not lost.
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
