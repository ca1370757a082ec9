#include "TextFolder.h"

#include <QtCore/QtGlobal>

#include "TestFiles.h"

QString TextFolder::write(const QString& name, const QString& text) const
{
    if (text.isNull())
        return path(name);
    if (!TestFiles::write(path(name), text.toUtf8()))
        qFatal("cannot write %s", qPrintable(path(name)));
    return path(name);
}

QString TextFolder::path(const QString& name) const
{
    return m_folder.filePath(name);
}
