#include "ConnectorApplication.h"

#include "Conversion.h"
#include "Journal.h"

// Built and then initialised, as the wrapper does it.
ConnectorApplication::ConnectorApplication(const Mode& mode, const Settings& settings)
    : m_isAsynchronous(mode.reading == Mode::Asynchronous),
      m_connector(nullptr, mode.changes == Mode::Polled, false, QString(), QString(), QString(), QString(),
                  QString(), QString())
{
    QObject::connect(&m_connector, &UnitManagerDBusConnector::unitManagerConfigurationChanged,
                     [] { Journal::noteSignal(QStringLiteral("changed")); });
    QObject::connect(&m_connector, &UnitManagerDBusConnector::unitManagerIsInitialized,
                     [] { Journal::noteSignal(QStringLiteral("initialized")); });
    init(settings);
}

void ConnectorApplication::init(const Settings& settings)
{
    m_connector.init(m_isAsynchronous, settings.dependencies.module, settings.dependencies.object,
                     settings.dependencies.configuration, settings.defaultUnits.module,
                     settings.defaultUnits.object, settings.defaultUnits.configuration);
}

void ConnectorApplication::reset()
{
    m_connector.reset();
}

bool ConnectorApplication::check()
{
    return m_connector.isUnitManagerInitialized();
}

std::optional<bool> ConnectorApplication::hasChanged()
{
    return m_connector.hasConfigurationChanged();
}

QSharedPointer<const UnitManagerDevice> ConnectorApplication::units()
{
    QSharedPointer<UnitManagerDevice> units;
    m_connector.initializeUnitManager(units);
    return units;
}

QString ConnectorApplication::converted()
{
    return Conversion::by(units());
}

std::optional<QString> ConnectorApplication::dependents()
{
    QSharedPointer<DependencyWalker> walker;
    m_connector.initializeDependencyWalker(walker);
    return Conversion::dependentsBy(walker);
}
