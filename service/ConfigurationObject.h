#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusContext>

#include "DocumentState.h"

/// A bus object that serves one document by one method, and shows its state as properties. Every other name,
/// and the other method, are answered with the error "...UnknownConfiguration"; the object's own name with
/// "...NoConfiguration" until the document was valid once. The requesting module makes no difference.
class ConfigurationObject : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_PROPERTY(QString version READ version)
    Q_PROPERTY(QString state READ state)
    Q_PROPERTY(QString checksum READ checksum)
    Q_PROPERTY(QString lastRefusal READ lastRefusal)

public:
    /// The method that serves the document.
    enum class Method
    {
        GetConfiguration,
        GetConfigurationDependency
    };

    /// @param name name of the document
    ConfigurationObject(const QString& name, Method method, QObject* parent);

    /// Sets what is served from now on.
    void setState(const DocumentState& state);
    /// The properties that have changed since the last call, with their present values.
    QVariantMap takeChanges();
    /// Emits configurationChanged().
    void announce();

    /// The program's version.
    QString version() const;
    /// "missing" until a valid document was read, "active" while the file's content is served, "refused"
    /// while the last valid document is served in place of the file's content.
    QString state() const;
    /// See DocumentState::checksum.
    QString checksum() const;
    /// See DocumentState::refusal.
    QString lastRefusal() const;

    /// Called from the bus. @return the text of the document @p name.
    QString getConfiguration(const QString& name, const QString& module, const QString& extra) const;
    /// Called from the bus. @return the text of the dependency document @p name.
    QString getConfigurationDependency(const QString& name, const QString& module) const;

Q_SIGNALS:
    /// The active text of the document @p name has changed; the new text is already served.
    void configurationChanged(const QString& name);

private:
    QString answer(Method method, const QString& name) const;
    QVariantMap changeableProperties() const;

    const QString m_name;
    const Method m_method;
    DocumentState m_served;
    /// The properties that can change, as of the last takeChanges().
    QVariantMap m_announced;
};
