#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtDBus/QDBusContext>

#include "ConfigurationDocument.h"

/// An object on the bus that serves one document by one method, and nothing else: every other name, and the
/// other method, are answered with the error "...UnknownConfiguration"; its own with "...NoConfiguration"
/// while the document was never good. Which module asks makes no difference.
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

    ConfigurationObject(const ConfigurationDocument& document, Method method, QObject* parent);

    /// Reads the document's file. @return whether the text in force is another than before.
    bool update();
    /// Announces that it is.
    void announce();

    /// The text of the document @p name; called from the bus.
    QString getConfiguration(const QString& name, const QString& module, const QString& extra) const;
    /// The text of the dependency document @p name; called from the bus.
    QString getConfigurationDependency(const QString& name, const QString& module) const;

signals:
    /// Another text of the document @p name is in force, and is served already.
    void configurationChanged(const QString& name);

private:
    QString answer(Method method, const QString& name) const;

    ConfigurationDocument m_document;
    const Method m_method;
};
