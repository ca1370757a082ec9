#pragma once

#include <QtCore/QSemaphore>
#include <QtCore/QString>
#include <QtCore/QThread>

/// Serves an object behind the adaptor that is generated from the interface's description, in a thread of its
/// own. The object answers with what it was asked.
class AdaptedService : public QThread
{
public:
    AdaptedService(const QString& address, const QString& serviceName, const QString& path);
    ~AdaptedService() override;

    /// Whether the bus was reached and the name taken.
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
