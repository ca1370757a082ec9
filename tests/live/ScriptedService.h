#pragma once

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QMutex>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QThread>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVirtualObject>

#include "World.h"

/// The modules of a world on the bus, with a connection each. A source continues with its next answer when
/// its module leaves the bus and returns.
///
/// One thread of the service answers the calls to all modules, so that their order is known.
class ScriptedService : private QDBusVirtualObject
{
public:
    /// @param address of the bus
    explicit ScriptedService(const QString& address);
    ~ScriptedService() override;

    /// Starts the modules of @p world except @p absentModule. Call it once.
    /// @return false if a module does not obtain its name.
    bool serve(const World& world, const QString& absentModule);

    /// Connects a module to the bus. @return false if it does not obtain its name.
    bool start(const QString& module);
    /// Removes a module from the bus and waits until @p application knows.
    /// @return false if it does not within a minute.
    bool stop(const QString& module, const QDBusConnection& application);

    /// Announces a change of a configuration @p count times. @return false if a signal cannot be sent.
    bool announce(const SourceName& name, const QVariantList& arguments, int count);
    /// Sends the held replies of a configuration.
    void release(const SourceName& name);

    /// Returns when the service has received everything that was sent over @p application, and @p application
    /// everything that the service sent.
    void synchronize(const QDBusConnection& application) const;

    /// All reads so far, oldest first.
    QStringList reads() const;

private:
    struct ServedSource
    {
        Source source;
        int reads = 0;
        QList<QDBusMessage> held = {};
    };

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& connection) override;

    void leave(QDBusConnection connection) const;
    QDBusConnection connection(const QString& module) const;
    ServedSource& find(const QString& module, const QString& path);

    const QString m_address;
    QThread m_thread;
    QMap<QString, QString> m_connectionNames; ///< by module
    mutable QMutex m_mutex;                   ///< for the contents of the following members
    QList<ServedSource> m_sources;
    QStringList m_reads;
};
