#include "TextFolder.h"

#include <QtCore/QFile>

QString TextFolder::write(const QString& name, const QString& text) const
{
    if (text.isNull())
        return path(name);
    QFile file(path(name));
    const QByteArray bytes = text.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

QString TextFolder::path(const QString& name) const
{
    return m_folder.filePath(name);
}
