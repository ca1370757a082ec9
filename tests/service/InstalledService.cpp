#include "InstalledService.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QProcess>

#include "WaitLimit.h"

bool InstalledService::install()
{
    QProcess cmake;
    cmake.setProcessChannelMode(QProcess::ForwardedChannels);
    cmake.start(CMAKE_PROGRAM, {"--install", SERVICE_BINARY_DIR, "--prefix", m_prefix.path()});
    return cmake.waitForFinished(waitLimit) && cmake.exitStatus() == QProcess::NormalExit &&
           cmake.exitCode() == 0;
}

QStringList InstalledService::files() const
{
    QStringList files;
    QDirIterator iterator(m_prefix.path(), QDir::Files, QDirIterator::Subdirectories);
    while (iterator.hasNext())
        files.append(QDir(m_prefix.path()).relativeFilePath(iterator.next()));
    files.sort();
    return files;
}

QString InstalledService::text(const QString& file) const
{
    QFile opened(m_prefix.filePath(file));
    return opened.open(QIODevice::ReadOnly) ? QString::fromUtf8(opened.readAll()) : QString();
}

QStringList InstalledService::values(const QString& file, const QString& key) const
{
    QStringList values;
    for (const QString& line : text(file).split('\n')) {
        if (line.startsWith(key + '='))
            values.append(line.mid(key.size() + 1));
    }
    return values;
}
