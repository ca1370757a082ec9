#pragma once

#include <QtCore/QMutex>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// The reads that a service has seen, oldest first. Any thread.
class ReadLog
{
public:
    void append(const QString& read)
    {
        const QMutexLocker locker(&m_mutex);
        m_reads.append(read);
    }

    QStringList reads() const
    {
        const QMutexLocker locker(&m_mutex);
        return m_reads;
    }

private:
    mutable QMutex m_mutex;
    QStringList m_reads;
};
