#include "WrapperApplication.h"

#include "Conversion.h"

WrapperApplication::WrapperApplication(const Mode& mode, const Settings& settings)
    : m_isAsynchronous(mode.reading == Mode::Asynchronous),
      m_wrapper(settings.dependencies.module, settings.dependencies.object,
                settings.dependencies.configuration, settings.defaultUnits.module,
                settings.defaultUnits.object, settings.defaultUnits.configuration, m_isAsynchronous,
                mode.changes == Mode::Polled)
{}

void WrapperApplication::init(const Settings& settings)
{
    m_wrapper.init(m_isAsynchronous, settings.dependencies.module, settings.dependencies.object,
                   settings.dependencies.configuration, settings.defaultUnits.module,
                   settings.defaultUnits.object, settings.defaultUnits.configuration);
}

void WrapperApplication::reset()
{
    m_wrapper.reset();
}

bool WrapperApplication::check()
{
    return m_wrapper.checkInitialized();
}

std::optional<bool> WrapperApplication::hasChanged()
{
    return m_wrapper.hasUnitManagerConfigurationChanged();
}

QSharedPointer<const UnitManagerDevice> WrapperApplication::units()
{
    return m_wrapper.getUnitManager();
}

QString WrapperApplication::converted()
{
    return Conversion::by(m_wrapper);
}

std::optional<QString> WrapperApplication::dependents()
{
    return std::nullopt;
}
