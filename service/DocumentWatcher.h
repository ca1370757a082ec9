#pragma once

#include <QtCore/QDeadlineTimer>
#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <QtCore/QVector>

#include <chrono>
#include <memory>

#include "PathTrail.h"

class QFileSystemWatcher;

/// Watches files that may be written in place, replaced, removed, missing at first, reached through symbolic
/// links that change, or located in a directory that is replaced or created later.
///
/// A burst of changes is reported once, when it has ended or has lasted for long. At that moment the files
/// are already being watched again, so a reader that starts then misses no later change. Needs the event loop
/// of its thread.
class DocumentWatcher : public QObject
{
    Q_OBJECT

public:
    /// The delays before a burst of changes is reported.
    struct Debounce
    {
        /// Time without a further change.
        std::chrono::milliseconds quiet{100};
        /// Maximum delay of a report.
        std::chrono::milliseconds longest{1000};
    };

    /// Starts watching. Logs once for each place that cannot be watched.
    ///
    /// @param files absolute paths
    DocumentWatcher(const QStringList& files, Debounce debounce, QObject* parent = nullptr);
    ~DocumentWatcher() override;

Q_SIGNALS:
    /// The files, or their paths, were touched. Their content may be unchanged.
    void touched();

private:
    using Trail = QVector<PathTrail::Place>;

    QVector<Trail> trails() const;
    void watch();
    QStringList watchable();
    void complainOnce(const QString& place);
    void lookAt(const QString& directory);
    void postpone();
    void report();

    const QStringList m_files;
    const Debounce m_debounce;
    std::unique_ptr<QFileSystemWatcher> m_watcher;
    QTimer m_timer;
    QDeadlineTimer m_deadline;
    QVector<Trail> m_trails;
    QStringList m_unwatchable;
};
