#include "ConfigurationStore.h"

#include <QtCore/QFile>

namespace {

struct DocumentFile
{
    const char* name;
    const char* object;
    const char* configuration;
};

const DocumentFile documentFiles[] = {
    {"units.json", "UnitCatalogue", "UnitManager/UnitType"},
    {"default-units.json", "DefaultUnitConfiguration", "UnitManager/DefaultUnit"},
    {"dependencies.json", "DependencyConfiguration", "UnitManager/Dependency"}};

} // namespace

ConfigurationStore& ConfigurationStore::instance()
{
    static ConfigurationStore store;
    return store;
}

void ConfigurationStore::setText(const QString& object, const QString& configuration, const QString& text)
{
    const QMutexLocker guard(&m_mutex);
    m_texts[object][configuration] = text;
}

void ConfigurationStore::announce(const QString& object, const QString& configuration)
{
    const QMutexLocker guard(&m_mutex);
    Announcement& announcement = m_announcements[object];
    ++announcement.number;
    announcement.configuration = configuration;
}

void ConfigurationStore::clear()
{
    const QMutexLocker guard(&m_mutex);
    m_texts.clear();
}

bool ConfigurationStore::hasObject(const QString& object)
{
    const QMutexLocker guard(&m_mutex);
    readFiles();
    return m_texts.contains(object);
}

QString ConfigurationStore::text(const QString& object, const QString& configuration)
{
    const QMutexLocker guard(&m_mutex);
    readFiles();
    return m_texts.value(object).value(configuration);
}

ConfigurationStore::Announcement ConfigurationStore::lastAnnouncement(const QString& object)
{
    const QMutexLocker guard(&m_mutex);
    readFiles();
    return m_announcements.value(object);
}

void ConfigurationStore::readFiles()
{
    const QString directory = qEnvironmentVariable("DEVICE_DOCUMENTS");
    if (directory.isEmpty())
        return;
    for (const DocumentFile& document : documentFiles) {
        QFile file(directory + QLatin1Char('/') + QLatin1String(document.name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QString object = QString::fromLatin1(document.object);
        const QString configuration = QString::fromLatin1(document.configuration);
        const QString text = QString::fromUtf8(file.readAll());
        const QString known = m_texts.value(object).value(configuration);
        if (text == known)
            continue;
        setText(object, configuration, text);
        if (!known.isNull())
            announce(object, configuration);
    }
}
