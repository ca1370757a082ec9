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

/// The modules of a world on the bus, on connections and a thread of their own. What the sources have
/// answered stays counted when a module leaves the bus and comes back.
class ScriptedService
{
public:
    /// Starts every module that the world does not call absent.
    ScriptedService(const QString& address, const World& world);
    ~ScriptedService();
    ScriptedService(const ScriptedService&) = delete;
    ScriptedService& operator=(const ScriptedService&) = delete;

    /// Brings a module to the bus. @return whether it has its name there.
    bool start(const QString& module);
    /// Takes a module from the bus, and waits until the bus says so to @p application. @return false when it
    /// does not.
    bool stop(const QString& module, const QDBusConnection& application);

    /// Announces a change of a configuration, @p count times. @return whether that was sent.
    bool announce(const SourceName& name, const QVariantList& arguments, int count = 1);
    /// Replies to the reads of a configuration that are held.
    void release(const SourceName& name);

    /// Returns when the service has seen all that was sent over @p application, and that has received all
    /// that the service sent.
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
