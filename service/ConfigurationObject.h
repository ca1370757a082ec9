#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtDBus/QDBusContext>

#include <optional>

/// A bus object that serves one document by one method. Every other name, and the other method, are answered
/// with the error "...UnknownConfiguration"; the object's own name with "...NoConfiguration" until the
/// document was valid once. The requesting module makes no difference.
class ConfigurationObject : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    /// The method that serves the document.
    enum class Method
    {
        GetConfiguration,
        GetConfigurationDependency
    };

    /// @param name name of the document
    ConfigurationObject(const QString& name, Method method, QObject* parent);

    /// Sets the text that is served from now on.
    void setText(const QString& text);
    /// Emits configurationChanged().
    void announce();

    /// Called from the bus. @return the text of the document @p name.
    QString getConfiguration(const QString& name, const QString& module, const QString& extra) const;
    /// Called from the bus. @return the text of the dependency document @p name.
    QString getConfigurationDependency(const QString& name, const QString& module) const;

Q_SIGNALS:
    /// The active text of the document @p name has changed; the new text is already served.
    void configurationChanged(const QString& name);

private:
    QString answer(Method method, const QString& name) const;

    const QString m_name;
    const Method m_method;
    /// No value until the document was valid once.
    std::optional<QString> m_text;
};
