#pragma once

#include <QtCore/QHash>
#include <QtCore/QMutex>
#include <QtCore/QString>

/// The documents of the device, in the same process as their users. Thread-safe.
///
/// If the environment variable DEVICE_DOCUMENTS names a directory, its files units.json, default-units.json
/// and dependencies.json are published when they exist, and again when a poll finds that they have changed.
class ConfigurationStore
{
public:
    struct Announcement
    {
        quint64 number = 0; ///< counts the announcements of an object; 0: there was none
        QString configuration;
    };

    static ConfigurationStore& instance();

    /// Sets the text of a configuration. The object exists from now on; nothing is announced.
    void setText(const QString& object, const QString& configuration, const QString& text);
    /// Announces that a configuration has changed.
    void announce(const QString& object, const QString& configuration);
    /// Removes all objects.
    void clear();

    bool hasObject(const QString& object);
    /// @return a null text when the object does not have the configuration.
    QString text(const QString& object, const QString& configuration);
    /// The last announcement of an object.
    Announcement lastAnnouncement(const QString& object);

private:
    ConfigurationStore() = default;
    void readFiles();

    QMutex m_mutex{QMutex::Recursive};
    QHash<QString, QHash<QString, QString>> m_texts;
    QHash<QString, Announcement> m_announcements;
};
