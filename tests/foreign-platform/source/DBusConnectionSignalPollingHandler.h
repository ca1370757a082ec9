#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

/// Remembers the last announcement of an object until it is reset. Needs no event loop.
class DBusConnectionSignalPollingHandler
{
public:
    enum SlotSignature
    {
        OneText = 3
    };

    /// Announcements made before are not reported.
    DBusConnectionSignalPollingHandler(const QString& service, const QString& object,
                                       const QString& signalName, int slotSignature);

    bool isSignalOccured();
    /// The name of the changed configuration; invalid when nothing was announced.
    QVariant getSignalParameter() const;
    /// An announcement that isSignalOccured() has not reported yet is not lost.
    void resetLastSignal();

private:
    const QString m_object;
    quint64 m_seen;
    QVariant m_parameter;
};
