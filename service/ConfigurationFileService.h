#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtDBus/QDBusConnection>

#include <memory>

class ConfigurationObject;
class DocumentWatcher;

/// Serves the three documents of a directory on a bus, and announces when one of them has changed.
///
/// One thread, whose event loop must run.
class ConfigurationFileService : public QObject
{
    Q_OBJECT

public:
    /// Reads the documents and watches them. What cannot be read is logged and taken up once it can.
    explicit ConfigurationFileService(const QString& directory, QObject* parent = nullptr);
    ~ConfigurationFileService() override;

    /// The name that the service owns on the bus.
    static QString name();

    /// Puts the documents on the bus and takes the service's name; without waiting when another has it.
    /// @return what went wrong; empty when the service is there.
    QString start(QDBusConnection connection);

signals:
    /// The connection given to start() is gone for good.
    void busLost();

private:
    void update();

    QList<ConfigurationObject*> m_objects;
    std::unique_ptr<DocumentWatcher> m_watcher;
};
