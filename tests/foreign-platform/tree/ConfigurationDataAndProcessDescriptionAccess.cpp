#include "ConfigurationDataAndProcessDescriptionAccess.h"

#include <QtCore/QDebug>
#include <QtCore/QFile>

QString ConfigurationDataAndProcessDescriptionAccess::getConfiguration(const QFileInfo& file) const
{
    QFile content(file.filePath());
    if (file.isFile() && content.open(QIODevice::ReadOnly))
        return QString::fromUtf8(content.readAll());
    qWarning() << "cannot read" << file.filePath();
    return {};
}
