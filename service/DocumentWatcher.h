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

/// Watches files through whatever becomes of them: written in place, replaced, removed, not there yet,
/// reached through symbolic links that change, in a directory that is replaced or comes into being.
///
/// A burst of changes is one report, once it has gone quiet, or has gone on for long. At that moment the
/// files are being watched anew: read then, nothing that happens later is missed. Needs the event loop of its
/// thread.
class DocumentWatcher : public QObject
{
    Q_OBJECT

public:
    /// How long it takes until a burst of changes is reported.
    struct Debounce
    {
        /// Without a further change.
        std::chrono::milliseconds quiet{100};
        /// At most, whatever goes on.
        std::chrono::milliseconds longest{1000};
    };

    /// Watches from now on. Logs once for each place that cannot be watched.
    ///
    /// @param files absolute paths
    DocumentWatcher(const QStringList& files, Debounce debounce, QObject* parent = nullptr);
    ~DocumentWatcher() override;

signals:
    /// Something happened at the files or on the way to them; whether a text has changed is for the reader.
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
