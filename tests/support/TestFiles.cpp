#include "TestFiles.h"

#include <QtCore/QFile>
#include <QtCore/QSaveFile>

#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace {

template <typename File>
bool fill(File& file, const QByteArray& bytes)
{
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

bool TestFiles::write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return fill(file, bytes) && file.flush();
}

bool TestFiles::replace(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    return fill(file, bytes) && file.commit();
}

bool TestFiles::link(const QString& target, const QString& path)
{
    const QByteArray temporary = QFile::encodeName(path + ".new");
    return ::symlink(QFile::encodeName(target), temporary) == 0 &&
           std::rename(temporary, QFile::encodeName(path)) == 0;
}

bool TestFiles::setMode(const QString& path, unsigned int mode)
{
    return ::chmod(QFile::encodeName(path), mode) == 0;
}
