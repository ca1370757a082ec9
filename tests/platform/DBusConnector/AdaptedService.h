#pragma once

#include <QtCore/QSemaphore>
#include <QtCore/QString>
#include <QtCore/QThread>

/// Serves an object through the adaptor generated from the interface description, in a separate thread. The
/// object returns the arguments of the request.
class AdaptedService : public QThread
{
public:
    AdaptedService(const QString& address, const QString& serviceName, const QString& path);
    ~AdaptedService() override;

    /// Whether the bus connection and the name registration succeeded.
    bool isRunning() const;

protected:
    void run() override;

private:
    const QString m_address;
    const QString m_serviceName;
    const QString m_path;
    QSemaphore m_started;
    bool m_isRunning = false;
};
