#include "MachineApplication.h"

#include "Conversion.h"

// Built and then initialised, as the wrapper does it.
MachineApplication::MachineApplication(const Mode& mode, const Settings& settings)
    : m_isAsynchronous(mode.reading == Mode::Asynchronous),
      m_machine(nullptr, mode.changes == Mode::Polled, false, QString(), QString(), QString(), QString(),
                QString(), QString())
{
    init(settings);
}

void MachineApplication::init(const Settings& settings)
{
    m_machine.init(m_isAsynchronous, settings.dependencies.module, settings.dependencies.object,
                   settings.dependencies.configuration, settings.defaultUnits.module,
                   settings.defaultUnits.object, settings.defaultUnits.configuration);
}

void MachineApplication::reset()
{
    m_machine.reset();
}

bool MachineApplication::check()
{
    m_machine.postEvent();
    return m_machine.getCurrentStateIdentifier() == QLatin1String("UnitManagerConnectorStateIdle");
}

std::optional<bool> MachineApplication::hasChanged()
{
    return std::nullopt;
}

QSharedPointer<const UnitManagerDevice> MachineApplication::units()
{
    QSharedPointer<UnitManagerDevice> units;
    m_machine.initializeUnitManager(units);
    return units;
}

QString MachineApplication::converted()
{
    return Conversion::by(units());
}

std::optional<QString> MachineApplication::dependents()
{
    QSharedPointer<DependencyWalker> walker;
    m_machine.initializeDependencyWalker(walker);
    return Conversion::dependentsBy(walker);
}
