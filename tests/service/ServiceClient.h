#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusMessage>

/// The names of the service's objects.
namespace ServiceObject {
inline const QString units = QStringLiteral("UnitManagerConfiguration");
inline const QString defaultUnits = QStringLiteral("DefaultUnitConfiguration");
inline const QString dependencies = QStringLiteral("DependencyConfiguration");
} // namespace ServiceObject

/// The announcements of the service, as returned by ServiceClient::announcements().
namespace ServiceAnnouncement {
inline const QString units = ServiceObject::units + QStringLiteral(" UnitManager/UnitType");
inline const QString defaultUnits = ServiceObject::defaultUnits + QStringLiteral(" UnitManager/DefaultUnit");
inline const QString dependencies = ServiceObject::dependencies + QStringLiteral(" UnitManager/Dependency");
} // namespace ServiceAnnouncement

/// An application on the bus: calls the service, and receives its announcements while the event loop runs.
class ServiceClient : public QObject
{
    Q_OBJECT

public:
    explicit ServiceClient(const QString& address);
    ~ServiceClient() override;

    /// Calls a method of the service's interface. @return the reply; an error after a minute.
    QDBusMessage call(const QString& object, const QString& method, const QStringList& arguments) const;
    /// Calls a method of any interface and program on the bus. @return the reply; an error after a minute.
    QDBusMessage call(const QString& program, const QString& object, const QString& interface,
                      const QString& method, const QVariantList& arguments = {}) const;

    /// The text that an object serves under its name by its own method; on error "error: " and the error's
    /// name.
    QString text(const QString& object) const;

    /// The values of all properties of an object; empty on error.
    QVariantMap state(const QString& object) const;

    /// A received signal PropertiesChanged.
    struct PropertyChange
    {
        QString object;
        QVariantMap values;
        /// The announcements received before.
        int announcementsBefore;
    };
    /// The changes received so far, oldest first. One that is not as the interface promises has no values.
    QList<PropertyChange> propertyChanges() const;

    /// The announcements received so far, oldest first: the object's name, a blank, and the announced name.
    QStringList announcements() const;

private Q_SLOTS:
    void receive(const QString& name, const QDBusMessage& message);
    void receiveProperties(const QDBusMessage& message);

private:
    QString m_connectionName;
    QStringList m_announcements;
    QList<PropertyChange> m_propertyChanges;
};
