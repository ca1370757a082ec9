#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QThread>
#include <QtDBus/QDBusConnection>

#include <memory>
#include <vector>

#include "ScriptedSource.h"
#include "World.h"

/// The modules of a world on the bus, with a connection each and a common thread. A source continues with its
/// next answer when its module leaves the bus and returns.
class ScriptedService
{
public:
    /// @param address of the bus
    explicit ScriptedService(const QString& address);
    ~ScriptedService();
    ScriptedService(const ScriptedService&) = delete;
    ScriptedService& operator=(const ScriptedService&) = delete;

    /// Adds the sources of @p world and starts their modules except @p absentModule; call it once. @return
    /// false if a module does not obtain its name.
    bool serve(const World& world, const QString& absentModule);

    /// Connects a module to the bus. @return false if it does not obtain its name.
    bool start(const QString& module);
    /// Removes a module from the bus and waits until @p application knows. @return false if it does not
    /// within a minute.
    bool stop(const QString& module, const QDBusConnection& application);

    /// Announces a change of a configuration @p count times. @return false if a signal cannot be sent.
    bool announce(const SourceName& name, const QVariantList& arguments, int count);
    /// Sends the held replies of a configuration.
    void release(const SourceName& name);

    /// Returns when the service has received everything that was sent over @p application, and @p application
    /// everything that the service sent.
    void synchronize(const QDBusConnection& application) const;

    /// All reads so far.
    QStringList reads() const;

private:
    ScriptedSource& source(const SourceName& name) const;
    QDBusConnection connection(const QString& module) const;
    void leave(QDBusConnection connection) const;

    const QString m_address;
    ReadLog m_log;
    QThread m_thread;
    std::vector<std::unique_ptr<ScriptedSource>> m_sources;
    QMap<QString, QString> m_connectionNames;
};
