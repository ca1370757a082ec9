#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QThread>
#include <QtCore/QVariantMap>
#include <QtCore/QVector>
#include <QtDBus/QDBusConnection>

#include "ConfigurationDocument.h"

class ConfigurationObject;
class DocumentLoader;

/// Serves three documents on a bus and announces their changes.
///
/// A thread of its own reads the files: while a file system stalls, calls are answered with the last valid
/// documents. Use from one thread only, whose event loop must run.
class ConfigurationFileService : public QObject
{
    Q_OBJECT

public:
    /// Does not read the documents yet.
    ///
    /// @param directories each document is read from the first of them that has it
    /// @param maximumSize the largest document that is read, in bytes
    ConfigurationFileService(const QStringList& directories, int maximumSize,
                             const QDBusConnection& connection, QObject* parent = nullptr);
    /// Waits until a file that is being read has been read, see stop().
    ~ConfigurationFileService() override;

    /// The name that the service owns on the bus.
    static QString name();

    /// Registers the documents on the bus, reads them and watches them, then requests the service's name. A
    /// document that cannot be read is logged, and loaded once it can. The event loop delivers the result:
    /// started() or failed().
    void start();
    /// Reads the documents again. Call after start().
    void reload();
    /// Stops reading. @return false if that does not succeed within half a second: the thread is stuck in the
    /// file system, so the process must end without destructors.
    bool stop();

Q_SIGNALS:
    /// The documents have been read and the service owns its name.
    void started();
    /// The service cannot start. @param problem an error message
    void failed(const QString& problem);
    /// Emitted when the connection is lost. It is not restored.
    void busLost();

private:
    void finishUpdate();
    void announce(const QVector<QVariantMap>& changes);
    void takeName();

    QDBusConnection m_connection;
    QList<ConfigurationDocument> m_documents;
    QList<ConfigurationObject*> m_objects;
    bool m_isStarted = false;
    QThread m_thread;
    /// Lives in the thread, which deletes it; null before start().
    DocumentLoader* m_loader = nullptr;
};
