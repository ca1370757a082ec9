#include "ShippedDocuments.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>

namespace {

/// The folder of the product's own documents: that of the system for a program in /usr/bin.
QString productFolder(const QDir& prefix)
{
    return prefix.path() == QLatin1String("/usr") ? QStringLiteral("/etc/unitmanager")
                                                  : prefix.filePath(QStringLiteral("etc/unitmanager"));
}

} // namespace

QString ShippedDocuments::path(const QString& name)
{
    const QDir prefix(QDir::cleanPath(QCoreApplication::applicationDirPath() + "/.."));
    const QString own = productFolder(prefix) + '/' + name;
    return QFile::exists(own) ? own : prefix.filePath("share/unitmanager/" + name);
}
