#include "ShippedService.h"

#include <QtCore/QFile>

#include "DeviceBusEnvironment.h"
#include "TestFiles.h"

namespace {

QByteArray shippedDocument(const QString& file)
{
    QFile document(UNITMANAGER_CONFIG_DIR "/" + file);
    return document.open(QIODevice::ReadOnly) ? document.readAll() : QByteArray();
}

} // namespace

bool ShippedService::startBus()
{
    return restore("units.json") && restore("default-units.json") && restore("dependencies.json") &&
           startDeviceBus(m_bus);
}

bool ShippedService::start()
{
    return m_service.serve(m_directory.path(), m_bus.address());
}

bool ShippedService::change(const QString& file, const QByteArray& text, const QByteArray& replacement)
{
    QByteArray document = shippedDocument(file);
    return document.count(text) == 1 &&
           TestFiles::replace(m_directory.filePath(file), document.replace(text, replacement));
}

bool ShippedService::restore(const QString& file)
{
    const QByteArray document = shippedDocument(file);
    return !document.isEmpty() && TestFiles::replace(m_directory.filePath(file), document);
}

QString ShippedService::log()
{
    return m_service.log();
}
