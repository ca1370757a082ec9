#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtDBus/QDBusConnection>

#include <memory>

class ConfigurationObject;
class DocumentWatcher;

/// Serves the three documents of a directory on a bus and announces their changes.
///
/// Use from one thread only, whose event loop must run.
class ConfigurationFileService : public QObject
{
    Q_OBJECT

public:
    /// Reads the documents and watches them. A document that cannot be read is logged, and loaded once it
    /// can.
    explicit ConfigurationFileService(const QString& directory, QObject* parent = nullptr);
    ~ConfigurationFileService() override;

    /// The name that the service owns on the bus.
    static QString name();

    /// Registers the documents on the bus and requests the service's name. Does not wait if the name has
    /// another owner.
    /// @return an error message; empty on success.
    QString start(QDBusConnection connection);

Q_SIGNALS:
    /// Emitted when the connection given to start() is lost. It is not restored.
    void busLost();

private:
    void update();

    QList<ConfigurationObject*> m_objects;
    std::unique_ptr<DocumentWatcher> m_watcher;
};
