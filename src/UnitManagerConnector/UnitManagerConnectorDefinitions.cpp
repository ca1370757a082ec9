#include "UnitManagerConnector/UnitManagerConnectorDefinitions.h"

UnitManagerConnectorDefinitions::UnitManagerConnectorDefinitions(QObject* /*parent*/) : QObject(nullptr) {}

const QString& UnitManagerConnectorDefinitions::getKeyOptional()
{
    static const QString key = QStringLiteral("optional");
    return key;
}

const QString& UnitManagerConnectorDefinitions::getKeyMandatory()
{
    static const QString key = QStringLiteral("mandatory");
    return key;
}

const QString& UnitManagerConnectorDefinitions::getKeyConfigurationFile()
{
    static const QString key = QStringLiteral("configuration.dependency");
    return key;
}

const QString& UnitManagerConnectorDefinitions::getKeyConfigurationDependencyFile()
{
    static const QString key = QStringLiteral("configuration");
    return key;
}
