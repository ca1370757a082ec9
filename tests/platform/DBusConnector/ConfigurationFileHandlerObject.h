#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

/// The object that the generated adaptor serves. It returns the arguments of the request.
class ConfigurationFileHandlerObject : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    QString getConfiguration(const QString& name, const QString& module, const QString& extra)
    {
        return QStringLiteral("configuration %1 for %2 with %3").arg(name, module, extra);
    }

    QString getConfigurationDependency(const QString& name, const QString& module)
    {
        return QStringLiteral("dependency %1 for %2").arg(name, module);
    }

Q_SIGNALS:
    void configurationChanged(const QString& name);
};
