#include "DocumentWatcher.h"

#include <QtCore/QDebug>
#include <QtCore/QFileInfo>
#include <QtCore/QFileSystemWatcher>

#include <algorithm>

DocumentWatcher::DocumentWatcher(const QStringList& files, Debounce debounce, QObject* parent)
    : QObject(parent), m_files(files), m_debounce(debounce)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &DocumentWatcher::report);
    watch();
}

DocumentWatcher::~DocumentWatcher() = default;

QVector<DocumentWatcher::Trail> DocumentWatcher::trails() const
{
    QVector<Trail> trails;
    for (const QString& file : m_files)
        trails.append(PathTrail::of(file));
    return trails;
}

void DocumentWatcher::watch()
{
    // A new watcher each time: an existing one would keep watching files that have been renamed or replaced.
    m_watcher = std::make_unique<QFileSystemWatcher>();
    connect(m_watcher.get(), &QFileSystemWatcher::fileChanged, this, &DocumentWatcher::postpone);
    connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, this, &DocumentWatcher::lookAt);

    m_trails = trails();
    for (const QString& place : m_watcher->addPaths(watchable()))
        complainOnce(place);
    if (m_trails != trails())
        postpone();
}

/// The readable places of all trails. Logs those that exist but cannot be read.
QStringList DocumentWatcher::watchable()
{
    QStringList result;
    for (const Trail& trail : qAsConst(m_trails)) {
        for (const PathTrail::Place& place : trail) {
            const QFileInfo info(place.path);
            if (info.isReadable()) {
                result.append(place.path);
            } else if (info.exists()) {
                complainOnce(place.path);
            }
        }
    }
    result.removeDuplicates();
    return result;
}

void DocumentWatcher::complainOnce(const QString& place)
{
    if (m_unwatchable.contains(place))
        return;
    m_unwatchable.append(place);
    qWarning().noquote() << "cannot watch" << place + ": changes there may go unnoticed";
}

/// Handles a change in a directory. In the directory of a document every change counts; further up only a
/// change that makes the path lead to another file.
void DocumentWatcher::lookAt(const QString& directory)
{
    const bool isNear = std::any_of(m_trails.cbegin(), m_trails.cend(), [&directory](const Trail& trail) {
        const QString end = trail.last().path;
        return directory == end || directory == QFileInfo(end).path();
    });
    if (isNear || m_trails != trails())
        postpone();
}

void DocumentWatcher::postpone()
{
    if (!m_timer.isActive())
        m_deadline.setRemainingTime(m_debounce.longest);
    const std::chrono::milliseconds left(m_deadline.remainingTime());
    m_timer.start(std::min(m_debounce.quiet, left));
}

void DocumentWatcher::report()
{
    watch();
    Q_EMIT touched();
}
