#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

class DBusConnectionSignalPollingHandler
{
public:
    /// The library uses the number only.
    enum SlotSignature
    {
        OneText = 3
    };

    DBusConnectionSignalPollingHandler(const QString& service, const QString& object,
                                       const QString& signalName, int slotSignature);

    bool isSignalOccured();
    QVariant getSignalParameter() const;
    void resetLastSignal();
};
