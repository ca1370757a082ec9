#pragma once

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtDBus/QDBusConnection>

class QDBusServiceWatcher;

/// Whether a name on the device's bus has an owner, as the bus tells it. All connectors of one thread to one
/// service share one of these, so that the bus is asked and told to tell once.
class ServiceOwner : public QObject
{
    Q_OBJECT

public:
    /// Asks the bus, without watching anything. @return false when there is no bus, or the bus does not
    /// answer; see BusQuestions for how long that takes.
    static bool isOnBus(const QString& serviceName);

    /// The one that somebody in this thread holds for the name on the present connection; null for nobody.
    static QSharedPointer<ServiceOwner> watched(const QString& serviceName);
    /// The same; made when there is none, by watching the name first and asking then.
    static QSharedPointer<ServiceOwner> watch(const QString& serviceName);

    ~ServiceOwner() override;

    /// As far as the bus has told; no round trip, and no event loop needed. False when the connection is
    /// lost.
    bool isPresent() const;

private:
    explicit ServiceOwner(const QString& serviceName);

    QDBusConnection m_connection;
    QDBusServiceWatcher* const m_watcher;
    bool m_hasOwner;
};
