#include "Application.h"

#include "Conversion.h"
#include "Expected.h"
#include "Recorder.h"
#include "UnitManagerConnector/UnitManagerDBusConnector.h"
#include "UnitManagerConnector/UnitManagerStateMachineWrapper.h"
#include "UnitManagerDevice/UnitManagerWrapper.h"

namespace {

/// Calls init() of the wrapper, the connector or its state machine.
template <typename Library>
void initialize(Library& library, const Mode& mode, const Settings& settings)
{
    library.init(!mode.isBlocking, settings.dependencies.module, settings.dependencies.object,
                 settings.dependencies.configuration, settings.defaultUnits.module,
                 settings.defaultUnits.object, settings.defaultUnits.configuration);
}

/// Holds a wrapper, as devices do.
class WrapperApplication : public Application
{
public:
    WrapperApplication(const Mode& mode, const Settings& settings)
        : m_mode(mode),
          m_wrapper(settings.dependencies.module, settings.dependencies.object,
                    settings.dependencies.configuration, settings.defaultUnits.module,
                    settings.defaultUnits.object, settings.defaultUnits.configuration, !mode.isBlocking,
                    mode.isPolled)
    {}

    void init(const Settings& settings) override
    {
        initialize(m_wrapper, m_mode, settings);
    }

    void reset() override
    {
        m_wrapper.reset();
    }

    bool check() override
    {
        return m_wrapper.checkInitialized();
    }

    std::optional<bool> hasChanged() override
    {
        return m_wrapper.hasUnitManagerConfigurationChanged();
    }

    QSharedPointer<const UnitManagerDevice> units() override
    {
        return m_wrapper.getUnitManager();
    }

    QString converted() override
    {
        return Conversion::by(m_wrapper);
    }

    std::optional<QString> dependents() override
    {
        return std::nullopt;
    }

private:
    const Mode m_mode;
    UnitManagerWrapper m_wrapper;
};

/// Holds the connector or its state machine. Both are constructed without sources and initialised by the
/// derived class, in the same order as in the wrapper.
template <typename Library>
class ConnectorLevelApplication : public Application
{
public:
    explicit ConnectorLevelApplication(const Mode& mode)
        : m_library(nullptr, mode.isPolled, false, {}, {}, {}, {}, {}, {}), m_mode(mode)
    {}

    void init(const Settings& settings) override
    {
        initialize(m_library, m_mode, settings);
    }

    void reset() override
    {
        m_library.reset();
    }

    QSharedPointer<const UnitManagerDevice> units() override
    {
        QSharedPointer<UnitManagerDevice> units;
        m_library.initializeUnitManager(units);
        return units;
    }

    QString converted() override
    {
        return Conversion::by(units());
    }

    std::optional<QString> dependents() override
    {
        QSharedPointer<DependencyWalker> walker;
        m_library.initializeDependencyWalker(walker);
        return Conversion::dependentsBy(walker);
    }

protected:
    Library m_library;

private:
    const Mode m_mode;
};

/// Holds only the connector and records its signals.
class ConnectorApplication : public ConnectorLevelApplication<UnitManagerDBusConnector>
{
public:
    ConnectorApplication(const Mode& mode, const Settings& settings, Recorder& recorder)
        : ConnectorLevelApplication(mode)
    {
        QObject::connect(&m_library, &UnitManagerDBusConnector::unitManagerConfigurationChanged,
                         [&recorder] { recorder.addEvent(Signal::configurationChanged); });
        QObject::connect(&m_library, &UnitManagerDBusConnector::unitManagerIsInitialized,
                         [&recorder] { recorder.addEvent(Signal::initialized); });
        initialize(m_library, mode, settings);
    }

    bool check() override
    {
        return m_library.isUnitManagerInitialized();
    }

    std::optional<bool> hasChanged() override
    {
        return m_library.hasConfigurationChanged();
    }
};

/// Holds only the connector's state machine; each check is one step of it.
class MachineApplication : public ConnectorLevelApplication<UnitManagerStateMachineWrapper>
{
public:
    MachineApplication(const Mode& mode, const Settings& settings) : ConnectorLevelApplication(mode)
    {
        initialize(m_library, mode, settings);
    }

    bool check() override
    {
        m_library.postEvent();
        return m_library.getCurrentStateIdentifier() == State::idle;
    }

    std::optional<bool> hasChanged() override
    {
        return std::nullopt;
    }
};

} // namespace

std::unique_ptr<Application> Application::create(const Mode& mode, const Settings& settings,
                                                 Recorder& recorder)
{
    switch (mode.level) {
    case Mode::Wrapper:
        return std::make_unique<WrapperApplication>(mode, settings);
    case Mode::Connector:
        return std::make_unique<ConnectorApplication>(mode, settings, recorder);
    case Mode::Machine:
        return std::make_unique<MachineApplication>(mode, settings);
    }
    return nullptr;
}
