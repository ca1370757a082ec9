#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

#include "PrivateBus.h"
#include "ServiceProcess.h"

/// The configuration-file service on a private bus, which is the device's bus. It serves copies of the
/// shipped documents.
class ShippedService
{
public:
    /// Copies the documents and starts the bus. @return whether that succeeded.
    bool startBus();
    /// Starts the service. @return whether it serves.
    bool start();

    /// Replaces a text by another one in the shipped document and puts the result in its place, as editors
    /// do.
    /// @return false if the shipped document does not contain the text exactly once
    bool change(const QString& file, const QByteArray& text, const QByteArray& replacement);
    /// Puts the shipped document in its place. @return whether that succeeded.
    bool restore(const QString& file);

    /// Everything logged so far by the service.
    QString log();

private:
    PrivateBus m_bus;
    QTemporaryDir m_directory;
    ServiceProcess m_service;
};
