#include "DocumentFile.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

bool DocumentFile::operator==(const Content& left, const Content& right)
{
    return left.problem == right.problem && left.bytes == right.bytes;
}

DocumentFile::Content DocumentFile::read(const QString& path, qint64 maximumSize)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return {{}, QStringLiteral("it is not a regular file")};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, file.errorString()};
    const QByteArray bytes = file.read(maximumSize + 1);
    if (file.error() != QFileDevice::NoError)
        return {{}, file.errorString()};
    return {bytes, {}};
}
