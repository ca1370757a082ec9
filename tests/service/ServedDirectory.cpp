#include "ServedDirectory.h"

#include <QtCore/QDir>
#include <QtTest/QTest>

#include "ServiceDocuments.h"
#include "TestFiles.h"
#include "WaitLimit.h"

ServedDirectory::ServedDirectory()
{
    QDir().mkpath(directory());
    TestFiles::write(path("units.json"), ServiceDocuments::units("first"));
    TestFiles::write(path("default-units.json"), ServiceDocuments::defaultUnits("first"));
    TestFiles::write(path("dependencies.json"), ServiceDocuments::dependencies("first"));
}

bool ServedDirectory::start()
{
    if (!m_bus.start())
        return false;
    // Listen first, so that an announcement during the start is received.
    m_client = std::make_unique<ServiceClient>(m_bus.address());
    return m_service.serve(directory(), m_bus.address());
}

QString ServedDirectory::path(const QString& file) const
{
    return directory() + '/' + file;
}

QString ServedDirectory::directory() const
{
    return m_directory.filePath("documents");
}

QStringList ServedDirectory::settledAnnouncements()
{
    const QString marker = ServiceAnnouncement::dependencies;
    const QByteArray text = ServiceDocuments::dependencies(QString::number(m_known) + " announcements known");
    if (!TestFiles::replace(path("dependencies.json"), text))
        return {"the dependencies could not be replaced"};
    const bool isReceived = QTest::qWaitFor(
        [this, &marker] { return m_client->announcements().mid(m_known).contains(marker); }, waitLimit);
    QStringList news = m_client->announcements().mid(m_known);
    m_known += news.size();
    if (!isReceived)
        news.append("the dependencies were not announced");
    news.removeOne(marker);
    return news;
}

PrivateBus& ServedDirectory::bus()
{
    return m_bus;
}

ServiceProcess& ServedDirectory::service()
{
    return m_service;
}

ServiceClient& ServedDirectory::client()
{
    return *m_client;
}
