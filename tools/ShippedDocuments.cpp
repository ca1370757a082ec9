#include "ShippedDocuments.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

QString ShippedDocuments::path(const QString& name)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../share/unitmanager/" + name);
}
