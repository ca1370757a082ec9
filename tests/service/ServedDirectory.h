#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <memory>

#include "PrivateBus.h"
#include "ServiceClient.h"
#include "ServiceProcess.h"

/// A directory with three valid documents, the service that serves it on a private bus, and a client.
class ServedDirectory
{
public:
    /// Writes the documents: units "first", default units "first", dependencies "first".
    ServedDirectory();

    /// Starts bus, service and client. @return whether all are running.
    bool start();

    /// The path of a file in the directory.
    QString path(const QString& file) const;
    /// The path of the directory, which is the only entry of its parent directory.
    QString directory() const;

    /// Waits until the service has processed all earlier file changes, by changing the dependencies and
    /// waiting for their announcement. @return the announcements since start() or the last call, without that
    /// one.
    QStringList settledAnnouncements();

    PrivateBus& bus();
    ServiceProcess& service();
    ServiceClient& client();

private:
    PrivateBus m_bus;
    QTemporaryDir m_directory;
    ServiceProcess m_service;
    std::unique_ptr<ServiceClient> m_client;
    int m_known = 0;
};
