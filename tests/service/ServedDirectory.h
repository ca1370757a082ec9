#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include <memory>

#include "PrivateBus.h"
#include "ServiceClient.h"
#include "ServiceProcess.h"

/// A directory with three good documents, the service that serves it on a bus of its own, and a client.
class ServedDirectory
{
public:
    /// Writes the documents: units "first", default units "first", dependencies "first".
    ServedDirectory();

    /// Starts bus, service and client. @return whether all are there.
    bool start();

    /// The path of a file in the directory.
    QString path(const QString& file) const;
    /// The path of the directory. It lies in a directory of its own, in which nothing else is.
    QString directory() const;

    /// Waits until the service has seen all that was done to the files before: the dependencies are changed,
    /// and that is announced. @return the announcements made since start() or the last call, without that
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
